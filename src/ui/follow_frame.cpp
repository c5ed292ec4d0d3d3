#include "ui/follow_frame.h"

#include <QAbstractButton>
#include <QEvent>

#include <algorithm>

namespace lodge {

QWidget* findAround(const QWidget& part, const QString& name) {
    for (const QWidget* around = part.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto* found = around->findChild<QWidget*>(name)) {
            return found;
        }
    }
    return nullptr;
}

bool FollowFrame::event(QEvent* event) {
    // The page is complete when it is polished, which is before it is first shown.
    if (event->type() == QEvent::Polish && followed_.isEmpty()) {
        findFollowed();
        decide();
    }
    return QFrame::event(event);
}

void FollowFrame::findFollowed() {
    const QString all = with_.isEmpty() ? without_ : with_;
    for (const QString& entry : all.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString sign = entry.section(QLatin1Char(':'), 1);
        QWidget* widget = findAround(*this, entry.section(QLatin1Char(':'), 0, 0));
        if (widget == nullptr) {
            qFatal(
                "%s follows %s, which the page does not have", qPrintable(objectName()), qPrintable(entry));
        }
        followed_.append({widget, sign == QLatin1String("ticked") ? Sign::Ticked
                                  : sign == QLatin1String("open") ? Sign::Open
                                                                  : Sign::Shown});
        widget->installEventFilter(this);
        if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
            connect(button, &QAbstractButton::toggled, this, &FollowFrame::decide);
        }
    }
}

bool FollowFrame::counts(const Followed& followed) {
    if (followed.widget == nullptr) {
        return false;
    }
    switch (followed.sign) {
    case Sign::Ticked: return static_cast<QAbstractButton*>(followed.widget.data())->isChecked();
    case Sign::Open: return followed.widget->isEnabled();
    case Sign::Shown: return !followed.widget->isHidden();
    }
    return false;
}

void FollowFrame::decide() {
    const bool any = std::any_of(followed_.cbegin(), followed_.cend(), counts);
    setVisible(with_.isEmpty() ? !any : any);
}

bool FollowFrame::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange: decide(); break;
    default: break;
    }
    return false;
}

} // namespace lodge
