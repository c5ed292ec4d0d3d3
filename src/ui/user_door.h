// The way in which views pass on what a person does.
#pragma once

#include "program/user.h"

#include <functional>
#include <string>

namespace lodge {

class UserDoor {
  public:
    virtual ~UserDoor() = default;
    /// Does something as the person. Forms that it unloads live until it has returned.
    virtual void act(const std::function<void(User&)>& what) = 0;
    /// A press on a button by mouse or key.
    virtual void press(Control& button) = 0;
    /// Goes to an item as by the chooser and its button of that name; a rule may keep the person on the page.
    virtual void openItem(const std::string& /*chooserButton*/) {}
    /// Has the focus of the screen agree again with that of the desk, once everything has settled.
    virtual void settleSoon() = 0;
};

} // namespace lodge
