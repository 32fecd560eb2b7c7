#pragma once

#include "tool/TreeWalk.h"
#include "tool/pictures/PictureConversion.h"

#include <functional>

namespace keltavlo {

class CFile;
class OutputPlace;
struct ToolArguments;

// One file of a run and where it goes.
struct BatchFile {
    TreeFile source;
    std::string target;        // full path; empty for a file that is skipped because it is no picture
    TextureFields fields = {}; // of a picture, from the metadata of its folder
};

// What happens to the files of a run: "convert" and "converted".
struct BatchVerb {
    const char* infinitive;
    const char* past;
};

// Makes the output of a file. Runs in any thread; throws what is to be reported.
using MakeOutput = std::function<ConvertedFile(CFile& source, const BatchFile& file)>;

// Spreads the files over threads and writes their outputs. Notes, failures and outputs are the same for any
// number of threads, in the order of the files. Throws InterruptedError after a signal; the outputs finished
// by then stay.
void RunBatch(Tool& tool, const ToolArguments& arguments, BatchVerb verb, std::vector<BatchFile> files,
              OutputPlace& outputs, const MakeOutput& makeOutput);

} // namespace keltavlo
