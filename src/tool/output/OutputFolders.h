#pragma once

#include <map>
#include <mutex>
#include <string>

namespace keltavlo {

// Creates the folders of a run's outputs, and resolves their paths. Safe to call from several threads.
class OutputFolders {
public:
    // From now on, refuses paths that lead out of the folder, even through links.
    void KeepInside(const std::string& folder);

    // Returns the path to write for a full path. Creates its folder and follows links, even one in the place
    // of the file. Throws CFileException if that fails or the path leads out of the output folder.
    std::string Resolve(const std::string& path);

private:
    std::string ResolveFolder(const std::string& folder);
    std::string MakeFolder(const std::string& folder);
    std::string MakeBelow(const std::string& folder);
    void CheckInside(const std::string& resolved, const std::string& path) const;

    std::mutex mutex;                            // for all members below
    std::string root;                            // full path; empty if there is none
    std::string resolvedRoot;                    // empty until the folder exists
    std::map<std::string, std::string> resolved; // folders
};

} // namespace keltavlo
