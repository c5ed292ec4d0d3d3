#include "session/recording_engine.h"

#include "file/file_operations.h"
#include "file/safe_writer.h"

#include <fmt/format.h>

namespace lodge {

namespace {

constexpr int run = 1;

void requireStored(const SafeStoreResult& result) {
    if (!result.ok()) {
        throw ReportError(report_error::targetUnwritable,
            fmt::format("เขียนไฟล์ {} ไม่ได้ {}", result.path, failureCause(result.error)));
    }
}

} // namespace

void RecordingEngine::setReportFileName(const std::filesystem::path& path) {
    templateName_ = path.stem().string();
    formulas_.clear();
}

void RecordingEngine::setFormula(std::size_t slot, const std::string& text) {
    formulas_.insert_or_assign(slot, text);
}

void RecordingEngine::setAction(int action) {
    if (action == run && !host_.reportFolder().empty()) {
        writeJob(host_.reportFolder());
    }
}

void RecordingEngine::writeJob(const std::filesystem::path& folder) {
    std::string lines;
    for (const auto& [slot, formula] : formulas_) {
        lines += formula + '\n';
    }
    SystemFiles files;
    if (!host_.folderExists(folder)) {
        requireStored(makeFolderSafely(files, folder.string()));
    }
    const int job = jobs_[folder] + 1;
    const std::string name = fmt::format("{:02}-{}.formulas", job, templateName_);
    requireStored(storeSafely(files, (folder / name).string(), lines));
    jobs_[folder] = job;
}

} // namespace lodge
