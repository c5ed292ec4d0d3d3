#include "paper/xml_element.h"

namespace lodge {

namespace {

std::string takeText(xmlChar* text) {
    const XmlOwner<xmlChar> owner(text);
    return text == nullptr ? std::string{} : std::string(reinterpret_cast<const char*>(text));
}

} // namespace

std::string_view XmlElement::name() const { return reinterpret_cast<const char*>(node_->name); }

std::optional<std::string> XmlElement::attribute(const char* name) const {
    xmlChar* const value = xmlGetNoNsProp(node_, BAD_CAST name);
    return value == nullptr ? std::nullopt : std::optional(takeText(value));
}

bool XmlElement::keepsBlanks() const { return xmlNodeGetSpacePreserve(node_) == 1; }

std::optional<XmlElement> XmlElement::parent() const {
    xmlNode* const parent = node_->parent;
    if (parent == nullptr || parent->type != XML_ELEMENT_NODE) return std::nullopt;
    return XmlElement(*parent);
}

std::optional<std::string> XmlElement::text() const {
    if (xmlFirstElementChild(node_) != nullptr) return std::nullopt;
    return takeText(xmlNodeGetContent(node_));
}

} // namespace lodge
