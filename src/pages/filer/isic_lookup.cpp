#include "pages/filer/isic_lookup.h"

#include "pages/filer/name_pattern.h"
#include "program/business_line_page.h"
#include "values/money.h"
#include "values/text.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace lodge {

namespace {

constexpr std::size_t codeLength = 6;
/// From this many characters on a name takes two lines.
constexpr std::size_t longName = 76;

constexpr int nameColumn = 2;
constexpr int codeColumn = 1;

constexpr const char* wrongCode = "ต้องระบุตัวเลขรหัส ISIC ให้ครบทั้ง 6 หลัก";

bool isCode(std::string_view text) {
    return text.size() == codeLength && !DigitFilter(text, codeLength, codeLength).empty();
}

/// The rows of the table whose `texts` hold the piece, numbered from 1 in table order.
std::vector<Grid::Row> rowsWith(
    const ReturnState& state, const std::vector<std::string>& texts, std::string_view piece) {
    const NamePattern pattern("*" + std::string(piece) + "*");
    std::vector<Grid::Row> rows;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (pattern.matches(texts[i])) {
            rows.push_back({std::to_string(rows.size() + 1), state.strIsicCode[i], state.strIsicName[i]});
        }
    }
    return rows;
}

} // namespace

std::string brokenName(std::string_view name) {
    if (textLength(name) < longName) {
        return std::string(name);
    }
    const std::size_t blank = textLeft(name, longName - 1).rfind(' ');
    if (blank == std::string_view::npos) {
        return std::string(name);
    }
    return std::string(name.substr(0, blank)) + '\n' + std::string(name.substr(blank + 1));
}

frmLodgeISIC::frmLodgeISIC(Program& program)
    : Form(program.desk, formName, "ค้นหากิจการที่ประกอบ ( ISIC Code )"), program_(program) {
    txtSearchISIC.setTextKind(TextKind::Number);
    txtISICName.setTextKind(TextKind::MultiLine);
    txtISICName.setLocked(true);
    txtISICName.setBack(BackColour::Button);
    txtLenCount.setVisible(false);
    cmdSearch.setCaption("ค้นหา");
    cmdClear.setCaption("ล้างข้อความ");
    lbText.setCaption("ชื่อกิจการที่ประกอบ");
    cmdOk.setCaption("ตกลง");
    cmdExit.setCaption("ออก");

    txtSearch.onChange = [this] { searchWhileTyping(); };
    txtSearchISIC.onChange = [this] { searchWhileTyping(); };
    cmdSearch.onClick = [this] { cmdSearch_Click(); };
    cmdClear.onClick = [this] { cmdClear_Click(); };
    gridISIC.onClick = [this] { gridISIC_Click(); };
    cmdOk.onClick = [this] { cmdOk_Click(); };
    cmdExit.onClick = [this] { cmdExit_Click(); };
}

void frmLodgeISIC::Form_Load() { gridISIC.setColumns({"ลำดับ", "รหัส ISIC", "ชื่อกิจการที่ประกอบ"}); }

void frmLodgeISIC::showNames(std::string_view piece) {
    gridISIC.setRows(rowsWith(program_.state, program_.state.strIsicName, piece));
}

void frmLodgeISIC::showCodes(std::string_view piece) {
    gridISIC.setRows(rowsWith(program_.state, program_.state.strIsicCode, piece));
}

/// The hits so far. Says nothing: a word half typed finds nothing and a code half typed is no code.
void frmLodgeISIC::searchWhileTyping() {
    if (!txtSearch.text().empty()) {
        showNames(txtSearch.text());
    } else if (isCode(txtSearchISIC.text())) {
        showCodes(txtSearchISIC.text());
    } else {
        gridISIC.setRows({});
    }
}

void frmLodgeISIC::cmdSearch_Click() {
    gridISIC.setRows({});
    if (!txtSearch.text().empty()) {
        showNames(txtSearch.text());
    } else if (!txtSearchISIC.text().empty()) {
        if (!isCode(txtSearchISIC.text())) {
            program_.notify(wrongCode);
            txtSearchISIC.setFocus();
            return;
        }
        showCodes(txtSearchISIC.text());
    }
    if (gridISIC.rows().empty()) {
        program_.message("M115");
    }
}

void frmLodgeISIC::cmdClear_Click() {
    txtSearch.setText("");
    txtSearchISIC.setText("");
    choose({}, {});
    gridISIC.setRows({});
}

void frmLodgeISIC::gridISIC_Click() {
    const int row = gridISIC.picked();
    choose(gridISIC.cell(row, nameColumn), gridISIC.cell(row, codeColumn));
}

void frmLodgeISIC::choose(std::string name, std::string code) {
    chosenName_ = std::move(name);
    chosenCode_ = std::move(code);
    txtLenCount.setText(chosenName_.empty() ? "" : std::to_string(textLength(chosenName_)));
    txtISICName.setText(brokenName(chosenName_));
}

void frmLodgeISIC::cmdOk_Click() {
    if (chosenCode_.empty()) {
        return; // nothing is picked, so there is nothing to take
    }
    constexpr std::int16_t page1 = 1;
    Form* form = desk().find(program_.state.intPageCur == page1 ? "frmLodgePage1" : "frmLodgePage2");
    auto* page = dynamic_cast<BusinessLinePage*>(form);
    if (page == nullptr || page->takeBusinessLine(row_, chosenName_, chosenCode_)) {
        leave();
    }
}

void frmLodgeISIC::cmdExit_Click() { leave(); }

void frmLodgeISIC::leave() {
    program_.shell().ShowTools(true);
    desk().unload(formName);
}

} // namespace lodge
