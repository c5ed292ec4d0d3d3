#include "ui/recovery_band.h"

#include "ui/text_label.h"

#include <QDateTime>
#include <QGridLayout>
#include <QPushButton>
#include <QShortcut>

#include <initializer_list>

namespace lodge {

namespace {

constexpr int buddhistOffset = 543;

/// "01/01/2561" of the eight digits of a date; what is none stands as it is.
QString dateOf(const std::string& digits) {
    const QString text = QString::fromStdString(digits);
    return text.size() == 8
               ? text.left(2) + QLatin1Char('/') + text.mid(2, 2) + QLatin1Char('/') + text.mid(4)
               : text;
}

QString momentOf(std::chrono::sys_seconds moment) {
    const QDateTime local = QDateTime::fromSecsSinceEpoch(moment.time_since_epoch().count());
    return QStringLiteral("%1/%2 เวลา %3 น.")
        .arg(local.toString(QStringLiteral("dd/MM")))
        .arg(local.date().year() + buddhistOffset)
        .arg(local.toString(QStringLiteral("HH:mm")));
}

/// Whose return it is, and when it was put there, a line each.
QString linesOf(const ReturnNote& note, const QString& put) {
    const QString number =
        note.number.empty() ? QStringLiteral("ยังไม่ได้กรอกเลขประจำตัว") : QString::fromStdString(note.number);
    return QStringLiteral("%1   รอบ %2 ถึง %3\n%4 %5")
        .arg(number, dateOf(note.start), dateOf(note.finish), put, momentOf(note.storedAt));
}

QLabel* addLabel(QWidget& band, const char* type) {
    auto* label = new TextLabel(&band);
    label->setProperty("type", QByteArray(type));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* addButton(
    QWidget& band, const QString& caption, const QString& description, const QKeySequence& key) {
    auto* button = new QPushButton(QStringLiteral("%1  %2").arg(caption, key.toString()), &band);
    button->setAccessibleName(caption);
    button->setAccessibleDescription(description);
    button->setToolTip(description);
    QObject::connect(new QShortcut(key, button), &QShortcut::activated, button, &QPushButton::click);
    return button;
}

} // namespace

RecoveryBand::RecoveryBand(QWidget* parent)
    : QFrame(parent), recovered_(addLabel(*this, "label")), automatic_(addLabel(*this, "label")),
      rule_(new QFrame(this)), take_(addButton(*this, QStringLiteral("เปิดข้อมูลนี้"),
                                   QStringLiteral("ทำต่อจากข้อมูลที่ยังไม่ได้จัดเก็บ"), Qt::Key_F10)),
      throwAway_(addButton(
          *this, QStringLiteral("ไม่ใช้"), QStringLiteral("ลบข้อมูลที่ยังไม่ได้จัดเก็บ"), Qt::CTRL | Qt::Key_F10)),
      takeAutomatic_(addButton(*this, QStringLiteral("เปิดไฟล์นี้"),
          QStringLiteral("เปิดไฟล์ที่โปรแกรมจัดเก็บอัตโนมัติล่าสุด"), Qt::CTRL | Qt::Key_F11)) {
    setProperty("role", QByteArray("offer"));
    rule_->setProperty("role", QByteArray("rule"));
    auto* sign = new TextLabel(this);
    sign->setProperty("drawing", QByteArray("temp"));
    sign->setProperty("role", QByteArray("warn"));
    auto* heading = addLabel(*this, "advice");
    heading->setProperty("tone", QByteArray("warn"));
    heading->setText(QStringLiteral("มีข้อมูลที่ยังไม่ได้จัดเก็บจากครั้งก่อน"));

    auto* head = new QHBoxLayout;
    head->setSpacing(6);
    head->addWidget(sign);
    head->addWidget(heading, 1);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 6, 12, 8);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(0, 1);
    grid->addLayout(head, 0, 0, 1, 3);
    grid->addWidget(recovered_, 1, 0);
    grid->addWidget(take_, 1, 1);
    grid->addWidget(throwAway_, 1, 2);
    grid->addWidget(rule_, 2, 0, 1, 3);
    grid->addWidget(automatic_, 3, 0);
    grid->addWidget(takeAutomatic_, 3, 1, 1, 2, Qt::AlignRight);
    connect(take_, &QPushButton::clicked, this, &RecoveryBand::taken);
    connect(throwAway_, &QPushButton::clicked, this, &RecoveryBand::thrownAway);
    connect(takeAutomatic_, &QPushButton::clicked, this, &RecoveryBand::automaticTaken);
}

void RecoveryBand::offer(const ReturnNote& recovered, const std::optional<ReturnNote>& automatic) {
    recovered_->setText(linesOf(recovered, QStringLiteral("บันทึกไว้")));
    if (automatic) {
        automatic_->setText(linesOf(*automatic, QStringLiteral("จัดเก็บอัตโนมัติล่าสุด")));
    }
    for (QWidget* part : std::initializer_list<QWidget*>{rule_, automatic_, takeAutomatic_}) {
        part->setVisible(automatic.has_value());
    }
    show();
}

} // namespace lodge
