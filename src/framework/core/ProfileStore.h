#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace keltavlo {

// The user's settings: sections of named binary values, in a file. Nothing here fails loudly: a setting that
// cannot be read is absent, one that cannot be written is lost. The file is read at the start and again
// before each change, so that programs that run at once do not undo each other's settings.
class ProfileStore {
public:
    using Bytes = std::vector<std::byte>;
    using Section = std::map<std::string, Bytes, std::less<>>;
    using Sections = std::map<std::string, Section, std::less<>>;

    // Without a file: nothing stays for the next run.
    ProfileStore() = default;
    // In the user's configuration folder.
    ProfileStore(const std::string& company, const std::string& application);
    explicit ProfileStore(std::string filePath);

    const std::string& GetPath() const { return path; }
    std::optional<Bytes> ReadBinary(const std::string& section, const std::string& name) const;
    // A value of another size, shorter or longer, counts as absent.
    std::optional<Bytes> GetProfileBinary(const std::string& section, const std::string& name,
                                          std::size_t size) const;
    // False when the value is lost.
    bool WriteBinary(const std::string& section, const std::string& name, const Bytes& data);
    // Replaces all values of the section.
    bool WriteSection(const std::string& section, const Section& values);
    // Deletes every section with everything in it.
    bool DeleteSubKeys();

private:
    Sections Load() const;
    bool Store(Sections changed);

    std::string path; // empty without a file
    Sections sections;
};

} // namespace keltavlo
