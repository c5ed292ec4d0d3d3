// What a template says: slots, captions, and what is left for the drawing.
#include "paper/template_reader.h"
#include "paper_kit.h"

#include <gmock/gmock.h>

namespace lodge {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

TemplateParts partsOf(std::string_view elements) { return readTemplate(svgPage(elements), "rptTest.rpt"); }

Slot slotIn(std::string_view elements) {
    const TemplateParts parts = partsOf(elements);
    return parts.slots.size() == 1 ? parts.slots.front() : Slot{};
}

std::string refusalOf(std::string_view elements) {
    return failureOf([&] { (void)partsOf(elements); });
}

// --- Slots ---

TEST(Slots, AnUnpaintedRectangleWithAnIdIsOne) {
    const Slot slot = slotIn(R"(<rect id="lblFld31" x="15" y="43.5" width="60" height="6.2" fill="none"/>)");
    EXPECT_EQ(slot.field, "lblFld31");
    EXPECT_EQ(slot.box.x, 15);
    EXPECT_EQ(slot.box.y, 43.5);
    EXPECT_EQ(slot.box.width, 60);
    EXPECT_EQ(slot.box.height, 6.2);
    EXPECT_EQ(slot.kind, SlotKind::Text);
    EXPECT_EQ(slot.align, SlotAlign::Start);
    EXPECT_EQ(slot.size, 3.7);
    EXPECT_EQ(slot.lines, 1);
}

TEST(Slots, ItsAttributesTellHowTheValueIsSet) {
    const Slot slot = slotIn(R"(<rect id="a" width="60" height="12" fill="none" data-kind="text" )"
                             R"(data-align="middle" data-size="3.2" data-lines="2"/>)");
    EXPECT_EQ(slot.align, SlotAlign::Middle);
    EXPECT_EQ(slot.size, 3.2);
    EXPECT_EQ(slot.lines, 2);
}

TEST(Slots, AnAmountStandsAtTheRight) {
    const Slot slot = slotIn(R"(<rect id="a" width="60" height="6" fill="none" data-kind="money"/>)");
    EXPECT_EQ(slot.kind, SlotKind::Money);
    EXPECT_EQ(slot.align, SlotAlign::End);
}

TEST(Slots, ACombTellsTheEdgesOfItsCells) {
    const Slot slot = slotIn(R"(<rect id="a" width="60" height="6" fill="none" data-kind="comb" )"
                             R"(data-cells="15.0  21.1 25.7" data-cell="4.6"/>)");
    EXPECT_THAT(slot.cells, ElementsAre(15.0, 21.1, 25.7));
    EXPECT_EQ(slot.cellWidth, 4.6);
}

TEST(Slots, ATickStandsForTheOneOrForTheValueBehindThePoint) {
    EXPECT_EQ(slotIn(R"(<rect id="a" width="3" height="3" fill="none" data-kind="tick"/>)").tickedBy, "1");
    const Slot second = slotIn(R"(<rect id="Audit.3" width="3" height="3" fill="none" data-kind="tick"/>)");
    EXPECT_EQ(second.field, "Audit");
    EXPECT_EQ(second.tickedBy, "3");
}

TEST(Slots, AnEditorMayWriteTheMissingPaintAsAStyle) {
    EXPECT_EQ(slotIn(R"(<rect id="a" width="3" height="3" style="fill:none;stroke:none"/>)").field, "a");
}

TEST(Slots, APaintedRectangleOrOneWithoutAnIdIsNone) {
    EXPECT_THAT(partsOf(R"(<rect id="frame" width="9" height="9" fill="#FFFFFF"/>)"
                        R"(<rect id="box" width="9" height="9" fill="none" stroke="#2B3E52"/>)"
                        R"(<rect id="line" width="9" height="9" style="fill:none;stroke:#2b3e52"/>)"
                        R"(<rect id="ink" width="9" height="9"/>)"
                        R"(<rect width="9" height="9" fill="none"/>)")
                    .slots,
        IsEmpty());
}

TEST(Slots, MayHoldWhatAnEditorWritesIntoThem) {
    const auto parts = partsOf(R"(<rect id="a" width="9" height="9" fill="none"><title>ชื่อ</title></rect>)"
                               R"(<rect id="b" width="9" height="9" fill="none"/>)");
    EXPECT_EQ(parts.slots.size(), 2U);
    EXPECT_THAT(parts.drawing, Not(HasSubstr("<rect")));
}

TEST(Slots, AreFoundInGroupsAndSortedByField) {
    const auto parts = partsOf(R"(<g id="values"><rect id="b" width="9" height="9" fill="none"/>)"
                               R"(<g><rect id="a" width="9" height="9" fill="none"/></g></g>)");
    ASSERT_EQ(parts.slots.size(), 2U);
    EXPECT_EQ(parts.slots[0].field, "a");
    EXPECT_EQ(parts.slots[1].field, "b");
}

TEST(Slots, AreRefusedByTemplateAndFieldWhenTheyAreNotClear) {
    const auto named = AllOf(StartsWith("2 "), HasSubstr("rptTest.rpt"), HasSubstr("lblFld07"));
    for (const char* slot : {
             R"(<rect id="lblFld07" height="3" fill="none"/>)",
             R"(<rect id="lblFld07" width="0" height="3" fill="none"/>)",
             R"(<rect id="lblFld07" x="12mm" width="3" height="3" fill="none"/>)",
             R"(<rect id="lblFld07" width="3" height="3" fill="none" data-kind="number"/>)",
             R"(<rect id="lblFld07" width="3" height="3" fill="none" data-align="left"/>)",
             R"(<rect id="lblFld07" width="3" height="3" fill="none" data-lines="0"/>)",
             R"(<rect id="lblFld07" width="3" height="3" fill="none" data-kind="comb"/>)",
             R"(<g transform='scale(2)'><g><rect id="lblFld07" width="3" height="3" fill="none"/></g></g>)",
             R"(<rect id="lblFld07" width="3" height="3" fill="none"/><rect id="lblFld07" width="3" )"
             R"(height="3" fill="none"/>)",
         }) {
        EXPECT_THAT(refusalOf(slot), named) << slot;
    }
}

// --- Captions ---

TEST(Captions, APlainTextIsTakenOutOfTheDrawing) {
    const TemplateParts parts = partsOf(
        R"(<text x="45" y="20.5" font-size="6.3" font-weight="700" text-anchor="middle" fill="#FF8000">กำไร</text>)");
    ASSERT_EQ(parts.captions.size(), 1U);
    const Caption& caption = parts.captions.front();
    EXPECT_EQ(caption.text, "กำไร");
    EXPECT_EQ(caption.x, 45);
    EXPECT_EQ(caption.baseline, 20.5);
    EXPECT_EQ(caption.size, 6.3);
    EXPECT_TRUE(caption.isBold);
    EXPECT_EQ(caption.align, SlotAlign::Middle);
    EXPECT_EQ(caption.colour.red, 1);
    EXPECT_EQ(caption.colour.green, 0x80 / 255.0);
    EXPECT_EQ(caption.colour.blue, 0);
    EXPECT_THAT(parts.drawing, Not(HasSubstr("กำไร")));
}

TEST(Captions, TakeWhatTheElementsAroundThemSay) {
    const TemplateParts parts = partsOf(
        R"(<g font-size="3.4" text-anchor="end"><g font-weight="bold"><text x="1" y="2">a</text></g></g>)");
    ASSERT_EQ(parts.captions.size(), 1U);
    EXPECT_EQ(parts.captions.front().size, 3.4);
    EXPECT_EQ(parts.captions.front().align, SlotAlign::End);
    EXPECT_TRUE(parts.captions.front().isBold);
    EXPECT_EQ(parts.captions.front().colour.blue, 0x2C / 255.0);
}

TEST(Captions, KeepTheirBlanksOnlyWhereTheyAskForIt) {
    const TemplateParts parts = partsOf("<text x='1' y='2' font-size='3'> a \n  b </text>"
                                        "<text x='1' y='2' font-size='3' xml:space='preserve'>a   b</text>");
    ASSERT_EQ(parts.captions.size(), 2U);
    EXPECT_EQ(parts.captions[0].text, "a b");
    EXPECT_EQ(parts.captions[1].text, "a   b");
}

TEST(Captions, AnyTextThatSaysMoreStaysInTheDrawing) {
    for (const char* text : {
             R"(<text x="1" y="2" font-size="3" transform='rotate(90)'>ตั้ง</text>)",
             R"(<g transform='rotate(90)'><text x="1" y="2" font-size="3">ตั้ง</text></g>)",
             R"(<text x="1" y="2" font-size="3">ตั้ง<tspan x="3">b</tspan></text>)",
             R"(<text x="1 2" y="2" font-size="3">ตั้ง</text>)",
             R"(<text x="1" y="2" font-size="3mm">ตั้ง</text>)",
             R"(<text x="1" y="2">ตั้ง</text>)",
             R"(<text x="1" y="2" font-size="3" fill="red">ตั้ง</text>)",
             R"(<text x="1" y="2" font-size="3" style="fill:#FF0000">ตั้ง</text>)",
             R"(<text x="1" y="2" font-size="3" font-family="Loma">ตั้ง</text>)",
             R"(<g stroke="#000000"><text x="1" y="2" font-size="3">ตั้ง</text></g>)",
             R"(<g opacity="0.5"><text x="1" y="2" font-size="3">ตั้ง</text></g>)",
             R"(<defs><text x="1" y="2" font-size="3">ตั้ง</text></defs>)",
             R"(<style>text { fill: red }</style><text x="1" y="2" font-size="3">ตั้ง</text>)",
         }) {
        const TemplateParts parts = partsOf(text);
        EXPECT_THAT(parts.captions, IsEmpty()) << text;
        EXPECT_THAT(parts.drawing, HasSubstr("ตั้ง")) << text;
    }
}

// --- The file ---

TEST(Template, WhatIsNoPageOfMillimetresIsRefusedByItsName) {
    for (const char* text : {"", "เอกสาร", "<html/>", "<svg", R"(<svg xmlns="http://www.w3.org/2000/svg"/>)",
             R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 595 842"/>)"}) {
        EXPECT_THAT(failureOf([&] { (void)readTemplate(text, "rptTest.rpt"); }),
            AllOf(StartsWith("2 "), HasSubstr("rptTest.rpt")))
            << text;
    }
}

TEST(Template, AMissingOrEmptyFileIsToldByItsPathAndItsCause) {
    const TestFolder folder;
    TemplateShelf shelf;
    const auto missing = folder.path / "rptLodgePage1.rpt";
    EXPECT_EQ(
        failureOf([&] { (void)shelf.take(missing); }), "2 อ่านแบบพิมพ์ " + missing.string() + " ไม่ได้: ไม่พบไฟล์");
    const auto empty = folder.write("rptLodgePage2.rpt", "");
    EXPECT_EQ(failureOf([&] { (void)shelf.take(empty); }), "2 อ่านแบบพิมพ์ " + empty.string() + " ไม่ได้: ไฟล์ว่าง");
}

TEST(Template, IsReadOnceHoweverOftenItIsTaken) {
    const TestFolder folder;
    TemplateShelf shelf;
    const auto file =
        folder.write("rptTest.rpt", svgPage(R"(<rect id="a" width="9" height="9" fill="none"/>)"));
    const auto first = shelf.take(file);
    std::filesystem::remove(file);
    EXPECT_EQ(shelf.take(file), first);
}

TEST(Template, TellsTheSlotsOfAField) {
    const auto form = templateOf(R"(<rect id="Audit.2" width="3" height="3" fill="none" data-kind="tick"/>)"
                                 R"(<rect id="Audit.1" width="3" height="3" fill="none" data-kind="tick"/>)"
                                 R"(<rect id="Au" width="3" height="3" fill="none"/>)");
    ASSERT_EQ(form->slotsOf("Audit").size(), 2U);
    EXPECT_EQ(form->slotsOf("Audit")[0].tickedBy, "1");
    EXPECT_EQ(form->slotsOf("Au").size(), 1U);
    EXPECT_THAT(form->slotsOf("A"), IsEmpty());
}

} // namespace
} // namespace lodge
