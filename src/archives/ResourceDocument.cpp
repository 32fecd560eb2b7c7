#include "archives/ResourceDocument.h"

#include "archives/ResourceEntry.h"
#include "framework/core/ModulePath.h"
#include "framework/core/ProgramResources.h"
#include "resources/BuiltInPath.h"
#include "resources/streams/OutputStream.h"

namespace keltavlo {

bool ResourceDocument::OnDocumentReady() {
    if (!BaseDocument::OnDocumentReady()) return false;
    ResetTree();
    // The program may have been reached through a link.
    SetRootName(GetTransferPath().empty() ? GetModulePath() : GetTransferPath());
    if (!IsModulePath(GetRootName())) return true;
    const std::string folder = JoinPath(GetRootName(), builtInFolder);
    for (const unsigned id : EnumResources(builtInNameType)) {
        const std::string name = GetBuiltInName(id);
        const std::string_view extension = ExtensionOf(name);
        // A name without bytes would be a file that cannot be opened: it is left out.
        const ResourceRow* row = extension.empty() ? nullptr : FindResource(id, extension.substr(1));
        if (row) AddEntry(JoinPath(folder, name), std::make_unique<ResourceEntry>(name, row->data));
    }
    return true;
}

void ResourceDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
