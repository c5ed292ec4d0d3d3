// Hands shaped text to the surface in pieces that a reader of the page gets back whole.
//
// A reader puts the letters of a page in order by where they stand, and a Thai tone mark that is moved to the
// left over a narrow vowel then comes out before that vowel. So each word that is not plain ASCII goes as one
// piece: a PDF keeps its text beside its glyphs, marks and sara am included.
#pragma once

#include <cstddef>
#include <pango/pangocairo.h>
#include <string_view>
#include <vector>

namespace lodge {

/// Glyphs of one font with the text that they stand for.
struct GlyphRun {
    cairo_scaled_font_t* font = nullptr; ///< Owned by the layout that the run is from.
    std::string_view text;
    std::vector<cairo_glyph_t> glyphs;
    std::vector<cairo_text_cluster_t> clusters;
};

/// The runs of a line that begins at `x`, its letters standing on `baseline`. `text` is that of the line's
/// layout, which outlives the runs.
[[nodiscard]] std::vector<GlyphRun> glyphRuns(
    const PangoLayoutLine& line, std::string_view text, double x, double baseline);

void show(cairo_t* surface, const GlyphRun& run);

} // namespace lodge
