#include "formats/Codec.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "resources/DocTemplateRegistry.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

namespace {

// The picture format of a name; null for any other type, and for extensions that no type has.
const Codec* CodecOfName(const std::string& name) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CRuntimeClass& documentClass = *registry.GetDocumentClassOfName(name);
    const bool isKnown = EqualNoCase(registry.GetFilterExtension(documentClass), ExtensionOf(name));
    return isKnown ? FindCodec(documentClass.name) : nullptr;
}

std::string SizeOf(const Texture& texture) {
    return std::to_string(texture.GetWidth()) + " x " + std::to_string(texture.GetHeight());
}

// Writes the document's picture under another name.
void WritePicture(Tool& tool, TavloDocument& document, const std::string& to, bool force) {
    if (!PrepareOutput(tool, to, force)) return;
    const std::string before = SizeOf(document.GetTexture());
    if (!document.OnSaveDocument(to)) return; // the application has said why
    const std::string after = SizeOf(document.GetTexture());
    if (after != before)
        tool.Note("\"" + ToDisplayPath(to) + "\" was made " + after + " from " + before +
                  " to fit the games.");
}

void ConvertPicture(Tool& tool, const std::string& from, const std::string& to, bool force) {
    auto* document = dynamic_cast<TavloDocument*>(tool.GetApplication().OpenDocumentFile(from));
    if (!document) return;
    WritePicture(tool, *document, to, force);
    document->OnCloseDocument();
}

void ConvertTree(Tool& tool, const std::string& tree, const std::string& folder,
                 const ToolArguments& arguments) {
    WalkTree(tool, tree, [&](const std::string& path, const std::string& name) {
        tool.ShowProgress(name);
        if (!CodecOfName(name)) return tool.Note("\"" + name + "\" is no picture and was left out.");
        const std::string stem = name.substr(0, name.size() - ExtensionOf(name).size());
        ConvertPicture(tool, path, folder + "/" + stem + arguments.format, arguments.force);
    });
}

} // namespace

void Convert(Tool& tool, const ToolArguments& arguments) {
    const std::string from = FullPath(arguments.paths[0]);
    const std::string to = FullPath(arguments.paths[1]);
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(from, status);
    if (IsTree(status)) {
        if (arguments.format.empty()) throw UsageError("A folder or archive is converted --to a format.");
        if (!CodecOfName("x" + arguments.format)) throw UsageError("--to takes wal, mip, pcx, tga or bmp.");
        ConvertTree(tool, from, to, arguments);
    } else {
        if (!CodecOfName(to))
            throw UsageError("The name of the output must end in .wal, .mip, .pcx, .tga or .bmp.");
        ConvertPicture(tool, from, to, arguments.force);
    }
}
