#include "session/run_script.h"

#include "session/recording_engine.h"
#include "session/session.h"
#include "session/session_host.h"
#include "shell/shell.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fstream>
#include <optional>

namespace lodge {

namespace {

constexpr const char* standardInput = "-";

/// Why the defines cannot be taken, nothing when they can.
std::optional<std::string> faultOf(const Substitutes& defines) {
    for (const auto& [name, value] : defines) {
        if (name == "PROGRAM" || name == "SCRIPT") {
            return "${" + name + "} has its own meaning and cannot be defined";
        }
        if (!isUtf8(name) || !isUtf8(value)) {
            return "the value defined for ${" + escaped(name) + "} is not UTF-8";
        }
    }
    return std::nullopt;
}

Substitutes substitutesOf(const ScriptRun& run) {
    Substitutes substitutes = run.defines;
    const std::filesystem::path here = std::filesystem::current_path();
    substitutes["PROGRAM"] = run.programFolder.string();
    substitutes["SCRIPT"] = run.script == standardInput
                                ? here.string()
                                : (here / run.script).lexically_normal().parent_path().string();
    return substitutes;
}

SessionEnd runLines(const ScriptRun& run, std::istream& lines, std::ostream& out, std::ostream& errors) {
    SessionHost host(run.programFolder, out);
    RecordingEngine reports(host);
    Program program(host);
    program.attach(reports);
    Shell shell(program);
    Session session(program, host, [&shell] { shell.start(); });
    const SessionOptions options{
        .scriptName = run.script, .substitutes = substitutesOf(run), .keepGoing = run.keepGoing};
    const SessionEnd end = session.run(lines, options, errors);
    if (!out) {
        errors << run.script << ": the transcript could not be written" << std::endl;
        return SessionEnd::ScriptAtFault;
    }
    return end;
}

} // namespace

std::optional<Substitutes> parseDefines(const std::vector<std::string>& texts) {
    Substitutes defines;
    for (const std::string& text : texts) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos || equals == 0) {
            return std::nullopt;
        }
        defines.insert_or_assign(text.substr(0, equals), text.substr(equals + 1));
    }
    return defines;
}

SessionEnd runScript(const ScriptRun& run, std::istream& input, std::ostream& out, std::ostream& errors) {
    const auto refuse = [&](const std::string& cause) {
        errors << run.script << ": " << cause << std::endl;
        return SessionEnd::ScriptAtFault;
    };
    if (const auto fault = faultOf(run.defines)) {
        return refuse(*fault);
    }
    if (run.script == standardInput) {
        return runLines(run, input, out, errors);
    }
    if (std::filesystem::is_directory(run.script)) {
        return refuse("is a folder, not a script");
    }
    std::ifstream file(run.script, std::ios::binary);
    if (!file) {
        return refuse(std::string("cannot be read: ") + std::strerror(errno));
    }
    return runLines(run, file, out, errors);
}

} // namespace lodge
