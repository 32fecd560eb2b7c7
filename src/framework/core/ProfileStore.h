#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace keltavlo {

// The user's settings: sections of named binary values in a file. No function throws because of the file: an
// unreadable setting counts as absent, and one that cannot be written is lost. The file is read at the start.
// Each change reads it again, edits it and replaces it under a lock, so that programs that run at the same
// time keep each other's settings.
class ProfileStore {
public:
    using Bytes = std::vector<std::byte>;
    using Section = std::map<std::string, Bytes, std::less<>>;
    using Sections = std::map<std::string, Section, std::less<>>;

    // Without a file, the settings are lost when the program ends.
    ProfileStore() = default;
    // In the user's configuration folder.
    ProfileStore(const std::string& company, const std::string& application);
    explicit ProfileStore(std::string filePath);

    const std::string& GetPath() const { return path; }
    std::optional<Bytes> ReadBinary(const std::string& section, const std::string& name) const;
    // A value of any other size counts as absent.
    std::optional<Bytes> GetProfileBinary(const std::string& section, const std::string& name,
                                          std::size_t size) const;
    // Returns false if the value is lost.
    bool WriteBinary(const std::string& section, const std::string& name, const Bytes& data);
    // Returns an empty section if there is none with that name.
    Section GetSection(const std::string& section) const;
    // Passes the section's values to `edit` and stores the result. Returns false if it is lost.
    bool EditSection(const std::string& section, const std::function<void(Section&)>& edit);
    // Deletes every section with everything in it and stores `rest` instead. Returns false if that is lost.
    bool DeleteSubKeys(const Sections& rest);

private:
    Sections Load() const;
    // Passes all sections to `edit` and stores them if it returns true.
    bool Change(const std::function<bool(Sections&)>& edit);

    std::string path; // empty without a file
    Sections sections;
};

} // namespace keltavlo
