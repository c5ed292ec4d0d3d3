// The store dialog: what is about to be stored, under whose id and into which folder; and the confirmation
// that follows a complete store. The same steps run unseen for the automatic store.
#pragma once

#include "controls/buttons.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "program/program.h"

#include <functional>

namespace lodge {

class frmLodgeDirec : public Form {
  public:
    static constexpr const char* formName = "frmLodgeDirec";

    explicit frmLodgeDirec(Program& program);

    TextBox txtUserID{*this, "txtUserID"};
    Label lblTaxYear{*this, "lblTaxYear"};
    Label lblTaxType{*this, "lblTaxType"};
    Label lblTaxNumber{*this, "lblTaxNumber"};
    Label lblTaxSave{*this, "lblTaxSave"};
    /// The folder, with its closing separator; it can be typed or chosen.
    TextBox txtPath{*this, "txtPath"};
    CommandButton Dir1{*this, "Dir1"};
    Label Label1{*this, "Label1"};
    CommandButton cmdOk{*this, "cmdOk"};
    CommandButton cmdExit{*this, "cmdExit"};

    /// Told once the return is in its file, complete or temporary.
    std::function<void()> onStored;

    void Form_Load() override;
    void closedByFrame() override { cmdExit_Click(); }

  private:
    bool refuses(std::string_view code);
    void Dir1_Click();
    void cmdOk_Click();
    void cmdExit_Click();

    Program& program_;
};

class frmLodgeDisp1 : public Form {
  public:
    static constexpr const char* formName = "frmLodgeDisp1";

    explicit frmLodgeDisp1(Program& program);

    Label LblMessage1{*this, "LblMessage1"};
    Label LblMessage2{*this, "LblMessage2"};
    /// The path of the packed file.
    Label LblMessage3{*this, "LblMessage3"};
    CommandButton CmdPrint{*this, "CmdPrint"};
    CommandButton CmdSaveExit{*this, "CmdSaveExit"};

    void Form_Load() override;
    /// Back to page 1 with the toolbar on.
    void closedByFrame() override;

  private:
    void CmdPrint_Click();

    Program& program_;
};

/// Stores the return as it stands into "temp" under the program's folder, without a dialog. Shows what
/// stands in the way: M078 for a return without an id, or why the file could not be written.
void storeAutomatically(Program& program);

} // namespace lodge
