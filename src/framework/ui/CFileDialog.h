#pragma once

#include "framework/core/UserInterface.h"

#include <QFileDialog>

#include <string>
#include <vector>

struct FileFilter {
    std::string label;    // as it is shown
    std::string patterns; // such as "*.pak;*.wal"
};

// Asks for a file name, to open or to save. A typed path may lead into an archive, where the disk knows
// nothing.
class CFileDialog : public QFileDialog {
public:
    // The first filter is the selected one.
    CFileDialog(QWidget* owner, const FileNameQuestion& question, const std::vector<FileFilter>& filters);

    // The path chosen; absolute.
    std::string GetPathName() const;

protected:
    void accept() override;

private:
    void SetFilters(const std::vector<FileFilter>& filters);
    void Propose(const std::string& proposal);
    bool MayTake(const std::string& path) const;

    bool open;
    bool mustExist;
};
