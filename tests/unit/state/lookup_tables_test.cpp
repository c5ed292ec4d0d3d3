#include "state/lookup_tables.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace lodge {
namespace {

std::uint64_t fnv1a(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char byte : text)
        hash = (hash ^ static_cast<std::uint8_t>(byte)) * 0x100000001b3U;
    return hash;
}

TEST(Titles, AreOneHundredAndSeventyRowsWithAnEmptyFirst) {
    ASSERT_EQ(titleRows().size(), 170U);
    EXPECT_EQ(titleRows()[0].code, "");
    EXPECT_EQ(titleRows()[0].name, "");
}

// The checksum was worked out apart from the table: an edit by accident shows.
TEST(Titles, HoldTheirCodesAndNamesToTheLetter) {
    std::string all;
    for (const LookupRow& row : titleRows().subspan(1))
        all += std::string(row.code) + " " + std::string(row.name) + "\n";
    EXPECT_EQ(fnv1a(all), 0x9869dc5e91f01b16U);
}

TEST(Titles, FillTheListsOfAReturn) {
    ReturnState state;
    fillLookupTables(state);
    EXPECT_EQ(state.strTitleCode[1], "2110");
    EXPECT_EQ(state.strTitleName[1], "นาย");
    EXPECT_EQ(state.strTitleName[169], "Dr.");
}

TEST(Titles, AreFoundByTheirCode) {
    EXPECT_EQ(findTitle("2130", "น.ส."), 3U);
    EXPECT_EQ(findTitle("8150", "Dr."), 169U);
}

TEST(Titles, ACodeThatStandsTwiceIsDecidedByTheName) {
    const auto navy = findTitle("3204", "พล.ร.ท.");
    const auto airForce = findTitle("3204", "พล.อ.ท.");
    ASSERT_TRUE(navy && airForce);
    EXPECT_EQ(titleRows()[*navy].name, "พล.ร.ท.");
    EXPECT_EQ(titleRows()[*airForce].name, "พล.อ.ท.");
    EXPECT_EQ(findTitle("3204", "another"), navy);
}

TEST(Titles, AnEmptyOrUnknownCodeIsNoTitle) {
    EXPECT_EQ(findTitle("", ""), std::nullopt);
    EXPECT_EQ(findTitle("9999", "นาย"), std::nullopt);
}

TEST(Organisations, AreFourRowsWithAnEmptyFirst) {
    ReturnState state;
    fillLookupTables(state);
    EXPECT_EQ(state.strOrgCode, (std::array<std::string, 4>{"", "5110", "5223", "6270"}));
    EXPECT_EQ(state.strOrgName, (std::array<std::string, 4>{"", "คณะบุคคล", "ห้างหุ้นส่วนสามัญ", "สำนักงาน"}));
}

} // namespace
} // namespace lodge
