#include "ui/look.h"

#include "ui/lodge_style.h"
#include "ui/measures.h"
#include "ui/type.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPixmapCache>
#include <QToolTip>

#include <algorithm>

// The resources lie in a library, which nothing else would make known.
static void initResources() { Q_INIT_RESOURCE(lodge_ui); }

namespace lodge {

namespace {

constexpr int iconSize = 20;

/// One icon: the stencil of its name, filled with a colour the moment that it is asked for.
class StencilEngine : public QIconEngine {
  public:
    StencilEngine(const QString& name, const QColor& open, const QColor& closed)
        : name_(name), open_(open), closed_(closed) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        painter->drawPixmap(rect, filled(rect.size() * painter->device()->devicePixelRatioF(), mode));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        return filled(size, mode);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new StencilEngine(*this); }

  private:
    /// The stencil at that many pixels in the colour of the mode, from the smallest drawing that has as many.
    [[nodiscard]] QPixmap filled(const QSize& pixels, QIcon::Mode mode) const {
        constexpr int largest = 3;
        const int scale = std::clamp((pixels.width() + iconSize - 1) / iconSize, 1, largest);
        const QColor colour = mode == QIcon::Disabled ? closed_ : open_;
        const QString key = QStringLiteral("icon %1 %2 %3").arg(name_).arg(pixels.width()).arg(colour.rgb());
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = pictureAt(QStringLiteral(":/ui/icons/%1@%2.png").arg(name_).arg(scale));
            pixmap = pixmap.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            QPainter painter(&pixmap);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(pixmap.rect(), colour);
            painter.end();
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    QString name_;
    QColor open_;
    QColor closed_;
};

/// What an icon says decides its colour: what refuses is never drawn in ink.
QColor iconColour(const QWidget& widget) {
    const QByteArray role = widget.property("role").toByteArray();
    if (role == "main") {
        return widget.palette().color(QPalette::Light);
    }
    if (role == "danger") {
        return widget.palette().color(ink::stop);
    }
    if (role == "mark") {
        return widget.palette().color(ink::form);
    }
    if (role == "warn") {
        return widget.palette().color(ink::warn);
    }
    return widget.palette().color(QPalette::Active, QPalette::ButtonText);
}

} // namespace

QPixmap pictureAt(const QString& path) {
    QImageReader reader(path, "png");
    reader.setAutoDetectImageFormat(false); // or else every plugin is loaded and asked
    return QPixmap::fromImageReader(&reader);
}

QIcon iconOf(const QString& name, const QColor& colour, const QColor& closed) {
    return QIcon(new StencilEngine(name, colour, closed)); // which owns it
}

Look::Look(QApplication& application) : Look(application, themeOfDesktop(QApplication::palette())) {}

Look::Look(QApplication& application, const Theme& theme) : application_(application), theme_(&theme) {
    initResources();
    for (const Qt::UIEffect effect : {Qt::UI_AnimateCombo, Qt::UI_AnimateMenu, Qt::UI_AnimateTooltip,
             Qt::UI_FadeMenu, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox}) {
        QApplication::setEffectEnabled(effect, false);
    }
    wear();
    application.installEventFilter(this);
    connect(&application, &QApplication::focusChanged, this,
        [this](QWidget* /*old*/, QWidget* now) { moveRing(now); });
}

void Look::wear() {
    wearing_ = true;
    QApplication::setFont(fontOf(typeOf(QStringLiteral("field")), zoom_));
    QApplication::setPalette(paletteOf(*theme_));
    QToolTip::setPalette(paletteOf(*theme_));
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style.
    QApplication::setStyle(new LodgeStyle(*theme_)); // a new one, so that everything is polished again
    wearing_ = false;
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
}

void Look::setZoom(double zoom) {
    if (zoom != zoom_) {
        zoom_ = zoom;
        wear();
        emit changed();
    }
}

double Look::zoomAfter(int steps) const {
    const auto here = std::find(zoomLevels.begin(), zoomLevels.end(), zoom_);
    const auto at = std::clamp<std::ptrdiff_t>(
        here - zoomLevels.begin() + steps, 0, static_cast<std::ptrdiff_t>(zoomLevels.size()) - 1);
    return zoomLevels.at(static_cast<std::size_t>(at));
}

void Look::follow(const QPalette& desktop) {
    const Theme& theme = themeOfDesktop(desktop);
    const bool another = &theme != theme_;
    theme_ = &theme;
    wear();
    if (another) {
        emit changed();
    }
}

bool Look::eventFilter(QObject* watched, QEvent* event) {
    if (wearing_) {
        return false;
    }
    if (event->type() == QEvent::ApplicationPaletteChange && watched == &application_) {
        const QPalette palette = QApplication::palette();
        if (palette.color(QPalette::Window) != toColor(theme_->ground)) {
            follow(palette); // not ours: the desktop's
        }
    } else if (event->type() == QEvent::ThemeChange && watched->isWindowType()) {
        // The desktop's palette stands behind our own, which goes for the moment of a look.
        wearing_ = true;
        QApplication::setPalette(QPalette());
        const QPalette desktop = QApplication::palette();
        wearing_ = false;
        follow(desktop);
    }
    return false;
}

void Look::dress(QWidget& root) const {
    const QSize side = zoomed(QSize(iconSize, iconSize));
    zoomMeasures(root, zoom_);
    QList<QWidget*> widgets = root.findChildren<QWidget*>();
    widgets << &root;
    for (QWidget* widget : widgets) {
        const QVariant type = widget->property("type");
        if (type.isValid()) {
            const Type& use = typeOf(type.toString());
            widget->setFont(fontOf(use, zoom_));
            widget->setMinimumHeight(std::max(widget->minimumHeight(), zoomed(use.height)));
        }
        const QVariant drawing = widget->property("drawing");
        auto* button = qobject_cast<QAbstractButton*>(widget);
        auto* label = qobject_cast<QLabel*>(widget);
        if (drawing.isValid() && (button != nullptr || label != nullptr)) {
            const QIcon drawn = iconOf(drawing.toString(), iconColour(*widget), toColor(theme_->ink3));
            if (button != nullptr) {
                button->setIcon(drawn);
                button->setIconSize(side);
            } else {
                label->setPixmap(drawn.pixmap(side, label->devicePixelRatioF()));
            }
        }
    }
}

void Look::moveRing(QWidget* focused) {
    const bool ringed = qobject_cast<QAbstractButton*>(focused) != nullptr;
    if (!ringed) {
        if (ring_ != nullptr) {
            ring_->setWidget(nullptr);
        }
        return;
    }
    if (ring_ == nullptr) {
        ring_ = new QFocusFrame; // the frame moves to the parent of its widget and may die with it
    }
    ring_->setWidget(focused);
}

} // namespace lodge
