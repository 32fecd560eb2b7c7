#pragma once

#include "app/GammaSettings.h"
#include "framework/ui/CPropertyPage.h"
#include "framework/ui/CPropertySheet.h"

// There are no general options yet.
class CGeneralOptionsPage : public CPropertyPage {
public:
    CGeneralOptionsPage();
};

// How documents are shown.
class CViewOptionsPage : public CPropertyPage {
public:
    // Applying changes the settings.
    explicit CViewOptionsPage(GammaSettings& gammaSettings);

    bool OnApply() override;

private:
    void OnGammaSettings();

    GammaSettings& gamma;
    GammaValues gammaValues; // a copy until they are applied
};

// The program's options.
class COptionsSheet : public CPropertySheet {
public:
    COptionsSheet(QWidget* dialogOwner, GammaSettings& gamma);

private:
    CGeneralOptionsPage generalPage;
    CViewOptionsPage viewPage;
};
