#include "ui/print_preview.h"

#include "file/file_operations.h"
#include "file/safe_writer.h"
#include "print/print_return.h"
#include "ui/dress.h"
#include "ui/tool_button.h"
#include "ui/tool_strip.h"
#include "ui/type.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <array>
#include <utility>

namespace lodge {

namespace {

constexpr QSize startSize{1180, 860};
constexpr QSize leastSize{560, 360}; // at twice its size still on a small screen
constexpr int toolsHeight = 46;
constexpr int statusHeight = 28;
constexpr int listWidth = 172;
constexpr int zoomWidth = 156;
constexpr QSize thumbnailSize{62, 88};
constexpr int thumbnailRow = 100;
/// Small letters are drawn larger and made smaller: so they become grey lines instead of a jumble.
constexpr int finer = 3;
constexpr int progressWidth = 160;

struct FitChoice {
    PageStrip::Fit fit;
    const char* name;
};
constexpr std::array fits = {
    FitChoice{PageStrip::Fit::Width, "พอดีความกว้าง"},
    FitChoice{PageStrip::Fit::Page, "พอดีทั้งหน้า"},
};

QString percent(double zoom) { return QStringLiteral("%1%").arg(qRound(zoom * 100)); }

QString shownPath(const QString& file) { return QStringLiteral("จัดเก็บแล้วที่ %1").arg(file); }

} // namespace

PrintPreview::PrintPreview(Program& program, PrintedReturn printed, QWidget* parent)
    : QDialog(parent), program_(program), printed_(std::move(printed)),
      strip_(new PageStrip(static_cast<int>(printed_.press.pageCount()),
          [this](int page, double pixelsPerInch) { return draw(page, pixelsPerInch); })) {
    setWindowTitle(QStringLiteral("ดูก่อนพิมพ์"));
    setWindowFlags(
        Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint);
    setProperty("role", QByteArray("ground"));
    strip_->setAccessibleName(QStringLiteral("หน้าที่จะพิมพ์"));

    auto* middle = new QHBoxLayout;
    middle->setContentsMargins(0, 0, 0, 0);
    middle->setSpacing(0);
    middle->addWidget(makePages());
    middle->addWidget(strip_, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeTools());
    rows->addLayout(middle, 1);
    rows->addWidget(makeStatus());
    bindKeys();

    connect(strip_, &PageStrip::pageChanged, this, [this](int page) {
        pages_->setCurrentRow(page);
        number_->setText(QStringLiteral("หน้า %1 จาก %2").arg(page + 1).arg(strip_->pageCount()));
    });
    connect(pages_, &QListWidget::currentRowChanged, strip_, &PageStrip::goTo);
    connect(strip_, &PageStrip::zoomChanged, this, &PrintPreview::showZoom);
    connect(&thumbnails_, &QTimer::timeout, this, &PrintPreview::drawThumbnail);
    // First what the person looks at, then the list beside it.
    connect(strip_, &PageStrip::viewDrawn, &thumbnails_, [this] { thumbnails_.start(); });
    pages_->setCurrentRow(0);
    setMinimumSize(leastSize);
    const QSize room = screen()->availableSize();
    resize(startSize.boundedTo(room * 0.95));
    strip_->setFocus();
}

ToolButton* PrintPreview::addTool(
    QWidget& tools, const char* icon, const QString& caption, const QString& key) {
    auto* button = new ToolButton(&tools);
    button->setText(caption);
    button->setKeyHint(key);
    button->setAccessibleName(caption);
    button->setFocusPolicy(Qt::TabFocus);
    button->setProperty("drawing", QByteArray(icon));
    tools.layout()->addWidget(button);
    return button;
}

QWidget* PrintPreview::makeTools() {
    auto* tools = new ToolStrip;
    tools->setProperty("role", QByteArray("tools"));
    tools->setFixedHeight(toolsHeight);
    auto* row = new QHBoxLayout(tools);
    row->setContentsMargins(8, 0, 12, 0);
    row->setSpacing(2);
    connect(addTool(*tools, "print", QStringLiteral("พิมพ์"), QStringLiteral("Ctrl+P")), &ToolButton::clicked,
        this, &PrintPreview::askAndPrint);
    connect(addTool(*tools, "store", QStringLiteral("จัดเก็บเป็น PDF"), QStringLiteral("Ctrl+S")),
        &ToolButton::clicked, this, &PrintPreview::askAndSave);
    row->addStretch(1);
    number_ = new QLabel(QStringLiteral("หน้า 1 จาก %1").arg(strip_->pageCount()));
    row->addWidget(number_);
    row->addSpacing(16);
    zoom_ = new QComboBox;
    zoom_->setAccessibleName(QStringLiteral("ขนาดที่แสดง"));
    zoom_->setMinimumWidth(zoomWidth);
    for (const FitChoice& choice : fits) {
        zoom_->addItem(QString::fromUtf8(choice.name));
    }
    for (const double step : PageStrip::zoomSteps) {
        zoom_->addItem(percent(step));
    }
    connect(zoom_, &QComboBox::activated, this, &PrintPreview::chooseZoom);
    row->addWidget(zoom_);
    row->addSpacing(8);
    connect(addTool(*tools, "exit", QStringLiteral("ปิด"), QStringLiteral("Esc")), &ToolButton::clicked, this,
        &QDialog::reject);
    return tools;
}

QWidget* PrintPreview::makePages() {
    pages_ = new QListWidget;
    pages_->setProperty("role", QByteArray("pages"));
    pages_->setAccessibleName(QStringLiteral("รายชื่อหน้า"));
    pages_->setFixedWidth(listWidth);
    pages_->setIconSize(thumbnailSize);
    pages_->setUniformItemSizes(true);
    pages_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPixmap blank(thumbnailSize);
    blank.fill(Qt::white);
    for (const QString& name : std::as_const(printed_.pageNames)) {
        auto* item = new QListWidgetItem(QIcon(blank), name, pages_);
        item->setSizeHint({0, std::max(thumbnailRow, zoomed(thumbnailRow) * 3 / 4)});
    }
    return pages_;
}

QWidget* PrintPreview::makeStatus() {
    auto* status = new QFrame;
    status->setProperty("role", QByteArray("status"));
    status->setFixedHeight(statusHeight);
    auto* row = new QHBoxLayout(status);
    row->setContentsMargins(12, 0, 12, 0);
    note_ = new QLabel;
    note_->setProperty("type", QByteArray("label"));
    row->addWidget(note_, 1);
    progress_ = new QProgressBar;
    progress_->setAccessibleName(QStringLiteral("หน้าที่วาดแล้ว"));
    progress_->setRange(0, strip_->pageCount());
    progress_->setTextVisible(false);
    progress_->setFixedSize(progressWidth, 8);
    row->addWidget(progress_);
    say(QStringLiteral("กำลังวาดหน้า 1 จาก %1").arg(strip_->pageCount()));
    return status;
}

void PrintPreview::bindKeys() {
    const auto bind = [this](const QList<QKeySequence>& keys, auto what) {
        for (const QKeySequence& key : keys) {
            connect(new QShortcut(key, this), &QShortcut::activated, this, what);
        }
    };
    // clang-format off
    bind({Qt::CTRL | Qt::Key_P, Qt::Key_F12},              [this] { askAndPrint(); });
    bind({Qt::CTRL | Qt::Key_S},                           [this] { askAndSave(); });
    bind({Qt::Key_PageUp},                                 [this] { strip_->goTo(strip_->currentPage() - 1); });
    bind({Qt::Key_PageDown},                               [this] { strip_->goTo(strip_->currentPage() + 1); });
    bind({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { strip_->stepZoom(1); });
    bind({Qt::CTRL | Qt::Key_Minus},                       [this] { strip_->stepZoom(-1); });
    bind({Qt::CTRL | Qt::Key_0},                           [this] { strip_->setZoom(1); });
    bind({Qt::CTRL | Qt::Key_1},                           [this] { strip_->fit(PageStrip::Fit::Page); });
    bind({Qt::CTRL | Qt::Key_2},                           [this] { strip_->fit(PageStrip::Fit::Width); });
    // clang-format on
}

void PrintPreview::chooseZoom(int entry) {
    const auto index = static_cast<std::size_t>(entry);
    if (index < fits.size()) {
        strip_->fit(fits.at(index).fit);
    } else {
        strip_->setZoom(PageStrip::zoomSteps.at(index - fits.size()));
    }
    strip_->setFocus();
}

void PrintPreview::showZoom() {
    const auto fit = std::ranges::find(fits, strip_->fitting(), &FitChoice::fit);
    const auto step = std::ranges::lower_bound(PageStrip::zoomSteps, strip_->zoom());
    const auto entry = fit != fits.end()
                           ? fit - fits.begin()
                           : step - PageStrip::zoomSteps.begin() + static_cast<std::ptrdiff_t>(fits.size());
    zoom_->setCurrentIndex(static_cast<int>(entry));
}

QImage PrintPreview::draw(int page, double pixelsPerInch) {
    try {
        const PageImage image = printed_.press.pageImage(static_cast<std::size_t>(page), pixelsPerInch);
        constexpr qsizetype pixelBytes = 4;
        return QImage(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
            image.width * pixelBytes, QImage::Format_RGB32)
            .copy();
    } catch (const ReportError& error) {
        tellFailure(error);
        return {};
    }
}

/// One a turn of the event loop, so that the window answers meanwhile.
void PrintPreview::drawThumbnail() {
    if (nextThumbnail_ == strip_->pageCount()) {
        thumbnails_.stop();
        return;
    }
    const double scale = devicePixelRatioF();
    const QImage page = draw(nextThumbnail_, finer * scale * thumbnailSize.width() / paperWidth);
    if (!page.isNull()) {
        QPixmap small = QPixmap::fromImage(
            page.scaled(thumbnailSize * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        small.setDevicePixelRatio(scale);
        QIcon icon(small);
        icon.addPixmap(small, QIcon::Selected); // a page that is chosen stays as white as the others
        pages_->item(nextThumbnail_)->setIcon(icon);
    }
    ++nextThumbnail_;
    progress_->setValue(nextThumbnail_);
    const bool isLast = nextThumbnail_ == strip_->pageCount();
    progress_->setVisible(!isLast);
    if (note_->property("tone").toString().isEmpty()) {
        say(isLast ? QStringLiteral("PgUp, PgDn ไปหน้าก่อนหรือหน้าถัดไป   Ctrl กับลูกล้อเมาส์ย่อหรือขยาย")
                   : QStringLiteral("กำลังวาดหน้า %1 จาก %2").arg(nextThumbnail_ + 1).arg(strip_->pageCount()));
    }
}

void PrintPreview::say(const QString& text, const char* tone) {
    setWorn(*note_, "tone", tone);
    note_->setText(text);
}

void PrintPreview::tellFailure(const ReportError& error) {
    if (!std::exchange(failed_, true)) {
        program_.show(printFailureBox(error));
    }
}

const std::string& PrintPreview::document() {
    if (document_.empty()) {
        failed_ = false; // the person has asked again
        try {
            document_ = printed_.press.finishDocument(printed_.title, printed_.data);
        } catch (const ReportError& error) {
            tellFailure(error);
        }
    }
    return document_;
}

void PrintPreview::askAndSave() {
    QFileDialog dialog(this, QStringLiteral("จัดเก็บเป็น PDF"));
    dialog.setOption(QFileDialog::DontUseNativeDialog); // it would bring its own language
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(QStringLiteral("PDF (*.pdf)"));
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const QFileInfo suggested(printed_.file);
    dialog.setDirectory(suggested.path());
    dialog.selectFile(suggested.fileName());
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        savePdf(dialog.selectedFiles().constFirst());
    }
}

bool PrintPreview::savePdf(const QString& file) {
    const std::string& bytes = document();
    if (bytes.empty()) {
        return false;
    }
    SystemFiles files;
    const SafeStoreResult stored = storeSafely(files, QFile::encodeName(file).toStdString(), bytes);
    if (!stored.ok()) {
        program_.notify(storeFailureText(stored));
        return false;
    }
    printed_.file = file;
    say(shownPath(file), "ok");
    return true;
}

void PrintPreview::askAndPrint() {
    if (!hasPrinters()) {
        program_.show({.text = "ไม่พบเครื่องพิมพ์ในเครื่องนี้\rติดตั้งเครื่องพิมพ์ในการตั้งค่าของระบบก่อน หรือจัดเก็บเป็น PDF "
                               "แล้วนำไปพิมพ์ที่เครื่องอื่น",
            .title = "พิมพ์"});
        return;
    }
    const QString title = QString::fromStdString(printed_.title);
    if (const auto job = askForPaper(strip_->pageCount(), strip_->currentPage(), title, this)) {
        print(*job);
    }
}

void PrintPreview::print(const PaperJob& job) {
    const std::string& bytes = document();
    if (bytes.empty()) {
        return;
    }
    say(QStringLiteral("กำลังส่งไปที่เครื่องพิมพ์ %1").arg(job.printer));
    const QPointer<PrintPreview> window(this);
    const QString printer = job.printer;
    PaperSender::send(job, QByteArray::fromStdString(bytes), [window, printer](const QString& cause) {
        if (window == nullptr) {
            return;
        }
        if (cause.isEmpty()) {
            window->say(QStringLiteral("ส่งไปที่เครื่องพิมพ์ %1 แล้ว").arg(printer), "ok");
        } else {
            window->say(QStringLiteral("พิมพ์ไม่ได้: %1").arg(cause), "stop");
        }
    });
}

} // namespace lodge
