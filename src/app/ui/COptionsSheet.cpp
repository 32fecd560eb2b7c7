#include "app/ui/COptionsSheet.h"

#include "app/ui/CGammaSettingsDialog.h"
#include "app/ui/MainFrame.h"
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

CViewOptionsPage::CViewOptionsPage(MainFrame& mainFrame)
    : CPropertyPage(QStringLiteral("View")), frame(mainFrame), gammaValues(frame.GetGamma().GetValues()) {
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

// Seen at once, though the sheet may stay.
bool CViewOptionsPage::OnApply() {
    frame.GetGamma().SetValues(gammaValues);
    frame.UpdateAllDocuments(nullptr, 0, nullptr);
    frame.UpdatePaletteBar(nullptr, 0, nullptr);
    return CPropertyPage::OnApply();
}

COptionsSheet::COptionsSheet(MainFrame& mainFrame)
    : CPropertySheet(ToQString(LoadString(IDS_OPTIONS_TITLE)), &mainFrame), viewPage(mainFrame) {
    AddPage(generalPage);
    AddPage(viewPage);
}

} // namespace keltavlo
