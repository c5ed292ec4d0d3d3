#include "pages/schedules/line22_cases.h"

#include "pages/fields/amounts.h"
#include "values/money.h"

#include <algorithm>
#include <array>

namespace lodge {

namespace {

enum class Figure { Empty, Below, Zero, Above };

enum class Outcome {
    Nil,
    Exempt,
    Taxable,
    Both,
    /// Nothing to tax while the exempt profit outweighs the taxable loss, otherwise that loss.
    NilOrTaxable,
};

struct Line22Case {
    Figure exempt;
    Figure taxable;
    Outcome outcome;
    Outcome headquarters; ///< With investment status 3 or 4.
};

using enum Figure;

// clang-format off
constexpr std::array<Line22Case, 16> cases = {{
    {Empty, Empty, Outcome::Nil,          Outcome::Nil},
    {Empty, Below, Outcome::Taxable,      Outcome::Taxable},
    {Empty, Zero,  Outcome::Taxable,      Outcome::Taxable},
    {Empty, Above, Outcome::Taxable,      Outcome::Taxable},
    {Zero,  Empty, Outcome::Nil,          Outcome::Nil},
    {Zero,  Below, Outcome::Taxable,      Outcome::Taxable},
    {Zero,  Zero,  Outcome::Taxable,      Outcome::Taxable},
    {Zero,  Above, Outcome::Taxable,      Outcome::Taxable},
    {Above, Empty, Outcome::Nil,          Outcome::Nil},
    {Above, Zero,  Outcome::Nil,          Outcome::Nil},
    {Above, Above, Outcome::Taxable,      Outcome::Taxable},
    {Above, Below, Outcome::NilOrTaxable, Outcome::Taxable},
    {Below, Empty, Outcome::Exempt,       Outcome::Nil},
    {Below, Zero,  Outcome::Exempt,       Outcome::Nil},
    {Below, Above, Outcome::Both,         Outcome::Taxable},
    {Below, Below, Outcome::Both,         Outcome::Taxable},
}};
// clang-format on

constexpr const Line22Case* caseOf(Figure exempt, Figure taxable) {
    const auto* found = std::ranges::find_if(
        cases, [&](const Line22Case& row) { return row.exempt == exempt && row.taxable == taxable; });
    return found;
}

constexpr bool everyPairHasItsCase() {
    for (const Figure exempt : {Empty, Below, Zero, Above}) {
        for (const Figure taxable : {Empty, Below, Zero, Above}) {
            if (caseOf(exempt, taxable) == cases.end()) return false;
        }
    }
    return true;
}

static_assert(everyPairHasItsCase());

Figure figureOf(std::string_view text, double value) {
    if (text.empty()) return Empty;
    if (value == 0) return Zero;
    return value < 0 ? Below : Above;
}

bool isHeadquarters(std::int16_t investment) { return investment == 3 || investment == 4; }

} // namespace

std::string line22Text(std::string_view exempt, std::string_view taxable, std::int16_t investment) {
    const double s1 = readFigure(exempt);
    const double s2 = readFigure(taxable);
    const Line22Case& row = *caseOf(figureOf(exempt, s1), figureOf(taxable, s2));
    switch (isHeadquarters(investment) ? row.headquarters : row.outcome) {
    case Outcome::Nil: break;
    case Outcome::Exempt: return shownFigure(s1);
    case Outcome::Taxable: return shownFigure(s2);
    case Outcome::Both: return shownFigure(s1 + s2);
    case Outcome::NilOrTaxable: return roundMoney(s1 + s2) >= 0 ? formatMoney(0) : shownFigure(s2);
    }
    return formatMoney(0);
}

} // namespace lodge
