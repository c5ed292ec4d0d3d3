#include "pages/tax/rate_table.h"

#include "values/money.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace lodge {

namespace {

// --- Bands ---

constexpr std::array<TaxBand, 1> generalBands = {{{0, generalRate, 0}}};
constexpr std::array<TaxBand, 1> privilegedBands = {{{0, privilegedRate, 0}}};
constexpr std::array<TaxBand, 1> middleBands = {{{0, middleRate, 0}}};
constexpr std::array<TaxBand, 1> zoneBands = {{{0, zoneRate, 0}}};
constexpr std::array<TaxBand, 3> smallBands = {{
    {0, 0, 0},
    {smallExemptProfit, middleRate, 0},
    {smallMiddleProfit, generalRate, smallMiddleTax},
}};
constexpr std::array<TaxBand, 2> singleAccountBands = {{
    {0, 0, 0},
    {smallExemptProfit, privilegedRate, 0},
}};

/// Bands ascend, and each begins with the tax that the one before it has come to.
constexpr bool bandsFit(std::span<const TaxBand> bands) {
    for (std::size_t i = 1; i < bands.size(); ++i) {
        const TaxBand& below = bands[i - 1];
        const TaxBand& band = bands[i];
        if (band.above <= below.above) return false;
        if (band.base != below.base + (band.above - below.above) * below.rate) return false;
    }
    return bands.front().above == 0 && bands.front().base == 0;
}

static_assert(bandsFit(smallBands));
static_assert(bandsFit(singleAccountBands));
static_assert(
    bandsFit(generalBands) && bandsFit(privilegedBands) && bandsFit(middleBands) && bandsFit(zoneBands));

// --- Tables ---

// clang-format off
constexpr std::array<WorksheetRow, worksheetRowCount> worksheet = {{
    {"(1)",   "(1)",   0, Mirror::General, generalBands},
    {"(2.1)", "(2.1)", 0, Mirror::Rate0,   smallBands},
    {"(2.2)", "(2.2)", 0, Mirror::Rate1,   privilegedBands},
    {"(2.3)", "(2.3)", 0, Mirror::Rate2,   middleBands},
    {"(2.4)", "(2.4)", 0, Mirror::Rate3,   privilegedBands},
    {"(2.5)", "(2.5)", 0, Mirror::Rate4,   privilegedBands},
    {"(2.7)", "(2.7)", 0, Mirror::Rate17,  privilegedBands},
    {"(2.8)", "(2.8)", 0, Mirror::Rate18,  singleAccountBands},
    {"(2.6)", "(2.6) กิจการตั้งอยู่ในเขตพัฒนาพิเศษเฉพาะกิจ ตาม พ.ร.ฎ.(ฉบับที่ 584)  อัตราภาษี 3%",
                       1, Mirror::Rate5,   zoneBands},
    {"(2.9)", "(2.9) กิจการอื่นที่มิได้ระบุไว้ (ไม่สามารถยื่นแบบ ก.ข.ค. 77 กรณีใช้ข้อลดอัตราภาษี (2.9) ได้ "
              "เนื่องจากยังไม่มีกฏหมายออกประกาศบังคับใช้กรณีดังกล่าว)",
                       2, Mirror::Rate19,  {}},
    {"1",     "ลดอัตราภาษีตาม พ.ร.ฎ.(ฉบับที่ 454) สำหรับกิจการธนาคารที่รับฝากหรือกู้ยืมเงินตรา",
                       3, Mirror::None,    privilegedBands},
}};

// The percents of these tags are the authority's own; they differ from the worksheet's on purpose, and no
// tax is computed from them.
constexpr std::array<RateBox, rateBoxCount> boxes = {{
    {"(2.1)", 20, "1.1", "1"},
    {"(2.2)", 10, "1.2", "2"},
    {"(2.3)", 10, "1.3", "3"},
    {"(2.4)", 15, "1.4", "4"},
    {"(2.5)", 10, "1.5", "5"},
    {"(2.6)", 10, "1.6", "6"},
    {"(2.7)",  3, "1.7", "7"},
    {"(2.8)", 10, "1.8", "8"},
}};

constexpr std::array<RateBox, 3> singles = {{
    {"(2.7)",  3, "1.7", "7"},
    {"(2.8)", 10, "1.8", "8"},
    {"(2.9)", 10, "1.8", "8"},
}};

struct CodeRate {
    std::string_view code;
    std::string_view bracketed;
    int percent;
    double exempt; ///< Taken off the amount first.
};

constexpr std::array<CodeRate, 7> codeRates = {{
    {"1.1", "(1.1)", 20, 0},
    {"1.2", "(1.2)", 10, smallExemptProfit},
    {"1.3", "(1.3)", 10, 0},
    {"1.4", "(1.4)", 15, 0},
    {"1.5", "(1.5)", 10, 0},
    {"1.6", "(1.6)", 10, 0},
    {receiptsCode, receiptsCode, receiptsPercent, 0},
}};

constexpr std::array<StatusRates, 19> statuses = {{
    {"1",  {0, 1},   -1, false},
    {"2",  {-1, -1}, -1, false},
    {"3",  {-1, -1}, -1, false},
    {"4",  {0, -1},  -1, false},
    {"5",  {0, -1},  -1, false},
    {"6",  {0, -1},  -1, false},
    {"7",  {0, -1},  -1, false},
    {"11", {-1, -1},  2, false},
    {"13", {-1, -1},  3, false},
    {"10", {-1, -1},  4, false},
    {"15", {-1, -1},  5, false},
    {"20", {-1, -1},  6, false},
    {"18", {-1, -1},  7, false},
    {"14", {-1, -1}, -1, true},
    {"9",  {-1, -1}, -1, true},
    {"16", {-1, -1}, -1, true},
    {"17", {-1, -1}, -1, true},
    {"19", {-1, -1}, -1, true},
    {"21", {-1, -1}, -1, true},
}};
// clang-format on

// --- Reckoning ---

constexpr int satangInBaht = 100;

/// Whether the amount is one of whole satang, as every amount on paper is.
bool isWholeSatang(double amount) {
    return std::abs(amount) <= largestAmount && roundMoney(amount) == amount;
}

std::int64_t satangOf(double amount) { return std::llround(amount * satangInBaht); }

/// Hundredths of a satang as baht, a half satang away from zero.
double bahtOfHundredths(std::int64_t hundredths) {
    const std::int64_t half = hundredths < 0 ? -satangInBaht / 2 : satangInBaht / 2;
    const std::int64_t satang = (hundredths + half) / satangInBaht;
    return static_cast<double>(satang) / satangInBaht;
}

std::int64_t percentOf(double rate) { return std::llround(rate * 100); }

} // namespace

std::string RateBox::tag() const {
    std::string text = std::to_string(percent);
    for (const std::string_view part : {code, number}) {
        text += '|';
        text += part;
    }
    return text;
}

std::span<const WorksheetRow, worksheetRowCount> worksheetRows() { return worksheet; }

double worksheetTax(const WorksheetRow& row, double income) {
    const auto band = std::find_if(
        row.bands.rbegin(), row.bands.rend(), [&](const TaxBand& each) { return income > each.above; });
    if (band == row.bands.rend()) return 0;
    if (!isWholeSatang(income)) return roundMoney((income - band->above) * band->rate + band->base);
    return bahtOfHundredths((satangOf(income) - satangOf(band->above)) * percentOf(band->rate)
                            + satangOf(band->base) * satangInBaht);
}

double taxAtRate(double amount, double rate) {
    if (!isWholeSatang(amount)) return roundMoney(amount * rate);
    return bahtOfHundredths(satangOf(amount) * percentOf(rate));
}

std::span<const RateBox, rateBoxCount> rateBoxes() { return boxes; }

std::span<const RateBox, 3> singleRateBoxes() { return singles; }

double CalcTaxByRate(std::string_view code, double amount) {
    const auto* found = std::ranges::find_if(
        codeRates, [&](const CodeRate& rate) { return code == rate.code || code == rate.bracketed; });
    if (found == codeRates.end()) return 0;
    const double taxed = found->exempt > 0 ? std::max(amount - found->exempt, 0.0) : amount;
    if (!isWholeSatang(amount)) return roundMoney(taxed * found->percent / 100);
    return bahtOfHundredths(satangOf(taxed) * found->percent);
}

const StatusRates* statusRates(std::string_view status) {
    const auto all = allStatusRates();
    const auto found = std::ranges::find(all, status, &StatusRates::status);
    return found == all.end() ? nullptr : &*found;
}

bool isExemptStatus(std::string_view status) {
    const StatusRates* row = statusRates(status);
    return row != nullptr && row->exempt;
}

std::span<const StatusRates> allStatusRates() { return statuses; }

} // namespace lodge
