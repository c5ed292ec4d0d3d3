// The worksheet's tax against an exact reckoning of its own: satang as whole numbers of 128 bits, the rates
// written out anew as fractions, so that no table and no double is shared with what is tested.
#include "pages/tax/rate_table.h"
#include "values/money.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

namespace lodge {
namespace {

__extension__ using Wide = __int128;

/// Tax in hundredths of a satang on an income in satang.
Wide exactTax(int row, std::int64_t satang) {
    const Wide x = satang;
    const Wide exempt = 300'000LL * 100;
    const Wide middle = 3'000'000LL * 100;
    switch (row) {
    case 0: return x * 20;
    case 1:
        if (x <= exempt) return 0;
        if (x <= middle) return (x - exempt) * 15;
        return (x - middle) * 20 + Wide{405'000} * 100 * 100;
    case 3: return x * 15;
    case 7: return x <= exempt ? Wide{0} : (x - exempt) * 10;
    case 8: return x * 3;
    default: return x * 10;
    }
}

/// The same in whole satang, a half rounding up.
std::int64_t roundedTax(int row, std::int64_t satang) {
    return static_cast<std::int64_t>((exactTax(row, satang) + 50) / 100);
}

/// Satang as an amount is typed.
std::string typed(std::int64_t satang) {
    std::string digits = std::to_string(satang);
    if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
    return digits.insert(digits.size() - 2, ".");
}

void expectExact(int row, std::int64_t satang) {
    const double income = readNumber(typed(satang));
    const double tax = worksheetTax(worksheetRows()[static_cast<std::size_t>(row)], income);
    const std::int64_t exact = roundedTax(row, satang);
    if (std::llround(tax * 100) != exact || std::abs(tax - static_cast<double>(exact) / 100) > 0.001) {
        ADD_FAILURE() << "row " << row << " income " << typed(satang) << ": " << formatMoney(tax)
                      << ", exact " << typed(exact);
    }
}

constexpr int taxedRows[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 10};
constexpr std::int64_t largestSatang = 999'999'999'999'999;

TEST(WorksheetOracle, AgreesAroundEveryEdge) {
    for (const int row : taxedRows) {
        for (const std::int64_t edge : {std::int64_t{0}, std::int64_t{30'000'000}, std::int64_t{300'000'000},
                 std::int64_t{66'666'666'666'667}, largestSatang - 500}) {
            for (std::int64_t satang = edge + 1; satang < edge + 500; ++satang)
                expectExact(row, satang);
        }
    }
}

TEST(WorksheetOracle, AgreesOnRandomIncomesOfAllSizes) {
    std::mt19937_64 random(2561);
    // As many digits as the draw says, so that small and large incomes come up alike.
    std::uniform_int_distribution<int> digits(1, 15);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(4);
    constexpr int incomes = 100'000; // a million with ten rows
    int done = 0;
    for (; done < incomes && std::chrono::steady_clock::now() < end; ++done) {
        const auto limit = static_cast<std::int64_t>(std::llround(std::pow(10.0, digits(random)))) - 1;
        const std::int64_t satang = std::uniform_int_distribution<std::int64_t>(1, limit)(random);
        for (const int row : taxedRows)
            expectExact(row, satang);
    }
    RecordProperty("incomes", done);
    EXPECT_GT(done, 5'000) << "too slow to say anything";
}

TEST(WorksheetOracle, IsShownAsItIsReckoned) {
    std::mt19937_64 random(77);
    for (int i = 0; i < 20'000; ++i) {
        const std::int64_t satang = std::uniform_int_distribution<std::int64_t>(1, largestSatang)(random);
        const double tax = worksheetTax(worksheetRows()[3], readNumber(typed(satang)));
        EXPECT_EQ(formatFixed(tax), typed(roundedTax(3, satang))) << typed(satang);
    }
}

} // namespace
} // namespace lodge
