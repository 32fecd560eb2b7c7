#pragma once

#include "framework/core/UserInterface.h"

#include <QFileDialog>

#include <string>
#include <vector>

class QGridLayout;

namespace keltavlo {

struct FileFilter {
    std::string label;       // the text shown
    std::string patterns;    // such as "*.pak;*.wal"
    std::string extension{}; // if the filter selects one format for saving; otherwise empty
};

// Asks for a file name to open or to save. A typed path may lead into an archive, which the disk does not
// list. A derived dialog adds controls and follows the selection.
class CFileDialog : public QFileDialog {
public:
    // The first filter is selected at first.
    CFileDialog(QWidget* owner, const FileNameQuestion& question, std::vector<FileFilter> fileFilters);

    // Returns the chosen path as an absolute path.
    std::string GetPathName() const;

protected:
    void accept() override;

    // Called when another file or folder is selected in the list.
    virtual void OnFileNameChange(const std::string&) {}
    // Called when the user presses the button and the path is not a folder on the disk. Returns false to keep
    // the dialog open.
    virtual bool OnFileNameOK() { return MayTake(GetPathName()); }
    // Returns whether a file with that path exists, which saving would replace.
    virtual bool IsFileThere(const std::string& path) const;
    // Returns whether a folder with that path exists. Such a name gets no extension.
    virtual bool IsFolderThere(const std::string& path) const;

    // Returns whether the dialog accepts the path, after telling the user why if it does not.
    bool MayTake(const std::string& path) const;
    // Returns whether a folder of the path is a file on the disk, and so perhaps an archive.
    static bool LeadsThroughFile(const std::string& path);
    // Returns the grid of the standard controls.
    QGridLayout& GetGrid() const;

    // Shows the deepest existing folder of the path and returns the rest of the path in native form.
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
    std::string typeExtension; // of the document type; may be empty
    bool open;
    bool mustExist;
    bool deciding = false; // while accept() runs, which may ask the user
};

} // namespace keltavlo
