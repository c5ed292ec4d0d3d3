#include "ui/look.h"

#include "ui/lodge_style.h"
#include "ui/measures.h"
#include "ui/type.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>

// The resources lie in a library, which nothing else would make known.
static void initResources() { Q_INIT_RESOURCE(lodge_ui); }

namespace lodge {

namespace {

/// The measures of the style sheet at a zoom.
QString zoomedSheet(const QString& sheet, double zoom) {
    static const QRegularExpression measure(QStringLiteral("(?:\\{(\\d+)-(\\d+)\\}|\\b(\\d+))px"));
    constexpr int widestLine = 3;
    QString zoomed;
    qsizetype at = 0;
    for (auto matches = measure.globalMatch(sheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const int whole = match.captured(1).toInt() + match.captured(3).toInt();
        const int drawn = whole <= widestLine ? whole : qRound(whole * zoom);
        zoomed += sheet.mid(at, match.capturedStart() - at);
        zoomed += QStringLiteral("%1px").arg(drawn - match.captured(2).toInt());
        at = match.capturedEnd();
    }
    return zoomed + sheet.mid(at);
}

QString styleSheetOf(const Theme& theme) {
    QFile file(QStringLiteral(":/ui/style.qss"));
    file.open(QIODevice::ReadOnly);
    QString sheet = QString::fromUtf8(file.readAll());
    for (const ThemeColour& colour : themeColours) {
        const QRegularExpression name(QStringLiteral("@%1\\b").arg(QLatin1String(colour.name)));
        sheet.replace(name, toColor(theme.*colour.colour).name());
    }
    return sheet;
}

QPixmap tinted(const QString& path, const QColor& colour) {
    QPixmap pixmap(path);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    return pixmap;
}

/// What an icon says decides its colour: what refuses is never drawn in ink.
QColor iconColour(const QWidget& widget) {
    const QString role = widget.property("role").toString();
    if (role == QLatin1String("main")) {
        return widget.palette().color(QPalette::Light);
    }
    if (role == QLatin1String("danger")) {
        return widget.palette().color(QPalette::BrightText);
    }
    if (role == QLatin1String("mark")) {
        return widget.palette().color(QPalette::Link);
    }
    return widget.palette().color(QPalette::Active, QPalette::ButtonText);
}

constexpr int iconSize = 20;

} // namespace

QIcon iconOf(const QString& name, const QColor& colour, const QColor& closed) {
    QIcon icon;
    for (const int scale : {1, 2, 3}) {
        const QString path = QStringLiteral(":/ui/icons/%1@%2.png").arg(name).arg(scale);
        QPixmap open = tinted(path, colour);
        QPixmap shut = tinted(path, closed);
        icon.addPixmap(open, QIcon::Normal);
        icon.addPixmap(shut, QIcon::Disabled);
    }
    return icon;
}

Look::Look(QApplication& application) : Look(application, themeOfDesktop(QApplication::palette())) {}

Look::Look(QApplication& application, const Theme& theme) : application_(application), theme_(&theme) {
    initResources();
    for (const Qt::UIEffect effect : {Qt::UI_AnimateCombo, Qt::UI_AnimateMenu, Qt::UI_AnimateTooltip,
             Qt::UI_FadeMenu, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox}) {
        QApplication::setEffectEnabled(effect, false);
    }
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style.
    QApplication::setStyle(new LodgeStyle);
    wear();
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    application.installEventFilter(this);
    connect(&application, &QApplication::focusChanged, this,
        [this](QWidget* /*old*/, QWidget* now) { moveRing(now); });
}

void Look::wear() {
    wearing_ = true;
    QApplication::setFont(fontOf(typeOf(QStringLiteral("field")), zoom_));
    QApplication::setPalette(paletteOf(*theme_));
    application_.setStyleSheet(zoomedSheet(styleSheetOf(*theme_), zoom_));
    wearing_ = false;
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
