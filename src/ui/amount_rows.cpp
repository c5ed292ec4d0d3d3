#include "ui/amount_rows.h"

#include "ui/amount_page.h"
#include "ui/link_label.h"
#include "ui/tick_box.h"
#include "ui/type.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>

#include <array>

namespace lodge {

namespace {

constexpr int rowHeight = 30;
/// Two lines and what the marks above and below them need.
constexpr int lineHeight = 23;
constexpr int linePadding = 3;
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

QLabel* makeText(const QString& text, const char* type) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("type", QByteArray(type));
    return label;
}

void repolish(QWidget& widget) {
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

AmountRow* rowAround(QWidget* widget) {
    while (widget != nullptr && qobject_cast<AmountRow*>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    return qobject_cast<AmountRow*>(widget);
}

void tint(QWidget* focused, bool inHand) {
    if (AmountRow* row = rowAround(focused)) {
        row->setProperty("row", inHand ? QByteArray("hand") : QByteArray());
        repolish(*row);
    }
}

} // namespace

int amountColumnWidth() { return widthOf("heading", "(9,999,999,999,999.99)") + 21; }

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString controlWidgetName(std::string_view name, int index) {
    const QString plain = fromText(name);
    return index < 0 ? plain : QStringLiteral("%1_%2").arg(plain).arg(index);
}

AmountRow::AmountRow(Kind kind, const QString& number, const QString& caption)
    : kind_(kind), lines_(static_cast<int>(caption.count(QLatin1Char('\n'))) + 1),
      line_(new QHBoxLayout(this)), caption_(new QVBoxLayout) {
    const bool plain = kind == Kind::Typed;
    setProperty("role", kind == Kind::Computed ? QByteArray("sum") : QByteArray("line"));
    makeRoom(lines_);
    line_->setContentsMargins(sheetPadding, 0, columnGap, 0);
    line_->setSpacing(columnGap);
    QLabel* numberLabel = makeText(number, "heading");
    numberLabel->setFixedWidth(numberWidth());
    numberLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    numberLabel->setIndent(columnGap);
    line_->addWidget(numberLabel);
    caption_->setSpacing(0);
    line_->addLayout(caption_);
    if (!caption.isEmpty()) {
        QLabel* captionLabel = makeText(caption, plain ? "field" : "heading");
        captionLabel->setProperty("tone", kind == Kind::Computed ? QByteArray("strong") : QByteArray());
        caption_->addWidget(captionLabel);
    }
}

void AmountRow::makeRoom(int lines) {
    lines_ = lines;
    setFixedHeight(lines == 1 ? rowHeight : lines * lineHeight + linePadding);
}

void AmountRow::addOrigin(const QString& text, const QString& chooserButton) {
    makeRoom(lines_ + 1);
    caption_->addWidget(new LinkLabel(text, chooserButton), 0, Qt::AlignLeft);
}

QAbstractButton* AmountRow::addTick(const QString& name) {
    auto* tick = new TickBox;
    tick->setObjectName(name);
    line_->addWidget(tick);
    line_->addSpacing(2 * columnGap);
    return tick;
}

void AmountRow::addRemark(const QString& text) { line_->addWidget(makeText(text, "field")); }

void AmountRow::endCaption() { line_->addStretch(1); }

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

void AmountRow::addGap() { line_->addSpacing(amountColumnWidth()); }

void AmountRow::follow(QWidget& part) {
    setVisible(!part.isHidden());
    part.installEventFilter(this);
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
