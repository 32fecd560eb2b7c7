#include "archives/ui/ArchiveFileDialog.h"

#include "archives/FileSystem.h"
#include "archives/ui/ArchivePanel.h"
#include "archives/ui/DialogUnits.h"
#include "archives/ui/PreviewPanel.h"
#include "archives/ui/TypeName.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/ShellStrings.h"

#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <ctime>

namespace {

constexpr const char* profileSection = "FileDialog";
constexpr const char* profilePreview = "Preview"; // one byte, 1 while the preview is on

bool IsFolder(const EntryStatus& status) {
    return status.browsable || (status.attributes & CFileStatus::directoryAttribute) != 0;
}

QString SizeText(const EntryStatus& status) {
    constexpr std::uint64_t kilobyte = 1024;
    return ToQString(FormatString(IDS_KILOBYTES, static_cast<unsigned>(status.size / kilobyte)));
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
                                     const std::vector<FileFilter>& filters, Services programServices)
    : CFileDialog(owner, question, filters), services(std::move(programServices)),
      panel(new ArchivePanel(this)), preview(new PreviewPanel(this, services.readPreview)) {
    setIconProvider(&types);
    AddPanels();
    SetUpPreview();
    FillLowerList({});
    panel->GetList().onSelect = [this](const ArchiveListItem& item) { SelectItem(item); };
    panel->GetList().onOpen = [this](const ArchiveListItem& item) { OpenItem(item); };
    panel->onUpOneLevel = [this] { services.notImplemented("Up One Level"); };
}

// The lower list stands below the standard part, preview and help beside the two.
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
    ProfileStore* profile = CWinApp::Get().GetProfile();
    if (!profile) return;
    const auto stored = profile->ReadBinary(profileSection, profilePreview);
    preview->SetPreviewEnabled(stored && stored->size() == 1 && stored->front() == std::byte{1});
    preview->onSwitch = [profile](bool enabled) {
        profile->WriteBinary(profileSection, profilePreview, {std::byte{enabled}});
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
    FillLowerList(status.browsable ? path : std::string());
    preview->SetPath(status.exists && !IsFolder(status) ? path : std::string());
    return resolved;
}

void ArchiveFileDialog::FillLowerList(const std::string& path) {
    const CWaitCursor wait;
    // A message or a progress window may come, and the old lines would be drawn.
    panel->GetList().SetItems({}, {});
    archivePath = path;
    std::vector<ArchiveListItem> items;
    if (!path.empty()) {
        services.fileSystem.ListFolder(path, listing);
        for (const std::string& name : listing.names) items.push_back({ToQString(name), items.size()});
    }
    panel->GetList().SetItems(std::move(items), [this](ArchiveListItem& item) { Describe(item); });
    panel->SetActive(!path.empty());
    panel->SetName(ToQString(innerName));
}

void ArchiveFileDialog::Describe(ArchiveListItem& item) const {
    const std::string& name = listing.names[item.data];
    const ArchiveFreeze whilePainting;
    const EntryStatus status = StatusOf(JoinPath(archivePath, name));
    const bool directory = (status.attributes & CFileStatus::directoryAttribute) != 0;
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

// A name that was typed counts as selected now: an archive is shown first, so that a file can be chosen in
// it.
bool ArchiveFileDialog::OnFileNameOK() {
    const std::string path = GetPathName();
    if (path != selection && (!ShowSelection(path) || !archivePath.empty())) return false;
    const std::string inner = GetSelectedInnerPath();
    if (!archivePath.empty() && inner.empty()) return false;
    const std::string& target = inner.empty() ? path : inner;
    return CanBeResolved(target) && MayTake(target);
}

bool ArchiveFileDialog::IsFileThere(const std::string& path) const {
    const EntryStatus status = StatusOf(path);
    return status.exists && !(status.attributes & CFileStatus::directoryAttribute);
}

EntryStatus ArchiveFileDialog::StatusOf(const std::string& path) const {
    EntryStatus status;
    services.fileSystem.GetStatus(path, status);
    return status;
}

// False when an archive on the way cannot be read: the person has been told.
bool ArchiveFileDialog::CanBeResolved(const std::string& path) const {
    return !LeadsThroughFile(path) || services.fileSystem.FindArchive(path);
}
