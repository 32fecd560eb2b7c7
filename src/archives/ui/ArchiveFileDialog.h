#pragma once

#include "archives/FolderDocument.h"
#include "archives/ui/FileDialogMemory.h"
#include "archives/ui/FileTypeProvider.h"
#include "framework/ui/CFileDialog.h"

#include <functional>

namespace keltavlo {

class ArchivePanel;
class FileSystem;
class PreviewPanel;
struct ArchiveListItem;
struct Preview;

// What the dialog's standard part uses for as long as it lives.
struct ArchiveFileDialogTypes {
    FileTypeProvider types;
};

// The file dialog of the program. Its lower part lists the archive that is selected in the standard list, and
// a file chosen there is what the dialog is about.
class ArchiveFileDialog final : private ArchiveFileDialogTypes, public CFileDialog {
public:
    // What the dialog asks the program for.
    struct Services {
        FileSystem& fileSystem;
        std::function<Preview(const std::string& path)> readPreview;
        std::function<void(const std::string& what)> notImplemented; // tells the user
        std::function<bool(const std::string& path)> mayTake;        // the last word on a path
        FileDialogMemory& memory;
    };

    ArchiveFileDialog(QWidget* owner, const FileNameQuestion& question, std::vector<FileFilter> filters,
                      Services programServices);

    // The file chosen in the lower list; empty when there is none or no archive is selected.
    std::string GetSelectedInnerPath() const;

protected:
    void OnFileNameChange(const std::string& path) override { ShowSelection(path); }
    bool OnFileNameOK() override;
    bool IsFileThere(const std::string& path) const override;
    bool IsFolderThere(const std::string& path) const override;
    void done(int result) override;

private:
    void AddPanels();
    void SetUpPreview();
    void GoToLastFolder(bool intoArchive);
    QString TitleOf(const std::string& path) const;
    // Returns false, after telling the user, when an archive on the way cannot be read.
    bool ShowSelection(const std::string& path);
    void FillLowerList(const std::string& path);
    void Describe(ArchiveListItem& item) const;
    void SelectItem(const ArchiveListItem& item);
    void OpenItem(const ArchiveListItem& item);
    EntryStatus StatusOf(const std::string& path) const;
    bool CanBeResolved(const std::string& path) const;

    Services services;
    std::string selection;    // what is selected in the standard list, or was typed
    std::string archivePath;  // the archive, or the folder in it, that the lower list shows; or empty
    std::string innerName;    // of the file chosen in the lower list; outlives a change of archive
    std::string selectedPath; // of the line last selected in the lower list
    FolderListing listing;
    ArchivePanel* panel;
    PreviewPanel* preview;
};

} // namespace keltavlo
