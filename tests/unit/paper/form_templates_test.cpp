// The ten templates of the form against the map of their fields.
#include "paper_kit.h"
#include "print/field_map.h"
#include "values/text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace lodge {
namespace {

using ::testing::IsEmpty;

class FormTemplate : public ::testing::TestWithParam<int> {
  protected:
    const ReportTemplate& report = reportTemplates()[static_cast<std::size_t>(GetParam())];
    const std::shared_ptr<const DrawnTemplate> form =
        TemplateShelf().take(LODGE_SOURCE_DIR "/data/templates/" + std::string(report.name) + ".svg");
};

TEST_P(FormTemplate, EveryFieldOfTheMapIsASlot) {
    std::vector<std::string> missing;
    for (const ReportField& field : fieldsOf(report))
        if (form->slotsOf(field.name).empty()) missing.push_back(field.name);
    EXPECT_THAT(missing, IsEmpty());
}

TEST_P(FormTemplate, EverySlotIsAFieldOfTheMap) {
    std::set<std::string> fields;
    for (const ReportField& field : fieldsOf(report))
        fields.insert(field.name);
    std::set<std::string> unknown;
    for (const Slot& slot : form->slots())
        if (!fields.contains(slot.field)) unknown.insert(slot.field);
    EXPECT_THAT(unknown, IsEmpty());
}

TEST_P(FormTemplate, NoTextIsLeftToTheDrawing) {
    const auto parts = readTemplate(
        [this] {
            std::ifstream file(LODGE_SOURCE_DIR "/data/templates/" + std::string(report.name) + ".svg");
            return std::string(std::istreambuf_iterator<char>(file), {});
        }(),
        form->name());
    EXPECT_THAT(parts.captions, Not(IsEmpty()));
    EXPECT_EQ(parts.drawing.find("<text"), std::string::npos);
}

TEST_P(FormTemplate, SlotsLieOnThePageAndNeverOverEachOther) {
    const auto apart = [](const SlotBox& one, const SlotBox& other) {
        constexpr double touch = 0.02; // edges are rounded to hundredths
        return one.x + one.width <= other.x + touch || other.x + other.width <= one.x + touch
               || one.y + one.height <= other.y + touch || other.y + other.height <= one.y + touch;
    };
    std::vector<std::string> wrong;
    const auto slots = form->slots();
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const SlotBox& box = slots[i].box;
        if (box.x < 0 || box.y < 0 || box.x + box.width > pageWidth || box.y + box.height > pageHeight)
            wrong.push_back(slots[i].field + " leaves the page");
        for (std::size_t k = i + 1; k < slots.size(); ++k)
            if (!apart(box, slots[k].box)) wrong.push_back(slots[i].field + " lies over " + slots[k].field);
    }
    EXPECT_THAT(wrong, IsEmpty());
}

TEST_P(FormTemplate, TheTextOfAFilledPageHoldsEveryValue) {
    FilledPage page{.form = form, .values = {}};
    std::vector<std::string> values;
    for (const Slot& slot : form->slots()) {
        if (slot.kind == SlotKind::Tick || page.values.contains(slot.field)) continue;
        const std::size_t number = 101 + values.size();
        std::string value = slot.kind == SlotKind::Money ? "(8," + std::to_string(number) + ".25)"
                            : slot.kind == SlotKind::Comb && slot.cells.size() < 5 ? std::to_string(number)
                            : slot.kind == SlotKind::Comb || slot.box.width < 30
                                ? "9" + std::to_string(number)
                                : "ผู้ที่ตั้งน้ำ" + std::to_string(number);
        values.push_back(value);
        page.values.emplace(slot.field, std::move(value));
    }
    const std::string text = textOf(pdfOf(page));
    std::vector<std::string> lost;
    for (const std::string& value : values)
        if (text.find(value) == std::string::npos) lost.push_back(value);
    EXPECT_THAT(lost, IsEmpty()) << text;
}

INSTANTIATE_TEST_SUITE_P(OfTheForm, FormTemplate, ::testing::Range(0, 10), [](const auto& info) {
    return std::string(reportTemplates()[static_cast<std::size_t>(info.param)].name);
});

class PersonOnPageOne : public ::testing::TestWithParam<const char*> {
  protected:
    const std::shared_ptr<const DrawnTemplate> form =
        TemplateShelf().take(LODGE_SOURCE_DIR "/data/templates/rptLodgePage1.svg");
    const Slot& slot = form->slotsOf(GetParam()).front();

    /// A page with nothing but this slot.
    [[nodiscard]] std::shared_ptr<const DrawnTemplate> alone() const {
        std::ostringstream rect;
        rect << "<rect id=\"" << slot.field << "\" x=\"" << slot.box.x << "\" y=\"" << slot.box.y
             << "\" width=\"" << slot.box.width << "\" height=\"" << slot.box.height << "\" data-size=\""
             << slot.size << "\" data-lines=\"" << slot.lines << "\" fill=\"none\"/>";
        return templateOf(rect.str());
    }
};

/// A text without blanks and line ends: a name that stands on two lines is still one name.
std::string joined(std::string text) {
    std::erase_if(
        text, [](char character) { return character == ' ' || character == '\n' || character == '\f'; });
    return text;
}

TEST_P(PersonOnPageOne, ANameAsLongAsItsBoxesTakeIsPrintedWhole) {
    const std::string name = "ประเสริฐศักดิ์วัฒนานุกูลกิจเจริญรุ่งเรืองไพศาลธนากุลเกียรติ"
                             "อัครวงศ์ศิริพัฒนพงษ์พิพัฒน์สุวรรณภูมิรัตน";
    const std::string surname = "อัครวงศ์ไพศาลธนากุลเกียรติศิริพัฒนพงษ์พิพัฒน์สุวรร";
    ASSERT_EQ(textLength(name), 100U);
    ASSERT_EQ(textLength(surname), 50U);
    const std::string value = "นาย" + name + "  " + surname;
    EXPECT_EQ(joined(textOf(pdfOf({.form = alone(), .values = {{GetParam(), value}}}))), joined(value));
}

TEST_P(PersonOnPageOne, ALineHasTheHeightOfALetterWithMarksAboveAndBelow) {
    // A name that is not long keeps the size of its slot: 1.0 above the line and 0.36 below, in parts of it.
    EXPECT_GE(slot.box.height / slot.lines, 1.36 * slot.size);
}

INSTANTIATE_TEST_SUITE_P(OfTheForm, PersonOnPageOne, ::testing::Values("lblFld32", "lblFld39"));

TEST(FormTemplates, TenFilledPagesAreASmallDocument) {
    PdfDocument document;
    for (const ReportTemplate& report : reportTemplates()) {
        FilledPage page{.form = TemplateShelf().take(
                            LODGE_SOURCE_DIR "/data/templates/" + std::string(report.name) + ".svg"),
            .values = {}};
        for (const Slot& slot : page.form->slots())
            page.values[slot.field] = slot.kind == SlotKind::Money ? "9,999,999,999.99" : "บริษัท น้ำดื่มไทย จำกัด";
        document.add(page);
    }
    EXPECT_LT(document.finish("").size(), 300U * 1024);
}

} // namespace
} // namespace lodge
