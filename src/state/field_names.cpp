#include "state/field_names.h"

#include "values/dates.h"
#include "values/money.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <memory>
#include <span>
#include <system_error>
#include <type_traits>
#include <utility>

namespace lodge {

namespace {

// --- The table of names ---

enum class Shape : std::uint8_t {
    Single,
    Field, // an element of a page array, written with [ ]
    Entry, // an element of any other array, written with ( )
};

using PlaceAt = StateValue::Place (*)(ReturnState&, std::size_t);

struct NameRow {
    std::string_view name;
    Shape shape;
    std::size_t count; // elements; 1 for a single value
    PlaceAt at;
};

template <typename T>
struct IsArray : std::false_type {};
template <typename T, std::size_t N>
struct IsArray<std::array<T, N>> : std::true_type {};
template <typename T>
struct IsList : std::false_type {};
template <typename T>
struct IsList<std::vector<T>> : std::true_type {};

// The row of the value that a path of members leads to: value<&ReturnState::modIHQ,
// &HeadquartersRecord::BoxA>.
template <auto... Path>
constexpr NameRow value(std::string_view name, Shape ofArray = Shape::Entry) {
    using Member = std::remove_reference_t<decltype((std::declval<ReturnState&>().*....*Path))>;
    if constexpr (IsArray<Member>::value) {
        return {name, ofArray, std::tuple_size_v<Member>,
            [](ReturnState& state, std::size_t index) -> StateValue::Place {
                return std::addressof((state.*....*Path)[index]);
            }};
    } else {
        return {name, Shape::Single, 1, [](ReturnState& state, std::size_t) -> StateValue::Place {
                    return std::addressof((state.*....*Path));
                }};
    }
}

template <auto Member>
constexpr NameRow page(std::string_view name) {
    return value<Member>(name, Shape::Field);
}

using S = ReturnState;
using Status = CompanyStatusRecord;
using Tax = TaxRecord;
using Green = GreenRecord;
using Stated = StatedResultRecord;
using Edit = IncomeEditRecord;
using Ihq = HeadquartersRecord;
using Memory = CheckMemoryRecord;
using Scratch = CheckScratchRecord;

// clang-format off
constexpr std::array returnRows{
    page<&S::strFldPage1>("strFldPage1"),
    page<&S::strFldPage2>("strFldPage2"),
    page<&S::strFldPage1_2>("strFldPage1_2"),
    page<&S::strFldPage3_3>("strFldPage3_3"),
    page<&S::strFldPage3_4>("strFldPage3_4"),
    page<&S::strFldPage4_5>("strFldPage4_5"),
    page<&S::strFldPage4_6>("strFldPage4_6"),
    page<&S::strFldPage4_7>("strFldPage4_7"),
    page<&S::strFldPage5_8>("strFldPage5_8"),
    page<&S::strFldPage5_9>("strFldPage5_9"),
    page<&S::strFldPage6_10>("strFldPage6_10"),
    page<&S::strFldPage6_11>("strFldPage6_11"),
    page<&S::strFldPage7_12>("strFldPage7_12"),
    page<&S::strFldPage8>("strFldPage8"),

    value<&S::strPrevYear>("strPrevYear"),
    value<&S::strItem11Start>("strItem11Start"),
    value<&S::strItem11End>("strItem11End"),
    value<&S::intItem11Type>("intItem11Type"),
    value<&S::intItem11Count>("intItem11Count"),
    value<&S::intItem11CountA>("intItem11CountA"),
    value<&S::intItem11CountB>("intItem11CountB"),
    value<&S::Item11ExemptProfit>("Item11ExemptProfit"),
    value<&S::Item11ExemptLoss>("Item11ExemptLoss"),
    value<&S::Item11Net>("Item11Net"),

    value<&S::strStartDDMMYY>("strStartDDMMYY"),
    value<&S::strFinishDDMMYY>("strFinishDDMMYY"),
    value<&S::strVersion>("strVersion"),
    value<&S::strTaxYear>("strTaxYear"),
    value<&S::strFilingType>("strFilingType"),
    value<&S::strAddNo>("strAddNo"),
    value<&S::strStoreType>("strStoreType"),
    value<&S::strFileName>("strFileName"),
    value<&S::strLocale>("strLocale"),
    value<&S::SheetIncome>("SheetIncome"),
    value<&S::Sheet71a>("Sheet71a"),
    value<&S::Sheet71c>("Sheet71c"),
    value<&S::SheetRate>("SheetRate"),
    value<&S::SheetTax>("SheetTax"),
    value<&S::IsRate17>("IsRate17"),
    value<&S::IsRate18>("IsRate18"),

    value<&S::intInvestment>("intInvestment"),
    value<&S::ChkInvestmentFlag1>("ChkInvestmentFlag1"),
    value<&S::intNewReturn>("intNewReturn"),
    value<&S::intPageCur>("intPageCur"),
    value<&S::intPagePrev>("intPagePrev"),
    value<&S::intError>("intError"),
    value<&S::blnNeedPage2>("blnNeedPage2"),
    value<&S::intCount>("intCount"),
    value<&S::blnChooseShown>("blnChooseShown"),
    value<&S::intStatusIndex>("intStatusIndex"),
    value<&S::blnStatus11Kept>("blnStatus11Kept"),
    value<&S::blnIHQPage>("blnIHQPage"),
    value<&S::blnMouseUp>("blnMouseUp"),
    value<&S::blnWebsiteAsked>("blnWebsiteAsked"),

    value<&S::strWebsite>("strWebsite"),
    value<&S::intP1Box1>("intP1Box1"),
    value<&S::intP1Box2>("intP1Box2"),
    value<&S::intCashRefund>("intCashRefund"),
    value<&S::intAuditStatus>("intAuditStatus"),
    value<&S::intP1Box5>("intP1Box5"),

    value<&S::BoxWarned>("BoxWarned"),
    value<&S::BoxProfit>("BoxProfit"),
    value<&S::BoxLoss>("BoxLoss"),
    value<&S::BoxAmount>("BoxAmount"),

    value<&S::DataCtrl_P1, &Status::StatusA>("DataCtrl_P1.StatusA"),
    value<&S::DataCtrl_P1, &Status::StatusB>("DataCtrl_P1.StatusB"),
    value<&S::DataCtrl_P1, &Status::RateList>("DataCtrl_P1.RateList"),
    value<&S::DataCtrl_P1, &Status::IndcBusCode>("DataCtrl_P1.IndcBusCode"),
    value<&S::DataCtrl_P1, &Status::BusIndex>("DataCtrl_P1.BusIndex"),
    value<&S::DataCtrl_P1, &Status::ChkStatus11>("DataCtrl_P1.ChkStatus11"),
    value<&S::DataCtrl_P1, &Status::ChkStatus14>("DataCtrl_P1.ChkStatus14"),
    value<&S::DataCtrl_P1, &Status::IndcBusType>("DataCtrl_P1.IndcBusType"),
    value<&S::DataCtrl_P1, &Status::StatusChanged>("DataCtrl_P1.StatusChanged"),
    value<&S::DataCtrl_P1, &Status::StatusBusy>("DataCtrl_P1.StatusBusy"),

    value<&S::DataCtrl_P2, &Tax::index_nRate>("DataCtrl_P2.index_nRate"),
    value<&S::DataCtrl_P2, &Tax::nRateCode>("DataCtrl_P2.nRateCode"),
    value<&S::DataCtrl_P2, &Tax::nRateLabel>("DataCtrl_P2.nRateLabel"),
    value<&S::DataCtrl_P2, &Tax::nRateNo>("DataCtrl_P2.nRateNo"),
    value<&S::DataCtrl_P2, &Tax::Select_2_1>("DataCtrl_P2.Select_2_1"),
    value<&S::DataCtrl_P2, &Tax::RateTag>("DataCtrl_P2.RateTag"),
    value<&S::DataCtrl_P2, &Tax::RateIndex1>("DataCtrl_P2.RateIndex1"),
    value<&S::DataCtrl_P2, &Tax::RateCodePrint>("DataCtrl_P2.RateCodePrint"),
    value<&S::DataCtrl_P2, &Tax::PayStatus>("DataCtrl_P2.PayStatus"),
    value<&S::DataCtrl_P2, &Tax::TaxValue>("DataCtrl_P2.TaxValue"),
    value<&S::DataCtrl_P2, &Tax::Line4Amount>("DataCtrl_P2.Line4Amount"),
    value<&S::DataCtrl_P2, &Tax::Line6Amount>("DataCtrl_P2.Line6Amount"),
    value<&S::DataCtrl_P2, &Tax::Line4Status>("DataCtrl_P2.Line4Status"),
    value<&S::DataCtrl_P2, &Tax::Line6Status>("DataCtrl_P2.Line6Status"),
    value<&S::DataCtrl_P2, &Tax::RateCaseText>("DataCtrl_P2.RateCaseText"),
    value<&S::DataCtrl_P2, &Tax::NewAtt1>("DataCtrl_P2.NewAtt1"),
    value<&S::DataCtrl_P2, &Tax::NewAtt2>("DataCtrl_P2.NewAtt2"),
    value<&S::DataCtrl_P2, &Tax::NewAtt3>("DataCtrl_P2.NewAtt3"),
    value<&S::DataCtrl_P2, &Tax::NewAtt4>("DataCtrl_P2.NewAtt4"),
    value<&S::DataCtrl_P2, &Tax::WorkIncome>("DataCtrl_P2.WorkIncome"),
    value<&S::DataCtrl_P2, &Tax::WorkTax>("DataCtrl_P2.WorkTax"),
    value<&S::DataCtrl_P2, &Tax::WorkIncomeSum>("DataCtrl_P2.WorkIncomeSum"),
    value<&S::DataCtrl_P2, &Tax::WorkTaxSum>("DataCtrl_P2.WorkTaxSum"),

    value<&S::modGreen, &Green::GreenIncome>("modGreen.GreenIncome"),
    value<&S::modGreen, &Green::GreenTax>("modGreen.GreenTax"),
    value<&S::modGreen, &Green::GreenIncomeSum>("modGreen.GreenIncomeSum"),
    value<&S::modGreen, &Green::GreenTaxSum>("modGreen.GreenTaxSum"),
    value<&S::modGreen, &Green::RateCodeShown>("modGreen.RateCodeShown"),

    value<&S::modNew3, &Stated::NewBox1>("modNew3.NewBox1"),
    value<&S::modNew3, &Stated::NewBox2>("modNew3.NewBox2"),
    value<&S::modNew3, &Stated::NewBoxAmount>("modNew3.NewBoxAmount"),

    value<&S::modEdit, &Edit::EditActive>("modEdit.EditActive"),
    value<&S::modEdit, &Edit::EditStatus>("modEdit.EditStatus"),
    value<&S::modEdit, &Edit::EditIncome>("modEdit.EditIncome"),
    value<&S::modEdit, &Edit::EditTax>("modEdit.EditTax"),

    value<&S::modIHQ, &Ihq::LicenceConfm>("modIHQ.LicenceConfm"),
    value<&S::modIHQ, &Ihq::LicenceStart>("modIHQ.LicenceStart"),
    value<&S::modIHQ, &Ihq::LicenceEnd>("modIHQ.LicenceEnd"),
    value<&S::modIHQ, &Ihq::BoxA>("modIHQ.BoxA"),
    value<&S::modIHQ, &Ihq::BoxB>("modIHQ.BoxB"),
    value<&S::modIHQ, &Ihq::BoxC>("modIHQ.BoxC"),
    value<&S::modIHQ, &Ihq::BoxASum>("modIHQ.BoxASum"),
    value<&S::modIHQ, &Ihq::BoxBSum>("modIHQ.BoxBSum"),
    value<&S::modIHQ, &Ihq::BoxCSum>("modIHQ.BoxCSum"),
    value<&S::modIHQ, &Ihq::BoxDateFrom>("modIHQ.BoxDateFrom"),
    value<&S::modIHQ, &Ihq::BoxDateTo>("modIHQ.BoxDateTo"),
    value<&S::modIHQ, &Ihq::BoxMoney>("modIHQ.BoxMoney"),
    value<&S::modIHQ, &Ihq::BoxG1>("modIHQ.BoxG1"),
    value<&S::modIHQ, &Ihq::BoxG2>("modIHQ.BoxG2"),
    value<&S::modIHQ, &Ihq::PeriodStart>("modIHQ.PeriodStart"),
    value<&S::modIHQ, &Ihq::PeriodEnd>("modIHQ.PeriodEnd"),

    value<&S::FucChk, &Memory::PendingMessage>("FucChk.PendingMessage"),
    value<&S::FucChk, &Memory::LastValidId>("FucChk.LastValidId"),
    value<&S::FucChk, &Memory::BusinessText>("FucChk.BusinessText"),
    value<&S::FucChk, &Memory::TmpSum8_15to25>("FucChk.TmpSum8_15to25"),

    value<&S::FucDate, &FucDate::PeriodStartDate>("FucDate.PeriodStartDate"),
    value<&S::FucDate, &FucDate::PeriodEndDate>("FucDate.PeriodEndDate"),
    value<&S::FucDate, &FucDate::DayBeforePeriodStart>("FucDate.DayBeforePeriodStart"),
    value<&S::FucDate, &FucDate::ParsedDate>("FucDate.ParsedDate"),
    value<&S::FucDate, &FucDate::EarliestStartDate>("FucDate.EarliestStartDate"),
    value<&S::FucDate, &FucDate::CarryYearLimit>("FucDate.CarryYearLimit"),

    value<&S::PageChk, &Scratch::CurrentLine>("PageChk.CurrentLine"),
    value<&S::PageChk, &Scratch::SilentCheck>("PageChk.SilentCheck"),
    value<&S::PageChk, &Scratch::Sum>("PageChk.Sum"),
};

// Found by name, but not listed: the lists that are the same for every return, and a second name.
constexpr std::array unlistedRows{
    value<&S::strTitleCode>("strTitleCode"),
    value<&S::strTitleName>("strTitleName"),
    value<&S::strOrgCode>("strOrgCode"),
    value<&S::strOrgName>("strOrgName"),
    value<&S::strIsicCode>("strIsicCode"),
    value<&S::strIsicName>("strIsicName"),
    value<&S::intIsicCount>("intIsicCount"),
    // Page 2 shows the worksheet's rate code as one of its own values.
    value<&S::modGreen, &Green::RateCodeShown>("DataCtrl_P2.RateCodeShown"),
};
// clang-format on

std::string nameOf(const NameRow& row, std::size_t index) {
    std::string name(row.name);
    switch (row.shape) {
    case Shape::Field: name += "[" + std::to_string(index) + "]"; break;
    case Shape::Entry: name += "(" + std::to_string(index) + ")"; break;
    case Shape::Single: break;
    }
    return name;
}

// --- Finding a name ---

template <typename Number>
std::optional<Number> wholeNumber(std::string_view text) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

struct SplitName {
    std::string_view base;
    std::optional<std::size_t> index;
};

// "strFldPage2[44]" into its base and its index; nothing when what looks like an index is none.
std::optional<SplitName> splitName(std::string_view name) {
    const std::size_t open = name.find_first_of("[(");
    if (open == std::string_view::npos) return SplitName{name, std::nullopt};
    const char close = name[open] == '[' ? ']' : ')';
    if (name.back() != close) return std::nullopt;
    const auto index = wholeNumber<std::size_t>(name.substr(open + 1, name.size() - open - 2));
    if (!index) return std::nullopt;
    return SplitName{name.substr(0, open), index};
}

std::string_view memberName(std::string_view name) {
    const std::size_t dot = name.find('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

const NameRow* findRow(std::string_view base) {
    for (const std::span<const NameRow> rows :
        {std::span<const NameRow>(returnRows), std::span<const NameRow>(unlistedRows)}) {
        const auto row = std::ranges::find(rows, base, &NameRow::name);
        if (row != rows.end()) return std::to_address(row);
    }
    // A member without its record's name, if only one record has it.
    const NameRow* found = nullptr;
    for (const NameRow& row : returnRows) {
        if (memberName(row.name) != base) continue;
        if (found != nullptr) return nullptr;
        found = &row;
    }
    return found;
}

// An element of a list, which has as many as stand in it now; nothing behind its end and of a value that is
// none.
std::optional<StateValue> elementOf(const StateValue::Place& list, std::size_t index) {
    return std::visit(
        [index](auto* value) -> std::optional<StateValue> {
            if constexpr (IsList<std::remove_pointer_t<decltype(value)>>::value) {
                if (index < value->size()) return StateValue(std::addressof((*value)[index]));
            }
            return std::nullopt;
        },
        list);
}

// --- Values as texts ---

std::string textOf(const std::string& value) { return value; }
std::string textOf(std::int16_t value) { return std::to_string(value); }
std::string textOf(int value) { return std::to_string(value); }
std::string textOf(bool value) { return value ? "True" : "False"; }
std::string textOf(double value) { return plainNumberText(value); }
std::string textOf(const Date& value) { return isoText(value); }

template <typename T>
std::string textOf(const std::optional<T>& value) {
    return value ? textOf(*value) : std::string();
}

template <typename T>
std::string textOf(const std::vector<T>& list) {
    std::string joined;
    for (std::size_t k = 0; k < list.size(); ++k) {
        if (k > 0) joined += ',';
        joined += textOf(list[k]);
    }
    return joined;
}

bool parseInto(std::string& value, std::string_view text) {
    value = text;
    return true;
}

template <typename Number>
bool parseNumberInto(Number& value, std::string_view text) {
    const auto number = wholeNumber<Number>(text);
    if (number) value = *number;
    return number.has_value();
}

bool parseInto(std::int16_t& value, std::string_view text) { return parseNumberInto(value, text); }
bool parseInto(int& value, std::string_view text) { return parseNumberInto(value, text); }

bool parseInto(bool& value, std::string_view text) {
    if (text != "True" && text != "False") return false;
    value = text == "True";
    return true;
}

bool parseInto(double& value, std::string_view text) {
    if (!isNumericText(text) || text.find_first_of(", ") != std::string_view::npos) return false;
    value = readNumber(text);
    return true;
}

bool parseInto(Date& value, std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
    const auto year = wholeNumber<int>(text.substr(0, 4));
    const auto month = wholeNumber<unsigned>(text.substr(5, 2));
    const auto day = wholeNumber<unsigned>(text.substr(8, 2));
    if (!year || !month || !day) return false;
    const Date date{std::chrono::year(*year), std::chrono::month(*month), std::chrono::day(*day)};
    if (!date.ok()) return false;
    value = date;
    return true;
}

template <typename T>
bool parseInto(std::optional<T>& value, std::string_view text) {
    if (text.empty()) {
        value.reset();
        return true;
    }
    T parsed{};
    if (!parseInto(parsed, text)) return false;
    value = parsed;
    return true;
}

template <typename T>
bool parseInto(std::vector<T>& list, std::string_view text) {
    std::vector<T> parsed;
    for (bool more = !text.empty(); more;) {
        const std::size_t comma = text.find(',');
        T element{};
        if (!parseInto(element, text.substr(0, comma))) return false;
        parsed.push_back(std::move(element));
        more = comma != std::string_view::npos;
        if (more) text.remove_prefix(comma + 1);
    }
    list = std::move(parsed);
    return true;
}

} // namespace

std::string StateValue::get() const {
    return std::visit([](const auto* value) { return textOf(*value); }, place);
}

bool StateValue::set(std::string_view text) {
    return std::visit([text](auto* value) { return parseInto(*value, text); }, place);
}

std::optional<StateValue> findStateValue(ReturnState& state, std::string_view name) {
    const auto split = splitName(name);
    if (!split) return std::nullopt;
    const NameRow* const row = findRow(split->base);
    if (row == nullptr) return std::nullopt;
    if (row->shape == Shape::Single)
        return split->index ? elementOf(row->at(state, 0), *split->index) : StateValue(row->at(state, 0));
    if (!split->index) return std::nullopt;
    const std::size_t index = *split->index;
    if (index >= row->count) return std::nullopt;
    return StateValue(row->at(state, index));
}

void forEachStateValue(
    ReturnState& state, const std::function<void(const std::string& name, StateValue value)>& visit) {
    for (const NameRow& row : returnRows) {
        for (std::size_t index = 0; index < row.count; ++index) {
            visit(nameOf(row, index), StateValue(row.at(state, index)));
        }
    }
}

std::vector<std::string> stateValueNames() {
    std::vector<std::string> names;
    for (const NameRow& row : returnRows) {
        for (std::size_t index = 0; index < row.count; ++index)
            names.push_back(nameOf(row, index));
    }
    return names;
}

} // namespace lodge
