// The layouts that the Designer files of ui/layouts/ describe, one a form, found by the form's name; the
// pages of amounts are made from their tables.
//
// The registry behind this is written by the build from the list of files: a new page is a new file.
#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>
#include <string_view>

namespace lodge {

/// Builds the widgets of a form; nothing for a form without a layout.
[[nodiscard]] std::unique_ptr<QWidget> makeLayout(std::string_view form);
/// The names of all forms that have a layout.
[[nodiscard]] QStringList layoutNames();

/// Makes the root that a layout wants and sets it up.
template <typename Layout, typename Root>
std::unique_ptr<QWidget> build(void (Layout::*setUp)(Root*)) {
    auto root = std::make_unique<Root>();
    Layout layout;
    (layout.*setUp)(root.get());
    return root;
}

} // namespace lodge
