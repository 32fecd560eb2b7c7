#pragma once

#include "image/picture/Image.h"
#include "preview3d/ModelDocument.h"

#include <cstddef>
#include <vector>

namespace keltavlo {

// A Quake model (".mdl"), read for the textures that studio models carry: a table of pictures, each of
// palette indices with a palette of its own behind them. Any file is read as that; nothing identifies it.
class MDLDocument final : public Dynamic<"MDLDocument", MDLDocument, ModelDocument> {
public:
    // badIndex for a file in which something lies outside it or is negative, and for textures that take more
    // than the file or are too large for a picture.
    void ReadContents(InputStream& in) override;

    // The whole file; empty before the first read.
    const std::vector<std::byte>& GetFileData() const { return fileData; }
    const std::vector<Image>& GetTextures() const { return textures; }

private:
    std::vector<std::byte> fileData;
    std::vector<Image> textures;
};

} // namespace keltavlo
