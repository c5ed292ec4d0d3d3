// A document on its way to a printer: what the person chose, and the command of CUPS that takes it.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <optional>

class QWidget;

namespace lodge {

struct PaperJob {
    enum class Sides { One, TwoLongEdge, TwoShortEdge };

    QString printer;
    QString title;
    QString pages; ///< "2-4"; empty for all of the document.
    int copies = 1;
    Sides sides = Sides::One;
    bool inColour = true;
};

/// Whether the machine has a printer to choose.
[[nodiscard]] bool hasPrinters();
/// Asks for a printer and the pages of the document; nothing when the person cancels.
[[nodiscard]] std::optional<PaperJob> askForPaper(
    int pageCount, int currentPage, const QString& title, QWidget* parent);
/// What `lp` is called with, the document on its standard input.
[[nodiscard]] QStringList lpArguments(const PaperJob& job);

/// Hands one document over and deletes itself when that is done, which may be after the window that it came
/// from has gone.
class PaperSender : public QObject {
    Q_OBJECT

  public:
    /// What became of it: empty when the printer's queue has the document, otherwise the cause in Thai.
    using Done = std::function<void(const QString& cause)>;

    static void send(const PaperJob& job, const QByteArray& document, Done done);

  private:
    PaperSender(const PaperJob& job, const QByteArray& document, Done done);
    void end(const QString& cause);

    QProcess lp_;
    QTimer patience_;
    Done done_;
};

} // namespace lodge
