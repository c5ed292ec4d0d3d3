// The ISIC dialog: finds a business line by a piece of its name or by its code and hands the one picked to
// the page that asked for it.
#pragma once

#include "controls/buttons.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "program/program.h"

#include <string>
#include <string_view>

namespace lodge {

/// A name of 76 characters or more in two lines, parted at its last blank before position 76; a shorter one,
/// or one without a blank there, as it is.
[[nodiscard]] std::string brokenName(std::string_view name);

class frmLodgeISIC : public Form {
  public:
    static constexpr const char* formName = "frmLodgeISIC";

    explicit frmLodgeISIC(Program& program);

    TextBox txtSearch{*this, "txtSearch"};
    TextBox txtSearchISIC{*this, "txtSearchISIC"};
    CommandButton cmdSearch{*this, "cmdSearch"};
    CommandButton cmdClear{*this, "cmdClear"};
    Grid gridISIC{*this, "gridISIC"};
    Label lbText{*this, "lbText"};
    TextBox txtISICName{*this, "txtISICName"};
    /// The length of the chosen name, by which it is broken; nobody sees it.
    TextBox txtLenCount{*this, "txtLenCount"};
    CommandButton cmdOk{*this, "cmdOk"};
    CommandButton cmdExit{*this, "cmdExit"};

    /// The row of page 1 that the choice goes to, 0 to 2. Page 2 has a single one.
    void setRow(int row) { row_ = row; }

    void Form_Load() override;
    /// The cross does what "ออก" does.
    void closedByFrame() override { cmdExit_Click(); }

  private:
    void searchWhileTyping();
    void cmdSearch_Click();
    void cmdClear_Click();
    void gridISIC_Click();
    void cmdOk_Click();
    void cmdExit_Click();

    void showNames(std::string_view piece);
    void showCodes(std::string_view piece);
    void choose(std::string name, std::string code);
    void leave();

    Program& program_;
    int row_ = 0;
    std::string chosenName_;
    std::string chosenCode_;
};

} // namespace lodge
