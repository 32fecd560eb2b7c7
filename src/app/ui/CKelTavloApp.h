#pragma once

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

// The application: starts the program, opens files, and answers for the main window to documents.
class CKelTavloApp : public Dynamic<"CKelTavloApp", CKelTavloApp, CWinApp>,
                     public WindowedUserInterface,
                     public Shell {
public:
    // `settings` is where the program keeps what it remembers.
    explicit CKelTavloApp(ProfileStore settings);
    ~CKelTavloApp() override;

    // Shows the main window, then opens the files, or asks for a new document when there are none. False when
    // none of the files could be opened (the user has been told): the program is to end.
    bool InitInstance(const std::vector<std::string>& paths);
    // Waits on the session bus without a window, which comes with the first request. False when there is no
    // bus or another program serves it.
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
    void OnDesktopRequest(const std::vector<std::string>& paths);
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
    CClipboard clipboard;
    FileDialogMemory dialogMemory;
    std::unique_ptr<MainFrame> mainFrame;
    DesktopService desktop{[this](const std::vector<std::string>& paths) { OnDesktopRequest(paths); }};
    std::unique_ptr<HelpWindow> help; // made when it is first asked for
    std::unique_ptr<ContextHelp> contextHelp;
    std::uint32_t currentColor = 0; // 0xAARRGGBB; of the brushes of all documents
};

} // namespace keltavlo
