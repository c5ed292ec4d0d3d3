// The door to whatever puts a return on paper: a template is named, its formulas are set, the job is run.
//
// A formula is the text of one assignment, "lblFld10 =  ' 01 ' ": the template's name of a field, and its
// value in quotes. What the forms of an assignment are is told in print/field_map.h.
#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace lodge {

/// What the number of a failed job means to the person who is told of it.
namespace report_error {
/// The print dialog was cancelled. The one number that ends a run without a message.
inline constexpr int cancelled = 32755;
inline constexpr int noEngine = 1;         ///< Nothing is there that could print.
inline constexpr int templateMissing = 2;  ///< The template cannot be read or is none.
inline constexpr int fieldMissing = 3;     ///< The template has no field of a formula's name.
inline constexpr int valueBroken = 4;      ///< A value holds an apostrophe, which ends its quotes too early.
inline constexpr int targetUnwritable = 5; ///< What was printed cannot be put where it should go.
inline constexpr int fontMissing = 6;      ///< The family of the form is not installed.
inline constexpr int programFault = 9;     ///< Anything that is not the machine's or the return's fault.
} // namespace report_error

/// Why a job was not done: a number of report_error, and the cause as the person reads it, in Thai.
class ReportError : public std::runtime_error {
  public:
    ReportError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    [[nodiscard]] int number() const { return number_; }

  private:
    int number_;
};

/// Each job goes through the four members in this order. A job that has failed leaves nothing behind: the
/// next file name begins anew.
class ReportEngine {
  public:
    virtual ~ReportEngine() = default;

    /// Begins a job with the template of that path. Formulas of an earlier job are gone.
    virtual void setReportFileName(const std::filesystem::path& path) = 0;
    /// Sets the formula of a slot; a later one of the same slot replaces it. The number of a slot means
    /// nothing to the template, and not every number need be used.
    virtual void setFormula(std::size_t slot, const std::string& text) = 0;
    /// 0 before every run.
    virtual void setOutputOption(long option) = 0;
    /// 1 runs the job and returns once it has been taken. Throws ReportError when it cannot be done.
    virtual void setAction(int action) = 0;
};

} // namespace lodge
