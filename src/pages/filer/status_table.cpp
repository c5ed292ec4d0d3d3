#include "pages/filer/status_table.h"

namespace lodge {

std::string tagText(int box) {
    constexpr int formerRegionalOffice = 9; // left over from an older form; nothing reads its text
    if (box == formerRegionalOffice) {
        return "01";
    }
    const std::optional<StatusTag>& tag = companyStatuses.at(static_cast<std::size_t>(box)).tag;
    if (!tag) {
        return {};
    }
    std::string text = {tag->flag0 ? '1' : '0', '|', tag->flag1 ? '1' : '0', '|'};
    for (const std::string_view& code : tag->rates) {
        if (&code != tag->rates.begin()) {
            text += ',';
        }
        text += code;
    }
    text += '|';
    text += tag->number;
    return text;
}

} // namespace lodge
