#include "paper/page_painter.h"

#include "paper/text_setter.h"
#include "program/report_engine.h"

#include <algorithm>
#include <cairo.h>

namespace lodge {

namespace {

// A check mark in a box of 1 by 1.
struct Point {
    double x, y;
};
constexpr Point tickStart{.x = 0.19, .y = 0.53};
constexpr Point tickFoot{.x = 0.44, .y = 0.81};
constexpr Point tickEnd{.x = 0.84, .y = 0.19};
constexpr double tickWidth = 0.14;

void paintTick(cairo_t* surface, const SlotBox& box) {
    const double side = std::min(box.width, box.height);
    const double left = box.x + (box.width - side) / 2;
    const double top = box.y + (box.height - side) / 2;
    cairo_set_source_rgb(surface, valueColour.red, valueColour.green, valueColour.blue);
    cairo_move_to(surface, left + side * tickStart.x, top + side * tickStart.y);
    cairo_line_to(surface, left + side * tickFoot.x, top + side * tickFoot.y);
    cairo_line_to(surface, left + side * tickEnd.x, top + side * tickEnd.y);
    cairo_set_line_width(surface, side * tickWidth);
    cairo_set_line_cap(surface, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(surface, CAIRO_LINE_JOIN_ROUND);
    cairo_stroke(surface);
}

} // namespace

void paint(cairo_t* surface, const FilledPage& page) {
    TextSetter setter(surface); // first, so that nothing is drawn where the typeface is missing
    page.form->draw(surface);
    cairo_save(surface);
    for (const Caption& caption : page.form->captions())
        setter.set(caption);
    for (const Slot& slot : page.form->slots()) {
        const auto found = page.values.find(slot.field);
        if (found == page.values.end() || found->second.empty()) continue;
        if (slot.kind == SlotKind::Tick) {
            if (found->second == slot.tickedBy) paintTick(surface, slot.box);
        } else {
            setter.set(slot, found->second);
        }
    }
    cairo_restore(surface);
    if (const cairo_status_t status = cairo_status(surface); status != CAIRO_STATUS_SUCCESS) {
        throw ReportError(report_error::programFault,
            "วาด " + page.form->name() + " ไม่ได้: " + cairo_status_to_string(status));
    }
}

} // namespace lodge
