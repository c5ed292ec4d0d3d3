#include "ui/measures.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QWidget>

#include <utility>

namespace lodge {

namespace {

/// Under this name a widget or layout keeps its design.
constexpr const char* designName = "designed";

using Measures = QList<int>;

bool isKnown(const QObject& object) { return object.property(designName).isValid(); }

void keep(QObject& object, const Measures& design) {
    object.setProperty(designName, QVariant::fromValue(design));
}

/// Hands out the measures of a design one after the other, zoomed.
class Zoomed {
  public:
    Zoomed(const QObject& object, double zoom)
        : design_(object.property(designName).value<Measures>()), zoom_(zoom) {}

    int next() {
        const int measure = design_.at(at_++);
        return measure >= QWIDGETSIZE_MAX || measure < 0 ? measure : qRound(measure * zoom_);
    }

  private:
    Measures design_;
    double zoom_;
    qsizetype at_ = 0;
};

/// Which of its measures the style gives a widget; that is zoomed by itself.
struct Styled {
    bool width;
    bool height;
};

Styled styledBy(const QWidget& widget) {
    const QString role = widget.property("role").toString();
    const bool high = role == QLatin1String("rule") || widget.inherits("QLineEdit")
                      || widget.inherits("QAbstractSpinBox") || widget.inherits("QStatusBar")
                      || (widget.inherits("QLabel") && widget.property("state").toByteArray() == "computed");
    return {.width = role == QLatin1String("upright"), .height = high};
}

void learn(QWidget& widget) {
    if (isKnown(widget)) {
        return;
    }
    const Styled styled = styledBy(widget);
    const auto unlessStyled = [](bool by, int measure) { return by ? -1 : measure; };
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool indented = label != nullptr && !label->property("amount").toBool();
    keep(widget, {unlessStyled(styled.width, widget.minimumWidth()),
                     unlessStyled(styled.height, widget.minimumHeight()),
                     unlessStyled(styled.width, widget.maximumWidth()),
                     unlessStyled(styled.height, widget.maximumHeight()), indented ? label->indent() : -1});
}

void apply(QWidget& widget, double zoom) {
    Zoomed zoomed(widget, zoom);
    const auto given = [](int measure, int otherwise) { return measure >= 0 ? measure : otherwise; };
    const int minimumWidth = given(zoomed.next(), widget.minimumWidth());
    const int minimumHeight = given(zoomed.next(), widget.minimumHeight());
    const int maximumWidth = given(zoomed.next(), widget.maximumWidth());
    const int maximumHeight = given(zoomed.next(), widget.maximumHeight());
    if (qobject_cast<QMainWindow*>(&widget) == nullptr) { // the screen does not grow
        // Where the screen is smaller than a window, its layout says what is needed.
        const QSize screen =
            widget.isWindow() ? widget.screen()->availableSize() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        widget.setMinimumSize(minimumWidth <= screen.width() ? minimumWidth : 0,
            minimumHeight <= screen.height() ? minimumHeight : 0);
        widget.setMaximumSize(maximumWidth, maximumHeight);
    }
    const int indent = zoomed.next();
    if (auto* label = qobject_cast<QLabel*>(&widget); label != nullptr && indent >= 0) {
        label->setIndent(indent); // that of an amount follows what it shows
    }
}

void learn(QLayout& layout) {
    if (isKnown(layout)) {
        return;
    }
    const QMargins margins = layout.contentsMargins();
    Measures design = {margins.left(), margins.top(), margins.right(), margins.bottom()};
    const auto* grid = qobject_cast<const QGridLayout*>(&layout);
    const auto* form = qobject_cast<const QFormLayout*>(&layout);
    design << (grid != nullptr   ? grid->horizontalSpacing()
               : form != nullptr ? form->horizontalSpacing()
                                 : layout.spacing());
    design << (grid != nullptr   ? grid->verticalSpacing()
               : form != nullptr ? form->verticalSpacing()
                                 : layout.spacing());
    for (int i = 0; i < layout.count(); ++i) {
        if (const QSpacerItem* spacer = layout.itemAt(i)->spacerItem()) {
            design << spacer->sizeHint().width() << spacer->sizeHint().height();
        }
    }
    if (grid != nullptr) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            design << grid->columnMinimumWidth(column);
        }
        for (int row = 0; row < grid->rowCount(); ++row) {
            design << grid->rowMinimumHeight(row);
        }
    }
    keep(layout, design);
}

void apply(QLayout& layout, double zoom) {
    Zoomed zoomed(layout, zoom);
    const int left = zoomed.next();
    const int top = zoomed.next();
    const int right = zoomed.next();
    layout.setContentsMargins(left, top, right, zoomed.next());
    const int across = zoomed.next();
    const int down = zoomed.next();
    auto* grid = qobject_cast<QGridLayout*>(&layout);
    auto* form = qobject_cast<QFormLayout*>(&layout);
    if (grid != nullptr) {
        grid->setHorizontalSpacing(across);
        grid->setVerticalSpacing(down);
    } else if (form != nullptr) {
        form->setHorizontalSpacing(across);
        form->setVerticalSpacing(down);
    } else {
        layout.setSpacing(down);
    }
    for (int i = 0; i < layout.count(); ++i) {
        if (QSpacerItem* spacer = layout.itemAt(i)->spacerItem()) {
            const QSizePolicy policy = spacer->sizePolicy();
            const int width = zoomed.next();
            spacer->changeSize(width, zoomed.next(), policy.horizontalPolicy(), policy.verticalPolicy());
        }
    }
    if (grid != nullptr) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            grid->setColumnMinimumWidth(column, zoomed.next());
        }
        for (int row = 0; row < grid->rowCount(); ++row) {
            grid->setRowMinimumHeight(row, zoomed.next());
        }
    }
    layout.invalidate();
}

/// The toolkit's own parts, such as the corner of a scroll area, are measured by the style.
bool isOurs(const QObject& object) { return !object.objectName().startsWith(QLatin1String("qt_")); }

template <typename T, typename Do>
void forEach(QWidget& root, Do what) {
    for (T* part : root.findChildren<T*>()) {
        if (isOurs(*part)) {
            what(*part);
        }
    }
}

} // namespace

void zoomMeasures(QWidget& root, double zoom) {
    // All is learned before anything is changed: a layout without a gap of its own has that of the one around
    // it.
    learn(root);
    forEach<QWidget>(root, [](QWidget& widget) { learn(widget); });
    forEach<QLayout>(root, [](QLayout& layout) { learn(layout); });
    apply(root, zoom);
    forEach<QWidget>(root, [&](QWidget& widget) { apply(widget, zoom); });
    forEach<QLayout>(root, [&](QLayout& layout) { apply(layout, zoom); });
}

} // namespace lodge
