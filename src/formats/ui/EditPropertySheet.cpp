#include "formats/ui/EditPropertySheet.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/ShellStrings.h"

namespace keltavlo {

EditPropertySheet::EditPropertySheet(QWidget* dialogOwner, TavloDocument& edited)
    : CPropertySheet(ToQString(LoadString(IDS_EDIT_PROPERTIES_TITLE)), dialogOwner), document(edited) {
    AddPage(generalPage);
    AddPage(quakePage);
    AddPage(quake2Page);
}

} // namespace keltavlo
