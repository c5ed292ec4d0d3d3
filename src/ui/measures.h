// The measures that a layout was designed with, drawn larger or smaller: least and greatest sizes, margins,
// gaps.
#pragma once

class QWidget;

namespace lodge {

/// Has everything in the widget, itself included, measure `zoom` times its design. The design is what it
/// measured when it first came here; a main window keeps the least size that it has.
void zoomMeasures(QWidget& root, double zoom);

} // namespace lodge
