// The way in which views pass on what a person does.
#pragma once

#include "program/user.h"

#include <functional>
#include <string>

namespace lodge {

/// Where the arrow keys lead from a field.
enum class Direction { Up, Down, Left, Right };

class UserDoor {
  public:
    virtual ~UserDoor() = default;
    /// Does something as the person. Forms that it unloads live until it has returned.
    virtual void act(const std::function<void(User&)>& what) = 0;
    /// A press on a button by mouse or key.
    virtual void press(Control& button) = 0;
    /// Goes to an item as by the chooser and its button of that name; a rule may keep the person on the page.
    virtual void openItem(const std::string& /*chooserButton*/) {}
    /// Goes to the nearest field of the same kind that stands in that direction on the page; nothing when
    /// there is none.
    virtual void moveAcross(Control& /*from*/, Direction /*where*/) {}
    /// Has the focus of the screen agree again with that of the desk, once everything has settled.
    virtual void settleSoon() = 0;
};

} // namespace lodge
