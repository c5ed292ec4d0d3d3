#include "session/name_finder.h"

#include "session/fault.h"
#include "session/nearest_name.h"
#include "session/properties.h"
#include "session/words.h"

#include <algorithm>

namespace lodge {

namespace {

/// The parts of a name between its dots; a dot inside brackets parts nothing.
std::vector<std::string> partsOf(std::string_view name) {
    std::vector<std::string> parts(1);
    int depth = 0;
    for (const char c : name) {
        depth += c == '(' ? 1 : 0;
        depth -= c == ')' ? 1 : 0;
        if (c == '.' && depth == 0) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

void append(std::vector<std::string>& names, std::vector<std::string> more) {
    names.insert(names.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

bool NameFinder::isForm(std::string_view name) const { return program_.desk.knows(name); }

void NameFinder::checkForm(std::string_view name) const {
    if (!isForm(name)) {
        throw ScriptFault(
            "there is no form " + inQuotes(name) + nearestNameHint(name, program_.desk.formNames()));
    }
}

void NameFinder::setForm(std::string_view name) {
    checkForm(name);
    form_ = name;
}

Form& NameFinder::loadedForm(std::string_view name) const {
    checkForm(name);
    Form* const form = program_.desk.find(name);
    if (form == nullptr) {
        throw ScriptFault(std::string(name) + " is not on screen");
    }
    return *form;
}

std::vector<std::string> NameFinder::controlNames(std::string_view form) const {
    std::vector<std::string> names;
    for (const Control* control : program_.desk.loadedOrDesign(form).controls()) {
        names.push_back(control->fullName());
    }
    return names;
}

/// Whether the form that is set has a control, or an array of controls, of that name.
bool NameFinder::isOnForm(std::string_view control) const {
    if (form_.empty()) {
        return false;
    }
    return std::ranges::any_of(program_.desk.loadedOrDesign(form_).controls(),
        [&](const Control* known) { return known->fullName() == control || known->name() == control; });
}

void NameFinder::refuseUnknown(std::string_view name, std::string_view firstPart, Meant meant) const {
    std::vector<std::string> candidates = program_.desk.formNames();
    if (!form_.empty()) {
        append(candidates, controlNames(form_));
    }
    for (std::string& candidate : candidates) {
        candidate += name.substr(firstPart.size());
    }
    if (meant == Meant::AlsoStateValue) {
        append(candidates, stateValueNames());
    }
    throw ScriptFault("nothing has the name " + inQuotes(name)
                      + (form_.empty() ? ", and no form is set by \"on\"" : "")
                      + nearestNameHint(name, candidates));
}

NameFinder::Place NameFinder::place(std::string_view name, Meant meant) const {
    std::vector<std::string> parts = partsOf(name);
    Place place{.form = form_, .control = {}, .property = {}};
    if (isForm(parts.front())) {
        place.form = parts.front();
        parts.erase(parts.begin());
    } else if (!isOnForm(parts.front())) {
        refuseUnknown(name, parts.front(), meant);
    }
    if (parts.size() > 2) {
        throw ScriptFault(inQuotes(name) + " has too many parts: write FORM.CONTROL.PROPERTY");
    }
    place.control = parts.empty() ? "" : parts.front();
    place.property = parts.size() < 2 ? "" : parts.back();
    return place;
}

const Control& NameFinder::designOrLoaded(const Place& place) const {
    const Form& form = program_.desk.loadedOrDesign(place.form);
    if (const Control* control = form.find(place.control)) {
        return *control;
    }
    const std::vector<Control*>& controls = form.controls();
    const auto member = std::ranges::find(controls, place.control, &Control::name);
    const std::string unknown = "there is no control " + inQuotes(place.control) + " on " + place.form;
    if (member != controls.end()) {
        throw ScriptFault(unknown + ", but a control array of that name: write its index, as in \""
                          + (*member)->fullName() + '"');
    }
    throw ScriptFault(unknown + nearestNameHint(place.control, controlNames(place.form)));
}

NameFinder::Place NameFinder::placeOfControl(std::string_view name) const {
    Place found = place(name, Meant::ControlOnly);
    if (found.control.empty()) {
        throw ScriptFault(inQuotes(name) + " is a form: write FORM.CONTROL");
    }
    if (!found.property.empty()) {
        throw ScriptFault(inQuotes(name) + " is more than a control: write FORM.CONTROL");
    }
    return found;
}

const Control& NameFinder::anyControl(std::string_view name) const {
    return designOrLoaded(placeOfControl(name));
}

Control& NameFinder::control(std::string_view name) const {
    const Place found = placeOfControl(name);
    static_cast<void>(designOrLoaded(found)); // an unknown control is told before a form that is closed
    return *loadedForm(found.form).find(found.control);
}

std::string NameFinder::read(std::string_view target) const {
    if (const auto value = findStateValue(program_.state, target)) {
        return value->get();
    }
    const Place found = place(target, Meant::AlsoStateValue);
    if (found.property.empty() && found.control == "caption") {
        return program_.desk.loadedOrDesign(found.form).caption();
    }
    if (found.control.empty()) {
        throw ScriptFault(inQuotes(target) + " is a form: write FORM.caption or FORM.CONTROL");
    }
    const Control& control = designOrLoaded(found);
    if (found.property.empty()) {
        return control.reading();
    }
    if (const auto reading = readProperty(control, found.property)) {
        return *reading;
    }
    const std::vector<std::string> known = propertyNames();
    const bool ofOthers = std::ranges::find(known, found.property) != known.end();
    throw ScriptFault(found.form + '.' + control.fullName() + " has no property " + inQuotes(found.property)
                      + (ofOthers ? "" : nearestNameHint(found.property, known)));
}

void NameFinder::write(std::string_view stateName, std::string_view text) const {
    auto value = findStateValue(program_.state, stateName);
    if (!value) {
        throw ScriptFault(
            "there is no state value " + inQuotes(stateName) + nearestNameHint(stateName, stateValueNames()));
    }
    if (!value->set(text)) {
        throw ScriptFault(inQuotes(text) + " does not fit the state value " + std::string(stateName));
    }
}

} // namespace lodge
