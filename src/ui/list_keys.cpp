#include "ui/list_keys.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace lodge {

ListKeys::ListKeys(QAbstractItemView& list) : QObject(&list), list_(list) { list.installEventFilter(this); }

bool ListKeys::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    switch (static_cast<const QKeyEvent&>(*event).key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: emit chosen(list_.currentIndex().row()); return true;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab: emit left(); return true;
    default: return false;
    }
}

} // namespace lodge
