#include "ui/amount_rows.h"

#include "ui/amount_page.h"
#include "ui/dress.h"
#include "ui/link_label.h"
#include "ui/look.h"
#include "ui/text_label.h"
#include "ui/tick_box.h"
#include "ui/tie_tag.h"
#include "ui/two_columns.h"
#include "ui/type.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace lodge {

namespace {

constexpr int rowHeight = 30;
/// Where the figures come from, and how far they do not agree with it.
constexpr int sourceWidth = 240;
constexpr int narrowSourceWidth = 34;
constexpr int tieWidth = 140;
constexpr int goSize = 16;
constexpr int columnGap = 4;
constexpr int tickGap = 8;
/// The numbers stand at the right of their column, so little is enough at its left.
constexpr int rowPadding = 4;
constexpr int scrollBarWidth = 12;
constexpr int headHeight = 48;
/// Between the figure and the edge of its box: border, padding and what the toolkit adds.
constexpr int figureInset = 11;

int widthOf(const char* type, const char* text) {
    return QFontMetrics(fontOf(typeOf(QLatin1String(type)))).horizontalAdvance(QLatin1String(text));
}

/// The widest number of a line, "75.13", and the gap behind it.
int numberWidth() { return widthOf("heading", "75.13") + columnGap; }

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

SourceCell::SourceCell(QLabel* heading) : text_(heading) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    if (heading != nullptr) {
        auto* room = new QHBoxLayout(this);
        room->setContentsMargins(2 * columnGap, 0, 0, 0);
        room->addWidget(heading);
    }
}

SourceCell::SourceCell(const QString& text, const QString& chooserButton)
    : text_(new LinkLabel(text, chooserButton)), tie_(new TieTag) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* both = new QHBoxLayout(this);
    both->setContentsMargins(2 * columnGap, 0, 0, 0);
    both->setSpacing(columnGap);
    text_->setWordWrap(true);
    both->addWidget(text_, 1);
    tie_->setMaximumWidth(tieWidth);
    both->addWidget(tie_);
}

void SourceCell::setNarrow(bool narrow) {
    narrow_ = narrow;
    if (text_ != nullptr) {
        text_->setVisible(!narrow);
        if (tie_ != nullptr) {
            tie_->setMarkOnly(narrow);
            setToolTip(narrow ? text_->text() : QString());
            setCursor(narrow ? Qt::PointingHandCursor : Qt::ArrowCursor);
        }
    }
    updateGeometry();
    update();
}

int SourceCell::narrowerBy() { return zoomed(sourceWidth) - zoomed(narrowSourceWidth); }

QSize SourceCell::sizeHint() const {
    const int height = layout() == nullptr ? 0 : layout()->sizeHint().height();
    return {zoomed(narrow_ ? narrowSourceWidth : sourceWidth), height};
}

void SourceCell::paintEvent(QPaintEvent* /*event*/) {
    if (narrow_ && tie_ != nullptr && tie_->text().isEmpty()) {
        // Nothing to say of the tie, but the way to the item is there all the same.
        const int side = zoomed(goSize);
        const QColor ink = palette().color(ink::link);
        QPainter painter(this);
        iconOf(QStringLiteral("go"), ink, ink)
            .paint(&painter, QRect((width() - side) / 2, (height() - side) / 2, side, side));
    }
}

void SourceCell::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(narrow_ && tie_ != nullptr && event->button() == Qt::LeftButton);
}

void SourceCell::mouseReleaseEvent(QMouseEvent* event) {
    if (narrow_ && tie_ != nullptr && rect().contains(event->position().toPoint())) {
        emit static_cast<LinkLabel*>(text_)->followed();
    }
}

SourceFold::SourceFold(QWidget& page) : QObject(&page), page_(page) { page.installEventFilter(this); }

void SourceFold::decide() {
    if (cells_.isEmpty()) {
        cells_ = page_.findChildren<SourceCell*>();
    }
    if (cells_.isEmpty() || page_.parentWidget() == nullptr) {
        return;
    }
    const int least = page_.minimumSizeHint().width() + (narrow_ ? SourceCell::narrowerBy() : 0);
    const bool narrow = least > page_.parentWidget()->width();
    if (narrow != narrow_) {
        narrow_ = narrow;
        for (SourceCell* cell : std::as_const(cells_)) {
            cell->setNarrow(narrow);
        }
    }
}

bool SourceFold::eventFilter(QObject* watched, QEvent* event) {
    const bool isPage = watched == &page_;
    if (isPage && event->type() == QEvent::ParentChange && page_.parentWidget() != nullptr) {
        page_.parentWidget()->installEventFilter(this); // what the page is seen through
    } else if (event->type() == (isPage ? QEvent::LayoutRequest : QEvent::Resize)) {
        decide();
    }
    return false;
}

AmountRow::AmountRow(Kind kind, const QString& number, const QString& caption)
    : kind_(kind), line_(new QHBoxLayout(this)), captioned_(!caption.isEmpty()),
      said_(number.isEmpty() ? caption : QStringLiteral("ข้อ %1").arg(number)) {
    setProperty("role", kind == Kind::Computed ? QByteArray("sum") : QByteArray("line"));
    setMinimumHeight(rowHeight);
    line_->setContentsMargins(rowPadding, 0, columnGap, 0);
    line_->setSpacing(columnGap);
    QLabel* numberLabel = makeText(number, "heading");
    numberLabel->setFixedWidth(numberWidth());
    numberLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    numberLabel->setIndent(columnGap);
    line_->addWidget(numberLabel);
    if (captioned_) {
        QLabel* captionLabel = makeText(caption, kind == Kind::Typed ? "field" : "heading");
        captionLabel->setProperty("tone", kind == Kind::Computed ? QByteArray("strong") : QByteArray());
        captionLabel->setWordWrap(true);
        line_->addWidget(captionLabel, 1);
    }
}

void AmountRow::addTicks(const QStringList& names, const QString& remark) {
    auto* ticks = new QWidget;
    auto* side = new QHBoxLayout(ticks);
    side->setContentsMargins(0, 0, 0, 0);
    side->setSpacing(tickGap);
    for (const QString& name : names) {
        auto* tick = new TickBox;
        tick->setObjectName(name);
        tick->setProperty("said", said_);
        side->addWidget(tick, 0, Qt::AlignVCenter);
    }
    if (remark.isEmpty()) {
        line_->addWidget(ticks, 0, Qt::AlignVCenter);
        line_->addSpacing(2 * columnGap);
        return;
    }
    side->addStretch(1);
    auto* both = new TwoColumns;
    auto* parts = new QBoxLayout(QBoxLayout::LeftToRight, both);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(tickGap);
    parts->addWidget(ticks);
    parts->addWidget(makeText(remark, "field"), 1);
    line_->addWidget(both, 1);
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
    auto* source = new SourceCell(text, chooserButton);
    line_->addWidget(source);
    return source->tie();
}

void AmountRow::addSourceGap() { line_->addWidget(new SourceCell); }

void AmountRow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* source = findChild<LinkLabel*>();
    if (enter && event->modifiers().testFlag(Qt::ControlModifier) && source != nullptr) {
        emit source->followed();
    } else {
        QFrame::keyPressEvent(event);
    }
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
    line->setContentsMargins(rowPadding, 0, columnGap + scrollBarWidth, 0);
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
    line->addWidget(new SourceCell(makeText(QStringLiteral("ยอดตามรายการ"), "label")));
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
