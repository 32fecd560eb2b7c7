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

// A base class, because the dialog's standard part uses the provider as long as it lives.
struct ArchiveFileDialogTypes {
    FileTypeProvider types;
};

// The program's file dialog. Its lower part lists the archive that is selected in the standard list. If the
// user chooses a file there, that file is the result.
class ArchiveFileDialog final : private ArchiveFileDialogTypes, public CFileDialog {
public:
    // What the dialog needs from the program.
    struct Services {
        FileSystem& fileSystem;
        std::function<Preview(const std::string& path)> readPreview;
        std::function<void(const std::string& what)> notImplemented; // tells the user
        std::function<bool(const std::string& path)> mayTake;        // the final decision on a path
        FileDialogMemory& memory;
    };

    ArchiveFileDialog(QWidget* owner, const FileNameQuestion& question, std::vector<FileFilter> filters,
                      Services programServices);

    // Returns the file chosen in the lower list, or an empty path if there is none or no archive is selected.
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
    // Returns false, after telling the user, if an archive in the path cannot be read.
    bool ShowSelection(const std::string& path);
    void FillLowerList(const std::string& path);
    void Describe(ArchiveListItem& item) const;
    void SelectItem(const ArchiveListItem& item);
    void OpenItem(const ArchiveListItem& item);
    EntryStatus StatusOf(const std::string& path) const;
    bool CanBeResolved(const std::string& path) const;

    Services services;
    std::string selection;    // selected in the standard list, or typed
    std::string archivePath;  // shown in the lower list: the archive or a folder in it; may be empty
    std::string innerName;    // of the file chosen in the lower list; kept when the archive changes
    std::string selectedPath; // of the line last selected in the lower list
    FolderListing listing;
    ArchivePanel* panel;
    PreviewPanel* preview;
};

} // namespace keltavlo
