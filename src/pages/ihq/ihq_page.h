// The attachment of an international headquarters company: the dates of its privilege, its income by kind,
// and the losses of earlier periods. Its data is the record modIHQ; the page is a mirror of it, and every
// field is in the record as soon as it is left.
#pragma once

#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/text_box.h"
#include "pages/ihq/ihq_rules.h"
#include "program/page_form.h"
#include "program/program.h"

#include <string_view>

namespace lodge {

inline constexpr int ihqIncomeLines = 8;
inline constexpr int ihqLossRows = 5;
/// Exempt profit and loss, taxable profit and loss.
inline constexpr int ihqCellsOfRow = 4;
inline constexpr int ihqResultCells = ihqLossRows * ihqCellsOfRow;

class frmIHQ : public PageForm {
  public:
    static constexpr const char* formName = "frmIHQ";
    /// The page code while the page is being made; the shell gives it its own, 100, once it is filled.
    static constexpr std::int16_t openingCode = 13;

    explicit frmIHQ(Program& program);

    TextBox txtNid{*this, "txtNid"};

    MaskedBox mskDateConfm{*this, "mskDateConfm"};
    MaskedBox mskDateStart{*this, "mskDateStart"};
    MaskedBox mskDateEnd{*this, "mskDateEnd"};

    ControlArray<TextBox> txtA{*this, "txtA", ihqIncomeLines};
    ControlArray<TextBox> txtB{*this, "txtB", ihqIncomeLines};
    ControlArray<TextBox> txtC{*this, "txtC", ihqIncomeLines};
    TextBox txtSumA{*this, "txtSumA"};
    TextBox txtSumB{*this, "txtSumB"};
    TextBox txtSumC{*this, "txtSumC"};

    /// Earlier periods, row 0 the oldest.
    ControlArray<MaskedBox> mskDateFrom{*this, "mskDateFrom", ihqLossRows};
    ControlArray<MaskedBox> mskDateTo{*this, "mskDateTo", ihqLossRows};
    ControlArray<TextBox> txtMoney1{*this, "txtMoney1", ihqResultCells};
    TextBox txtG1{*this, "txtG1"};
    TextBox txtG2{*this, "txtG2"};

    // Tools of the program's makers, hidden from its users.
    CommandButton Command1{*this, "Command1"};
    CommandButton cmdChkN2Input{*this, "cmdChkN2Input"};

    /// Fills the controls from the record, which stays as it is.
    void FormToBox();
    /// Takes the controls into the record: dates with their slashes, amounts as plain digits.
    void BoxToForm();

    void Form_Load() override;
    void Form_Activate() override;

  private:
    void orderControls();
    void wireDates();
    void wireIncome();
    void wireLosses();

    void privilegeDateLeft(MaskedBox& box);
    void incomeLeft(TextBox& box, int line);
    void showColumnSum(ControlArray<TextBox>& column, TextBox& sum);
    void showTotal();
    void lossStartLeft(int row);
    void lossEndLeft(int row);
    void resultLeft(int cell);
    void carriedLossLeft(TextBox& box);

    [[nodiscard]] LossPeriod periodOf(int row) const;
    [[nodiscard]] bool hasNoPeriod() const;
    /// The first row with a start and no result, -1 when there is none.
    [[nodiscard]] int rowWithoutResult() const;
    void focusFirstOpenCell(int row);
    void clearResults(int row);

    [[nodiscard]] HeadquartersRecord& record() { return program_.state.modIHQ; }

    Program& program_;
};

/// For the shell: fills the page. Nothing is left to take from it when it is left.
void IHQ_FormToBox(Program& program);

} // namespace lodge
