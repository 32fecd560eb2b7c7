#include "archives/FolderDocument.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/SurfaceFlags.h"
#include "image/TavloDocument.h"
#include "image/picture/ColorList.h"
#include "preview3d/MD2Document.h"
#include "resources/PaletteDocument.h"
#include "tool/EntryTypes.h"
#include "tool/FileFacts.h"
#include "tool/ModelFile.h"
#include "tool/PaletteLoader.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"
#include "tool/pictures/PictureConversion.h"
#include "tool/pictures/PictureFormat.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace keltavlo {

namespace {

void AddTexture(FileFacts& facts, const Texture& texture) {
    facts.AddSize(texture.GetWidth(), texture.GetHeight());
    if (texture.palette) facts.AddColors(texture.palette->GetCount());
    facts.Add("Quake name", "quakeName", texture.quakeName);
    facts.Add("Quake II name", "quake2Name", texture.quake2.name);
    facts.Add("next frame", "next", texture.quake2.nextFrameName);
    const std::uint32_t surface = texture.quake2.surfaceFlags, contents = texture.quake2.contents;
    facts.AddFlags("surface", surface, DescribeFlags(surface, surfaceFlagLabels));
    facts.AddFlags("contents", contents, DescribeFlags(contents, contentsFlagLabels));
    if (texture.quake2.value != 0) facts.Add("value", "value", texture.quake2.value);
}

void AddPalette(FileFacts& facts, const PaletteDocument& palette) {
    if (palette.IsColorTable())
        facts.AddColors(palette.GetColorCount());
    else
        facts.Add("palette", "palette", "a whole color space");
}

void AddFolder(FileFacts& facts, const FolderDocument& folder) {
    FolderListing listing;
    folder.ListFolder(folder.GetRootName(), listing);
    facts.Add("entries at the top", "entries", listing.names.size());
}

void AddModel(FileFacts& facts, const MD2Document& model) {
    const auto& frames = model.GetFrames();
    facts.Add("frames", "frames", frames.size());
    facts.Add("vertices of a frame", "vertices", frames.empty() ? 0 : frames.front().vertices.size());
    facts.Add("texture coordinates", "textureCoordinates", model.GetTexCoords().size());
    facts.Add("triangles", "triangles", model.GetTriangles().size());
    facts.Add("skins", "skinCount", model.GetSkins().size());
    for (const std::string& skin : model.GetSkins()) facts.AppendText("skin", "skins", skin);
}

void AddModel(FileFacts& facts, const std::vector<ModelSkin>& skins) {
    facts.Add("textures", "textureCount", skins.size());
    for (const ModelSkin& skin : skins)
        facts.AppendSize("texture", "textures", skin.picture.GetWidth(), skin.picture.GetHeight());
}

void AddDocument(FileFacts& facts, const CDocument& document) {
    if (const auto* image = dynamic_cast<const TavloDocument*>(&document))
        AddTexture(facts, image->GetTexture());
    if (const auto* palette = dynamic_cast<const PaletteDocument*>(&document)) AddPalette(facts, *palette);
    if (const auto* folder = dynamic_cast<const FolderDocument*>(&document)) AddFolder(facts, *folder);
    if (const auto* model = dynamic_cast<const MD2Document*>(&document)) AddModel(facts, *model);
}

// Whether only the tool reads the picture format, so that the application has no document type for it.
bool IsToolPicture(const std::string& path) {
    const PictureFormat* format = FindPictureFormat(path);
    return format && format->codec.documentClass.empty();
}

// Returns false after reporting a failure.
bool AddContents(Tool& tool, const std::string& path, FileFacts& facts) {
    if (EqualNoCase(ExtensionOf(path), ".mdl")) {
        const auto skins = ReadModelFile(tool, FindFile(tool, path));
        if (skins) AddModel(facts, *skins);
        return skins.has_value();
    }
    if (!IsToolPicture(path)) {
        const CDocument* document = tool.GetApplication().OpenDocumentFile(path);
        if (document) AddDocument(facts, *document);
        return document != nullptr;
    }
    try {
        AddTexture(facts, ReadPicture(*OpenSource(FindFile(tool, path)), path, LoadPalettes({}), {}));
        return true;
    } catch (const CException& failure) {
        tool.Fail(DescribeFailure(Direction::opening, path, failure));
        return false;
    }
}

bool Describe(Tool& tool, const std::string& path, FileFacts& facts) {
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    facts.AddPath(path);
    facts.Add("format", "format", EntryTypes().Find(path).name);
    facts.Add("bytes", "bytes", status.size);
    return AddContents(tool, path, facts);
}

} // namespace

void ShowInfo(Tool& tool, const ToolArguments& arguments) {
    nlohmann::ordered_json all = nlohmann::ordered_json::array();
    const char* separator = "";
    for (const std::string& input : arguments.inputs) {
        FileFacts facts;
        if (!Describe(tool, TreePath(input), facts)) continue;
        if (arguments.json)
            all.push_back(facts.ToJson());
        else
            facts.Print(tool.Output() << separator);
        separator = "\n";
    }
    if (arguments.json) tool.Output() << all.dump(2) << "\n";
}

} // namespace keltavlo
