// The printed return before it is printed: its pages to look at, and the ways onto paper and into a file.
#pragma once

#include "program/pdf_press.h"
#include "program/program.h"
#include "ui/page_strip.h"
#include "ui/paper_job.h"

#include <QDialog>
#include <QStringList>
#include <QTimer>

class QComboBox;
class QLabel;
class QListWidget;
class QProgressBar;

namespace lodge {

class ToolButton;

/// A run that has come to its end. The press keeps its pages until the next one begins.
struct PrintedReturn {
    PdfPress& press;
    QStringList pageNames;
    std::string title;
    /// Where a PDF of it is stored, unless the person says otherwise.
    QString file;
    Attachment data;
};

class PrintPreview : public QDialog {
    Q_OBJECT

  public:
    PrintPreview(Program& program, PrintedReturn printed, QWidget* parent);

    /// Asks where to, and stores the document there.
    void askAndSave();
    /// Stores the document as a PDF, safely, with the data of the return in it. False, after a box that tells
    /// why, when it could not be stored.
    bool savePdf(const QString& file);
    /// Asks for a printer; where the machine has none, a box says what to do.
    void askAndPrint();
    void print(const PaperJob& job);

  private:
    QWidget* makeTools();
    QWidget* makePages();
    QWidget* makeStatus();
    ToolButton* addTool(QWidget& tools, const char* icon, const QString& caption, const QString& key);
    void bindKeys();
    void showZoom();
    void chooseZoom(int entry);
    void drawThumbnail();
    void say(const QString& text, const char* tone = "");
    [[nodiscard]] QImage draw(int page, double pixelsPerInch);
    /// The bytes of the document; empty, after a box that tells why, when there is none.
    [[nodiscard]] const std::string& document();
    void tellFailure(const ReportError& error);

    Program& program_;
    PrintedReturn printed_;
    std::string document_;
    bool failed_ = false; // told once, however many pages fail
    PageStrip* strip_;
    QListWidget* pages_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLabel* number_ = nullptr;
    QLabel* note_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QTimer thumbnails_;
    int nextThumbnail_ = 0;
};

} // namespace lodge
