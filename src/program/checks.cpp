#include "program/checks.h"

#include "values/messages.h"

namespace lodge {

std::string messageText(std::string_view message) {
    const std::string_view text = GetMessage(message);
    return std::string(text.empty() ? message : text);
}

bool runChecks(Program& program, std::string_view form, std::span<const CheckRow> rows) {
    const CheckContext context{program.state, program.host()};
    for (const CheckRow& row : rows) {
        if (!row.refuses(context)) {
            continue;
        }
        program.notify(messageText(row.message));
        program.state.intError = 1;
        const Form* page = program.desk.find(form);
        Control* control = page == nullptr ? nullptr : page->find(row.focus);
        if (control != nullptr) {
            control->setFocus();
        }
        program.state.intError = 1; // again: the field that loses the focus runs a check of its own
        return false;
    }
    return true;
}

void collectRefusals(const CheckContext& context, std::string_view form, std::span<const CheckRow> rows,
    std::vector<Refusal>& refusals) {
    for (const CheckRow& row : rows) {
        if (row.refuses(context)) {
            const bool inCatalogue = !GetMessage(row.message).empty();
            refusals.push_back({.code = inCatalogue ? std::string(row.message) : std::string(),
                .text = messageText(row.message),
                .form = std::string(form),
                .control = std::string(row.focus),
                .sides = row.sides == nullptr ? std::nullopt : std::optional(row.sides(context))});
        }
    }
}

} // namespace lodge
