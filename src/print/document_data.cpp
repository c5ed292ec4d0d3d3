#include "print/document_data.h"

#include "file/return_file.h"
#include "file/return_json.h"
#include "program/host.h"
#include "state/item8_sum.h"

namespace lodge {

std::string documentTitle(const ReturnState& state) {
    constexpr std::size_t number = 45;
    const std::string& id = state.strFldPage1[number];
    return id.empty() ? defaultBoxTitle : defaultBoxTitle + (' ' + id);
}

Attachment attachedData(
    ReturnState& state, std::string_view file, const std::vector<std::size_t>& damagedLines) {
    return {.name = "return.json",
        .mimeType = "application/json",
        .bytes = jsonText(nlohmann::ordered_json::array({returnJson(state, file, damagedLines)}))};
}

Attachment attachedData(const ReturnState& state, std::string_view file) {
    // Only what a file carries is meant for others: not the folders and flags of the program.
    ReturnState copy = state;
    ReturnState read;
    readReturn(encodeReturn(copy), read);
    sumItem8Lines15To26(read);
    return attachedData(read, file, {});
}

} // namespace lodge
