// The rates of item 2: which rows the worksheet on page 2 has and what tax each yields, the rate boxes beside
// it with their codes, and what a company status opens. Amounts are baht; a tax is rounded to satang.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace lodge {

// --- Numbers of the law, each once ---

/// Revenue Code, the rate of a company or juristic partnership.
inline constexpr double generalRate = 0.2;
/// Reduced rate of most privileged businesses: fuel trade, regional operating headquarters (decree 405),
/// international headquarters, special economic zones (decree 591), offshore banking (decree 454).
inline constexpr double privilegedRate = 0.1;
/// Small company, on its profit between the two limits; and an international procurement centre.
inline constexpr double middleRate = 0.15;
/// Special-purpose development zones, decree 584.
inline constexpr double zoneRate = 0.03;
/// Profit of a small company that bears no tax.
inline constexpr double smallExemptProfit = 300'000;
/// Profit of a small company above which the general rate applies.
inline constexpr double smallMiddleProfit = 3'000'000;
/// Tax on a small company's profit up to that limit.
inline constexpr double smallMiddleTax = 405'000;
/// Tax on gross receipts, percent.
inline constexpr int receiptsPercent = 5;
/// The largest sales in the period with which a company is a small one (its capital: small_company.h).
inline constexpr double smallSales = 30'000'000;

// --- The worksheet ---

/// Tax on the part of a profit above `above`: `base` and the part at `rate`.
struct TaxBand {
    double above;
    double rate;
    double base;
};

/// The box of the second layer that repeats the tick of a worksheet row.
enum class Mirror { None, General, Rate0, Rate1, Rate2, Rate3, Rate4, Rate5, Rate17, Rate18, Rate19 };

struct WorksheetRow {
    std::string_view key;     ///< "(2.1)"; what a stored return names the row by.
    std::string_view caption; ///< As on the page.
    int income;               ///< Index of its txtIncome and lbSumR.
    Mirror mirror;
    std::span<const TaxBand> bands; ///< Ascending; none for a rate that no law has brought into force.
};

inline constexpr int worksheetRowCount = 11;
/// Rows 0 to 7 share txtIncome(0), and one of them at most is ticked.
inline constexpr int choiceRowCount = 8;
inline constexpr int generalRow = 0;
inline constexpr int smallCompanyRow = 1;
inline constexpr int zoneRow = 8;
inline constexpr int futureRow = 9;
inline constexpr int bankRow = 10;
inline constexpr std::size_t incomeCount = 4;

[[nodiscard]] std::span<const WorksheetRow, worksheetRowCount> worksheetRows();

/// The tax of a row on an income above zero. An income of whole satang is reckoned exactly, so that a half
/// satang rounds as a calculator has it.
[[nodiscard]] double worksheetTax(const WorksheetRow& row, double income);

/// An amount at one rate, rounded as above.
[[nodiscard]] double taxAtRate(double amount, double rate);

// --- The rate boxes ---

struct RateBox {
    std::string_view caption;
    int percent;
    std::string_view code;
    std::string_view number;

    /// "20|1.1|1".
    [[nodiscard]] std::string tag() const;
};

inline constexpr int rateBoxCount = 8;
/// Boxes 0 to 5 stand for a rate of the worksheet; 6 and 7 have moved to boxes of their own.
inline constexpr int mirroredRateBoxes = 6;

/// ChkBox_NewRate(0) to (7).
[[nodiscard]] std::span<const RateBox, rateBoxCount> rateBoxes();
/// ChkBox_NewRate17, 18 and 19.
[[nodiscard]] std::span<const RateBox, 3> singleRateBoxes();

/// The code of receipts taxed before expenses.
inline constexpr std::string_view receiptsCode = "5%";

/// Tax on an amount by rate code, "1.1" to "1.6" with or without brackets or "5%", rounded to satang. Any
/// other text gives 0, on purpose for "1.7", "1.8" and the captions "(2.1)": those rates are the worksheet's.
[[nodiscard]] double CalcTaxByRate(std::string_view code, double amount);

// --- What a company status opens ---

struct StatusRates {
    std::string_view status; ///< IndcBusType.
    /// Rows shown when profit is ticked; -1 for none.
    std::array<int, 2> shown;
    int ticked;  ///< The row that the status ticks itself, -1 for none.
    bool exempt; ///< Exempt from tax by law: neither profit nor receipts can be declared, only a loss.
};

/// The row of that status, nullptr when no row of the worksheet depends on it.
[[nodiscard]] const StatusRates* statusRates(std::string_view status);
[[nodiscard]] std::span<const StatusRates> allStatusRates();
[[nodiscard]] bool isExemptStatus(std::string_view status);

} // namespace lodge
