#include "pages/schedules/figures.h"

#include "controls/label.h"
#include "controls/text_box.h"
#include "pages/fields/amounts.h"
#include "values/money.h"

#include <utility>

namespace lodge {

void showFigure(Control& figure, std::string text) {
    if (figure.kind() == ControlKind::TextBox) {
        static_cast<TextBox&>(figure).setText(std::move(text));
    } else {
        static_cast<Label&>(figure).setCaption(std::move(text));
    }
}

void FigureSum::add(std::string_view figure, int sign) {
    if (figure.empty()) return;
    filled_ = true;
    sum_ += sign * readFigure(figure);
}

std::string FigureSum::text() const { return filled_ ? shownFigure(sum_) : std::string(); }

} // namespace lodge
