#include "ui/wrap_label.h"

namespace lodge {

int WrapLabel::heightForWidth(int width) const {
    if (text_ != text() || font_ != font()) {
        text_ = text();
        font_ = font();
        heights_.clear();
    }
    const auto known = heights_.constFind(width);
    return known != heights_.constEnd() ? *known : *heights_.insert(width, QLabel::heightForWidth(width));
}

} // namespace lodge
