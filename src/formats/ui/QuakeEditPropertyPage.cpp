#include "formats/ui/QuakeEditPropertyPage.h"

#include "framework/ui/CDataExchange.h"
#include "framework/ui/DialogLayout.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "res/ControlIds.h"

namespace keltavlo {

namespace {

constexpr std::size_t longestName = 15;

} // namespace

QuakeEditPropertyPage::QuakeEditPropertyPage() : EditPropertyPage(QStringLiteral("Quake")) {
    AddEdit(*this, AddGroupBox(AddPageGrid(*this), {}, ""), {0, 0, 2}, "&Name:", IDC_NAME);
}

void QuakeEditPropertyPage::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(IDC_NAME, name, longestName);
}

void QuakeEditPropertyPage::OnInitDialog() {
    name = GetDocument().GetQuakeName();
    EditPropertyPage::OnInitDialog();
}

bool QuakeEditPropertyPage::OnApply() {
    if (!UpdateData(true)) return false;
    ChangeQuakeName(GetDocument(), name);
    return EditPropertyPage::OnApply();
}

} // namespace keltavlo
