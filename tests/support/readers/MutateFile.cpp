#include "support/readers/Readers.h"

#include <algorithm>
#include <cstring>

namespace keltavlo {

namespace {

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) {
    return limit == 0 ? 0 : random() % limit;
}

std::uint64_t GetField(const Bytes& bytes, const HeaderField& field) {
    std::uint64_t value = 0;
    if (field.offset + field.width <= bytes.size())
        std::memcpy(&value, bytes.data() + field.offset, field.width);
    return value;
}

void SetField(Bytes& bytes, std::span<const HeaderField> fields, Random& random) {
    const HeaderField& field = fields[Below(random, fields.size())];
    if (field.offset + field.width > bytes.size()) return;
    const std::uint64_t boundaries[] = {0,     1,     2,          3,          4,          7,           8,
                                        255,   256,   257,        4096,       4097,       32767,       32768,
                                        65535, 65536, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, bytes.size()};
    const bool copyOther = random() % 3 == 0;
    std::uint64_t value = copyOther ? GetField(bytes, fields[Below(random, fields.size())])
                                    : boundaries[Below(random, std::size(boundaries))];
    value += random() % 3;
    value -= 1;
    std::memcpy(bytes.data() + field.offset, &value, field.width);
}

void ChangeBytes(Bytes& bytes, Random& random) {
    const std::size_t place = Below(random, bytes.size() + 1);
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(place);
    const std::size_t count = std::min(Below(random, 16) + 1, bytes.size() - place);
    switch (random() % 5) {
    case 0:
        bytes.insert(at, static_cast<std::byte>(random()));
        break;
    case 1:
        bytes.erase(at, at + static_cast<std::ptrdiff_t>(count));
        break;
    case 2:
        bytes.resize(place);
        break;
    case 3: {
        const Bytes piece(at, at + static_cast<std::ptrdiff_t>(count));
        bytes.insert(at, piece.begin(), piece.end());
        break;
    }
    default:
        if (at != bytes.end()) *at = static_cast<std::byte>(random());
    }
}

} // namespace

void MutateFile(Bytes& bytes, std::span<const HeaderField> fields, std::mt19937& random) {
    for (std::size_t changes = Below(random, 4) + 1; changes > 0; --changes)
        if (!fields.empty() && random() % 2 == 0)
            SetField(bytes, fields, random);
        else
            ChangeBytes(bytes, random);
}

} // namespace keltavlo
