// The fields of the notification form, strFldPage8.
#pragma once

#include "pages/filer/fields.h"

#include <array>

namespace lodge {

// clang-format off
inline constexpr std::array page8Fields{
    Field{0,  "lblDate1",         FieldKind::Label},
    Field{1,  "lblMonth1",        FieldKind::Label},
    Field{2,  "lblYear1",         FieldKind::Label},
    Field{3,  "lblDate2",         FieldKind::Label},
    Field{4,  "lblMonth2",        FieldKind::Label},
    Field{5,  "lblYear2",         FieldKind::Label},
    Field{6,  "chkBussiness1(0)", FieldKind::Flag},
    Field{7,  "txtBussiness1",    FieldKind::Text},
    Field{8,  "chkBussiness1(1)", FieldKind::Flag},
    Field{9,  "chkBussiness2(0)", FieldKind::Flag},
    Field{10, "txtBussiness2",    FieldKind::Text},
    Field{11, "chkBussiness2(1)", FieldKind::Flag},
    Field{12, "chkBussiness3(0)", FieldKind::Flag},
    Field{13, "txtBussiness3",    FieldKind::Text},
    Field{14, "chkBussiness3(1)", FieldKind::Flag},
    Field{15, "chkBussiness4(0)", FieldKind::Flag},
    Field{16, "txtBussiness4",    FieldKind::Text},
    Field{17, "chkBussiness4(1)", FieldKind::Flag},
    Field{18, "chkBussiness5(0)", FieldKind::Flag},
    Field{19, "chkBussiness5(1)", FieldKind::Flag},
    Field{20, "txtBussiness5",    FieldKind::Text},
    Field{21, "txtAuditDesc",     FieldKind::Text},
    Field{22, "txtAuditOther",    FieldKind::Text},
    Field{23, "mskDate1",         FieldKind::Date},
};
// clang-format on

} // namespace lodge
