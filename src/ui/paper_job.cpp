#include "ui/paper_job.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <utility>

namespace lodge {

namespace {

constexpr int longestWait = 60'000; // milliseconds; a queue takes a document at once, or is out of reach

QString pagesOf(const QPrinter& printer, int currentPage) {
    switch (printer.printRange()) {
    case QPrinter::PageRange: return printer.pageRanges().toString();
    case QPrinter::CurrentPage: return QString::number(currentPage + 1);
    default: return {};
    }
}

PaperJob::Sides sidesOf(const QPrinter& printer) {
    switch (printer.duplex()) {
    case QPrinter::DuplexLongSide:
    case QPrinter::DuplexAuto: return PaperJob::Sides::TwoLongEdge;
    case QPrinter::DuplexShortSide: return PaperJob::Sides::TwoShortEdge;
    default: return PaperJob::Sides::One;
    }
}

QString optionOf(PaperJob::Sides sides) {
    switch (sides) {
    case PaperJob::Sides::TwoLongEdge: return QStringLiteral("sides=two-sided-long-edge");
    case PaperJob::Sides::TwoShortEdge: return QStringLiteral("sides=two-sided-short-edge");
    case PaperJob::Sides::One: break;
    }
    return QStringLiteral("sides=one-sided");
}

} // namespace

bool hasPrinters() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

std::optional<PaperJob> askForPaper(int pageCount, int currentPage, const QString& title, QWidget* parent) {
    QPrinter printer;
    printer.setDocName(title);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(QStringLiteral("พิมพ์"));
    // A PDF is stored by the preview itself, with the data in it.
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, pageCount);
    dialog.setFromTo(1, pageCount);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return PaperJob{.printer = printer.printerName(),
        .title = title,
        .pages = pagesOf(printer, currentPage),
        .copies = printer.copyCount(),
        .sides = sidesOf(printer),
        .inColour = printer.colorMode() == QPrinter::Color};
}

QStringList lpArguments(const PaperJob& job) {
    QStringList arguments = {QStringLiteral("-d"), job.printer, QStringLiteral("-t"), job.title,
        QStringLiteral("-n"), QString::number(job.copies), QStringLiteral("-o"), QStringLiteral("media=A4"),
        QStringLiteral("-o"), optionOf(job.sides)};
    if (!job.inColour) {
        arguments << QStringLiteral("-o") << QStringLiteral("print-color-mode=monochrome");
    }
    if (!job.pages.isEmpty()) {
        arguments << QStringLiteral("-P") << job.pages;
    }
    return arguments;
}

void PaperSender::send(const PaperJob& job, const QByteArray& document, Done done) {
    auto* sender = new PaperSender(job, document, std::move(done));
    sender->setParent(QCoreApplication::instance());
}

PaperSender::PaperSender(const PaperJob& job, const QByteArray& document, Done done)
    : done_(std::move(done)) {
    connect(&lp_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            end(QStringLiteral("ไม่พบคำสั่ง lp ของระบบพิมพ์ CUPS (แพ็กเกจ cups-client)"));
        }
    });
    connect(&lp_, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        const bool taken = status == QProcess::NormalExit && code == 0;
        const QString cause = QString::fromLocal8Bit(lp_.readAllStandardError()).trimmed();
        end(taken ? QString() : cause.isEmpty() ? QStringLiteral("ระบบพิมพ์ไม่รับงาน") : cause);
    });
    connect(&patience_, &QTimer::timeout, this, [this] { end(QStringLiteral("ระบบพิมพ์ไม่ตอบ")); });
    patience_.setSingleShot(true);
    patience_.start(longestWait);
    lp_.start(QStringLiteral("lp"), lpArguments(job));
    lp_.write(document);
    lp_.closeWriteChannel();
}

void PaperSender::end(const QString& cause) {
    if (const Done done = std::exchange(done_, nullptr)) {
        done(cause);
        deleteLater();
    }
}

} // namespace lodge
