#include "ui/desktop_printer.h"

#include "file/file_io.h"
#include "file/store_load.h"
#include "print/document_data.h"
#include "print/field_map.h"
#include "print/press_loader.h"
#include "ui/binder.h"
#include "ui/look.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace lodge {

namespace {

/// The mouse pointer shows that the program is at work, however the work ends.
class Busy {
  public:
    explicit Busy(Host& host) : host_(host) { host_.setBusy(true); }
    ~Busy() { host_.setBusy(false); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    Host& host_;
};

/// What the person knows the page as: its number in the print range, and what an attachment is.
QString nameOf(const std::filesystem::path& report) {
    const auto templates = reportTemplates();
    const std::string name = report.stem().string();
    const auto row = std::ranges::find(templates, name, &ReportTemplate::name);
    if (row == templates.end()) {
        return QString::fromStdString(name);
    }
    constexpr int headquarters = 9;
    const QString number = QStringLiteral("หน้า %1").arg(row->page);
    return row->page < headquarters    ? number
           : row->page == headquarters ? number + QStringLiteral("\nใบแนบ IHQ")
                                       : number + QStringLiteral("\nใบแนบ");
}

/// The name of the file that a store of the return writes.
std::string storedNameOf(const ReturnState& state) {
    constexpr std::size_t idField = 45;
    return returnFileNames(state, state.strFldPage1[idField]).packed;
}

/// Beside the stored return, or among the person's documents.
QString suggestedFile(const ReturnState& state) {
    const std::string folder = splitPath(packedPathOf(state.strFileName)).folder;
    const QDir place(folder.empty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                    : QFile::decodeName(QByteArray::fromStdString(folder)));
    const std::string stem = std::filesystem::path(storedNameOf(state)).stem().string();
    return place.filePath(QString::fromStdString(stem) + QStringLiteral(".pdf"));
}

} // namespace

DesktopPrinter::DesktopPrinter(
    Program& program, Binder& binder, const Look& look, std::filesystem::path moduleFolder)
    : program_(program), binder_(binder), look_(look), moduleFolder_(std::move(moduleFolder)) {
    end_.setSingleShot(true);
    connect(&end_, &QTimer::timeout, this, &DesktopPrinter::endRun);
    connect(&binder, &Binder::waitsOver, this, [this] {
        if (running_) end_.start(0);
    });
}

DesktopPrinter::~DesktopPrinter() { closePreview(); }

void DesktopPrinter::closePreview() {
    if (preview_ != nullptr) {
        preview_->reject();
        delete preview_;
    }
}

void DesktopPrinter::beginRun() {
    if (press_ == nullptr) {
        try {
            press_ = loadPdfPress(moduleFolder_);
        } catch (const ReportError& error) {
            throw ReportError(error.number(), std::string("ไม่พบส่วนของโปรแกรมที่ใช้พิมพ์ (") + error.what() + ')');
        }
    }
    closePreview(); // its pages go
    press_->beginDocument();
    pageNames_.clear();
    running_ = true;
    end_.start(0);
}

void DesktopPrinter::setReportFileName(const std::filesystem::path& path) {
    const Busy busy(program_.host());
    if (!running_) {
        beginRun();
    }
    pageName_ = nameOf(path);
    press_->setReportFileName(path);
}

void DesktopPrinter::setFormula(std::size_t slot, const std::string& text) { press_->setFormula(slot, text); }

void DesktopPrinter::setOutputOption(long option) { press_->setOutputOption(option); }

void DesktopPrinter::setAction(int action) {
    const Busy busy(program_.host());
    press_->setAction(action);
    pageNames_ << pageName_;
}

PrintedReturn DesktopPrinter::printed() const {
    const ReturnState& state = program_.state;
    return {.press = *press_,
        .pageNames = pageNames_,
        .title = documentTitle(state),
        .file = suggestedFile(state),
        .data = attachedData(state, storedNameOf(state))};
}

void DesktopPrinter::endRun() {
    if (!running_ || binder_.isWaiting()) {
        return; // a box tells what went wrong; its end comes here again
    }
    running_ = false;
    if (press_->pageCount() == 0) {
        return;
    }
    preview_ = new PrintPreview(program_, printed(), binder_.frame());
    preview_->setAttribute(Qt::WA_DeleteOnClose);
    preview_->setWindowModality(Qt::ApplicationModal);
    look_.dress(*preview_);
    // Like a box: while it stands there, nothing of the program moves behind it.
    binder_.waitBegins();
    connect(preview_, &QDialog::finished, this, [this] { binder_.waitEnds(); });
    preview_->show();
}

} // namespace lodge
