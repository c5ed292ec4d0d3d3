#include "ui/type.h"

#include <QApplication>
#include <QFontDatabase>

#include <algorithm>

namespace lodge {

namespace {

int pixelsOf(const Type& type, double zoom) { return static_cast<int>(type.pixels * zoom); }

} // namespace

const Type& typeOf(const QString& name) {
    const auto found = std::find_if(
        types.begin(), types.end(), [&](const Type& type) { return name == QLatin1String(type.name); });
    return found == types.end() ? types.front() : *found;
}

QFont fontOf(const Type& type, double zoom) {
    QFont font(QString::fromLatin1(type.family));
    font.setPixelSize(pixelsOf(type, zoom));
    font.setBold(type.bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, type.spacing * zoom);
    return font;
}

double zoomNow() {
    const int pixels = QApplication::font().pixelSize();
    const auto level = std::find_if(zoomLevels.begin(), zoomLevels.end(),
        [&](double zoom) { return pixelsOf(types.front(), zoom) == pixels; });
    return level == zoomLevels.end() ? 1 : *level; // nothing has been dressed yet
}

int zoomed(int pixels) { return qRound(pixels * zoomNow()); }

QSize zoomed(const QSize& size) { return {zoomed(size.width()), zoomed(size.height())}; }

QStringList missingFontPackages() {
    QStringList families;
    for (const Type& type : types) {
        families << QString::fromLatin1(type.family);
    }
    families.removeDuplicates();
    const QStringList present = QFontDatabase::families(); // asking for one by one has each of them resolved
    QStringList missing;
    for (const QString& family : families) {
        if (!present.contains(family)) {
            missing << QStringLiteral("fonts-tlwg-%1-ttf").arg(family.toLower());
        }
    }
    return missing;
}

} // namespace lodge
