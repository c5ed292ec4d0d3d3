#include "state/return_state.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace lodge {

namespace {

template <typename Array>
void emptyTexts(Array& array) {
    for (std::string& text : array)
        text.clear();
}

void requireInside(std::size_t index, std::size_t size) {
    if (index >= size)
        throw std::out_of_range("field " + std::to_string(index) + " of " + std::to_string(size));
}

} // namespace

const std::string& GetField(std::span<const std::string> array, std::size_t index) {
    requireInside(index, array.size());
    return array[index];
}

void SetField(std::span<std::string> array, std::size_t index, std::string text) {
    requireInside(index, array.size());
    array[index] = std::move(text);
}

void TaxRecord::resetTaxLabels() {
    TaxValue.clear();
    RateCaseText.clear();
    for (std::string* holder : {&Line4Status, &Line4Amount, &Line6Status, &Line6Amount}) {
        *holder = "0";
    }
}

void ReturnState::ClearAll(IhqRecord ihq) {
    FucChk.PendingMessage.clear();
    DataCtrl_P1.Clear();
    DataCtrl_P2.Clear();
    modGreen.Clear();
    if (ihq == IhqRecord::Clear) modIHQ.Clear();
    modNew3.Clear();
    // strFldPage1_2 is missing on purpose: the worksheet form empties it when it is opened or reset.
    for (FieldArray* array : {&strFldPage1, &strFldPage2, &strFldPage3_3, &strFldPage3_4, &strFldPage4_5,
             &strFldPage4_6, &strFldPage4_7, &strFldPage5_8, &strFldPage5_9, &strFldPage6_10, &strFldPage6_11,
             &strFldPage7_12, &strFldPage8}) {
        emptyTexts(*array);
    }
    modEdit.Clear();
}

void ReturnState::beginReturn(IhqRecord ihq) {
    ClearAll(ihq);
    FucChk.LastValidId.clear();
    FucChk.BusinessText.clear();
    FucChk.TmpSum8_15to25 = 0.0;
    clearPage1Choices();
    clearItem3SideBox();
    clearItem11Log();
}

void ReturnState::clearAllPages() {
    std::array<std::string, 7> period;
    std::copy_n(strFldPage1.begin(), period.size(), period.begin());
    beginReturn(IhqRecord::Clear);
    std::copy(period.begin(), period.end(), strFldPage1.begin());
    modIHQ.PeriodStart = strStartDDMMYY;
    modIHQ.PeriodEnd = strFinishDDMMYY;
    clearGreenRows();
    intStatusIndex = -1;
    blnStatus11Kept = false;
    blnIHQPage = false;
}

void ReturnState::putAway() {
    clearAllPages();
    emptyTexts(strFldPage1);
    modIHQ.Clear();
    strStartDDMMYY.clear();
    strFinishDDMMYY.clear();
    strTaxYear.clear();
    emptyTexts(strPrevYear);
    FucDate = {};
    intInvestment = 0;
    ChkInvestmentFlag1 = 0;
    intNewReturn = 0;
    intPageCur = 0;
    intPagePrev = 0;
    intError = 0;
    blnNeedPage2 = false;
    blnMouseUp = false;
}

void ReturnState::clearGreenRows() {
    emptyTexts(strFldPage1_2);
    for (std::string* copy : {&SheetIncome, &Sheet71a, &Sheet71c, &SheetRate}) {
        copy->clear();
    }
    SheetTax = 0.0;
}

void ReturnState::clearPage1Choices() {
    strWebsite.clear();
    intP1Box1 = 0;
    intP1Box2 = 0;
    intCashRefund = 0;
    intAuditStatus = 0;
    intP1Box5 = 0;
    blnWebsiteAsked = false;
}

void ReturnState::clearItem3SideBox() {
    BoxWarned = false;
    BoxProfit = false;
    BoxLoss = false;
    BoxAmount.clear();
}

void ReturnState::clearItem11Log() {
    emptyTexts(strItem11Start);
    emptyTexts(strItem11End);
    intItem11Type.fill(0);
    intItem11Count = 0;
    intItem11CountA = 0;
    intItem11CountB = 0;
    Item11ExemptProfit = 0.0;
    Item11ExemptLoss = 0.0;
    Item11Net = 0.0;
}

} // namespace lodge
