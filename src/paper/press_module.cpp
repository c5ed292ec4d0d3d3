// The door of the module that the programs load when they print.

#include "paper/paper_press.h"

extern "C" __attribute__((visibility("default"))) lodge::PdfPress* makePdfPress() {
    return new lodge::PaperPress;
}
