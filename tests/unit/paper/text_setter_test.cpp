// Values in their slots: where their ink lies, and what a reader copies.
#include "paper/text_setter.h"
#include "paper_kit.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cairo.h>
#include <memory>
#include <vector>

namespace lodge {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

struct Ink {
    double left, top, right, bottom;
    [[nodiscard]] double height() const { return bottom - top; }
};

/// A surface that knows where it has been drawn on, in tenths of a micrometre.
class Paper {
  public:
    Paper() { cairo_scale(context_.get(), scale, scale); }

    [[nodiscard]] cairo_t* surface() const { return context_.get(); }
    [[nodiscard]] Ink ink() const {
        double x = 0;
        double y = 0;
        double width = 0;
        double height = 0;
        cairo_recording_surface_ink_extents(surface_.get(), &x, &y, &width, &height);
        return {x / scale, y / scale, (x + width) / scale, (y + height) / scale};
    }

  private:
    static constexpr double scale = 100;
    std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_{
        cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr), cairo_surface_destroy};
    std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context_{cairo_create(surface_.get()), cairo_destroy};
};

Ink inkOf(const Slot& slot, const std::string& value) {
    const Paper paper;
    TextSetter(paper.surface()).set(slot, value);
    return paper.ink();
}

Slot slotOf(SlotKind kind, SlotBox box, SlotAlign align = SlotAlign::Start) {
    Slot slot;
    slot.field = "a";
    slot.box = box;
    slot.kind = kind;
    slot.align = align;
    return slot;
}

constexpr SlotBox column{.x = 100, .y = 50, .width = 40, .height = 6};
constexpr double pixel = 0.02; // the ink is told in whole pixels of 0.01 mm

// --- Where a value stands ---

TEST(TextSetter, TheDecimalPointsOfAColumnStandBelowEachOther) {
    const Slot slot = slotOf(SlotKind::Money, column, SlotAlign::End);
    // The last digit of both is a 1: its ink ends where the bracket of the second begins.
    const double plain = inkOf(slot, "1.11").right;
    const double withBracket = inkOf(slot, "(1.11)").right;
    const double bracket = inkOf(slot, "(1.11)").right - inkOf(slot, "(1.1").right;
    EXPECT_GT(withBracket, plain);
    EXPECT_LT(withBracket - plain, bracket + 1.5);
    EXPECT_NEAR(inkOf(slot, "1.11").right, inkOf(slot, "9,999,991.11").right, pixel);
    EXPECT_NEAR(inkOf(slot, "(1.11)").right, inkOf(slot, "(9,999,991.11)").right, pixel);
}

TEST(TextSetter, AnAmountBeginsWhereTheSameAmountInBracketsHasItsFirstDigit) {
    const Slot slot = slotOf(SlotKind::Money, column, SlotAlign::End);
    const double plain = inkOf(slot, "888.88").left;
    // Without the opening bracket the closing one alone is at the right.
    EXPECT_NEAR(plain, inkOf(slot, "888.88)").left, pixel);
}

TEST(TextSetter, ATextStandsAtTheSideThatItsSlotTells) {
    const Ink start = inkOf(slotOf(SlotKind::Text, column, SlotAlign::Start), "2561");
    const Ink middle = inkOf(slotOf(SlotKind::Text, column, SlotAlign::Middle), "2561");
    const Ink end = inkOf(slotOf(SlotKind::Text, column, SlotAlign::End), "2561");
    EXPECT_LT(start.left, column.x + 2);
    EXPECT_NEAR((middle.left + middle.right) / 2, column.x + column.width / 2, 0.3);
    EXPECT_GT(end.right, column.x + column.width - 2);
}

TEST(TextSetter, NeighboursStandOnOneLineWhetherShrunkOrNot) {
    const Slot slot = slotOf(SlotKind::Text, column);
    const std::string longName(40, '2');
    EXPECT_LT(inkOf(slot, longName).height(), inkOf(slot, "2").height());
    EXPECT_NEAR(inkOf(slot, longName).bottom, inkOf(slot, "2").bottom, 0.06);
}

TEST(TextSetter, ACombHasOneCharacterInTheMiddleOfEachCell) {
    Slot slot = slotOf(SlotKind::Comb, {.x = 10, .y = 10, .width = 30, .height = 6});
    slot.cells = {10, 20, 35};
    slot.cellWidth = 5;
    const Ink ink = inkOf(slot, "8-8 8");
    EXPECT_NEAR((ink.left + ink.right) / 2, (10 + 35 + 5) / 2.0, 0.1);
    const Ink first = inkOf(slot, "8");
    EXPECT_NEAR((first.left + first.right) / 2, 12.5, 0.1);
    EXPECT_NEAR((first.top + first.bottom) / 2, 13, 0.1);
}

// --- What does not fit ---

TEST(TextSetter, ATextShrinksToThreeFifthsAndIsThenCut) {
    const Slot slot = slotOf(SlotKind::Text, column);
    const double full = inkOf(slot, "8").height();
    const Ink cut = inkOf(slot, std::string(300, '8'));
    EXPECT_NEAR(cut.height(), 0.6 * full, 0.05);
    EXPECT_GT(cut.right, column.x + column.width - 3);
}

TEST(TextSetter, AnAmountIsNeverCut) {
    const Slot slot = slotOf(SlotKind::Money, {.x = 0, .y = 0, .width = 12, .height = 6}, SlotAlign::End);
    const std::string amount = "(9,999,999,999,999.99)";
    const Ink ink = inkOf(slot, amount);
    EXPECT_LT(ink.height(), 0.6 * inkOf(slot, "(9.99)").height());
    EXPECT_GE(ink.left, 0);
}

TEST(TextSetter, ALongTextWrapsAtThaiWords) {
    Slot slot = slotOf(SlotKind::Text, {.x = 20, .y = 20, .width = 32, .height = 12});
    slot.lines = 2;
    const auto form =
        templateOf(R"(<rect id="a" x="20" y="20" width="32" height="12" fill="none" data-lines="2"/>)");
    const std::string text =
        textOf(pdfOf({.form = form, .values = {{"a", "ตรวจสอบแล้วไม่พบข้อบกพร่องที่เป็นสาระสำคัญ"}}}));
    // A line that ended within a word would part it.
    for (const char* word : {"ตรวจสอบ", "บกพร่อง", "สาระสำคัญ"})
        EXPECT_THAT(text, HasSubstr(word));
    EXPECT_GT(inkOf(slot, "ตรวจสอบแล้วไม่พบข้อบกพร่องที่เป็นสาระสำคัญ").height(), 7);
}

TEST(TextSetter, ANumberTooLongForItsCellsIsSetAsAText) {
    Slot slot = slotOf(SlotKind::Comb, {.x = 10, .y = 10, .width = 10, .height = 6});
    slot.cells = {10, 15};
    slot.cellWidth = 5;
    const Ink ink = inkOf(slot, "123");
    EXPECT_GE(ink.left, 10);
    EXPECT_LE(ink.right, 20);
}

TEST(TextSetter, NothingOfAValueEverLeavesItsSlot) {
    const auto characters = rc::gen::oneOf(rc::gen::inRange<char32_t>(U' ', 0x7F),
        rc::gen::inRange<char32_t>(0x0E01, 0x0E3B), rc::gen::inRange<char32_t>(0x0E40, 0x0E5C));
    EXPECT_TRUE(rc::check([&characters] {
        Slot slot = slotOf(*rc::gen::element(SlotKind::Text, SlotKind::Money, SlotKind::Comb), {},
            *rc::gen::element(SlotAlign::Start, SlotAlign::Middle, SlotAlign::End));
        slot.lines = slot.kind == SlotKind::Text ? *rc::gen::inRange(1, 5) : 1;
        slot.size = *rc::gen::inRange(20, 60) / 10.0;
        slot.box = {.x = *rc::gen::inRange(0, 100) / 1.0,
            .y = *rc::gen::inRange(0, 200) / 1.0,
            .width = *rc::gen::inRange(60, 1800) / 10.0,
            .height = slot.lines * *rc::gen::inRange(25, 90) / 10.0};
        slot.cells = {slot.box.x, slot.box.x + slot.box.width / 2};
        slot.cellWidth = slot.box.width / 2;
        std::string value;
        for (const char32_t character : *rc::gen::container<std::vector<char32_t>>(characters)) {
            value += static_cast<char>(character < 0x80 ? character : 0xE0);
            if (character < 0x80) continue;
            value += static_cast<char>(0x80 | (character >> 6 & 0x3F));
            value += static_cast<char>(0x80 | (character & 0x3F));
        }
        RC_LOG() << value << ' ' << static_cast<int>(slot.kind) << ' ' << slot.box.width << " x "
                 << slot.box.height;
        const Ink ink = inkOf(slot, value);
        if (ink.right <= ink.left) return; // blanks alone
        RC_ASSERT(ink.left >= slot.box.x - pixel);
        RC_ASSERT(ink.right <= slot.box.x + slot.box.width + pixel);
        RC_ASSERT(ink.top >= slot.box.y - pixel);
        RC_ASSERT(ink.bottom <= slot.box.y + slot.box.height + pixel);
    }));
}

// --- What a reader copies ---

TEST(TextSetter, ThaiIsCopiedWithAllItsMarks) {
    const auto form = templateOf(R"(<rect id="a" x="20" y="20" width="150" height="6" fill="none"/>)"
                                 R"(<rect id="b" x="20" y="40" width="150" height="6" fill="none"/>)"
                                 R"(<text x="20" y="80" font-size="3.4">ตั้งแต่วันที่ ครั้งที่ ห้างหุ้นส่วนที่ตั้งขึ้น</text>)");
    const std::string one = "ปู่ ที่ ฎฏ น้ำ กำไร บริษัท น้ำดื่มไทย จำกัด (มหาชน)";
    const std::string other = "ทั้งสิ้น ปั๊มน้ำมัน ป้า ฟื้นฟู ผู้ทำบัญชี ศูนย์ ไม้ยมก ๆ ฯลฯ ฐานะ ญาติ ก๊ก เก๋ไก๋";
    const std::string text = textOf(pdfOf({.form = form, .values = {{"a", one}, {"b", other}}}));
    EXPECT_THAT(text, HasSubstr(one));
    EXPECT_THAT(text, HasSubstr(other));
    EXPECT_THAT(text, HasSubstr("ตั้งแต่วันที่ ครั้งที่ ห้างหุ้นส่วนที่ตั้งขึ้น"));
}

TEST(TextSetter, ANumberInCellsIsCopiedAsOneNumber) {
    const auto form =
        templateOf(R"(<rect id="a" x="20" y="20" width="60" height="6" fill="none" data-kind="comb" )"
                   R"(data-cells="20 26 32 38 44 50 56 62 68 74" data-cell="5"/>)");
    EXPECT_THAT(textOf(pdfOf({.form = form, .values = {{"a", "1-0123-4567-8"}}})), HasSubstr("1012345678"));
}

TEST(TextSetter, WhatWasCutCanStillBeCopied) {
    const auto form = templateOf(R"(<rect id="a" x="20" y="20" width="20" height="6" fill="none"/>)");
    const std::string text =
        textOf(pdfOf({.form = form, .values = {{"a", "บริษัท ก่อสร้างไทยรุ่งเรืองกิจการโยธา จำกัด"}}}));
    EXPECT_THAT(text, HasSubstr("จำกัด"));
}

// --- The typeface ---

TEST(TextSetter, ATextThatWrapsAtABlankIsSetInTheTypefaceOfTheFormAlone) {
    const auto form =
        templateOf(R"(<rect id="a" x="20" y="20" width="32" height="12" fill="none" data-lines="2"/>)");
    const TestFolder folder;
    const auto pdf =
        folder.write("page.pdf", pdfOf({.form = form, .values = {{"a", "น้ำดื่มไทยรุ่งเรือง ก่อสร้างและโยธา"}}}));
    const std::string fonts = outputOf("pdffonts " + pdf.string() + " | tail -n +3");
    EXPECT_THAT(fonts, AllOf(HasSubstr("+Laksaman "), Not(HasSubstr("[none]"))));
}

TEST(TextSetter, OnlyTheTypefaceOfTheFormWillDo) {
    EXPECT_EQ(failureOf([] { requireFamily(formFamily); }), "");
    EXPECT_THAT(failureOf([] { requireFamily("laksaman"); }), AllOf(StartsWith("6 "), HasSubstr("laksaman")));
}

} // namespace
} // namespace lodge
