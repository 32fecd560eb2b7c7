#include "formats/TextureBytes.h"
#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "preview3d/MDLDocument.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

namespace keltavlo {

namespace {

void ExtractFile(Tool& tool, const std::string& path, const std::string& target, OutputPlace& outputs) {
    try {
        const auto file = FileOrThrow([&](CFileException* failure) {
            return tool.GetApplication().GetFileSystem().OpenFile(path, CFile::modeRead, failure);
        });
        outputs.Write(target, ReadAll(*file));
    } catch (const std::exception& failure) {
        tool.Fail(DescribeFailure(Direction::opening, path, failure));
    }
}

std::vector<std::byte> ToTarga(const Image& picture) {
    Texture texture;
    static_cast<Image&>(texture) = picture;
    return EncodeTexture(*FindCodec("TGADocument"), texture, nullptr);
}

// Writes each texture that the model carries, numbered from 1: the file does not say which names are theirs
// to keep.
void ExtractTextures(Tool& tool, const std::string& path, const std::string& folder, OutputPlace& outputs) {
    auto* model = dynamic_cast<MDLDocument*>(tool.GetApplication().OpenDocumentFile(path));
    if (!model) return; // the application has said why
    const std::string stem = folder + "/" + std::string(BaseNameOf(path)) + "_";
    int number = 0;
    for (const Image& texture : model->GetTextures()) {
        const std::string target = stem + std::to_string(++number) + ".tga";
        if (texture.Pixels().empty())
            tool.Note("Skipped \"" + ToDisplayPath(target) + "\": it would have no pixels.");
        else
            outputs.Write(target, ToTarga(texture));
    }
    if (number == 0) tool.Note("\"" + ToDisplayPath(path) + "\" contains no textures.");
    model->OnCloseDocument();
}

// A file of an archive, and the textures of a model wherever it lies.
void ExtractOne(Tool& tool, const std::string& path, const EntryStatus& status, const std::string& folder,
                OutputPlace& outputs) {
    outputs.AddInput(path);
    const bool isModel = EqualNoCase(ExtensionOf(path), ".mdl");
    if (isModel) ExtractTextures(tool, path, folder, outputs);
    if (!isModel || !status.onDisk)
        ExtractFile(tool, path, folder + "/" + std::string(FileNameOf(path)), outputs);
}

} // namespace

void Extract(Tool& tool, const ToolArguments& arguments) {
    const std::string path = TreePath(arguments.inputs.front());
    const std::string folder = FullPath(arguments.output);
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    if (!status.exists) return tool.Fail("\"" + ToDisplayPath(path) + "\" was not found.");
    OutputPlace outputs(tool, arguments.force);
    if (!IsTree(status)) return ExtractOne(tool, FullPath(path), status, folder, outputs);
    for (const auto& [file, name] : ListTree(tool, path, outputs)) {
        tool.ShowProgress(name);
        ExtractFile(tool, file, JoinPath(folder, name), outputs);
    }
}

} // namespace keltavlo
