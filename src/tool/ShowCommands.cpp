#include "archives/FolderDocument.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/SurfaceFlags.h"
#include "image/TavloDocument.h"
#include "image/picture/ColorList.h"
#include "preview3d/MD2Document.h"
#include "preview3d/MDLDocument.h"
#include "resources/PaletteDocument.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

#include <ostream>

namespace keltavlo {

namespace {

// "label: value", nothing for an empty value.
void Put(std::ostream& out, std::string_view label, const std::string& value) {
    if (!value.empty()) out << label << ": " << ToUtf8(value) << "\n";
}

std::string Numbered(std::uint32_t flags, const std::array<std::string_view, 32>& labels) {
    return flags == 0 ? std::string() : Format("0x%08X", flags) + " (" + DescribeFlags(flags, labels) + ")";
}

std::string SizeOf(const Image& picture) {
    return std::to_string(picture.GetWidth()) + " x " + std::to_string(picture.GetHeight());
}

void DescribeTexture(std::ostream& out, const Texture& texture) {
    Put(out, "size", SizeOf(texture));
    if (texture.palette) Put(out, "palette", std::to_string(texture.palette->GetCount()) + " colors");
    Put(out, "Quake name", texture.quakeName);
    Put(out, "Quake II name", texture.quake2.name);
    Put(out, "next frame", texture.quake2.nextFrameName);
    Put(out, "surface", Numbered(texture.quake2.surfaceFlags, surfaceFlagLabels));
    Put(out, "contents", Numbered(texture.quake2.contents, contentsFlagLabels));
    if (texture.quake2.value != 0) Put(out, "value", std::to_string(texture.quake2.value));
}

void DescribePalette(std::ostream& out, const PaletteDocument& palette) {
    Put(out, "palette",
        palette.IsColorTable() ? std::to_string(palette.GetColorCount()) + " colors" : "a whole color space");
}

void DescribeFolder(std::ostream& out, const FolderDocument& folder) {
    FolderListing listing;
    folder.ListFolder(folder.GetRootName(), listing);
    Put(out, "entries at the top", std::to_string(listing.names.size()));
}

void DescribeModel(std::ostream& out, const MD2Document& model) {
    const auto& frames = model.GetFrames();
    Put(out, "frames", std::to_string(frames.size()));
    Put(out, "vertices of a frame", std::to_string(frames.empty() ? 0 : frames.front().vertices.size()));
    Put(out, "texture coordinates", std::to_string(model.GetTexCoords().size()));
    Put(out, "triangles", std::to_string(model.GetTriangles().size()));
    Put(out, "skins", std::to_string(model.GetSkins().size()));
    for (const std::string& skin : model.GetSkins()) Put(out, "skin", skin);
}

void DescribeModel(std::ostream& out, const MDLDocument& model) {
    Put(out, "textures", std::to_string(model.GetTextures().size()));
    for (const Image& texture : model.GetTextures()) Put(out, "texture", SizeOf(texture));
}

void DescribeDocument(std::ostream& out, const CDocument& document) {
    if (const auto* image = dynamic_cast<const TavloDocument*>(&document))
        DescribeTexture(out, image->GetTexture());
    if (const auto* palette = dynamic_cast<const PaletteDocument*>(&document)) DescribePalette(out, *palette);
    if (const auto* folder = dynamic_cast<const FolderDocument*>(&document)) DescribeFolder(out, *folder);
    if (const auto* model = dynamic_cast<const MD2Document*>(&document)) DescribeModel(out, *model);
    if (const auto* model = dynamic_cast<const MDLDocument*>(&document)) DescribeModel(out, *model);
}

void ListFolder(Tool& tool, const std::string& argument) {
    const std::string folder = TreePath(argument);
    FileSystem& files = tool.GetApplication().GetFileSystem();
    EntryStatus status;
    files.GetStatus(folder, status);
    FolderListing listing;
    files.ListFolder(folder, listing);
    const bool inArchive = status.browsable || !status.onDisk;
    if (!IsTree(status) || !inArchive)
        return tool.Fail("\"" + ToDisplayPath(folder) + "\" is not an archive or a folder in one.");
    for (const std::string& name : listing.names) {
        files.GetStatus(JoinPath(folder, name), status);
        const bool isFolder = status.IsDirectory();
        const std::string type = isFolder ? "folder" : TypeNameOf(name);
        tool.Output() << Format("%10s  %-38s  %s\n", isFolder ? "" : std::to_string(status.size).c_str(),
                                type.c_str(), ToUtf8(name).c_str());
    }
}

void DescribeFile(Tool& tool, const std::string& argument) {
    const std::string path = FullPath(argument);
    const CDocument* document = tool.GetApplication().OpenDocumentFile(path);
    if (!document) return; // the application has said why
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    Put(tool.Output(), "file", path);
    Put(tool.Output(), "format", TypeNameOf(path));
    Put(tool.Output(), "bytes", std::to_string(status.size));
    DescribeDocument(tool.Output(), *document);
}

} // namespace

void List(Tool& tool, const ToolArguments& arguments) {
    for (const std::string& input : arguments.inputs) ListFolder(tool, input);
}

void ShowInfo(Tool& tool, const ToolArguments& arguments) {
    for (const std::string& input : arguments.inputs) DescribeFile(tool, input);
}

} // namespace keltavlo
