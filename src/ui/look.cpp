#include "ui/look.h"

#include "ui/lodge_style.h"
#include "ui/type.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>

// The resources lie in a library, which nothing else would make known.
static void initResources() { Q_INIT_RESOURCE(lodge_ui); }

namespace lodge {

namespace {

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
        open.setDevicePixelRatio(scale);
        shut.setDevicePixelRatio(scale);
        icon.addPixmap(open, QIcon::Normal);
        icon.addPixmap(shut, QIcon::Disabled);
    }
    return icon;
}

Look::Look(QApplication& application) : Look(application, themeOfDesktop(QApplication::palette())) {}

Look::Look(QApplication& application, const Theme& theme) : theme_(theme) {
    initResources();
    for (const Qt::UIEffect effect : {Qt::UI_AnimateCombo, Qt::UI_AnimateMenu, Qt::UI_AnimateTooltip,
             Qt::UI_FadeMenu, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox}) {
        QApplication::setEffectEnabled(effect, false);
    }
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style.
    QApplication::setStyle(new LodgeStyle);
    QApplication::setPalette(paletteOf(theme));
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    QApplication::setFont(fontOf(typeOf(QStringLiteral("field"))));
    application.setStyleSheet(styleSheetOf(theme));
    connect(&application, &QApplication::focusChanged, this,
        [this](QWidget* /*old*/, QWidget* now) { moveRing(now); });
}

void Look::dress(QWidget& root) const {
    QList<QWidget*> widgets = root.findChildren<QWidget*>();
    widgets << &root;
    for (QWidget* widget : widgets) {
        const QVariant type = widget->property("type");
        if (type.isValid()) {
            const Type& use = typeOf(type.toString());
            widget->setFont(fontOf(use));
            widget->setMinimumHeight(std::max(widget->minimumHeight(), use.height));
        }
        const QVariant drawing = widget->property("drawing");
        auto* button = qobject_cast<QAbstractButton*>(widget);
        auto* label = qobject_cast<QLabel*>(widget);
        if (drawing.isValid() && (button != nullptr || label != nullptr)) {
            const QIcon drawn = iconOf(drawing.toString(), iconColour(*widget), toColor(theme_.ink3));
            if (button != nullptr) {
                button->setIcon(drawn);
                button->setIconSize({iconSize, iconSize});
            } else {
                label->setPixmap(drawn.pixmap(QSize(iconSize, iconSize), label->devicePixelRatioF()));
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
