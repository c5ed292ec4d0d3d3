#include "ui/recovery_keeper.h"

#include "file/return_file.h"
#include "file/store_dialog.h"
#include "shell/main_frame.h"
#include "shell/start_screen.h"
#include "state/filing.h"
#include "ui/binder.h"
#include "ui/recovery_band.h"

#include <utility>

namespace lodge {

namespace {

/// So long after a field is left: who goes on typing leaves several fields meanwhile, and one copy has them
/// all.
constexpr int pauseLength = 300; // milliseconds

Today todayOf(const Host& host) { return {host.today(), host.calendar()}; }

} // namespace

RecoveryKeeper::RecoveryKeeper(Program& program, Binder& binder, const std::string& folder)
    : program_(program), binder_(binder), folder_(folder), writer_(folder),
      snapshots_(todayOf(program.host())) {
    pause_.setSingleShot(true);
    pause_.setInterval(pauseLength);
    connect(&pause_, &QTimer::timeout, this, &RecoveryKeeper::write);
    connect(&binder, &Binder::waitsOver, this, &RecoveryKeeper::writeSoon);
    program.desk.observe(*this);
}

RecoveryKeeper::~RecoveryKeeper() { program_.desk.forget(*this); }

bool RecoveryKeeper::hasReturn() const {
    return program_.desk.find(MDILodge::formName) != nullptr
           && program_.desk.find(frmLodgeStart::formName) == nullptr
           && !program_.state.strStartDDMMYY.empty();
}

std::string RecoveryKeeper::textInHand() {
    snapshots_.setToday(todayOf(program_.host()));
    ReturnState& state = snapshots_.take(program_);
    state.strStoreType = "T"; // as that of an automatic store: whichever store was the last changes nothing
    setTaxYear(state);
    setFilingType(state);
    return encodeReturn(state);
}

void RecoveryKeeper::writeSoon() {
    if (!pause_.isActive()) {
        pause_.start();
    }
}

void RecoveryKeeper::write() {
    if (binder_.isWaiting() || !hasReturn()) {
        return; // a box may stand in the middle of a command; its end comes here again
    }
    std::string text = textInHand();
    if (text != safeText_) {
        safeText_ = text;
        writer_.write(std::move(text));
    }
}

void RecoveryKeeper::flush() {
    write();
    writer_.flush();
}

void RecoveryKeeper::returnIsStored() {
    writer_.remove();
    safeText_ = textInHand();
}

void RecoveryKeeper::forgetReturn() {
    pause_.stop();
    writer_.remove();
    safeText_.clear();
}

void RecoveryKeeper::formLoaded(Form& form) {
    if (form.name() == frmLodgeDirec::formName) {
        static_cast<frmLodgeDirec&>(form).onStored = [this] { returnIsStored(); };
    }
}

void RecoveryKeeper::formShown(Form& form) {
    if (form.name() == frmLodgeStart::formName) {
        forgetReturn(); // the person has put it away
        offer();
        return;
    }
    writeSoon();
}

void RecoveryKeeper::formUnloaded(Form& form) {
    if (form.name() == MDILodge::formName) {
        forgetReturn(); // the person has left
    }
}

void RecoveryKeeper::focusMoved(Control* /*control*/) { writeSoon(); }

void RecoveryKeeper::offer() {
    const FormView* start = binder_.viewOf(frmLodgeStart::formName);
    auto* band = start == nullptr ? nullptr : start->root()->findChild<RecoveryBand*>();
    if (!offered_) {
        offered_ = findRecovered(folder_);
    }
    if (!offered_) {
        if (band != nullptr) {
            band->hide();
        }
        return;
    }
    automatic_ = newestAutomaticStore((program_.host().programFolder() / "temp").string());
    if (band != nullptr) {
        band->offer(offered_->note, automatic_);
        connect(band, &RecoveryBand::taken, this, &RecoveryKeeper::take, Qt::UniqueConnection);
        connect(band, &RecoveryBand::thrownAway, this, &RecoveryKeeper::throwAway, Qt::UniqueConnection);
        connect(
            band, &RecoveryBand::automaticTaken, this, &RecoveryKeeper::takeAutomatic, Qt::UniqueConnection);
    }
}

/// As the person loads a file; what goes wrong is told there. Whether the return is open.
bool RecoveryKeeper::load(const std::string& path) {
    binder_.act([&](User& user) {
        auto* start = program_.desk.find<frmLodgeStart>();
        if (start != nullptr) {
            start->txtPath.setText(path);
            user.click(start->CmdOK2);
        }
    });
    binder_.settleSoon();
    return hasReturn();
}

void RecoveryKeeper::take() {
    if (offered_ && load(offered_->note.path)) {
        writer_.adopt(std::move(offered_->slot));
        offered_.reset();
    }
}

void RecoveryKeeper::throwAway() {
    if (!offered_ || binder_.isWaiting()) {
        return;
    }
    const Box question{.text = "ต้องการลบข้อมูลที่ยังไม่ได้จัดเก็บนี้ ใช่หรือไม่",
        .buttons = Buttons::YesNo,
        .defaultAnswer = Answer::No,
        .title = "คำเตือน"};
    if (program_.show(question) == Answer::Yes) {
        offered_->slot.clear();
        offered_.reset();
        offer(); // there may be an older one
    }
}

void RecoveryKeeper::takeAutomatic() {
    if (automatic_) {
        load(automatic_->path);
    }
}

} // namespace lodge
