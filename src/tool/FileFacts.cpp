#include "tool/FileFacts.h"

#include "framework/core/Text.h"
#include "tool/NameEscapes.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace keltavlo {

namespace {

std::string SizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace

FileFacts::FileFacts() : json(std::make_unique<nlohmann::ordered_json>(nlohmann::ordered_json::object())) {}

FileFacts::~FileFacts() = default;

void FileFacts::AddPath(const std::string& path) {
    AddLine("file", EscapePath(path));
    (*json)["file"] = EscapePath(path);
}

void FileFacts::Add(const std::string& label, const char* key, const std::string& text) {
    if (text.empty()) return;
    AddLine(label, EscapeName(text));
    (*json)[key] = EscapeName(text);
}

void FileFacts::Add(const std::string& label, const char* key, std::size_t number) {
    AddLine(label, std::to_string(number));
    (*json)[key] = number;
}

void FileFacts::AddColors(std::size_t count) {
    AddLine("palette", std::to_string(count) + " colors");
    (*json)["colors"] = count;
}

void FileFacts::AddSize(int width, int height) {
    AddLine("size", SizeText(width, height));
    (*json)["width"] = width;
    (*json)["height"] = height;
}

void FileFacts::AddFlags(const char* key, std::uint32_t flags, const std::string& labels) {
    if (flags == 0) return;
    AddLine(key, Format("0x%08X", flags) + " (" + labels + ")");
    (*json)[key] = flags;
}

void FileFacts::AppendText(const std::string& label, const char* key, const std::string& text) {
    AddLine(label, EscapeName(text));
    ListOf(key).push_back(EscapeName(text));
}

void FileFacts::AppendSize(const std::string& label, const char* key, int width, int height) {
    AddLine(label, SizeText(width, height));
    ListOf(key).push_back({{"width", width}, {"height", height}});
}

// A value that becomes a list with its first element crashes in its destructor if memory runs out meanwhile.
nlohmann::ordered_json& FileFacts::ListOf(const char* key) {
    nlohmann::ordered_json& list = (*json)[key];
    if (list.is_null()) list = nlohmann::ordered_json::array();
    return list;
}

void FileFacts::Print(std::ostream& out) const {
    out << lines;
}

void FileFacts::AddLine(const std::string& label, const std::string& text) {
    lines += label + ": " + text + "\n";
}

} // namespace keltavlo
