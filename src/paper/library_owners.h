// Owners of what the drawing libraries hand out, so that nothing of theirs is freed by hand.
#pragma once

#include <cairo.h>
#include <glib-object.h>
#include <memory>
#include <string>

namespace lodge {

struct UnrefGlibObject {
    template <typename Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

template <typename Object>
using GlibOwner = std::unique_ptr<Object, UnrefGlibObject>;

struct DestroyCairoObject {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

template <typename Object>
using CairoOwner = std::unique_ptr<Object, DestroyCairoObject>;

/// The text of an error, which is freed.
[[nodiscard]] inline std::string takeMessage(GError* error) {
    std::string message = error == nullptr ? "no cause given" : error->message;
    g_clear_error(&error);
    return message;
}

} // namespace lodge
