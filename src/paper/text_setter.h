// Sets the captions and values of a page in the typeface of the form, with a text layer from which Thai can
// be searched and copied. A value is shrunk, wrapped or cut so that nothing leaves its slot, with room for
// stacked Thai marks.
#pragma once

#include "paper/caption.h"
#include "paper/drawing_surface.h"
#include "paper/slot.h"

#include <memory>
#include <string_view>

namespace lodge {

/// The typeface of the form: the cut of the government's own face, narrow and with digits of one width.
inline constexpr const char* formFamily = "Laksaman";

/// Throws ReportError when no typeface of exactly this name is installed: a page set in another one would not
/// fit its slots.
void requireFamily(const char* family);

class TextSetter {
  public:
    /// For one surface whose unit is the millimetre. Throws ReportError without the typeface of the form.
    explicit TextSetter(cairo_t* surface);
    TextSetter(const TextSetter&) = delete;
    TextSetter& operator=(const TextSetter&) = delete;
    ~TextSetter();

    void set(const Caption& caption);
    /// Sets a value without blanks at its ends. A text shrinks to 60% and is then cut with an ellipsis; an
    /// amount shrinks as far as it must, since a cut figure would be a wrong one.
    void set(const Slot& slot, std::string_view value);

  private:
    class Setting;
    std::unique_ptr<Setting> setting_;
};

} // namespace lodge
