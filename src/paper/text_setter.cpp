#include "paper/text_setter.h"

#include "paper/glyph_runs.h"
#include "paper/library_owners.h"
#include "program/report_engine.h"
#include "values/text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace lodge {

namespace {

// How far a text may shrink before it is cut, and by what part of its size it shrinks at a time.
constexpr double smallestText = 0.6;
constexpr double shrinkStep = 0.05;

// Air between a text and the sides of its slot, in mm; less in a slot that is itself narrow.
constexpr double sideAir = 0.8;
constexpr double sideAirOfNarrow = 0.1;

// Where the letters stand: the middle of the row, and this part of the letter size below it.
constexpr double baselineDrop = 0.4;

// For glyphs that the layout's whole units round away.
constexpr double tolerance = 0.01;

struct FreeFont {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

double toMillimetres(int units) { return pango_units_to_double(units); }

/// The text with nothing in it that moves, breaks or hides a letter: a line break becomes a blank, a
/// character without a width goes, a byte that is no UTF-8 shows as the character for what cannot be shown.
std::string settable(std::string_view value) {
    std::string text;
    for (std::size_t position = 0; position < value.size();) {
        const char32_t character = nextCharacter(value, position);
        const bool isControl =
            character < U' ' || character == 0x7F || character == 0x2028 || character == 0x2029;
        if (isControl) {
            text += ' ';
        } else if (pango_is_zero_width(character) == 0) {
            appendCharacter(text, character);
        }
    }
    return text;
}

} // namespace

void requireFamily(const char* family) {
    PangoFontFamily** families = nullptr;
    int count = 0;
    pango_font_map_list_families(pango_cairo_font_map_get_default(), &families, &count);
    const bool isThere = std::any_of(families, families + count, [family](PangoFontFamily* candidate) {
        return std::string_view(pango_font_family_get_name(candidate)) == family;
    });
    g_free(families);
    if (!isThere) {
        throw ReportError(
            report_error::fontMissing, "ไม่มีแบบอักษร " + std::string(family) + " ในเครื่อง ให้ติดตั้งก่อนพิมพ์");
    }
}

/// The layout of one surface, used for every value on it.
class TextSetter::Setting {
  public:
    explicit Setting(cairo_t* surface)
        : surface_(surface), layout_(pango_cairo_create_layout(surface)),
          font_(pango_font_description_new()) {
        // Letters stand where their outlines say, not on whole pixels: the page is the same on every surface.
        const CairoOwner<cairo_font_options_t> options(cairo_font_options_create());
        cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
        cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
        PangoContext* const context = pango_layout_get_context(layout_.get());
        pango_cairo_context_set_font_options(context, options.get());
        pango_context_set_round_glyph_positions(context, 0);
        pango_context_set_language(context, pango_language_from_string("th"));
        pango_layout_context_changed(layout_.get());
        pango_layout_set_wrap(layout_.get(), PANGO_WRAP_WORD_CHAR);
        pango_font_description_set_family_static(font_.get(), formFamily);

        load(")", 1);
        bracketWidth_ = widthOf(*pango_layout_get_line_readonly(layout_.get(), 0));
    }

    void set(const Caption& caption) {
        pango_font_description_set_weight(
            font_.get(), caption.isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
        load(caption.text, caption.size);
        pango_font_description_set_weight(font_.get(), PANGO_WEIGHT_NORMAL);
        cairo_set_source_rgb(surface_, caption.colour.red, caption.colour.green, caption.colour.blue);
        PangoLayoutLine& line = *pango_layout_get_line_readonly(layout_.get(), 0);
        showLine(line, caption.x + startOf(line, caption.align, 0), caption.baseline);
    }

    void set(const Slot& slot, const std::string& text) {
        cairo_set_source_rgb(surface_, valueColour.red, valueColour.green, valueColour.blue);
        if (slot.kind == SlotKind::Comb && setComb(slot, text)) return;
        load(text, slot.size);
        const Row row = rowOf(slot);
        fitToWidth(slot, row);
        fitInk(slot, row);
        const int lineCount = std::min(pango_layout_get_line_count(layout_.get()), slot.lines);
        for (int i = 0; i < lineCount; ++i) {
            PangoLayoutLine& line = *pango_layout_get_line_readonly(layout_.get(), i);
            const double top = slot.box.y + i * row.height;
            showLine(line, startWithin(line, slot, row), baselineOf(line, slot, row, top));
        }
    }

  private:
    /// The room of one line of a slot.
    struct Row {
        double left;
        double width;
        double height;
        bool keepsBracket; ///< An amount without a closing bracket leaves the room of one at its right.
    };

    /// Where the ink of a line lies, from the start of the line on its baseline.
    struct Ink {
        double left;
        double right;
        double above; ///< The baseline, positive upwards.
        double below;
    };

    [[nodiscard]] Row rowOf(const Slot& slot) const {
        const double air = std::min(sideAir, sideAirOfNarrow * slot.box.width);
        return {.left = slot.box.x + air,
            .width = slot.box.width - 2 * air,
            .height = slot.box.height / slot.lines,
            .keepsBracket = slot.kind == SlotKind::Money && !text_.ends_with(')')};
    }

    void load(const std::string& text, double size) {
        text_ = text;
        pango_layout_set_width(layout_.get(), -1);
        pango_layout_set_height(layout_.get(), -1);
        pango_layout_set_ellipsize(layout_.get(), PANGO_ELLIPSIZE_NONE);
        pango_layout_set_text(layout_.get(), text_.data(), static_cast<int>(text_.size()));
        resize(size);
    }

    void resize(double size) {
        size_ = size;
        pango_font_description_set_absolute_size(font_.get(), size * PANGO_SCALE);
        pango_layout_set_font_description(layout_.get(), font_.get());
    }

    static double widthOf(PangoLayoutLine& line) {
        PangoRectangle logical;
        pango_layout_line_get_extents(&line, nullptr, &logical);
        return toMillimetres(logical.width);
    }

    static Ink inkOf(PangoLayoutLine& line) {
        PangoRectangle ink;
        pango_layout_line_get_extents(&line, &ink, nullptr);
        return {.left = toMillimetres(ink.x),
            .right = toMillimetres(ink.x + ink.width),
            .above = -toMillimetres(ink.y),
            .below = toMillimetres(ink.y + ink.height)};
    }

    [[nodiscard]] double bracketRoom(const Row& row) const {
        return row.keepsBracket ? bracketWidth_ * size_ : 0;
    }

    void fitToWidth(const Slot& slot, const Row& row) {
        if (slot.kind == SlotKind::Money) {
            const double width =
                widthOf(*pango_layout_get_line_readonly(layout_.get(), 0)) + bracketRoom(row);
            if (width > row.width) resize(size_ * row.width / width);
            return;
        }
        if (slot.lines > 1) pango_layout_set_width(layout_.get(), pango_units_from_double(row.width));
        for (int step = 1; !isWithin(slot, row) && 1 - step * shrinkStep >= smallestText - tolerance; ++step)
            resize(slot.size * (1 - step * shrinkStep));
        if (!isWithin(slot, row)) cut(slot, row);
    }

    [[nodiscard]] bool isWithin(const Slot& slot, const Row& row) const {
        const int lineCount = pango_layout_get_line_count(layout_.get());
        if (lineCount > slot.lines) return false;
        for (int i = 0; i < lineCount; ++i) {
            PangoLayoutLine& line = *pango_layout_get_line_readonly(layout_.get(), i);
            if (widthOf(line) > row.width + tolerance) return false;
        }
        return true;
    }

    void cut(const Slot& slot, const Row& row) {
        pango_layout_set_width(layout_.get(), pango_units_from_double(row.width));
        pango_layout_set_height(layout_.get(), -slot.lines);
        pango_layout_set_ellipsize(layout_.get(), PANGO_ELLIPSIZE_END);
    }

    /// Letters whose marks need more than a low or narrow slot has get smaller still. A smaller text wraps
    /// anew, so this may take several rounds.
    void fitInk(const Slot& slot, const Row& row) {
        constexpr int mostRounds = 10;
        for (int round = 0; round < mostRounds; ++round) {
            const double excess = inkExcess(slot, row);
            if (excess <= 1) return;
            resize(size_ / excess);
        }
    }

    /// How many times the ink of a line is as large as the room for it.
    [[nodiscard]] double inkExcess(const Slot& slot, const Row& row) const {
        double excess = 0;
        for (int i = 0; i < pango_layout_get_line_count(layout_.get()); ++i) {
            const Ink ink = inkOf(*pango_layout_get_line_readonly(layout_.get(), i));
            excess = std::max(
                {excess, (ink.above + ink.below) / row.height, (ink.right - ink.left) / slot.box.width});
        }
        return excess;
    }

    /// Where the line begins in a room of that width.
    [[nodiscard]] static double startOf(PangoLayoutLine& line, SlotAlign align, double width) {
        const double spare = width - widthOf(line);
        switch (align) {
        case SlotAlign::Start: break;
        case SlotAlign::Middle: return spare / 2;
        case SlotAlign::End: return spare;
        }
        return 0;
    }

    /// Where the line begins in its slot: at its side, unless a mark hangs over the edge of the slot.
    [[nodiscard]] double startWithin(PangoLayoutLine& line, const Slot& slot, const Row& row) const {
        const Ink ink = inkOf(line);
        const double start = row.left + startOf(line, slot.align, row.width - bracketRoom(row));
        return std::max(std::min(start, slot.box.x + slot.box.width - ink.right), slot.box.x - ink.left);
    }

    /// The same for every value of a slot's size, so that neighbours stand on one line, unless marks need
    /// room.
    static double baselineOf(PangoLayoutLine& line, const Slot& slot, const Row& row, double top) {
        const Ink ink = inkOf(line);
        const double baseline = top + row.height / 2 + baselineDrop * slot.size;
        return std::min(std::max(baseline, top + ink.above), top + row.height - ink.below);
    }

    void showLine(PangoLayoutLine& line, double x, double baseline) {
        for (const GlyphRun& run : glyphRuns(line, text_, x, baseline))
            show(surface_, run);
    }

    /// False for a value that cannot stand one character a cell: it is set as one text instead, so that
    /// nothing of it is lost.
    bool setComb(const Slot& slot, const std::string& text) {
        load(removeAll(text, " -"), slot.size);
        const Row row{
            .left = slot.box.x, .width = slot.box.width, .height = slot.box.height, .keepsBracket = false};
        fitInk(slot, row);
        PangoLayoutLine& line = *pango_layout_get_line_readonly(layout_.get(), 0);
        const Ink ink = inkOf(line);
        std::vector<GlyphRun> runs =
            glyphRuns(line, text_, 0, slot.box.y + (slot.box.height + ink.above - ink.below) / 2);
        if (runs.size() != 1 || !placeInCells(runs.front(), slot)) return false;
        show(surface_, runs.front());
        return true;
    }

    /// False when there is not one glyph for each character, or not a cell wide enough for each.
    bool placeInCells(GlyphRun& run, const Slot& slot) const {
        if (run.glyphs.size() != textLength(text_) || run.glyphs.size() > slot.cells.size()) return false;
        for (std::size_t i = 0; i < run.glyphs.size(); ++i) {
            cairo_text_extents_t extents;
            cairo_scaled_font_glyph_extents(run.font, &run.glyphs[i], 1, &extents);
            if (std::max(extents.x_advance, extents.width) > slot.cellWidth) return false;
            run.glyphs[i].x = slot.cells[i] + (slot.cellWidth - extents.x_advance) / 2;
        }
        // A number in cells is one word all the same.
        run.clusters = {{.num_bytes = static_cast<int>(run.text.size()),
            .num_glyphs = static_cast<int>(run.glyphs.size())}};
        return true;
    }

    cairo_t* surface_;
    GlibOwner<PangoLayout> layout_;
    std::unique_ptr<PangoFontDescription, FreeFont> font_;
    std::string text_;
    double size_ = 0;
    double bracketWidth_ = 0; ///< Of letters of 1 mm.
};

TextSetter::TextSetter(cairo_t* surface) {
    requireFamily(formFamily);
    setting_ = std::make_unique<Setting>(surface);
}

TextSetter::~TextSetter() = default;

void TextSetter::set(const Caption& caption) { setting_->set(caption); }

void TextSetter::set(const Slot& slot, std::string_view value) { setting_->set(slot, settable(value)); }

} // namespace lodge
