#include "paper/formula.h"

#include "program/report_engine.h"
#include "values/text.h"

namespace lodge {

Assignment readFormula(std::string_view formula) {
    const std::size_t equals = formula.find('=');
    const std::string field(trimBlanks(formula.substr(0, equals)));
    if (equals == std::string_view::npos || field.empty())
        throw ReportError(report_error::programFault, "สูตรไม่มีชื่อช่อง: " + std::string(formula));

    const std::string_view quoted = trimBlanks(formula.substr(equals + 1));
    if (quoted.size() < 2 || quoted.front() != '\'' || quoted.back() != '\'')
        throw ReportError(report_error::programFault, "สูตรของช่อง " + field + " ไม่มีข้อความในเครื่องหมาย '");
    const std::string_view value = quoted.substr(1, quoted.size() - 2);
    if (value.find('\'') != std::string_view::npos)
        throw ReportError(report_error::valueBroken, "ค่าของช่อง " + field + " มีเครื่องหมาย '");
    return {field, std::string(trimBlanks(value))};
}

} // namespace lodge
