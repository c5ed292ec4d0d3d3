#include "program/program_folder.h"

#include <cstdlib>
#include <system_error>

namespace lodge {

namespace fs = std::filesystem;

namespace {

/// Where the desktops keep the data of a user's programs: XDG_DATA_HOME, which counts only as a whole path,
/// or its usual place.
fs::path folderOfUserData() {
    const char* const chosen = std::getenv("XDG_DATA_HOME");
    if (chosen != nullptr && fs::path(chosen).is_absolute()) return chosen;
    const char* const home = std::getenv("HOME");
    return home != nullptr && fs::path(home).is_absolute() ? fs::path(home) / ".local" / "share" : fs::path();
}

/// False where the folder or a file of it is out of reach afterwards. Another program of the same user may be
/// doing the same at this moment.
bool linkInto(const fs::path& folder, const fs::path& model) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    fs::directory_iterator entry(model, failed);
    for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
        const fs::path own = folder / entry->path().filename();
        std::error_code unlike; // told by what stands there in the end
        if (entry->is_directory(unlike)) {
            if (!linkInto(own, entry->path())) return false;
            continue;
        }
        if (fs::exists(own, unlike)) continue;
        fs::remove(own, unlike); // a link to where the program stood before
        fs::create_symlink(entry->path(), own, unlike);
        if (!fs::exists(own, unlike)) return false;
    }
    return !failed;
}

} // namespace

fs::path folderOfExecutable() {
    std::error_code failed;
    const fs::path executable = fs::read_symlink("/proc/self/exe", failed);
    return failed ? fs::current_path() : executable.parent_path();
}

fs::path programFolder() { return programFolderOf(folderOfExecutable(), folderOfUserData()); }

fs::path programFolderOf(const fs::path& installation, const fs::path& userData) {
    std::error_code failed;
    const fs::path model = installation / modelFolderName;
    if (!fs::is_directory(model, failed)) return installation;
    const fs::path own = userData / "lodge77";
    return !userData.empty() && linkInto(own, model) ? own : model;
}

} // namespace lodge
