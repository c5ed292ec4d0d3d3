#include "ui/status_line.h"

#include "file/store_load.h"
#include "shell/page_table.h"
#include "ui/text_label.h"
#include "ui/type.h"

#include <QEvent>
#include <QFileInfo>
#include <QLayout>
#include <QStatusBar>

#include <array>

namespace lodge {

namespace {

constexpr std::size_t idField = 45;
/// The button of the problems and the zoom.
constexpr int roomOfOthers = 190;
/// Of the lines that could not be read; all of them stand in the tool tip.
constexpr std::size_t mostDamageShown = 4;

QLabel* makeLabel(const char* name) {
    auto* label = new TextLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setProperty("type", QByteArray("label"));
    label->setProperty("role", QByteArray("statusPart"));
    return label;
}

/// "01/01/2561" of eight digits; empty for what is none.
QString dateOf(const std::string& digits) {
    const QString text = QString::fromStdString(digits);
    return text.size() == 8 ? QStringLiteral("%1/%2/%3").arg(text.left(2), text.mid(2, 2), text.mid(4))
                            : QString();
}

QString numberOf(const Program& program) {
    const Form* page1 = program.desk.find(findPage(page::first)->form);
    const Control* box = page1 == nullptr ? nullptr : page1->find("txtNid");
    return QString::fromStdString(box == nullptr ? program.state.strFldPage1[idField] : box->reading());
}

QString periodOf(const ReturnState& state) {
    const QString start = dateOf(state.strStartDDMMYY);
    const QString end = dateOf(state.strFinishDDMMYY);
    return start.isEmpty() || end.isEmpty() ? QString() : QStringLiteral("%1 ถึง %2").arg(start, end);
}

QString pageOf(const Program& program) {
    const PageRow* row = findPage(program.state.intPageCur);
    if (row != nullptr && program.desk.find(row->form) != nullptr) {
        return row->code == page::headquarters ? QStringLiteral("ใบแนบ (IHQ)")
                                               : QString::fromUtf8(row->title);
    }
    return program.state.blnChooseShown ? QStringLiteral("เลือกรายการ") : QString();
}

QString storeKind(const std::string& type) {
    return type == "C"   ? QStringLiteral("จัดเก็บ")
           : type == "N" ? QStringLiteral("จัดเก็บ(ชั่วคราว)")
                         : QStringLiteral("จัดเก็บอัตโนมัติ");
}

/// The numbers of the lines, as far as a status bar has room for them.
QString linesOf(const std::vector<std::size_t>& lines, std::size_t most) {
    QStringList numbers;
    for (const std::size_t line : lines) {
        if (static_cast<std::size_t>(numbers.size()) == most) {
            numbers << QStringLiteral("…");
            break;
        }
        numbers << QString::number(line);
    }
    return numbers.join(QStringLiteral(", "));
}

} // namespace

StatusLine::StatusLine(const Program& program, QWidget& hints, QStatusBar& bar)
    : program_(program), hints_(hints),
      bar_(bar), number_{makeLabel("decorStatusNumber"), QStringLiteral("เลขประจำตัวผู้เสียภาษีอากร"), {}},
      period_{makeLabel("decorStatusPeriod"), QStringLiteral("รอบระยะเวลาบัญชี"), {}},
      page_{makeLabel("decorStatusPage"), {}, {}}, store_{makeLabel("decorStatusStore"), {}, {}},
      damage_{makeLabel("decorStatusDamage"), {}, {}}, zoom_(makeLabel("decorStatusZoom")),
      begun_(QDateTime::currentDateTime()) {
    damage_.label->setProperty("tone", QByteArray("warn"));
    for (const Part* part : {&damage_, &number_, &period_, &page_, &store_}) {
        bar_.addPermanentWidget(part->label);
        part->label->hide();
    }
    bar_.installEventFilter(this);
}

void StatusLine::addZoom(double zoom) {
    bar_.addPermanentWidget(zoom_);
    zoom_->setAccessibleName(QStringLiteral("ขนาดที่แสดง"));
    zoom_->setToolTip(QStringLiteral("Ctrl++  Ctrl+-  Ctrl+0"));
    showZoom(zoom);
}

void StatusLine::showZoom(double zoom) {
    zoom_->setText(QStringLiteral("%1%").arg(qRound(zoom * 100)));
    fit();
}

void StatusLine::say(Part& part, const QString& text) {
    if (part.text != text) {
        part.text = text;
        part.label->setAccessibleName(QStringLiteral("%1 %2").arg(part.caption, text).trimmed());
        part.label->setToolTip(part.label->accessibleName());
        fit();
    }
}

void StatusLine::refresh() {
    const bool open = !pageOf(program_).isEmpty();
    say(number_, open ? numberOf(program_) : QString());
    say(period_, open ? periodOf(program_.state) : QString());
    say(page_, pageOf(program_));
    sayDamage(open);
}

/// Stands as long as the return is open: its figures are what could be read, and not all that was stored.
void StatusLine::sayDamage(bool open) {
    const std::vector<std::size_t>& lines = program_.damagedLines;
    const QString caption = QStringLiteral("บรรทัดที่อ่านไม่ได้ ");
    const bool any = open && !lines.empty();
    say(damage_, any ? caption + linesOf(lines, mostDamageShown) : QString());
    if (any) {
        damage_.label->setAccessibleName(caption + linesOf(lines, lines.size()));
        damage_.label->setToolTip(damage_.label->accessibleName());
    }
}

void StatusLine::refreshStore() {
    const std::string& name = program_.state.strFileName;
    const QFileInfo file(QString::fromStdString(packedPathOf(name)));
    // A file that was there before belongs to another day's work.
    const bool stored = !name.empty() && file.exists() && file.lastModified() >= begun_;
    say(store_, stored ? QStringLiteral("%1 %2 น.")
                             .arg(storeKind(program_.state.strStoreType),
                                 file.lastModified().toString(QStringLiteral("HH:mm")))
                       : QString());
}

void StatusLine::fit() {
    // With captions while they leave the hints their room; then without; then without the hints; and at last
    // what the page itself says goes, too.
    const std::array parts = {&page_, &period_, &number_, &store_, &damage_};
    const auto widthOf = [&](bool captioned) {
        int width = zoomed(roomOfOthers);
        for (const Part* part : parts) {
            const QString whole = QStringLiteral("%1 %2").arg(part->caption, part->text).trimmed();
            part->label->setText(captioned ? whole : part->text);
            width += part->text.isEmpty() ? 0 : part->label->sizeHint().width();
        }
        return width;
    };
    const int hints = hints_.layout()->sizeHint().width();
    int needed = widthOf(true) + hints;
    if (needed > bar_.width()) {
        needed = widthOf(false) + hints;
    }
    hints_.setVisible(needed <= bar_.width());
    needed -= hints_.isHidden() ? hints : 0;
    for (const Part* part : parts) {
        const bool fits = needed <= bar_.width();
        needed -= fits || part->text.isEmpty() ? 0 : part->label->sizeHint().width();
        part->label->setVisible(fits && !part->text.isEmpty());
    }
}

bool StatusLine::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        fit();
    }
    return false;
}

} // namespace lodge
