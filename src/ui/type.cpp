#include "ui/type.h"

#include <QFontInfo>

#include <algorithm>

namespace lodge {

const Type& typeOf(const QString& name) {
    const auto found = std::find_if(
        types.begin(), types.end(), [&](const Type& type) { return name == QLatin1String(type.name); });
    return found == types.end() ? types.front() : *found;
}

QFont fontOf(const Type& type) {
    QFont font(QString::fromLatin1(type.family));
    font.setPixelSize(type.pixels);
    font.setBold(type.bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, type.spacing);
    return font;
}

QStringList missingFontPackages() {
    QStringList missing;
    for (const Type& type : types) {
        const QString family = QString::fromLatin1(type.family);
        if (QFontInfo(fontOf(type)).family() != family) {
            missing << QStringLiteral("fonts-tlwg-%1-ttf").arg(family.toLower());
        }
    }
    missing.removeDuplicates();
    return missing;
}

} // namespace lodge
