// Plays a session script on the real windows with keys alone: what the script types, ticks, chooses and
// clicks is done as a person does it who has no mouse. The program is only read, never called.
#pragma once

#include "desktop.h"
#include "session/name_finder.h"
#include "session/words.h"
#include "typist.h"
#include "ui/desktop_printer.h"

#include <QTimer>

#include <chrono>
#include <deque>
#include <filesystem>
#include <istream>
#include <map>
#include <string>

namespace lodge {

/// The folders of one run.
struct KeyPlaces {
    /// Where the program and what it reads stand.
    std::filesystem::path program;
    /// What `${RESULT}` of the script stands for.
    std::filesystem::path result;
    /// The document that the person stores from the preview of each print.
    std::filesystem::path document;
};

/// The outside of a desktop, on the day of the script, with a note of each box that came up.
class KeyHost : public QtHost {
  public:
    using QtHost::QtHost;
    [[nodiscard]] std::chrono::year_month_day today() const override { return day; }
    Answer show(const Box& box) override {
        boxes.push_back(box.text);
        return QtHost::show(box);
    }

    std::chrono::year_month_day day = QtHost::today();
    /// The texts of those that the script has not expected yet, in their order.
    std::deque<std::string> boxes;
};

/// Hands each print job on to the desktop's printer and writes down its formulas, as a session does.
class WitnessedPrinter : public ReportEngine {
  public:
    explicit WitnessedPrinter(ReportEngine& printer) : printer_(printer) {}

    void setReportFileName(const std::filesystem::path& path) override;
    void setFormula(std::size_t slot, const std::string& text) override;
    void setOutputOption(long option) override { printer_.setOutputOption(option); }
    void setAction(int action) override;

    /// Where the formulas go.
    std::filesystem::path folder;
    int jobs = 0;

  private:
    ReportEngine& printer_;
    std::string name_;
    std::map<std::size_t, std::string> formulas_;
};

/// Answers by keys the windows that stand before everything else, for which the program waits.
class KeyAttendant {
  public:
    explicit KeyAttendant(QString document);

  private:
    void look();
    void answer(const QWidget& window);

    QString document_;
    QTimer timer_;
    bool busy_ = false;
};

class KeyPlayer {
  public:
    KeyPlayer(const Look& look, KeyPlaces places);

    /// Plays the script to its end, or throws what was wrong with its number of line in front.
    void play(std::istream& script, const std::string& name);

    // For the commands.
    void setDay(const std::string& day);
    void setReportFolder(const std::string& folder) { printer_.folder = folder; }
    void press(const std::string& control);
    void setTick(const std::string& control, bool ticked);
    void type(const std::string& control, const std::string& text);
    void choose(const std::string& control, const std::string& entry);
    void pick(const std::string& control, const std::string& row);
    void close(const std::string& form) const;
    void expectReading(const std::string& target, const std::string& value) const;
    void expectShown(const std::string& form) const;
    void expectFocus(const std::string& control) const;
    void expectBox(const std::string& message);
    void expectNoBox() const;
    [[nodiscard]] NameFinder& names() { return names_; }

  private:
    /// A control's widget, and that of its form.
    struct Place {
        QWidget& widget;
        QWidget& form;
    };

    void begin();
    void runLine(const Words& words);
    [[nodiscard]] Place find(const std::string& control) const;
    /// Goes to a control by Tab, or by Shift+Tab where it stands before the one that has the focus.
    Place reach(const std::string& control);
    static void comeTo(const Place& place);
    /// Looks at the preview, stores the document and closes it.
    void lookThrough();

    KeyPlaces places_;
    KeyHost host_;
    Program program_{host_};
    Binder binder_;
    DesktopPrinter desktopPrinter_;
    WitnessedPrinter printer_{desktopPrinter_};
    Shell shell_{program_};
    NameFinder names_{program_};
    KeyAttendant attendant_;
    bool begun_ = false;
};

} // namespace lodge
