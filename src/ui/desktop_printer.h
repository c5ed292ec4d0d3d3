// The report engine of the desktop: it takes the pages of a run, and shows them once the run is over.
//
// A run is over when the command that began it has returned, which is when the event loop turns again and no
// box waits for its answer. So the preview never stands inside the run, and a run that failed shows the pages
// that were taken before.
#pragma once

#include "program/pdf_press.h"
#include "program/program.h"
#include "ui/print_preview.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <filesystem>
#include <memory>

namespace lodge {

class Binder;
class Look;

class DesktopPrinter : public QObject, public ReportEngine {
    Q_OBJECT

  public:
    /// The module that draws is loaded, from that folder, when something is printed for the first time.
    DesktopPrinter(Program& program, Binder& binder, const Look& look, std::filesystem::path moduleFolder);
    ~DesktopPrinter() override;

    void setReportFileName(const std::filesystem::path& path) override;
    void setFormula(std::size_t slot, const std::string& text) override;
    void setOutputOption(long option) override;
    void setAction(int action) override;

    /// The preview on screen, nullptr when there is none.
    [[nodiscard]] PrintPreview* preview() const { return preview_; }

  private:
    void beginRun();
    void closePreview();
    void endRun();
    [[nodiscard]] PrintedReturn printed() const;

    Program& program_;
    Binder& binder_;
    const Look& look_;
    std::filesystem::path moduleFolder_;
    std::unique_ptr<PdfPress> press_;
    QPointer<PrintPreview> preview_;
    QString pageName_; // of the job under way
    QStringList pageNames_;
    bool running_ = false;
    QTimer end_;
};

} // namespace lodge
