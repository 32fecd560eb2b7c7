#include "framework/core/Path.h"

#include "framework/core/Text.h"

#include <algorithm>
#include <filesystem>

namespace keltavlo {

namespace {

std::vector<std::string> Components(std::string_view text) {
    std::vector<std::string> components;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of("/\\"), text.size());
        if (length > 0) components.emplace_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return components;
}

std::vector<std::string> AllComponents(const std::string& path) {
    PathParts parts = SplitPath(path);
    if (!parts.fileName.empty()) parts.directories.push_back(std::move(parts.fileName));
    return std::move(parts.directories);
}

// Whether a native path is full already. Long lists ask for full paths again and again.
bool IsFull(std::string_view path) {
    if (path.size() < 2 || path.front() != '/') return false;
    while (!path.empty()) {
        path.remove_prefix(1); // the separator
        const std::string_view component = path.substr(0, path.find('/'));
        if (component.empty() || component == "." || component == "..") return false;
        path.remove_prefix(component.size());
    }
    return true;
}

} // namespace

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

PathParts SplitPath(std::string_view path) {
    PathParts parts;
    if (const std::size_t colon = path.rfind(':'); colon != std::string_view::npos) {
        parts.drive = path.substr(0, colon + 1);
        path.remove_prefix(colon + 1);
    }
    parts.rooted = !path.empty() && IsSeparator(path.front());
    parts.directories = Components(path);
    if (!path.empty() && !IsSeparator(path.back())) {
        parts.fileName = std::move(parts.directories.back());
        parts.directories.pop_back();
    }
    return parts;
}

// A loop, because the standard search for one of several characters is slow, and lists have thousands of
// names.
std::string_view FileNameOf(std::string_view path) {
    std::size_t begin = path.size();
    while (begin > 0 && path[begin - 1] != ':' && !IsSeparator(path[begin - 1])) --begin;
    return path.substr(begin);
}

std::string_view ExtensionOf(std::string_view path) {
    const std::string_view name = FileNameOf(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view{} : name.substr(dot);
}

std::string_view BaseNameOf(std::string_view path) {
    const std::string_view name = FileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

std::string WithExtension(std::string_view path, std::string_view extension,
                          std::span<const std::string> known) {
    const std::string_view old = ExtensionOf(path);
    const auto isOld = [&](const std::string& other) { return EqualNoCase(other, old); };
    const bool fits = old.empty() ? !FileNameOf(path).empty() : std::ranges::any_of(known, isOld);
    if (!fits) return std::string(path);
    return std::string(path.substr(0, path.size() - old.size())).append(extension);
}

std::string ParentOf(std::string_view path) {
    while (path.size() > 1 && IsSeparator(path.back())) path.remove_suffix(1);
    std::size_t end = path.find_last_of("/\\:");
    if (end == std::string_view::npos || path.back() == ':') return {};
    if (path[end] == ':') return std::string(path.substr(0, end + 1));
    while (end > 0 && IsSeparator(path[end - 1])) --end;
    const bool rootLeft = end == 0 && path.size() > 1;
    return std::string(path.substr(0, rootLeft ? 1 : end));
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string joined(folder);
    if (joined.empty() || !IsSeparator(joined.back())) joined += '\\';
    return joined += name;
}

PathBelow SplitBelow(const std::string& root, const std::string& path) {
    PathParts parts = SplitPath(path);
    const std::vector<std::string> prefix = AllComponents(root);
    std::vector<std::string>& directories = parts.directories;
    if (SplitPath(root).drive != parts.drive || prefix.size() > directories.size()) return {};
    if (!std::equal(prefix.begin(), prefix.end(), directories.begin(), EqualNoCase)) return {};
    if (prefix.size() == directories.size() && parts.fileName.empty()) return {};
    directories.erase(directories.begin(), directories.begin() + static_cast<std::ptrdiff_t>(prefix.size()));
    return {true, std::move(directories), std::move(parts.fileName)};
}

std::string ToNativePath(std::string_view path) {
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

std::string ToDisplayPath(std::string_view path) {
    return ToUtf8(ToNativePath(path));
}

std::string FullPath(std::string_view path) {
    if (path.empty()) return {};
    std::string native = ToNativePath(path);
    if (IsFull(native)) return native;
    std::error_code unreachable; // without a current directory the path stays as it is
    const std::filesystem::path full = std::filesystem::absolute(native, unreachable);
    std::string text = full.lexically_normal().string();
    if (text.size() > 1 && text.back() == '/') text.pop_back();
    return text;
}

} // namespace keltavlo
