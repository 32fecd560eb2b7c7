#include "app/ui/COptionsSheet.h"

#include "app/ui/CGammaSettingsDialog.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/DialogLayout.h"
#include "framework/ui/PixelIcon.h"
#include "res/ControlIds.h"
#include "res/DialogIcons.h"
#include "res/ShellStrings.h"

#include <QPushButton>

namespace keltavlo {

CGeneralOptionsPage::CGeneralOptionsPage() : CPropertyPage(QStringLiteral("General")) {}

CViewOptionsPage::CViewOptionsPage(GammaSettings& editedGamma, std::function<void()> onChange)
    : CPropertyPage(QStringLiteral("View")), gamma(editedGamma), changed(std::move(onChange)),
      gammaValues(gamma.GetValues()) {
    QGridLayout& grid = AddPageGrid(*this);
    AddHeading(grid, {0, 0, 3}, "Gamma");
    AddIcon(grid, {1, 0}, MakePixelIcon(GammaIcon()));
    AddText(grid, {1, 1, 2}, "Change how brightly the document images are shown.");
    QPushButton& button = AddButton(*this, grid, {2, 2}, "&Gamma Settings...", IDC_GAMMA_SETTINGS);
    grid.setColumnStretch(1, 1);
    connect(&button, &QPushButton::clicked, this, [this] { OnGammaSettings(); });
}

void CViewOptionsPage::OnGammaSettings() {
    CGammaSettingsDialog dialog(this, gammaValues);
    dialog.DoModal();
    if (dialog.GetGammaValues() == gammaValues) return;
    gammaValues = dialog.GetGammaValues();
    SetModified(true);
}

// Applied at once, even if the sheet stays open.
bool CViewOptionsPage::OnApply() {
    gamma.SetValues(gammaValues);
    changed();
    return CPropertyPage::OnApply();
}

COptionsSheet::COptionsSheet(QWidget* dialogOwner, GammaSettings& gamma, std::function<void()> onGammaChange)
    : CPropertySheet(ToQString(LoadString(IDS_OPTIONS_TITLE)), dialogOwner),
      viewPage(gamma, std::move(onGammaChange)) {
    AddPage(generalPage);
    AddPage(viewPage);
}

} // namespace keltavlo
