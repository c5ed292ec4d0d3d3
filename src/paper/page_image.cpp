#include "paper/page_image.h"

#include "paper/library_owners.h"

#include <cmath>
#include <cstddef>

namespace lodge {

namespace {

constexpr double millimetresPerInch = 25.4;

} // namespace

PageImage pageImage(const FilledPage& page, double pixelsPerInch) {
    const double scale = pixelsPerInch / millimetresPerInch;
    PageImage image;
    image.width = static_cast<int>(std::lround(pageWidth * scale));
    image.height = static_cast<int>(std::lround(pageHeight * scale));
    image.pixels.assign(
        static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height), 0xFFFFFFFF);
    // A row of 4-byte pixels has no gap behind it, so cairo may draw into the image itself.
    const CairoOwner<cairo_surface_t> surface(cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(image.pixels.data()), CAIRO_FORMAT_ARGB32, image.width, image.height,
        image.width * static_cast<int>(sizeof(std::uint32_t))));
    const CairoOwner<cairo_t> context(cairo_create(surface.get()));
    cairo_scale(context.get(), scale, scale);
    paint(context.get(), page);
    cairo_surface_flush(surface.get());
    return image;
}

} // namespace lodge
