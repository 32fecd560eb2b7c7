#include "tool/archives/ModelSkins.h"

#include "preview3d/MDLDocument.h"
#include "resources/streams/InputStream.h"
#include "tool/archives/IDPOSkins.h"

namespace keltavlo {

std::vector<ModelSkin> ReadModelSkins(InputStream& in, const ColorList& palette) {
    if (IsIDPO(in)) return ReadIDPOSkins(in, palette);
    in.Seek(0);
    MDLDocument model;
    model.ReadContents(in);
    std::vector<ModelSkin> skins;
    for (const Image& texture : model.GetTextures())
        skins.push_back({std::to_string(skins.size() + 1), texture});
    return skins;
}

} // namespace keltavlo
