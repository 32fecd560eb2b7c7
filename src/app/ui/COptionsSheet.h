#pragma once

#include "app/GammaSettings.h"
#include "framework/ui/CPropertyPage.h"
#include "framework/ui/CPropertySheet.h"

namespace keltavlo {

class MainFrame;

// There are no general options yet.
class CGeneralOptionsPage : public CPropertyPage {
public:
    CGeneralOptionsPage();
};

// How documents are shown.
class CViewOptionsPage : public CPropertyPage {
public:
    // Applying changes the frame's gamma.
    explicit CViewOptionsPage(MainFrame& mainFrame);

    bool OnApply() override;

private:
    void OnGammaSettings();

    MainFrame& frame;
    GammaValues gammaValues; // a copy until they are applied
};

// The program's options.
class COptionsSheet : public CPropertySheet {
public:
    explicit COptionsSheet(MainFrame& mainFrame);

private:
    CGeneralOptionsPage generalPage;
    CViewOptionsPage viewPage;
};

} // namespace keltavlo
