// The fields of page 1, strFldPage1, and the moves between its array and its controls.
#pragma once

#include "controls/lists.h"
#include "pages/filer/fields.h"
#include "program/program.h"

#include <array>

namespace lodge {

// clang-format off
inline constexpr std::array page1Fields{
    Field{0,  "txtTinID",         FieldKind::Text},
    Field{1,  "lblDate1",         FieldKind::Label},
    Field{2,  "lblMonth1",        FieldKind::Label},
    Field{3,  "lblYear1",         FieldKind::Label},
    Field{4,  "lblDate2",         FieldKind::Label},
    Field{5,  "lblMonth2",        FieldKind::Label},
    Field{6,  "lblYear2",         FieldKind::Label},
    Field{7,  "chkNormal",        FieldKind::Flag},
    Field{8,  "chkAdvance",       FieldKind::Flag},
    Field{9,  "chkAdd",           FieldKind::Flag},
    Field{10, "txtAddNo",         FieldKind::FilingNumber},
    Field{11, "txtPersonRegNo",   FieldKind::Text},
    Field{12, "chkStatus(0)",     FieldKind::Flag},
    Field{13, "chkStatus(1)",     FieldKind::Flag},
    Field{14, "chkStatus(2)",     FieldKind::Flag},
    Field{15, "chkStatus(3)",     FieldKind::Flag},
    Field{16, "chkStatus(4)",     FieldKind::Flag},
    Field{17, "chkStatus(5)",     FieldKind::Flag},
    Field{18, "chkStatus(6)",     FieldKind::Flag},
    Field{19, "chkStatus(7)",     FieldKind::Flag},
    Field{20, "chkStatus(8)",     FieldKind::Flag},
    Field{21, "chkStatus(9)",     FieldKind::Flag},
    Field{22, "chkStatus(10)",    FieldKind::Flag},
    Field{23, "lblISICName1(0)",  FieldKind::Label},
    Field{24, "lblISICCode1(0)",  FieldKind::Label},
    Field{25, "lblISICName1(1)",  FieldKind::Label},
    Field{26, "lblISICCode1(1)",  FieldKind::Label},
    Field{27, "lblISICName1(2)",  FieldKind::Label},
    Field{28, "lblISICCode1(2)",  FieldKind::Label},
    Field{29, "lblMoneyAdd",      FieldKind::Money},
    Field{30, "lblMoneyOver",     FieldKind::Money},
    Field{31, "txtAuditPinID",    FieldKind::Text},
    Field{32, "cboAuditTitle",    FieldKind::Title},
    Field{33, "txtAuditName",     FieldKind::Text},
    Field{34, "txtAuditSurname",  FieldKind::Text},
    Field{35, "txtAuditRegNo",    FieldKind::Text},
    Field{36, "txtOffAuditTinID", FieldKind::Text},
    Field{37, "mskDateReport",    FieldKind::Date},
    Field{38, "txtAccPinID",      FieldKind::Text},
    Field{39, "cboAccTitle",      FieldKind::Title},
    Field{40, "txtAccName",       FieldKind::Text},
    Field{41, "txtAccSurname",    FieldKind::Text},
    Field{42, "txtAccCodeNo",     FieldKind::Text},
    Field{43, "txtOffAccTinID",   FieldKind::Text},
    Field{44, "chkStatus(11)",    FieldKind::Flag},
    Field{45, "txtNid",           FieldKind::Text},
    Field{46, "txtAudOfficeNid",  FieldKind::Text},
    Field{47, "txtAccOfficeNid",  FieldKind::Text},
    Field{48, "chkStatus(12)",    FieldKind::FlagIfTicked},
    Field{49, "chkStatus(13)",    FieldKind::FlagIfTicked},
};
// clang-format on

/// Shows strFldPage1, the remembered status boxes and the columns on page 1; loads the form if needed. Ticks
/// raise their handlers as a person's would.
void P1_ArrayToVar(Program& program);

/// Empties strFldPage1 and rebuilds it, the remembered status boxes and the period of the notification form
/// from the controls. Shows M006 when no status is ticked. Nothing while the form is not loaded.
void P1_DataToArray(Program& program);

/// Remembers which status boxes stand ticked, as every store of page 1 does. Nothing while the form is not
/// loaded.
void P1_KeepStatusBoxes(Program& program);

/// Puts the person titles into a list, the empty one first, so that a list index is a row of the table.
void fillTitles(ComboBox& list, const ReturnState& state);

} // namespace lodge
