#pragma once

#include <iosfwd>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>

namespace keltavlo {

// What the tool knows of a file: facts in their order, each with a label for people and a key for programs.
class FileFacts {
public:
    FileFacts();
    ~FileFacts();

    // The path of the file, shown so that it can be typed.
    void AddPath(const std::string& path);
    // Texts have any bytes; they are shown with escapes. An empty text is no fact.
    void Add(const std::string& label, const char* key, const std::string& text);
    void Add(const std::string& label, const char* key, std::size_t number);
    void AddColors(std::size_t count);
    // The size of a picture in texels.
    void AddSize(int width, int height);
    // Flags of a texture with the labels of the set bits; 0 is no fact.
    void AddFlags(const char* key, std::uint32_t flags, const std::string& labels);
    // A text in a list of texts, each on a line of its own for people.
    void AppendText(const std::string& label, const char* key, const std::string& text);
    // The size of a picture in a list of pictures.
    void AppendSize(const std::string& label, const char* key, int width, int height);

    // One line for each fact.
    void Print(std::ostream& out) const;
    const nlohmann::ordered_json& ToJson() const { return *json; }

private:
    void AddLine(const std::string& label, const std::string& text);

    std::string lines;
    std::unique_ptr<nlohmann::ordered_json> json;
};

} // namespace keltavlo
