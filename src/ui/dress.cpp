#include "ui/dress.h"

#include <QLineEdit>

#include <algorithm>
#include <array>
#include <string_view>

namespace lodge {

namespace {

constexpr Edges around{1, 1, 1, 1};

// clang-format off
constexpr std::array dresses{
    Dress{"role", "tools",      &Theme::chrome,     &Theme::rule, {0, 0, 0, 1}},
    Dress{"role", "status",     &Theme::chrome,     &Theme::rule, {0, 1, 0, 0}},
    Dress{"role", "statusPart", nullptr,            &Theme::rule, {1, 0, 0, 0}, 0, {12, 0, 12, 0}},
    Dress{"role", "card",       &Theme::paper,      &Theme::rule, around, 3},
    Dress{"role", "sheet",      &Theme::paper,      &Theme::rule, around, 3},
    Dress{"role", "paper",      &Theme::paper},
    Dress{"role", "aside",      nullptr,            &Theme::form, {3, 0, 0, 0}},
    Dress{"role", "offer",      &Theme::warnGround, &Theme::warn, {3, 0, 0, 0}},
    Dress{"role", "note",       nullptr,            &Theme::rule, around, 3},
    Dress{"role", "worksheet",  &Theme::green,      &Theme::rule, around, 3},
    Dress{"role", "stated",     &Theme::green},
    Dress{"role", "head",       nullptr,            &Theme::form, {0, 0, 0, 2}},
    Dress{"role", "group",      nullptr,            &Theme::rule, {0, 0, 0, 1}},
    Dress{"role", "line"},
    Dress{"role", "sum",        &Theme::band},
    Dress{"role", "band",       &Theme::band,       &Theme::rule, {0, 0, 0, 1}},
    Dress{"role", "columnHead", nullptr,            &Theme::edge, {0, 0, 0, 1}},
    Dress{"role", "foot",       nullptr,            &Theme::form, {0, 2, 0, 0}},
    Dress{"role", "rule",       &Theme::rule},
    Dress{"role", "upright",    &Theme::rule},
    Dress{"role", "agrees",     &Theme::okGround,   nullptr,      {},     9, {26, 0, 10, 0}},
    Dress{"role", "differs",    &Theme::stopGround, nullptr,      {},     9, {26, 0, 10, 0}},
    Dress{"role", "dockTitle",  &Theme::chrome,     &Theme::edge, {0, 1, 0, 0}},
    Dress{"role", "keycap",     &Theme::paper,      &Theme::rule, around, 3, {6, 0, 6, 0}},
    Dress{"role", "pill",       &Theme::stopGround, nullptr,      {},     9, {10, 0, 10, 0}},
    Dress{"role", "nothing",    &Theme::okGround,   nullptr,      {},     0, {12, 0, 12, 0}},
    Dress{"role", "problems",   &Theme::chrome,     &Theme::rule, {1, 0, 0, 0}, 0, {12, 0, 12, 0}},
    Dress{"role", "pages",      &Theme::chrome,     &Theme::rule, {0, 0, 1, 0}},
    Dress{"role", "watchBar",   &Theme::chrome,     &Theme::rule, {0, 1, 0, 0}},
    Dress{"type", "formCode",   nullptr,            &Theme::form, around, 2, {10, 0, 10, 0}},
    Dress{"state", "computed",  &Theme::computed,   nullptr,      {},     3, {8, 0, 8, 0}},
};

struct Ink {
    const char* property;
    const char* value;
    QPalette::ColorRole role;
};

// The last one that fits holds: what a text says counts more than how it is set.
constexpr std::array inks{
    Ink{"type", "label",      ink::second},
    Ink{"type", "tag",        ink::third},
    Ink{"type", "heading",    ink::form},
    Ink{"type", "sheetHead",  ink::form},
    Ink{"type", "cardTitle",  ink::form},
    Ink{"type", "formCode",   ink::form},
    Ink{"tone", "strong",     QPalette::WindowText},
    Ink{"tone", "soft",       ink::second},
    Ink{"tone", "stop",       ink::stop},
    Ink{"tone", "warn",       ink::warn},
    Ink{"tone", "ok",         ink::ok},
    Ink{"role", "link",       ink::link},
    Ink{"role", "watched",    QPalette::WindowText},
    Ink{"role", "keycap",     ink::second},
    Ink{"role", "pill",       ink::stop},
    Ink{"role", "differs",    ink::stop},
    Ink{"role", "agrees",     ink::ok},
    Ink{"role", "nothing",    ink::ok},
};
// clang-format on

/// The values of the properties that decide an ink.
class Worn {
  public:
    explicit Worn(const QWidget& widget)
        : role_(widget.property("role").toByteArray()), type_(widget.property("type").toByteArray()),
          tone_(widget.property("tone").toByteArray()) {}

    [[nodiscard]] bool fits(std::string_view property, std::string_view value) const {
        const QByteArray& has = property == "role" ? role_ : property == "type" ? type_ : tone_;
        return value == std::string_view(has.constData(), static_cast<std::size_t>(has.size()));
    }

  private:
    QByteArray role_;
    QByteArray type_;
    QByteArray tone_;
};

} // namespace

const Dress* dressOf(const QWidget& widget) {
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        return nullptr; // a field has its own
    }
    // This is asked for every widget that is drawn, and reading a property is not cheap.
    for (const char* property : {"role", "state", "type"}) {
        const QByteArray value = widget.property(property).toByteArray();
        if (value.isEmpty()) {
            continue;
        }
        const auto* const found = std::find_if(dresses.begin(), dresses.end(), [&](const Dress& dress) {
            return value == dress.value && std::string_view(property) == dress.property;
        });
        if (found != dresses.end()) {
            return found;
        }
    }
    return nullptr;
}

Rgb Theme::*groundOf(const Dress& dress, const QWidget& widget) {
    if (dress.ground == &Theme::computed) {
        return liesIn(widget, "sum") ? nullptr : liesIn(widget, "worksheet") ? &Theme::green : dress.ground;
    }
    return widget.property("row").toByteArray() == "hand" ? &Theme::select : dress.ground;
}

QPalette::ColorRole inkOf(const QWidget& text) {
    const Worn worn(text);
    if (worn.fits("type", "advice") && liesIn(text, "worksheet")) {
        return ink::ok; // the ink of the worksheets is the same green
    }
    const auto found = std::find_if(
        inks.rbegin(), inks.rend(), [&](const Ink& ink) { return worn.fits(ink.property, ink.value); });
    return found == inks.rend() ? QPalette::WindowText : found->role;
}

FieldDress fieldDressOf(const QWidget& field, QStyle::State state) {
    constexpr int ring = 2;
    const QByteArray says = field.property("state").toByteArray();
    if ((state & QStyle::State_Enabled) == 0) {
        if (liesIn(field, "ledger")) {
            return {&Theme::computed, &Theme::computed, 1};
        }
        return {&Theme::disabled, &Theme::rule, 1};
    }
    if (says == "refused") {
        return {&Theme::stopGround, &Theme::stop, ring};
    }
    Rgb Theme::*const ground = says != "computed"           ? &Theme::field
                               : liesIn(field, "worksheet") ? &Theme::green
                                                            : &Theme::computed;
    if ((state & QStyle::State_HasFocus) != 0) {
        return {ground, &Theme::focus, ring};
    }
    return {ground, says == "computed" ? ground : says == "way" ? &Theme::stop : &Theme::edge, 1};
}

bool liesIn(const QWidget& widget, const char* role) {
    for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (around->property("role").toByteArray() == role) {
            return true;
        }
    }
    return false;
}

void setWorn(QWidget& widget, const char* property, const char* value) {
    const QByteArray next(value);
    if (widget.property(property).toByteArray() != next) {
        widget.setProperty(property, next);
        widget.style()->polish(&widget);
        widget.update();
    }
}

} // namespace lodge
