#pragma once

#include "tool/pictures/TextureFields.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace keltavlo {

class Texture;

// The file "textures.json" of a folder. It contains what the games store beside the pixels of its textures,
// because the other files contain only pixels.
class TextureMetadata {
public:
    static constexpr const char* fileName = "textures.json";

    // Throws CException, with a sentence, if the bytes are no such file.
    static TextureMetadata Parse(std::span<const std::byte> bytes);
    std::vector<std::byte> Write() const;

    void Set(const std::string& name, TextureFields fields) { textures[name] = std::move(fields); }
    // Returns the fields of a file name, otherwise of the first name that differs only in its extension; null
    // if there is none.
    const TextureFields* Find(const std::string& name) const;
    bool IsEmpty() const { return textures.empty(); }

private:
    std::map<std::string, TextureFields> textures; // by file name
};

// Whether a file has the name of a metadata file. Commands read it, and do not convert or pack it.
bool IsMetadataName(const std::string& path);

// Whether the format of a file name stores fields beside the pixels.
bool HasFields(const std::string& name);
// Returns what a texture of such a format contains: all fields of a WAL file, the name of a MIP file.
TextureFields FieldsOf(const Texture& texture, const std::string& name);

// Returns the fields of `set`; where it has none, those of `stored`.
TextureFields Merge(const TextureFields& set, const TextureFields& stored);

} // namespace keltavlo
