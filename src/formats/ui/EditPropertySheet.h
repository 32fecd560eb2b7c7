#pragma once

#include "formats/ui/GeneralEditPropertyPage.h"
#include "formats/ui/Quake2EditPropertyPage.h"
#include "formats/ui/QuakeEditPropertyPage.h"
#include "framework/ui/CPropertySheet.h"

namespace keltavlo {

// Edits what the game formats store with a texture besides its pixels. Each group of values that the person
// changed becomes one undoable change when the sheet is confirmed.
class EditPropertySheet : public CPropertySheet {
public:
    EditPropertySheet(QWidget* dialogOwner, TavloDocument& edited);

    TavloDocument& GetDocument() const { return document; }

private:
    TavloDocument& document;
    GeneralEditPropertyPage generalPage;
    QuakeEditPropertyPage quakePage;
    Quake2EditPropertyPage quake2Page;
};

} // namespace keltavlo
