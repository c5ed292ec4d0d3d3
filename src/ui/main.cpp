// The desktop program.

#include "program/program_folder.h"
#include "shell/shell.h"
#include "ui/binder.h"
#include "ui/desktop_printer.h"
#include "ui/look.h"
#include "ui/qt_host.h"
#include "ui/recovery_keeper.h"
#include "ui/thai_texts.h"
#include "ui/type.h"
#include "ui/zoom_setting.h"

#include <QApplication>
#include <QIcon>
#include <QLibrary>

#include <cstdio>

namespace {

/// Without these the Thai texts would be cut or broken in the middle of words, and nobody would know why.
bool hasWhatThaiNeeds() {
    const QStringList fonts = lodge::missingFontPackages();
    if (!fonts.isEmpty()) {
        const QString packages = fonts.join(QLatin1Char(' '));
        std::fprintf(stderr, "lodge77: missing fonts; install the packages %s\n", qPrintable(packages));
        return false;
    }
    if (!QLibrary(QStringLiteral("thai"), 0).load()) {
        std::fprintf(stderr, "lodge77: Thai lines cannot be broken at words; install the package libthai0\n");
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lodge77"));
    QApplication::setDesktopFileName(QStringLiteral("lodge77"));
    QApplication::setQuitOnLastWindowClosed(false); // the program ends by its own rule
    if (!hasWhatThaiNeeds()) {
        return 1;
    }
    lodge::ThaiTexts texts;
    QApplication::installTranslator(&texts);
    lodge::Look look(application);
    lodge::ZoomSetting zoom(look);
    QApplication::setWindowIcon(QIcon(lodge::pictureAt(QStringLiteral(":/ui/lodge77.png"))));
    lodge::QtHost host(lodge::programFolder());
    lodge::Program program(host);
    lodge::Binder binder(program, look);
    host.watch(&binder);
    QObject::connect(&binder, &lodge::Binder::zoomAsked, &zoom, &lodge::ZoomSetting::step);
    lodge::DesktopPrinter printer(program, binder, look, lodge::folderOfExecutable());
    program.attach(printer);
    lodge::RecoveryKeeper recovery(
        program, binder, lodge::recoveryFolder(host.environment("XDG_STATE_HOME"), host.environment("HOME")));
    lodge::Shell shell(program);
    shell.start();
    return QApplication::exec();
}
