#include "shell/page_table.h"

#include "pages/filer/notification_form.h"
#include "pages/filer/page1_checks.h"
#include "pages/filer/page1_fields.h"
#include "pages/ihq/ihq_checks.h"
#include "pages/ihq/ihq_page.h"
#include "pages/loss/item11_page.h"
#include "pages/loss/item11_rules.h"
#include "pages/schedules/item12_checks.h"
#include "pages/schedules/item12_page.h"
#include "pages/schedules/item3_page.h"
#include "pages/schedules/schedule_checks.h"
#include "pages/schedules/schedule_page.h"
#include "pages/tax/page2.h"
#include "pages/tax/page2_checks.h"
#include "shell/reconciliation.h"

#include <algorithm>
#include <array>

namespace lodge {

namespace {

/// Filers without an exempt business, and headquarters companies, begin with the taxable column.
bool beginsWithColumn2(std::int16_t investment) { return investment == 0 || investment == 4; }

const char* noField(std::int16_t /*investment*/) { return ""; }

const char* idField(std::int16_t /*investment*/) { return "txtNid"; }

/// A promoted business begins page 2 with its certificate.
const char* taxField(std::int16_t investment) { return investment == 1 ? "txtInvestID" : "chkTaxPay(0)"; }

/// Lists the rows of a check that refuse, each to be mended on its page.
template <std::int16_t code, std::span<const CheckRow> (*rows)()>
void collectRows(const CheckContext& context, std::vector<Refusal>& refusals) {
    collectRefusals(context, findPage(code)->form, rows(), refusals);
}

// clang-format off
constexpr std::array<PageRow, 14> pages = {{
    {page::first,        "frmLodgePage1",   "หน้า 1", nullptr, nullptr,
     P1_ArrayToVar, P1_CheckForm, P1_DataToArray, idField},
    {page::tax,          "frmLodgePage2",   "รายการที่ 1 และรายการที่ 2", "cmdItem01", "รายการที่ 1 และรายการที่ 2",
     P2_ArrayToControls, P2_CheckFields, P2_ControlsToArray, taxField},
    {page::item3,        "frmLodgePage3_3", "รายการที่ 3",  "cmdItem03", "รายการที่ 3",
     P3_3_ArrayToControls, P3_3_CheckPage, P3_3_ControlsToArray, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney32(0)" : "txtMoney31(0)"; }},
    {page::item4,        "frmLodgePage3_4", "รายการที่ 4",  "cmdItem04", "รายการที่ 4",
     ArrayToVar_Item4, PageChk_Item4, DataToArray_Item4, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney42(0)" : "txtMoney41(0)"; }},
    {page::item5,        "frmLodgePage4_5", "รายการที่ 5",  "cmdItem05", "รายการที่ 5",
     ArrayToVar_Item5, PageChk_Item5, DataToArray_Item5, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney52(0)" : "txtMoney51(0)"; }},
    {page::item6,        "frmLodgePage4_6", "รายการที่ 6",  "cmdItem06", "รายการที่ 6",
     ArrayToVar_Item6, PageChk_Item6, DataToArray_Item6, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney62(0)" : "txtMoney61(0)"; }},
    {page::item7,        "frmLodgePage4_7", "รายการที่ 7",  "cmdItem07", "รายการที่ 7",
     ArrayToVar_Item7, PageChk_Item7, DataToArray_Item7, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney72(0)" : "txtMoney71(0)"; }},
    {page::item8,        "frmLodgePage5_8", "รายการที่ 8",  "cmdItem08", "รายการที่ 8",
     ArrayToVar_Item8, PageChk_Item8, DataToArray_Item8, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney82(0)" : "txtMoney81(0)"; }},
    {page::item9,        "frmLodgePage5_9", "รายการที่ 9",  "cmdItem09", "รายการที่ 9",
     ArrayToVar_Item9, PageChk_Item9, DataToArray_Item9, [](std::int16_t i) { return beginsWithColumn2(i) ? "txtMoney92(0)" : "txtMoney91(0)"; }},
    {page::item10,       "frmLodgePage6_10", "รายการที่ 10", "cmdItem10", "รายการที่ 10",
     ArrayToVar_Item10, PageChk_Item10, DataToArray_Item10, noField},
    {page::item11,       "frmLodgePage6_11", "รายการที่ 11", "cmdItem11", "รายการที่ 11",
     P6_11_ArrayToVar, Chk_Item11Leave, P6_11_DataToArray, noField},
    {page::item12,       "frmLodgePage7_12", "รายการที่ 12", "cmdItem12", "รายการที่ 12",
     P7_12_ArrayToVar, P7_12_PageChk, P7_12_DataToArray, noField},
    {page::notification, "frmLodgePage8",   "แบบแจ้งข้อความฯ", "cmdItem13", "แบบแจ้งข้อความฯ",
     P8_ArrayToVar, P8_CheckForm, P8_DataToArray, noField},
    {page::headquarters, "frmIHQ", "ใบแนบ ก.ข.ค. 77 - สำหรับกิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)", "cmdItemIHQ",
     "   ใบแนบ ก.ข.ค.77      สำหรับกิจการIHQ", IHQ_FormToBox, nullptr, nullptr, noField},
}};

constexpr std::array<FullCheck, 10> checks = {{
    {P1_CheckData,    collectRows<page::first, page1CheckRows>, nullptr},
    {ChkPage2,        collectPage2Refusals, nullptr},
    {ReconcileItems,  collectReconciliation, nullptr},
    // The ties of item 5 stand among those above, so that this walk has nothing of its own to list.
    {ReconcileItem45, [](const CheckContext&, std::vector<Refusal>&) {}, [](const ReturnState& s) { return s.intInvestment != 0; }},
    {Chk_Item5Store,  collectRows<page::item5, item5CheckRows>, nullptr},
    {ChkIHQ,          collectIhqRefusals, needsIhqCheck},
    {Chk_Item8Store,  collectRows<page::item9, item8CheckRows>, nullptr},
    {Chk_Item11Store, collectRows<page::item11, item11CheckRows>, nullptr},
    {Chk_Item12Store, collectRows<page::item12, item12CheckRows>, nullptr},
    {P8_CheckData,    collectRows<page::notification, page8CheckRows>, nullptr},
}};
// clang-format on

} // namespace

std::span<const PageRow> pageTable() { return pages; }

std::span<const FullCheck> fullChecks() { return checks; }

const PageRow* findPage(std::int16_t code) {
    const auto row =
        std::find_if(pages.begin(), pages.end(), [&](const PageRow& page) { return page.code == code; });
    return row == pages.end() ? nullptr : &*row;
}

} // namespace lodge
