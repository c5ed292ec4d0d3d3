// The company statuses of page 1, one row a tick box, and the sets of boxes that its rules speak of. Box
// numbers grew with the form over the years and follow neither the numbers in the captions nor the status
// numbers.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

/// The rate items that a status opens in item 2, as the form writes them: "(2.1)"; "-" stands for none.
class RateCodes {
  public:
    constexpr RateCodes(std::string_view only) : codes_{only, {}}, count_(1) {}
    constexpr RateCodes(std::string_view first, std::string_view second) : codes_{first, second}, count_(2) {}

    [[nodiscard]] constexpr const std::string_view* begin() const { return codes_.data(); }
    [[nodiscard]] constexpr const std::string_view* end() const { return codes_.data() + count_; }
    [[nodiscard]] constexpr std::size_t size() const { return count_; }

  private:
    std::array<std::string_view, 2> codes_;
    std::size_t count_;
};

/// What a box carries; as a text its elements are parted by "|": "1|1|(1),(2.1)|1".
struct StatusTag {
    bool flag0;
    bool flag1;
    RateCodes rates;
    std::string_view number; ///< The status number, "0" to "21"; "99" for box 11, which has none of its own.
};

enum class BoxDesign { Visible, Hidden, Disabled };

struct CompanyStatus {
    std::string_view caption;
    std::optional<StatusTag> tag; ///< None for the two boxes of businesses that can no longer be chosen.
    BoxDesign design;
};

inline constexpr std::size_t statusCount = 24;
/// The element that is no status number: box 11 stands beside another status.
inline constexpr std::string_view noStatusNumber = "99";

// clang-format off
inline constexpr std::array<CompanyStatus, statusCount> companyStatuses{{
    /*  0 */ {"(1) บริษัทหรือห้างฯ ที่ตั้งขึ้นตามกฏหมายไทย",
              StatusTag{true,  true,  {"(1)", "(2.1)"}, "1"},  BoxDesign::Visible},
    /*  1 */ {"(2) บริษัทจดทะเบียนกับตลาดหลักทรัพย์",
              StatusTag{false, true,  {"(1.1)"}, "2"},  BoxDesign::Hidden},
    /*  2 */ {"(3) บริษัทจดทะเบียนกับตลาดหลักทรัพย์เอ็มเอไอ",
              StatusTag{false, true,  {"(1.1)"}, "3"},  BoxDesign::Hidden},
    /*  3 */ {"(2) บริษัทหรือห้างฯ ที่ตั้งขึ้นตามกฏหมายของต่างประเทศและกระทำกิจการใน",
              StatusTag{false, true,  {"(1)"},   "4"},  BoxDesign::Visible},
    /*  4 */ {"(3) นิติบุคคลอื่นที่ตั้งขึ้นตามกฏหมายของต่างประเทศ",
              StatusTag{false, true,  {"(1)"},   "5"},  BoxDesign::Visible},
    /*  5 */ {"(4) กิจการของรัฐบาลต่างประเทศ หรือองค์การของรัฐบาลต่างประเทศ",
              StatusTag{false, true,  {"(1)"},   "6"},  BoxDesign::Visible},
    /*  6 */ {"(5) กิจการร่วมค้า",
              StatusTag{false, true,  {"(1)"},   "7"},  BoxDesign::Visible},
    /*  7 */ {"(8) กิจการวิเทศธนกิจ",
              std::nullopt,                             BoxDesign::Hidden},
    /*  8 */ {"(13) กิจการขนส่งสินค้าทางทะเลระหว่างประเทศ",
              StatusTag{false, true,  {"-"},     "9"},  BoxDesign::Visible},
    /*  9 */ {"(10) กิจการสำนักงานปฎิบัติการภูมิภาค",
              std::nullopt,                             BoxDesign::Hidden},
    /* 10 */ {"(6) กิจการนำเข้าส่งออกที่ได้รับอนุญาตจากกระทรวงพลังงานให้ค้าน้ำมันเชื้อเพลิง",
              StatusTag{false, true,  {"(2.2)"}, "11"}, BoxDesign::Visible},
    /* 11 */ {"(10) กิจการตั้งอยู่ในเขตพัฒนาพิเศษเฉพาะกิจ ตาม พ.ร.ฎ. (ฉบับที่ 584)",
              StatusTag{false, true,  {"(2.6)"}, noStatusNumber}, BoxDesign::Disabled},
    /* 12 */ {"(10) กิจการได้รับยกเว้นภาษีเงินได้จากโครงการลดการปล่อยก๊าซเรือนกระจก",
              StatusTag{false, false, {"-"},     "12"}, BoxDesign::Hidden},
    /* 13 */ {"(7) กิจการศูนย์กลางการจัดหาสินค้าเพื่อการผลิตระหว่างประเทศ",
              StatusTag{false, true,  {"(2.3)"}, "13"}, BoxDesign::Visible},
    /* 14 */ {"(11) กิจการตั้งอยู่ในเขตพัฒนาเศรษฐกิจพิเศษ ตาม พ.ร.ฎ. (ฉบับที่ 591)",
              StatusTag{false, true,  {"(2.7)"}, "20"}, BoxDesign::Visible},
    /* 15 */ {"(16) กิจการค้าระหว่างประเทศ",
              StatusTag{false, true,  {"-"},     "14"}, BoxDesign::Visible},
    /* 16 */ {"(9) กิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)",
              StatusTag{false, true,  {"(2.5)"}, "15"}, BoxDesign::Visible},
    /* 17 */ {"(8) กิจการสำนักงานปฎิบัติการภูมิภาค (ROH)",
              StatusTag{false, true,  {"(2.4)"}, "10"}, BoxDesign::Visible},
    /* 18 */ {"(12) กิจการที่ได้รับการยกเว้นภาษีตามกฎหมาย",
              StatusTag{false, false, {"-"},     "0"},  BoxDesign::Hidden},
    /* 19 */ {"(14) กิจการวิสาหกิจเพื่อสังคม",
              StatusTag{false, true,  {"-"},     "16"}, BoxDesign::Visible},
    /* 20 */ {"(15) กิจการส่งเสริมผู้ประกอบการรายใหม่",
              StatusTag{false, true,  {"-"},     "17"}, BoxDesign::Visible},
    /* 21 */ {"(12) กิจการ SMEs ที่จดแจ้งขอเป็นผู้ประกอบการบัญชีชุดเดียว",
              StatusTag{false, true,  {"(2.8)"}, "18"}, BoxDesign::Visible},
    /* 22 */ {"(18) กิจการอื่นที่มิได้ระบุไว้",
              StatusTag{false, true,  {"-"},     "19"}, BoxDesign::Visible},
    /* 23 */ {"(17) กิจการส่งเสริมผู้ประกอบการรายใหม่ (New Start-up) ในเขตพัฒนาพิเศษเฉพาะกิจ",
              StatusTag{false, true,  {"-"},     "21"}, BoxDesign::Disabled},
}};

namespace statusSet {

/// How a company is founded; only beside one of these may box 11 stand.
inline constexpr std::array legalForm{0, 3, 4, 5, 6};
/// All that exclude one another: every box that counts, without 11.
inline constexpr std::array others{0, 3, 4, 5, 6, 10, 13, 17, 16, 14, 15, 8, 19, 20, 21, 22, 23};
/// The order in which the status number is looked for: the first ticked box gives it.
inline constexpr std::array firstHit{0, 3, 4, 5, 6, 10, 13, 17, 16, 11, 14, 15, 8, 19, 20, 21, 22, 23};
/// Exempt businesses: they fill in the exempt column alone.
inline constexpr std::array columnOneOnly{15, 8, 19, 20, 22, 23};
/// With none of these ticked box 11 is no longer remembered. Box 23 came later and is missing.
inline constexpr std::array keepsBox11{0, 3, 4, 5, 6, 10, 13, 17, 16, 11, 14, 15, 8, 19, 20, 21, 22};
/// Exempt by law, behind the hidden box `condition12`; and all the others, which it clears.
inline constexpr std::array exemptByLaw{15, 8, 19, 20, 21, 22};
inline constexpr std::array notExemptByLaw{0, 3, 4, 5, 6, 10, 13, 17, 16, 11, 14};

} // namespace statusSet

// Boxes that a rule names alone; box 11 is developmentZoneBox of state/status_numbers.h.
inline constexpr int economicZoneBox = 14;
inline constexpr int headquartersBox = 16;
inline constexpr int regionalOfficeBox = 17;
// clang-format on

/// The text that the box carries; empty when it carries none.
std::string tagText(int box);

} // namespace lodge
