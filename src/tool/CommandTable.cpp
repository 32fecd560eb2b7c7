#include "tool/CommandTable.h"

#include "tool/ToolCommands.h"
#include "tool/ToolOptions.h"

#include <limits>

namespace keltavlo {

namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

void AddNoOptions(CLI::App&, ToolArguments&) {}

void AddConvertOptions(CLI::App& command, ToolArguments& arguments) {
    AddFormatOption(command, arguments);
    AddBatchOptions(command, arguments);
}

constexpr ToolCommand commands[] = {
    {"list", "PATH...", "List the entries of archives.",
     "A PATH is an archive, a folder inside one or the folder of built-in files. Each line shows the size in "
     "bytes, the type and the name of an entry.",
     anyNumber, false, AddNoOptions, List},
    {"info", "PATH...", "Describe files.",
     "Shows the format and the size of each file, the names and flags that the games store, and its palette; "
     "for a Quake II model, the numbers of frames, vertices, texture coordinates and triangles, and its "
     "skins; for a studio model (.mdl), its textures.",
     anyNumber, false, AddNoOptions, ShowInfo},
    {"convert", "IN OUT", "Convert pictures to another format.",
     "If IN is a picture, the extension of OUT selects the format. If IN is a folder or an archive, every "
     "picture in it is written below the folder OUT, in the same folders and in the format of --to. Files "
     "that are not pictures are skipped with a note. If a picture cannot be read, the command reports a "
     "failure and continues with the others. The games' formats require sides that are multiples of 8 from 8 "
     "to 256; a note names each picture that was fitted.",
     anyNumber, true, AddConvertOptions, Convert},
    {"extract", "PATH OUTDIR", "Write files from archives to the disk.",
     "Writes one file of an archive, or all its files in their folders, below OUTDIR. For a studio model "
     "(.mdl), on the disk or in an archive, writes each texture as a numbered Targa file: model_1.tga and so "
     "on. Names that lead out of OUTDIR are refused. If a file and a folder of an archive have the same "
     "name, the second is written under a numbered name, and a note says so. If several files have the same "
     "name, only the first is written.",
     anyNumber, true, AddBatchOptions, Extract},
};

} // namespace

std::span<const ToolCommand> Commands() {
    return commands;
}

} // namespace keltavlo
