// A session: one run of a script over the program. It reads the lines, carries out their commands through the
// operations of a user, and tells what did not go through.
#pragma once

#include "program/program.h"
#include "program/user.h"
#include "session/fault.h"
#include "session/name_finder.h"
#include "session/session_host.h"
#include "session/words.h"

#include <functional>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

namespace lodge {

struct SessionOptions {
    /// The script as the messages name it.
    std::string scriptName;
    /// What stands for ${NAME}.
    Substitutes substitutes;
    /// Report all failed expectations instead of the first alone.
    bool keepGoing = false;
};

class Session {
  public:
    /// `start` brings the program up. It runs before the first command that needs the program, so that a
    /// clock or a calendar set at the head of a script is the one that the program finds.
    Session(Program& program, SessionHost& host, std::function<void()> start);

    /// Runs a script of UTF-8 lines, with or without a byte order mark and carriage returns at line ends.
    /// What did not go through is written as "SCRIPT:LINE: ..." to `errors`. Throws nothing.
    SessionEnd run(std::istream& script, const SessionOptions& options, std::ostream& errors);

    // For the commands.
    [[nodiscard]] Program& program() const { return program_; }
    [[nodiscard]] SessionHost& host() const { return host_; }
    [[nodiscard]] User& user() { return user_; }
    [[nodiscard]] NameFinder& names() { return names_; }
    /// A line of the transcript, out at once: what was printed survives whatever comes next.
    void print(std::string_view line);
    /// The box that an `expect-message` found last.
    [[nodiscard]] const std::optional<Box>& matchedBox() const { return matchedBox_; }
    void setMatchedBox(const Box& box) { matchedBox_ = box; }

  private:
    void startOnce();
    void execute(const Words& words);
    void runLine(std::string_view line, const Substitutes& substitutes);
    /// Runs `step`; what it threw or the host stopped at becomes an end, told to `tell`.
    SessionEnd guard(const std::function<void()>& step, const std::function<void(std::string_view)>& tell);

    Program& program_;
    SessionHost& host_;
    std::function<void()> start_;
    User user_;
    NameFinder names_;
    std::optional<Box> matchedBox_;
    bool started_ = false;
};

} // namespace lodge
