// The map between the return and the ten report templates: every field that a template must have, the value
// that it gets and how that value is written. The rows stand in field_map.cpp, one table a template, in the
// order of the form; a template that lacks one of these names cannot be printed.
#pragma once

#include "file/layout.h"
#include "state/return_state.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// What an element of the return becomes on paper. A kind that shows an element shows nothing where it is
/// empty.
enum class FieldKind : std::uint8_t {
    Text,   ///< The element as it stands.
    Money,  ///< "#,##0.00", a negative one in brackets.
    Part,   ///< Money out of a list of three, "|a|b|c|": the part of the field's column.
    Check,  ///< "1" for the element that ticks the box, otherwise "0": never empty.
    Tin,    ///< The ten digits of an old tax number as 1-4-4-1.
    Date,   ///< Day/month/year.
    Day,    ///< The first two digits of a date,
    Month,  ///< the full Thai name of its month,
    Year,   ///< and its four-digit year.
    Period, ///< A date as it stands; "00/00/0000" is none.
    Code    ///< A small number or the key of a choice as it stands, without blanks around it.
};

/// The quotes of a value: what stands between the name of the field and the value, and what behind the value.
struct Quotes {
    std::string_view before;
    std::string_view after;
};

/// Those of a check mark.
inline constexpr Quotes checkQuotes = {" = '", "' "};

/// A value that is more than an element of the return; nothing leaves the field blank.
using ComputedValue = std::optional<std::string> (*)(const ReturnState& state);

/// A field of a template, or a run of alike fields.
struct FieldRow {
    /// "#" stands for a number of the run, "##" for one of two digits, "@" for each of the columns A, B and
    /// C.
    std::string_view names;
    std::uint8_t first = 0;
    std::uint8_t last = 0;
    FieldKind kind = FieldKind::Text;
    Source source = {};
    /// The entry of the first number. Each further number is one more, each further column `columnStep`.
    std::uint8_t entry = 0;
    std::uint8_t columnStep = 0;
    /// The element that ticks a Check.
    std::string_view tick = "1";
    /// Stands in for the source.
    ComputedValue computed = nullptr;
    /// Whether the field is sent at all; nullptr for always.
    bool (*isSent)(const ReturnState& state) = nullptr;
    /// What stands behind the name while the field has no value.
    std::string_view blank = " = ' ' ";
    /// Where a field is not written as its kind is.
    std::optional<Quotes> quotes = std::nullopt;
};

struct ReportTemplate {
    /// What a print range counts.
    int page = 0;
    /// The name of the file beside the program, without ".rpt".
    std::string_view name;
    std::span<const FieldRow> rows;
    /// Brings the return up to date before it is read; nullptr where nothing needs it.
    void (*prepare)(ReturnState& state) = nullptr;
};

/// One field of a template. The slot is its place in the order of the template, from 0.
struct ReportField {
    std::string name;
    std::size_t slot = 0;
    const FieldRow* row = nullptr;
    /// The entry of the row's source, and the column, 0 to 2, of a field that has one.
    std::size_t entry = 0;
    std::size_t column = 0;
};

/// The ten templates, in the order of their pages.
[[nodiscard]] std::span<const ReportTemplate, 10> reportTemplates();

/// Every field of a template in the order of its slots, those included that a return may leave out.
[[nodiscard]] std::vector<ReportField> fieldsOf(const ReportTemplate& report);

/// What the return gives the field; nothing when the field stays blank.
[[nodiscard]] std::optional<std::string> valueOf(const ReportField& field, ReturnState& state);

/// The assignment that leaves the field blank: "lblFld00 = ' ' ".
[[nodiscard]] std::string blankAssignment(const ReportField& field);

/// The assignment of a value, in the form of the field's kind: "lblFld10 =  ' 01 ' ". Throws ReportError,
/// naming the field, for a value with an apostrophe: it would end the quotes before the value does.
[[nodiscard]] std::string valueAssignment(const ReportField& field, std::string_view value);

} // namespace lodge
