#pragma once

#include "formats/ui/EditPropertyPage.h"
#include "formats/ui/Quake2FlagsEditPropertyPage.h"
#include "formats/ui/Quake2GeneralEditPropertyPage.h"
#include "framework/ui/CPropertySheet.h"

namespace keltavlo {

// What a Quake II texture stores, in a sheet inside the page.
class Quake2EditPropertyPage : public EditPropertyPage {
public:
    Quake2EditPropertyPage();

    void OnInitDialog() override;
    bool OnKillActive() override { return innerSheet.KillActivePage(); }
    bool OnApply() override;

private:
    CPropertySheet innerSheet{{}, nullptr};
    Quake2GeneralEditPropertyPage generalPage;
    Quake2SurfaceEditPropertyPage surfacePage;
    Quake2ContentsEditPropertyPage contentsPage;
};

// The document behind a page of the inner sheet.
TavloDocument& GetInnerPageDocument(const CPropertyPage& page);

} // namespace keltavlo
