#include "app/Workshop.h"

#include "app/BuiltInFiles.h"
#include "app/DocumentTypes.h"
#include "framework/core/ProgramResources.h"
#include "res/DocumentStrings.h"

namespace keltavlo {

Workshop::Workshop(CWinApp& application) {
    AddStrings(DocumentStrings());
    AddResources(BuiltInFileRows());
    RegisterDocumentTypes(application);
}

} // namespace keltavlo
