#include "pages/filer/company_status.h"

#include "pages/filer/page1.h"
#include "state/status_numbers.h"

#include <string_view>
#include <utility>

namespace lodge {

namespace {

// The questions before a change. The line breaks are carriage returns.
constexpr std::string_view statusQuestion = "ถ้าเปลี่ยนสถานภาพบริษัท โปรแกรมจะล้างข้อมูลที่บันทึกไว้ในรายการที่ 2 ถึง 12\r"
                                            "และใบแนบฯ IHQ";
constexpr std::string_view condition12Question =
    "ถ้าเปลี่ยนสถานภาพบริษัท โปรแกรมจะล้างข้อมูลที่บันทึกไว้ในรายการที่ 2 ถึง 11\r"
    "และใบแนบฯ IHQ";
constexpr std::string_view columnQuestion =
    "หากท่านประสงค์จะเปลี่ยนช่องที่ต้องการฯ โปรแกรมจะล้างข้อมูลที่กรอกไว้หน้าต่อไปออกทั้งหมด \r"
    "ท่านจะต้องกรอกข้อมูลในหน้าต่อไปใหม่อีกครั้ง หากท่านประสงค์กดปุ่ม OK \r"
    "หากไม่ประสงค์กดปุ่ม Cancel";

/// Forms that hold what a change of status empties.
constexpr std::array<std::string_view, 12> laterForms = {"frmLodgePage2", "frmLodgePage3_3",
    "frmLodgePage3_4", "frmLodgePage4_5", "frmLodgePage4_6", "frmLodgePage4_7", "frmLodgePage5_8",
    "frmLodgePage5_9", "frmLodgePage6_10", "frmLodgePage6_11", "frmLodgePage7_12", "frmLodgePage8"};

/// Entry of strFldPage2 with the rate that item 2 takes as chosen.
constexpr std::size_t chosenRate = 44;

bool contains(std::span<const int> boxes, int box) {
    return std::find(boxes.begin(), boxes.end(), box) != boxes.end();
}

const std::optional<StatusTag>& tagOf(int box) {
    return companyStatuses.at(static_cast<std::size_t>(box)).tag;
}

void removeEntries(ListBox& list, std::string_view entry) {
    for (int at = list.count() - 1; at >= 0; --at) {
        if (list.items()[static_cast<std::size_t>(at)] == entry) {
            list.removeItem(at);
        }
    }
}

/// The codes of the list, read as one text that is parted between two brackets. What stands beside a "-" has
/// no such seam and stays one entry, for which nothing offers a rate.
std::vector<std::string> rateList(const ListBox& codes) {
    std::vector<std::string> rates;
    for (const std::string& code : codes.items()) {
        if (rates.empty() || (rates.back().ends_with(')') && code.starts_with('('))) {
            rates.push_back(code);
        } else {
            rates.back() += code;
        }
    }
    return rates;
}

} // namespace

void WipeLaterPages(Program& program) {
    ReturnState& state = program.state;
    for (FieldArray* array :
        {&state.strFldPage2, &state.strFldPage3_3, &state.strFldPage3_4, &state.strFldPage4_5,
            &state.strFldPage4_6, &state.strFldPage4_7, &state.strFldPage5_8, &state.strFldPage5_9,
            &state.strFldPage6_10, &state.strFldPage6_11, &state.strFldPage7_12, &state.strFldPage8}) {
        array->fill({});
    }
    state.modGreen.Clear();
    state.modNew3.Clear();
    state.DataCtrl_P2.Clear();
    // The question announces the attachment too. Its period is the return's own and stays.
    state.modIHQ.Clear();
    state.modIHQ.PeriodStart = state.strStartDDMMYY;
    state.modIHQ.PeriodEnd = state.strFinishDDMMYY;
    state.clearItem3SideBox();
    state.clearItem11Log();
    state.FucChk.TmpSum8_15to25 = 0.0;
    for (const std::string_view form : laterForms) {
        program.desk.unload(form);
    }
}

void P1_SetRateLabel(ReturnState& state, int box, bool ticked) {
    if (box != developmentZoneBox) {
        state.intStatusIndex = static_cast<std::int16_t>(ticked ? box : -1);
    }
    std::string& rate = state.strFldPage2[chosenRate];
    // Labels of an older numbering of the rates; most boxes of today have none.
    switch (box) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6: rate = "(1.1)"; break;
    case 8:
    case 12: rate.clear(); break;
    case 9: rate = "(1.3)"; break;
    case 10: rate = "(1.4)"; break;
    case 13: rate = "(1.6)"; break;
    default: break;
    }
}

bool CompanyStatusRules::isTicked(int box) const { return page_.chkStatus[box].value(); }

bool CompanyStatusRules::anyTicked(std::span<const int> boxes) const {
    return std::any_of(boxes.begin(), boxes.end(), [this](int box) { return isTicked(box); });
}

int CompanyStatusRules::tickedCount() const {
    int count = 0;
    for (int box = 0; box < page_.chkStatus.count(); ++box) {
        count += isTicked(box) ? 1 : 0;
    }
    return count;
}

void CompanyStatusRules::clearBoxes(std::span<const int> boxes) {
    for (const int box : boxes) {
        page_.chkStatus[box].setValue(false);
    }
}

// --- The question before a change ---

/// Runs before the box changes. After OK the change is made here, and only the release follows; after Cancel
/// nothing does. StatusChanged stays down after OK: a return that was just emptied need not be asked about
/// again until the chooser has been seen.
void CompanyStatusRules::askBeforeChange(
    MousePress& press, CheckBox& box, bool asks, const std::string& question) {
    ReturnState& state = program_.state;
    if (press.gesture.button != MouseButton::Left || !state.DataCtrl_P1.StatusChanged) {
        return;
    }
    state.DataCtrl_P1.StatusChanged = false;
    if (!asks) {
        state.DataCtrl_P1.StatusChanged = true;
        return;
    }
    if (program_.show({.text = question, .buttons = Buttons::OkCancel, .title = "ยืนยัน"}) == Answer::Cancel) {
        state.DataCtrl_P1.StatusChanged = true;
        press.follow = MousePress::Follow::Nothing;
        return;
    }
    box.setValue(!box.value());
    WipeLaterPages(program_);
    page_.txtNid.setFocus();
    state.blnNeedPage2 = true;
    press.follow = MousePress::Follow::ReleaseOnly;
}

void CompanyStatusRules::chkStatus_MouseDown(int index, MousePress& press) {
    askBeforeChange(press, page_.chkStatus[index], tickedCount() > 0, std::string(statusQuestion));
}

void CompanyStatusRules::chkTaxType_MouseDown(int index, MousePress& press) {
    const std::int16_t chosen = index == 0 ? program_.state.intP1Box1 : program_.state.intP1Box2;
    askBeforeChange(
        press, page_.chkTaxType[index], chosen == 1 && tickedCount() > 0, std::string(columnQuestion));
}

void CompanyStatusRules::condition12_MouseDown(MousePress& press) {
    askBeforeChange(press, page_.condition12, tickedCount() > 0, std::string(condition12Question));
}

// --- A status box changed ---

void CompanyStatusRules::chkStatus_Click(int index) {
    ReturnState& state = program_.state;
    const bool ticked = isTicked(index);
    if (ticked) {
        exclude(index);
        if (index != developmentZoneBox) {
            takeStatusNumber();
        }
        if (index == headquartersBox) {
            state.blnIHQPage = true;
        }
        if (anyTicked(statusSet::columnOneOnly)) {
            fillExemptColumnAlone();
        }
        state.blnNeedPage2 = true;
    } else {
        unticked(index);
    }
    refreshSheetCopies(index, ticked);
    if (ticked) {
        addToLists(index);
    } else {
        removeFromLists(index);
    }
    rebuildRecord(index, ticked);
    P1_SetRateLabel(state, index, ticked);
}

void CompanyStatusRules::chkStatus_MouseUp(int index) {
    program_.state.blnMouseUp = true;
    P1_SetRateLabel(program_.state, index, isTicked(index));
}

void CompanyStatusRules::exclude(int ticked) {
    ReturnState& state = program_.state;
    if (ticked == developmentZoneBox) {
        state.blnStatus11Kept = true;
    } else if (ticked <= 6) {
        excludeOthers(ticked);
        page_.chkStatus[developmentZoneBox].setEnabled(true);
        if (state.blnStatus11Kept) {
            page_.chkStatus[developmentZoneBox].setValue(true);
        }
    } else if (contains(statusSet::others, ticked)) {
        excludeOthers(ticked);
        openColumn2For(ticked);
        state.blnStatus11Kept = false;
    }
}

void CompanyStatusRules::excludeOthers(int ticked) {
    const bool outer = std::exchange(excluding_, true);
    for (const int box : statusSet::others) {
        if (box != ticked) {
            page_.chkStatus[box].setValue(false);
        }
    }
    excluding_ = outer;
}

void CompanyStatusRules::openColumn2For(int ticked) {
    const bool closed = ticked == headquartersBox && page_.chkTaxType[0].value();
    page_.chkTaxType[1].setEnabled(!closed);
    if (closed) {
        page_.chkTaxType[1].setValue(false);
    }
}

/// The very first tick after Clear only counts, on purpose: a loaded return shows its own tick and keeps the
/// status number that the file gave. A new return takes its number when page 1 is shown again, which every
/// complete store brings about.
void CompanyStatusRules::takeStatusNumber() {
    CompanyStatusRecord& record = program_.state.DataCtrl_P1;
    if (record.StatusBusy == 0) {
        ++record.StatusBusy;
        return;
    }
    // Box 11 is passed over: its element is never a status number.
    const auto* const hit = std::ranges::find_if(statusSet::firstHit,
        [this](int box) { return isTicked(box) && tagOf(box)->number != noStatusNumber; });
    if (hit != statusSet::firstHit.end()) {
        record.IndcBusType = tagOf(*hit)->number;
    }
}

void CompanyStatusRules::fillExemptColumnAlone() {
    page_.chkTaxType[0].setValue(true);
    page_.chkTaxType[1].setValue(false);
    program_.state.intP1Box1 = 1;
    program_.state.intP1Box2 = 0;
    // Last, because a tick of the exempt column opens the other one.
    page_.chkTaxType.each([](CheckBox& column, int) { column.setEnabled(false); });
}

void CompanyStatusRules::unticked(int index) {
    ReturnState& state = program_.state;
    // A legal form that gives way to another status leaves box 11 alone: only the person's own untick ends
    // it.
    if (contains(statusSet::legalForm, index) && !excluding_) {
        page_.chkStatus[developmentZoneBox].setValue(false);
        page_.chkStatus[developmentZoneBox].setEnabled(false);
        state.blnStatus11Kept = false;
    }
    if (index == developmentZoneBox) {
        state.blnStatus11Kept = false;
    }
    if (index == headquartersBox) {
        page_.chkTaxType[1].setEnabled(true);
    }
    if (!page_.chkTaxType[0].enabled() && !page_.chkTaxType[1].enabled()) {
        freeColumns();
    }
}

void CompanyStatusRules::freeColumns() {
    page_.chkTaxType.each([](CheckBox& column, int) { column.setEnabled(true); });
    page_.chkTaxType.each([](CheckBox& column, int) { column.setValue(false); });
    program_.state.intP1Box1 = 0;
    program_.state.intP1Box2 = 0;
}

void CompanyStatusRules::refreshSheetCopies(int index, bool ticked) {
    ReturnState& state = program_.state;
    if (index == developmentZoneBox && !ticked) {
        state.strFldPage1_2.fill({});
    }
    state.Sheet71a = state.strFldPage1_2[0];
    state.Sheet71c = state.strFldPage1_2[6];
}

void CompanyStatusRules::addToLists(int index) {
    page_.List2.addItem(std::to_string(index));
    const std::optional<StatusTag>& tag = tagOf(index);
    if (!tag) {
        return;
    }
    std::string& rate = program_.state.strFldPage2[chosenRate];
    for (const std::string_view code : tag->rates) {
        page_.List1.addItem(std::string(code));
    }
    if (tag->rates.size() == 1) {
        rate = *tag->rates.begin();
    } else if (std::ranges::none_of(
                   tag->rates, [&](std::string_view code) { return rate.find(code) != std::string::npos; })) {
        rate.clear();
    }
    if (tag->number != noStatusNumber) {
        program_.state.DataCtrl_P1.IndcBusCode = tag->number;
    }
}

void CompanyStatusRules::removeFromLists(int index) {
    if (const std::optional<StatusTag>& tag = tagOf(index)) {
        for (const std::string_view code : tag->rates) {
            removeEntries(page_.List1, code);
        }
    }
    removeEntries(page_.List2, std::to_string(index));
}

void CompanyStatusRules::rebuildRecord(int index, bool ticked) {
    ReturnState& state = program_.state;
    CompanyStatusRecord& record = state.DataCtrl_P1;
    record.RateList = rateList(page_.List1);
    record.StatusB = static_cast<std::int16_t>(static_cast<int>(record.RateList.size()) - 1);
    record.StatusA = static_cast<std::int16_t>(tickedCount());
    if (index == developmentZoneBox && !ticked) {
        state.SheetRate.clear();
    }
}

// --- The columns ---

void CompanyStatusRules::chkTaxType_Click(int index) {
    ReturnState& state = program_.state;
    const bool ticked = page_.chkTaxType[index].value();
    (index == 0 ? state.intP1Box1 : state.intP1Box2) = ticked ? 1 : 0;
    if (index != 0) {
        return;
    }
    if (ticked) {
        page_.chkTaxType[1].setEnabled(true);
    } else if (isTicked(headquartersBox)) {
        page_.chkTaxType[1].setEnabled(false);
        page_.chkTaxType[1].setValue(false);
    }
}

void CompanyStatusRules::condition12_Click() {
    const bool ticked = page_.condition12.value();
    program_.state.intP1Box5 = ticked ? 1 : 0;
    clearBoxes(statusSet::exemptByLaw);
    for (const int box : statusSet::exemptByLaw) {
        page_.chkStatus[box].setEnabled(ticked);
    }
    page_.Label1_81.setEnabled(ticked);
    page_.Label1_82.setEnabled(ticked);
    if (ticked) {
        clearBoxes(statusSet::notExemptByLaw);
        fillExemptColumnAlone();
    } else {
        freeColumns();
    }
}

} // namespace lodge
