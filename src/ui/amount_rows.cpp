#include "ui/amount_rows.h"

#include "ui/amount_page.h"
#include "ui/dress.h"
#include "ui/link_label.h"
#include "ui/text_label.h"
#include "ui/tick_box.h"
#include "ui/tie_tag.h"
#include "ui/type.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QVBoxLayout>

#include <array>

namespace lodge {

namespace {

constexpr int rowHeight = 30;
/// Where the figures come from, and how far they do not agree with it.
constexpr int sourceWidth = 256;
constexpr int tieWidth = 140;
constexpr int columnGap = 4;
constexpr int sheetPadding = 16;
constexpr int scrollBarWidth = 12;
constexpr int headHeight = 48;
/// Between the figure and the edge of its box: border, padding and what the toolkit adds.
constexpr int figureInset = 11;

int widthOf(const char* type, const char* text) {
    return QFontMetrics(fontOf(typeOf(QLatin1String(type)))).horizontalAdvance(QLatin1String(text));
}

/// The widest number of a line, "75.13", and the gap behind it.
int numberWidth() { return widthOf("heading", "75.13") + 8; }

AmountRow* rowAround(QWidget* widget) {
    while (widget != nullptr && qobject_cast<AmountRow*>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    return qobject_cast<AmountRow*>(widget);
}

void tint(QWidget* focused, bool inHand) {
    if (AmountRow* row = rowAround(focused)) {
        setWorn(*row, "row", inHand ? "hand" : "");
    }
}

} // namespace

int amountColumnWidth() { return widthOf("heading", "(9,999,999,999,999.99)") + 21; }

QLabel* makeText(const QString& text, const char* type) {
    auto* label = new TextLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("type", QByteArray(type));
    return label;
}

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString controlWidgetName(std::string_view name, int index) {
    const QString plain = fromText(name);
    return index < 0 ? plain : QStringLiteral("%1_%2").arg(plain).arg(index);
}

AmountRow::AmountRow(Kind kind, const QString& number, const QString& caption)
    : kind_(kind), line_(new QHBoxLayout(this)), captioned_(!caption.isEmpty()),
      said_(number.isEmpty() ? caption : QStringLiteral("ข้อ %1").arg(number)) {
    setProperty("role", kind == Kind::Computed ? QByteArray("sum") : QByteArray("line"));
    setMinimumHeight(rowHeight);
    line_->setContentsMargins(sheetPadding, 0, columnGap, 0);
    line_->setSpacing(columnGap);
    QLabel* numberLabel = makeText(number, "heading");
    numberLabel->setFixedWidth(numberWidth());
    numberLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    numberLabel->setIndent(columnGap);
    line_->addWidget(numberLabel);
    line_->addSpacing(columnGap);
    if (captioned_) {
        QLabel* captionLabel = makeText(caption, kind == Kind::Typed ? "field" : "heading");
        captionLabel->setProperty("tone", kind == Kind::Computed ? QByteArray("strong") : QByteArray());
        captionLabel->setWordWrap(true);
        line_->addWidget(captionLabel, 1);
    }
}

QAbstractButton* AmountRow::addTick(const QString& name) {
    auto* tick = new TickBox;
    tick->setObjectName(name);
    tick->setProperty("said", said_);
    line_->addWidget(tick, 0, Qt::AlignVCenter);
    line_->addSpacing(2 * columnGap);
    return tick;
}

void AmountRow::addRemark(const QString& text) {
    QLabel* remark = makeText(text, "field");
    remark->setWordWrap(true);
    line_->addWidget(remark, 1);
    captioned_ = true;
}

void AmountRow::endCaption() {
    if (!captioned_) {
        line_->addStretch(1);
    }
}

QLineEdit* AmountRow::addBox(const QString& name, const QString& said) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setAccessibleName(said);
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    box->setFixedWidth(amountColumnWidth());
    line_->addWidget(box);
    return box;
}

QLabel* AmountRow::addFigure(const QString& name, const QString& said) {
    QLabel* figure = makeText(QString(), kind_ == Kind::Computed ? "heading" : "field");
    figure->setProperty("tone", QByteArray("strong"));
    figure->setObjectName(name);
    figure->setAccessibleName(said);
    figure->setProperty("state", QByteArray("computed"));
    figure->setProperty("amount", true);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure->setFixedWidth(amountColumnWidth());
    line_->addWidget(figure);
    return figure;
}

TieTag* AmountRow::addSource(const QString& text, const QString& chooserButton) {
    auto* source = new QWidget;
    source->setFixedWidth(sourceWidth);
    auto* both = new QHBoxLayout(source);
    both->setContentsMargins(2 * columnGap, 0, 0, 0);
    both->setSpacing(columnGap);
    auto* link = new LinkLabel(text, chooserButton);
    link->setWordWrap(true);
    both->addWidget(link, 1);
    auto* tie = new TieTag;
    tie->setMaximumWidth(tieWidth);
    both->addWidget(tie);
    line_->addWidget(source);
    return tie;
}

void AmountRow::addSourceGap() {
    auto* gap = new QWidget; // as wide as a source at every zoom
    gap->setFixedWidth(sourceWidth);
    line_->addWidget(gap);
}

void AmountRow::follow(QWidget& part) {
    setVisible(!part.isHidden());
    part.installEventFilter(this);
}

void AmountRow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* source = findChild<LinkLabel*>();
    if (enter && event->modifiers().testFlag(Qt::ControlModifier) && source != nullptr) {
        emit source->followed();
    } else {
        QFrame::keyPressEvent(event);
    }
}

bool AmountRow::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        setVisible(event->type() == QEvent::ShowToParent);
    }
    return false;
}

QFrame* makeColumnHead() {
    constexpr std::array<std::array<const char*, 2>, 3> heads = {{
        {"ช่อง 1", "ได้รับยกเว้นภาษีเงินได้"},
        {"ช่อง 2", "ต้องเสียภาษีเงินได้"},
        {"รวม", "บาท"},
    }};
    auto* head = new QFrame;
    head->setProperty("role", QByteArray("columnHead"));
    head->setFixedHeight(headHeight);
    auto* line = new QHBoxLayout(head);
    line->setContentsMargins(sheetPadding, 0, columnGap + scrollBarWidth, 0);
    line->setSpacing(columnGap);
    line->addStretch(1);
    for (const auto& [name, note] : heads) {
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        for (QLabel* text :
            {makeText(QString::fromUtf8(name), "heading"), makeText(QString::fromUtf8(note), "tag")}) {
            text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            text->setIndent(figureInset);
            text->setFixedWidth(amountColumnWidth());
            column->addWidget(text);
        }
        line->addLayout(column);
    }
    QLabel* source = makeText(QStringLiteral("ยอดตามรายการ"), "label");
    source->setFixedWidth(sourceWidth);
    source->setIndent(2 * columnGap);
    line->addWidget(source);
    return head;
}

void tintRowInHand(QWidget& page) {
    QObject::connect(qApp, &QApplication::focusChanged, &page, [&page](QWidget* before, QWidget* now) {
        if (before != nullptr && page.isAncestorOf(before)) {
            tint(before, false);
        }
        if (now != nullptr && page.isAncestorOf(now)) {
            tint(now, true);
        }
    });
}

} // namespace lodge
