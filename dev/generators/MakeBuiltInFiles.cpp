// MakeBuiltInFiles PALETTE_FOLDER OUTPUT.cpp: writes the C++ source of the built-in files.

#include <cstdint>
#include <fstream>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

void Put(Bytes& bytes, const std::string& text) {
    bytes.insert(bytes.end(), text.begin(), text.end());
}

void PutU32(Bytes& bytes, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

// Reads a palette table, which has a line "index red green blue" for each of the 256 entries. Returns the
// lump of 768 channel bytes.
Bytes PaletteLump(const std::string& path) {
    std::ifstream in(path);
    Bytes bytes;
    for (unsigned index = 0; index < 256; ++index) {
        unsigned number = 0, red = 0, green = 0, blue = 0;
        if (!(in >> number >> red >> green >> blue) || number != index || (red | green | blue) > 255)
            throw std::runtime_error(path + ": bad line for index " + std::to_string(index));
        for (const unsigned channel : {red, green, blue}) bytes.push_back(static_cast<std::uint8_t>(channel));
    }
    return bytes;
}

Bytes ColorTable(unsigned count, const std::function<std::uint32_t(std::uint32_t)>& colorOf) {
    Bytes bytes;
    for (unsigned k = 0; k < count; ++k) PutU32(bytes, colorOf(k));
    return bytes;
}

// Builds a file in the tagged format: magic, type, chunk count, the kind, and the title padded with NULs.
Bytes TaggedFile(const std::string& type, std::uint32_t kind, const std::string& title,
                 std::uint32_t titleSize) {
    Bytes bytes;
    Put(bytes, "KEL\xE5\xD0TAV");
    Put(bytes, type);
    PutU32(bytes, 2);
    Put(bytes, std::string("id\0\0", 4));
    PutU32(bytes, kind);
    Put(bytes, "UITA");
    PutU32(bytes, titleSize);
    Put(bytes, title);
    bytes.resize(bytes.size() + titleSize - title.size());
    return bytes;
}

std::uint32_t Opaque(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return 0xFF000000 | red << 16 | green << 8 | blue;
}

struct File {
    unsigned id;
    std::string name;
    Bytes bytes;
};

std::vector<File> BuiltInFiles(const std::string& palettes) {
    constexpr std::uint32_t rgba = 0x41424752; // "RGBA"
    return {
        {139, "Quake.lmp", PaletteLump(palettes + "/quake.txt")},
        {140, "Quake II.lmp", PaletteLump(palettes + "/quake2.txt")},
        {141, "Hexen II.lmp", PaletteLump(palettes + "/hexen2.txt")},
        {162, "Texel Brush.KelBrush", TaggedFile("Brsh", 1, "Texel Brush", 16)},
        {163, "Color Picker.KelBrush", TaggedFile("Brsh", 2, "Color Picker", 16)},
        {168, "RGBA.KelColorSpace", TaggedFile("ClSp", rgba, "RGBA", 8)},
        // Six steps a channel; green varies fastest, then red, then blue.
        {184, "Internet Safe Colors.KelColors",
         ColorTable(216, [](std::uint32_t k) { return Opaque(k / 6 % 6 * 51, k % 6 * 51, k / 36 * 51); })},
        {185, "Gray Scale Colors.KelColors",
         ColorTable(256, [](std::uint32_t k) { return Opaque(k, k, k); })},
        {186, "Alpha Scale Colors.KelColors",
         ColorTable(256, [](std::uint32_t k) { return k * 0x01010101; })},
    };
}

void WriteArray(std::ostream& out, const std::string& name, const Bytes& bytes) {
    out << "constexpr std::uint8_t " << name << "[] = {";
    for (const std::uint8_t byte : bytes) out << unsigned{byte} << ',';
    out << "};\n";
}

void WriteSource(std::ostream& out, const std::vector<File>& files) {
    out << "#include \"app/BuiltInFileRows.h\"\n#include <cstdint>\nnamespace keltavlo {\nnamespace {\n";
    for (const File& file : files) {
        const std::string id = std::to_string(file.id);
        Bytes name(file.name.begin(), file.name.end());
        name.push_back(0);
        WriteArray(out, "name" + id, name);
        WriteArray(out, "data" + id, file.bytes);
    }
    out << "const EmbeddedFile rows[] = {\n";
    for (const File& file : files) {
        const std::string id = std::to_string(file.id);
        const std::string type = file.name.substr(file.name.rfind('.') + 1);
        out << "{" << id << ", \"DIR\", std::as_bytes(std::span(name" << id << "))},\n";
        out << "{" << id << ", \"" << type << "\", std::as_bytes(std::span(data" << id << "))},\n";
    }
    out << "};\n}\nstd::span<const EmbeddedFile> BuiltInFileRows() { return rows; }\n}\n";
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3) throw std::runtime_error("usage: MakeBuiltInFiles PALETTE_FOLDER OUTPUT.cpp");
    std::ofstream out(argv[2]);
    WriteSource(out, BuiltInFiles(argv[1]));
    out.close();
    if (!out) throw std::runtime_error(std::string(argv[2]) + ": cannot be written");
} catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
}
