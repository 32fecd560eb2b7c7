#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace keltavlo {

// Paths as the program's people write them: "\" and "/" both separate, runs of separators count as one, and
// an archive is a folder. Nothing here asks the disk.

bool IsSeparator(char c);

struct PathParts {
    std::string drive;                    // up to and with the last ":", or empty
    bool rooted = false;                  // begins with a separator
    std::vector<std::string> directories; // without the final component
    std::string fileName;                 // the final component; empty when the path has none
};
PathParts SplitPath(std::string_view path);

std::string_view FileNameOf(std::string_view path);  // behind the last separator
std::string_view BaseNameOf(std::string_view path);  // the file name before its last "."
std::string_view ExtensionOf(std::string_view path); // from the last "." of the file name, with it; or empty
// The path with `extension` in the place of one of the `known` extensions, whatever their case, or behind a
// name without a dot. Other names stay as they are.
std::string WithExtension(std::string_view path, std::string_view extension,
                          std::span<const std::string> known);
// Without the final component and the separators before it; a root stays ("/a" gives "/", "a" gives "").
std::string ParentOf(std::string_view path);
// Puts "\" between the two unless the folder path ends in a separator.
std::string JoinPath(std::string_view folder, std::string_view name);

// The directories and the file name that a path has below a root: same drive (case counts), the root's
// components a prefix of the path's directories (case does not count). `below` is false for the root itself
// and for strangers.
struct PathBelow {
    bool below = false;
    std::vector<std::string> directories;
    std::string fileName;
};
PathBelow SplitBelow(const std::string& root, const std::string& path);

std::string ToNativePath(std::string_view path);  // what the operating system is asked: "/" only
std::string ToDisplayPath(std::string_view path); // what people see: native separators, valid UTF-8
// Absolute, with single separators, "." and ".." resolved by their names alone.
std::string FullPath(std::string_view path);

} // namespace keltavlo
