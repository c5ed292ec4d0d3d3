#include "bare_pages.h"

#include <cairo-pdf.h>
#include <istream>
#include <ostream>
#include <pango/pangocairo.h>
#include <sstream>

namespace lodge::bench {

namespace {

constexpr double pointsPerMillimetre = 72 / 25.4;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

void drawRule(cairo_t* context, const BareRule& rule) {
    if (rule.isBox) {
        cairo_rectangle(context, rule.x, rule.y, rule.width, rule.height);
        if (rule.isShaded) {
            cairo_set_source_rgb(context, 0.9, 0.92, 0.95);
            cairo_fill_preserve(context);
        }
    } else {
        cairo_move_to(context, rule.x, rule.y);
        cairo_rel_line_to(context, rule.width, rule.height);
    }
    constexpr double dots[] = {0.2, 0.9};
    cairo_set_dash(context, dots, rule.isDotted ? 2 : 0, 0);
    cairo_set_source_rgb(context, 0.17, 0.24, 0.32);
    cairo_set_line_width(context, rule.stroke);
    if (rule.stroke == 0) return cairo_new_path(context);
    cairo_stroke(context);
}

void drawText(cairo_t* context, PangoLayout* layout, PangoFontDescription* font, const BareText& text) {
    pango_font_description_set_absolute_size(font, text.size * PANGO_SCALE);
    pango_font_description_set_weight(font, text.isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_layout_set_font_description(layout, font);
    pango_layout_set_text(layout, text.text.data(), static_cast<int>(text.text.size()));
    PangoLayoutLine* const line = pango_layout_get_line_readonly(layout, 0);
    PangoRectangle logical;
    pango_layout_line_get_extents(line, nullptr, &logical);
    cairo_move_to(context, text.x - text.align * pango_units_to_double(logical.width), text.baseline);
    cairo_set_source_rgb(context, 0.08, 0.13, 0.17);
    pango_cairo_show_layout_line(context, line);
}

} // namespace

std::string drawBare(const std::vector<BarePage>& pages) {
    std::string bytes;
    cairo_surface_t* const surface = cairo_pdf_surface_create_for_stream(
        append, &bytes, 210 * pointsPerMillimetre, 297 * pointsPerMillimetre);
    cairo_t* const context = cairo_create(surface);
    cairo_scale(context, pointsPerMillimetre, pointsPerMillimetre);
    PangoLayout* const layout = pango_cairo_create_layout(context);
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(pango_layout_get_context(layout), options);
    pango_context_set_round_glyph_positions(pango_layout_get_context(layout), FALSE);
    PangoFontDescription* const font = pango_font_description_from_string("Laksaman");
    for (const BarePage& page : pages) {
        for (const BareRule& rule : page.rules)
            drawRule(context, rule);
        for (const BareText& text : page.texts)
            drawText(context, layout, font, text);
        cairo_show_page(context);
    }
    pango_font_description_free(font);
    cairo_font_options_destroy(options);
    g_object_unref(layout);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    return bytes;
}

void writePages(std::ostream& out, const std::vector<BarePage>& pages) {
    for (const BarePage& page : pages) {
        out << "page\n";
        for (const BareRule& rule : page.rules) {
            out << "rule " << rule.x << ' ' << rule.y << ' ' << rule.width << ' ' << rule.height << ' '
                << rule.stroke << ' ' << rule.isBox << ' ' << rule.isShaded << ' ' << rule.isDotted << '\n';
        }
        for (const BareText& text : page.texts) {
            out << "text " << text.x << ' ' << text.baseline << ' ' << text.size << ' ' << text.align << ' '
                << text.isBold << ' ' << text.text << '\n';
        }
    }
}

std::vector<BarePage> readPages(std::istream& in) {
    std::vector<BarePage> pages;
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string kind;
        words >> kind;
        if (kind == "page") pages.emplace_back();
        if (kind == "rule") {
            BareRule& rule = pages.back().rules.emplace_back();
            words >> rule.x >> rule.y >> rule.width >> rule.height >> rule.stroke >> rule.isBox
                >> rule.isShaded >> rule.isDotted;
        }
        if (kind == "text") {
            BareText& text = pages.back().texts.emplace_back();
            words >> text.x >> text.baseline >> text.size >> text.align >> text.isBold >> std::ws;
            std::getline(words, text.text);
        }
    }
    return pages;
}

} // namespace lodge::bench
