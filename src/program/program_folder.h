// Where the program stands, and where its own files are: what it reads (the templates of the print, the
// business codes) and what it writes (the automatic stores).
//
// The two are one folder wherever the program was unpacked or built. Where it is installed for all users of a
// machine, nobody may write beside it: its files stand in "program-folder" there as a model, and each user
// works in a folder of their own that the program makes after the model.
#pragma once

#include <filesystem>

namespace lodge {

inline constexpr const char* modelFolderName = "program-folder";

/// The folder of the running executable.
[[nodiscard]] std::filesystem::path folderOfExecutable();

/// The program's folder of this process and this user; makes what is missing in it.
[[nodiscard]] std::filesystem::path programFolder();

/// The program's folder of the executable in `installation`, for a user whose programs keep their data in
/// `userData` (empty: nowhere): `installation` itself or, where a model stands in it, the user's folder
/// "lodge77". What that lacks is linked to the model, so that an update of the program reaches it; a file
/// that the user has put there stays. Where it cannot be made it is the model itself: what is read is there.
[[nodiscard]] std::filesystem::path programFolderOf(
    const std::filesystem::path& installation, const std::filesystem::path& userData);

} // namespace lodge
