#include "shell/problem_list.h"

#include "shell/page_table.h"
#include "shell/return_snapshot.h"
#include "shell/store_sequence.h"

#include <algorithm>
#include <tuple>

namespace lodge {

namespace {

const PageRow* pageOfForm(std::string_view form) {
    const auto row = std::ranges::find(pageTable(), form, &PageRow::form);
    return row == pageTable().end() ? nullptr : &*row;
}

bool isSame(const Refusal& one, const Refusal& other) {
    return std::tie(one.text, one.form, one.control) == std::tie(other.text, other.form, other.control);
}

/// The first of those that say the same of the same field.
std::vector<Problem> withoutRepeats(std::vector<Refusal> refusals) {
    std::vector<Problem> problems;
    for (Refusal& refusal : refusals) {
        if (std::ranges::any_of(
                problems, [&](const Problem& known) { return isSame(known.refusal, refusal); })) {
            continue;
        }
        const PageRow* row = pageOfForm(refusal.form);
        problems.push_back({.refusal = std::move(refusal),
            .page = row == nullptr ? page::chooser : row->code,
            .pageName = row == nullptr ? std::string() : std::string(row->title)});
    }
    return problems;
}

} // namespace

std::string onOneLine(std::string_view text) {
    std::string line;
    bool atBreak = false;
    for (const char c : text) {
        if (c == '\r' || c == '\n') {
            atBreak = true;
        } else if (!atBreak || c != ' ') {
            if (atBreak && !line.empty() && line.back() != ' ') {
                line += ' ';
            }
            atBreak = false;
            line += c;
        }
    }
    return line;
}

ProblemLister::ProblemLister(Today today) : host_(today) {}

std::vector<Problem> ProblemLister::list(const ReturnState& state) {
    program_.state = state;
    return listCopy();
}

std::vector<Problem> ProblemLister::list(const ReturnState& state, const Form& pageOnScreen) {
    takeFromScreen(program_, state, pageOnScreen);
    return listCopy();
}

std::vector<Problem> ProblemLister::listCopy() {
    // A return that was just loaded shows its page 1 by itself.
    if (program_.state.intNewReturn == 0) {
        shell_.ShowPage1();
    } else {
        navigation_.ShowPage(page::first);
    }
    const CheckContext context{program_.state, host_};
    std::vector<Refusal> refusals;
    shell_.StorePageOnScreen();
    navigation_.ShowPage(page::tax);
    collectGateRefusals(context, refusals);
    shell_.StorePageOnScreen();
    navigation_.ShowPage(page::first);
    shell_.StorePageOnScreen();
    collectFullRefusals(context, refusals);
    shell_.UnloadPages();
    return withoutRepeats(std::move(refusals));
}

std::vector<Problem> listProblems(const ReturnState& state, Today today) {
    return ProblemLister(today).list(state);
}

} // namespace lodge
