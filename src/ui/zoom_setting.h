// The zoom that a person has chosen: kept from day to day in the settings of the user, and followed by the
// look.
#pragma once

#include <QObject>

namespace lodge {

class Look;

class ZoomSetting : public QObject {
    Q_OBJECT

  public:
    /// Takes up the zoom of the day before. The look must outlive the object.
    explicit ZoomSetting(Look& look);

    /// Larger or smaller by that many steps, as designed for 0.
    void step(int steps);

  private:
    Look& look_;
};

} // namespace lodge
