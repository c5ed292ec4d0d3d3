#include "session/session.h"

#include "session/commands.h"

#include <exception>
#include <utility>

namespace lodge {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Takes off what an editor of another system put around a line.
std::string_view bare(std::string_view line, bool isFirst) {
    if (isFirst && line.starts_with(byteOrderMark)) {
        line.remove_prefix(byteOrderMark.size());
    }
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

void checkNumberOfWords(const CommandRow& command, const Words& words) {
    if (words.size() >= command.least && words.size() <= command.most) {
        return;
    }
    std::string usage(command.name);
    if (!command.words.empty()) {
        usage += ' ';
        usage += command.words;
    }
    throw ScriptFault("too " + std::string(words.size() < command.least ? "few" : "many")
                      + " words; write: " + usage + " (a word with blanks stands in double quotes)");
}

} // namespace

Session::Session(Program& program, SessionHost& host, std::function<void()> start)
    : program_(program), host_(host), start_(std::move(start)), user_(program.desk), names_(program) {}

void Session::print(std::string_view line) { host_.transcript() << line << std::endl; }

void Session::startOnce() {
    if (!std::exchange(started_, true)) {
        start_();
    }
}

void Session::execute(const Words& words) {
    const CommandRow& command = findCommand(words.front());
    const Words arguments(words.begin() + 1, words.end());
    checkNumberOfWords(command, arguments);
    if (command.needs != Needs::Nothing) {
        startOnce();
    }
    if (command.needs == Needs::Person && host_.hasQuit()) {
        throw ScriptFault("the program has ended");
    }
    command.run(*this, arguments);
}

void Session::runLine(std::string_view line, const Substitutes& substitutes) {
    const Words words = splitWords(line, substitutes);
    if (!words.empty()) {
        execute(words);
    }
}

SessionEnd Session::guard(
    const std::function<void()>& step, const std::function<void(std::string_view)>& tell) {
    SessionEnd end = SessionEnd::AllWentThrough;
    try {
        step();
    } catch (const SessionHost::Stopped&) {
        end = SessionEnd::ScriptAtFault; // the host tells why, below
    } catch (const FailedExpectation& failed) {
        tell(failed.what());
        end = SessionEnd::ExpectationFailed;
    } catch (const ScriptFault& fault) {
        tell(fault.what());
        end = SessionEnd::ScriptAtFault;
    } catch (const std::exception& failure) {
        tell(std::string("the program failed: ") + failure.what());
        end = SessionEnd::ScriptAtFault;
    } catch (...) {
        tell("the program failed");
        end = SessionEnd::ScriptAtFault;
    }
    // Asked here and not where it was caught: a trap of the program may have swallowed the stop.
    if (host_.fault()) {
        tell(*host_.fault());
        end = SessionEnd::ScriptAtFault;
    }
    return end;
}

SessionEnd Session::run(std::istream& script, const SessionOptions& options, std::ostream& errors) {
    int number = 0;
    const auto tell = [&](std::string_view what) {
        errors << options.scriptName << ':' << number << ": " << what << std::endl;
    };
    SessionEnd worst = SessionEnd::AllWentThrough;
    for (std::string line; std::getline(script, line);) {
        ++number;
        const SessionEnd end = guard([&] { runLine(bare(line, number == 1), options.substitutes); }, tell);
        if (end == SessionEnd::AllWentThrough) {
            continue;
        }
        worst = end;
        if (end == SessionEnd::ScriptAtFault || !options.keepGoing) {
            return worst;
        }
    }
    if (script.bad()) {
        tell("the script cannot be read any further");
        return SessionEnd::ScriptAtFault;
    }
    // A script without a command still brings the program up.
    const SessionEnd end = guard([this] { startOnce(); }, tell);
    return end == SessionEnd::AllWentThrough ? worst : end;
}

} // namespace lodge
