// Keeps the return in hand from being lost: a moment after a field is left the copy of file/recovery.h is
// written, and after a crash the start screen offers it.
#pragma once

#include "file/recovery.h"
#include "program/program.h"
#include "shell/return_snapshot.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <string>

namespace lodge {

class Binder;

class RecoveryKeeper : public QObject, public DeskObserver {
    Q_OBJECT

  public:
    /// The binder observes the desk before: a form that is shown has its window by then.
    RecoveryKeeper(Program& program, Binder& binder, const std::string& folder);
    ~RecoveryKeeper() override;

    /// Brings the copy up to date now and returns once it is on the disk.
    void flush();

    void formLoaded(Form& form) override;
    void formShown(Form& form) override;
    void formUnloaded(Form& form) override;
    void focusMoved(Control* control) override;

  private:
    [[nodiscard]] bool hasReturn() const;
    [[nodiscard]] std::string textInHand();
    void writeSoon();
    void write();
    void returnIsStored();
    void forgetReturn();

    void offer();
    bool load(const std::string& path);
    void take();
    void throwAway();
    void takeAutomatic();

    Program& program_;
    Binder& binder_;
    std::string folder_;
    RecoveryWriter writer_;
    ReturnSnapshots snapshots_;
    std::string safeText_; // what the copy or the person's own file has already
    QTimer pause_;
    std::optional<RecoveredReturn> offered_;
    std::optional<ReturnNote> automatic_;
};

} // namespace lodge
