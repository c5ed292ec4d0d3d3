// Draws the screens of the program into PNG files: ui_screenshots FOLDER [light|dark [SCREEN [ZOOM]]]
// Some screens are drawn at a zoom of their own whatever ZOOM says.
//
// Each screen is drawn at 1366x768, at 2560x1440 and at twice the pixels, light and dark, so that a look at
// the folder shows what is cut, cramped or out of line.

#include "pages/filer/isic_lookup.h"
#include "pages/filer/notification_form.h"
#include "pages/filer/page1_fields.h"
#include "pages/ihq/ihq_page.h"
#include "program/host.h"
#include "shell/shell.h"
#include "ui/binder.h"
#include "ui/boxes.h"
#include "ui/desktop_printer.h"
#include "ui/look.h"
#include "ui/problem_dock.h"
#include "ui/qt_host.h"
#include "ui/recovery_band.h"
#include "ui/thai_texts.h"
#include "values/messages.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <QTest>
#include <QTreeView>

#include <array>
#include <functional>
#include <span>

namespace lodge {

namespace {

/// Answers every box with its first button and never waits.
class SilentHost : public QtHost {
  public:
    Answer show(const Box& box) override {
        qInfo("box: %s", box.text.c_str());
        return box.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
    std::optional<PageRange> choosePages() override { return PageRange{}; }
    [[nodiscard]] std::filesystem::path programFolder() const override { return LODGE_PROGRAM_FOLDER; }
    [[nodiscard]] std::chrono::year_month_day today() const override {
        return std::chrono::year(2019) / std::chrono::May / 17;
    }
};

struct Screen {
    const char* name;
    std::function<void(Program&, User&)> open;
    double zoom = 0; // of its own; 0 for the one that is asked for
};

struct FilledField {
    std::size_t index;
    const char* text;
};

// A company's return, as far as it has come when the screens are drawn.
// clang-format off
constexpr std::array page1Example{
    FilledField{7, "1"}, FilledField{12, "1"}, FilledField{45, "0105536000313"},
    FilledField{23, "ซูเปอร์มาร์เก็ต"}, FilledField{24, "471110"},
    FilledField{25, "การขายส่งผักและผลไม้"}, FilledField{26, "463120"},
    FilledField{30, "12450.75"},
    FilledField{31, "1100200300404"}, FilledField{32, "3"}, FilledField{33, "สมหญิง"},
    FilledField{34, "ปู่ทองฎีกา"}, FilledField{35, "00004321"}, FilledField{37, "15032562"},
    FilledField{38, "3100500600701"}, FilledField{39, "1"}, FilledField{40, "ณัฏฐ์"},
    FilledField{41, "รู้บัญชีดี"}, FilledField{46, "0105540000128"},
};
constexpr std::array page8Example{
    FilledField{0, "01"}, FilledField{1, "มกราคม"}, FilledField{2, "2561"},
    FilledField{3, "31"}, FilledField{4, "ธันวาคม"}, FilledField{5, "2561"},
    FilledField{8, "1"}, FilledField{11, "1"}, FilledField{12, "1"},
    FilledField{13, "ตั้งเจ้าหนี้ค่าที่ปรึกษาตามสัญญาลงวันที่ 3 มีนาคม 2561 ซึ่งคู่สัญญายังไม่ได้แจ้งหนี้จนสิ้นรอบ"},
    FilledField{17, "1"}, FilledField{18, "1"}, FilledField{21, "ไม่มีข้อสังเกตเพิ่มเติม"}, FilledField{23, "20052562"},
};
// clang-format on

template <std::size_t N>
void fill(FieldArray& page, const std::array<FilledField, N>& fields) {
    for (const FilledField& field : fields) {
        page[field.index] = field.text;
    }
}

void typePeriod(Program& program, User& user) {
    Form& start = *program.desk.find("frmLodgeStart");
    user.edit(static_cast<MaskedBox&>(*start.find("mskDate1")), "01012561");
    user.edit(static_cast<MaskedBox&>(*start.find("mskDate2")), "31122561");
}

/// Page 1, filled.
Form& openPage1(Program& program, User& user) {
    typePeriod(program, user);
    user.click(*program.desk.find("frmLodgeStart")->find("CmdOK1"));
    ReturnState& state = program.state;
    fill(state.strFldPage1, page1Example);
    state.strWebsite = "http://www.example.co.th";
    state.intCashRefund = 1;
    state.intAuditStatus = 1;
    state.intP1Box2 = 1;
    P1_ArrayToVar(program);
    Form& page = *program.desk.find("frmLodgePage1");
    page.Form_Activate();
    return page;
}

void openIsic(Program& program, User& user) {
    user.click(*openPage1(program, user).find("cmdSISIC1(2)"));
    auto& dialog = *program.desk.find<frmLodgeISIC>();
    user.focus(dialog.txtSearch);
    user.edit(dialog.txtSearch, "ขาย");
    user.pick(dialog.gridISIC, 7);
}

void openStore(Program& program, User& user) {
    openPage1(program, user);
    ReturnState& state = program.state;
    state.strFilingType = "1";
    state.strStoreType = "C";
    program.shell().EnableTools(false);
    program.shell().SwitchPage(false);
    program.desk.show("frmLodgeDirec");
}

void settle() { QTest::qWait(60); }

struct TypedAmount {
    const char* box;
    const char* text;
};

/// What is typed into a page, field by field as a person goes through it.
void typeInto(Form& page, User& user, std::span<const TypedAmount> amounts) {
    for (const TypedAmount& amount : amounts) {
        auto& box = static_cast<TextBox&>(*page.find(amount.box));
        user.focus(box);
        user.edit(box, amount.text);
    }
}

/// A page of amounts of a company with both kinds of business, typed box by box.
void typeAmounts(
    Program& program, User& user, const char* form, std::span<const TypedAmount> amounts,
    void (*prepare)(ReturnState&) = [](ReturnState&) {}) {
    openPage1(program, user);
    prepare(program.state);
    program.state.intP1Box1 = 1;
    program.state.intP1Box2 = 1;
    typeInto(program.desk.show(form), user, amounts);
}

constexpr std::array item3Example{
    TypedAmount{"txtMoney31(0)", "3200000"},
    TypedAmount{"txtMoney32(0)", "24860000"},
    TypedAmount{"txtMoney31(1)", "2480000"},
    TypedAmount{"txtMoney32(1)", "17402000"},
    TypedAmount{"txtMoney32(3)", "186500"},
    TypedAmount{"txtMoney31(7)", "864300"},
    TypedAmount{"txtMoney32(7)", "4875250"},
    TypedAmount{"txtMoney31(10)", "25900"},
    TypedAmount{"txtMoney32(10)", "268350"},
    TypedAmount{"txtMoney32(5)", "342600"},
};
/// What the schedules have come to when item 3 is drawn; one of them does not agree.
void fillSchedules(ReturnState& state) {
    fill(state.strFldPage3_4, std::array{FilledField{8, "2480000"}, FilledField{17, "17402000"}});
    fill(state.strFldPage4_6, std::array{FilledField{13, "186500"}});
    fill(state.strFldPage4_7, std::array{FilledField{9, "330100"}});
    fill(state.strFldPage5_8, std::array{FilledField{23, "864300"}, FilledField{47, "4875250"}});
    fill(state.strFldPage5_9, std::array{FilledField{5, "25900"}, FilledField{11, "268350"}});
}

constexpr std::array item4Example{
    TypedAmount{"txtMoney42(0)", "1840000"},
    TypedAmount{"txtMoney41(1)", "2480000"},
    TypedAmount{"txtMoney42(1)", "16800000"},
    TypedAmount{"txtMoney42(7)", "1238000"},
};
constexpr std::array item6Example{
    TypedAmount{"txtMoney62(0)", "120000"},
    TypedAmount{"txtMoney62(2)", "66500"},
    TypedAmount{"txtMoney61(3)", "8000"},
};
constexpr std::array item7Example{
    TypedAmount{"txtMoney72(2)", "330100"},
    TypedAmount{"txtMoney71(0)", "2500"},
};
constexpr std::array item9Example{
    TypedAmount{"txtMoney91(2)", "25900"},
    TypedAmount{"txtMoney92(3)", "218350"},
    TypedAmount{"txtMoney92(5)", "50000"},
};
constexpr std::array item5Example{
    TypedAmount{"txtMoney52(0)", "1250000"},
    TypedAmount{"txtMoney52(1)", "8400500.50"},
    TypedAmount{"txtMoney52(4)", "72000"},
    TypedAmount{"txtMoney52(6)", "3100000"},
    TypedAmount{"txtMoney51(7)", "45000"},
    TypedAmount{"txtMoney52(15)", "9999999999999.99"},
    TypedAmount{"txtMoney52(8)", "310000"},
};
constexpr std::array item8Example{
    TypedAmount{"txtMoney81(0)", "864300"},
    TypedAmount{"txtMoney82(0)", "3120000"},
    TypedAmount{"txtMoney82(30)", "50000"},
    TypedAmount{"txtMoney82(1)", "960000"},
};
constexpr std::array item10Example{
    TypedAmount{"txtMoney102(1)", "45000"},
    TypedAmount{"txtMoney102(15)", "20000"},
    TypedAmount{"txtMoney102(2)", "8000"},
};
constexpr std::array item12Example{
    TypedAmount{"txtMoney2(0)", "5400000"},
    TypedAmount{"txtMoney2(1)", "2150000"},
    TypedAmount{"txtMoney2(6)", "7300000"},
    TypedAmount{"txtMoney3(1)", "3850000"},
    TypedAmount{"txtMoney4(0)", "5000000"},
    TypedAmount{"txtMoney4(1)", "5000000"},
    TypedAmount{"txtMoney2(8)", "120000"},
};

/// To another item as a person gets there, through the chooser.
Form& chooseItem(Program& program, User& user, const char* button, const char* form) {
    user.click(*program.desk.find("MDILodge")->find("cmdChoose"));
    user.click(*program.desk.find("frmLodgeChoose")->find(button));
    return *program.desk.find(form);
}

/// Item 3 of a company with a taxable business alone, from its page 1 on; more than one status is given as
/// well.
void openReturn(Program& program, User& user, std::span<const char* const> statuses = {}) {
    Form& page1 = openPage1(program, user);
    for (const char* status : statuses) {
        user.click(*page1.find(status));
    }
    // The number of the status is known when page 1 has come back once.
    user.click(*program.desk.find("MDILodge")->find("cmdChoose"));
    user.click(*program.desk.find("MDILodge")->find("cmdPage1"));
    Form& item3 = chooseItem(program, user, "cmdItem03", "frmLodgePage3_3");
    typeInto(item3, user,
        std::array{TypedAmount{"txtMoney32(0)", "24860000"}, TypedAmount{"txtMoney32(1)", "17402000"},
            TypedAmount{"txtMoney32(3)", "186500"}, TypedAmount{"txtMoney32(5)", "342600"},
            TypedAmount{"txtMoney32(7)", "4851900"}});
}

Form& openPage2(Program& program, User& user, const char* rate, std::span<const char* const> statuses = {}) {
    openReturn(program, user, statuses);
    Form& page = chooseItem(program, user, "cmdItem01", "frmLodgePage2");
    user.click(*page.find("chkTaxPay(0)"));
    user.click(*page.find(rate));
    return page;
}

void openWorksheet(Program& program, User& user) {
    typeInto(openPage2(program, user, "ChkBox_NewAtt(1)"), user,
        std::array{TypedAmount{"txtIncome(0)", "2450000"}, TypedAmount{"txtMoney(4)", "48250"},
            TypedAmount{"txtMoney(5)", "150000"}, TypedAmount{"txtMoney(2)", ""}});
}

/// A promoted business that takes deposits, too: item 1 and every row of the worksheet.
void openPromoted(Program& program, User& user) {
    user.click(*program.desk.find("frmLodgeStart")->find("ChkNewInvestment01"));
    openReturn(program, user, std::array{"chkStatus(11)"});
    program.state.strFldPage1[24] = "641910";
    Form& page = chooseItem(program, user, "cmdItem01", "frmLodgePage2");
    user.click(*page.find("chkTaxPay(0)"));
    user.click(*page.find("ChkBox_NewAtt(1)"));
    user.click(*page.find("ChkBox_NewAtt(8)"));
    user.click(*page.find("ChkBox_NewAtt(10)"));
    typeInto(page, user,
        std::array{TypedAmount{"txtIncome(0)", "2000000"}, TypedAmount{"txtIncome(1)", "250000"},
            TypedAmount{"txtIncome(3)", "200000"}, TypedAmount{"txtMoney(4)", "48250"},
            TypedAmount{"txtInvestID", "61-0432-1-00-1-0"}});
    user.click(*page.find("chkInvestType(0)"));
}

void openGreenSheet(Program& program, User& user) {
    Form& page = openPage2(program, user, "ChkBox_NewAtt(1)", std::array{"chkStatus(11)"});
    QTest::qWait(300); // the rate boxes follow the worksheet by a timer
    user.click(*page.find("Cmd_Deposit"));
    typeInto(*program.desk.find("frmLodgePage1_2"), user,
        std::array{TypedAmount{"txtIncome(0)", "2200000"}, TypedAmount{"txtIncome(1)", "250000"},
            TypedAmount{"txtIncome(0)", "2200000"}});
}

void tick(Control& box, User& user) {
    if (!static_cast<CheckBox&>(box).value()) {
        user.click(box);
    }
}

struct EarlierPeriod {
    const char* business;
    const char* start;
    const char* cell;
    const char* result;
};

constexpr std::array earlierPeriods{
    EarlierPeriod{"Check2", "01012560", "txtMoney1(3)", "210000"},
    EarlierPeriod{"Check2", "01012559", "txtMoney1(2)", "60000"},
    EarlierPeriod{"Check1", "01012558", "txtMoney1(0)", "95000"},
};

/// Item 11 with three earlier periods, the popup still open.
Form& openPeriods(Program& program, User& user) {
    openReturn(program, user);
    Form& page = chooseItem(program, user, "cmdItem11", "frmLodgePage6_11");
    user.click(*page.find("Command1"));
    Form& popup = *program.desk.find("frmLodgePage6_11Popup");
    for (const EarlierPeriod& period : earlierPeriods) {
        tick(*popup.find(period.business), user);
        auto& start = static_cast<MaskedBox&>(*popup.find("mskDateFrom(0)"));
        user.focus(start);
        user.edit(start, period.start);
        typeInto(popup, user, std::array{TypedAmount{period.cell, period.result}});
        user.click(*popup.find("cmdOK01"));
    }
    return popup;
}

/// The attachment of a headquarters with an exempt and a taxable business.
Form& openAttachment(Program& program, User& user) {
    openPage1(program, user);
    ReturnState& state = program.state;
    state.intP1Box1 = 1;
    state.blnIHQPage = true;
    Form& page = program.desk.load(frmIHQ::formName);
    IHQ_FormToBox(program);
    program.desk.show(frmIHQ::formName);
    const auto date = [&](const char* box, const char* text) { user.type(*page.find(box), text); };
    date("mskDateConfm", "15022559");
    date("mskDateStart", "01032559");
    date("mskDateEnd", "28022574");
    date("mskDateFrom(0)", "01012559");
    date("mskDateTo(0)", "31122559");
    date("mskDateFrom(1)", "01012560");
    date("mskDateTo(1)", "31122560");
    typeInto(page, user,
        std::array{TypedAmount{"txtA(0)", "48250000"}, TypedAmount{"txtA(1)", "-312500.25"},
            TypedAmount{"txtA(2)", "1840000"}, TypedAmount{"txtA(3)", "6500000"},
            TypedAmount{"txtA(4)", "12000000"}, TypedAmount{"txtB(0)", "3475000"},
            TypedAmount{"txtB(7)", "260000"}, TypedAmount{"txtMoney1(1)", "2150000"},
            TypedAmount{"txtMoney1(3)", "84500"}, TypedAmount{"txtMoney1(5)", "730000"},
            TypedAmount{"txtMoney1(6)", "42000"}, TypedAmount{"txtG1", "2880000"},
            TypedAmount{"txtG2", "42500"}, TypedAmount{"txtA(5)", "950000"}});
    return page;
}

/// The list of what is in the way, with or without the focus in it.
void showProblems(bool entered) {
    settle();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* button = window->findChild<ProblemButton*>()) {
            button->click();
            if (!entered) {
                QWidget* list = window->findChild<ProblemDock*>()->list();
                QTest::keyClick(list, Qt::Key_Escape);
            }
        }
    }
}

/// A sound return out of its file.
void openStored(Program& program, User& user) {
    Form& start = *program.desk.find("frmLodgeStart");
    user.type(*start.find("txtPath"), LODGE_TEST_DATA "/returns/ordinary-company/01055360003132561100C.txt");
    user.click(*start.find("CmdOK2"));
}

/// The same with a figure less in item 7 and some of page 1 missing, on the chooser.
void openStarted(Program& program, User& user) {
    openStored(program, user);
    user.click(*program.desk.find("MDILodge")->find("cmdChoose"));
    ReturnState& state = program.state;
    state.strFldPage4_7[9] = "37500.00";
    state.strFldPage4_7[14] = "37500.00";
    state.strFldPage1[37].clear();
    state.strFldPage1[47].clear();
    state.strFldPage7_12[22] = "2900000.00";
    program.desk.show("frmLodgeChoose");
}

void openItem3(Program& program, User& user) {
    typeAmounts(program, user, "frmLodgePage3_3", item3Example, fillSchedules);
}

/// The start screen after a crash, with the newest automatic store beside the offer.
void offerRecovered(Program& /*program*/, User& /*user*/) {
    using namespace std::chrono;
    const sys_seconds crash = sys_days(year(2019) / May / 17) + 9h + 32min;
    const ReturnNote recovered{
        .path = {}, .storedAt = crash, .number = "0105536000313", .start = "01012561", .finish = "31122561"};
    ReturnNote automatic = recovered;
    automatic.storedAt = crash - 14min;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* band = window->findChild<RecoveryBand*>()) {
            band->offer(recovered, automatic);
        }
    }
}

/// The pages of a stored return, as they come up before they are printed.
void openPreview(Program& program, User& user) {
    openStored(program, user);
    user.click(*program.desk.find("MDILodge")->find("CmdPrint"));
    const auto isDrawn = [] {
        const QWidget* preview = QApplication::activeModalWidget();
        const auto* progress = preview == nullptr ? nullptr : preview->findChild<QProgressBar*>();
        return progress != nullptr && progress->isHidden();
    };
    if (!QTest::qWaitFor(isDrawn, 20'000)) {
        qWarning("the preview is not drawn");
    }
}

const std::vector<Screen>& screens() {
    static const std::vector<Screen> all = {
        {"start",
            [](Program& program, User& user) {
                Form& start = *program.desk.find("frmLodgeStart");
                user.edit(static_cast<MaskedBox&>(*start.find("mskDate1")), "01012561");
                user.click(*start.find("ChkNewInvestment05"));
                user.focus(*start.find("mskDate2"));
                user.edit(static_cast<MaskedBox&>(*start.find("mskDate2")), "31122");
            }},
        {"start-recovered", offerRecovered},
        {"notice", [](Program& program,
                       User& user) { user.click(*program.desk.find("frmLodgeStart")->find("cmdMessage")); }},
        {"page1", [](Program& program, User& user) { openPage1(program, user); }},
        {"page1-end",
            [](Program& program, User& user) { user.focus(*openPage1(program, user).find("txtSitename")); }},
        {"isic", openIsic},
        {"page8",
            [](Program& program, User& user) {
                openPage1(program, user);
                fill(program.state.strFldPage8, page8Example);
                P8_ArrayToVar(program);
                program.desk.show("frmLodgePage8");
            }},
        {"page8-end",
            [](Program& program, User& user) {
                openPage1(program, user);
                fill(program.state.strFldPage8, page8Example);
                P8_ArrayToVar(program);
                user.focus(*program.desk.show("frmLodgePage8").find("mskDate1"));
            }},
        {"item3", openItem3},
        {"item3-large", openItem3, 1.5},
        {"item3-largest", openItem3, 2},
        {"item4", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage3_4", item4Example); }},
        {"help",
            [](Program& program, User& user) {
                typeAmounts(program, user, "frmLodgePage3_3", item3Example);
                settle(); // the keys go where the focus has come to
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
            }},
        {"item5", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage4_5", item5Example); }},
        {"item6", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage4_6", item6Example); }},
        {"item7", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage4_7", item7Example); }},
        {"item8", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage5_8", item8Example); }},
        {"item9", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage5_9", item9Example); }},
        {"item10", [](Program& program,
                       User& user) { typeAmounts(program, user, "frmLodgePage6_10", item10Example); }},
        {"item12", [](Program& program,
                       User& user) { typeAmounts(program, user, "frmLodgePage7_12", item12Example); }},
        {"page2", openWorksheet},
        {"page2-promoted", openPromoted},
        {"greensheet", openGreenSheet},
        {"income-edit",
            [](Program& program, User& user) {
                openWorksheet(program, user);
                program.desk.show("frm_incomeEdit");
            }},
        {"item11",
            [](Program& program, User& user) {
                user.click(*openPeriods(program, user).find("cmdCan01"));
                typeInto(*program.desk.find("frmLodgePage6_11"), user,
                    std::array{TypedAmount{"txtMoney1(42)", "150000"}});
            }},
        {"item11-popup",
            [](Program& program, User& user) {
                Form& popup = openPeriods(program, user);
                tick(*popup.find("Check2"), user);
                auto& start = static_cast<MaskedBox&>(*popup.find("mskDateFrom(0)"));
                user.focus(start);
                user.edit(start, "01012557");
                typeInto(popup, user, std::array{TypedAmount{"txtMoney1(3)", "84500"}});
            }},
        {"ihq", [](Program& program, User& user) { openAttachment(program, user); }},
        {"ihq-end",
            [](Program& program, User& user) { user.focus(*openAttachment(program, user).find("txtG2")); }},
        {"chooser", [](Program& program, User& user) { openStarted(program, user); }},
        {"problems",
            [](Program& program, User& user) {
                openStarted(program, user);
                user.click(*program.desk.find("MDILodge")->find("cmdPage1"));
                program.state.intAuditStatus = 0;
                showProblems(true);
            }},
        {"problems-tie",
            [](Program& program, User& user) {
                openStarted(program, user);
                user.click(*program.desk.find("frmLodgeChoose")->find("cmdItem03"));
                showProblems(false);
            }},
        {"problems-none",
            [](Program& program, User& user) {
                openStored(program, user);
                showProblems(true);
            }},
        {"preview", openPreview},
        {"store", openStore},
        {"stored",
            [](Program& program, User& user) {
                openStore(program, user);
                program.desk.unload("frmLodgeDirec");
                program.state.strFileName = "/home/somying/returns/01055360003132561100CM.txt";
                program.desk.show("frmLodgeDisp1");
            }},
    };
    return all;
}

void save(const QPixmap& picture, const QDir& folder, const QString& name) {
    picture.save(folder.filePath(name + QStringLiteral(".png")));
}

/// The main window and the dialogs in front of it: where they have placed themselves, or else centred over it
/// as a window manager would.
QPixmap picture(QWidget& frame) {
    QPixmap whole = frame.grab();
    QPainter painter(&whole);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &frame && window->isVisible() && qobject_cast<QDialog*>(window) != nullptr) {
            const QPixmap dialog = window->grab();
            const QPoint place = window->testAttribute(Qt::WA_Moved)
                                     ? window->geometry().topLeft() - frame.geometry().topLeft()
                                     : frame.rect().center() - window->rect().center();
            painter.drawPixmap(place, dialog);
            painter.setPen(window->palette().color(QPalette::Dark));
            painter.drawRect(QRect(place, window->size()).adjusted(-1, -1, 0, 0));
        }
    }
    return whole;
}

void drawScreens(const QDir& folder, Look& look, const QString& tail, const QByteArray& only) {
    const double asked = look.zoom();
    for (const QSize size : {QSize(1366, 768), QSize(1180, 640), QSize(2560, 1440)}) {
        for (const Screen& screen : screens()) {
            if (!only.isEmpty() && only != screen.name) {
                continue;
            }
            look.setZoom(screen.zoom == 0 ? asked : screen.zoom);
            SilentHost host;
            Program program(host);
            Binder binder(program, look);
            DesktopPrinter printer(program, binder, look, LODGE_PROGRAM_FOLDER);
            program.attach(printer);
            Shell shell(program);
            shell.start();
            User user(program.desk);
            binder.frame()->showNormal();
            binder.frame()->resize(size);
            settle();
            screen.open(program, user);
            settle();
            save(picture(*binder.frame()), folder,
                QStringLiteral("%1-%2x%3%4")
                    .arg(QLatin1String(screen.name))
                    .arg(size.width())
                    .arg(size.height())
                    .arg(tail));
        }
    }
    look.setZoom(asked);
}

void drawBoxes(const QDir& folder, const QString& tail) {
    int number = 0;
    for (const Box& box :
        {Box{.text = std::string(GetMessage("M026"))}, Box{.text = std::string(GetMessage("M158"))},
            Box{.text = std::string(GetMessage("M001")),
            .buttons = Buttons::OkCancel,
            .defaultAnswer = Answer::Cancel},
            Box{.text = "ต้องการล้างข้อความ ใช่หรือไม่ (ถ้าตอบ Yes  โปรแกรมจะล้างข้อความทุกรายการทุกหน้า) "
                        "ต้องการล้างข้อความ ใช่หรือไม่ (ถ้าตอบ Yes  โปรแกรมจะล้างข้อความทุกรายการทุกหน้า)",
            .buttons = Buttons::YesNo,
            .defaultAnswer = Answer::No,
            .title = "คำเตือน"}}) {
        BoxWindow window(box, nullptr);
        window.show();
        settle();
        save(window.grab(), folder, QStringLiteral("box-%1%2").arg(++number).arg(tail));
    }
    QFileDialog dialog(
        nullptr, QStringLiteral("Browse"), QDir::homePath(), QStringLiteral("Text Files (*.txt)"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    settle();
    save(dialog.grab(), folder, QStringLiteral("file-dialog%1").arg(tail));
    PagesWindow pages(nullptr);
    pages.show();
    settle();
    save(pages.grab(), folder, QStringLiteral("pages%1").arg(tail));
}

} // namespace

} // namespace lodge

int main(int argc, char** argv) {
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    folder.mkpath(QStringLiteral("."));
    lodge::ThaiTexts texts;
    QApplication::installTranslator(&texts);
    const bool dark = argc > 2 && QByteArray(argv[2]) == "dark";
    lodge::Look look(application, dark ? lodge::darkTheme : lodge::lightTheme);
    const int percent = argc > 4 ? QByteArray(argv[4]).toInt() : 100;
    look.setZoom(percent / 100.0);
    const QString scale = application.devicePixelRatio() > 1 ? QStringLiteral("@2x") : QString();
    const QString zoomed = percent == 100 ? QString() : QStringLiteral("-%1%").arg(percent);
    const QString tail = (dark ? QStringLiteral("-dark") : QString()) + zoomed + scale;
    const QByteArray only = argc > 3 ? argv[3] : "";
    lodge::drawScreens(folder, look, tail, only);
    if (only.isEmpty()) {
        lodge::drawBoxes(folder, tail);
    }
    return 0;
}
