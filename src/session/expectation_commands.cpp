#include "file/file_io.h"
#include "program/checks.h"
#include "session/commands.h"
#include "session/fault.h"
#include "session/pattern.h"
#include "session/session.h"
#include "session/value_services.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <system_error>

namespace lodge {

namespace {

[[noreturn]] void fail(const std::string& expected, const std::string& found) {
    throw FailedExpectation("expected " + expected + ", found " + found);
}

// --- What a target reads ---

void expect(Session& session, const Words& words) {
    const std::string reading = session.names().read(words[0]);
    if (reading != words[1]) {
        fail(words[0] + " = " + inQuotes(words[1]), inQuotes(reading));
    }
}

void expectNot(Session& session, const Words& words) {
    const std::string reading = session.names().read(words[0]);
    if (reading == words[1]) {
        fail(words[0] + " to differ from " + inQuotes(words[1]), inQuotes(reading));
    }
}

void expectLike(Session& session, const Words& words) {
    const std::string reading = session.names().read(words[0]);
    if (!matchesPattern(reading, words[1])) {
        fail(words[0] + " like " + inQuotes(words[1]), inQuotes(reading));
    }
}

void show(Session& session, const Words& words) {
    session.print(words[0] + " = " + inQuotes(session.names().read(words[0])));
}

// --- Boxes ---

void expectMessage(Session& session, const Words& words) {
    const std::string text = messageText(words[0]);
    const std::string expected = "the message " + inQuotes(text);
    const Box* const box = session.host().takeBox();
    if (box == nullptr) {
        fail(expected, "no further box");
    }
    if (box->text != text) {
        fail(expected, inQuotes(box->text));
    }
    session.setMatchedBox(*box);
}

void expectNoMessage(Session& session, const Words& /*words*/) {
    std::string texts;
    for (const Box& box : session.host().unexpectedBoxes()) {
        texts += (texts.empty() ? "" : ", ") + inQuotes(box.text);
    }
    if (!texts.empty()) {
        fail("no further message", texts);
    }
}

void expectTitle(Session& session, const Words& words) {
    const std::string expected = "the title " + inQuotes(words[0]);
    const auto& box = session.matchedBox();
    if (!box) {
        fail(expected, "no box matched by expect-message before");
    }
    if (box->title != words[0]) {
        fail(expected, inQuotes(box->title));
    }
}

void forgetMessages(Session& session, const Words& /*words*/) { session.host().forgetBoxes(); }

// --- Focus, forms, files ---

void expectFocus(Session& session, const Words& words) {
    const Control& control = session.names().anyControl(words[0]);
    const Control* const focus = session.program().desk.focus();
    if (focus != &control) {
        fail("the focus on " + control.form().name() + '.' + control.fullName(),
            focus == nullptr ? "it nowhere" : "it on " + focus->form().name() + '.' + focus->fullName());
    }
}

bool isShown(Session& session, const std::string& form) {
    session.names().checkForm(form);
    const Form* const loaded = session.program().desk.find(form);
    return loaded != nullptr && loaded->isShown();
}

void expectShown(Session& session, const Words& words) {
    if (!isShown(session, words[0])) {
        fail(words[0] + " on screen", "it is not");
    }
}

void expectHidden(Session& session, const Words& words) {
    if (isShown(session, words[0])) {
        fail(words[0] + " not on screen", "it is");
    }
}

bool exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(nativePath(path), ignored);
}

void expectFile(Session& /*session*/, const Words& words) {
    if (!exists(words[0])) {
        fail("the file or folder " + inQuotes(words[0]), "none");
    }
}

void expectNoFile(Session& /*session*/, const Words& words) {
    if (exists(words[0])) {
        fail("no file or folder " + inQuotes(words[0]), "one");
    }
}

// --- Value services ---

void expectCall(Session& session, const Words& words) {
    const std::string& name = words[1];
    const std::string result = callValueService(session.program(), name, {words.begin() + 2, words.end()});
    if (result != words[0]) {
        fail(name + " to give " + inQuotes(words[0]), inQuotes(result));
    }
}

void call(Session& session, const Words& words) {
    session.print(escaped(callValueService(session.program(), words[0], {words.begin() + 1, words.end()})));
}

// clang-format off
constexpr std::array commands = {
    CommandRow{"expect",            "TARGET VALUE",           2, 2,         Needs::Program, expect},
    CommandRow{"expect-not",        "TARGET VALUE",           2, 2,         Needs::Program, expectNot},
    CommandRow{"expect-like",       "TARGET PATTERN",         2, 2,         Needs::Program, expectLike},
    CommandRow{"expect-message",    "CODE_OR_TEXT",           1, 1,         Needs::Program, expectMessage},
    CommandRow{"expect-no-message", "",                       0, 0,         Needs::Program, expectNoMessage},
    CommandRow{"expect-title",      "TEXT",                   1, 1,         Needs::Program, expectTitle},
    CommandRow{"forget-messages",   "",                       0, 0,         Needs::Program, forgetMessages},
    CommandRow{"expect-focus",      "CONTROL",                1, 1,         Needs::Program, expectFocus},
    CommandRow{"expect-shown",      "FORM",                   1, 1,         Needs::Program, expectShown},
    CommandRow{"expect-hidden",     "FORM",                   1, 1,         Needs::Program, expectHidden},
    CommandRow{"expect-file",       "PATH",                   1, 1,         Needs::Program, expectFile},
    CommandRow{"expect-no-file",    "PATH",                   1, 1,         Needs::Program, expectNoFile},
    CommandRow{"expect-call",       "VALUE NAME ARGUMENT...", 2, anyNumber, Needs::Program, expectCall},
    CommandRow{"show",              "TARGET",                 1, 1,         Needs::Program, show},
    CommandRow{"call",              "NAME ARGUMENT...",       1, anyNumber, Needs::Program, call},
};
// clang-format on

} // namespace

std::span<const CommandRow> expectationCommands() { return commands; }

} // namespace lodge
