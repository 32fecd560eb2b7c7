#include "app/Workshop.h"

#include "app/BuiltInFiles.h"
#include "app/DocumentTypes.h"
#include "framework/core/ProgramResources.h"
#include "res/DocumentStrings.h"

Workshop::Workshop(CWinApp& application) {
    AddStrings(DocumentStrings());
    AddResources(BuiltInFileRows());
    RegisterDocumentTypes(application);
}
