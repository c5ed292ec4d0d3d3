// The common part of everything that a page model is made of: a name, a few properties, events.
//
// A control has two doors. Code of the program calls the setters; a change of text, caption or value raises
// the same event that a user's action raises, and setting what is already there raises nothing. What a user
// does comes through program/user.h, which refuses what a person could not reach.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace lodge {

class Form;

enum class ControlKind {
    TextBox,
    MaskedBox,
    CheckBox,
    OptionButton,
    CommandButton,
    Label,
    Frame,
    Picture,
    ListBox,
    ComboBox,
    Grid,
    Timer,
};

/// What changed about a control; an observer repaints no more than this.
enum class Aspect { Text, Caption, Value, Enabled, Visible, Locked, Back, Items, Selection, Cells };

/// The two grounds that the program gives a field: that of a field for typing and that of a closed one.
enum class BackColour { Window, Button };

enum class MouseButton { Left, Right };

struct MouseGesture {
    MouseButton button = MouseButton::Left;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

/// A press of a mouse button on a control, on its way to the control's handler.
struct MousePress {
    /// What follows the handler: the toggle or click of the control; nothing but the release, because the
    /// handler made the change itself; or nothing at all, not even the release.
    enum class Follow { Click, ReleaseOnly, Nothing };

    MouseGesture gesture;
    Follow follow = Follow::Click;
};

/// One typed character on its way into a box; a handler may change or swallow it.
struct KeyPress {
    char32_t key = 0;
    bool swallowed = false;
};

using Handler = std::function<void()>;

class Control {
  public:
    /// `index` is the place in a control array, -1 for a control that stands alone.
    Control(Form& form, ControlKind kind, std::string name, int index);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] ControlKind kind() const { return kind_; }
    [[nodiscard]] Form& form() const { return form_; }
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] int index() const { return index_; }
    /// "txtNid", or "chkStatus(11)" in a control array.
    [[nodiscard]] std::string fullName() const;

    /// The control's own switch; a control in a disabled frame is closed all the same.
    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool visible() const { return visible_; }
    void setVisible(bool visible);
    [[nodiscard]] bool locked() const { return locked_; }
    void setLocked(bool locked);
    [[nodiscard]] BackColour back() const { return back_; }
    void setBack(BackColour back);
    [[nodiscard]] const std::string& tag() const { return tag_; }
    void setTag(std::string tag) { tag_ = std::move(tag); }

    /// The frame or picture that the control lies in, nullptr on the form itself.
    [[nodiscard]] const Control* container() const { return container_; }
    void putIn(const Control& container) { container_ = &container; }
    /// Visible, and so is everything that it lies in.
    [[nodiscard]] bool isShown() const;
    /// Enabled, and so is everything that it lies in, the form too.
    [[nodiscard]] bool isOpen() const;
    /// Whether a control of this kind can have the focus at all.
    [[nodiscard]] bool takesFocus() const;
    [[nodiscard]] bool hasFocus() const;

    /// Puts the focus here, as a rule asks. Nothing happens where a person could not put it: the control is
    /// closed or hidden, or its form is not on screen.
    void setFocus();

    /// What the control reads: the text of a box, "1" or "0" of a tick, the caption of a label.
    [[nodiscard]] virtual std::string reading() const = 0;

    Handler onClick;
    Handler onDoubleClick;
    Handler onGotFocus;
    Handler onLostFocus;
    std::function<void(KeyPress&)> onKey;
    std::function<void(MousePress&)> onMouseDown;
    std::function<void(const MouseGesture&)> onMouseUp;

    /// Runs a handler as an event of this control: forms unloaded inside it live until it has returned.
    void raise(const Handler& handler);
    void raiseKey(KeyPress& key);
    void raiseMouseDown(MousePress& press);
    void raiseMouseUp(const MouseGesture& gesture);

  protected:
    /// Tells the observers, unless the form is still being made.
    void changed(Aspect aspect);

  private:
    template <typename Event>
    void raiseWith(Event&& event);

    Form& form_;
    ControlKind kind_;
    std::string name_;
    int index_;
    bool enabled_ = true;
    bool visible_ = true;
    bool locked_ = false;
    BackColour back_ = BackColour::Window;
    std::string tag_;
    const Control* container_ = nullptr;
};

} // namespace lodge
