#include "ui/qt_host.h"

#include "ui/boxes.h"

#include <QApplication>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryFile>
#include <QUrl>

#include <array>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace lodge {

namespace {

std::filesystem::path toPath(const QString& name) { return {QFile::encodeName(name).toStdString()}; }

QString toName(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.string()));
}

/// "Text Files(*.txt)|*.txt" in the toolkit's own form, a filter a line.
QStringList filtersOf(const std::string& pairs) {
    const QStringList parts = QString::fromStdString(pairs).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
        filters << QStringLiteral("%1 (%2)").arg(name, parts[i + 1]);
    }
    return filters;
}

std::optional<std::filesystem::path> chosen(QFileDialog& dialog) {
    // The desktop's own dialog would bring its own language.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return toPath(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

} // namespace

template <typename Ask>
auto QtHost::waitFor(Ask ask) {
    class Waiting {
      public:
        explicit Waiting(WaitWatcher* watcher) : watcher_(watcher) {
            if (watcher_ != nullptr) watcher_->waitBegins();
        }
        ~Waiting() {
            if (watcher_ != nullptr) watcher_->waitEnds();
        }
        Waiting(const Waiting&) = delete;
        Waiting& operator=(const Waiting&) = delete;

      private:
        WaitWatcher* watcher_;
    };
    const Waiting waiting(watcher_);
    return ask();
}

Answer QtHost::show(const Box& box) {
    return waitFor([&] { return BoxWindow(box, QApplication::activeWindow()).wait(); });
}

std::optional<std::string> QtHost::ask(const InputBox& box) {
    return waitFor([&]() -> std::optional<std::string> {
        InputWindow window(box, QApplication::activeWindow());
        return window.exec() == QDialog::Accepted ? std::optional(window.text()) : std::nullopt;
    });
}

std::optional<std::filesystem::path> QtHost::chooseFile(const FileDialog& dialog) {
    return waitFor([&] {
        QFileDialog window(
            QApplication::activeWindow(), QString::fromStdString(dialog.title), toName(dialog.folder));
        window.setFileMode(QFileDialog::ExistingFile);
        window.setNameFilters(filtersOf(dialog.filter));
        return chosen(window);
    });
}

std::optional<std::filesystem::path> QtHost::chooseFolder(const std::filesystem::path& start) {
    return waitFor([&] {
        QFileDialog window(QApplication::activeWindow(), QString(), toName(start));
        window.setFileMode(QFileDialog::Directory);
        window.setOption(QFileDialog::ShowDirsOnly);
        return chosen(window);
    });
}

std::optional<PageRange> QtHost::choosePages() {
    return waitFor([&]() -> std::optional<PageRange> {
        PagesWindow window(QApplication::activeWindow());
        return window.exec() == QDialog::Accepted ? std::optional(window.range()) : std::nullopt;
    });
}

bool QtHost::openFolder(const std::filesystem::path& folder) {
    return folderExists(folder) && QDesktopServices::openUrl(QUrl::fromLocalFile(toName(folder)));
}

void QtHost::setBusy(bool busy) {
    if (busy == busy_) {
        return;
    }
    busy_ = busy;
    if (busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

std::chrono::year_month_day QtHost::today() const {
    const QDate date = QDate::currentDate();
    return {std::chrono::year(date.year()), std::chrono::month(static_cast<unsigned>(date.month())),
        std::chrono::day(static_cast<unsigned>(date.day()))};
}

Calendar QtHost::calendar() const {
    constexpr int firstBuddhistYear = 2500;
    const locale_t ofEnvironment = newlocale(LC_TIME_MASK, "", nullptr);
    if (ofEnvironment == nullptr) {
        return Calendar::Christian; // the environment names a locale that the machine does not have
    }
    const std::time_t now = std::time(nullptr);
    std::tm fields{};
    localtime_r(&now, &fields);
    std::array<char, 128> year{};
    // The year of the era: "พ.ศ. 2569" in th_TH, "2026" where there is no era.
    strftime_l(year.data(), year.size(), "%EY", &fields, ofEnvironment);
    freelocale(ofEnvironment);
    const std::string_view text(year.data());
    const std::size_t digits = text.find_first_of("0123456789");
    const int shown = digits == std::string_view::npos ? 0 : std::atoi(year.data() + digits);
    return shown >= firstBuddhistYear ? Calendar::Buddhist : Calendar::Christian;
}

std::string QtHost::environment(const std::string& name) const { return qgetenv(name.c_str()).toStdString(); }

bool QtHost::folderExists(const std::filesystem::path& folder) const {
    std::error_code failed;
    return std::filesystem::is_directory(folder, failed);
}

bool QtHost::canWriteInto(const std::filesystem::path& folder) const {
    // Rights alone do not tell: a folder of a read-only medium has them all. Only writing shows it.
    QTemporaryFile probe(QDir(toName(folder)).filePath(QStringLiteral(".lodge77-XXXXXX")));
    return folderExists(folder) && probe.open();
}

void QtHost::quit() {
    // The command that asked for it ends first. By then no window is left that could refuse.
    QMetaObject::invokeMethod(QCoreApplication::instance(), "quit", Qt::QueuedConnection);
}

} // namespace lodge
