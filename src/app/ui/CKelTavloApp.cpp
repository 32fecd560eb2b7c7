#include "app/ui/CKelTavloApp.h"

#include "app/Settings.h"
#include "app/ui/CAboutDialog.h"
#include "app/ui/FileDialogServices.h"
#include "app/ui/HelpPages.h"
#include "app/ui/HelpWindow.h"
#include "app/ui/MainFrame.h"
#include "archives/ui/ArchiveFileDialog.h"
#include "archives/ui/HiddenChildFrame.h"
#include "archives/ui/HiddenView.h"
#include "archives/ui/ProgressDialog.h"
#include "formats/ui/EditPropertySheet.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/Path.h"
#include "framework/core/SaveJournal.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/ColorPrompt.h"
#include "framework/ui/ContextHelp.h"
#include "framework/ui/MessageBoxes.h"
#include "framework/ui/NormalCursor.h"
#include "image/TavloDocument.h"
#include "image/ui/TavloView.h"
#include "image/ui/TavloViewFrame.h"
#include "preview3d/ui/MD2View.h"
#include "res/CommandIds.h"
#include "res/ShellStrings.h"
#include "resources/DocTemplateRegistry.h"

#include <QGuiApplication>
#include <QIcon>

namespace keltavlo {

namespace {

ProfileStore OfThisVersion(ProfileStore settings) {
    CheckSettingsVersion(settings);
    return settings;
}

void SetWindowIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/icons/keltavlo-%1.png").arg(size));
    QGuiApplication::setWindowIcon(icon);
}

} // namespace

CKelTavloApp::CKelTavloApp(ProfileStore settings)
    : Dynamic(OfThisVersion(std::move(settings))), workshop(*this) {
    AddStrings(ShellStrings());
    RegisterWindowClasses();
}

// Closes the documents while the windows and services that they use exist.
CKelTavloApp::~CKelTavloApp() {
    CloseAllDocuments();
    GetFrameFactory()->SetMainFrame(nullptr);
    try {
        WriteCustomColors(GetProfile(), applicationSection, GetCustomColors());
    } catch (const std::bad_alloc&) { // the old ones stay stored
    }
}

// If a document type names a class that is not registered, its documents have no window.
void CKelTavloApp::RegisterWindowClasses() {
    WindowClasses& classes = GetFrameFactory()->GetClasses();
    for (const CRuntimeClass* windowClass :
         {&TavloViewFrame::runtimeClass, &TavloView::runtimeClass, &ChildFrame::runtimeClass,
          &HiddenChildFrame::runtimeClass, &HiddenView::runtimeClass, &ModelView::runtimeClass,
          &MD2View::runtimeClass})
        classes.Register(*windowClass);
}

bool CKelTavloApp::InitInstance(const std::vector<std::string>& paths) {
    CreateMainFrame();
    ShowMainFrame();
    desktop.Register(); // the program also runs without it
    return BeginWork(paths);
}

bool CKelTavloApp::BeginWork(const std::vector<std::string>& paths) {
    const bool hasRescued = rescue.OfferAbandoned();
    return (hasRescued && paths.empty()) || CarryOut(paths) || hasRescued;
}

bool CKelTavloApp::InitService() {
    CreateMainFrame();
    return desktop.RegisterAndWait();
}

void CKelTavloApp::CreateMainFrame() {
    RemoveAbandonedSaves();
    if (const auto colors = ReadCustomColors(GetProfile(), applicationSection)) SetCustomColors(*colors);
    mainFrame = std::make_unique<MainFrame>();
    GetFrameFactory()->SetMainFrame(mainFrame.get());
}

// Decodes the icon's pictures while the user already sees the window.
void CKelTavloApp::ShowMainFrame() {
    mainFrame->ShowAsLeft();
    SetWindowIcon();
}

void CKelTavloApp::OnDesktopRequest(const std::vector<std::string>& paths) {
    const bool isFirst = !mainFrame->isVisible();
    if (isFirst) ShowMainFrame();
    mainFrame->setWindowState(mainFrame->windowState() & ~Qt::WindowMinimized);
    mainFrame->raise();
    mainFrame->activateWindow();
    if (isFirst)
        BeginWork(paths);
    else if (!paths.empty())
        CarryOut(paths);
}

// Cancelling the choice of a new document is not a failure.
bool CKelTavloApp::CarryOut(const std::vector<std::string>& paths) {
    if (paths.empty()) OnFileNew();
    bool opened = paths.empty();
    for (const std::string& path : paths) opened = TryOpen(path) || opened;
    return opened;
}

// Catches std::bad_alloc here, because no event is being handled that would. Returns true, so that the
// program stays open to report it.
bool CKelTavloApp::TryOpen(const std::string& path) try {
    return OpenDocumentFile(path) != nullptr;
} catch (const std::bad_alloc&) {
    ReportMemoryShortage();
    return true;
}

std::optional<std::string> CKelTavloApp::PromptFileName(const FileNameQuestion& question) {
    const NormalCursor arrow;
    ArchiveFileDialog dialog(
        GetDialogOwner(), question, BuildFileFilters(question),
        {workshop.GetFileSystem(), ReadPicturePreview,
         [this](const std::string& what) { NotImplemented(what); },
         [&](const std::string& path) { return question.open || MaySave(question, path); }, dialogMemory});
    const bool accepted = dialog.exec() == QDialog::Accepted;
    // Reactivates the main window, because window managers lose the focus when a question and the dialog
    // close together.
    if (mainFrame) mainFrame->activateWindow();
    if (!accepted) return std::nullopt;
    const std::string inner = dialog.GetSelectedInnerPath();
    return inner.empty() ? dialog.GetPathName() : inner;
}

void CKelTavloApp::NotImplemented(const std::string& what) {
    ShowMessageBox(FormatString(IDS_NOT_IMPLEMENTED, what.c_str()), IDS_NOT_IMPLEMENTED_TITLE);
}

void CKelTavloApp::UpdateMenus(BaseDocument* activeDocument) {
    if (mainFrame) mainFrame->UpdateMenus(activeDocument);
}

void CKelTavloApp::UpdatePaletteBar(unsigned hint) {
    if (mainFrame) mainFrame->UpdatePaletteBar(nullptr, hint, nullptr);
}

void CKelTavloApp::SetPositionText(double x, double y) {
    if (mainFrame) mainFrame->SetPositionText(x, y);
}

void CKelTavloApp::SetColorText(std::uint32_t color) {
    if (mainFrame) mainFrame->SetColorText(color);
}

const std::uint32_t* CKelTavloApp::GetGammaTable() const {
    return mainFrame ? mainFrame->GetGamma().GetTable() : nullptr;
}

void CKelTavloApp::EditProperties(BaseDocument& document) {
    EditPropertySheet(mainFrame.get(), dynamic_cast<TavloDocument&>(document)).DoModal();
}

std::unique_ptr<ProgressWindow> CKelTavloApp::OpenProgressWindow(const std::string& text,
                                                                 const Progress& progress) {
    return std::make_unique<ProgressDialog>(GetDialogOwner(), ToQString(text), progress);
}

const CommandMap& CKelTavloApp::GetCommandMap() const {
    using Self = CKelTavloApp;
    static const CommandMap map{
        CWinApp::GetCommandMap(),
        {Command<&Self::OnCommandNew>(ID_FILE_NEW), Command<&Self::OnFileOpen>(ID_FILE_OPEN),
         Command<&Self::OnAppAbout>(ID_APP_ABOUT), Command<&Self::OnAppExit>(ID_APP_EXIT),
         Command<&Self::OnHelpFinder>(ID_HELP_FINDER), Command<&Self::OnHelpFinder>(ID_DEFAULT_HELP),
         Command<&Self::OnHelp>(ID_HELP), Command<&Self::OnContextHelp>(ID_CONTEXT_HELP),
         CommandRange<&Self::OnRecentFile, &Self::OnUpdateRecentFile>(ID_FILE_MRU_FIRST, ID_FILE_MRU_LAST)}};
    return map;
}

void CKelTavloApp::OnFileOpen() {
    const std::optional<std::string> path =
        PromptFileName({.proposal = {}, .titleId = AFX_IDS_OPENFILE, .open = true, .mustExist = true});
    if (path) OpenDocumentFile(*path);
}

void CKelTavloApp::OnRecentFile(CommandId id) {
    OpenRecentFile(id - ID_FILE_MRU_FIRST);
}

void CKelTavloApp::OnUpdateRecentFile(CCmdUI& state) {
    state.Enable(state.id - ID_FILE_MRU_FIRST < GetRecentFiles().GetPaths().size());
}

void CKelTavloApp::OnAppAbout() {
    CAboutDialog(mainFrame.get(), GetProfile().GetPath()).DoModal();
}

void CKelTavloApp::OnAppExit() {
    mainFrame->close();
}

void CKelTavloApp::OnHelpFinder() {
    ShowHelp("index.html");
}

// Shows the page on what the user can do in the active window.
void CKelTavloApp::OnHelp() {
    const CMDIChildWnd* active = mainFrame->MDIGetActive();
    const CDocument* document = active ? active->GetActiveDocument() : nullptr;
    if (dynamic_cast<const TavloDocument*>(document)) return ShowHelp("painting.html");
    ShowHelp(document ? "models.html" : "index.html");
}

// For an item without a page of its own, shows the page of the active window.
void CKelTavloApp::OnContextHelp() {
    if (!contextHelp)
        contextHelp = std::make_unique<ContextHelp>(*mainFrame, [this](CommandId id) {
            const char* page = HelpPageFor(id);
            page ? ShowHelp(page) : OnHelp();
        });
    contextHelp->Begin();
}

void CKelTavloApp::ShowHelp(const char* page) {
    if (!help) help = std::make_unique<HelpWindow>();
    help->ShowPage(QString::fromLatin1(page));
}

} // namespace keltavlo
