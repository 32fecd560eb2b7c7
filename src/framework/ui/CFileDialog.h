#pragma once

#include "framework/core/UserInterface.h"

#include <QFileDialog>

#include <string>
#include <vector>

class QGridLayout;

namespace keltavlo {

struct FileFilter {
    std::string label;       // as it is shown
    std::string patterns;    // such as "*.pak;*.wal"
    std::string extension{}; // of the one format that files are saved in with this filter; empty for none
};

// Asks for a file name, to open or to save. A typed path may lead into an archive, where the disk knows
// nothing. A derived dialog adds controls of its own and follows what the user selects.
class CFileDialog : public QFileDialog {
public:
    // The first filter is the selected one.
    CFileDialog(QWidget* owner, const FileNameQuestion& question, std::vector<FileFilter> fileFilters);

    // The path chosen; absolute.
    std::string GetPathName() const;

protected:
    void accept() override;

    // Another file or folder is selected in the list.
    virtual void OnFileNameChange(const std::string&) {}
    // The user pressed the button, and the path is no folder of the disk. False keeps the dialog open.
    virtual bool OnFileNameOK() { return MayTake(GetPathName()); }
    // Whether there is a file of that path, which the user would replace.
    virtual bool IsFileThere(const std::string& path) const;
    // Whether there is a folder of that path, which a name is not completed to a file's.
    virtual bool IsFolderThere(const std::string& path) const;

    // Whether the path will do for what the dialog was opened for; tells the user why not.
    bool MayTake(const std::string& path) const;
    // Whether a part of the path before its last is a file: an archive, as far as the disk can tell.
    static bool LeadsThroughFile(const std::string& path);
    // The controls of the standard part.
    QGridLayout& GetGrid() const;

    // Shows the innermost folder of the disk on the way to the path; returns the rest of the path, native.
    std::string GoTowards(const std::string& path);

private:
    void ShowFilters();
    void ShowColumns();
    void Propose(const std::string& proposal);
    void FollowFilter(int index);
    void TidyName();
    void CompleteName();
    void GiveExtension(const std::string& extension, const std::vector<std::string>& known);

    std::vector<FileFilter> filters;
    std::string typeExtension; // of the document's type; may be empty
    bool open;
    bool mustExist;
    bool deciding = false; // about a name; the user may have been asked
};

} // namespace keltavlo
