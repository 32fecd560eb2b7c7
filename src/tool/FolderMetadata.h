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

    // What the metadata in the folder of a file say about it; nothing without them. Reports metadata that
    // cannot be read, once for a folder.
    TextureFields Find(const std::string& path);

private:
    TextureMetadata Read(const std::string& path);

    Tool& tool;
    std::map<std::string, TextureMetadata> byFolder;
};

// The metadata of the folders that a run writes.
class GatheredMetadata {
public:
    // Notes what a picture carries, for the output of that path. May run in any thread; the file's position
    // is its start afterwards. Damaged pictures carry nothing.
    void Add(CFile& source, const std::string& sourceName, const std::string& target,
             const PaletteSet& palettes);
    // Writes one file in each folder.
    void Write(OutputPlace& outputs);

private:
    std::mutex lock;
    std::map<std::string, TextureMetadata> byFolder;
};

} // namespace keltavlo
