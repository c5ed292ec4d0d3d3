// Every typed cell of every schedule, in each column, with every kind of amount: it is stored in its place,
// enters exactly the figures it should, with its sign, and nothing else on the page moves.
#include "family.h"
#include "open_page.h"
#include "pages/schedules/schedule_page.h"
#include "values/messages.h"

#include <gtest/gtest.h>

#include <string>

namespace lodge {
namespace {

struct Amount {
    const char* typed;
    const char* stored;
    const char* negated; ///< As stored where a line takes it off.
};

const std::vector<Amount> amounts = {
    {"1234.5", "1234.50", "-1234.50"},
    {"0", "0.00", "0.00"},
    {"-5", "-5.00", "5.00"},
    {"9,999,999,999,999.99", "9999999999999.99", "-9999999999999.99"},
};

void openMember(Desktop& desktop, int item) {
    switch (item) {
    case 4: desktop.open<frmLodgePage3_4>(); break;
    case 5: desktop.open<frmLodgePage4_5>(); break;
    case 6: desktop.open<frmLodgePage4_6>(); break;
    case 7: desktop.open<frmLodgePage4_7>(); break;
    case 8: desktop.open<frmLodgePage5_8>(); break;
    case 9: desktop.open<frmLodgePage5_9>(); break;
    default: desktop.open<frmLodgePage6_10>(); break;
    }
}

ScheduleForm& pageOf(Desktop& desktop, int item) {
    return static_cast<ScheduleForm&>(*desktop.program.desk.find(scheduleOf(item).form));
}

std::string packed(int column, const std::string& amount) {
    return column == 1 ? "|" + amount + "||" + amount + "|" : "||" + amount + "|" + amount + "|";
}

/// An empty page as its store leaves it.
FieldArray emptyArray(const Member& member) {
    FieldArray fields;
    for (const Cell& cell : member.cells) {
        if (cell.isPacked()) fields[cell.entries[0]] = "||||";
    }
    return fields;
}

FieldArray arrayWith(const Member& member, const Cell& cell, int column, const Amount& amount) {
    FieldArray fields = emptyArray(member);
    const auto place = static_cast<std::size_t>(column - 1);
    if (cell.isPacked()) {
        fields[cell.entries[0]] = packed(column, amount.stored);
    } else {
        fields[cell.entries[place]] = amount.stored;
        fields[cell.entries[2]] = amount.stored;
    }
    for (const Fed& fed : cell.feeds) {
        const std::string figure = fed.sign > 0 ? amount.stored : amount.negated;
        fields[fed.entry + place * member.length] = figure;
        fields[fed.entry + 2 * member.length] = figure;
    }
    return fields;
}

class EveryCell : public testing::TestWithParam<int> {
  protected:
    const Member member = family().at(static_cast<std::size_t>(GetParam() - 4));

    FieldArray& fields(Desktop& desktop) { return desktop.state().*scheduleOf(member.item).fields; }
    void expectArray(Desktop& desktop, const FieldArray& wanted, const std::string& after) {
        for (std::size_t entry = 0; entry < wanted.size(); ++entry)
            EXPECT_EQ(fields(desktop)[entry], wanted[entry]) << after << ", entry " << entry;
    }
    std::string nameOf(int column, const Cell& cell) const { return member.box(column, cell.cell); }
};

TEST_P(EveryCell, EntersExactlyTheFiguresItShould) {
    Desktop desktop;
    openMember(desktop, member.item);
    ScheduleForm& page = pageOf(desktop, member.item);
    for (const Cell& cell : member.cells) {
        for (const int column : {1, 2}) {
            for (const Amount& amount : amounts) {
                desktop.type(page, nameOf(column, cell), amount.typed);
                page.DataToArray();
                expectArray(desktop, arrayWith(member, cell, column, amount),
                    nameOf(column, cell) + " of " + amount.typed);
            }
            desktop.type(page, nameOf(column, cell), "");
            page.DataToArray();
            expectArray(desktop, emptyArray(member), nameOf(column, cell) + " emptied");
        }
    }
    EXPECT_TRUE(desktop.host.shown.empty());
}

TEST_P(EveryCell, OfRefusedTextIsEmptiedAndKeepsTheFocus) {
    Desktop desktop;
    openMember(desktop, member.item);
    ScheduleForm& page = pageOf(desktop, member.item);
    for (const Cell& cell : member.cells) {
        for (const int column : {1, 2}) {
            desktop.type(page, nameOf(column, cell), "100");
            desktop.state().intError = 0;
            desktop.host.shown.clear();
            desktop.type(page, nameOf(column, cell), "12a");
            ASSERT_EQ(desktop.host.shown.size(), 1u) << nameOf(column, cell);
            EXPECT_EQ(desktop.lastMessage(), GetMessage("M075"));
            EXPECT_EQ(desktop.state().intError, 1);
            EXPECT_EQ(desktop.program.desk.focus(), &desktop.control(page, nameOf(column, cell)));
            page.DataToArray();
            expectArray(desktop, emptyArray(member), nameOf(column, cell) + " refused");
            desktop.user.leave();
        }
    }
}

TEST_P(EveryCell, OfBothColumnsAddsUpInTheThird) {
    Desktop desktop;
    openMember(desktop, member.item);
    ScheduleForm& page = pageOf(desktop, member.item);
    for (const Cell& cell : member.cells) {
        desktop.type(page, nameOf(1, cell), "100.25");
        desktop.type(page, nameOf(2, cell), "-200.50");
        const std::string third =
            "lblMoney" + std::to_string(member.item) + "3(" + std::to_string(cell.cell) + ")";
        EXPECT_EQ(desktop.read(page, nameOf(2, cell)), "(200.50)");
        EXPECT_EQ(desktop.read(page, third), "(100.25)") << third;
        for (const int column : {1, 2})
            desktop.type(page, nameOf(column, cell), "");
    }
}

TEST_P(EveryCell, OfAColumnAddsToTheSameTotal) {
    Desktop desktop;
    openMember(desktop, member.item);
    ScheduleForm& page = pageOf(desktop, member.item);
    double total = 0;
    for (const Cell& cell : member.cells) {
        desktop.type(page, nameOf(1, cell), "1000");
        for (const Fed& fed : cell.feeds) {
            if (fed.entry == member.length - 1) total += 1000.0 * fed.sign;
        }
    }
    EXPECT_EQ(desktop.read(page, member.total(1)), formatBracket(total));
    EXPECT_EQ(desktop.read(page, member.total(2)), "");
    EXPECT_EQ(desktop.read(page, member.total(3)), formatBracket(total));
}

TEST_P(EveryCell, OfAPageOnScreenComesBackAsItWasStored) {
    Desktop desktop;
    openMember(desktop, member.item);
    ScheduleForm& page = pageOf(desktop, member.item);
    for (const Cell& cell : member.cells) {
        desktop.type(page, nameOf(1, cell), "-" + std::to_string(cell.cell + 1) + ".75");
        desktop.type(page, nameOf(2, cell), std::to_string(cell.cell + 1));
    }
    page.DataToArray();
    const FieldArray stored = fields(desktop);
    page.ArrayToVar();
    page.DataToArray();
    expectArray(desktop, stored, "shown and stored again");
}

TEST_P(EveryCell, OfAPageThatGoesWithoutAStoreHasItsSignAgain) {
    Desktop desktop;
    const Cell& first = member.cells.front();
    fields(desktop)[first.entries[0]] = "-12.50";
    openMember(desktop, member.item);
    EXPECT_EQ(desktop.read(pageOf(desktop, member.item), nameOf(1, first)), "(12.50)");
    EXPECT_EQ(fields(desktop)[first.entries[0]], "12.50") << "on screen the brackets carry the sign";
    desktop.program.desk.unload(scheduleOf(member.item).form);
    EXPECT_EQ(fields(desktop)[first.entries[0]], "-12.50");
}

INSTANTIATE_TEST_SUITE_P(Items, EveryCell, testing::Range(4, 11),
    [](const testing::TestParamInfo<int>& param) { return "Item" + std::to_string(param.param); });

} // namespace
} // namespace lodge
