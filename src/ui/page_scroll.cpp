#include "ui/page_scroll.h"

#include <QEvent>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

namespace lodge {

PageScroll::PageScroll(QWidget& page, QStackedWidget& pages) {
    pages.addWidget(this);
    page.setAttribute(Qt::WA_Resized); // fit() gives the size, from the fonts that the page will have
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(&page);
    page.installEventFilter(this);
    connect(&page, &QObject::destroyed, this, &QObject::deleteLater);
    for (QScrollArea* sheet : page.findChildren<QScrollArea*>()) {
        sheet->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        if (sheet->widget() != nullptr) {
            sheet->widget()->installEventFilter(this);
            keepWidth(*sheet);
        }
    }
}

PageScroll* PageScroll::around(const QWidget& page) {
    const QWidget* viewport = page.parentWidget();
    return viewport == nullptr ? nullptr : qobject_cast<PageScroll*>(viewport->parentWidget());
}

/// A scroll area would make do with any width; the page shall need what its sheet needs.
void PageScroll::keepWidth(QScrollArea& sheet) {
    const int bar = sheet.verticalScrollBar()->sizeHint().width();
    const int needed = sheet.widget()->minimumSizeHint().width() + bar;
    if (sheet.minimumWidth() != needed) {
        sheet.setMinimumWidth(needed);
    }
}

/// As high as there is room, which a scroll area by itself would not have it where captions wrap.
void PageScroll::fit() {
    if (QWidget* page = widget()) {
        const int least = page->minimumSizeHint().width();
        // What scrolls sideways anyway need not squeeze its captions.
        const int width = least <= viewport()->width() ? viewport()->width() : least + least / 8;
        page->resize(width, viewport()->height());
    }
}

void PageScroll::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    fit();
}

bool PageScroll::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && watched == widget()) {
        fit();
    } else if (event->type() == QEvent::LayoutRequest) {
        const auto* body = qobject_cast<QWidget*>(watched);
        if (body != nullptr && body->parentWidget() != nullptr) {
            if (auto* sheet = qobject_cast<QScrollArea*>(body->parentWidget()->parentWidget())) {
                keepWidth(*sheet);
            }
        }
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace lodge
