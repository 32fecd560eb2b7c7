#pragma once

#include "tool/TreeWalk.h"
#include "tool/pictures/PictureConversion.h"

#include <functional>

namespace keltavlo {

class CFile;
class OutputPlace;
struct ToolArguments;

// A file of a run and the path of its output.
struct BatchFile {
    TreeFile source;
    std::string target;        // full path; empty for a file that is skipped because it is no picture
    TextureFields fields = {}; // of a picture, from its folder's metadata
};

// What happens to the files of a run: "convert" and "converted".
struct BatchVerb {
    const char* infinitive;
    const char* past;
};

// Makes the output of a file. Runs in any thread. Throws what should be reported.
using MakeOutput = std::function<ConvertedFile(CFile& source, const BatchFile& file)>;

// Spreads the files over threads and writes their outputs. Notes, failures and outputs come in the order of
// the files, whatever the number of threads. After a signal, throws InterruptedError and keeps the outputs
// that were finished.
void RunBatch(Tool& tool, const ToolArguments& arguments, BatchVerb verb, std::vector<BatchFile> files,
              OutputPlace& outputs, const MakeOutput& makeOutput);

} // namespace keltavlo
