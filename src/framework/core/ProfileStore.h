#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QSettings;

// The user's settings: sections of named values. Nothing here fails loudly: a setting that cannot be read is
// absent, one that cannot be written is lost.
class ProfileStore {
public:
    // In the user's configuration folder.
    ProfileStore(const std::string& company, const std::string& application);
    // In a file of its own.
    explicit ProfileStore(const std::string& path);
    ~ProfileStore();

    std::optional<std::vector<std::byte>> ReadBinary(const std::string& section,
                                                     const std::string& name) const;
    void WriteBinary(const std::string& section, const std::string& name, const std::vector<std::byte>& data);
    std::vector<std::string> ReadStrings(const std::string& section, const std::string& name) const;
    void WriteStrings(const std::string& section, const std::string& name,
                      const std::vector<std::string>& values);
    // Deletes every section with everything in it.
    void Clear();

private:
    std::unique_ptr<QSettings> settings;
};
