// The order of a store: the gates before it, the full checks of a complete one, and the hand-over to the
// store dialog.
#pragma once

#include "program/checks.h"
#include "program/program.h"
#include "shell/navigation.h"

#include <vector>

namespace lodge {

/// Adds everything that the gates before a complete store refuse while page 2 is on screen.
void collectGateRefusals(const CheckContext& context, std::vector<Refusal>& refusals);
/// Adds everything that a complete store refuses once page 1 is stored behind page 2: the zone, and the full
/// checks in their order. What a page asks when it is left does not count: the light checks, the web site.
void collectFullRefusals(const CheckContext& context, std::vector<Refusal>& refusals);

class StoreSequence {
  public:
    StoreSequence(Program& program, Navigation& navigation) : program_(program), navigation_(navigation) {}

    /// Complete store, the file that is uploaded.
    void cmdSave1_Click();
    /// Temporary store, to go on with later.
    void cmdSave2_Click();

  private:
    bool passesGates();
    /// The first complete store after a load or a change of status goes through page 2.
    bool goesThroughPage2();
    /// The worksheet's figures, the capital of a small company, the carried loss on the page of item 11.
    bool passesTaxGates();
    bool ChkZoneStatus();
    bool passesFullChecks();
    void storeFlow();
    void focusFirstField();

    Program& program_;
    Navigation& navigation_;
};

} // namespace lodge
