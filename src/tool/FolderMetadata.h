#pragma once

#include "tool/TextureMetadata.h"

#include <mutex>

namespace keltavlo {

class CFile;
class OutputPlace;
class Tool;
struct PaletteSet;

// The metadata of the folders that a run reads.
class StoredMetadata {
public:
    explicit StoredMetadata(Tool& reportingTool) : tool(reportingTool) {}

    // Returns the fields that the metadata in a file's folder contain for it, or empty ones. Reports metadata
    // that cannot be read, once per folder.
    TextureFields Find(const std::string& path);

private:
    TextureMetadata Read(const std::string& path);

    Tool& tool;
    std::map<std::string, TextureMetadata> byFolder;
};

// The metadata of the folders that a run writes.
class GatheredMetadata {
public:
    // Records the fields of a picture for the output with that path. Ignores damaged pictures. Runs in any
    // thread. Leaves the file at its start.
    void Add(CFile& source, const std::string& sourceName, const std::string& target,
             const PaletteSet& palettes);
    // Writes a file into each folder.
    void Write(OutputPlace& outputs);

private:
    std::mutex lock;
    std::map<std::string, TextureMetadata> byFolder;
};

} // namespace keltavlo
