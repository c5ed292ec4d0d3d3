#include "file/return_json.h"

#include "state/field_names.h"

#include <utility>

namespace lodge {

nlohmann::ordered_json returnJson(ReturnState& state, std::string_view file,
    const std::vector<std::size_t>& damagedLines, JsonFields fields) {
    nlohmann::ordered_json values = nlohmann::ordered_json::object();
    forEachStateValue(state, [&](const std::string& name, const StateValue& value) {
        std::string text = value.get();
        if (fields == JsonFields::All || !text.empty()) values[name] = std::move(text);
    });
    return {{"file", file}, {"damagedLines", damagedLines}, {"fields", std::move(values)}};
}

std::string jsonText(const nlohmann::ordered_json& returns) {
    return returns.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

} // namespace lodge
