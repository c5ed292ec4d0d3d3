// The one door to the outside: boxes, dialogs, folders, the clock, the environment, the program's folder.
//
// The desktop implements it with its toolkit, a session script with queued answers. Nothing else in the
// program asks the machine anything but through here and through the file operations of file/.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace lodge {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// The title of a box for which no rule gives another.
inline constexpr const char* defaultBoxTitle = "ก.ข.ค.77";

/// A message box (OK alone) or a question (two buttons). The text stands as it is, its line breaks carriage
/// returns or line feeds.
struct Box {
    std::string text;
    Buttons buttons = Buttons::Ok;
    /// What Enter answers; the first button unless a rule says otherwise.
    Answer defaultAnswer = Answer::Ok;
    std::string title = defaultBoxTitle;
};

struct InputBox {
    std::string prompt;
    std::string title = defaultBoxTitle;
    std::string preset = {};
};

struct FileDialog {
    std::string title;
    /// Pairs of a name and a pattern, as "Text Files(*.txt)|*.txt".
    std::string filter;
    std::filesystem::path folder = {};
};

/// Pages 1 to 10 of the printed return, both ends included; both ends 0 are all of them.
struct PageRange {
    int from = 1;
    int to = 10;
};

/// The calendar in which the machine formats its dates.
enum class Calendar { Christian, Buddhist };

class Host {
  public:
    virtual ~Host() = default;

    /// Shows a box and waits for its answer; a box with OK alone always answers OK.
    virtual Answer show(const Box& box) = 0;
    /// Asks for a text; nothing when the person cancels, which is not the same as an empty text.
    virtual std::optional<std::string> ask(const InputBox& box) = 0;
    /// The file that the person chose to open, nothing when cancelled.
    virtual std::optional<std::filesystem::path> chooseFile(const FileDialog& dialog) = 0;
    /// The folder that the person chose, nothing when cancelled.
    virtual std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& start) = 0;
    /// The pages to print, nothing when cancelled.
    virtual std::optional<PageRange> choosePages() = 0;
    /// Opens a folder for the person to look into. False when the machine could not.
    virtual bool openFolder(const std::filesystem::path& folder) = 0;
    /// The mouse pointer shows that the program is at work.
    virtual void setBusy(bool busy) = 0;

    /// Today, in the Christian era.
    [[nodiscard]] virtual std::chrono::year_month_day today() const = 0;
    [[nodiscard]] virtual Calendar calendar() const = 0;
    /// A value of the environment, empty when it is not set.
    [[nodiscard]] virtual std::string environment(const std::string& name) const = 0;
    /// The folder in which the program and everything that it reads stand.
    [[nodiscard]] virtual std::filesystem::path programFolder() const = 0;
    [[nodiscard]] virtual bool folderExists(const std::filesystem::path& folder) const = 0;
    [[nodiscard]] virtual bool canWriteInto(const std::filesystem::path& folder) const = 0;

    /// The person leaves the program: the command that asked for it ends, then the program does.
    virtual void quit() = 0;
};

/// The year that the machine's calendar shows today: 2018 or 2561.
[[nodiscard]] int machineYear(const Host& host);

} // namespace lodge
