#include "ui/show_views.h"

#include "ui/boxes.h"
#include "ui/type.h"

#include <QMouseEvent>

namespace lodge {

namespace {

/// How far the figure of a box stands further in than that of a label: its border and what the toolkit adds.
constexpr int boxInset = 5;

/// Has the points of amounts with and without brackets stand below one another, and below those of boxes.
void alignPoint(QLabel& amount) {
    const int bracket = amount.fontMetrics().horizontalAdvance(QLatin1Char(')'));
    amount.setIndent(zoomed(boxInset) + (amount.text().endsWith(QLatin1Char(')')) ? 0 : bracket));
}

/// A label that has a name of its own would be read without what it shows.
void describeFigure(QLabel& figure) {
    figure.setAccessibleDescription(
        figure.text().isEmpty() ? QString() : QStringLiteral("%1 บาท โปรแกรมคำนวณ").arg(figure.text()));
}

} // namespace

void PanelView::takeUp(Control& control) {
    held_ = false;
    ControlView::takeUp(control);
}

bool PanelView::mousePressed(QMouseEvent& event) {
    if (ControlView::mousePressed(event)) {
        return true;
    }
    held_ = event.button() == Qt::LeftButton && static_cast<bool>(control()->onClick);
    // What neither clicks nor feels leaves the press to what lies below.
    return held_ || gesture(event);
}

bool PanelView::mouseReleased(QMouseEvent& event) {
    if (held_ && widget()->rect().contains(event.position().toPoint())) {
        door().act([this](User& user) { user.click(*control()); });
    }
    const bool mine = held_;
    held_ = false;
    return mine;
}

LabelView::LabelView(Control& control, QLabel& label, UserDoor& door)
    : PanelView(control, label, door), label_(label) {
    label.setTextFormat(Qt::PlainText);
}

bool LabelView::otherEvent(QEvent& event) {
    if (event.type() == QEvent::FontChange) {
        paint(Aspect::Caption); // the place of the point depends on the font
    }
    return PanelView::otherEvent(event);
}

void LabelView::paint(Aspect aspect) {
    if (aspect == Aspect::Caption) {
        const QString caption = shownText(static_cast<const Label&>(*control()).caption());
        if (label_.text() != caption) {
            label_.setText(caption);
        }
        if (label_.property("amount").toBool()) {
            alignPoint(label_);
        }
        if (!label_.accessibleName().isEmpty()) {
            describeFigure(label_);
        }
    } else {
        PanelView::paint(aspect);
    }
}

} // namespace lodge
