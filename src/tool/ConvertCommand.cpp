#include "formats/Codec.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "resources/DocTemplateRegistry.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

namespace keltavlo {

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
void WritePicture(Tool& tool, TavloDocument& document, const std::string& to, OutputPlace& outputs) {
    if (!outputs.Prepare(to)) return;
    const std::string before = SizeOf(document.GetTexture());
    if (!document.OnSaveDocument(to)) return; // the application has said why
    outputs.AddWritten(to);
    const std::string after = SizeOf(document.GetTexture());
    if (after != before)
        tool.Note("\"" + ToDisplayPath(to) + "\" was resized from " + before + " to " + after +
                  " to fit the games.");
}

void ConvertPicture(Tool& tool, const std::string& from, const std::string& to, OutputPlace& outputs) {
    CDocument* document = tool.GetApplication().OpenDocumentFile(from);
    if (!document) return; // the application has said why
    if (auto* picture = dynamic_cast<TavloDocument*>(document))
        WritePicture(tool, *picture, to, outputs);
    else
        tool.Fail("\"" + ToDisplayPath(from) + "\" is not a picture.");
    document->OnCloseDocument();
}

void ConvertTree(Tool& tool, const std::string& tree, const std::string& folder,
                 const ToolArguments& arguments) {
    OutputPlace outputs(tool, arguments.force);
    for (const auto& [path, name] : ListTree(tool, tree, outputs)) {
        tool.ShowProgress(name);
        const std::string stem = name.substr(0, name.size() - ExtensionOf(name).size());
        if (CodecOfName(name))
            ConvertPicture(tool, path, JoinPath(folder, stem + arguments.format), outputs);
        else
            tool.Note("Skipped \"" + name + "\": not a picture.");
    }
}

} // namespace

void Convert(Tool& tool, const ToolArguments& arguments) {
    const std::string from = TreePath(arguments.inputs.front());
    const std::string to = FullPath(arguments.output);
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(from, status);
    if (IsTree(status)) {
        if (arguments.format.empty())
            throw UsageError("Converting a folder or archive requires --to FORMAT.");
        if (!CodecOfName("x" + arguments.format)) throw UsageError("--to requires " + ListFormats() + ".");
        ConvertTree(tool, from, to, arguments);
    } else {
        if (!CodecOfName(to))
            throw UsageError("The name of the output must end in " + ListFormats(".") + ".");
        OutputPlace outputs(tool, arguments.force);
        outputs.AddInput(from);
        ConvertPicture(tool, from, to, outputs);
    }
}

} // namespace keltavlo
