#include "ui/item_marks.h"

#include "shell/page_table.h"

namespace lodge {

QString shortPageName(std::int16_t page) {
    switch (page) {
    case page::tax: return QStringLiteral("รายการที่ 1 และ 2");
    case page::headquarters: return QStringLiteral("ใบแนบ IHQ");
    default: break;
    }
    const PageRow* row = findPage(page);
    return row == nullptr ? QString() : QString::fromUtf8(row->title);
}

QString stateWords(const ItemState& state) {
    switch (state.progress) {
    case ItemProgress::Empty: return QStringLiteral("ว่าง");
    case ItemProgress::Clear: return QStringLiteral("ไม่ติดขัด");
    case ItemProgress::Named: return QStringLiteral("ดู%1").arg(shortPageName(state.namedBy));
    case ItemProgress::InTheWay: return QStringLiteral("ติดขัด %1").arg(state.problems);
    case ItemProgress::Closed: return QStringLiteral("เฉพาะสถานภาพ (9) กิจการ IHQ");
    }
    return {};
}

QString stateDrawing(ItemProgress progress) {
    switch (progress) {
    case ItemProgress::Empty: return QStringLiteral("empty");
    case ItemProgress::Clear: return QStringLiteral("whole");
    case ItemProgress::Named: return QStringLiteral("warn");
    case ItemProgress::InTheWay: return QStringLiteral("stop");
    case ItemProgress::Closed: return QStringLiteral("closed");
    }
    return {};
}

} // namespace lodge
