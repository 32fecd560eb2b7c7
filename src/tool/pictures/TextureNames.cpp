#include "tool/pictures/TextureNames.h"

#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/picture/Texture.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr std::size_t longestWalName = 31; // bytes
constexpr std::size_t longestMipName = 15; // bytes before the NUL that Quake expects

std::string Quake2NameOf(std::string_view path) {
    constexpr std::string_view folder = "textures/";
    std::string name = ToNativePath(path);
    if (EqualNoCase(std::string_view(name).substr(0, folder.size()), folder)) name.erase(0, folder.size());
    return name;
}

void Cut(std::string& name, std::size_t length, std::vector<std::string>& notes) {
    if (name.size() <= length) return;
    name.resize(length);
    notes.push_back("was named \"" + ToUtf8(name) + "\", because its format stores names of at most " +
                    std::to_string(length) + " bytes.");
}

} // namespace

bool IsCutoutName(std::string_view path) {
    return FileNameOf(path).starts_with('{');
}

void NameTexture(Texture& texture, std::string_view texturePath, const TextureFields& fields,
                 std::string_view format, std::vector<std::string>& notes) {
    Quake2Properties& quake2 = texture.quake2;
    if (quake2.name.empty()) quake2.name = Quake2NameOf(texturePath);
    if (texture.quakeName.empty()) texture.quakeName = FileNameOf(texturePath);
    if (fields.name) quake2.name = texture.quakeName = *fields.name;
    if (fields.next) quake2.nextFrameName = *fields.next;
    quake2.surfaceFlags = fields.surface.value_or(quake2.surfaceFlags);
    quake2.contents = fields.contents.value_or(quake2.contents);
    quake2.value = fields.value.value_or(quake2.value);
    if (format == "wal") Cut(quake2.name, longestWalName, notes);
    if (format == "mip") Cut(texture.quakeName, longestMipName, notes);
}

} // namespace keltavlo
