#include "pages/filer/page1_checks.h"

#include "pages/filer/page1.h"
#include "pages/filer/page1_field_checks.h"
#include "values/money.h"

#include <array>
#include <cstddef>
#include <string>

namespace lodge {

namespace {

// --- The light check ---

bool hasDigits(const MaskedBox& box) { return !box.digits().empty(); }

bool filingKindIsChosen(const frmLodgePage1& page) {
    const FieldArray& stored = page.program().state.strFldPage1;
    return page.chkNormal.value() || page.chkAdd.value() || page.chkAdvance.value() || !stored[7].empty()
           || !stored[8].empty() || !stored[9].empty();
}

bool businessLineIsChosen(const frmLodgePage1& page) {
    const FieldArray& stored = page.program().state.strFldPage1;
    bool chosen = !stored[24].empty() || !stored[26].empty() || !stored[28].empty();
    for (int row = 0; row < page.lblISICCode1.count(); ++row) {
        chosen = chosen || !page.lblISICCode1[row].caption().empty();
    }
    return chosen;
}

bool refuse(frmLodgePage1& page, std::string_view code, Control& focus) {
    page.program().refuse(code, focus);
    return false;
}

bool filingKind(frmLodgePage1& page) {
    if (filingKindIsChosen(page)) {
        return true;
    }
    return refuse(page, "M076", page.txtAddNo.text().empty() ? page.chkNormal : page.chkAdd);
}

bool businessLine(frmLodgePage1& page) {
    return businessLineIsChosen(page) || refuse(page, "M085", page.cmdSISIC1[0]);
}

bool additionalNumber(frmLodgePage1& page) {
    return readFigure(page.txtAddNo.text()) != 0.0 || refuse(page, "M004", page.txtAddNo);
}

bool columns(frmLodgePage1& page) {
    const ReturnState& state = page.program().state;
    return state.intP1Box1 != 0 || state.intP1Box2 != 0 || refuse(page, "M520", page.chkTaxType[0]);
}

bool webSite(frmLodgePage1& page) {
    ReturnState& state = page.program().state;
    const Box question{
        .text = "ท่านยังไม่ได้ระบุชื่อเว็บไซต์ กดปุ่ม OK เพื่อกลับไประบุชื่อเว็บไซต์ กดปุ่ม Cancel เพื่อให้โปรแกรมทำงานต่อไป",
        .buttons = Buttons::OkCancel,
        .title = "แจ้งเตือน"};
    const bool goesBack = page.program().show(question) == Answer::Ok;
    state.blnWebsiteAsked = true;
    if (goesBack) {
        page.txtSitename.setFocus();
        state.intError = 1;
    }
    return !goesBack;
}

/// A step of the light check: when it is due (always without a condition) and whether the page passes it.
struct FormCheck {
    bool (*due)(const frmLodgePage1& page);
    bool (*passes)(frmLodgePage1& page);
};

// The accounting office's old number is checked twice and the audit office's not at all; the form has always
// done so, and both are hidden today.
constexpr std::array formChecks{
    FormCheck{nullptr, P1_CheckTin},
    FormCheck{
        [](const frmLodgePage1& p) { return p.chkAdd.value() && !p.txtAddNo.text().empty(); }, P1_CheckAddNo},
    FormCheck{[](const frmLodgePage1& p) { return !p.txtAuditPinID.text().empty(); }, P1_CheckAuditPin},
    FormCheck{[](const frmLodgePage1& p) { return !p.txtOffAccTinID.text().empty(); }, P1_CheckOffAccTin},
    FormCheck{[](const frmLodgePage1& p) { return !p.txtAccPinID.text().empty(); }, P1_CheckAccPin},
    FormCheck{[](const frmLodgePage1& p) { return !p.txtOffAccTinID.text().empty(); }, P1_CheckOffAccTin},
    FormCheck{[](const frmLodgePage1& p) { return hasDigits(p.mskDateReport); }, P1_CheckDateReport},
    FormCheck{nullptr, filingKind},
    FormCheck{nullptr, businessLine},
    FormCheck{[](const frmLodgePage1& p) { return p.chkAdd.value(); }, additionalNumber},
    FormCheck{nullptr, P1_CheckAddNo},
    FormCheck{nullptr, P1_CheckStatus},
    FormCheck{[](const frmLodgePage1& p) { return !p.txtAuditRegNo.text().empty(); }, P1_CheckAuditRegNo},
    FormCheck{[](const frmLodgePage1& p) { return !p.txtAccCodeNo.text().empty(); }, P1_CheckAccCodeNo},
    FormCheck{nullptr, columns},
    FormCheck{[](const frmLodgePage1& p) {
                  const ReturnState& state = p.program().state;
                  return state.strWebsite.empty() && !state.blnWebsiteAsked;
              },
        webSite},
};

// --- The full check ---

const std::string& field(const CheckContext& context, std::size_t index) {
    return context.state.strFldPage1[index];
}

template <std::size_t Index>
bool isEmpty(const CheckContext& context) {
    return field(context, Index).empty();
}

template <std::size_t Index>
bool hasNoValue(const CheckContext& context) {
    return readFigure(field(context, Index)) == 0.0;
}

template <std::size_t Index>
bool isBelowOne(const CheckContext& context) {
    return readFigure(field(context, Index)) < 1.0;
}

/// A rule about the auditor, which the State Audit Office is free of.
template <bool (*Refuses)(const CheckContext&)>
bool unlessStateAuditOffice(const CheckContext& context) {
    return field(context, 31) != stateAuditOffice && Refuses(context);
}

bool auditorIsAccountant(const CheckContext& context) {
    return !isEmpty<38>(context) && !isEmpty<31>(context)
           && readFigure(field(context, 38)) == readFigure(field(context, 31));
}

bool filerHasNoNumber(const CheckContext& context) {
    return hasNoValue<0>(context) && hasNoValue<45>(context);
}

bool noFilingKind(const CheckContext& context) {
    return hasNoValue<7>(context) && hasNoValue<8>(context) && hasNoValue<9>(context);
}

bool additionalWithoutNumber(const CheckContext& context) {
    return readFigure(field(context, 9)) == 1.0 && hasNoValue<10>(context);
}

/// A number that begins with 2 belongs to someone without a surname.
bool accountantWithoutSurname(const CheckContext& context) {
    return !field(context, 38).starts_with('2') && isEmpty<41>(context);
}

bool noBusinessLine(const CheckContext& context) {
    return isEmpty<23>(context) && isEmpty<25>(context) && isEmpty<27>(context);
}

bool refundWishIsOpen(const CheckContext& context) {
    return field(context, 30) != "0.00" && !isEmpty<30>(context) && context.state.intCashRefund == 0;
}

// clang-format off
constexpr std::array checkRows{
    CheckRow{"เลขบัตรประจำตัวประชาชนของผู้ตรวจสอบบัญชี ต้องไม่ซ้ำกับของผู้ทำบัญชี หน้าที่ 1",
             "txtAuditPinID",   auditorIsAccountant},
    CheckRow{"M132", "txtNid",          filerHasNoNumber},
    CheckRow{"M076", "chkNormal",       noFilingKind},
    CheckRow{"M004", "txtAddNo",        additionalWithoutNumber},
    CheckRow{"M141", "txtAuditPinID",   hasNoValue<31>},
    CheckRow{"M011", "cboAuditTitle",   unlessStateAuditOffice<isBelowOne<32>>},
    CheckRow{"M012", "txtAuditName",    unlessStateAuditOffice<isEmpty<33>>},
    CheckRow{"M013", "txtAuditSurname", unlessStateAuditOffice<isEmpty<34>>},
    CheckRow{"M014", "txtAuditRegNo",   unlessStateAuditOffice<isEmpty<35>>},
    CheckRow{"M015", "txtAudOfficeNid", unlessStateAuditOffice<hasNoValue<46>>},
    // Here the store puts the blanks of the State Audit Office.
    CheckRow{"M016", "mskDateReport",   isEmpty<37>},
    CheckRow{"M142", "txtAccPinID",     hasNoValue<38>},
    CheckRow{"M020", "cboAccTitle",     isBelowOne<39>},
    CheckRow{"M021", "txtAccName",      isEmpty<40>},
    CheckRow{"M022", "txtAccSurname",   accountantWithoutSurname},
    CheckRow{"M024", "txtAccOfficeNid", hasNoValue<47>},
    CheckRow{"M085", "cmdSISIC1(0)",    noBusinessLine},
    CheckRow{"M522", "cashRefund(0)",   refundWishIsOpen},
};
// clang-format on
constexpr std::size_t rowsOfAuditor = 10;
static_assert(checkRows[rowsOfAuditor - 1].message == "M015");

void blankStateAuditOffice(ReturnState& state) {
    FieldArray& fields = state.strFldPage1;
    if (fields[31] != stateAuditOffice) {
        return;
    }
    if (readFigure(fields[32]) < 1.0) {
        fields[32] = " ";
    }
    for (const std::size_t index : {33U, 34U, 35U}) {
        if (fields[index].empty()) {
            fields[index] = " ";
        }
    }
    if (readFigure(fields[46]) == 0.0) {
        fields[46] = " ";
    }
}

} // namespace

void P1_CheckForm(Program& program) {
    auto* page = program.desk.find<frmLodgePage1>();
    if (page == nullptr) {
        return;
    }
    for (const FormCheck& check : formChecks) {
        const bool due = check.due == nullptr || check.due(*page);
        if (due && !check.passes(*page)) {
            return;
        }
    }
}

std::span<const CheckRow> page1CheckRows() { return checkRows; }

void P1_CheckData(Program& program) {
    // The store itself leads to the page's first field. A field that had the focus on the way there would be
    // left again, and its own check would add a second message and empty it.
    constexpr std::string_view noForm;
    const std::span<const CheckRow> rows = page1CheckRows();
    if (runChecks(program, noForm, rows.first(rowsOfAuditor))) {
        blankStateAuditOffice(program.state);
        runChecks(program, noForm, rows.subspan(rowsOfAuditor));
    }
}

} // namespace lodge
