// Pages as pixels.
#include "paper/page_image.h"
#include "paper_kit.h"

#include <algorithm>

namespace lodge {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;

TEST(PageImage, IsWhitePaperOfA4) {
    const PageImage image = pageImage({.form = templateOf(""), .values = {}}, 25.4);
    EXPECT_EQ(image.width, 210);
    EXPECT_EQ(image.height, 297);
    ASSERT_EQ(image.pixels.size(), 210U * 297U);
    EXPECT_TRUE(std::ranges::all_of(image.pixels, [](std::uint32_t pixel) { return pixel == white; }));
}

TEST(PageImage, ShowsTheDrawingAndTheValuesInTheirPlaces) {
    const auto form =
        templateOf(R"(<rect x="10" y="20" width="5" height="5" fill="#FF0000"/>)"
                   R"(<rect id="a" x="50" y="100" width="5" height="5" fill="none" data-kind="tick"/>)");
    const auto at = [](const PageImage& image, int x, int y) {
        return image.pixels[static_cast<std::size_t>(y * image.width + x)];
    };
    const PageImage filled = pageImage({.form = form, .values = {{"a", "1"}}}, 254);
    EXPECT_EQ(at(filled, 125, 225), 0xFFFF0000);
    // The foot of the check mark, in the blue of values.
    EXPECT_EQ(at(filled, 522, 1040), 0xFF0B2E6B);
    EXPECT_EQ(at(pageImage({.form = form, .values = {{"a", "0"}}}, 254), 522, 1040), white);
}

TEST(PageImage, ATickIsSetByItsOwnValueOnly) {
    const auto form =
        templateOf(R"(<rect id="a.1" x="10" y="10" width="5" height="5" fill="none" data-kind="tick"/>)"
                   R"(<rect id="a.2" x="30" y="10" width="5" height="5" fill="none" data-kind="tick"/>)");
    const PageImage image = pageImage({.form = form, .values = {{"a", "2"}}}, 25.4);
    const auto hasInk = [&](int left) {
        for (int y = 10; y < 15; ++y)
            for (int x = left; x < left + 5; ++x)
                if (image.pixels[static_cast<std::size_t>(y * image.width + x)] != white) return true;
        return false;
    };
    EXPECT_FALSE(hasInk(10));
    EXPECT_TRUE(hasInk(30));
}

} // namespace
} // namespace lodge
