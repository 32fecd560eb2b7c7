#include "framework/ui/CFileDialog.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/Path.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/MessageBoxes.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

bool IsFolder(const std::string& path) {
    CFileStatus status;
    return CFile::GetStatus(path, status) && status.IsDirectory();
}

bool IsFile(const std::string& path) {
    CFileStatus status;
    return CFile::GetStatus(path, status) && !status.IsDirectory();
}

// In the toolkit's form the patterns stand in the last parentheses. "*.*" means every name, also one without
// a dot.
QString NameFilter(const FileFilter& filter) {
    QString patterns = ToQString(filter.patterns).replace(';', ' ').trimmed();
    patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
    return ToQString(filter.label) + QStringLiteral(" (") + patterns + ')';
}

QLineEdit* NameEdit(const QFileDialog& dialog) {
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

} // namespace

CFileDialog::CFileDialog(QWidget* owner, const FileNameQuestion& question,
                         const std::vector<FileFilter>& filters)
    : QFileDialog(owner, ToQString(LoadString(question.titleId))), open(question.open),
      mustExist(question.mustExist) {
    setOptions(DontUseNativeDialog | HideNameFilterDetails | DontConfirmOverwrite);
    setAcceptMode(open ? AcceptOpen : AcceptSave);
    setFileMode(AnyFile); // what may be taken is decided here, not by what is on the disk
    SetFilters(filters);
    if (question.type) setDefaultSuffix(ToQString(question.type->GetDocString(CDocTemplate::filterExt)));
    Propose(question.proposal);
    connect(this, &QFileDialog::currentChanged,
            [this](const QString& path) { OnFileNameChange(FullPath(FromQString(path))); });
}

void CFileDialog::SetFilters(const std::vector<FileFilter>& filters) {
    QStringList names;
    for (const FileFilter& filter : filters) names << NameFilter(filter);
    setNameFilters(names);
}

// Below the innermost folder of the disk; what lies in an archive is named by its way through it.
void CFileDialog::Propose(const std::string& proposal) {
    QLineEdit* edit = NameEdit(*this);
    if (proposal.empty() || !edit) return;
    std::string name = ToNativePath(proposal);
    std::string folder = ParentOf(name);
    while (!folder.empty() && folder != ParentOf(folder) && !IsFolder(folder)) folder = ParentOf(folder);
    if (IsFolder(folder)) {
        setDirectory(ToQString(folder));
        name.erase(0, folder.size());
        name.erase(0, name.find_first_not_of('/'));
    }
    edit->setText(ToQString(name));
    edit->selectAll();
}

std::string CFileDialog::GetPathName() const {
    const QStringList files = selectedFiles();
    return files.isEmpty() ? std::string() : FullPath(FromQString(files.front()));
}

void CFileDialog::accept() {
    if (deciding) return; // a second press of the key, while the person is told about the first
    const QScopedValueRollback<bool> now(deciding, true);
    if (QLineEdit* edit = NameEdit(*this); edit && edit->text().contains('\\'))
        edit->setText(edit->text().replace('\\', '/'));
    const std::string path = GetPathName();
    if (IsFolder(path) || OnFileNameOK()) QFileDialog::accept();
}

bool CFileDialog::IsFileThere(const std::string& path) const {
    return IsFile(path);
}

bool CFileDialog::MayTake(const std::string& path) const {
    const bool there = IsFileThere(path);
    if (open && mustExist && !there && !LeadsThroughFile(path)) {
        ShowMessageBox(FormatString(AFX_IDS_FILE_MISSING, ToDisplayPath(path).c_str()));
        return false;
    }
    if (!open && !IsFolder(ParentOf(path)) && !LeadsThroughFile(path)) {
        ShowMessageBox(FormatString(AFX_IDS_PATH_MISSING, ToDisplayPath(path).c_str()));
        return false;
    }
    return open || !there || AskYesNo(FormatString(AFX_IDS_FILE_EXISTS, ToDisplayPath(path).c_str()));
}

bool CFileDialog::LeadsThroughFile(const std::string& path) {
    for (std::string folder = ParentOf(path); !folder.empty(); folder = ParentOf(folder)) {
        if (IsFile(folder)) return true;
        if (folder == ParentOf(folder)) break;
    }
    return false;
}

QGridLayout& CFileDialog::GetGrid() const {
    return *qobject_cast<QGridLayout*>(layout());
}
