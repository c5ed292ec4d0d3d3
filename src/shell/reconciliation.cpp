#include "shell/reconciliation.h"

#include "values/money.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace lodge {

namespace {

using S = ReturnState;

template <FieldArray S::*Array, std::size_t Entry>
const std::string& entry(const S& state) {
    return (state.*Array)[Entry];
}

template <std::string HeadquartersRecord::*Text>
const std::string& attached(const S& state) {
    return state.modIHQ.*Text;
}

/// The total of a schedule. The page computes it, so that no control of the schedule mends it.
template <FieldArray S::*Array, std::size_t Entry>
constexpr TieSide total(std::string_view form) {
    return {entry<Array, Entry>, form, ""};
}

template <std::size_t Entry>
constexpr TieSide item3(std::string_view control) {
    return {entry<&S::strFldPage3_3, Entry>, "frmLodgePage3_3", control};
}

template <std::size_t Entry>
constexpr TieSide item4(std::string_view control) {
    return {entry<&S::strFldPage3_4, Entry>, "frmLodgePage3_4", control};
}

// Column 1, the exempt business, before column 2, the taxable one. Item 11 has one total for both and is held
// against the column that adds them.
// clang-format off
constexpr std::array<Tie, 17> ties = {{
    {total<&S::strFldPage3_4, 8>("frmLodgePage3_4"),    item3<1>("txtMoney31(1)"),   "M045"},
    {total<&S::strFldPage3_4, 17>("frmLodgePage3_4"),   item3<21>("txtMoney32(1)"),  "M045"},
    {total<&S::strFldPage4_6, 6>("frmLodgePage4_6"),    item3<3>("txtMoney31(3)"),   "M046"},
    {total<&S::strFldPage4_6, 13>("frmLodgePage4_6"),   item3<23>("txtMoney32(3)"),  "M046"},
    {total<&S::strFldPage4_7, 4>("frmLodgePage4_7"),    item3<5>("txtMoney31(5)"),   "M047"},
    {total<&S::strFldPage4_7, 9>("frmLodgePage4_7"),    item3<25>("txtMoney32(5)"),  "M047"},
    {total<&S::strFldPage5_8, 23>("frmLodgePage5_8"),   item3<7>("txtMoney31(7)"),   "M048"},
    {total<&S::strFldPage5_8, 47>("frmLodgePage5_8"),   item3<27>("txtMoney32(7)"),  "M048"},
    {total<&S::strFldPage5_9, 5>("frmLodgePage5_9"),    item3<10>("txtMoney31(10)"), "M049"},
    {total<&S::strFldPage5_9, 11>("frmLodgePage5_9"),   item3<30>("txtMoney32(10)"), "M049"},
    {total<&S::strFldPage6_10, 11>("frmLodgePage6_10"), item3<12>("txtMoney31(12)"), "M082"},
    {total<&S::strFldPage6_10, 23>("frmLodgePage6_10"), item3<32>("txtMoney32(12)"), "M082"},
    {{attached<&HeadquartersRecord::BoxG1>, "frmIHQ", "txtG1"}, item3<14>("txtMoney31(14)"), "M505", TieFilers::WithAttachment},
    {{attached<&HeadquartersRecord::BoxG2>, "frmIHQ", "txtG2"}, item3<34>("txtMoney32(14)"), "M506", TieFilers::WithAttachment},
    {{entry<&S::strFldPage6_11, 68>, "frmLodgePage6_11", "txtMoney1(42)"}, item3<54>("txtMoney32(14)"), "M050", TieFilers::WithoutAttachment},
    {total<&S::strFldPage4_5, 16>("frmLodgePage4_5"),   item4<2>("txtMoney41(2)"),   "M051"},
    {total<&S::strFldPage4_5, 33>("frmLodgePage4_5"),   item4<11>("txtMoney42(2)"),  "M051"},
}};
// clang-format on

/// Item 5, the cost of manufacture, with item 4 line 3.
constexpr std::span<const Tie> tiesOfItem5 = std::span(ties).last(2);

/// Line 15 is typed in the column that the filer has, in column 2 by one who has both.
std::string_view controlOf(const Tie& tie, const ReturnState& state) {
    const bool isInBoth = tie.filers == TieFilers::WithoutAttachment;
    return isInBoth && state.intP1Box2 == 0 ? "txtMoney31(14)" : tie.line.control;
}

void walk(Program& program, std::span<const Tie> walked) {
    const ReturnState& state = program.state;
    const auto broken = std::ranges::find_if(
        walked, [&](const Tie& tie) { return appliesTo(tie, state) && differs(tie, state); });
    if (broken == walked.end()) {
        return;
    }
    program.notify(messageText(broken->message));
    program.state.intError = 1;
}

} // namespace

std::span<const Tie> reconciliationTies() { return ties; }

bool appliesTo(const Tie& tie, const ReturnState& state) {
    return tie.filers == TieFilers::All || (tie.filers == TieFilers::WithAttachment) == state.blnIHQPage;
}

double amountOf(const TieSide& side, const ReturnState& state) { return readNumber(side.figure(state)); }

bool differs(const Tie& tie, const ReturnState& state) {
    return amountOf(tie.schedule, state) != amountOf(tie.line, state);
}

void ReconcileItems(Program& program) { walk(program, ties); }

void ReconcileItem45(Program& program) { walk(program, tiesOfItem5); }

void collectReconciliation(const CheckContext& context, std::vector<Refusal>& refusals) {
    for (const Tie& tie : ties) {
        if (!appliesTo(tie, context.state) || !differs(tie, context.state)) {
            continue;
        }
        refusals.push_back({.code = std::string(tie.message),
            .text = messageText(tie.message),
            .form = std::string(tie.line.form),
            .control = std::string(controlOf(tie, context.state)),
            .sides = Sides{amountOf(tie.line, context.state), amountOf(tie.schedule, context.state)}});
    }
}

} // namespace lodge
