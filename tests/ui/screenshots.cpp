// Draws the screens of the program into PNG files: ui_screenshots FOLDER [light|dark [SCREEN]]
//
// Each screen is drawn at 1366x768, at 2560x1440 and at twice the pixels, light and dark, so that a look at
// the folder shows what is cut, cramped or out of line.

#include "pages/filer/isic_lookup.h"
#include "pages/filer/notification_form.h"
#include "pages/filer/page1_fields.h"
#include "program/host.h"
#include "shell/shell.h"
#include "ui/binder.h"
#include "ui/boxes.h"
#include "ui/look.h"
#include "ui/qt_host.h"
#include "ui/thai_texts.h"
#include "values/messages.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPixmap>
#include <QTest>

#include <array>
#include <functional>
#include <span>

namespace lodge {

namespace {

/// Answers every box with its first button and never waits.
class SilentHost : public QtHost {
  public:
    Answer show(const Box& box) override { return box.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok; }
    [[nodiscard]] std::filesystem::path programFolder() const override { return LODGE_PROGRAM_FOLDER; }
    [[nodiscard]] std::chrono::year_month_day today() const override {
        return std::chrono::year(2019) / std::chrono::May / 17;
    }
};

struct Screen {
    const char* name;
    std::function<void(Program&, User&)> open;
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
    FilledField{31, "1100200300401"}, FilledField{32, "3"}, FilledField{33, "สมหญิง"},
    FilledField{34, "ปู่ทองฎีกา"}, FilledField{35, "4321"}, FilledField{37, "15032562"},
    FilledField{38, "3100500600700"}, FilledField{39, "1"}, FilledField{40, "ณัฏฐ์"},
    FilledField{41, "รู้บัญชีดี"}, FilledField{46, "0105540000129"},
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

struct TypedAmount {
    const char* box;
    const char* text;
};

/// A page of amounts of a company with both kinds of business, typed box by box.
void typeAmounts(Program& program, User& user, const char* form, std::span<const TypedAmount> amounts) {
    openPage1(program, user);
    program.state.intP1Box1 = 1;
    program.state.intP1Box2 = 1;
    Form& page = program.desk.show(form);
    for (const TypedAmount& amount : amounts) {
        auto& box = static_cast<TextBox&>(*page.find(amount.box));
        user.focus(box);
        user.edit(box, amount.text);
    }
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
        {"item3", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage3_3", item3Example); }},
        {"item5", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage4_5", item5Example); }},
        {"item8", [](Program& program,
                      User& user) { typeAmounts(program, user, "frmLodgePage5_8", item8Example); }},
        {"item10", [](Program& program,
                       User& user) { typeAmounts(program, user, "frmLodgePage6_10", item10Example); }},
        {"item12", [](Program& program,
                       User& user) { typeAmounts(program, user, "frmLodgePage7_12", item12Example); }},
        {"chooser",
            [](Program& program, User& user) {
                openPage1(program, user);
                program.desk.show("frmLodgeChoose");
            }},
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

void settle() { QTest::qWait(60); }

void save(const QPixmap& picture, const QDir& folder, const QString& name) {
    picture.save(folder.filePath(name + QStringLiteral(".png")));
}

/// The main window and, centred over it as a window manager would, the dialogs in front of it.
QPixmap picture(QWidget& frame) {
    QPixmap whole = frame.grab();
    QPainter painter(&whole);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &frame && window->isVisible() && qobject_cast<QDialog*>(window) != nullptr) {
            const QPixmap dialog = window->grab();
            const QPoint place = frame.rect().center() - window->rect().center();
            painter.drawPixmap(place, dialog);
            painter.setPen(window->palette().color(QPalette::Dark));
            painter.drawRect(QRect(place, window->size()).adjusted(-1, -1, 0, 0));
        }
    }
    return whole;
}

void drawScreens(const QDir& folder, const Look& look, const QString& tail, const QByteArray& only) {
    for (const QSize size : {QSize(1366, 768), QSize(1180, 640), QSize(2560, 1440)}) {
        for (const Screen& screen : screens()) {
            if (!only.isEmpty() && only != screen.name) {
                continue;
            }
            SilentHost host;
            Program program(host);
            Binder binder(program, look);
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
    const lodge::Look look(application, dark ? lodge::darkTheme : lodge::lightTheme);
    const QString scale = application.devicePixelRatio() > 1 ? QStringLiteral("@2x") : QString();
    const QString tail = (dark ? QStringLiteral("-dark") : QString()) + scale;
    const QByteArray only = argc > 3 ? argv[3] : "";
    lodge::drawScreens(folder, look, tail, only);
    if (only.isEmpty()) {
        lodge::drawBoxes(folder, tail);
    }
    return 0;
}
