#include "formats/TextureBytes.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/BatchRun.h"
#include "tool/FolderMetadata.h"
#include "tool/ModelFile.h"
#include "tool/OutputPlace.h"
#include "tool/PaletteLoader.h"
#include "tool/StandardStreams.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/archives/ModelSkins.h"

namespace keltavlo {

namespace {

std::vector<std::byte> ToTarga(const Image& picture) {
    Texture texture;
    static_cast<Image&>(texture) = picture;
    return EncodeTexture(*FindCodec("TGADocument"), texture, nullptr);
}

// Writes files and the textures of models.
class Extraction {
public:
    Extraction(Tool& reportingTool, const ToolArguments& toolArguments)
        : tool(reportingTool), arguments(toolArguments), outputs(reportingTool, toolArguments.force),
          folder(FullPath(toolArguments.output)) {}

    void Run() {
        if (IsStandardStream(arguments.output)) return WriteToStream();
        outputs.KeepInside(folder);
        for (const std::string& input : arguments.inputs) AddInput(input);
        for (const TreeFile& model : models) ExtractTextures(model);
        if (arguments.metadata) palettes = LoadPalettes({});
        RunBatch(tool, arguments, {"extract", "extracted"}, std::move(files), outputs,
                 [this](CFile& source, const BatchFile& file) {
                     if (arguments.metadata) gathered.Add(source, file.source.name, file.target, palettes);
                     return ConvertedFile{ReadAll(source), {}};
                 });
        gathered.Write(outputs);
        outputs.Finish();
    }

private:
    void AddInput(const std::string& input) {
        const std::string path = TreePath(input);
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(path, status);
        if (!status.exists) return FailToFind(tool, path);
        if (IsTree(status)) return AddTree(path);
        outputs.AddInput(path);
        const bool isModel = EqualNoCase(ExtensionOf(path), ".mdl");
        if (isModel) models.push_back(FindFile(tool, FullPath(path)));
        if (!isModel || !status.onDisk) Add(FindFile(tool, FullPath(path)));
    }

    // Maps stay whole, because their textures are only a part of them.
    void AddTree(const std::string& tree) {
        const NestedArchives nested =
            arguments.enterArchives ? NestedArchives::enteredWithoutMaps : NestedArchives::asFiles;
        for (TreeFile& file : ListTree(tool, tree, nested, outputs)) Add(std::move(file));
    }

    void Add(TreeFile source) {
        std::string target = FullPath(JoinPath(folder, source.name));
        files.push_back({std::move(source), std::move(target)});
    }

    // Writes each texture in the model. Numbers them, because the file contains no names.
    void ExtractTextures(const TreeFile& model) {
        const std::string stem = folder + "/" + std::string(BaseNameOf(model.name)) + "_";
        const std::optional<std::vector<ModelSkin>> skins = ReadModelFile(tool, model);
        if (!skins) return;
        if (skins->empty()) tool.Note("\"" + ToDisplayPath(model.path) + "\" contains no textures.");
        for (const auto& [number, picture] : *skins) {
            const std::string target = stem + number + ".tga";
            if (picture.Pixels().empty())
                tool.Note("Skipped \"" + ToDisplayPath(target) + "\": it would have no pixels.");
            else
                outputs.Write(target, ToTarga(picture));
        }
    }

    void WriteToStream() {
        const std::string path = TreePath(arguments.inputs.front());
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(path, status);
        if (!status.exists) return FailToFind(tool, path);
        if (arguments.inputs.size() > 1 || IsTree(status))
            throw UsageError("The standard output takes a single file.");
        WriteStandardOutput(tool.Output(), ReadAll(*OpenSource(FindFile(tool, path))));
    }

    Tool& tool;
    const ToolArguments& arguments;
    OutputPlace outputs;
    const std::string folder; // full path
    std::vector<TreeFile> models;
    std::vector<BatchFile> files;
    PaletteSet palettes;
    GatheredMetadata gathered;
};

} // namespace

void Extract(Tool& tool, const ToolArguments& arguments) {
    Extraction(tool, arguments).Run();
}

} // namespace keltavlo
