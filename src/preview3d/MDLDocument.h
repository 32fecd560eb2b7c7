#pragma once

#include "image/picture/Image.h"
#include "preview3d/ModelDocument.h"

#include <cstddef>
#include <vector>

namespace keltavlo {

// A Quake model (".mdl"), read for the textures of studio models: a table of pictures, each with palette
// indices and then its own palette. Nothing identifies such a file, so any file is read as one.
class MDLDocument final : public Dynamic<"MDLDocument", MDLDocument, ModelDocument> {
public:
    // Throws badIndex if anything is negative or outside the file, and if textures are larger than the file
    // or than a picture may be.
    void ReadContents(InputStream& in) override;

    // The whole file; empty before the first read.
    const std::vector<std::byte>& GetFileData() const { return fileData; }
    const std::vector<Image>& GetTextures() const { return textures; }

protected:
    void TakeContents(CDocument& loaded) override {
        auto& model = dynamic_cast<MDLDocument&>(loaded);
        fileData.swap(model.fileData);
        textures.swap(model.textures);
    }

private:
    std::vector<std::byte> fileData;
    std::vector<Image> textures;
};

} // namespace keltavlo
