#include "stage.h"

#include <memory>

namespace lodge {

frmStage::frmStage(Program& program, std::vector<std::string>& events)
    : Form(program.desk, formName, "เวที"), events_(events) {
    txtName.setText("as designed");
    txtAmount.setTextKind(TextKind::Amount);
    txtAmount.setMaxLength(16);
    lblSum.setCaption("0.00");
    cmdGo.setCaption("ตกลง");
    chkYes.setCaption("ใช่");
    optFirst.setCaption("แรก");
    fraAll.setCaption("ทั้งหมด");
    chkKind[1].setTag("2.1");
    lstLines.setItems({"ปลูกข้าว", "ค้าส่ง"});
    cboTitle.setItems({"", "นาย", "นาง", "นนร.", "นนร."});
    grdFound.setRows({{"01111", "ปลูกข้าว"}, {"46", "ค้าส่ง"}});
    for (Control* control : controls()) {
        watch(*control);
    }
}

void frmStage::watch(Control& control) {
    const auto note = [this, &control](const std::string& event) {
        return [this, &control, event] { events_.push_back(control.fullName() + ' ' + event); };
    };
    control.onClick = note("click");
    control.onDoubleClick = note("doubleclick");
    control.onGotFocus = note("got");
    control.onLostFocus = note("lost");
    control.onMouseDown = [note](MousePress&) { note("down")(); };
    control.onMouseUp = [note](const MouseGesture&) { note("up")(); };
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        box->onChange = note("change");
        box->onKey = [note](KeyPress& key) { note("key " + std::to_string(key.key))(); };
    }
    if (auto* box = dynamic_cast<MaskedBox*>(&control)) {
        box->onChange = note("change");
    }
    if (auto* timer = dynamic_cast<Timer*>(&control)) {
        timer->onTimer = note("timer");
    }
}

void frmStage::Form_MouseDown(const MouseGesture& gesture) {
    events_.emplace_back(gesture.button == MouseButton::Right && gesture.shift && gesture.ctrl && gesture.alt
                             ? "frmStage all keys"
                             : "frmStage down");
}

Stage::Stage() {
    program.desk.add(frmStage::formName, [this] { return std::make_unique<frmStage>(program, events); });
    program.desk.add(frmPopup::formName, [this] { return std::make_unique<frmPopup>(program); });
    program.desk.show(frmStage::formName);
}

SessionEnd Stage::play(std::string_view lines, bool keepGoing) {
    std::istringstream script{std::string(lines)};
    Session session(program, host, [] {});
    const SessionOptions options{.scriptName = "test.session",
        .substitutes = {{"PROGRAM", "/opt/lodge77"}, {"SCRIPT", "/home/sessions"}},
        .keepGoing = keepGoing};
    return session.run(script, options, errors);
}

} // namespace lodge
