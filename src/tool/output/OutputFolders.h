#pragma once

#include <map>
#include <mutex>
#include <string>

namespace keltavlo {

// The folders of a run's outputs: makes them, and finds where they really lie. Safe to call from several
// threads.
class OutputFolders {
public:
    // Refuses from now on what leads out of the folder, through links too.
    void KeepInside(const std::string& folder);

    // The path to write for a full path: its folder is made and links are followed, one in the place of the
    // file included. CFileException if that fails, or if the path would lead out of the output folder.
    std::string Resolve(const std::string& path);

private:
    std::string ResolveFolder(const std::string& folder);
    std::string MakeFolder(const std::string& folder);
    std::string MakeBelow(const std::string& folder);
    void CheckInside(const std::string& resolved, const std::string& path) const;

    std::mutex mutex;                            // of all below
    std::string root;                            // full, empty for none
    std::string resolvedRoot;                    // empty until it was made
    std::map<std::string, std::string> resolved; // folders
};

} // namespace keltavlo
