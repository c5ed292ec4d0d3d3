// The zip archives that a return and the business code list come in: ordinary archives without a password.
// Two classes, one that packs files and one that unpacks them; both tell the text of their last failure
// instead of throwing. What they pack and unpack goes through memory (archive.h) and reaches the disk by
// safe_writer.h.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// A fault of the caller that a wrapper refuses.
struct ZipRefusal {
    std::uint32_t number;
    std::string_view source;
    std::string_view text;
};

inline constexpr ZipRefusal alreadyListed{0x800407D1, "CGZip::AddFile", "File is already in Zip List"};
inline constexpr ZipRefusal notListed{0x800407D2, "CGZip::RemoveFile", "File is not in Zip List"};

/// Packs files into an archive. Members bear their file's name without its folder.
class CGZipFiles {
  public:
    CGZipFiles();

    std::string ZipFileName;
    std::string RootDirectory = "\\";
    bool RecurseFolders = false;     ///< Kept for callers; folders are not packed.
    bool IncludeSystemFiles = false; ///< Kept for callers; a listed file is packed whatever it is.
    bool UpdatingZip = false;        ///< Kept for callers; an archive of the name is replaced.
    bool Encrypted = false;          ///< Kept for callers; archives have no password.

    /// The time that members bear, as a clock on the wall shows it: the same archive on every machine.
    std::chrono::local_seconds MemberTime{std::chrono::local_days{std::chrono::year{1980} / 1 / 1}};

    /// Entries in the list. The placeholder that a new list begins with counts; it names no file.
    [[nodiscard]] std::size_t ZipFileCount() const { return names.size(); }

    /// Lists a file by its path.
    [[nodiscard]] std::optional<ZipRefusal> AddFile(const std::string& name);
    [[nodiscard]] std::optional<ZipRefusal> RemoveFile(const std::string& name);

    /// Writes the archive of all listed files. 0 on success; otherwise no archive is made and GetLastMessage
    /// tells why. At most 100 entries fit, the placeholder included.
    [[nodiscard]] int MakeZipFile();

    [[nodiscard]] const std::string& GetLastMessage() const { return lastMessage; }

  private:
    std::vector<std::string> names;
    std::string lastMessage;
};

/// Unpacks an archive into a folder.
class CGUnzipFiles {
  public:
    std::string ZipFileName;
    std::string ExtractDir; ///< Empty: the current folder.
    std::size_t MemberCount =
        1; ///< How many files the archive must hold; the list of business codes has two.
    bool OverWriteFiles = false; ///< Replace a file that is there already; otherwise it stops the unpacking.
    bool TestZip = false;        ///< Read every member to its end and write nothing.
    bool SpaceToUnderScore = false; ///< Write "_" for a blank in a member's name.

    // Kept for callers; they change nothing here.
    bool ExtractNewer = false;
    bool ExtractOnlyNewer = false;
    bool PromptOverwrite = false;
    int MessageLevel = 2;
    bool WriteToStdOut = false;
    bool ExtractList = false;
    bool DisplayComment = false;
    bool ConvertCRtoCRLF = false;
    bool Verbose = false;
    bool CaseSensitive = false;
    bool Privilege = false;
    bool HonorDirectories = false; ///< A member's name never makes a folder.

    /// Unpacks all members under their names without folders. An argument that is not empty replaces the
    /// property. 0 on success; otherwise GetLastMessage tells why in Thai. An archive with anything wrong in
    /// it leaves no file behind.
    [[nodiscard]] int Unzip(const std::string& zipName = {}, const std::string& extractDir = {});

    [[nodiscard]] const std::string& GetLastMessage() const { return lastMessage; }

    /// The files that the last Unzip wrote, in the order of the archive.
    [[nodiscard]] const std::vector<std::string>& writtenFiles() const { return written; }

  private:
    std::string lastMessage;
    std::vector<std::string> written;
};

} // namespace lodge
