#pragma once

#include <map>
#include <string>
#include <string_view>

namespace keltavlo {

// The name of a type for the user, such as "Quake II Texture Files (*.wal)", or "unknown".
struct EntryType {
    std::string name;
    bool isFolder = false;
    bool isArchive = false;
};

// Finds the types that files would open as. Remembers them by extension, because lists can be long.
class EntryTypes {
public:
    // The returned reference is valid as long as this object.
    const EntryType& Find(const std::string& path);
    const EntryType& Folder() const { return folder; }

private:
    std::map<std::string, EntryType, std::less<>> byExtension;
    const EntryType folder{"folder", true, false};
};

} // namespace keltavlo
