#include "formats/ui/EditPropertySheet.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/DialogLayout.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "res/ControlIds.h"
#include "res/ShellStrings.h"

namespace keltavlo {

namespace {

constexpr CDataExchange::Range sides{1, 1024};
constexpr std::size_t longestName = 15;

} // namespace

GeneralEditPropertyPage::GeneralEditPropertyPage() : EditPropertyPage(QStringLiteral("General")) {
    QGridLayout& size = AddGroupBox(AddPageGrid(*this), {}, "Size");
    AddSpinEdit(*this, size, {0, 0, 2}, "&Width:", IDC_WIDTH, IDC_WIDTH_SPIN);
    AddSpinEdit(*this, size, {0, 2, 2}, "&Height:", IDC_HEIGHT, IDC_HEIGHT_SPIN);
    size.setColumnStretch(1, 1);
    size.setColumnStretch(3, 1);
}

void GeneralEditPropertyPage::DoDataExchange(CDataExchange& exchange) {
    exchange.Number(IDC_WIDTH, width, sides);
    exchange.Number(IDC_HEIGHT, height, sides);
}

void GeneralEditPropertyPage::OnInitDialog() {
    width = static_cast<std::uint32_t>(GetDocument().GetTexture().GetWidth());
    height = static_cast<std::uint32_t>(GetDocument().GetTexture().GetHeight());
    EditPropertyPage::OnInitDialog();
}

bool GeneralEditPropertyPage::OnApply() {
    if (!UpdateData(true)) return false;
    ResizePicture(GetDocument(), static_cast<int>(width), static_cast<int>(height));
    return EditPropertyPage::OnApply();
}

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

EditPropertySheet::EditPropertySheet(QWidget* dialogOwner, TavloDocument& edited)
    : CPropertySheet(ToQString(LoadString(IDS_EDIT_PROPERTIES_TITLE)), dialogOwner), document(edited) {
    AddPage(generalPage);
    AddPage(quakePage);
    AddPage(quake2Page);
}

} // namespace keltavlo
