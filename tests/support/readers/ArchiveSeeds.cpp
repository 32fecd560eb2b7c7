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
    constexpr std::size_t headerSize = 124, lumpHeaderSize = 16;
    const Bytes wall = CutTo(MakeMip("wall", 8, 8, true), 40 + 85 + 770);
    Bytes map = Words({30});
    map.resize(headerSize);
    PutU32(map, 20, headerSize); // the lump of the textures
    PutU32(map, 24, static_cast<std::uint32_t>(lumpHeaderSize + wall.size() + 40));
    for (const std::uint32_t number : {3U, 16U, 0xFFFFFFFFU, static_cast<std::uint32_t>(16 + wall.size())})
        PutU32(map, map.size(), number);
    map.insert(map.end(), wall.begin(), wall.end());
    const Bytes name = ToBytes("sky");
    map.insert(map.end(), name.begin(), name.end());
    map.resize(map.size() + 40 - name.size());
    return map;
}

Bytes MakeSkinnedModel() {
    Bytes model = ToBytes("IDPO");
    PutU32(model, 4, 6);
    model.resize(84);
    PutU32(model, 48, 2);
    PutU32(model, 52, 3);
    PutU32(model, 56, 2);
    const auto addNumbers = [&](int first, int count) {
        for (int i = first; i < first + count; ++i) model.push_back(static_cast<std::byte>(i));
    };
    PutU32(model, model.size(), 0);
    addNumbers(0, 6);
    for (const std::uint32_t number : {1U, 2U, 0U, 0U}) PutU32(model, model.size(), number);
    addNumbers(6, 12);
    return model;
}

} // namespace keltavlo
