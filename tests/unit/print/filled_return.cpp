#include "filled_return.h"

#include <cstddef>
#include <string>

namespace lodge {

namespace {

void fillAmounts(FieldArray& page, long number) {
    for (std::size_t entry = 0; entry < page.size(); ++entry) {
        page[entry] = std::to_string(number + static_cast<long>(entry));
    }
    page[5].insert(0, "-");
    page[6].clear();
    page[7] = "0.00";
}

std::string listOfThree(long number, std::size_t entry) {
    if (entry == 74) {
        return "";
    }
    const std::string amount = std::to_string(number + static_cast<long>(entry));
    return '|' + (entry == 72 ? "" : amount + '1') + '|' + amount + "2|" + (entry % 2 == 1 ? "-" : "")
           + amount + "3|";
}

void fillLists(FieldArray& page, long number, std::size_t first, std::size_t last) {
    for (std::size_t entry = first; entry <= last; ++entry) {
        page[entry] = listOfThree(number, entry);
    }
}

void fillTexts(FieldArray& page, const std::string& name) {
    for (std::size_t entry = 0; entry < page.size(); ++entry) {
        page[entry] = name + '-' + std::to_string(entry);
    }
}

std::string twoDigits(std::size_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

void fillPage1(ReturnState& state) {
    FieldArray& page = state.strFldPage1;
    fillTexts(page, "P1");
    page[0] = "1234567890";
    page[7] = "1";
    page[8] = "0";
    page[9] = "";
    for (std::size_t box = 12; box <= 22; ++box) {
        page[box] = box % 2 == 0 ? "1" : "0";
    }
    page[29] = "1029";
    page[30] = "-1030";
    page[32] = "2";
    page[33] = "สมชาย";
    page[34] = "ใจดี";
    page[36] = "2345678901";
    page[37] = "20032562";
    page[39] = "3";
    page[40] = "สมหญิง";
    page[41] = "รักงาน";
    page[43] = "3456789012";
    page[44] = "1";
    page[48] = "1";
    page[49] = "0";
    state.strTitleName[2] = "นาย";
    state.strTitleName[3] = "นาง";
    state.DataCtrl_P1.ChkStatus11 = 1;
    state.DataCtrl_P1.IndcBusType = "15";
    state.intCashRefund = 2;
    state.intAuditStatus = 5;
    state.strWebsite = "www.example.co.th";
    state.strFileName = "/home/accounts/01055360003132561100CM.txt";
    state.intP1Box1 = 1;
}

void fillPage2(ReturnState& state) {
    FieldArray& page = state.strFldPage2;
    fillTexts(page, "P2");
    page[1] = "04/02/2561";
    for (std::size_t date = 13; date <= 20; ++date) {
        page[date] = std::to_string(date) + "/06/2561";
    }
    for (const std::size_t flag : {4U, 6U, 7U, 23U, 24U, 25U, 27U}) {
        page[flag] = "0";
    }
    for (const std::size_t flag : {5U, 22U, 26U}) {
        page[flag] = "1";
    }
    for (std::size_t amount = 32; amount <= 43; ++amount) {
        page[amount] = std::to_string(2000 + amount);
    }
    TaxRecord& tax = state.DataCtrl_P2;
    tax.TaxValue = "2133.5";
    tax.RateCaseText = "2.1กรณีลดอัตราภาษี ";
    tax.Line4Status = "1";
    tax.Line4Amount = "1,400.00";
    tax.Line6Status = "2";
    tax.Line6Amount = "1600";
    tax.nRateCode = "1.3";
}

void fillWorksheet(ReturnState& state) {
    TaxRecord& tax = state.DataCtrl_P2;
    tax.NewAtt1 = "(2.1)";
    tax.NewAtt2 = "(2.6)";
    tax.NewAtt4 = "1";
    tax.WorkIncome = {"9,100.00", "9,101.00", "9,102.00", "9,103.00"};
    tax.WorkTax = {"9,200.00", "9,201.00", "9,202.00", "9,203.00"};
    tax.WorkIncomeSum = "36,406.00";
    tax.WorkTaxSum = "36,806.00";
    state.BoxProfit = true;
    state.BoxAmount = "(9,876.50)";
}

void fillSchedules(ReturnState& state) {
    fillAmounts(state.strFldPage3_3, 33000);
    for (std::size_t flag = 61; flag <= 66; ++flag) {
        state.strFldPage3_3[flag] = flag % 2 == 1 ? "1" : "0";
    }
    fillLists(state.strFldPage3_3, 33000, 70, 81);
    fillAmounts(state.strFldPage3_4, 34000);
    fillAmounts(state.strFldPage4_5, 45000);
    fillAmounts(state.strFldPage4_6, 46000);
    fillAmounts(state.strFldPage4_7, 47000);
    fillAmounts(state.strFldPage5_8, 58000);
    fillLists(state.strFldPage5_8, 58000, 75, 85);
    fillAmounts(state.strFldPage5_9, 59000);
    fillAmounts(state.strFldPage6_10, 610000);
    fillLists(state.strFldPage6_10, 610000, 51, 77);
    fillAmounts(state.strFldPage6_11, 611000);
    for (std::size_t date = 0; date <= 25; ++date) {
        state.strFldPage6_11[date] = twoDigits(date + 1) + "092559";
    }
    fillAmounts(state.strFldPage7_12, 712000);
    state.strFldPage7_12[23] = "1";
    state.strFldPage7_12[24] = "0";
}

void fillPage8(ReturnState& state) {
    FieldArray& page = state.strFldPage8;
    fillTexts(page, "P8");
    for (const std::size_t yes : {6U, 9U, 14U, 17U, 19U}) {
        page[yes] = "1";
    }
    for (const std::size_t no : {8U, 11U, 12U, 15U, 18U}) {
        page[no] = "0";
    }
    const std::string word = "กกกกกกกกก"; // ten words of nine letters and a blank fill a line of a hundred
    page[21] = word;
    for (int words = 1; words <= 10; ++words) {
        page[21] += ' ' + word;
    }
    page[23] = "20052562";
}

void fillHeadquarters(ReturnState& state) {
    HeadquartersRecord& ihq = state.modIHQ;
    ihq.LicenceConfm = "15/08/2560";
    ihq.LicenceStart = "01/09/2560";
    ihq.LicenceEnd = "31/08/2575";
    for (std::size_t row = 0; row < 8; ++row) {
        ihq.BoxA[row] = std::to_string(8100 + row);
        ihq.BoxB[row] = std::to_string(8200 + row);
        ihq.BoxC[row] = std::to_string(8300 + row);
    }
    ihq.BoxASum = "-81.5";
    ihq.BoxBSum = "8200";
    for (std::size_t cell = 0; cell < 20; ++cell) {
        ihq.BoxMoney[cell] = std::to_string(8500 + cell);
    }
    for (std::size_t row = 0; row < 4; ++row) {
        ihq.BoxDateFrom[row] = "01/01/255" + std::to_string(row);
        ihq.BoxDateTo[row] = "31/12/255" + std::to_string(row);
    }
    ihq.BoxDateFrom[4] = "00/00/0000";
    ihq.BoxG1 = "8601";
    ihq.BoxG2 = "8602";
    state.FucChk.LastValidId = "0105536000313";
}

} // namespace

ReturnState filledReturn() {
    ReturnState state;
    state.strStartDDMMYY = "01012561";
    state.strFinishDDMMYY = "31122561";
    fillPage1(state);
    fillPage2(state);
    fillWorksheet(state);
    fillSchedules(state);
    fillPage8(state);
    fillHeadquarters(state);
    return state;
}

} // namespace lodge
