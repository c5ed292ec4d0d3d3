// The checks of single fields of page 1. Each clears `intError` first and answers whether the field passes; a
// refusal shows its message, sets `intError` to 1 and puts the focus where it is to be mended. A field that
// holds anything but digits where only digits may stand is emptied without a word.
#pragma once

#include "program/program.h"

#include <array>
#include <string_view>

namespace lodge {

class frmLodgePage1;

/// The State Audit Office, which audits public bodies: it has no title, surname or registration of its own.
inline constexpr std::string_view stateAuditOffice = "0994000160500";

/// The 13-digit numbers that P1_CheckNid looks after.
enum class NidField { Filer = 1, AuditOffice = 2, AccountingOffice = 3 };

/// The old number, and that the filer has any number at all (M132).
bool P1_CheckTin(frmLodgePage1& page);
/// The number of an additional filing; a good one goes into strFldPage1 at once.
bool P1_CheckAddNo(frmLodgePage1& page);
/// The auditor's 13-digit number (M113, M129).
bool P1_CheckAuditPin(frmLodgePage1& page);
/// The accountant's; here a number of ten digits already counts as long enough, and the check digit refuses
/// it. Passing opens the surname.
bool P1_CheckAccPin(frmLodgePage1& page);
/// The old 10-digit numbers of the audit office and of the accounting office (M009, M003).
bool P1_CheckOffAuditTin(frmLodgePage1& page);
bool P1_CheckOffAccTin(frmLodgePage1& page);
/// The accountant's code: eight digits (M077).
bool P1_CheckAccCodeNo(frmLodgePage1& page);
/// The auditor's registration: eight characters, none of them blank (M086).
bool P1_CheckAuditRegNo(frmLodgePage1& page);
/// The same: eight digits, or "TA" and six digits. A text of another length passes here.
bool P1_CheckAuditRegChars(frmLodgePage1& page);
/// The date of the auditor's report: a day (M026) not after today (M017) and after the period (M104).
bool P1_CheckDateReport(frmLodgePage1& page);
/// That a status is chosen (M006), and a legal form beside box 11 (M205).
bool P1_CheckStatus(frmLodgePage1& page);
/// A 13-digit number of the filer or of an office (M128, M129).
bool P1_CheckNid(frmLodgePage1& page, NidField field);

/// What runs when a person leaves a field.
struct Page1Leaving {
    std::string_view control;
    void (*leave)(frmLodgePage1& page);
};

void txtNid_LostFocus(frmLodgePage1& page);
void txtTinID_LostFocus(frmLodgePage1& page);
void txtAddNo_LostFocus(frmLodgePage1& page);
void txtPersonRegNo_LostFocus(frmLodgePage1& page);
void txtAuditPinID_LostFocus(frmLodgePage1& page);
void txtAuditRegNo_LostFocus(frmLodgePage1& page);
void txtOffAuditTinID_LostFocus(frmLodgePage1& page);
void txtAudOfficeNid_LostFocus(frmLodgePage1& page);
void mskDateReport_LostFocus(frmLodgePage1& page);
void txtAccPinID_LostFocus(frmLodgePage1& page);
void txtAccCodeNo_LostFocus(frmLodgePage1& page);
void txtOffAccTinID_LostFocus(frmLodgePage1& page);
void txtAccOfficeNid_LostFocus(frmLodgePage1& page);
void txtSitename_LostFocus(frmLodgePage1& page);

// clang-format off
inline constexpr std::array page1Leavings{
    Page1Leaving{"txtNid",           txtNid_LostFocus},
    Page1Leaving{"txtTinID",         txtTinID_LostFocus},
    Page1Leaving{"txtAddNo",         txtAddNo_LostFocus},
    Page1Leaving{"txtPersonRegNo",   txtPersonRegNo_LostFocus},
    Page1Leaving{"txtAuditPinID",    txtAuditPinID_LostFocus},
    Page1Leaving{"txtAuditRegNo",    txtAuditRegNo_LostFocus},
    Page1Leaving{"txtOffAuditTinID", txtOffAuditTinID_LostFocus},
    Page1Leaving{"txtAudOfficeNid",  txtAudOfficeNid_LostFocus},
    Page1Leaving{"mskDateReport",    mskDateReport_LostFocus},
    Page1Leaving{"txtAccPinID",      txtAccPinID_LostFocus},
    Page1Leaving{"txtAccCodeNo",     txtAccCodeNo_LostFocus},
    Page1Leaving{"txtOffAccTinID",   txtOffAccTinID_LostFocus},
    Page1Leaving{"txtAccOfficeNid",  txtAccOfficeNid_LostFocus},
    Page1Leaving{"txtSitename",      txtSitename_LostFocus},
};
// clang-format on

} // namespace lodge
