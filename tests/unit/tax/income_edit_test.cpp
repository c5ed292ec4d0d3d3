#include "tax_fixture.h"

namespace lodge {
namespace {

class IncomeEdit : public TaxTest {
  protected:
    frm_incomeEdit& open() {
        state.strFldPage2[32] = "2200000.00";
        record.TaxValue = "440000.00";
        return static_cast<frm_incomeEdit&>(program.desk.show(frm_incomeEdit::formName));
    }
    static constexpr MouseGesture takes{.button = MouseButton::Left, .shift = true, .ctrl = true};
};

TEST_F(IncomeEdit, ShowsTheFiguresOfItem2) {
    auto& form = open();
    EXPECT_EQ(form.txtIncome.text(), "2200000.00");
    EXPECT_EQ(form.txtTax.text(), "440000.00");
    EXPECT_EQ(form.Combo1.items(), (std::vector<std::string>{"กำไร", "ขาดทุน", "ก่อนหัก"}));
}

TEST_F(IncomeEdit, TakesTheFiguresByItsGesture) {
    auto& form = open();
    user.type(form.txtIncome, "1,000.50");
    user.type(form.txtTax, "77");
    user.choose(form.Combo1, 1);
    EXPECT_EQ(user.mouse(form, takes), std::nullopt);
    EXPECT_EQ(shown(), std::vector<std::string>{"value hacked >__< !!"});
    EXPECT_TRUE(state.modEdit.EditActive);
    EXPECT_EQ(state.modEdit.EditStatus, "2");
    EXPECT_EQ(state.modEdit.EditIncome, "1000.50");
    EXPECT_EQ(state.modEdit.EditTax, "77");
    EXPECT_EQ(state.strFldPage2[32], "2200000.00") << "the return itself keeps its figures";
    EXPECT_EQ(record.TaxValue, "440000.00");
}

TEST_F(IncomeEdit, AnEmptyChoiceIsStoredAsNone) {
    auto& form = open();
    EXPECT_EQ(user.mouse(form, takes), std::nullopt);
    EXPECT_EQ(state.modEdit.EditStatus, "0");
}

TEST_F(IncomeEdit, AnyOtherGestureDoesNothing) {
    auto& form = open();
    EXPECT_EQ(user.mouse(form, {.button = MouseButton::Left, .shift = true}), std::nullopt);
    EXPECT_EQ(user.mouse(form, {.button = MouseButton::Right, .shift = true, .ctrl = true}), std::nullopt);
    EXPECT_EQ(user.mouse(form, {.button = MouseButton::Left, .shift = true, .ctrl = true, .alt = true}),
        std::nullopt);
    EXPECT_FALSE(state.modEdit.EditActive);
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

} // namespace
} // namespace lodge
