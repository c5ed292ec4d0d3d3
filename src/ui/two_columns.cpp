#include "ui/two_columns.h"

#include <QBoxLayout>
#include <QEvent>

#include <algorithm>

namespace lodge {

namespace {

/// What the parts need side by side, and what the wider of them needs by itself.
struct Widths {
    int both = 0;
    int wider = 0;
};

Widths widthsOf(const QBoxLayout& layout) {
    Widths widths;
    for (int i = 0; i < layout.count(); ++i) {
        const int needed = layout.itemAt(i)->minimumSize().width();
        widths.both += needed + (i == 0 ? 0 : layout.spacing());
        widths.wider = std::max(widths.wider, needed);
    }
    return widths;
}

} // namespace

QSize TwoColumns::minimumSizeHint() const {
    const auto* box = qobject_cast<QBoxLayout*>(layout());
    const QSize whole = QWidget::minimumSizeHint();
    return box == nullptr ? whole : QSize(widthsOf(*box).wider, whole.height());
}

bool TwoColumns::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        turn(); // a part has come to need more or less
    }
    return QWidget::event(event);
}

void TwoColumns::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    turn();
}

void TwoColumns::turn() {
    auto* box = qobject_cast<QBoxLayout*>(layout());
    if (box == nullptr) {
        return;
    }
    const auto direction = widthsOf(*box).both <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (box->direction() != direction) {
        box->setDirection(direction);
        updateGeometry();
    }
}

} // namespace lodge
