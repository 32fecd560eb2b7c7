#include "support/readers/ArchiveSeeds.h"

#include "support/builders/TextureBuilder.h"

#include <QByteArray>

namespace keltavlo {

Bytes MakeZip() {
    const QByteArray file = QByteArray::fromBase64(
        "UEsDBBQAAAAAAAAAIQDHp4s7BAAAAAQAAAAHAAAAYS9iLnR4dHRleHRQSwMEFAAAAAgAAAAhADNYSKQJAAAAZAAAAAEAAABj"
        "y80vSs2lMQYAUEsBAhQDFAAAAAAAAAAhAMenizsEAAAABAAAAAcAAAAAAAAAAAAAAIABAAAAAGEvYi50eHRQSwECFAMUAAAA"
        "CAAAACEAM1hIpAkAAABkAAAAAQAAAAAAAAAAAAAAgAEpAAAAY1BLBQYAAAAAAgACAGQAAABRAAAAAAA=");
    return ToBytes({file.data(), static_cast<std::size_t>(file.size())});
}

Bytes MakeMap() {
    constexpr std::uint32_t headerSize = 124, lumpHeaderSize = 16;
    const Bytes wall = CutTo(MakeMip("wall", 8, 8, true), 40 + 85 + 770);
    const auto skyOffset = static_cast<std::uint32_t>(lumpHeaderSize + wall.size());
    const Bytes place = Words({headerSize, skyOffset + 40}); // of the lump of the textures
    Bytes map = Join({Words({30}), Bytes(16), place, Bytes(headerSize - 28),
                      Words({3, lumpHeaderSize, 0xFFFFFFFF, skyOffset}), wall});
    PutField(map, "sky", 40);
    return map;
}

Bytes MakeSkinnedModel() {
    Bytes model = Join({ToBytes("IDPO"), Words({6}), Bytes(40), Words({2, 3, 2}), Bytes(24), Words({0})});
    const auto addNumbers = [&](int first, int count) {
        for (int i = first; i < first + count; ++i) model.push_back(static_cast<std::byte>(i));
    };
    addNumbers(0, 6);
    for (const std::uint32_t number : {1U, 2U, 0U, 0U}) PutU32(model, model.size(), number);
    addNumbers(6, 12);
    return model;
}

} // namespace keltavlo
