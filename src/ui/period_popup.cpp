#include "ui/period_popup.h"

namespace lodge {

namespace {

/// The row of the table that fills up first: those above it are empty while there are few periods.
constexpr const char* newestRow = "mskDateFrom_7";
constexpr const char* table = "decorExempt";
constexpr int inset = 16;
constexpr int gap = 4;

} // namespace

void PeriodPopup::showEvent(QShowEvent* event) {
    const QWidget* window = parentWidget();
    const auto* row = window == nullptr ? nullptr : window->findChild<QWidget*>(QLatin1String(newestRow));
    const auto* rows = window == nullptr ? nullptr : window->findChild<QWidget*>(QLatin1String(table));
    if (row != nullptr && rows != nullptr && rows->isVisible()) {
        const int right = rows->mapToGlobal(rows->rect().topRight()).x() - inset;
        const int bottom = row->mapToGlobal(QPoint()).y() - gap;
        move(right - width(), bottom - height());
    }
    QDialog::showEvent(event);
}

} // namespace lodge
