#include "paper/glyph_runs.h"

#include <algorithm>

namespace lodge {

namespace {

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// One glyph a character where that is true of the run; otherwise a cluster for each word and each blank.
std::vector<cairo_text_cluster_t> clustersOf(const PangoGlyphString& shaped, std::string_view text) {
    const auto glyphCount = static_cast<std::size_t>(shaped.num_glyphs);
    if (isAscii(text) && glyphCount == text.size())
        return std::vector<cairo_text_cluster_t>(glyphCount, {.num_bytes = 1, .num_glyphs = 1});

    std::vector<cairo_text_cluster_t> clusters;
    std::size_t clusterStart = 0;
    int glyphsInCluster = 0;
    bool afterBlank = false;
    for (std::size_t i = 0; i < glyphCount; ++i) {
        const auto start = static_cast<std::size_t>(shaped.log_clusters[i]);
        const bool isBlank = text[start] == ' ';
        if (start > clusterStart && (isBlank || afterBlank)) {
            clusters.push_back(
                {.num_bytes = static_cast<int>(start - clusterStart), .num_glyphs = glyphsInCluster});
            clusterStart = start;
            glyphsInCluster = 0;
        }
        ++glyphsInCluster;
        afterBlank = isBlank;
    }
    clusters.push_back(
        {.num_bytes = static_cast<int>(text.size() - clusterStart), .num_glyphs = glyphsInCluster});
    return clusters;
}

unsigned long blankIn(cairo_scaled_font_t* font) {
    cairo_glyph_t blank{};
    cairo_glyph_t* glyphs = &blank; // room enough: nothing is allocated for one character
    int count = 1;
    cairo_scaled_font_text_to_glyphs(font, 0, 0, " ", 1, &glyphs, &count, nullptr, nullptr, nullptr);
    return blank.index;
}

/// The glyph that stands for a shaped one in the font itself.
unsigned long glyphIn(cairo_scaled_font_t* font, PangoGlyph glyph) {
    // No glyph for a character in any font: the font's own box for what it lacks.
    if ((glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0) return 0;
    // A blank at which the line breaks is shaped away. Its text still goes to the page, so it needs a glyph.
    return glyph == PANGO_GLYPH_EMPTY ? blankIn(font) : glyph;
}

GlyphRun glyphRun(const PangoGlyphItem& item, std::string_view text, double& x, double baseline) {
    const PangoGlyphString& shaped = *item.glyphs;
    GlyphRun run;
    run.font = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(item.item->analysis.font));
    run.text =
        text.substr(static_cast<std::size_t>(item.item->offset), static_cast<std::size_t>(item.item->length));
    run.clusters = clustersOf(shaped, run.text);
    for (int i = 0; i < shaped.num_glyphs; ++i) {
        const PangoGlyphInfo& glyph = shaped.glyphs[i];
        run.glyphs.push_back({.index = glyphIn(run.font, glyph.glyph),
            .x = x + pango_units_to_double(glyph.geometry.x_offset),
            .y = baseline + pango_units_to_double(glyph.geometry.y_offset)});
        x += pango_units_to_double(glyph.geometry.width);
    }
    return run;
}

} // namespace

std::vector<GlyphRun> glyphRuns(
    const PangoLayoutLine& line, std::string_view text, double x, double baseline) {
    std::vector<GlyphRun> runs;
    for (const GSList* node = line.runs; node != nullptr; node = node->next)
        runs.push_back(glyphRun(*static_cast<const PangoGlyphItem*>(node->data), text, x, baseline));
    return runs;
}

void show(cairo_t* surface, const GlyphRun& run) {
    cairo_set_scaled_font(surface, run.font);
    cairo_show_text_glyphs(surface, run.text.data(), static_cast<int>(run.text.size()), run.glyphs.data(),
        static_cast<int>(run.glyphs.size()), run.clusters.data(), static_cast<int>(run.clusters.size()),
        cairo_text_cluster_flags_t{});
}

} // namespace lodge
