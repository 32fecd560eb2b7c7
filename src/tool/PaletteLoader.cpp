#include "tool/PaletteLoader.h"

#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "resources/BuiltInFiles.h"
#include "resources/FileSource.h"
#include "tool/pictures/PaletteFile.h"

namespace keltavlo {

namespace {

ColorList LoadPalette(const std::string& path) {
    const auto file = FileOrThrow(
        [&](CFileException* failure) { return FileSource::Get().OpenFile(path, CFile::modeRead, failure); });
    return ReadPaletteFile(*file, FileNameOf(path));
}

} // namespace

PaletteSet LoadPalettes(const PaletteOptions& options) {
    PaletteSet palettes{LoadPalette(GetBuiltInPath(quakePalette)),
                        LoadPalette(GetBuiltInPath(quake2Palette)),
                        LoadPalette(GetBuiltInPath(hexen2Palette)),
                        {}};
    if (options.source == PaletteSource::file) palettes.file = LoadPalette(FullPath(options.file));
    return palettes;
}

} // namespace keltavlo
