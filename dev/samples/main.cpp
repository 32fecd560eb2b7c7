#include "SampleTextures.h"
#include "UrnModel.h"
#include "UrnSkin.h"
#include "app/HeadlessApplication.h"
#include "formats/TextureBytes.h"
#include "resources/BuiltInFiles.h"
#include "support/builders/PackBuilder.h"

#include <cstdio>

using namespace keltavlo;

namespace {

Bytes Encode(const Texture& texture, std::string_view documentClass) {
    return EncodeTexture(*FindCodec(documentClass), texture, &GetQuakeIIPalette());
}

Bytes BuildPack() {
    PackBuilder pack;
    PackBuilder inner; // an archive within the archive, with the still textures again
    for (const Texture& texture : DrawSampleTextures(GetQuakeIIPalette())) {
        const Bytes bytes = Encode(texture, "WALDocument");
        const std::string name = texture.quake2.name.substr(std::string_view(nameFolder).size()) + ".wal";
        pack.Add("textures/sample/" + name, bytes);
        if (texture.quake2.nextFrameName.empty()) inner.Add(name, bytes);
    }
    pack.Add("packs/inner.pak", inner.Build());
    pack.Add(UrnSkin::path, Encode(UrnSkin::Draw(GetQuakeIIPalette()), "PCXDocument"));
    pack.Add("models/sample/urn.md2", BuildUrnModel());
    return pack.Build();
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("make_samples PACK: writes an archive of sample textures\n", stderr);
        return 2;
    }
    try {
        const HeadlessApplication application(
            [](const std::string& text) { std::fputs(text.c_str(), stderr); });
        WriteFile(arguments[1], BuildPack());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_samples: %s\n", failure.what());
        return 1;
    }
    return 0;
}
