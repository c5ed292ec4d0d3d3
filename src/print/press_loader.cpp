#include "print/press_loader.h"

#include <dlfcn.h>

namespace lodge {

std::unique_ptr<PdfPress> loadPdfPress(const std::filesystem::path& folder) {
    void* const module = dlopen((folder / pdfPressModule).c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const function = module == nullptr ? nullptr : dlsym(module, makePdfPressName);
    if (function == nullptr) throw ReportError(report_error::noEngine, dlerror());
    return std::unique_ptr<PdfPress>(reinterpret_cast<MakePdfPress>(function)());
}

} // namespace lodge
