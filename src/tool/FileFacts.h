#pragma once

#include <iosfwd>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>

namespace keltavlo {

// What the tool knows about a file: facts in order, each with a label for the user and a key for programs.
class FileFacts {
public:
    FileFacts();
    ~FileFacts();

    // Adds the path of the file, escaped so that the user can type it.
    void AddPath(const std::string& path);
    // Adds a text, which may have any bytes and is shown with escapes. Ignores an empty text.
    void Add(const std::string& label, const char* key, const std::string& text);
    void Add(const std::string& label, const char* key, std::size_t number);
    void AddColors(std::size_t count);
    // Adds the size of a picture in texels.
    void AddSize(int width, int height);
    // Adds the flags of a texture with the labels of the set bits. Ignores 0.
    void AddFlags(const char* key, std::uint32_t flags, const std::string& labels);
    // Appends a text to a list. Each is printed on its own line.
    void AppendText(const std::string& label, const char* key, const std::string& text);
    // Appends the size of a picture to a list.
    void AppendSize(const std::string& label, const char* key, int width, int height);

    // Prints one line for each fact.
    void Print(std::ostream& out) const;
    const nlohmann::ordered_json& ToJson() const { return *json; }

private:
    void AddLine(const std::string& label, const std::string& text);
    nlohmann::ordered_json& ListOf(const char* key);

    std::string lines;
    std::unique_ptr<nlohmann::ordered_json> json;
};

} // namespace keltavlo
