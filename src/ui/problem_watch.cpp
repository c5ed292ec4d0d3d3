#include "ui/problem_watch.h"

#include "shell/page_table.h"
#include "shell/start_screen.h"

namespace lodge {

namespace {

Today todayOf(const Host& host) { return {host.today(), host.calendar()}; }

} // namespace

QString textOf(const Problem& problem) {
    return QString::fromStdString(onOneLine(problem.refusal.text)).simplified();
}

ProblemWatch::ProblemWatch(Program& program, std::function<bool()> mayLook)
    : program_(program), mayLook_(std::move(mayLook)), lister_(todayOf(program.host())) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ProblemWatch::look);
    program.desk.observe(*this);
}

ProblemWatch::~ProblemWatch() { program_.desk.forget(*this); }

void ProblemWatch::lookSoon() {
    if (!timer_.isActive()) {
        timer_.start();
    }
}

void ProblemWatch::formShown(Form& /*form*/) { lookSoon(); }

void ProblemWatch::formUnloaded(Form& /*form*/) { lookSoon(); }

void ProblemWatch::controlChanged(Control& /*control*/, Aspect aspect) {
    // Texts change with every key; what was typed counts when its field is left.
    if (aspect == Aspect::Value || aspect == Aspect::Selection) {
        lookSoon();
    }
}

void ProblemWatch::focusMoved(Control* /*control*/) { lookSoon(); }

void ProblemWatch::look() {
    if (!mayLook_()) {
        return; // whoever is under way asks again at its end
    }
    hasReturn_ =
        program_.desk.find(frmLodgeStart::formName) == nullptr && !program_.state.strStartDDMMYY.empty();
    problems_.clear();
    items_.clear();
    if (hasReturn_) {
        const PageRow* row = findPage(program_.state.intPageCur);
        const Form* page = row == nullptr ? nullptr : program_.desk.find(row->form);
        lister_.setToday(todayOf(program_.host()));
        problems_ = page == nullptr ? lister_.list(program_.state) : lister_.list(program_.state, *page);
        items_ = itemStates(lister_.stored(), problems_);
    }
    emit changed();
}

} // namespace lodge
