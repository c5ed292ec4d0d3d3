// What every page is given: the return, the desk with its forms, the door to the outside, the shell.
#pragma once

#include "controls/desk.h"
#include "program/host.h"
#include "program/isic_tables.h"
#include "program/shell_services.h"
#include "state/return_state.h"
#include "values/notifier.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class ReportEngine;

class Program : public Notifier {
  public:
    explicit Program(Host& host);

    ReturnState state;
    Desk desk;
    /// The lines, from 1, of the loaded file that were damaged and read as empty.
    std::vector<std::size_t> damagedLines;

    [[nodiscard]] Host& host() const { return host_; }
    [[nodiscard]] ShellServices& shell() const { return *shell_; }
    [[nodiscard]] IsicTables& isic() const { return *isic_; }
    /// What puts the return on paper; nullptr where nothing can print.
    [[nodiscard]] ReportEngine* reports() const { return reports_; }
    /// The shell and the ISIC tables make themselves known before the first form loads.
    void attach(ShellServices& shell) { shell_ = &shell; }
    void attach(IsicTables& isic) { isic_ = &isic; }
    /// Whoever makes the program brings what it prints with. It must outlive the program.
    void attach(ReportEngine& reports) { reports_ = &reports; }

    /// Shows a box and waits; timers stand still meanwhile.
    Answer show(const Box& box);
    /// Shows a text in a box with an OK button and the program's title.
    void notify(const std::string& text) override;
    /// Shows the catalogue's text of that code.
    void message(std::string_view code);
    /// Refuses: shows the message, puts the focus on the control and sets `intError`.
    void refuse(std::string_view code, Control& focus);
    /// An input box, a file, folder or print dialog; timers stand still meanwhile.
    std::optional<std::string> ask(const InputBox& box);
    std::optional<std::filesystem::path> chooseFile(const FileDialog& dialog);
    std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& start);
    std::optional<PageRange> choosePages();

  private:
    Host& host_;
    ShellServices* shell_ = nullptr;
    IsicTables* isic_ = nullptr;
    ReportEngine* reports_ = nullptr;
};

} // namespace lodge
