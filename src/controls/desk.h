// The desk: which forms are loaded and on screen, where the focus is, which timers run.
//
// There is one desk a program and no toolkit in it. A screen binding and the session interpreter observe it
// and act on it through program/user.h.
#pragma once

#include "controls/control.h"
#include "controls/form.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class Timer;

/// Learns what happens on the desk. All calls have an empty default: an observer overrides what it shows.
class DeskObserver {
  public:
    virtual ~DeskObserver() = default;
    virtual void formLoaded(Form& /*form*/) {}
    virtual void formShown(Form& /*form*/) {}
    virtual void formHidden(Form& /*form*/) {}
    /// The last moment in which the form may be touched.
    virtual void formUnloaded(Form& /*form*/) {}
    virtual void formChanged(Form& /*form*/) {}
    virtual void controlChanged(Control& /*control*/, Aspect /*aspect*/) {}
    /// `control` is nullptr when nothing has the focus any more.
    virtual void focusMoved(Control* /*control*/) {}
    /// A timer was switched on or off, or time passed: the next due moment may be another.
    virtual void timersChanged() {}
};

enum class Modality { Modeless, Modal };

class Desk {
  public:
    using Milliseconds = std::chrono::milliseconds;
    using Factory = std::function<std::unique_ptr<Form>()>;

    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Makes a form known. The factory must only make the object: it is also called to read a design.
    void add(const std::string& name, Factory factory);
    [[nodiscard]] bool knows(std::string_view name) const;
    [[nodiscard]] std::vector<std::string> formNames() const;

    /// Loads the form if it is not loaded yet, running its `Form_Load`. The name must be known.
    Form& load(std::string_view name);
    /// The loaded form of that name, nullptr when it is not loaded.
    [[nodiscard]] Form* find(std::string_view name) const;
    template <typename T>
    [[nodiscard]] T* find() const {
        return static_cast<T*>(find(T::formName));
    }
    /// The loaded form or, when it is not loaded, one that was made only to read its design values.
    [[nodiscard]] const Form& loadedOrDesign(std::string_view name);

    /// Loads the form if needed, puts it on top of the screen and activates it. The call does not wait for a
    /// modal form: its own commands carry on.
    Form& show(std::string_view name, Modality modality = Modality::Modeless);
    void hide(std::string_view name);
    /// Runs `Form_Unload` and takes the form away; nothing for one that is not loaded. Inside an event the
    /// object lives on until the outermost event has returned.
    void unload(std::string_view name);
    void unloadAllExcept(std::string_view kept);
    /// Loaded forms, in the order in which they were loaded.
    [[nodiscard]] std::vector<Form*> loadedForms() const;
    /// The form that lies on top of the screen, nullptr when none is shown.
    [[nodiscard]] Form* top() const;
    /// Whether a modal form stands before this one.
    [[nodiscard]] bool liesUnderModal(const Form& form) const;

    [[nodiscard]] Control* focus() const { return focus_; }
    /// Moves the focus as code does; see Control::setFocus.
    void setFocus(Control& control);
    /// Takes the focus away from where it is, running `onLostFocus`. True when it is gone, false when the
    /// handler put it somewhere.
    bool leaveFocus();

    /// Lets time pass; timers that fall due fire in their order. Nothing while a box waits.
    void pass(Milliseconds time);
    /// How long until the next timer falls due, a negative value when none runs.
    [[nodiscard]] Milliseconds untilNextTimer() const;
    /// While a message, question or input box waits for its answer, timers stand still.
    void holdTimers() { ++heldBy_; }
    void releaseTimers() { --heldBy_; }

    void observe(DeskObserver& observer);
    void forget(DeskObserver& observer);

    /// Stands around everything that a user or a timer sets off.
    class EventScope {
      public:
        explicit EventScope(Desk& desk);
        ~EventScope();
        EventScope(const EventScope&) = delete;
        EventScope& operator=(const EventScope&) = delete;

      private:
        Desk& desk_;
    };

  private:
    friend class Control;
    friend class Form;

    void formChanged(Form& form);
    void controlChanged(Control& control, Aspect aspect);
    void timerSwitched(Timer& timer);
    [[nodiscard]] static bool canHaveFocus(const Control& control);
    bool takeFocusAway();
    void activateTop();
    void takeOffScreen(Form& form);
    template <typename Tell>
    void tell(Tell tell);

    struct RunningTimer {
        Timer* timer;
        Milliseconds due;
    };

    std::map<std::string, Factory, std::less<>> factories_;
    std::map<std::string, std::unique_ptr<Form>, std::less<>> designs_;
    std::vector<std::unique_ptr<Form>> loaded_;
    std::vector<std::unique_ptr<Form>> leaving_;
    std::vector<Form*> screen_; // bottom to top
    Control* focus_ = nullptr;
    Control* entering_ = nullptr; // its onGotFocus is running
    std::vector<RunningTimer> timers_;
    Milliseconds now_{0};
    int eventDepth_ = 0;
    int heldBy_ = 0;
    std::vector<DeskObserver*> observers_;
};

} // namespace lodge
