#include "support/builders/PackBuilder.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace keltavlo {

constexpr std::size_t nameSize = 56;

Bytes ToBytes(std::string_view text) {
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

Bytes Words(std::initializer_list<std::uint32_t> numbers) {
    Bytes bytes;
    for (const std::uint32_t number : numbers) PutU32(bytes, bytes.size(), number);
    return bytes;
}

Bytes Join(std::initializer_list<Bytes> parts) {
    Bytes whole;
    for (const Bytes& part : parts) whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

Bytes CutTo(const Bytes& bytes, std::size_t length) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)};
}

void PutU32(Bytes& bytes, std::size_t offset, std::uint32_t value) {
    bytes.resize(std::max(bytes.size(), offset + sizeof value));
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

void PutField(Bytes& bytes, std::string_view text, std::size_t size) {
    const std::size_t end = bytes.size() + size;
    for (const char character : text) bytes.push_back(static_cast<std::byte>(character));
    bytes.resize(end);
}

void WriteFile(const std::string& path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) throw std::runtime_error(path + " cannot be written");
}

Bytes ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error(path + " cannot be read");
    return ToBytes(std::string(std::istreambuf_iterator<char>(in), {}));
}

void PackBuilder::Add(std::string_view name, const Bytes& bytes) {
    files.emplace_back(name.substr(0, nameSize), bytes);
}

Bytes PackBuilder::Build() const {
    Bytes pack = ToBytes("PACK");
    pack.resize(headerSize);
    Bytes directory;
    for (const auto& [name, bytes] : files) {
        PutField(directory, name, nameSize);
        PutU32(directory, directory.size(), static_cast<std::uint32_t>(pack.size()));
        PutU32(directory, directory.size(), static_cast<std::uint32_t>(bytes.size()));
        pack.insert(pack.end(), bytes.begin(), bytes.end());
    }
    PutU32(pack, 4, static_cast<std::uint32_t>(pack.size()));
    PutU32(pack, 8, static_cast<std::uint32_t>(directory.size()));
    return Join({pack, directory});
}

} // namespace keltavlo
