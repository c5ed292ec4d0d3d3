#include "paper/drawn_template.h"

#include "paper/library_owners.h"
#include "program/report_engine.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <librsvg/rsvg.h>
#include <system_error>
#include <utility>

namespace lodge {

namespace {

GlibOwner<RsvgHandle> parse(const std::string& name, std::string_view svg) {
    GError* error = nullptr;
    GlibOwner<RsvgHandle> handle(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), &error));
    if (handle == nullptr) {
        throw ReportError(
            report_error::templateMissing, "แบบพิมพ์ " + name + " ไม่ใช่ภาพ SVG: " + takeMessage(error));
    }
    return handle;
}

/// Why a template cannot be read, as a person can act on it.
std::string readFailureCause(int error) {
    switch (error) {
    case 0: return "ไฟล์ว่าง";
    case ENOENT:
    case ENOTDIR: return "ไม่พบไฟล์";
    case EACCES: return "ไม่มีสิทธิ์อ่านไฟล์";
    default: return std::generic_category().message(error);
    }
}

std::string contentOf(const std::filesystem::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(stream), {}};
    if (!stream || content.empty()) {
        const std::string cause = readFailureCause(errno);
        throw ReportError(report_error::templateMissing, "อ่านแบบพิมพ์ " + file.string() + " ไม่ได้: " + cause);
    }
    return content;
}

} // namespace

struct DrawnTemplate::Drawing {
    GlibOwner<RsvgHandle> handle;
};

DrawnTemplate::DrawnTemplate(std::string name, std::string_view svg)
    : name_(std::move(name)), parts_(readTemplate(svg, name_)),
      drawing_(std::make_unique<Drawing>(Drawing{parse(name_, parts_.drawing)})) {}

DrawnTemplate::~DrawnTemplate() = default;

std::span<const Slot> DrawnTemplate::slotsOf(std::string_view field) const {
    return {std::ranges::lower_bound(parts_.slots, field, {}, &Slot::field),
        std::ranges::upper_bound(parts_.slots, field, {}, &Slot::field)};
}

void DrawnTemplate::draw(cairo_t* surface) const {
    const RsvgRectangle page{.x = 0, .y = 0, .width = pageWidth, .height = pageHeight};
    GError* error = nullptr;
    if (rsvg_handle_render_document(drawing_->handle.get(), surface, &page, &error) == 0)
        throw ReportError(report_error::programFault, "วาดแบบพิมพ์ " + name_ + " ไม่ได้: " + takeMessage(error));
}

std::shared_ptr<const DrawnTemplate> TemplateShelf::take(const std::filesystem::path& file) {
    if (const auto found = templates_.find(file); found != templates_.end()) return found->second;
    auto read = std::make_shared<const DrawnTemplate>(file.filename().string(), contentOf(file));
    templates_.emplace(file, read);
    return read;
}

} // namespace lodge
