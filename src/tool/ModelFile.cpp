#include "tool/ModelFile.h"

#include "resources/BuiltInFiles.h"
#include "resources/streams/ArchiveTransfer.h"
#include "tool/Tool.h"
#include "tool/TreeWalk.h"
#include "tool/archives/ModelSkins.h"

namespace keltavlo {

std::optional<std::vector<ModelSkin>> ReadModelFile(Tool& tool, const TreeFile& model) {
    std::vector<ModelSkin> skins;
    try {
        ReadThroughArchive(*OpenSource(model),
                           [&](InputStream& in) { skins = ReadModelSkins(in, GetQuakePalette()); });
    } catch (const CException& failure) {
        tool.Fail(DescribeFailure(Direction::opening, model.path, failure));
        return std::nullopt;
    }
    return skins;
}

} // namespace keltavlo
