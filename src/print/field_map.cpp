#include "print/field_map.h"

#include "file/sources.h"
#include "print/composed_values.h"
#include "state/tax_fields.h"

namespace lodge {

namespace {

using namespace source;
using enum FieldKind;

// --- What the rows read beside the page arrays ---

constexpr Source start = textSource<&ReturnState::strStartDDMMYY>("strStartDDMMYY");
constexpr Source finish = textSource<&ReturnState::strFinishDDMMYY>("strFinishDDMMYY");
constexpr Source website = textSource<&ReturnState::strWebsite>("strWebsite");
constexpr Source column1 = numberSource<&ReturnState::intP1Box1>("intP1Box1");
constexpr Source column2 = numberSource<&ReturnState::intP1Box2>("intP1Box2");
constexpr Source refund = numberSource<&ReturnState::intCashRefund>("intCashRefund");
constexpr Source audit = numberSource<&ReturnState::intAuditStatus>("intAuditStatus");
constexpr Source status =
    textSource<&ReturnState::DataCtrl_P1, &CompanyStatusRecord::IndcBusType>("DataCtrl_P1.IndcBusType");
constexpr Source developmentZone =
    numberSource<&ReturnState::DataCtrl_P1, &CompanyStatusRecord::ChkStatus11>("DataCtrl_P1.ChkStatus11");
constexpr Source economicZone =
    numberSource<&ReturnState::DataCtrl_P1, &CompanyStatusRecord::ChkStatus14>("DataCtrl_P1.ChkStatus14");

template <auto Member>
constexpr Source tax(std::string_view name) {
    return textSource<&ReturnState::DataCtrl_P2, Member>(name);
}
template <auto Member>
constexpr Source ihq(std::string_view name) {
    return textSource<&ReturnState::modIHQ, Member>(name);
}

constexpr Source filerId =
    textSource<&ReturnState::FucChk, &CheckMemoryRecord::LastValidId>("FucChk.LastValidId");

// --- How a row is written down ---

constexpr FieldRow run(std::string_view names, std::uint8_t first, std::uint8_t last, FieldKind kind,
    const Source& source, std::uint8_t entry) {
    return {.names = names, .first = first, .last = last, .kind = kind, .source = source, .entry = entry};
}
constexpr FieldRow one(std::string_view name, FieldKind kind, const Source& source, std::uint8_t entry = 0) {
    return {.names = name, .kind = kind, .source = source, .entry = entry};
}
/// Column A shows the entry, B the one `step` behind it, C the one behind that.
constexpr FieldRow columns(
    std::string_view names, const Source& source, std::uint8_t entry, std::uint8_t step) {
    return {.names = names, .kind = Money, .source = source, .entry = entry, .columnStep = step};
}
constexpr FieldRow ticked(std::string_view name, const Source& source, std::string_view by) {
    return {.names = name, .kind = Check, .source = source, .tick = by};
}
constexpr FieldRow composedOf(std::string_view name, FieldKind kind, ComputedValue value) {
    return {.names = name, .kind = kind, .computed = value};
}
/// The blank form of two fields has no gap before its "=". That is meant: it is what their templates are
/// sent.
constexpr FieldRow withTightBlank(FieldRow row) {
    row.blank = "= ' ' ";
    return row;
}
constexpr FieldRow quoted(FieldRow row, Quotes quotes) {
    row.quotes = quotes;
    return row;
}
/// The rates of the zones belong to line 2 (2), a reduced rate, alone.
constexpr FieldRow atReducedRate(FieldRow row) {
    row.isSent = [](const ReturnState& state) {
        constexpr std::size_t reducedRateTick = 26;
        return state.strFldPage2[reducedRateTick] == "1";
    };
    return row;
}

constexpr Quotes boxQuotes = {" = '", "'"};
constexpr Quotes zoneQuotes = {" = '", " ' "};
constexpr Quotes tightZoneQuotes = {"= '", " ' "};

// --- The map ---

// clang-format off
constexpr std::array page1{
    one("lblFld00", Tin, P1, 0),
    one("lblFld01", Day, start), one("lblFld02", Month, start), one("lblFld03", Year, start),
    one("lblFld04", Day, finish), one("lblFld05", Month, finish), one("lblFld06", Year, finish),
    run("lblFld##",  7,  9, Check, P1,  7),
    run("lblFld##", 10, 11, Text,  P1, 10),
    run("lblFld##", 12, 22, Check, P1, 12),
    run("lblFld##", 23, 28, Text,  P1, 23),
    run("lblFld##", 29, 30, Money, P1, 29),
    one("lblFld31", Text, P1, 31),
    composedOf("lblFld32", Text, composed::auditorName), // with what entries 33 and 34 hold
    one("lblFld35", Text, P1, 35),
    one("lblFld36", Tin,  P1, 36),
    one("lblFld37", Date, P1, 37),
    one("lblFld38", Text, P1, 38),
    composedOf("lblFld39", Text, composed::accountantName), // with what entries 40 and 41 hold
    one("lblFld42", Text,  P1, 42),
    one("lblFld43", Tin,   P1, 43),
    one("lblFld44", Check, P1, 44),
    run("lblFld#", 100, 102, Text, P1, 45),
    quoted(one("ChkBox09", Check, P1, 48), boxQuotes),
    quoted(one("ChkBox12", Check, P1, 49), boxQuotes),
    one("ecoFlag_584", Check, developmentZone),
    one("ecoFlag_591", Check, economicZone),
    ticked("IHQ_Flag",      status, "15"),
    ticked("ITC_Flag",      status, "14"),
    ticked("ROH_Flag",      status, "10"),
    ticked("Social_Indc",   status, "16"),
    ticked("NStart_Indc",   status, "17"),
    ticked("OneAcc_Indc",   status, "18"),
    ticked("Other_Indc",    status, "19"),
    ticked("NStart_Indc_s", status, "21"),
    one("Cash_Refund", Code, refund),
    one("Audit",       Code, audit),
    one("Website",     Text, website),
    composedOf("Path_File", Code, composed::packedFile),
    one("enableTab1", Code, column1),
    one("enableTab2", Code, column2),
};

constexpr std::array page2{
    one("lblFld1_00", Text, P2, 0), one("lblFld1_02", Text, P2, 2), one("lblFld1_03", Text, P2, 3),
    one("lblFld1_01", Date, P2, 1),
    run("lblFld1_##",  4,  7, Check, P2,  4),
    run("lblFld1_##",  8, 12, Text,  P2,  8),
    run("lblFld1_##", 13, 20, Date,  P2, 13),
    one("lblFld1_21", Text, P2, 21),
    run("lblFld2_##",  0,  2, Check, P2, 22),
    composedOf("lblFld2_03", Check, composed::generalRate),
    composedOf("lblFld2_04", Check, composed::reducedRate),
    run("lblFld2_##",  5,  9, Check, P2, 27),
    one("lblFld2_10", Money, P2, 32),
    composedOf("lblFld2_11", Money, composed::computedTax), // entry 33
    run("lblFld2_##", 12, 21, Money, P2, 34),
    one("lblFld2_22", Text, P2, 44),
    quoted(composedOf("rate_nomal", Code, composed::rateRow), checkQuotes),
    atReducedRate(quoted(one("rate_eco_584", Code, developmentZone), zoneQuotes)),
    atReducedRate(quoted(one("rate_eco_591", Code, economicZone), tightZoneQuotes)),
    run("lblFld3_##",  0, 13, Money, P3_3,  0),
    run("lblFld3_##", 20, 33, Money, P3_3, 20),
    run("lblFld3_##", 40, 53, Money, P3_3, 40),
    run("lblFld3_##", 61, 64, Check, P3_3, 61),
};

constexpr std::array page3{
    run("lblFld3_##",  0, 60, Money, P3_3,  0),
    run("lblFld3_##", 67, 69, Money, P3_3, 67),
    run("lblFld3_##", 61, 66, Check, P3_3, 61),
    run("lblFld3_@##", 21, 32, Part, P3_3, 70),
    run("lblFld4_##",  0, 26, Money, P3_4,  0),
    run("lblFld5_##",  0,  8, Money, P4_5,  0),
    run("lblFld5_##", 17, 25, Money, P4_5, 17),
    run("lblFld5_##", 34, 42, Money, P4_5, 34),
};

constexpr std::array page4{
    run("lblFld5_##",  0, 50, Money, P4_5,  0),
    run("lblFld6_##",  0, 20, Money, P4_6,  0),
    run("lblFld7_##",  0, 14, Money, P4_7,  0),
    run("lblFld8_##",  0, 13, Money, P5_8,  0),
    run("lblFld8_##", 24, 37, Money, P5_8, 24),
    run("lblFld8_##", 48, 61, Money, P5_8, 48),
};

constexpr std::array page5{
    run("lblFld8_##",  0, 74, Money, P5_8,  0),
    run("lblFld@_##", 30, 40, Part,  P5_8, 75),
    run("lblFld9_##",  0, 20, Money, P5_9,  0),
    columns("lblFld10_@1", P6_10,  0, 12),
    one("lblFld10_@2", Part, P6_10, 69),
    one("lblFld10_@3", Part, P6_10, 64),
    columns("lblFld10_@4", P6_10,  3, 12),
    one("lblFld10_A5", Money, P6_10, 5),
    withTightBlank(one("lblFld10_B5", Money, P6_10, 17)),
    one("lblFld10_C5", Money, P6_10, 29),
    columns("lblFld10_@6", P6_10, 42, 1),
    one("lblFld10_@7", Part, P6_10, 55),
    columns("lblFld10_@8", P6_10, 45, 1),
};

constexpr std::array page6{
    run("lblFld10_##",  0, 16, Money, P6_10,  0),
    withTightBlank(one("lblFld10_17", Money, P6_10, 17)),
    run("lblFld10_##", 18, 50, Money, P6_10, 18),
    run("lblFld10_@#",  1, 24, Part,  P6_10, 51),
    run("lblFld11_##",  0, 25, Date,  P6_11,  0),
    run("lblFld11_##", 26, 68, Money, P6_11, 26),
};

constexpr std::array page7{
    run("lblFld##",  0, 22, Money, P7_12,  0),
    run("lblFld##", 23, 24, Check, P7_12, 23),
};

constexpr std::array page8{
    one("lblFld00", Day, start), one("lblFld01", Month, start), one("lblFld02", Year, start),
    one("lblFld03", Day, finish), one("lblFld04", Month, finish), one("lblFld05", Year, finish),
    one("lblFld06", Check, P8,  6), one("lblFld07", Text,  P8,  7), one("lblFld08", Check, P8,  8),
    one("lblFld09", Check, P8,  9), one("lblFld10", Text,  P8, 10), one("lblFld11", Check, P8, 11),
    one("lblFld12", Check, P8, 12), one("lblFld13", Text,  P8, 13), one("lblFld14", Check, P8, 14),
    one("lblFld15", Check, P8, 15), one("lblFld16", Text,  P8, 16), one("lblFld17", Check, P8, 17),
    one("lblFld18", Check, P8, 18), one("lblFld19", Check, P8, 19), one("lblFld20", Text,  P8, 20),
    composedOf("lblFld21",   Text, composed::remarkLine),
    composedOf("lblFld21_1", Text, composed::remarkContinued),
    composedOf("lblFld22",   Text, composed::secondRemarkLine),
    composedOf("lblFld22_1", Text, composed::secondRemarkContinued),
    one("lblFld23", Day, P8, 23), one("lblFld24", Month, P8, 23), one("lblFld25", Year, P8, 23),
};

constexpr Source approved = ihq<&HeadquartersRecord::LicenceConfm>("modIHQ.LicenceConfm");
constexpr Source privilegeFrom = ihq<&HeadquartersRecord::LicenceStart>("modIHQ.LicenceStart");
constexpr Source privilegeTo = ihq<&HeadquartersRecord::LicenceEnd>("modIHQ.LicenceEnd");

constexpr std::array headquarters{
    one("NID", Text, filerId),
    one("CDAY", Day, approved), one("CMON", Month, approved), one("CYEAR", Year, approved),
    one("SDAY", Day, privilegeFrom), one("SMON", Month, privilegeFrom), one("SYEAR", Year, privilegeFrom),
    one("EDAY", Day, privilegeTo), one("EMON", Month, privilegeTo), one("EYEAR", Year, privilegeTo),
    run("A#", 1, 8, Text, ihq<&HeadquartersRecord::BoxA>("modIHQ.BoxA"), 0),
    run("B#", 1, 8, Text, ihq<&HeadquartersRecord::BoxB>("modIHQ.BoxB"), 0),
    run("C#", 1, 8, Text, ihq<&HeadquartersRecord::BoxC>("modIHQ.BoxC"), 0),
    one("ASUM", Money, ihq<&HeadquartersRecord::BoxASum>("modIHQ.BoxASum")),
    one("BSUM", Money, ihq<&HeadquartersRecord::BoxBSum>("modIHQ.BoxBSum")),
    one("CSUM", Money, ihq<&HeadquartersRecord::BoxCSum>("modIHQ.BoxCSum")),
    run("M#",  1, 20, Text,   ihq<&HeadquartersRecord::BoxMoney>("modIHQ.BoxMoney"), 0),
    run("DF#", 1,  5, Period, ihq<&HeadquartersRecord::BoxDateFrom>("modIHQ.BoxDateFrom"), 0),
    run("DT#", 1,  5, Period, ihq<&HeadquartersRecord::BoxDateTo>("modIHQ.BoxDateTo"), 0),
    one("GSUM1", Money, ihq<&HeadquartersRecord::BoxG1>("modIHQ.BoxG1")),
    one("GSUM2", Money, ihq<&HeadquartersRecord::BoxG2>("modIHQ.BoxG2")),
};

constexpr std::array attachment{
    one("enableTab1", Code, column1),
    one("enableTab2", Code, column2),
    one("ChkBox_NewAtt1", Code, tax<&TaxRecord::NewAtt1>("DataCtrl_P2.NewAtt1")),
    one("ChkBox_NewAtt2", Code, tax<&TaxRecord::NewAtt2>("DataCtrl_P2.NewAtt2")),
    one("ChkBox_NewAtt3", Code, tax<&TaxRecord::NewAtt3>("DataCtrl_P2.NewAtt3")),
    one("ChkBox_NewAtt4", Code, tax<&TaxRecord::NewAtt4>("DataCtrl_P2.NewAtt4")),
    run("txtIncome#", 1, 4, Text, tax<&TaxRecord::WorkIncome>("DataCtrl_P2.WorkIncome"), 0),
    run("lbSumR#",    1, 4, Text, tax<&TaxRecord::WorkTax>("DataCtrl_P2.WorkTax"), 0),
    one("lbIncomeSumVar", Text, tax<&TaxRecord::WorkIncomeSum>("DataCtrl_P2.WorkIncomeSum")),
    one("lbSumTotalVar",  Text, tax<&TaxRecord::WorkTaxSum>("DataCtrl_P2.WorkTaxSum")),
    composedOf("profitXVar", Code, composed::statedProfit),
    composedOf("loseXVar",   Code, composed::statedLoss),
    composedOf("boiTextVar", Text, composed::statedResult),
};

constexpr std::array<ReportTemplate, 10> templates = {{
    { 1, "rptLodgePage1",      page1,        nullptr},
    { 2, "rptLodgePage2",      page2,        restoreTaxFields},
    { 3, "rptLodgePage3",      page3,        nullptr},
    { 4, "rptLodgePage4",      page4,        nullptr},
    { 5, "rptLodgePage5",      page5,        nullptr},
    { 6, "rptLodgePage6",      page6,        nullptr},
    { 7, "rptLodgePage7",      page7,        nullptr},
    { 8, "rptLodgePage8",      page8,        nullptr},
    { 9, "rptLodgePageIHQ",    headquarters, nullptr},
    {10, "rptLodgeAttachPage", attachment,   nullptr},
}};
// clang-format on

} // namespace

std::span<const ReportTemplate, 10> reportTemplates() { return templates; }

} // namespace lodge
