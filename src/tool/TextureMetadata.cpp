#include "tool/TextureMetadata.h"

#include "framework/core/Exceptions.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/picture/Texture.h"
#include "tool/NameEscapes.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace keltavlo {

namespace {

using nlohmann::ordered_json;

constexpr struct {
    const char* key;
    std::optional<std::uint32_t> TextureFields::*field;
} numbers[] = {{"surface", &TextureFields::surface},
               {"contents", &TextureFields::contents},
               {"value", &TextureFields::value}};

constexpr struct {
    const char* key;
    std::optional<std::string> TextureFields::*field;
} texts[] = {{"name", &TextureFields::name}, {"next", &TextureFields::next}};

[[noreturn]] void Refuse(const std::string& name, const std::string& reason) {
    throw CException("The entry \"" + name + "\" of " + TextureMetadata::fileName + " " + reason);
}

std::uint32_t NumberOf(const std::string& name, const char* key, const ordered_json& value) {
    constexpr std::uint64_t limit = std::numeric_limits<std::uint32_t>::max();
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > limit)
        Refuse(name, std::string("requires a number from 0 to 4294967295 for ") + key + ".");
    return value.get<std::uint32_t>();
}

TextureFields ReadFields(const std::string& name, const ordered_json& object) {
    if (!object.is_object()) Refuse(name, "is not an object.");
    TextureFields fields;
    for (const auto& [key, field] : numbers)
        if (object.contains(key)) fields.*field = NumberOf(name, key, object[key]);
    for (const auto& [key, field] : texts) {
        if (!object.contains(key)) continue;
        if (!object[key].is_string()) Refuse(name, std::string("requires a text for ") + key + ".");
        fields.*field = UnescapeName(object[key].get<std::string>());
    }
    return fields;
}

ordered_json ObjectOf(const TextureFields& fields) {
    ordered_json object = ordered_json::object();
    for (const auto& [key, field] : texts)
        if (fields.*field) object[key] = EscapeName(*(fields.*field));
    for (const auto& [key, field] : numbers)
        if (fields.*field) object[key] = *(fields.*field);
    return object;
}

bool IsWAL(std::string_view name) {
    return EqualNoCase(ExtensionOf(name), ".wal");
}

std::string_view StemOf(std::string_view name) {
    return name.substr(0, name.size() - ExtensionOf(name).size());
}

} // namespace

TextureMetadata TextureMetadata::Parse(std::span<const std::byte> bytes) {
    const auto* text = reinterpret_cast<const char*>(bytes.data());
    const ordered_json all = ordered_json::parse(text, text + bytes.size(), nullptr, false);
    if (!all.is_object()) throw CException(std::string(fileName) + " is not a JSON object.");
    TextureMetadata metadata;
    for (const auto& [name, object] : all.items())
        metadata.textures[UnescapeName(name)] = ReadFields(name, object);
    return metadata;
}

std::vector<std::byte> TextureMetadata::Write() const {
    ordered_json all = ordered_json::object();
    for (const auto& [name, fields] : textures) all[EscapeName(name)] = ObjectOf(fields);
    const std::string text = all.dump(2) + "\n";
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

const TextureFields* TextureMetadata::Find(const std::string& name) const {
    if (const auto exact = textures.find(name); exact != textures.end()) return &exact->second;
    const std::string_view stem = StemOf(name);
    for (auto place = textures.lower_bound(std::string(stem));
         place != textures.end() && place->first.starts_with(stem); ++place)
        if (StemOf(place->first) == stem) return &place->second;
    return nullptr;
}

bool IsMetadataName(const std::string& path) {
    return FileNameOf(path) == TextureMetadata::fileName;
}

bool HasFields(const std::string& name) {
    return IsWAL(name) || EqualNoCase(ExtensionOf(name), ".mip");
}

TextureFields FieldsOf(const Texture& texture, const std::string& name) {
    const Quake2Properties& quake2 = texture.quake2;
    if (IsWAL(name))
        return {quake2.surfaceFlags, quake2.contents, quake2.value, quake2.nextFrameName, quake2.name};
    TextureFields fields;
    fields.name = texture.quakeName;
    return fields;
}

TextureFields Merge(const TextureFields& set, const TextureFields& stored) {
    TextureFields merged = stored;
    for (const auto& [key, field] : numbers)
        if (set.*field) merged.*field = set.*field;
    for (const auto& [key, field] : texts)
        if (set.*field) merged.*field = set.*field;
    return merged;
}

} // namespace keltavlo
