// An element of an XML text, for the readers of a template.
#pragma once

#include <libxml/tree.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

struct FreeXml {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    void operator()(xmlNode* node) const { xmlFreeNode(node); }
    void operator()(xmlChar* text) const { xmlFree(text); }
};

template <typename Object>
using XmlOwner = std::unique_ptr<Object, FreeXml>;

class XmlElement {
  public:
    /// The element must stay in its document while this is used.
    explicit XmlElement(xmlNode& node) : node_(&node) {}

    [[nodiscard]] xmlNode& node() const { return *node_; }
    [[nodiscard]] std::string_view name() const;
    /// An attribute without a namespace; nothing when it is not there.
    [[nodiscard]] std::optional<std::string> attribute(const char* name) const;
    /// Whether an element of a text keeps its blanks: xml:space, its own or that of an element around it.
    [[nodiscard]] bool keepsBlanks() const;
    /// The element around this one; nothing for the outermost.
    [[nodiscard]] std::optional<XmlElement> parent() const;
    /// The text in it; nothing when there is another element in it.
    [[nodiscard]] std::optional<std::string> text() const;

  private:
    xmlNode* node_;
};

} // namespace lodge
