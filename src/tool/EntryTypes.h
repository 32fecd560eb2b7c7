#pragma once

#include <map>
#include <string>
#include <string_view>

namespace keltavlo {

// What people call a type, such as "Quake II Texture Files (*.wal)", or "unknown".
struct EntryType {
    std::string name;
    bool isFolder = false;
    bool isArchive = false;
};

// The types that files would open as. Remembers them by extension, for long lists.
class EntryTypes {
public:
    // References stay valid as long as this object.
    const EntryType& Find(const std::string& path);
    const EntryType& Folder() const { return folder; }

private:
    std::map<std::string, EntryType, std::less<>> byExtension;
    const EntryType folder{"folder", true, false};
};

} // namespace keltavlo
