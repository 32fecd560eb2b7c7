#pragma once

#include "app/GammaSettings.h"
#include "framework/ui/CPropertySheet.h"

#include <functional>

namespace keltavlo {

// There are no general options yet.
class CGeneralOptionsPage : public CPropertyPage {
public:
    CGeneralOptionsPage();
};

// Options for how documents are displayed.
class CViewOptionsPage : public CPropertyPage {
public:
    // Applying changes the gamma and calls `onChange`.
    CViewOptionsPage(GammaSettings& editedGamma, std::function<void()> onChange);

    bool OnApply() override;

private:
    void OnGammaSettings();

    GammaSettings& gamma;
    std::function<void()> changed;
    GammaValues gammaValues; // a copy until the values are applied
};

// The program's options.
class COptionsSheet : public CPropertySheet {
public:
    // `onGammaChange` is called when the gamma values change.
    COptionsSheet(QWidget* dialogOwner, GammaSettings& gamma, std::function<void()> onGammaChange);

private:
    CGeneralOptionsPage generalPage;
    CViewOptionsPage viewPage;
};

} // namespace keltavlo
