#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace keltavlo {

// Paths as the user writes them: "\" and "/" both separate, runs of separators count as one, and an archive
// counts as a folder. Only FullPath looks at the disk, for the current directory.

bool IsSeparator(char c);

struct PathParts {
    std::string drive;                    // up to the last ":", inclusive; may be empty
    bool rooted = false;                  // starts with a separator
    std::vector<std::string> directories; // without the final component
    std::string fileName;                 // the final component; empty when the path has none
};
PathParts SplitPath(std::string_view path);

std::string_view FileNameOf(std::string_view path);  // after the last separator
std::string_view BaseNameOf(std::string_view path);  // the file name before its last "."
std::string_view ExtensionOf(std::string_view path); // starts with the last "." of the file name; or empty
// Replaces the extension if it is one of `known`, ignoring case, and appends `extension` to a name without a
// dot. Other names stay as they are.
std::string WithExtension(std::string_view path, std::string_view extension,
                          std::span<const std::string> known);
// Returns the path without its final component and the separators before that. A root stays ("/a" gives "/",
// "a" gives "").
std::string ParentOf(std::string_view path);
// Joins the two with "\" unless the folder's path ends in a separator.
std::string JoinPath(std::string_view folder, std::string_view name);

// The directories and the file name of a path below a root. The path is below the root if both have the same
// drive (case matters) and the root's components start the path's directories (case does not matter).
// Otherwise, and for the root itself, `below` is false.
struct PathBelow {
    bool below = false;
    std::vector<std::string> directories;
    std::string fileName;
};
PathBelow SplitBelow(const std::string& root, const std::string& path);

std::string ToNativePath(std::string_view path);  // for the operating system: "/" only
std::string ToDisplayPath(std::string_view path); // for the user: native separators, valid UTF-8
// Returns the absolute path with single separators, "." and ".." resolved by name alone.
std::string FullPath(std::string_view path);

} // namespace keltavlo
