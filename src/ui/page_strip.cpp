#include "ui/page_strip.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lodge {

namespace {

constexpr int margin = 16;
constexpr int gap = 16;
constexpr int lineStep = 48;
/// The logical pixels of a screen on an inch.
constexpr double screenPixels = 96;
/// Wider differences than this show as blur.
constexpr double sameSize = 0.005;
/// Larger pages than this are not drawn ahead: each takes more room than all others together.
constexpr double largestAhead = 1.5;

} // namespace

PageStrip::PageStrip(int pageCount, DrawPage draw, QWidget* parent)
    : QAbstractScrollArea(parent), pages_(static_cast<std::size_t>(pageCount)), draw_(std::move(draw)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    // Always there: a bar that comes and goes with the width would fit the pages to and fro.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(lineStep);
    horizontalScrollBar()->setSingleStep(lineStep);
    drawing_.setSingleShot(true);
    connect(&drawing_, &QTimer::timeout, this, &PageStrip::drawNext);
}

QSize PageStrip::pageSize() const {
    return {static_cast<int>(std::lround(paperWidth * screenPixels * zoom_)),
        static_cast<int>(std::lround(paperHeight * screenPixels * zoom_))};
}

int PageStrip::stride() const { return pageSize().height() + gap; }

QRect PageStrip::placeOf(int page) const {
    const int room = viewport()->width() - pageSize().width();
    const int left = room >= 2 * margin ? room / 2 : margin - horizontalScrollBar()->value();
    return {QPoint(left, margin + page * stride() - verticalScrollBar()->value()), pageSize()};
}

/// The page that the eye is on: the one at a third of the height.
int PageStrip::pageAtTop() const {
    const int eye = verticalScrollBar()->value() - margin + viewport()->height() / 3;
    return std::clamp(eye / stride(), 0, pageCount() - 1);
}

bool PageStrip::isInView(int page) const { return placeOf(page).intersects(viewport()->rect()); }

double PageStrip::pixelsPerInch() const { return screenPixels * zoom_ * devicePixelRatioF(); }

double PageStrip::fittingZoom() const {
    const double width = (viewport()->width() - 2 * margin) / (paperWidth * screenPixels);
    const double height = (viewport()->height() - 2 * margin) / (paperHeight * screenPixels);
    const double fitting = fit_ == Fit::Width ? width : std::min(width, height);
    return std::clamp(fitting, zoomSteps.front(), zoomSteps.back());
}

void PageStrip::goTo(int page) {
    const int last = pageCount() - 1;
    const int to = std::clamp(page, 0, last);
    goingTo_ = true; // the end of the strip may come before the top of the page does
    verticalScrollBar()->setValue(to == 0 ? 0 : margin / 2 + to * stride());
    goingTo_ = false;
    setCurrent(to);
}

void PageStrip::fit(Fit fit) {
    fit_ = fit;
    zoomTo(fit == Fit::None ? zoom_ : fittingZoom());
}

void PageStrip::setZoom(double zoom) {
    fit_ = Fit::None;
    zoomTo(std::clamp(zoom, zoomSteps.front(), zoomSteps.back()));
}

void PageStrip::stepZoom(int direction) {
    const auto first = zoomSteps.begin();
    const auto end = zoomSteps.end();
    if (direction > 0) {
        const auto next = std::upper_bound(first, end, zoom_ + sameSize);
        setZoom(next == end ? zoomSteps.back() : *next);
    } else {
        const auto above = std::lower_bound(first, end, zoom_ - sameSize);
        setZoom(above == first ? zoomSteps.front() : *std::prev(above));
    }
}

/// What stands at the top of the view stays there.
void PageStrip::zoomTo(double zoom) {
    const double place = static_cast<double>(verticalScrollBar()->value()) / stride();
    zoom_ = zoom;
    layOut();
    goingTo_ = true;
    verticalScrollBar()->setValue(static_cast<int>(std::lround(place * stride())));
    goingTo_ = false;
    emit zoomChanged();
    viewport()->update();
    drawing_.start(0);
}

void PageStrip::layOut() {
    const QSize page = pageSize();
    const QSize view = viewport()->size();
    const int height = 2 * margin - gap + pageCount() * stride();
    verticalScrollBar()->setRange(0, std::max(0, height - view.height()));
    verticalScrollBar()->setPageStep(view.height());
    horizontalScrollBar()->setRange(0, std::max(0, page.width() + 2 * margin - view.width()));
    horizontalScrollBar()->setPageStep(view.width());
}

void PageStrip::setCurrent(int page) {
    if (page == current_) {
        return;
    }
    current_ = page;
    viewport()->update();
    emit pageChanged(page);
}

bool PageStrip::isDrawn(int page) const {
    const double drawn = pages_[static_cast<std::size_t>(page)].pixelsPerInch;
    return std::abs(drawn - pixelsPerInch()) < sameSize * pixelsPerInch();
}

void PageStrip::drawNext() {
    const auto isMissing = [this](int page) { return isInView(page) && !isDrawn(page); };
    int next = 0;
    while (next < pageCount() && !isMissing(next)) {
        ++next;
    }
    const int ahead = current_ + 1;
    if (next == pageCount()) {
        emit viewDrawn();
        if (ahead >= pageCount() || isDrawn(ahead) || zoom_ > largestAhead) {
            return;
        }
        next = ahead;
    }
    Page& page = pages_[static_cast<std::size_t>(next)];
    const double size = pixelsPerInch();
    page.picture = QPixmap::fromImage(draw_(next, size));
    page.picture.setDevicePixelRatio(devicePixelRatioF());
    page.pixelsPerInch = size;
    // Those far off would only fill the memory.
    for (int other = 0; other < pageCount(); ++other) {
        if (!isInView(other) && std::abs(other - current_) > 1) {
            pages_[static_cast<std::size_t>(other)] = {};
        }
    }
    viewport()->update(placeOf(next));
    drawing_.start(0);
}

void PageStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Window));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int page = 0; page < pageCount(); ++page) {
        const QRect place = placeOf(page);
        if (!isInView(page)) {
            continue;
        }
        const QPixmap& picture = pages_[static_cast<std::size_t>(page)].picture;
        painter.fillRect(place, Qt::white); // paper is white in a dark room, too
        if (!picture.isNull()) {
            painter.drawPixmap(place, picture);
        }
        const bool marked = page == current_ && hasFocus();
        painter.setPen(QPen(palette().color(marked ? QPalette::Highlight : QPalette::Mid), marked ? 2 : 1));
        painter.drawRect(
            marked ? QRectF(place).adjusted(-2, -2, 2, 2) : QRectF(place).adjusted(-0.5, -0.5, 0.5, 0.5));
    }
}

void PageStrip::resizeEvent(QResizeEvent* /*event*/) {
    if (fit_ != Fit::None) {
        zoomTo(fittingZoom());
    } else {
        layOut();
        drawing_.start(0);
    }
}

void PageStrip::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        if (event->angleDelta().y() != 0) {
            stepZoom(event->angleDelta().y());
        }
        event->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

void PageStrip::keyPressEvent(QKeyEvent* event) {
    QScrollBar& down = *verticalScrollBar();
    QScrollBar& across = *horizontalScrollBar();
    switch (event->key()) {
    case Qt::Key_PageUp: goTo(current_ - 1); break;
    case Qt::Key_PageDown: goTo(current_ + 1); break;
    case Qt::Key_Home: goTo(0); break;
    case Qt::Key_End: goTo(pageCount() - 1); break;
    case Qt::Key_Up: down.triggerAction(QAbstractSlider::SliderSingleStepSub); break;
    case Qt::Key_Down: down.triggerAction(QAbstractSlider::SliderSingleStepAdd); break;
    case Qt::Key_Left: across.triggerAction(QAbstractSlider::SliderSingleStepSub); break;
    case Qt::Key_Right: across.triggerAction(QAbstractSlider::SliderSingleStepAdd); break;
    case Qt::Key_Space:
        down.triggerAction((event->modifiers() & Qt::ShiftModifier) != 0
                               ? QAbstractSlider::SliderPageStepSub
                               : QAbstractSlider::SliderPageStepAdd);
        break;
    default: QAbstractScrollArea::keyPressEvent(event);
    }
}

void PageStrip::focusInEvent(QFocusEvent* /*event*/) { viewport()->update(); }

void PageStrip::focusOutEvent(QFocusEvent* /*event*/) { viewport()->update(); }

void PageStrip::scrollContentsBy(int /*dx*/, int /*dy*/) {
    if (!goingTo_) {
        setCurrent(pageAtTop());
    }
    viewport()->update();
    drawing_.start(0);
}

} // namespace lodge
