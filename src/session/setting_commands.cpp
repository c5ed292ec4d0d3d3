#include "file/file_io.h"
#include "session/commands.h"
#include "session/fault.h"
#include "session/nearest_name.h"
#include "session/numbers.h"
#include "session/session.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

namespace {

void on(Session& session, const Words& words) { session.names().setForm(words[0]); }

void answer(Session& session, const Words& words) {
    for (const std::string& word : words) {
        const auto known = answerOfName(word);
        if (!known) {
            throw ScriptFault(inQuotes(word) + " is no answer" + nearestNameHint(word, answerNames()));
        }
        session.host().queueAnswer(*known);
    }
}

void input(Session& session, const Words& words) { session.host().queueInput(words[0]); }

void file(Session& session, const Words& words) { session.host().queueFile(words[0]); }

void range(Session& session, const Words& words) {
    if (words.size() == 1 && words[0] == "cancel") {
        session.host().queuePages(std::nullopt);
        return;
    }
    const auto from = wholeNumber<int>(words[0]);
    const auto to = words.size() == 2 ? wholeNumber<int>(words[1]) : std::nullopt;
    if (!from || !to) {
        throw ScriptFault("a page range is two page numbers, or cancel");
    }
    session.host().queuePages(PageRange{.from = *from, .to = *to});
}

std::optional<std::chrono::year_month_day> dayOf(std::string_view text) {
    constexpr std::size_t length = 10; // YYYY-MM-DD
    if (text.size() != length || text[4] != '-' || text[7] != '-') {
        return std::nullopt;
    }
    const auto year = wholeNumber<unsigned>(text.substr(0, 4));
    const auto month = wholeNumber<unsigned>(text.substr(5, 2));
    const auto day = wholeNumber<unsigned>(text.substr(8, 2));
    if (!year || !month || !day) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{
        std::chrono::year(static_cast<int>(*year)), std::chrono::month(*month), std::chrono::day(*day)};
    return date.ok() ? std::optional(date) : std::nullopt;
}

void today(Session& session, const Words& words) {
    const auto day = dayOf(words[0]);
    if (!day) {
        throw ScriptFault(inQuotes(words[0]) + " is no day written YYYY-MM-DD");
    }
    session.host().setToday(*day);
}

void calendar(Session& session, const Words& words) {
    if (words[0] == "christian") {
        session.host().setCalendar(Calendar::Christian);
    } else if (words[0] == "buddhist") {
        session.host().setCalendar(Calendar::Buddhist);
    } else {
        throw ScriptFault("there is no calendar " + inQuotes(words[0])
                          + nearestNameHint(words[0], {"christian", "buddhist"}));
    }
}

void environment(Session& session, const Words& words) { session.host().setEnvironment(words[0], words[1]); }

void poke(Session& session, const Words& words) { session.names().write(words[0], words[1]); }

void report(Session& session, const Words& words) { session.host().setReportFolder(nativePath(words[0])); }

// clang-format off
constexpr std::array commands = {
    CommandRow{"on",          "FORM",                           1, 1,         Needs::Nothing, on},
    CommandRow{"answer",      "WORD...",                        1, anyNumber, Needs::Nothing, answer},
    CommandRow{"input",       "TEXT",                           1, 1,         Needs::Nothing, input},
    CommandRow{"file",        "PATH",                           1, 1,         Needs::Nothing, file},
    CommandRow{"range",       "FROM TO, or range cancel",       1, 2,         Needs::Nothing, range},
    CommandRow{"today",       "YYYY-MM-DD",                     1, 1,         Needs::Nothing, today},
    CommandRow{"calendar",    "christian or calendar buddhist", 1, 1,         Needs::Nothing, calendar},
    CommandRow{"environment", "NAME TEXT",                      2, 2,         Needs::Nothing, environment},
    CommandRow{"report",      "DIR",                            1, 1,         Needs::Nothing, report},
    CommandRow{"poke",        "STATE VALUE",                    2, 2,         Needs::Program, poke},
};
// clang-format on

} // namespace

std::span<const CommandRow> settingCommands() { return commands; }

} // namespace lodge
