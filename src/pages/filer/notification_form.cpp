#include "pages/filer/notification_form.h"

#include "pages/filer/page8_fields.h"
#include "values/dates.h"
#include "values/money.h"
#include "values/text.h"

#include <cstddef>
#include <string>

namespace lodge {

namespace {

/// Entry of strFldPage1 with the filer's 13-digit number.
constexpr std::size_t filerNid = 45;

const std::string& field(const CheckContext& context, std::size_t index) {
    return context.state.strFldPage8[index];
}

template <std::size_t First, std::size_t Second>
bool isUnanswered(const CheckContext& context) {
    return readFigure(field(context, First)) == 0.0 && readFigure(field(context, Second)) == 0.0;
}

template <std::size_t Answer, std::size_t Reason>
bool lacksReason(const CheckContext& context) {
    return readFigure(field(context, Answer)) == 1.0 && field(context, Reason).empty();
}

// clang-format off
constexpr std::array checkRows{
    CheckRow{"M057", "chkBussiness1(0)", isUnanswered<6, 8>},
    CheckRow{"M058", "txtBussiness1",    lacksReason<6, 7>},
    CheckRow{"M059", "chkBussiness2(0)", isUnanswered<9, 11>},
    CheckRow{"M060", "txtBussiness2",    lacksReason<9, 10>},
    CheckRow{"M061", "chkBussiness3(0)", isUnanswered<12, 14>},
    CheckRow{"M062", "txtBussiness3",    [](const CheckContext& c) {
                                             return readFigure(field(c, 12)) >= 1.0 && field(c, 13).empty();
                                         }},
    CheckRow{"M063", "chkBussiness4(0)", isUnanswered<15, 17>},
    CheckRow{"M064", "txtBussiness4",    lacksReason<15, 16>},
    CheckRow{"M065", "chkBussiness5(0)", isUnanswered<18, 19>},
    CheckRow{"M066", "txtBussiness5",    lacksReason<19, 20>},
    CheckRow{"M067", "mskDate1",         [](const CheckContext& c) { return field(c, 23).empty(); }},
};
// clang-format on

bool refuse(frmLodgePage8& page, std::string_view code) {
    page.program().refuse(code, page.mskDate1);
    return false;
}

} // namespace

frmLodgePage8::frmLodgePage8(Program& program)
    : PageForm(program.desk, formName, "แบบแจ้งข้อความของกรรมการหรือผู้เป็นหุ้นส่วนหรือผู้จัดการ"), program_(program) {
    for (const Question& question : questions_) {
        question.boxes[0].setCaption("มี");
        question.boxes[1].setCaption("ไม่มี");
        question.boxes.each([this, &question](CheckBox& box, int index) {
            box.onClick = [this, &question, index] { chkBussiness_Click(question, index); };
        });
    }
    chkBussiness5[0].setCaption("ได้ดำเนินการครบถ้วนแล้ว");
    chkBussiness5[1].setCaption("ไม่ได้ดำเนินการ");
    designReasons();
    mskDate1.onLostFocus = [this] {
        if (!mskDate1.digits().empty()) {
            P8_CheckDate(program_);
        }
    };
}

void frmLodgePage8::designReasons() {
    for (const Question& question : questions_) {
        question.reason.setEnabled(false);
        question.reason.setBack(BackColour::Button);
    }
    for (TextBox* box : {&txtBussiness1, &txtBussiness2, &txtBussiness3, &txtBussiness4, &txtBussiness5,
             &txtAuditDesc, &txtAuditOther}) {
        box->setTextKind(TextKind::MultiLine);
        // A field is one token of one line of the return file.
        box->onLostFocus = [box] { box->setText(removeAll(box->text(), "\r\n")); };
    }
}

void frmLodgePage8::Form_Load() { lblName.setCaption(program_.state.strFldPage1[filerNid]); }

void frmLodgePage8::chkBussiness_Click(const Question& question, int index) {
    if (!question.boxes[index].value()) {
        return;
    }
    question.boxes[1 - index].setValue(false);
    const bool withReason = index == question.withReason;
    if (!withReason) {
        question.reason.setText("");
    }
    question.reason.setEnabled(withReason);
    question.reason.setBack(withReason ? BackColour::Window : BackColour::Button);
}

void P8_ArrayToVar(Program& program) {
    const auto& page = static_cast<frmLodgePage8&>(program.desk.load(frmLodgePage8::formName));
    const FieldArray& fields = program.state.strFldPage8;
    // Answers first: one of them empties the reason.
    for (const bool answers : {true, false}) {
        for (const Field& row : page8Fields) {
            if ((row.kind == FieldKind::Flag) == answers) {
                showField(page, row, fields[row.index]);
            }
        }
    }
}

void P8_DataToArray(Program& program) {
    const auto* page = program.desk.find<frmLodgePage8>();
    if (page == nullptr) {
        return;
    }
    program.state.strFldPage8.fill({});
    for (const Field& row : page8Fields) {
        program.state.strFldPage8[row.index] = readField(*page, row);
    }
}

bool P8_CheckDate(Program& program) {
    program.state.intError = 0;
    auto* page = program.desk.find<frmLodgePage8>();
    if (page == nullptr) {
        return true;
    }
    const std::string& digits = page->mskDate1.digits();
    if (ChkDate(digits).empty()) {
        return refuse(*page, "M026");
    }
    const std::string stated = DateToYMD(digits);
    if (stated >= DateToYMD(dateText(program.host().today()))) {
        return refuse(*page, "M068");
    }
    if (stated <= DateToYMD(program.state.strFinishDDMMYY)) {
        return refuse(*page, "M119");
    }
    return true;
}

void P8_CheckForm(Program& program) {
    const auto* page = program.desk.find<frmLodgePage8>();
    if (page != nullptr && !page->mskDate1.digits().empty()) {
        P8_CheckDate(program);
    }
}

std::span<const CheckRow> page8CheckRows() { return checkRows; }

void P8_CheckData(Program& program) { runChecks(program, frmLodgePage8::formName, page8CheckRows()); }

} // namespace lodge
