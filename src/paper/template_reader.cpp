#include "paper/template_reader.h"

#include "paper/caption_reader.h"
#include "paper/slot_reader.h"
#include "paper/xml_element.h"
#include "program/report_engine.h"

#include <algorithm>
#include <libxml/parser.h>
#include <tuple>

namespace lodge {

namespace {

// The page in millimetres, the one unit of slots.
constexpr std::string_view pageBox = "0 0 210 297";

XmlOwner<xmlDoc> parse(std::string_view svg) {
    constexpr int quietly = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    return XmlOwner<xmlDoc>(
        xmlReadMemory(svg.data(), static_cast<int>(svg.size()), nullptr, nullptr, quietly));
}

[[noreturn]] void refuse(std::string_view name, const std::string& cause) {
    throw ReportError(report_error::templateMissing, "แบบพิมพ์ " + std::string(name) + cause);
}

/// The elements below a node in the order of the text.
void collectElements(xmlNode& above, std::vector<xmlNode*>& elements) {
    for (xmlNode* node = above.children; node != nullptr; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) continue;
        elements.push_back(node);
        collectElements(*node, elements);
    }
}

std::string textOf(xmlDoc& document) {
    xmlChar* bytes = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(&document, &bytes, &size, "UTF-8");
    const XmlOwner<xmlChar> owner(bytes);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

void sortSlots(std::vector<Slot>& slots, std::string_view name) {
    const auto key = [](const Slot& slot) { return std::tie(slot.field, slot.tickedBy); };
    std::ranges::sort(slots, {}, key);
    const auto twin = std::ranges::adjacent_find(slots, {}, key);
    if (twin != slots.end()) refuse(name, " มีช่อง " + twin->field + " ซ้ำกัน");
}

} // namespace

TemplateParts readTemplate(std::string_view svg, std::string_view name) {
    const XmlOwner<xmlDoc> document = parse(svg);
    xmlNode* const root = document == nullptr ? nullptr : xmlDocGetRootElement(document.get());
    if (root == nullptr || XmlElement(*root).name() != "svg") refuse(name, " ไม่ใช่ภาพ SVG");
    if (XmlElement(*root).attribute("viewBox") != pageBox)
        refuse(name, " ไม่ได้วาดบนหน้า A4 เป็นมิลลิเมตร (viewBox)");

    std::vector<xmlNode*> elements;
    collectElements(*root, elements);
    // A style sheet may say of any text what the text itself does not.
    const bool hasStyles =
        std::ranges::any_of(elements, [](xmlNode* node) { return XmlElement(*node).name() == "style"; });

    TemplateParts parts;
    std::vector<XmlOwner<xmlNode>> removed; // kept until the end: what stands in them is still walked through
    for (xmlNode* const node : elements) {
        const XmlElement element(*node);
        auto slot = slotOf(element, name);
        auto caption = hasStyles ? std::nullopt : captionOf(element);
        if (!slot && !caption) continue;
        if (slot) parts.slots.push_back(*std::move(slot));
        if (caption) parts.captions.push_back(*std::move(caption));
        xmlUnlinkNode(node);
        removed.emplace_back(node);
    }
    sortSlots(parts.slots, name);
    parts.drawing = textOf(*document);
    return parts;
}

} // namespace lodge
