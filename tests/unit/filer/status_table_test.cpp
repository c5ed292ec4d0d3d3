#include "pages/filer/status_table.h"
#include "state/status_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace lodge {
namespace {

TEST(StatusTable, EveryStatusNumberBelongsToTheBoxThatTheReturnFileTakesItFor) {
    for (int box = 0; box < 24; ++box) {
        const auto& tag = companyStatuses[static_cast<std::size_t>(box)].tag;
        if (!tag || tag->number == noStatusNumber || tag->number == "0") {
            continue;
        }
        EXPECT_EQ(boxOfStatus(tag->number), box) << "status " << tag->number;
    }
}

TEST(StatusTable, NoStatusNumberStandsTwice) {
    std::set<std::string_view> numbers;
    for (const CompanyStatus& row : companyStatuses) {
        if (row.tag) {
            EXPECT_TRUE(numbers.insert(row.tag->number).second) << row.tag->number;
        }
    }
    EXPECT_EQ(numbers.size(), 22U);
}

TEST(StatusTable, ATagIsItsFourElementsBetweenBars) {
    EXPECT_EQ(tagText(0), "1|1|(1),(2.1)|1");
    EXPECT_EQ(tagText(8), "0|1|-|9");
    EXPECT_EQ(tagText(11), "0|1|(2.6)|99");
    EXPECT_EQ(tagText(18), "0|0|-|0");
    EXPECT_EQ(tagText(21), "0|1|(2.8)|18");
}

TEST(StatusTable, TheTwoBoxesOfFormerBusinessesHaveNoElements) {
    EXPECT_EQ(tagText(7), "");
    EXPECT_EQ(tagText(9), "01");
    EXPECT_FALSE(companyStatuses[7].tag);
    EXPECT_FALSE(companyStatuses[9].tag);
}

TEST(StatusTable, SixBoxesAreHiddenAndTwoDisabled) {
    std::vector<std::size_t> hidden;
    std::vector<std::size_t> disabled;
    for (std::size_t box = 0; box < companyStatuses.size(); ++box) {
        if (companyStatuses[box].design == BoxDesign::Hidden) {
            hidden.push_back(box);
        } else if (companyStatuses[box].design == BoxDesign::Disabled) {
            disabled.push_back(box);
        }
    }
    EXPECT_EQ(hidden, (std::vector<std::size_t>{1, 2, 7, 9, 12, 18}));
    EXPECT_EQ(disabled, (std::vector<std::size_t>{11, 23}));
}

TEST(StatusTable, TheSearchForTheStatusNumberKnowsTheExcludingBoxesAndBox11) {
    std::vector<int> withBox11(statusSet::others.begin(), statusSet::others.end());
    withBox11.insert(withBox11.begin() + 9, 11);
    EXPECT_EQ(withBox11, std::vector<int>(statusSet::firstHit.begin(), statusSet::firstHit.end()));
}

} // namespace
} // namespace lodge
