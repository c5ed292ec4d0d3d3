#include "pages/filer/page1_field_checks.h"

#include "pages/filer/page1.h"
#include "pages/filer/page1_fields.h"
#include "state/status_numbers.h"
#include "values/dates.h"
#include "values/identification.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>

namespace lodge {

namespace {

constexpr std::size_t idLength = 13;
constexpr std::size_t oldNumberLength = 10;
constexpr std::size_t registrationLength = 8;
constexpr std::size_t accountantIdLeast = 10; // meant; the check digit refuses what is no 13-digit number

constexpr const char* stateAuditOfficeName = "สำนักงานตรวจเงินแผ่นดิน";

/// The tax authority's own web site is nobody else's.
constexpr std::string_view authorityDomain = "phasiklang.go.th";

// Entries of strFldPage1.
constexpr std::size_t additionalNumber = 10;
constexpr std::size_t firstStatus = 12;
constexpr std::size_t filerNid = 45;

ReturnState& stateOf(frmLodgePage1& page) { return page.program().state; }

bool passed(frmLodgePage1& page) {
    stateOf(page).intError = 0;
    return true;
}

/// The message was shown already, or there is none. The focus moves first: the field that it leaves runs its
/// own check, which must not take the refusal back.
bool refused(frmLodgePage1& page, Control& focus) {
    focus.setFocus();
    stateOf(page).intError = 1;
    return false;
}

bool refused(frmLodgePage1& page, Control& focus, std::string_view code) {
    page.program().refuse(code, focus);
    return false;
}

bool emptied(frmLodgePage1& page, TextBox& box) {
    box.setText("");
    return refused(page, box);
}

bool emptied(frmLodgePage1& page, TextBox& box, std::string_view code) {
    box.setText("");
    return refused(page, box, code);
}

bool hasNonDigit(const TextBox& box) {
    const std::size_t length = textLength(box.text());
    return length > 0 && DigitFilter(box.text(), length, length).empty();
}

bool isBlank(const TextBox& box) { return trimBlanks(box.text()).empty(); }

std::string upperCase(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return text;
}

std::string lowerCase(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return text;
}

/// Passes messages on and knows whether there was one.
class Overheard : public Notifier {
  public:
    explicit Overheard(Notifier& listener) : listener_(listener) {}
    void notify(const std::string& text) override {
        spoke = true;
        listener_.notify(text);
    }
    bool spoke = false;

  private:
    Notifier& listener_;
};

/// The check of a 13-digit number on leaving its field. A refused one is emptied: M113 for its length, M129
/// for its check digit, no second message behind that of the money check.
bool passesIdCheck(frmLodgePage1& page, TextBox& box, std::string& remembered) {
    const std::string number(trimBlanks(box.text()));
    Overheard notifier(page.program());
    if (ChkNid13(number, remembered, notifier)) {
        return true;
    }
    if (notifier.spoke) {
        return emptied(page, box);
    }
    return emptied(page, box, textLength(number) == idLength ? "M129" : "M113");
}

bool checkPersonNumber(frmLodgePage1& page, TextBox& box, std::size_t least, std::string_view tooShort) {
    stateOf(page).intError = 0;
    if (hasNonDigit(box)) {
        return emptied(page, box);
    }
    if (textLength(box.text()) < least) {
        return refused(page, box, tooShort);
    }
    return ChkTax13(box.text(), page.program()).empty() ? refused(page, box) : passed(page);
}

bool checkOldNumber(frmLodgePage1& page, TextBox& box) {
    stateOf(page).intError = 0;
    if (hasNonDigit(box)) {
        return emptied(page, box);
    }
    if (textLength(box.text()) < oldNumberLength) {
        return refused(page, box, "M009");
    }
    if (box.text().front() < '1' || box.text().front() > '4') {
        return refused(page, box, "M003");
    }
    return ChkTax10(box.text(), page.program()).empty() ? refused(page, box) : passed(page);
}

/// The message about a registration number whose character at `position` is no digit.
std::string registrationMessage(std::size_t position, std::string_view rule) {
    return "ทะเบียนเลขที่ ต้องไม่เป็นตัวอักษรในหลักที่  " + std::to_string(position) + std::string(rule);
}

/// The first position from `start` on, counted from 1, that holds no digit; 0 when all are digits.
std::size_t firstNonDigit(std::string_view text, std::size_t start) {
    for (std::size_t position = start; position <= textLength(text); ++position) {
        const std::string_view character = textMid(text, position, 1);
        if (character < "0" || character > "9") {
            return position;
        }
    }
    return 0;
}

/// Numbers of page 1 that must differ: what each equality adds to the sum that decides on the message.
struct Twin {
    const TextBox& other;
    int weight;
};

int twinSum(const TextBox& box, std::span<const Twin> twins) {
    int sum = 0;
    for (const Twin& twin : twins) {
        sum += trimBlanks(box.text()) == twin.other.text() ? twin.weight : 0;
    }
    return sum;
}

/// Auditor and accountant are told by a message of their own that they are the same person; every other pair
/// by the common one. The sums are those of the weights 2, 4 and 8.
std::string_view twinMessage(int sum) { return sum == 2 || sum == 6 || sum == 14 ? "M143" : "M151"; }

bool equalsAny(const TextBox& box, std::initializer_list<const TextBox*> others) {
    return std::any_of(
        others.begin(), others.end(), [&](const TextBox* other) { return other->text() == box.text(); });
}

void fillTitlesOnce(ComboBox& titles, const ReturnState& state) {
    if (titles.count() == 0) {
        fillTitles(titles, state);
    }
}

/// The fields that the State Audit Office leaves closed.
std::array<Control*, 5> auditorFields(frmLodgePage1& page) {
    return {&page.txtAuditName, &page.txtAuditSurname, &page.cboAuditTitle, &page.txtAuditRegNo,
        &page.txtAudOfficeNid};
}

void lockAuditor(frmLodgePage1& page, bool locked) {
    for (Control* control : auditorFields(page)) {
        control->setLocked(locked);
    }
}

void enterStateAuditOffice(frmLodgePage1& page) {
    page.txtAuditName.setText(stateAuditOfficeName);
    page.txtAuditSurname.setText("");
    page.txtAuditRegNo.setText("");
    page.txtAudOfficeNid.setText("");
    lockAuditor(page, true);
}

void runUnlessBlank(frmLodgePage1& page, const TextBox& box, bool (*check)(frmLodgePage1&)) {
    if (!isBlank(box)) {
        check(page);
    }
}

bool isAcceptedSite(const std::string& site) {
    return lowerCase(site).find(authorityDomain) == std::string::npos && site.find('.') != std::string::npos
           && site.find('\\') == std::string::npos;
}

} // namespace

// --- The checks ---

bool P1_CheckTin(frmLodgePage1& page) {
    stateOf(page).intError = 0;
    if (hasNonDigit(page.txtTinID)) {
        return emptied(page, page.txtTinID);
    }
    if (stateOf(page).strFldPage1[filerNid].empty() && page.txtNid.text().empty()) {
        return refused(page, page.txtNid, "M132");
    }
    return true;
}

bool P1_CheckAddNo(frmLodgePage1& page) {
    stateOf(page).intError = 0;
    if (hasNonDigit(page.txtAddNo)) {
        return emptied(page, page.txtAddNo);
    }
    stateOf(page).strFldPage1[additionalNumber] = page.txtAddNo.text();
    return true;
}

bool P1_CheckAuditPin(frmLodgePage1& page) {
    return checkPersonNumber(page, page.txtAuditPinID, idLength, "M113");
}

bool P1_CheckAccPin(frmLodgePage1& page) {
    if (!checkPersonNumber(page, page.txtAccPinID, accountantIdLeast, "M113")) {
        return false;
    }
    page.txtAccSurname.setEnabled(true);
    page.txtAccSurname.setBack(BackColour::Window);
    return true;
}

bool P1_CheckOffAuditTin(frmLodgePage1& page) { return checkOldNumber(page, page.txtOffAuditTinID); }

bool P1_CheckOffAccTin(frmLodgePage1& page) { return checkOldNumber(page, page.txtOffAccTinID); }

bool P1_CheckAccCodeNo(frmLodgePage1& page) {
    stateOf(page).intError = 0;
    if (textLength(trimBlanks(page.txtAccCodeNo.text())) != registrationLength) {
        return refused(page, page.txtAccCodeNo, "M077");
    }
    return hasNonDigit(page.txtAccCodeNo) ? emptied(page, page.txtAccCodeNo) : true;
}

bool P1_CheckAuditRegNo(frmLodgePage1& page) {
    stateOf(page).intError = 0;
    const std::string& number = page.txtAuditRegNo.text();
    if (textLength(trimBlanks(number)) != registrationLength
        || textLeft(number, registrationLength).find(' ') != std::string_view::npos) {
        return refused(page, page.txtAuditRegNo, "M086");
    }
    return true;
}

bool P1_CheckAuditRegChars(frmLodgePage1& page) {
    stateOf(page).intError = 0;
    TextBox& box = page.txtAuditRegNo;
    if (textLength(box.text()) != registrationLength) {
        return true;
    }
    const bool withLetters = box.text().starts_with("TA");
    const std::size_t position = firstNonDigit(box.text(), withLetters ? 3 : 1);
    if (position == 0) {
        return true;
    }
    page.program().notify(registrationMessage(
        position, withLetters ? " (ต้องขึ้นต้นด้วย TA และตามด้วยเลข 6 หลัก เช่น TA123456)" : " (เป็นตัวเลขทั้งหมด)"));
    return withLetters ? emptied(page, box) : refused(page, box);
}

bool P1_CheckDateReport(frmLodgePage1& page) {
    Program& program = page.program();
    program.state.intError = 0;
    MaskedBox& box = page.mskDateReport;
    if (ChkDate(box.digits()).empty()) {
        return refused(page, box, "M026");
    }
    const std::string reported = DateToYMD(box.digits());
    if (reported > DateToYMD(dateText(program.host().today()))) {
        return refused(page, box, "M017");
    }
    if (reported <= DateToYMD(program.state.strFinishDDMMYY)) {
        return refused(page, box, "M104");
    }
    return true;
}

bool P1_CheckStatus(frmLodgePage1& page) {
    ReturnState& state = stateOf(page);
    state.intError = 0;
    bool found = false;
    for (int box = 0; box < page.chkStatus.count() && !found; ++box) {
        // Beyond box 10 the entry is another field of the array; it has always been read that way.
        found = page.chkStatus[box].value()
                || state.strFldPage1[firstStatus + static_cast<std::size_t>(box)] == "1";
    }
    const bool inDevelopmentZone = page.chkStatus[developmentZoneBox].value();
    if (!found) {
        return refused(page, page.chkStatus[0], inDevelopmentZone ? "M124" : "M006");
    }
    if (inDevelopmentZone && !page.status.anyTicked(statusSet::legalForm)) {
        return refused(page, page.chkStatus[0], "M205");
    }
    return true;
}

bool P1_CheckNid(frmLodgePage1& page, NidField field) {
    switch (field) {
    case NidField::Filer: return checkPersonNumber(page, page.txtNid, idLength, "M128");
    case NidField::AuditOffice: return checkPersonNumber(page, page.txtAudOfficeNid, idLength, "M128");
    case NidField::AccountingOffice: return checkPersonNumber(page, page.txtAccOfficeNid, idLength, "M128");
    }
    return true;
}

// --- Leaving a field ---

void txtNid_LostFocus(frmLodgePage1& page) {
    ReturnState& state = stateOf(page);
    TextBox& box = page.txtNid;
    std::string& stored = state.strFldPage1[filerNid];
    state.intError = 0;
    if (box.text().empty()) {
        stored.clear();
        return;
    }
    if (!isBlank(box) && !passesIdCheck(page, box, state.FucChk.LastValidId)) {
        stored.clear();
    } else if (HasPrefix(trimBlanks(box.text()), companyRefusedPrefixes)) {
        emptied(page, box, "M003");
        stored.clear();
    } else if (equalsAny(box, {&page.txtAuditPinID, &page.txtAccPinID, &page.txtAudOfficeNid})) {
        emptied(page, box, "M151");
        state.FucChk.LastValidId.clear();
        stored.clear();
    } else {
        P1_CheckNid(page, NidField::Filer);
    }
}

void txtAuditPinID_LostFocus(frmLodgePage1& page) {
    TextBox& box = page.txtAuditPinID;
    stateOf(page).intError = 0;
    std::string number; // the number that a complete store asks for is the filer's, never this one
    if (isBlank(box) || !passesIdCheck(page, box, number)) {
        return;
    }
    lockAuditor(page, false);
    if (HasPrefix(number, accountantRefusedPrefixes)) {
        if (number != stateAuditOffice) {
            emptied(page, box, "M003");
            return;
        }
        enterStateAuditOffice(page);
    }
    const std::array twins{Twin{page.txtAccPinID, 2}, Twin{page.txtNid, 4}, Twin{page.txtAccOfficeNid, 8}};
    if (const int sum = twinSum(box, twins); sum > 0) {
        emptied(page, box, twinMessage(sum));
    } else if (P1_CheckAuditPin(page)) {
        fillTitlesOnce(page.cboAuditTitle, stateOf(page));
    }
}

void txtAccPinID_LostFocus(frmLodgePage1& page) {
    TextBox& box = page.txtAccPinID;
    stateOf(page).intError = 0;
    std::string number;
    if (isBlank(box) || !passesIdCheck(page, box, number)) {
        return;
    }
    if (HasPrefix(number, accountantRefusedPrefixes)) {
        emptied(page, box, "M003");
        return;
    }
    const std::array twins{Twin{page.txtAuditPinID, 2}, Twin{page.txtAudOfficeNid, 4}, Twin{page.txtNid, 8}};
    if (const int sum = twinSum(box, twins); sum > 0) {
        emptied(page, box, twinMessage(sum));
    } else if (P1_CheckAccPin(page)) {
        fillTitlesOnce(page.cboAccTitle, stateOf(page));
    }
}

void txtAudOfficeNid_LostFocus(frmLodgePage1& page) {
    TextBox& box = page.txtAudOfficeNid;
    stateOf(page).intError = 0;
    if (box.text().empty()) {
        return;
    }
    if (equalsAny(box, {&page.txtAccPinID, &page.txtNid, &page.txtAccOfficeNid})) {
        emptied(page, box, "M151");
    } else {
        P1_CheckNid(page, NidField::AuditOffice);
    }
}

void txtAccOfficeNid_LostFocus(frmLodgePage1& page) {
    TextBox& box = page.txtAccOfficeNid;
    stateOf(page).intError = 0;
    if (box.text().empty()) {
        return;
    }
    if (equalsAny(box, {&page.txtAudOfficeNid, &page.txtAuditPinID})) {
        emptied(page, box, "M151");
    } else {
        P1_CheckNid(page, NidField::AccountingOffice);
    }
}

void txtTinID_LostFocus(frmLodgePage1& page) { runUnlessBlank(page, page.txtTinID, P1_CheckTin); }

void txtAddNo_LostFocus(frmLodgePage1& page) { runUnlessBlank(page, page.txtAddNo, P1_CheckAddNo); }

void txtPersonRegNo_LostFocus(frmLodgePage1& page) {
    if (!isBlank(page.txtPersonRegNo)) {
        page.txtPersonRegNo.setText(upperCase(page.txtPersonRegNo.text()));
    }
}

void txtAuditRegNo_LostFocus(frmLodgePage1& page) {
    if (isBlank(page.txtAuditRegNo)) {
        return;
    }
    const bool whole = P1_CheckAuditRegNo(page);
    page.txtAuditRegNo.setText(upperCase(page.txtAuditRegNo.text()));
    if (whole) {
        P1_CheckAuditRegChars(page);
    }
}

void txtOffAuditTinID_LostFocus(frmLodgePage1& page) {
    runUnlessBlank(page, page.txtOffAuditTinID, P1_CheckOffAuditTin);
}

void txtOffAccTinID_LostFocus(frmLodgePage1& page) {
    runUnlessBlank(page, page.txtOffAccTinID, P1_CheckOffAccTin);
}

void txtAccCodeNo_LostFocus(frmLodgePage1& page) {
    runUnlessBlank(page, page.txtAccCodeNo, P1_CheckAccCodeNo);
}

void mskDateReport_LostFocus(frmLodgePage1& page) {
    if (!page.mskDateReport.digits().empty()) {
        P1_CheckDateReport(page);
    }
}

void txtSitename_LostFocus(frmLodgePage1& page) {
    TextBox& box = page.txtSitename;
    if (isBlank(box)) {
        return;
    }
    stateOf(page).intError = 0;
    std::string site = box.text();
    if (!isAcceptedSite(site)) {
        emptied(page, box, "M532");
        return;
    }
    if (site.find("http://") == std::string::npos && site.find("https://") == std::string::npos) {
        site.insert(0, "http://");
    }
    if (site.find("http://.") != std::string::npos || site.find("https://.") != std::string::npos) {
        emptied(page, box, "M532");
        return;
    }
    box.setText(site); // its change takes it into strWebsite
}

} // namespace lodge
