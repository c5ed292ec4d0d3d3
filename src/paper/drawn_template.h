// A report template: the drawn page with its fixed wording, and the slots for the values.
#pragma once

#include "paper/drawing_surface.h"
#include "paper/template_reader.h"

#include <filesystem>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace lodge {

/// The page on which every template is drawn, in millimetres.
inline constexpr double pageWidth = 210;
inline constexpr double pageHeight = 297;

class DrawnTemplate {
  public:
    /// Parses a template's text; `name` is what messages call it. Throws ReportError when it is no SVG or
    /// a slot is not clear.
    DrawnTemplate(std::string name, std::string_view svg);
    DrawnTemplate(const DrawnTemplate&) = delete;
    DrawnTemplate& operator=(const DrawnTemplate&) = delete;
    ~DrawnTemplate();

    [[nodiscard]] const std::string& name() const { return name_; }
    /// All slots, sorted by field.
    [[nodiscard]] std::span<const Slot> slots() const { return parts_.slots; }
    /// Its fixed wording, as far as it is not part of the drawing.
    [[nodiscard]] std::span<const Caption> captions() const { return parts_.captions; }
    /// The slots of a field: one, or for a field of ticks one for each value; none when the template does
    /// not know the field.
    [[nodiscard]] std::span<const Slot> slotsOf(std::string_view field) const;
    /// Draws the page without captions and values onto a surface whose unit is the millimetre. Throws
    /// ReportError.
    void draw(cairo_t* surface) const;

  private:
    struct Drawing;

    std::string name_;
    TemplateParts parts_;
    std::unique_ptr<Drawing> drawing_;
};

/// The templates that have been read, so that none is read twice however many returns are printed.
class TemplateShelf {
  public:
    /// The template in a file. Throws ReportError when the file cannot be read or is no template.
    [[nodiscard]] std::shared_ptr<const DrawnTemplate> take(const std::filesystem::path& file);

  private:
    std::map<std::filesystem::path, std::shared_ptr<const DrawnTemplate>> templates_;
};

} // namespace lodge
