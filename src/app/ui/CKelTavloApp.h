#pragma once

#include "app/Rescue.h"
#include "app/Workshop.h"
#include "app/ui/DesktopService.h"
#include "archives/ui/FileDialogMemory.h"
#include "framework/core/CWinApp.h"
#include "framework/ui/CClipboard.h"
#include "framework/ui/WindowedUserInterface.h"
#include "resources/Shell.h"

namespace keltavlo {

class ContextHelp;
class HelpWindow;
class MainFrame;

// The application: starts the program, opens files and represents the main window for documents.
class CKelTavloApp : public Dynamic<"CKelTavloApp", CKelTavloApp, CWinApp>,
                     public WindowedUserInterface,
                     public Shell {
public:
    // `settings` stores what the program remembers between runs.
    explicit CKelTavloApp(ProfileStore settings);
    ~CKelTavloApp() override;

    // Shows the main window and offers the documents that an earlier program left unsaved. Then opens the
    // files or, if nothing is open, asks for a new document. Returns
    // false, after telling the user why, if no file could be opened; the program then ends.
    bool InitInstance(const std::vector<std::string>& paths);
    // Waits for requests on the session bus and opens the window with the first one. Returns false if there
    // is no bus or another program serves it.
    bool InitService();
    // Null before InitInstance.
    MainFrame* GetMainFrame() const { return mainFrame.get(); }

    std::optional<std::string> PromptFileName(const FileNameQuestion& question) override;
    // Tells the user that the program lacks this feature.
    void NotImplemented(const std::string& what);

    void UpdateMenus(BaseDocument* activeDocument) override;
    void UpdatePaletteBar(unsigned hint) override;
    void SetPositionText(double x, double y) override;
    void SetColorText(std::uint32_t color) override;
    std::uint32_t GetCurrentColor() const override { return currentColor; }
    void SetCurrentColor(std::uint32_t color) override { currentColor = color; }
    const std::uint32_t* GetGammaTable() const override;
    void EditProperties(BaseDocument& document) override;
    std::unique_ptr<ProgressWindow> OpenProgressWindow(const std::string& text,
                                                       const Progress& progress) override;

protected:
    const CommandMap& GetCommandMap() const override;

private:
    void RegisterWindowClasses();
    void CreateMainFrame();
    void ShowMainFrame();
    void OnDesktopRequest(const std::vector<std::string>& paths);
    bool BeginWork(const std::vector<std::string>& paths);
    bool TryOpen(const std::string& path);
    bool CarryOut(const std::vector<std::string>& paths);
    void OnCommandNew() { OnFileNew(); }
    void OnFileOpen();
    void OnRecentFile(CommandId id);
    void OnUpdateRecentFile(CCmdUI& state);
    void OnAppAbout();
    void OnAppExit();
    void OnHelpFinder();
    void OnHelp();
    void OnContextHelp();
    void ShowHelp(const char* page);

    Workshop workshop;
    Rescue rescue;
    CClipboard clipboard;
    FileDialogMemory dialogMemory;
    std::unique_ptr<MainFrame> mainFrame;
    DesktopService desktop{[this](const std::vector<std::string>& paths) { OnDesktopRequest(paths); }};
    std::unique_ptr<HelpWindow> help; // created on first use
    std::unique_ptr<ContextHelp> contextHelp;
    std::uint32_t currentColor = 0; // 0xAARRGGBB, for the brushes of all documents
};

} // namespace keltavlo
