// What is drawn on, by the name that the drawing library gives it: users of a page need not know that
// library.
#pragma once

// NOLINTNEXTLINE(bugprone-reserved-identifier): the library's own.
using cairo_t = struct _cairo;
