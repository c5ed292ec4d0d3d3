// What the tests of the desktop share: a running program on real widgets, and answers to its boxes.
#pragma once

#include "shell/shell.h"
#include "ui/binder.h"
#include "ui/boxes.h"
#include "ui/look.h"
#include "ui/qt_host.h"
#include "ui/thai_texts.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace lodge {

/// The application, dressed as the program dresses it.
class TestApplication {
  public:
    TestApplication() { QApplication::installTranslator(&texts_); }
    Look look{*qApp, lightTheme};

  private:
    ThaiTexts texts_;
};

/// Reads the program's data where the build puts them, whatever folder the test runs from.
class TestHost : public QtHost {
  public:
    [[nodiscard]] std::filesystem::path programFolder() const override { return LODGE_PROGRAM_FOLDER; }
};

/// The program from its start screen on.
class Desktop {
  public:
    explicit Desktop(const Look& look) : binder(program, look) {
        host.watch(&binder);
        shell.start();
        binder.frame()->showNormal();
        binder.frame()->resize(1366, 768);
        QApplication::setActiveWindow(binder.frame());
        settle();
    }

    static void settle() { QTest::qWait(30); }

    [[nodiscard]] Form& form(const char* name) const { return *program.desk.find(name); }
    [[nodiscard]] Control& control(const char* form, const char* name) const {
        return *this->form(form).find(name);
    }
    [[nodiscard]] QWidget* widget(const char* form, const char* name) const {
        return binder.viewOf(form)->find(control(form, name))->widget();
    }
    template <typename T>
    [[nodiscard]] T* widget(const char* form, const char* name) const {
        return qobject_cast<T*>(widget(form, name));
    }

    TestHost host;
    Program program{host};
    Binder binder;
    Shell shell{program};
};

/// Does something to the next box that comes up. It must come up, and go, before the object does.
class NextBox {
  public:
    explicit NextBox(std::function<void(BoxWindow&)> what) : what_(std::move(what)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
        timer_.start(5);
    }
    [[nodiscard]] bool came() const { return came_; }

  private:
    void look() {
        auto* box = qobject_cast<BoxWindow*>(QApplication::activeModalWidget());
        if (box != nullptr && box->isVisible() && !came_) {
            came_ = true;
            timer_.stop();
            what_(*box);
        }
    }

    std::function<void(BoxWindow&)> what_;
    QTimer timer_;
    bool came_ = false;
};

/// A key press and release where the focus of the screen is.
inline void strike(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, held);
}

} // namespace lodge
