#include "formats/ui/Quake2GeneralEditPropertyPage.h"

#include "formats/ui/Quake2EditPropertyPage.h"
#include "framework/ui/CDataExchange.h"
#include "framework/ui/CSpinEdit.h"
#include "framework/ui/DialogLayout.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "res/ControlIds.h"

namespace keltavlo {

namespace {

constexpr std::size_t longestName = 31;
constexpr CDataExchange::Range values{-32767, 32768};

} // namespace

Quake2GeneralEditPropertyPage::Quake2GeneralEditPropertyPage() : CPropertyPage(QStringLiteral("General")) {
    QGridLayout& grid = AddPageGrid(*this);
    AddEdit(*this, grid, {0, 0, 3}, "&Name:", IDC_NAME);
    AddSpinEdit(*this, grid, {1, 0, 2}, "&Value:", IDC_VALUE, IDC_VALUE_SPIN);
    AddHeading(grid, {2, 0, 3}, "Next Animation Frame");
    AddEdit(*this, grid, {3, 0, 3}, "&Name:", IDC_NEXT_FRAME_NAME);
    grid.setColumnStretch(2, 1);
}

void Quake2GeneralEditPropertyPage::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(IDC_NAME, name, longestName);
    exchange.Text(IDC_NEXT_FRAME_NAME, nextFrameName);
    exchange.Number(IDC_VALUE, value, values);
}

void Quake2GeneralEditPropertyPage::OnInitDialog() {
    const TavloDocument& document = GetInnerPageDocument(*this);
    name = document.GetQuake2Names().name;
    nextFrameName = document.GetQuake2Names().nextFrameName;
    value = static_cast<std::int32_t>(document.GetValue());
    CPropertyPage::OnInitDialog();
}

bool Quake2GeneralEditPropertyPage::OnApply() {
    if (!UpdateData(true)) return false;
    TavloDocument& document = GetInnerPageDocument(*this);
    ChangeQuake2Names(document, {name, nextFrameName});
    ChangeValue(document, static_cast<std::uint32_t>(value));
    return CPropertyPage::OnApply();
}

} // namespace keltavlo
