#include "session/value_services.h"

#include "file/line_codec.h"
#include "pages/ihq/ihq_rules.h"
#include "pages/loss/item11_table.h"
#include "pages/tax/green_sheet.h"
#include "pages/tax/rate_table.h"
#include "session/fault.h"
#include "session/nearest_name.h"
#include "session/numbers.h"
#include "values/dates.h"
#include "values/identification.h"
#include "values/messages.h"
#include "values/money.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace lodge {

namespace {

std::string trueOrFalse(bool value) { return value ? "True" : "False"; }

template <typename T>
T wholeArgument(const std::string& argument) {
    const auto number = wholeNumber<T>(argument);
    if (!number) {
        throw ScriptFault(inQuotes(argument) + " is not a whole number that the service takes");
    }
    return *number;
}

/// A real, with or without separators; an empty text is a value that is missing.
std::optional<double> realArgument(const std::string& argument) {
    if (argument.empty()) {
        return std::nullopt;
    }
    if (!isNumericText(argument)) {
        throw ScriptFault(inQuotes(argument) + " is not a number");
    }
    return readFigure(argument);
}

struct Service {
    std::string_view name;
    /// The arguments as the hint for a wrong number of them writes them, one word each.
    std::string_view arguments;
    std::string (*call)(Program& program, const Words& given);
};

using Given = const Words&;

// clang-format off
constexpr std::array services = {
    Service{"ChkMoney", "TEXT", [](Program& program, Given given) { return ChkMoney(given[0], program); }},
    Service{"xx_Val", "TEXT", [](Program&, Given given) { return xx_Val(given[0]); }},
    Service{"MoneyTextToDouble", "TEXT", [](Program&, Given given) {
        return plainNumberText(MoneyTextToDouble(given[0])); }},
    Service{"DoubleToMoneyText", "NUMBER", [](Program&, Given given) {
        return DoubleToMoneyText(realArgument(given[0])); }},
    Service{"DigitFilter", "TEXT LENGTH WANTED", [](Program&, Given given) {
        return DigitFilter(given[0], wholeArgument<std::size_t>(given[1]), wholeArgument<std::size_t>(given[2])); }},
    Service{"TruncValue", "NUMBER", [](Program&, Given given) { return TruncValue(given[0]); }},
    Service{"ModOf", "NUMBER BASE", [](Program&, Given given) {
        return std::to_string(ModOf(given[0], given[1])); }},
    Service{"ChkDate", "DATE", [](Program&, Given given) { return ChkDate(given[0]); }},
    Service{"DateToYMD", "DATE", [](Program&, Given given) { return DateToYMD(given[0]); }},
    Service{"DateFromText", "DATE", [](Program&, Given given) {
        return std::to_string(DateFromText(given[0])); }},
    Service{"MonthName", "FORM MONTH", [](Program&, Given given) {
        return std::string(MonthName(given[0], wholeArgument<int>(given[1]))); }},
    Service{"ChkNid13", "TEXT", [](Program& program, Given given) {
        return trueOrFalse(ChkNid13(given[0], program.state.FucChk.LastValidId, program)); }},
    Service{"ChkPerson13", "TEXT", [](Program& program, Given given) { return ChkPerson13(given[0], program); }},
    Service{"ChkTax13", "TEXT", [](Program& program, Given given) { return ChkTax13(given[0], program); }},
    Service{"ChkTax10", "TEXT", [](Program& program, Given given) { return ChkTax10(given[0], program); }},
    Service{"HasPrefix", "TEXT LIST", [](Program&, Given given) {
        return trueOrFalse(HasPrefix(given[0], given[1])); }},
    Service{"GetMessage", "CODE", [](Program&, Given given) { return std::string(GetMessage(given[0])); }},
    Service{"EnCodeLine", "TEXT", [](Program&, Given given) { return EnCodeLine(given[0]); }},
    Service{"DeCodeLine", "TEXT", [](Program&, Given given) { return DeCodeLine(given[0]); }},
    Service{"CalcTaxByRate", "CODE AMOUNT", [](Program&, Given given) {
        return plainNumberText(CalcTaxByRate(given[0], readFigure(given[1]))); }},
    Service{"FormatMoney", "TEXT", [](Program&, Given given) { return FormatMoney(given[0]); }},
    Service{"IsAmountText", "TEXT", [](Program&, Given given) { return trueOrFalse(IsAmountText(given[0])); }},
    Service{"FormatBox", "TEXT", [](Program&, Given given) { return FormatBox(given[0]); }},
    Service{"ChkBoxNum", "TEXT", [](Program& program, Given given) {
        return trueOrFalse(ChkBoxNum(given[0], program)); }},
    Service{"txt2CDbl", "TEXT", [](Program&, Given given) { return plainNumberText(txt2CDbl(given[0])); }},
};
// clang-format on

std::size_t argumentCount(const Service& service) {
    return static_cast<std::size_t>(std::ranges::count(service.arguments, ' ')) + 1;
}

} // namespace

std::string callValueService(Program& program, std::string_view name, const Words& arguments) {
    const auto* const service = std::ranges::find(services, name, &Service::name);
    if (service == services.end()) {
        throw ScriptFault(
            "there is no value service " + inQuotes(name) + nearestNameHint(name, namesOf(services)));
    }
    if (arguments.size() != argumentCount(*service)) {
        throw ScriptFault("the value service takes: " + std::string(service->name) + ' '
                          + std::string(service->arguments) + "; it was given "
                          + std::to_string(arguments.size()));
    }
    return service->call(program, arguments);
}

} // namespace lodge
