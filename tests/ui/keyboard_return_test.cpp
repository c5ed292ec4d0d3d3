// Whole returns by keyboard alone: typed into the real windows, stored and printed, and held against what the
// same session leaves when the program runs it without a screen.

#include "file/return_file.h"
#include "file/store_load.h"
#include "key_player.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <fstream>

namespace lodge {

namespace {

constexpr int linesOfAReturn = 261;

QString pathOf(const QByteArray& story) {
    return QStringLiteral(LODGE_SESSIONS "/returns/%1.session").arg(QString::fromUtf8(story));
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The files below a folder by their names from there, and what is in each.
QMap<QString, QByteArray> contentsOf(const QDir& folder) {
    QMap<QString, QByteArray> contents;
    QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        contents.insert(folder.relativeFilePath(path), contentOf(path));
    }
    return contents;
}

QStringList linesOf(const QString& packed) {
    QStringList lines;
    for (const FileLine& line : decodeFile(readInnerFile(packed.toStdString()).bytes)) {
        lines << QString::fromStdString(line.text);
    }
    return lines;
}

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// The folders of one story. Both runs of it find and leave their files under the same path, for a printed
/// sheet tells it; what the first has left is set aside.
class Scratch {
  public:
    /// An empty folder for results, and one of the program with what it reads.
    void furnish() const {
        QVERIFY(QDir(folder_.path()).mkpath(QStringLiteral("work/result")));
        QVERIFY(QDir(folder_.path()).mkpath(QStringLiteral("work/program")));
        const QDir built(QStringLiteral(LODGE_PROGRAM_FOLDER));
        for (const QString& name :
            built.entryList({QStringLiteral("rptLodge*.rpt"), QStringLiteral("isic_*.txt")})) {
            QVERIFY(QFile::copy(built.filePath(name), at("work/program/") + name));
        }
    }
    void setAside(const char* name) const {
        QVERIFY(QDir(folder_.path()).rename(QStringLiteral("work"), QLatin1String(name)));
    }
    [[nodiscard]] QString at(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  private:
    QTemporaryDir folder_;
};

} // namespace

class KeyboardReturnTest : public QObject {
    Q_OBJECT

  private slots:
    void keysAloneStoreAndPrintWhatTheSessionDoes_data() {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QByteArray>("sample");
        QTest::addColumn<int>("sheets");
        QTest::newRow("an-ordinary-company-at-twenty-percent")
            << QByteArray("01055381234552561100C.txt") << QByteArray("furniture-maker") << 10;
        // Here boxes refuse one thing after another.
        QTest::newRow("an-international-headquarters")
            << QByteArray("01055580012312561100C.txt") << QByteArray() << 0;
    }

    void keysAloneStoreAndPrintWhatTheSessionDoes() {
        QFETCH(QByteArray, stored);
        QFETCH(QByteArray, sample);
        QFETCH(int, sheets);
        const Scratch scratch;
        const QString script = pathOf(QTest::currentDataTag());
        scratch.furnish();
        playByKeys(script, scratch);
        scratch.setAside("by-keys");
        scratch.furnish();
        runWithoutScreen(script, scratch);
        scratch.setAside("without-screen");
        if (QTest::currentTestFailed()) {
            return;
        }

        const QString packed = QLatin1String("/result/") + QString::fromUtf8(stored);
        const QStringList lines = linesOf(scratch.at("by-keys") + packed);
        QCOMPARE(lines.size(), linesOfAReturn);
        QCOMPARE(lines, linesOf(scratch.at("without-screen") + packed));
        compareFolders(scratch);
        if (!sample.isEmpty()) {
            compareSample(lines, sample);
        }
        if (sheets != 0) {
            QCOMPARE(QDir(scratch.at("by-keys/result/jobs")).entryList(QDir::Files).size(), sheets);
            checkDocument(scratch.at("return.pdf"), sheets);
        }
    }

  private:
    void playByKeys(const QString& script, const Scratch& scratch) {
        std::ifstream lines(script.toStdString());
        KeyPlayer player(application_.look, {.program = scratch.at("work/program").toStdString(),
                                                .result = scratch.at("work/result").toStdString(),
                                                .document = scratch.at("return.pdf").toStdString()});
        try {
            player.play(lines, script.toStdString());
        } catch (const Stuck& stuck) {
            QFAIL(stuck.what());
        }
    }

    static void runWithoutScreen(const QString& script, const Scratch& scratch) {
        QProcess cli;
        cli.start(
            QStringLiteral(LODGE_CLI), {QStringLiteral("run"), script, QStringLiteral("--define"),
                                           QStringLiteral("RESULT=") + scratch.at("work/result"),
                                           QStringLiteral("--program-folder"), scratch.at("work/program")});
        QVERIFY(cli.waitForFinished());
        QVERIFY2(cli.exitCode() == 0, cli.readAllStandardError().constData());
    }

    /// Every file: the packed return, its copies in the program's folder, the values of each printed sheet.
    static void compareFolders(const Scratch& scratch) {
        const auto typed = contentsOf(QDir(scratch.at("by-keys")));
        const auto wanted = contentsOf(QDir(scratch.at("without-screen")));
        QCOMPARE(typed.keys(), wanted.keys());
        for (const QString& name : wanted.keys()) {
            QVERIFY2(typed[name] == wanted[name], qPrintable(name));
        }
    }

    static void compareSample(const QStringList& lines, const QByteArray& sample) {
        const QString path =
            QStringLiteral(LODGE_TEST_DATA "/returns/%1/lines.txt").arg(QString::fromUtf8(sample));
        QCOMPARE(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'), QString::fromUtf8(contentOf(path)));
    }

    static void checkDocument(const QString& path, int sheets) {
        const QByteArray about = outputOf(QStringLiteral("pdfinfo"), {path});
        const QByteArray pages = "Pages:           " + QByteArray::number(sheets) + '\n';
        QVERIFY2(about.contains(pages), about.constData());
        const QByteArray text = outputOf(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
        QVERIFY(text.contains("9,000,000")); // the net profit
    }

    TestApplication application_;
};

} // namespace lodge

QTEST_MAIN(lodge::KeyboardReturnTest)
#include "keyboard_return_test.moc"
