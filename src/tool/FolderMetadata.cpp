#include "tool/FolderMetadata.h"

#include "framework/core/CFile.h"
#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "image/picture/Texture.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"
#include "tool/pictures/PictureConversion.h"

namespace keltavlo {

TextureFields StoredMetadata::Find(const std::string& path) {
    const std::string folder = ParentOf(path);
    auto place = byFolder.find(folder);
    if (place == byFolder.end())
        place = byFolder.emplace(folder, Read(JoinPath(folder, TextureMetadata::fileName))).first;
    const TextureFields* fields = place->second.Find(std::string(FileNameOf(path)));
    return fields ? *fields : TextureFields();
}

TextureMetadata StoredMetadata::Read(const std::string& path) {
    try {
        FileSystem& files = tool.GetApplication().GetFileSystem();
        CFileException failure;
        const auto file = files.OpenExisting(path, CFile::modeRead, &failure);
        if (!file) return {};
        if (!*file) throw failure;
        return TextureMetadata::Parse(ReadAll(**file));
    } catch (const CException& failure) {
        tool.Fail(DescribeFailure(Direction::opening, path, failure));
        return {};
    }
}

void GatheredMetadata::Add(CFile& source, const std::string& sourceName, const std::string& target,
                           const PaletteSet& palettes) {
    if (!HasFields(sourceName)) return;
    try {
        const auto fields = FieldsOf(ReadPicture(source, sourceName, palettes, {}), sourceName);
        const std::scoped_lock guard(lock);
        byFolder[ParentOf(target)].Set(std::string(FileNameOf(target)), fields);
    } catch (const CException&) { // reported where the picture is needed
    }
    source.Seek(0, CFile::From::begin);
}

void GatheredMetadata::Write(OutputPlace& outputs) {
    for (const auto& [folder, metadata] : byFolder)
        outputs.Write(JoinPath(folder, TextureMetadata::fileName), metadata.Write());
}

} // namespace keltavlo
