#include "controls/buttons.h"
#include "controls/desk.h"
#include "controls/text_box.h"
#include "controls/timer.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

using std::chrono::milliseconds;
using namespace std::chrono_literals;

/// What happened, in order: "load A", "activate A", "unload A", "destroy A".
using Log = std::vector<std::string>;

class LoggingForm : public Form {
  public:
    LoggingForm(Desk& desk, const std::string& name, Log& log) : Form(desk, name), log_(log) {
        cmdClose.onClick = [this] {
            this->desk().unload(this->name());
            log_.push_back("after unload " + this->name());
        };
    }
    ~LoggingForm() override {
        if (wasLoaded_) {
            log_.push_back("destroy " + name());
        }
    }
    LoggingForm(const LoggingForm&) = delete;
    LoggingForm& operator=(const LoggingForm&) = delete;

    void Form_Load() override {
        wasLoaded_ = true;
        log_.push_back("load " + name());
    }
    void Form_Activate() override { log_.push_back("activate " + name()); }
    void Form_Unload() override { log_.push_back("unload " + name()); }

    TextBox txtFirst{*this, "txtFirst"};
    TextBox txtSecond{*this, "txtSecond"};
    CommandButton cmdClose{*this, "cmdClose"};
    Timer tmrSlow{*this, "tmrSlow", 2000ms};
    Timer tmrQuick{*this, "tmrQuick", 250ms};

  private:
    Log& log_;
    bool wasLoaded_ = false;
};

class DeskTest : public testing::Test {
  protected:
    DeskTest() {
        for (const char* name : {"A", "B"}) {
            desk.add(name, [this, name] { return std::make_unique<LoggingForm>(desk, name, log); });
        }
    }
    LoggingForm& show(const char* name, Modality modality = Modality::Modeless) {
        return static_cast<LoggingForm&>(desk.show(name, modality));
    }

    Log log;
    Desk desk;
};

TEST_F(DeskTest, ShowingAFormLoadsItFirstAndActivatesItAfterwards) {
    show("A");
    EXPECT_EQ(log, (Log{"load A", "activate A"}));
    EXPECT_TRUE(desk.find("A")->isShown());
}

TEST_F(DeskTest, AFormComesUpAgainWhenTheOneOverItCloses) {
    show("A");
    show("B", Modality::Modal);
    log.clear();
    desk.unload("B");
    EXPECT_EQ(log, (Log{"unload B", "activate A", "destroy B"}));
}

TEST_F(DeskTest, UnloadingAFormBelowActivatesNothing) {
    show("A");
    show("B");
    log.clear();
    desk.unload("A");
    EXPECT_EQ(log, (Log{"unload A", "destroy A"}));
}

TEST_F(DeskTest, AFormThatUnloadsItselfLivesUntilTheOutermostEventHasReturned) {
    LoggingForm& form = show("A");
    log.clear();
    form.cmdClose.raise(form.cmdClose.onClick);
    EXPECT_EQ(log, (Log{"unload A", "after unload A", "destroy A"}));
    EXPECT_EQ(desk.find("A"), nullptr);
}

TEST_F(DeskTest, AFormLoadedAgainHasItsDesignValuesAgain) {
    show("A").txtFirst.setText("typed");
    desk.unload("A");
    EXPECT_EQ(show("A").txtFirst.text(), "");
}

TEST_F(DeskTest, ReadingADesignLoadsNothing) {
    EXPECT_NE(desk.loadedOrDesign("A").find("txtFirst"), nullptr);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(desk.find("A"), nullptr);
}

TEST_F(DeskTest, AModalFormStandsBeforeThoseShownEarlier) {
    const LoggingForm& below = show("A");
    const LoggingForm& modal = show("B", Modality::Modal);
    EXPECT_TRUE(desk.liesUnderModal(below));
    EXPECT_FALSE(desk.liesUnderModal(modal));
    desk.unload("B");
    EXPECT_FALSE(desk.liesUnderModal(below));
}

TEST_F(DeskTest, TheFocusMovedByCodeLeavesTheOldControlFirst) {
    LoggingForm& form = show("A");
    form.txtFirst.onLostFocus = [this] { log.emplace_back("first lost"); };
    form.txtSecond.onGotFocus = [this] { log.emplace_back("second got"); };
    form.txtFirst.setFocus();
    log.clear();
    form.txtSecond.setFocus();
    EXPECT_EQ(log, (Log{"first lost", "second got"}));
    EXPECT_TRUE(form.txtSecond.hasFocus());
}

TEST_F(DeskTest, AControlThatTakesTheFocusBackKeepsIt) {
    LoggingForm& form = show("A");
    form.txtFirst.onLostFocus = [&form] { form.txtFirst.setFocus(); };
    form.txtFirst.setFocus();
    form.txtSecond.setFocus();
    EXPECT_TRUE(form.txtFirst.hasFocus());
    EXPECT_FALSE(desk.leaveFocus());
}

TEST_F(DeskTest, AControlThatNeverGotTheFocusDoesNotLoseIt) {
    LoggingForm& form = show("A");
    form.txtFirst.onLostFocus = [&form] { form.txtFirst.setFocus(); };
    form.txtSecond.onLostFocus = [this] { log.emplace_back("second lost"); };
    form.txtFirst.setFocus();
    log.clear();
    form.txtSecond.setFocus();
    EXPECT_TRUE(log.empty());
}

TEST_F(DeskTest, TwoControlsThatSendTheFocusToEachOtherComeToAnEnd) {
    LoggingForm& form = show("A");
    form.txtFirst.onGotFocus = [&form] { form.txtSecond.setFocus(); };
    form.txtFirst.onLostFocus = [&form] { form.txtFirst.setFocus(); };
    form.txtFirst.setFocus();
    EXPECT_TRUE(form.txtSecond.hasFocus());
}

TEST_F(DeskTest, AControlThatIsClosedByTheOneBeforeItGetsNoFocus) {
    LoggingForm& form = show("A");
    form.txtFirst.onLostFocus = [&form] { form.txtSecond.setEnabled(false); };
    form.txtFirst.setFocus();
    form.txtSecond.setFocus();
    EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(DeskTest, TheFocusDoesNotGoWhereAPersonCouldNotPutIt) {
    LoggingForm& form = show("A");
    form.txtFirst.setEnabled(false);
    form.txtFirst.setFocus();
    EXPECT_EQ(desk.focus(), nullptr);
    form.txtSecond.setVisible(false);
    form.txtSecond.setFocus();
    EXPECT_EQ(desk.focus(), nullptr);
    desk.hide("A");
    form.cmdClose.setFocus();
    EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(DeskTest, TheFocusGoesWithTheFormThatHasIt) {
    show("A").txtFirst.setFocus();
    desk.unload("A");
    EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(DeskTest, TimersFireInTheOrderInWhichTheyFallDue) {
    LoggingForm& form = show("A");
    form.tmrSlow.onTimer = [this] { log.emplace_back("slow"); };
    form.tmrQuick.onTimer = [this] { log.emplace_back("quick"); };
    form.tmrSlow.setEnabled(true);
    desk.pass(1900ms);
    form.tmrQuick.setEnabled(true);
    log.clear();
    desk.pass(350ms);
    EXPECT_EQ(log, (Log{"slow", "quick"}));
}

TEST_F(DeskTest, TimersStandStillWhileABoxWaits) {
    LoggingForm& form = show("A");
    form.tmrQuick.onTimer = [this] { log.emplace_back("quick"); };
    form.tmrQuick.setEnabled(true);
    log.clear();
    desk.holdTimers();
    desk.pass(1000ms);
    EXPECT_TRUE(log.empty());
    desk.releaseTimers();
    desk.pass(250ms);
    EXPECT_EQ(log, (Log{"quick"}));
}

TEST_F(DeskTest, ATimerMaySwitchItselfOffOrUnloadItsForm) {
    LoggingForm& form = show("A");
    form.tmrQuick.onTimer = [this] {
        log.emplace_back("quick");
        desk.unload("A");
    };
    form.tmrQuick.setEnabled(true);
    log.clear();
    desk.pass(10000ms);
    EXPECT_EQ(log, (Log{"quick", "unload A", "destroy A"}));
    EXPECT_LT(desk.untilNextTimer(), 0ms);
}

TEST_F(DeskTest, ThePathToTheNextTimerIsKnown) {
    LoggingForm& form = show("A");
    EXPECT_LT(desk.untilNextTimer(), 0ms);
    form.tmrQuick.setEnabled(true);
    desk.pass(100ms);
    EXPECT_EQ(desk.untilNextTimer(), 150ms);
}

} // namespace
} // namespace lodge
