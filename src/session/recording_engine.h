// The report engine of a session: it writes down what a template would have been given, a file a job.
#pragma once

#include "program/report_engine.h"
#include "session/session_host.h"

#include <filesystem>
#include <map>
#include <string>

namespace lodge {

/// A job becomes "NN-TEMPLATE.formulas" in the report folder of the session: one formula a line as it was
/// sent, in the order of the slots, the last of a slot alone. NN counts the jobs of a folder from 01. Without
/// a report folder the jobs go nowhere; a folder that is missing is made, the folder above it is not.
class RecordingEngine : public ReportEngine {
  public:
    explicit RecordingEngine(const SessionHost& host) : host_(host) {}

    void setReportFileName(const std::filesystem::path& path) override;
    void setFormula(std::size_t slot, const std::string& text) override;
    void setOutputOption(long /*option*/) override {}
    void setAction(int action) override;

  private:
    void writeJob(const std::filesystem::path& folder);

    const SessionHost& host_;
    std::string templateName_;
    std::map<std::size_t, std::string> formulas_;
    std::map<std::filesystem::path, int> jobs_;
};

} // namespace lodge
