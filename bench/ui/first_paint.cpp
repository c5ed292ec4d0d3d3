// Ends a program once its first window is painted and nothing more is to be done at once, so that the time of
// a whole process tells how long somebody waits for that window. A plugin of the toolkit: the programs need
// not know of it.

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QGenericPlugin>
#include <QGuiApplication>

#include <unistd.h>

namespace {

class EndAtFirstPaint : public QObject {
  public:
    EndAtFirstPaint() { qGuiApp->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && !painted_) {
            painted_ = true;
            // Before it waits, the toolkit has sent to the screen what was painted.
            connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                [] { ::_exit(0); });
        }
        return false;
    }

  private:
    bool painted_ = false;
};

} // namespace

class FirstPaintPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_paint.json")

  public:
    QObject* create(const QString& /*name*/, const QString& /*how*/) override { return new EndAtFirstPaint; }
};

#include "first_paint.moc"
