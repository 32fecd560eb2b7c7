#include "archives/ui/ArchiveFileDialog.h"

#include "archives/FileSystem.h"
#include "archives/ui/ArchivePanel.h"
#include "archives/ui/DialogUnits.h"
#include "archives/ui/PreviewPanel.h"
#include "framework/core/CWinApp.h"
#include "framework/core/Path.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/ShellStrings.h"

#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <ctime>

namespace keltavlo {

namespace {

constexpr const char* profileSection = "FileDialog";
constexpr const char* profilePreview = "Preview"; // one byte: 1 if the preview is on

bool IsFolder(const EntryStatus& status) {
    return status.browsable || status.IsDirectory();
}

// Returns whether this is an archive or something in one.
bool IsArchived(const EntryStatus& status) {
    return status.browsable || !status.onDisk;
}

QString SizeText(const EntryStatus& status) {
    constexpr std::uint64_t kilobyte = 1024;
    return ToQString(FormatString(IDS_KILOBYTES, static_cast<unsigned>(status.size / kilobyte)));
}

// A final separator distinguishes a folder from a file with the same name. It is not shown, because
// the icons differ.
QString ShownName(const std::string& name) {
    return ToQString(name.ends_with('/') ? name.substr(0, name.size() - 1) : name);
}

QString TimeText(const CTime& time) {
    if (!time) return {};
    const std::time_t seconds = std::chrono::system_clock::to_time_t(*time);
    char text[80] = {};
    std::strftime(text, sizeof text, LoadString(IDS_DATE_AND_TIME).c_str(), std::localtime(&seconds));
    return ToQString(text);
}

QWidget* MakeHelp(QWidget* parent) {
    auto* help = new QWidget(parent);
    auto* text =
        new QLabel(QStringLiteral("The lower file list and filename entry box show files contained within "
                                  "other files. To use them, first select a suitable file from the upper "
                                  "file list."),
                   help);
    text->setWordWrap(true);
    auto* layout = new QVBoxLayout(help);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral(" (*.pak; *.wad)"), help));
    layout->addWidget(text);
    layout->addStretch();
    help->setMaximumWidth(FromDialogUnits(*parent, {110, 0}).width());
    return help;
}

} // namespace

ArchiveFileDialog::ArchiveFileDialog(QWidget* owner, const FileNameQuestion& question,
                                     std::vector<FileFilter> fileFilters, Services programServices)
    : CFileDialog(owner, question, std::move(fileFilters)), services(std::move(programServices)),
      panel(new ArchivePanel(this)), preview(new PreviewPanel(this, services.readPreview)) {
    setIconProvider(&types);
    AddPanels();
    SetUpPreview();
    FillLowerList({});
    panel->GetList().onSelect = [this](const ArchiveListItem& item) { SelectItem(item); };
    panel->GetList().onOpen = [this](const ArchiveListItem& item) { OpenItem(item); };
    panel->onUpOneLevel = [this] { services.notImplemented("Up One Level"); };
    if (services.memory.lowerDetails) panel->SetStyle(ArchiveListView::Style::details);
    if (SplitPath(question.proposal).directories.empty()) GoToLastFolder(question.proposal.empty());
}

// Without `intoArchive`, stays on the disk, because selecting an archive would replace the proposed name.
void ArchiveFileDialog::GoToLastFolder(bool intoArchive) {
    const std::string folder = services.memory.folder;
    if (folder.empty()) return;
    const std::string inner = GoTowards(folder);
    if (inner.empty() || !intoArchive) return;
    const std::string archive = inner.substr(0, inner.find('/'));
    selectFile(ToQString(archive));
    if (ShowSelection(GetPathName()) && IsFolderThere(folder)) FillLowerList(folder);
}

// If the user chose a file, its folder is remembered, whatever the lists show.
void ArchiveFileDialog::done(int result) {
    const std::string inner = GetSelectedInnerPath();
    const std::string shown = archivePath.empty() ? FromQString(directory().absolutePath()) : archivePath;
    const bool elsewhere = result == Accepted && inner.empty();
    services.memory = {elsewhere ? ParentOf(GetPathName()) : shown,
                       panel->GetList().GetStyle() == ArchiveListView::Style::details};
    CFileDialog::done(result);
}

// Adds the lower list below the standard part, and preview and help beside both.
void ArchiveFileDialog::AddPanels() {
    QGridLayout& grid = GetGrid();
    const int below = grid.rowCount(), beside = grid.columnCount();
    grid.addWidget(panel, below, 0, 1, beside);
    grid.addWidget(preview, 0, beside, below, 1);
    grid.addWidget(MakeHelp(this), below, beside);
    grid.setRowStretch(below, 1);
    constexpr double shareOfScreen = 0.9;
    const QSize most = screen()->availableSize() * shareOfScreen;
    resize(FromDialogUnits(*this, {460, 340}).expandedTo(sizeHint()).boundedTo(most));
}

void ArchiveFileDialog::SetUpPreview() {
    ProfileStore& profile = CWinApp::Get().GetProfile();
    const auto stored = profile.ReadBinary(profileSection, profilePreview);
    preview->SetPreviewEnabled(stored && stored->size() == 1 && stored->front() == std::byte{1});
    preview->onSwitch = [&profile](bool enabled) {
        profile.WriteBinary(profileSection, profilePreview, {std::byte{enabled}});
    };
}

std::string ArchiveFileDialog::GetSelectedInnerPath() const {
    if (archivePath.empty() || innerName.empty()) return {};
    return JoinPath(archivePath, innerName);
}

bool ArchiveFileDialog::ShowSelection(const std::string& path) {
    selection = path;
    const bool resolved = CanBeResolved(path);
    const EntryStatus status = resolved ? StatusOf(path) : EntryStatus();
    FillLowerList(IsFolder(status) && IsArchived(status) ? path : std::string());
    preview->SetPath(status.exists && !IsFolder(status) ? path : std::string());
    return resolved;
}

void ArchiveFileDialog::FillLowerList(const std::string& path) {
    const CWaitCursor wait;
    // Clears the list first, because a message or a progress window may open and the old lines would
    // be drawn.
    panel->GetList().SetItems({}, {});
    archivePath = path;
    std::vector<ArchiveListItem> items;
    if (!path.empty()) {
        services.fileSystem.ListFolder(path, listing);
        for (const std::string& name : listing.names) items.push_back({ShownName(name), items.size()});
    }
    panel->GetList().SetItems(std::move(items), [this](ArchiveListItem& item) { Describe(item); });
    panel->SetActive(!path.empty());
    panel->SetName(ToQString(innerName));
    panel->SetTitle(TitleOf(path));
}

// Returns the path, relative to the folder in the upper list if it is below that.
QString ArchiveFileDialog::TitleOf(const std::string& path) const {
    if (path.empty()) return {};
    QString title = ToQString(ToDisplayPath(path));
    const QString folder = directory().absolutePath() + '/';
    if (title.startsWith(folder)) title.remove(0, folder.size());
    if (title.endsWith('/')) title.chop(1);
    return ToQString(FormatString(IDS_CONTENTS_OF, FromQString(title).c_str()));
}

void ArchiveFileDialog::Describe(ArchiveListItem& item) const {
    const std::string& name = listing.names[item.data];
    const ArchiveFreeze whilePainting;
    const EntryStatus status = StatusOf(JoinPath(archivePath, name));
    const bool directory = status.IsDirectory();
    if (!directory) item.size = SizeText(status);
    item.type = directory ? TypeNameOfFolder() : TypeNameOfFile(name);
    item.modified = TimeText(status.modified);
    item.folder = IsFolder(status);
}

void ArchiveFileDialog::SelectItem(const ArchiveListItem& item) {
    selectedPath = JoinPath(archivePath, listing.names[item.data]);
    preview->SetPath(item.folder ? std::string() : selectedPath);
    if (item.folder) return;
    innerName = listing.names[item.data];
    panel->SetName(item.name);
}

void ArchiveFileDialog::OpenItem(const ArchiveListItem& item) {
    if (item.folder) FillLowerList(selectedPath);
}

// If the user typed a path, it is selected first. If it is an archive, the dialog stays open, so that the
// user can choose a file in it.
bool ArchiveFileDialog::OnFileNameOK() {
    const std::string path = GetPathName();
    if (path != selection && (!ShowSelection(path) || !archivePath.empty())) return false;
    const std::string inner = GetSelectedInnerPath();
    if (!archivePath.empty() && inner.empty()) return false;
    const std::string& target = inner.empty() ? path : inner;
    return CanBeResolved(target) && MayTake(target) && services.mayTake(target);
}

bool ArchiveFileDialog::IsFolderThere(const std::string& path) const {
    return StatusOf(path).IsDirectory();
}

bool ArchiveFileDialog::IsFileThere(const std::string& path) const {
    const EntryStatus status = StatusOf(path);
    return status.exists && !status.IsDirectory();
}

EntryStatus ArchiveFileDialog::StatusOf(const std::string& path) const {
    EntryStatus status;
    services.fileSystem.GetStatus(path, status);
    return status;
}

// Returns false, after telling the user, if an archive in the path cannot be read.
bool ArchiveFileDialog::CanBeResolved(const std::string& path) const {
    return !LeadsThroughFile(path) || services.fileSystem.FindArchive(path);
}

} // namespace keltavlo
