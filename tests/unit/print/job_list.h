// A report engine that keeps the jobs that it was given, and fails where a test wants it to.
#pragma once

#include "program/report_engine.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lodge {

struct Job {
    std::filesystem::path file;
    std::map<std::size_t, std::string> formulas;
    /// Every formula as it was sent, the replaced ones too.
    std::vector<std::string> sent;
    std::optional<long> option = std::nullopt;
};

class JobList : public ReportEngine {
  public:
    std::vector<Job> done;
    /// The job of that number, from 1, fails with this.
    int failingJob = 0;
    ReportError failure{20507, "no such template"};

    void setReportFileName(const std::filesystem::path& path) override {
        job_ = {};
        job_.file = path;
    }
    void setFormula(std::size_t slot, const std::string& text) override {
        job_.formulas.insert_or_assign(slot, text);
        job_.sent.push_back(text);
    }
    void setOutputOption(long option) override { job_.option = option; }
    void setAction(int action) override {
        actions.push_back(action);
        if (static_cast<int>(actions.size()) == failingJob) {
            throw failure;
        }
        done.push_back(job_);
    }

    std::vector<int> actions;

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const Job& job : done) {
            names.push_back(job.file.filename().string());
        }
        return names;
    }

  private:
    Job job_;
};

} // namespace lodge
