#include "print/field_map.h"
#include "program/report_engine.h"
#include "values/dates.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace lodge {

namespace {

// --- Names ---

constexpr char numberMark = '#';
constexpr char columnMark = '@';
constexpr std::size_t columnCount = 3;

std::string numbered(std::string_view names, unsigned number) {
    const std::size_t mark = names.find(numberMark);
    if (mark == std::string_view::npos) {
        return std::string(names);
    }
    const std::size_t end = names.find_last_of(numberMark) + 1;
    std::string digits = std::to_string(number);
    digits.insert(0, std::max(end - mark, digits.size()) - digits.size(), '0');
    return std::string(names.substr(0, mark)) + digits + std::string(names.substr(end));
}

std::string inColumn(std::string name, std::size_t column) {
    std::replace(name.begin(), name.end(), columnMark, static_cast<char>('A' + column));
    return name;
}

void addFields(std::vector<ReportField>& fields, const FieldRow& row) {
    const std::size_t columns = row.names.find(columnMark) == std::string_view::npos ? 1 : columnCount;
    for (unsigned number = row.first; number <= row.last; ++number) {
        for (std::size_t column = 0; column < columns; ++column) {
            fields.push_back({.name = inColumn(numbered(row.names, number), column),
                .slot = fields.size(),
                .row = &row,
                .entry = row.entry + (number - row.first) + column * row.columnStep,
                .column = column});
        }
    }
}

// --- Values ---

using Value = std::optional<std::string>;

Value unlessEmpty(std::string_view text) { return text.empty() ? std::nullopt : Value(text); }

/// The part of a column out of "|a|b|c|"; empty where the element has no such part.
std::string_view partOf(std::string_view element, std::size_t column) {
    const std::vector<std::string_view> pieces = splitBar(element);
    const std::size_t place = column + 1; // nothing stands before the first bar
    return place < pieces.size() ? pieces[place] : std::string_view();
}

/// An old tax number: its first character, the next four, four more and the last.
std::string tinText(std::string_view digits) {
    std::string text;
    for (const std::string_view group :
        {textLeft(digits, 1), textMid(digits, 2, 4), textMid(digits, 6, 4), textRight(digits, 1)}) {
        text += text.empty() ? "" : "-";
        text += group;
    }
    return text;
}

/// The eight digits of a date text in either form; empty for one that is no date.
std::string digitsOfDate(std::string_view text) {
    constexpr std::size_t length = 8;
    std::string digits = dateDigits(text);
    const bool isDate = digits.size() == length && digits.find_first_not_of('0') != std::string::npos;
    return isDate ? std::move(digits) : std::string();
}

Value datePart(FieldKind kind, std::string_view text) {
    const std::string digits = digitsOfDate(text);
    if (digits.empty()) {
        return std::nullopt;
    }
    const std::string day = digits.substr(0, 2);
    const std::string month = digits.substr(2, 2);
    const std::string year = digits.substr(4);
    switch (kind) {
    case FieldKind::Day: return day;
    case FieldKind::Month: return unlessEmpty(MonthName("2", std::stoi(month)));
    case FieldKind::Year: return year;
    default: return day + '/' + month + '/' + year;
    }
}

std::string elementOf(const ReportField& field, ReturnState& state) {
    const Source& source = field.row->source;
    return source.number != nullptr ? std::to_string(source.number(state, field.entry))
                                    : source.text(state, field.entry);
}

Value shownElement(const ReportField& field, const std::string& element) {
    switch (field.row->kind) {
    case FieldKind::Text:
    case FieldKind::Code: return element;
    case FieldKind::Money: return formatBracketText(element);
    case FieldKind::Part: return unlessEmpty(formatBracketText(partOf(element, field.column)));
    case FieldKind::Tin: return tinText(element);
    case FieldKind::Period: return digitsOfDate(element).empty() ? std::nullopt : Value(element);
    default: return datePart(field.row->kind, element);
    }
}

// --- Assignments ---

constexpr Quotes textQuotes = {" =  ' ", " ' "};
constexpr Quotes codeQuotes = {" =  '", "' "};

Quotes quotesOf(const FieldRow& row) {
    if (row.quotes) {
        return *row.quotes;
    }
    switch (row.kind) {
    case FieldKind::Check: return checkQuotes;
    case FieldKind::Code: return codeQuotes;
    default: return textQuotes;
    }
}

} // namespace

std::vector<ReportField> fieldsOf(const ReportTemplate& report) {
    std::vector<ReportField> fields;
    for (const FieldRow& row : report.rows) {
        addFields(fields, row);
    }
    return fields;
}

std::optional<std::string> valueOf(const ReportField& field, ReturnState& state) {
    const FieldRow& row = *field.row;
    if (row.computed != nullptr) {
        return row.computed(state);
    }
    const std::string element = elementOf(field, state);
    if (row.kind == FieldKind::Check) {
        return element == row.tick ? "1" : "0";
    }
    return element.empty() ? std::nullopt : shownElement(field, element);
}

std::string blankAssignment(const ReportField& field) { return field.name + std::string(field.row->blank); }

std::string valueAssignment(const ReportField& field, std::string_view value) {
    if (value.find('\'') != std::string_view::npos) {
        throw ReportError(
            report_error::valueBroken, "ค่าของช่อง " + field.name + " มีเครื่องหมาย ' จึงส่งไปยังแบบพิมพ์ไม่ได้");
    }
    const Quotes quotes = quotesOf(*field.row);
    return field.name + std::string(quotes.before) + std::string(value) + std::string(quotes.after);
}

} // namespace lodge
