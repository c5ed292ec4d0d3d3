#include "ui/boxes.h"

#include "ui/type.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSpinBox>

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace lodge {

namespace {

/// A text is broken into lines where it would be wider than this.
constexpr int widestText = 720;
constexpr int leastText = 260;
constexpr int leastButton = 96;
constexpr int leastLine = 420;
constexpr int padding = 16;
/// The toolkit indents the text of its boxes.
constexpr int labelIndent = 16;

QString captionOf(Answer answer) {
    switch (answer) {
    case Answer::Ok: return QStringLiteral("ตกลง");
    case Answer::Cancel: return QStringLiteral("ยกเลิก");
    case Answer::Yes: return QStringLiteral("ใช่");
    case Answer::No: return QStringLiteral("ไม่ใช่");
    }
    return {};
}

std::vector<Answer> answersOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok: return {Answer::Ok};
    case Buttons::OkCancel: return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo: return {Answer::Yes, Answer::No};
    }
    return {};
}

QMessageBox::ButtonRole roleOf(Answer answer) {
    switch (answer) {
    case Answer::Ok: return QMessageBox::AcceptRole;
    case Answer::Cancel: return QMessageBox::RejectRole;
    case Answer::Yes: return QMessageBox::YesRole;
    case Answer::No: return QMessageBox::NoRole;
    }
    return QMessageBox::AcceptRole;
}

/// The two buttons below a dialog, wired to its answer.
QDialogButtonBox* okAndCancel(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    for (QAbstractButton* button : buttons->buttons()) {
        button->setMinimumWidth(zoomed(leastButton));
    }
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

QSpinBox* pageBox(int value, const QString& name) {
    auto* box = new QSpinBox;
    constexpr PageRange all;
    box->setRange(all.from, all.to);
    box->setValue(value);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setAccessibleName(name);
    return box;
}

} // namespace

QString shownText(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return shown;
}

BoxWindow::BoxWindow(const Box& box, QWidget* parent) : QMessageBox(parent) {
    setIcon(QMessageBox::NoIcon);
    setTextFormat(Qt::PlainText);
    setText(shownText(box.text));
    setWindowTitle(QString::fromStdString(box.title));

    const std::vector<Answer> answers = answersOf(box.buttons);
    closing_ = answers.back();
    QPushButton* first = nullptr;
    QPushButton* preset = nullptr;
    QPushButton* last = nullptr;
    for (const Answer answer : answers) {
        last = add(answer);
        first = first == nullptr ? last : first;
        preset = answer == box.defaultAnswer ? last : preset;
    }
    setDefaultButton(preset == nullptr ? first : preset);
    setEscapeButton(last);

    if (auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        const int natural = label->fontMetrics().size(0, text()).width() + 2;
        label->setWordWrap(natural > zoomed(widestText));
        label->setContentsMargins(4, 8, 4, 8);
        const int room = natural + label->contentsMargins().left() + label->contentsMargins().right();
        label->setFixedWidth(std::clamp(room + labelIndent, zoomed(leastText), zoomed(widestText)));
    }
}

QPushButton* BoxWindow::add(Answer answer) {
    QPushButton* button = addButton(captionOf(answer), roleOf(answer));
    button->setProperty("answer", static_cast<int>(answer));
    button->setMinimumWidth(zoomed(leastButton));
    return button;
}

Answer BoxWindow::wait() {
    exec();
    const QAbstractButton* clicked = clickedButton();
    return clicked == nullptr ? closing_ : static_cast<Answer>(clicked->property("answer").toInt());
}

InputWindow::InputWindow(const InputBox& box, QWidget* parent)
    : QDialog(parent), line_(new QLineEdit(QString::fromStdString(box.preset))) {
    setWindowTitle(QString::fromStdString(box.title));
    auto* prompt = new QLabel(shownText(box.prompt));
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    prompt->setBuddy(line_);
    line_->setAccessibleName(prompt->text());
    line_->setMinimumWidth(zoomed(leastLine));
    line_->selectAll();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(padding, padding, padding, padding);
    rows->setSpacing(12);
    rows->addWidget(prompt);
    rows->addWidget(line_);
    rows->addWidget(okAndCancel(*this));
}

std::string InputWindow::text() const { return line_->text().toStdString(); }

PagesWindow::PagesWindow(QWidget* parent)
    : QDialog(parent), all_(new QRadioButton(QStringLiteral("ทั้งหมด"))),
      some_(new QRadioButton(QStringLiteral("จากหน้า"))),
      from_(pageBox(PageRange().from, QStringLiteral("จากหน้า"))),
      to_(pageBox(PageRange().to, QStringLiteral("ถึงหน้า"))) {
    setWindowTitle(QStringLiteral("พิมพ์"));
    auto* range = new QHBoxLayout;
    range->setSpacing(8);
    auto* between = new QLabel(QStringLiteral("ถึงหน้า"));
    for (QWidget* part : std::initializer_list<QWidget*>{some_, from_, between, to_}) {
        range->addWidget(part);
    }
    range->addStretch(1);
    auto* note = new QLabel(QStringLiteral("หน้า 1 ถึง 8 คือแบบ ก.ข.ค.77  หน้า 9 และ 10 คือใบแนบ ซึ่งพิมพ์ไปด้วยกัน"));
    note->setProperty("type", QByteArray("tag"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(padding, padding, padding, padding);
    rows->setSpacing(12);
    rows->addWidget(all_);
    rows->addLayout(range);
    rows->addWidget(note);
    rows->addWidget(okAndCancel(*this));
    all_->setChecked(true);
    all_->setFocus();
    // The range cannot be turned around: each end pushes the other along.
    connect(from_, &QSpinBox::valueChanged, to_, &QSpinBox::setMinimum);
    for (const QSpinBox* box : {from_, to_}) {
        connect(box, &QSpinBox::valueChanged, some_, [this] { some_->setChecked(true); });
    }
    connect(some_, &QRadioButton::clicked, from_, [this] {
        from_->setFocus();
        from_->selectAll();
    });
}

PageRange PagesWindow::range() const {
    constexpr PageRange whole{.from = 0, .to = 0};
    return all_->isChecked() ? whole : PageRange{.from = from_->value(), .to = to_->value()};
}

} // namespace lodge
