// The rate panel of earlier forms: which of the listed rates a business uses, for the green sheet.
#include "pages/tax/green_sheet.h"
#include "pages/tax/page2.h"
#include "values/money.h"

namespace lodge {

namespace {

constexpr std::size_t listedStatus = 13; // entries of strFldPage1
constexpr std::size_t secondListedStatus = 14;
constexpr std::size_t zoneStatus = 44;

struct PanelChoice {
    int box;
    bool onlyListed; ///< Holds for the two statuses of listed companies alone.
    std::string_view label;
    std::string_view number;
};

/// In their order; the last that applies holds, so the first three are always overtaken.
constexpr std::array<PanelChoice, 6> choices = {{
    {1, false, "(2.3)", "4"},
    {2, false, "(2.4)", "5"},
    {0, true, "(1.2)", "2"},
    {0, false, "(1.1)", "1"},
    {1, false, "(1.2)", "4"},
    {2, false, "(1.3)", "5"},
}};

} // namespace

void frmLodgePage2::wireRatePanel() {
    lblTaxChoose.onClick = [this] { lblTaxChoose_Click(); };
    cmdTaxRateOK.onClick = [this] { cmdTaxRateOK_Click(); };
    cmdTaxRateExit.onClick = [this] {
        closeRatePanel();
        txtMoney[2].setFocus();
    };
}

void frmLodgePage2::lblTaxChoose_Click() {
    underPanel_.clear();
    const auto remember = [this](Control& control) {
        underPanel_.push_back({&control, control.enabled(), control.visible()});
    };
    for (int i = 0; i < chkTaxPay.count(); ++i) {
        remember(chkTaxPay[i]);
        chkTaxPay[i].setVisible(false);
        remember(chkTaxCal[i]);
        chkTaxCal[i].setVisible(false);
    }
    for (int i = 0; i < txtMoney.count(); ++i) {
        if (i == 1) continue;
        remember(txtMoney[i]);
        const bool stays =
            (i == 5 && readFigure(txtMoney[0].text()) != 0) || (i == 6 && chkInvestType[0].value());
        if (!stays) txtMoney[i].setEnabled(false);
    }
    InvestBlockEnable(false);

    const bool listed = state().strFldPage1[listedStatus] == "1";
    chkTaxChoose[0].setCaption(listed ? "ข้อ 2.1" : "ข้อ 1.1");
    chkTaxChoose[1].setCaption(listed ? "ข้อ 2.3" : "ข้อ 1.2");
    chkTaxChoose[2].setVisible(!listed && state().strFldPage1[secondListedStatus] != "1");
    picTaxRate.setVisible(true);
}

void frmLodgePage2::cmdTaxRateOK_Click() {
    if (!chkTaxChoose[0].value() && !chkTaxChoose[1].value() && !chkTaxChoose[2].value()) return;
    const FieldArray& page1 = state().strFldPage1;
    const bool listed = page1[listedStatus] == "1" || page1[secondListedStatus] == "1";
    const PanelChoice* chosen = nullptr;
    for (const PanelChoice& choice : choices) {
        if (chkTaxChoose[choice.box].value() && (listed || !choice.onlyListed)) chosen = &choice;
    }
    // A choice that this company status does not have leaves both empty.
    lblTaxValue.setCaption(chosen == nullptr ? std::string() : std::string(chosen->label));
    state().strFldPage2[45] = chosen == nullptr ? std::string() : std::string(chosen->number);
    if (!Cmd_Deposit.enabled() && page1[zoneStatus] != "1") return;
    RateCaseShow();
    closeRatePanel();
    desk().show(frmLodgePage1_2::formName, Modality::Modal);
}

void frmLodgePage2::closeRatePanel() {
    picTaxRate.setVisible(false);
    InvestBlockEnable(state().intInvestment == 1);
    for (const FoundControl& found : underPanel_) {
        found.control->setEnabled(found.enabled);
        found.control->setVisible(found.visible);
    }
    underPanel_.clear();
}

} // namespace lodge
