#include "paper/slot_reader.h"

#include "program/report_engine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <system_error>
#include <utility>

namespace lodge {

namespace {

// clang-format off
constexpr std::array<std::pair<std::string_view, SlotKind>, 4> kinds{{
    {"text",  SlotKind::Text},
    {"money", SlotKind::Money},
    {"tick",  SlotKind::Tick},
    {"comb",  SlotKind::Comb},
}};
constexpr std::array<std::pair<std::string_view, SlotAlign>, 3> aligns{{
    {"start",  SlotAlign::Start},
    {"middle", SlotAlign::Middle},
    {"end",    SlotAlign::End},
}};
// clang-format on

/// One slot under way, and the template that messages about it name.
class SlotReader {
  public:
    SlotReader(const XmlElement& element, std::string id, std::string_view templateName)
        : element_(element), templateName_(templateName), id_(std::move(id)) {}

    [[nodiscard]] Slot read() const {
        for (std::optional<XmlElement> around = element_; around; around = around->parent())
            if (around->attribute("transform")) refuse("อยู่ในกลุ่มที่มี transform");
        Slot slot;
        slot.field = id_;
        slot.box = {number("x", 0), number("y", 0), number("width", 0), number("height", 0)};
        if (slot.box.width <= 0 || slot.box.height <= 0) refuse("ไม่มีความกว้างหรือความสูง");
        slot.kind = word("data-kind", kinds, SlotKind::Text);
        slot.align =
            word("data-align", aligns, slot.kind == SlotKind::Money ? SlotAlign::End : SlotAlign::Start);
        slot.size = number("data-size", slot.size);
        slot.lines = static_cast<int>(number("data-lines", 1));
        if (slot.size <= 0 || slot.lines < 1) refuse("data-size หรือ data-lines ไม่ถูกต้อง");
        if (slot.kind == SlotKind::Comb) addCells(slot);
        if (slot.kind == SlotKind::Tick) partTick(slot);
        return slot;
    }

  private:
    [[noreturn]] void refuse(const std::string& cause) const {
        throw ReportError(report_error::templateMissing,
            "แบบพิมพ์ " + std::string(templateName_) + " ช่อง " + id_ + ": " + cause);
    }

    [[nodiscard]] double parsed(const char* name, std::string_view text) const {
        double value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc{} || end != text.data() + text.size())
            refuse(std::string(name) + " ไม่ใช่ตัวเลข: " + std::string(text));
        return value;
    }

    [[nodiscard]] double number(const char* name, double otherwise) const {
        const auto text = element_.attribute(name);
        return text ? parsed(name, *text) : otherwise;
    }

    template <typename Words, typename Value>
    [[nodiscard]] Value word(const char* name, const Words& words, Value otherwise) const {
        const auto text = element_.attribute(name);
        if (!text) return otherwise;
        const auto found = std::ranges::find(words, std::string_view(*text), &Words::value_type::first);
        if (found == words.end()) refuse("ไม่รู้จัก " + std::string(name) + ": " + *text);
        return found->second;
    }

    void addCells(Slot& slot) const {
        const std::string text = element_.attribute("data-cells").value_or("");
        for (std::size_t start = 0; (start = text.find_first_not_of(' ', start)) != std::string::npos;) {
            const std::size_t end = std::min(text.find(' ', start), text.size());
            slot.cells.push_back(parsed("data-cells", std::string_view(text).substr(start, end - start)));
            start = end;
        }
        slot.cellWidth = number("data-cell", 0);
        if (slot.cells.empty() || slot.cellWidth <= 0) refuse("ไม่มีช่องตัวอักษร (data-cells, data-cell)");
    }

    static void partTick(Slot& slot) {
        const std::size_t point = slot.field.find('.');
        if (point == std::string::npos) return;
        slot.tickedBy = slot.field.substr(point + 1);
        slot.field.resize(point);
    }

    const XmlElement& element_;
    std::string_view templateName_;
    std::string id_;
};

bool isUnpainted(const XmlElement& element) {
    // An editor may write its paint as attributes or as a style.
    const std::string style = element.attribute("style").value_or("");
    const auto styled = [&](std::string_view text) { return style.find(text) != std::string::npos; };
    const bool hasFill = element.attribute("fill") != "none" && !styled("fill:none");
    const bool hasStroke = element.attribute("stroke").value_or("none") != "none"
                           || (styled("stroke:") && !styled("stroke:none"));
    return !hasFill && !hasStroke;
}

} // namespace

std::optional<Slot> slotOf(const XmlElement& element, std::string_view templateName) {
    if (element.name() != "rect") return std::nullopt;
    std::string id = element.attribute("id").value_or("");
    if (id.empty() || !isUnpainted(element)) return std::nullopt;
    return SlotReader(element, std::move(id), templateName).read();
}

} // namespace lodge
