#include "ui/tool_strip.h"

#include "ui/tool_button.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>

namespace lodge {

namespace {

bool isLine(const QWidget& widget) { return widget.property("role").toString() == QLatin1String("upright"); }

} // namespace

QSize ToolStrip::minimumSizeHint() const { return {0, QFrame::minimumSizeHint().height()}; }

bool ToolStrip::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        fit(); // a button has come, gone or changed its caption
    }
    return QFrame::event(event);
}

void ToolStrip::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    fit();
}

void ToolStrip::fit() {
    showLines();
    const QList<ToolButton*> buttons = findChildren<ToolButton*>();
    for (const ToolButton::Shape shape :
        {ToolButton::Shape::Whole, ToolButton::Shape::Captioned, ToolButton::Shape::Icon}) {
        for (ToolButton* button : buttons) {
            button->setShape(shape);
        }
        layout()->invalidate();
        if (layout()->sizeHint().width() <= width()) {
            break;
        }
    }
    // What was tried out above asks for a new layout: that is this one, and another would ask again for ever.
    layout()->activate();
    QCoreApplication::removePostedEvents(this, QEvent::LayoutRequest);
}

void ToolStrip::showLines() {
    QList<QWidget*> lines;
    QList<QWidget*> shown;
    bool before = false; // a button since the last line
    QWidget* line = nullptr;
    for (int i = 0; i < layout()->count(); ++i) {
        QWidget* widget = layout()->itemAt(i)->widget();
        if (widget == nullptr) {
            continue;
        }
        if (isLine(*widget)) {
            lines << widget;
            line = before ? widget : line;
            before = false;
        } else if (qobject_cast<ToolButton*>(widget) != nullptr && !widget->isHidden()) {
            if (line != nullptr) {
                shown << line;
                line = nullptr;
            }
            before = true;
        }
    }
    for (QWidget* each : lines) {
        each->setVisible(shown.contains(each));
    }
}

} // namespace lodge
