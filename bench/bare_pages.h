// The yardstick of a print: the same texts and rules on the same pages, drawn by nothing but Cairo and Pango.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace lodge::bench {

struct BareText {
    double x = 0;
    double baseline = 0;
    double size = 0;
    double align = 0; ///< What part of its width stands to the left of x.
    bool isBold = false;
    std::string text;
};

/// A line, or with a height a box; a box with a shade is filled, too.
struct BareRule {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    double stroke = 0;
    bool isBox = false;
    bool isShaded = false;
    bool isDotted = false;
};

struct BarePage {
    std::vector<BareText> texts;
    std::vector<BareRule> rules;
};

/// The bytes of a PDF of the pages, A4 in millimetres.
std::string drawBare(const std::vector<BarePage>& pages);

/// One line a thing, for a program of its own.
void writePages(std::ostream& out, const std::vector<BarePage>& pages);
std::vector<BarePage> readPages(std::istream& in);

} // namespace lodge::bench
