#include "framework/ui/WindowFixture.h"

#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"

namespace {

constexpr unsigned shownType = 9001, hiddenType = 9002;

constexpr StringRow testStrings[] = {
    {shownType, "\nshown\nShown\n\n\n\n"}, {hiddenType, "\nhidden\n\n\n\n\n"},
    {AFX_IDS_APP_TITLE, "KelTavlo"},       {mainCommand, "Main prompt\nMain tip"},
    {documentCommand, "Document prompt"},
};
constexpr MenuRow ownItems[] = {{"&Main", mainCommand}, {"&Unknown\tCtrl+U", unknownCommand}};
constexpr MenuRow ownRows[] = {{"&Own", 0, ownItems}};
constexpr MenuRow documentItems[] = {
    {"&Document\tCtrl+D", documentCommand}, {}, {"Recent", ID_FILE_MRU_FIRST}, {}, {"E&xit", 0}};
constexpr MenuRow windowItems[] = {{"&New Window", ID_WINDOW_NEW}};
constexpr MenuRow documentRows[] = {{"&File", 0, documentItems}, {"&Window", 0, windowItems}};
constexpr AcceleratorRow accelerators[] = {{"Ctrl+D", documentCommand}, {"Ctrl+W", mainCommand}};

} // namespace

std::vector<std::string>& Log() {
    static std::vector<std::string> log;
    return log;
}

const CommandMap& TestDocument::GetCommandMap() const {
    static const CommandMap map{
        CDocument::GetCommandMap(),
        {Command<&TestDocument::OnCommand, &TestDocument::OnUpdateCommand>(documentCommand),
         Command<&TestDocument::OnCommand>(everywhereCommand)}};
    return map;
}

void TestDocument::OnUpdateCommand(CCmdUI& state) {
    state.Enable(!blocked);
    state.SetText("&Renamed\tCtrl+D");
}

void TestView::OnActivateView(bool activate, CView*, CView*) {
    Log().push_back((activate ? "activate " : "deactivate ") + GetDocument()->GetTitle());
}

const CommandMap& TestView::GetCommandMap() const {
    static const CommandMap map{CView::GetCommandMap(), {Command<&TestView::OnCommand>(viewCommand)}};
    return map;
}

const CommandMap& TestFrame::GetCommandMap() const {
    static const CommandMap map{
        ChildFrame::GetCommandMap(),
        {Command<&TestFrame::OnCommand>(frameCommand), Command<&TestFrame::OnCommand>(everywhereCommand)}};
    return map;
}

TestStrings::TestStrings() {
    AddStrings(testStrings);
}

TestMainFrame::TestMainFrame() {
    LoadFrame(ownMenu, accelerators);
    resize(640, 480);
    show();
}

std::span<const MenuRow> TestMainFrame::GetMenuRows(unsigned menuId) const {
    return menuId == ownMenu ? std::span<const MenuRow>(ownRows) : std::span<const MenuRow>(documentRows);
}

const CommandMap& TestMainFrame::GetCommandMap() const {
    static const CommandMap map{CMDIFrameWnd::GetCommandMap(),
                                {Command<&TestMainFrame::OnCommand>(mainCommand),
                                 Command<&TestMainFrame::OnCommand>(everywhereCommand)}};
    return map;
}

TestProgram::TestProgram(const std::string& settings) : Dynamic(std::make_unique<ProfileStore>(settings)) {
    using Template = CDocTemplate;
    GetFrameFactory()->SetMainFrame(&mainFrame);
    for (const CRuntimeClass* type :
         {&TestFrame::runtimeClass, &TestHiddenFrame::runtimeClass, &TestView::runtimeClass})
        GetFrameFactory()->GetClasses().Register(*type);
    AddDocTemplate(std::make_unique<Template>(
        Template::Row{shownType, documentMenu, &TestDocument::runtimeClass, "TestFrame", "TestView"}));
    AddDocTemplate(std::make_unique<Template>(
        Template::Row{hiddenType, ownMenu, &TestDocument::runtimeClass, "TestHiddenFrame", "TestView"}));
}

const CommandMap& TestProgram::GetCommandMap() const {
    static const CommandMap map{
        CWinApp::GetCommandMap(),
        {Command<&TestProgram::OnCommand>(appCommand), Command<&TestProgram::OnCommand>(everywhereCommand)}};
    return map;
}

WindowFixture::WindowFixture() {
    Log().clear();
}

TestDocument& WindowFixture::NewDocument(std::size_t type) {
    return dynamic_cast<TestDocument&>(*program.GetTemplates().at(type)->OpenDocumentFile({}));
}

CMDIChildWnd& WindowFixture::FrameOf(const CDocument& document) {
    return dynamic_cast<CMDIChildWnd&>(*document.GetFrame());
}
