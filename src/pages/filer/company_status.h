// The rules of the company status on page 1: which boxes exclude one another, which columns a status opens,
// what item 2 offers for it, and the question before a change that empties the later pages.
#pragma once

#include "controls/buttons.h"
#include "pages/filer/status_table.h"
#include "program/program.h"

#include <algorithm>
#include <span>
#include <string>

namespace lodge {

class frmLodgePage1;

/// Empties everything behind page 1, because the status or the columns that it was filled in for change:
/// items 2 to 12, the notification form, the headquarters attachment, and what the checks remember of them.
/// The forms of those pages are unloaded. Page 1, DataCtrl_P1 and strFldPage1_2 stay.
void WipeLaterPages(Program& program);

/// What a change of a status box leaves in the status index and in the rate label of item 2.
void P1_SetRateLabel(ReturnState& state, int box, bool ticked);

/// Handlers of the status boxes, of the column boxes and of the hidden box `condition12`.
class CompanyStatusRules {
  public:
    CompanyStatusRules(frmLodgePage1& page, Program& program) : page_(page), program_(program) {}

    void chkStatus_MouseDown(int index, MousePress& press);
    void chkStatus_Click(int index);
    void chkStatus_MouseUp(int index);
    void chkTaxType_MouseDown(int index, MousePress& press);
    void chkTaxType_Click(int index);
    void condition12_MouseDown(MousePress& press);
    void condition12_Click();

    [[nodiscard]] bool anyTicked(std::span<const int> boxes) const;
    /// The number of ticked boxes among all 24.
    [[nodiscard]] int tickedCount() const;

  private:
    [[nodiscard]] bool isTicked(int box) const;
    void clearBoxes(std::span<const int> boxes);
    void askBeforeChange(MousePress& press, CheckBox& box, bool asks, const std::string& question);

    void exclude(int ticked);
    void excludeOthers(int ticked);
    void openColumn2For(int ticked);
    void takeStatusNumber();
    void fillExemptColumnAlone();
    void unticked(int index);
    void freeColumns();
    void refreshSheetCopies(int index, bool ticked);
    void addToLists(int index);
    void removeFromLists(int index);
    void rebuildRecord(int index, bool ticked);

    frmLodgePage1& page_;
    Program& program_;
    /// While one status takes the place of another; not the person's own untick then.
    bool excluding_ = false;
};

} // namespace lodge
