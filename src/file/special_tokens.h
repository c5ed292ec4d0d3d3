// The tokens and steps of the return file that no kind of the layout table tells: values that are stored in
// one form and kept in another.
#pragma once

#include "file/layout.h"

namespace lodge::special {

// Line 1
extern const SpecialToken statusWord;
extern const SpecialToken version;
void takeTaxYear(ReturnState& state);
void noteInvestment(ReturnState& state);

// Line 3
void restoreFilingAndPeriod(ReturnState& state);

// Line 4
void restoreStatusBoxes(ReturnState& state);

// Lines 9 to 15
extern const SpecialToken privilege;
extern const SpecialToken payStatus;
extern const SpecialToken rate;
extern const SpecialToken balanceLine4;
extern const SpecialToken balanceLine6;
extern const SpecialToken worksheet;
void applyIncomeEdit(ReturnState& state);
void restoreTaxCase(ReturnState& state);

// Lines 221 and 223
void restoreWorksheetTax(ReturnState& state);
extern const SpecialToken statedResult;

} // namespace lodge::special
