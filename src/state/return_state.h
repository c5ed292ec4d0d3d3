// The return being worked on: one page array of texts a page, a few records, and the flags that steer the
// pages. It is plain data. Everything that a page shows, a file carries or a printed form says stands here;
// two returns are two of these structs.
#pragma once

#include "values/fuc_date.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lodge {

/// The fields of one page. A money field is a plain number text ("-1234.50"; empty is not zero), a tick is
/// "1", "0" or empty, a date is eight digits day, month, Buddhist year, or ten characters with slashes.
using FieldArray = std::array<std::string, 101>;
/// The fields of the rate worksheet, the one array that is shorter.
using WorksheetArray = std::array<std::string, 11>;

/// Number of person titles and of organisation names that the lookup lists hold, the empty row 0 included.
inline constexpr std::size_t titleCount = 170;
inline constexpr std::size_t organisationCount = 4;

/// Reads a field. An index outside the array is a fault of the program and throws std::out_of_range.
const std::string& GetField(std::span<const std::string> array, std::size_t index);
/// Writes a field; bounds as for GetField.
void SetField(std::span<std::string> array, std::size_t index, std::string text);

/// What page 1 knows about the company status (`DataCtrl_P1`).
struct CompanyStatusRecord {
    std::int16_t StatusA = -1;          ///< Ticked status boxes among all 24; -1 before the first count.
    std::int16_t StatusB = -1;          ///< Highest index of RateList; -1 when no rate is allowed.
    std::vector<std::string> RateList;  ///< Rate captions that the status allows, e.g. "(2.1)".
    std::string IndcBusCode;            ///< Status number of the box ticked last.
    std::vector<std::int16_t> BusIndex; ///< Numbers of the ticked status boxes at the last store of page 1.
    std::int16_t ChkStatus11 = 0;       ///< 1 while box 11 (special-purpose development zone) is ticked.
    std::int16_t ChkStatus14 = 0;       ///< 1 while box 14 (special economic zone) is ticked.
    std::string IndcBusType;     ///< The company status number, "1" to "21"; empty when none is chosen.
    bool StatusChanged = false;  ///< Whether a change of status warns that later pages will be wiped.
    std::int16_t StatusBusy = 0; ///< Ticks handled since Clear: the first one only counts, on purpose.

    void Clear() { *this = {}; }
};

/// What page 2 keeps beside its fields (`DataCtrl_P2`): the rate chosen and the figures of item 2.
struct TaxRecord {
    std::int16_t index_nRate = -1;          ///< Rate line chosen in item 2, 0 to 5; -1 none.
    std::string nRateCode;                  ///< "1.1" to "1.8".
    std::string nRateLabel;                 ///< The code as the paper writes it, "(1.1)".
    std::string nRateNo;                    ///< "1" to "6".
    std::optional<std::int16_t> Select_2_1; ///< Line 2 of item 2: 2 reduced rate, 3 receipts, none otherwise.
    std::string RateTag;                    ///< Whole tag of the rate box ticked.
    std::int16_t RateIndex1 = 0;            ///< The rate number that the file carries: index_nRate + 1.
    std::string RateCodePrint;              ///< Copy of the rate code for the printed form.
    std::string PayStatus = "0"; ///< Line 1 of item 2: "1" profit, "2" loss, "3" receipts, "0" none.
    std::string TaxValue;        ///< The tax computed, plain digits.
    std::string Line4Amount;     ///< Line 4 of item 2, tax left to pay or overpaid, plain digits.
    std::string Line6Amount;     ///< Line 6 of item 2, the same with the surcharge, plain digits.
    std::string Line4Status;     ///< "1" pay more, "2" overpaid.
    std::string Line6Status;     ///< "1" pay more, "2" overpaid.
    std::string RateCaseText;    ///< Name of the rate case on the printed form.
    std::string NewAtt1;         ///< Worksheet on page 2: caption of the row ticked among 0 to 7.
    std::string NewAtt2;         ///< "(2.6)" when row 8 is ticked.
    std::string NewAtt3;         ///< Key of row 9 when it is ticked.
    std::string NewAtt4;         ///< "1" when the bank row is ticked.
    std::array<std::string, 4> WorkIncome; ///< Income column of that worksheet, as shown.
    std::array<std::string, 4> WorkTax;    ///< Tax column of that worksheet, as shown.
    std::string WorkIncomeSum;
    std::string WorkTaxSum;

    void Clear() { *this = {}; }
    /// What the start screen leaves of lines 4 and 6 and of the tax: no text, no amount, no choice.
    void resetTaxLabels();
};

/// The rows of the green rate worksheet (`modGreen`); rows 0 to 3 are in use.
struct GreenRecord {
    std::array<std::string, 6> GreenIncome; ///< Net profit at the rate of a row.
    std::array<std::string, 6> GreenTax;    ///< Tax on it.
    std::string GreenIncomeSum;             ///< Plain digits.
    std::string GreenTaxSum;                ///< Plain digits.
    std::string RateCodeShown;              ///< Rate code shown beside row 0.

    void Clear() { *this = {}; }
};

/// The figure of item 3 line 22 as a filer with both kinds of business states it (`modNew3`).
struct StatedResultRecord {
    bool NewBox1 = false;     ///< It is a net profit.
    bool NewBox2 = false;     ///< It is a net loss.
    std::string NewBoxAmount; ///< Plain digits.

    void Clear() { *this = {}; }
};

/// Figures that replace those of item 2 in the file, and only there (`modEdit`).
struct IncomeEditRecord {
    bool EditActive = false; ///< The replacement holds for every store until the return is cleared.
    std::string EditStatus;  ///< Replaces PayStatus.
    std::string EditIncome;  ///< Replaces strFldPage2[32].
    std::string EditTax;     ///< Replaces TaxValue.

    void Clear() { *this = {}; }
};

/// The attachment of an international headquarters company (`modIHQ`). Dates are ten characters with slashes,
/// money plain digits.
struct HeadquartersRecord {
    std::string LicenceConfm; ///< Date of the approval.
    std::string LicenceStart; ///< First day of the privilege.
    std::string LicenceEnd;   ///< Last day of the privilege.

    std::array<std::string, 11> BoxA; ///< Income by kind, exempt business; entries 0 to 7.
    std::array<std::string, 11> BoxB; ///< The same, taxable business.
    std::array<std::string, 11> BoxC; ///< The same, both together.
    std::string BoxASum;
    std::string BoxBSum;
    std::string BoxCSum;

    std::array<std::string, 6> BoxDateFrom; ///< Earlier periods with a loss, row 0 the oldest; rows 0 to 4.
    std::array<std::string, 6> BoxDateTo;
    std::array<std::string, 21>
        BoxMoney;      ///< Four a row: exempt profit, exempt loss, taxable profit, taxable loss.
    std::string BoxG1; ///< Loss that may be deducted in item 3 line 15, exempt business.
    std::string BoxG2; ///< The same, taxable business.

    std::string PeriodStart; ///< The period of the return: a copy of strStartDDMMYY, eight digits.
    std::string PeriodEnd;   ///< A copy of strFinishDDMMYY.

    void Clear() { *this = {}; }
};

/// What the checks remember from one call to the next (`FucChk`).
struct CheckMemoryRecord {
    std::string PendingMessage; ///< Text of a message still to be shown.
    std::string LastValidId;    ///< 13-digit number that the last id check accepted; empty when it refused.
    std::string BusinessText; ///< Text of the business list of page 1; a blank one refuses a complete store.
    double TmpSum8_15to25 = 0.0; ///< Lines 15 to 26 of item 8, baht; item 9 line 5 must equal it.
};

/// What a page check works on (`PageChk`); it holds nothing between two checks.
struct CheckScratchRecord {
    std::int16_t CurrentLine = 0; ///< Index of the box in hand.
    std::int16_t SilentCheck = 0; ///< 1 while a whole page is walked, 0 for a single box.
    double Sum = 0.0;             ///< Shared accumulator, baht.
};

/// Whether the attachment is emptied with the rest: a new return empties it, a load leaves it to the file.
enum class IhqRecord : std::uint8_t { Clear, Keep };

struct ReturnState {
    // Page arrays, by the code of their page (intPageCur).
    FieldArray strFldPage1;       ///< 1: who files, status, auditor, accountant.
    FieldArray strFldPage2;       ///< 2: items 1 and 2.
    WorksheetArray strFldPage1_2; ///< Rate worksheet of item 2; the one array that a new return leaves alone.
    FieldArray strFldPage3_3;     ///< 33: item 3, net profit.
    FieldArray strFldPage3_4;     ///< 34: item 4.
    FieldArray strFldPage4_5;     ///< 45: item 5.
    FieldArray strFldPage4_6;     ///< 46: item 6.
    FieldArray strFldPage4_7;     ///< 47: item 7.
    FieldArray strFldPage5_8;     ///< 58: item 8.
    FieldArray strFldPage5_9;     ///< 59: item 9.
    FieldArray strFldPage6_10;    ///< 610: item 10.
    FieldArray strFldPage6_11;    ///< 611: item 11, earlier periods.
    FieldArray strFldPage7_12;    ///< 712: item 12.
    FieldArray strFldPage8;       ///< 8: notification form.

    // Lookup lists, filled once by fillLookupTables.
    std::array<std::string, titleCount> strTitleCode;
    std::array<std::string, titleCount> strTitleName;
    std::array<std::string, organisationCount> strOrgCode;
    std::array<std::string, organisationCount> strOrgName;
    /// The eight years before that of the period's first day, oldest first; the ninth entry stays empty.
    std::array<std::string, 9> strPrevYear;
    std::vector<std::string> strIsicCode; ///< Business codes, filled when the start screen loads.
    std::vector<std::string> strIsicName;
    std::int16_t intIsicCount = 0;

    // Item 11: the log of its entries, the newest period first.
    FieldArray strItem11Start;                        ///< First day of an entry's period.
    FieldArray strItem11End;                          ///< Last day of an entry's period.
    std::array<std::int16_t, 101> intItem11Type = {}; ///< Table row that an entry occupies.
    std::int16_t intItem11Count = 0;                  ///< Entries in use.
    std::int16_t intItem11CountA = 0;                 ///< Rows used in the exempt block.
    std::int16_t intItem11CountB = 0;                 ///< Rows used in the taxable block.
    double Item11ExemptProfit = 0.0;                  ///< Sums of the table, baht.
    double Item11ExemptLoss = 0.0;
    double Item11Net = 0.0;

    // Period and filing.
    std::string strStartDDMMYY;         ///< First day of the accounting period, eight digits.
    std::string strFinishDDMMYY;        ///< Last day of the accounting period, eight digits.
    std::string strVersion = "2561.00"; ///< Data version: the one that a file must carry.
    std::string strTaxYear;             ///< Year of the period's last day, four digits, B.E.
    std::string strFilingType = "0";    ///< "1" normal, "2" additional, "3" advance payment, "0" none.
    std::string strAddNo = "00";        ///< Number of the additional filing, two digits.
    std::string strStoreType;           ///< "C" complete, "N" temporary, "T" automatic.
    std::string strFileName;            ///< Full path of the file being written.
    std::string strLocale;              ///< "TH" or "EN": the calendar in which the machine writes its year.

    // What the rate worksheet hands from one life of its form to the next; page 1 refreshes some of it.
    std::string SheetIncome; ///< The net profit typed at the reduced rate, plain digits.
    std::string Sheet71a;    ///< Page 2's copy of strFldPage1_2[0].
    std::string Sheet71c;    ///< Page 2's copy of strFldPage1_2[6].
    std::string SheetRate;   ///< The rate that the sheet was filled in for.
    double SheetTax = 0.0;   ///< Total tax of the sheet, baht.
    bool IsRate17 = false;   ///< The filer may use rate (2.7); shown by a hidden button of page 2 alone.
    bool IsRate18 = false;   ///< The same for rate (2.8).

    // Numbers and flags.
    std::int16_t intInvestment = 0;      ///< Exemption chosen on the start screen, 1 to 5; 0 none.
    std::int16_t ChkInvestmentFlag1 = 0; ///< 1 while that choice is investment promotion.
    std::int16_t intNewReturn = 0;       ///< 1 for a new return, 0 for a loaded one.
    std::int16_t intPageCur = 0;         ///< Code of the page on screen.
    std::int16_t intPagePrev = 0;        ///< Code of the page being left.
    std::int16_t intError = 0;           ///< 1 once a check has refused; the caller looks at once.
    bool blnNeedPage2 = false;           ///< A complete store must go through page 2 first.
    std::int16_t intCount = 0;           ///< Shared loop index; holds nothing across calls.
    bool blnChooseShown = false;         ///< The chooser is loaded.
    bool blnFolderWritable = true;       ///< The program's folder can take the automatic store.
    std::int16_t intStatusIndex = -1;    ///< Status box last ticked, other than 11; -1 none.
    bool blnStatus11Kept = false;        ///< Box 11 comes back when a legal form is ticked again.
    bool blnIHQPage = false;             ///< The filer has the headquarters attachment.
    bool blnMouseUp = false;             ///< A status box has seen a mouse release.
    bool blnWebsiteAsked = false;        ///< The question about an empty web address has been asked.

    // Choices of page 1 outside its array.
    std::string strWebsite;
    std::int16_t intP1Box1 = 0;      ///< 1 when the exempt column is filled in.
    std::int16_t intP1Box2 = 0;      ///< 1 when the taxable column is filled in.
    std::int16_t intCashRefund = 0;  ///< 1 refund wanted, 2 not wanted, 0 no answer.
    std::int16_t intAuditStatus = 0; ///< Auditor's opinion, 1 to 6; 0 none.
    std::int16_t intP1Box5 = 0;      ///< 1 when the hidden box of businesses exempt by law is ticked.

    // The side box of item 3: line 22 as the filer states it.
    bool BoxWarned = false; ///< Its advice has been shown.
    bool BoxProfit = false;
    bool BoxLoss = false;
    std::string BoxAmount;

    // Records.
    CompanyStatusRecord DataCtrl_P1;
    TaxRecord DataCtrl_P2;
    GreenRecord modGreen;
    StatedResultRecord modNew3;
    IncomeEditRecord modEdit;
    HeadquartersRecord modIHQ;
    CheckMemoryRecord FucChk;
    lodge::FucDate FucDate; ///< The period as days; written out because the member bears its type's name.
    CheckScratchRecord PageChk;

    /// Empties the records and the thirteen common arrays, in the order that the checks rely on: pending
    /// message, DataCtrl_P1, DataCtrl_P2, modGreen, modIHQ (as asked), modNew3, arrays, modEdit.
    /// strFldPage1_2 stays.
    void ClearAll(IhqRecord ihq);

    /// What a new return and a load begin with: ClearAll and all that is remembered outside of it, so that
    /// nothing of the return before shows through.
    void beginReturn(IhqRecord ihq);

    /// Empties every page and record of the return but its period, for the command that clears all pages.
    void clearAllPages();
    /// Empties the return, its period and what the pages remember, as the program was when it started.
    void putAway();

    /// The rows of the rate worksheet and the pages' copies of them.
    void clearGreenRows();
    /// The choices of page 1 outside its array, and its question about the web site.
    void clearPage1Choices();
    /// The side box of item 3 and the memory of its advice.
    void clearItem3SideBox();
    /// Entries, counters and sums of item 11.
    void clearItem11Log();
};

} // namespace lodge
