#include "ui/zoom_setting.h"

#include "ui/look.h"
#include "ui/type.h"

#include <QSettings>

#include <algorithm>

namespace lodge {

namespace {

constexpr const char* settingName = "zoom";
/// In the folder of the user's settings, "lodge77/lodge77.conf".
constexpr const char* settingsName = "lodge77";

} // namespace

ZoomSetting::ZoomSetting(Look& look) : look_(look) {
    const QSettings settings{QLatin1String(settingsName), QLatin1String(settingsName)};
    const int percent = settings.value(QLatin1String(settingName), 100).toInt();
    // What somebody wrote into the file by hand counts only when it is a level that there is.
    const auto level = std::find_if(
        zoomLevels.begin(), zoomLevels.end(), [&](double zoom) { return qRound(zoom * 100) == percent; });
    look_.setZoom(level == zoomLevels.end() ? 1.0 : *level);
}

void ZoomSetting::step(int steps) {
    look_.setZoom(steps == 0 ? 1.0 : look_.zoomAfter(steps));
    QSettings settings{QLatin1String(settingsName), QLatin1String(settingsName)};
    settings.setValue(QLatin1String(settingName), qRound(look_.zoom() * 100));
}

} // namespace lodge
