#pragma once

#include "app/BuiltInFileRows.h"
#include "app/DocumentTypes.h"
#include "archives/FileSystem.h"
#include "res/DocumentStrings.h"
#include "resources/DocTemplateRegistry.h"

namespace keltavlo {

// The program without its windows: the service that resolves paths, the registry of document types,
// and the tables of strings and built-in files. Make one beside the application and keep it as long
// as documents are open.
class Workshop {
public:
    explicit Workshop(CWinApp& application) {
        AddStrings(DocumentStrings());
        AddEmbeddedFiles(BuiltInFileRows());
        RegisterDocumentTypes(application);
    }

    FileSystem& GetFileSystem() { return fileSystem; }

private:
    FileSystem fileSystem;
    DocTemplateRegistry registry;
};

} // namespace keltavlo
