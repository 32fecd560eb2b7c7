#include "framework/ui/CFileDialog.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/Path.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/ColumnSizer.h"
#include "framework/ui/MessageBoxes.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>

namespace keltavlo {

namespace {

bool IsFolder(const std::string& path) {
    CFileStatus status;
    return CFile::GetStatus(path, status) && status.IsDirectory();
}

bool IsFile(const std::string& path) {
    CFileStatus status;
    return CFile::GetStatus(path, status) && !status.IsDirectory();
}

// Qt expects the patterns in the last parentheses. "*.*" means every name, also one without a
// dot. When Qt saves, it adds the extension of the first pattern; "/" as the first pattern
// matches no name and has no extension.
QString NameFilter(const FileFilter& filter) {
    QString patterns = ToQString(filter.patterns).replace(';', ' ').trimmed();
    patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
    return ToQString(filter.label) + QStringLiteral(" (/ ") + patterns + ')';
}

QLineEdit* NameEdit(const QFileDialog& dialog) {
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QComboBox* FilterCombo(const QFileDialog& dialog) {
    return dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
}

// The name column takes what the others leave, but at least a quarter.
std::vector<int> WidthsOfFileColumns(const QTreeView& view, int room) {
    std::vector<int> widths(1);
    int rest = room - WidthOfContents(view, view.model()->columnCount() - 1);
    for (int column = 1; column + 1 < view.model()->columnCount(); ++column) {
        widths.push_back(WidthOfContents(view, column));
        rest -= widths.back();
    }
    widths.front() = std::max(rest, room / 4);
    return widths;
}

} // namespace

CFileDialog::CFileDialog(QWidget* owner, const FileNameQuestion& question,
                         std::vector<FileFilter> fileFilters)
    : QFileDialog(owner, ToQString(LoadString(question.titleId))), filters(std::move(fileFilters)),
      open(question.open), mustExist(question.mustExist) {
    setOptions(DontUseNativeDialog | HideNameFilterDetails | DontConfirmOverwrite);
    setAcceptMode(open ? AcceptOpen : AcceptSave);
    setFileMode(AnyFile); // the dialog decides what is acceptable, not the disk
    if (!open) setLabelText(LookIn, ToQString(LoadString(AFX_IDS_SAVE_IN)));
    if (question.type) typeExtension = question.type->GetDocString(CDocTemplate::filterExt);
    ShowFilters();
    ShowColumns();
    Propose(question.proposal);
    connect(this, &QFileDialog::currentChanged,
            [this](const QString& path) { OnFileNameChange(FullPath(FromQString(path))); });
}

void CFileDialog::ShowFilters() {
    QStringList names;
    for (const FileFilter& filter : filters) names << NameFilter(filter);
    setNameFilters(names);
    if (const QComboBox* combo = FilterCombo(*this); combo && !open)
        connect(combo, &QComboBox::activated, [this](int index) { FollowFilter(index); });
}

void CFileDialog::ShowColumns() {
    auto* view = findChild<QTreeView*>(QStringLiteral("treeView"));
    if (view) new ColumnSizer(*view, [view](int room) { return WidthsOfFileColumns(*view, room); });
}

// For a file in an archive, the name is the path from the last folder on the disk.
void CFileDialog::Propose(const std::string& proposal) {
    QLineEdit* edit = NameEdit(*this);
    if (proposal.empty() || !edit) return;
    edit->setText(ToQString(GoTowards(proposal)));
    edit->selectAll();
}

std::string CFileDialog::GoTowards(const std::string& path) {
    std::string name = ToNativePath(path);
    std::string folder = name;
    while (!folder.empty() && folder != ParentOf(folder) && !IsFolder(folder)) folder = ParentOf(folder);
    if (IsFolder(folder)) {
        setDirectory(ToQString(folder));
        name.erase(0, folder.size());
        name.erase(0, name.find_first_not_of('/'));
    }
    return name;
}

// A filter for a single format determines the extension of the name.
void CFileDialog::FollowFilter(int index) {
    const std::string& extension = filters[static_cast<std::size_t>(index)].extension;
    if (extension.empty()) return;
    std::vector<std::string> known;
    for (const FileFilter& filter : filters)
        if (!filter.extension.empty()) known.push_back(filter.extension);
    GiveExtension(extension, known);
}

// Adds the extension to a name without one.
void CFileDialog::CompleteName() {
    const QComboBox* combo = FilterCombo(*this);
    if (!combo || combo->currentIndex() < 0 || IsFolderThere(GetPathName())) return;
    const std::string& chosen = filters[static_cast<std::size_t>(combo->currentIndex())].extension;
    GiveExtension(chosen.empty() ? typeExtension : chosen, {});
}

// Clears the selection in the list, because Qt would prefer the selected line to the name.
void CFileDialog::GiveExtension(const std::string& extension, const std::vector<std::string>& known) {
    QLineEdit* edit = NameEdit(*this);
    if (!edit) return;
    const QString name = ToQString(WithExtension(FromQString(edit->text()), extension, known));
    if (name == edit->text()) return;
    if (auto* list = findChild<QListView*>(QStringLiteral("listView"))) list->clearSelection();
    edit->setText(name);
}

std::string CFileDialog::GetPathName() const {
    const QStringList files = selectedFiles();
    return files.isEmpty() ? std::string() : FullPath(FromQString(files.front()));
}

// Hides the list of completions, which would stay above the dialog if the dialog stays open.
void CFileDialog::TidyName() {
    QLineEdit* edit = NameEdit(*this);
    if (!edit) return;
    if (const QCompleter* completer = edit->completer()) completer->popup()->hide();
    if (edit->text().contains('\\')) edit->setText(edit->text().replace('\\', '/'));
}

void CFileDialog::accept() {
    if (deciding) return; // the key was pressed again while a message about the first press is open
    const QScopedValueRollback<bool> now(deciding, true);
    TidyName();
    if (!open) CompleteName();
    const std::string path = GetPathName();
    if (IsFolder(path) || OnFileNameOK()) QFileDialog::accept();
}

bool CFileDialog::IsFileThere(const std::string& path) const {
    return IsFile(path);
}

bool CFileDialog::IsFolderThere(const std::string& path) const {
    return IsFolder(path);
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

} // namespace keltavlo
