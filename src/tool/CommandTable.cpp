#include "tool/CommandTable.h"

#include "tool/ToolCommands.h"
#include "tool/ToolOptions.h"

#include <limits>

namespace keltavlo {

namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

void AddListOptions(CLI::App& command, ToolArguments& arguments) {
    AddRecursiveOption(command, arguments);
    AddArchivesOption(command, arguments);
    AddJsonOption(command, arguments);
}

void AddSheetOptions(CLI::App& command, ToolArguments& arguments) {
    AddForceOption(command, arguments);
    AddArchivesOption(command, arguments);
    AddSourcePaletteOption(command, arguments);
}

void AddConvertOptions(CLI::App& command, ToolArguments& arguments) {
    AddFormatOption(command, arguments, "The format of the outputs. A folder or an archive requires it.");
    AddPaletteOptions(command, arguments);
    AddFieldsOption(command, arguments);
    AddMetadataOption(command, arguments);
    AddBatchOptions(command, arguments);
}

void AddExtractOptions(CLI::App& command, ToolArguments& arguments) {
    AddMetadataOption(command, arguments);
    AddBatchOptions(command, arguments);
}

void AddPackingOptions(CLI::App& command, ToolArguments& arguments) {
    AddPackOptions(command, arguments);
    AddFormatOption(command, arguments, "The format to convert pictures in a PAK to.");
    AddPaletteOptions(command, arguments);
    AddRunOptions(command, arguments);
}

constexpr ToolCommand commands[] = {
    {"list", "PATH...", "List the entries of archives.",
     "A PATH is an archive, a folder inside one or the folder of built-in files. Each line shows the size in "
     "bytes, the type and the name of an entry.",
     anyNumber, false, AddListOptions, List},
    {"info", "PATH...", "Describe files.",
     "Shows the format and the size of each file, the names and flags that the games store, and its palette; "
     "for a Quake II model, the numbers of frames, vertices, texture coordinates and triangles, and its "
     "skins; for a studio model (.mdl), its textures.",
     anyNumber, false, AddJsonOption, ShowInfo},
    {"sheet", "PATH OUT.png", "Draw a contact sheet of the textures in an archive.",
     "Draws every picture in an archive or a folder with its name and its size in texels, 48 to a page. "
     "Pictures that are wider or higher than 128 texels are reduced by a whole factor. A checkerboard shows "
     "through transparent texels. The first page is OUT.png, the next one OUT-2.png and so on.",
     1, true, AddSheetOptions, MakeSheet},
    {"convert", "IN... OUT", "Convert pictures to another format.",
     "If IN is one picture, the extension of OUT selects the format, or OUT is a folder. If there are "
     "several, or IN is a folder or an archive, every picture is written below the folder OUT, in the same "
     "folders and in the format of --to. A single picture may come from the standard input or go to the "
     "standard output; - means either. Files that are not pictures are skipped with a note. If a picture "
     "cannot be read, the command reports a failure and continues with the others. The games' formats "
     "require sides that are multiples of 8 from 8 to 256; a note names each picture that was fitted.",
     anyNumber, true, AddConvertOptions, Convert},
    {"extract", "PATH... OUTDIR", "Write files from archives to the disk.",
     "Writes one file of an archive, or all its files in their folders, below OUTDIR; if OUTDIR is -, writes "
     "one file to the standard output. Archives inside an archive or a folder become folders, except maps. "
     "For a model (.mdl), on the disk or in an archive, writes each texture as a numbered Targa file: "
     "model_1.tga and so on. Names that lead out of OUTDIR are refused. Names that differ only in case, and "
     "a file and a folder of the same name, get numbers, and a note says so. If several files have the same "
     "name, only the first is written.",
     anyNumber, true, AddExtractOptions, Extract},
    {"pack", "FOLDER|LIST... OUT", "Write a PAK or WAD archive.",
     "The extension of OUT, .pak or .wad, selects the kind of archive. A FOLDER, which may be an archive, is "
     "packed with all its folders, sorted by name. A LIST is a text file with a path on each line, "
     "relative to the folder of the list; lines that begin with # are skipped. Files in a pack stay as "
     "they are, except that --to converts the pictures. In a WAD, each picture becomes a texture, and each "
     ".lmp file a palette. Textures in a WAD2 have Quake's palette unless --palette names another one; those "
     "in a WAD3 each have their own. The names of textures are those of the files, without folders; _xHH "
     "in them means the character with the hexadecimal code HH. The command extract writes such names. If "
     "anything does not fit, the command reports all of it and writes nothing.",
     anyNumber, true, AddPackingOptions, Pack},
};

} // namespace

std::span<const ToolCommand> Commands() {
    return commands;
}

} // namespace keltavlo
