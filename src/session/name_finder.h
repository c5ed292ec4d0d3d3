// What the names in a script lead to: forms, controls, properties of controls, values of the return. A name
// that nobody knows is a ScriptFault with the nearest known name beside it.
#pragma once

#include "controls/form.h"
#include "program/program.h"
#include "state/field_names.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

class NameFinder {
  public:
    explicit NameFinder(Program& program) : program_(program) {}

    /// The form that a control without one belongs to. Faults when nobody knows it.
    void setForm(std::string_view name);

    /// Faults unless a form of that name is known.
    void checkForm(std::string_view name) const;
    [[nodiscard]] bool isForm(std::string_view name) const;
    /// The loaded form. Faults when it is unknown or not loaded, hence not on screen.
    [[nodiscard]] Form& loadedForm(std::string_view name) const;
    /// A control of a loaded form, written FORM.CONTROL, FORM.CONTROL(INDEX) or without the form.
    [[nodiscard]] Control& control(std::string_view name) const;
    /// The control that the name means, on a loaded form or as designed; nothing is loaded for it.
    [[nodiscard]] const Control& anyControl(std::string_view name) const;

    /// What a target reads: a state value, a form's title, a control or one of its properties. A state value
    /// goes before a control of the same bare name.
    [[nodiscard]] std::string read(std::string_view target) const;
    /// Writes a state value. Faults when nobody knows it or the text does not fit.
    void write(std::string_view stateName, std::string_view text) const;

  private:
    /// A name taken apart; `control` is empty for the form alone, `property` for the control alone.
    struct Place {
        std::string form;
        std::string control;
        std::string property;
    };

    /// Whether a name that leads nowhere may have meant a state value.
    enum class Meant { ControlOnly, AlsoStateValue };

    [[nodiscard]] Place place(std::string_view name, Meant meant) const;
    [[nodiscard]] Place placeOfControl(std::string_view name) const;
    [[nodiscard]] const Control& designOrLoaded(const Place& place) const;
    [[nodiscard]] std::vector<std::string> controlNames(std::string_view form) const;
    [[nodiscard]] bool isOnForm(std::string_view control) const;
    [[noreturn]] void refuseUnknown(std::string_view name, std::string_view firstPart, Meant meant) const;

    Program& program_;
    std::string form_;
};

} // namespace lodge
