#include "support/ui/WindowFixture.h"

#include "framework/core/StringTable.h"

namespace keltavlo {

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
constexpr unsigned paneSamples[] = {shownType, shownType};
constexpr AcceleratorRow accelerators[] = {{"Ctrl+D", documentCommand}, {"Ctrl+W", mainCommand}};

} // namespace

std::vector<std::string>& Log() {
    static std::vector<std::string> log;
    return log;
}

void TestView::OnActivateView(bool activate, CView*, CView*) {
    Log().push_back((activate ? "activate " : "deactivate ") + GetDocument()->GetTitle());
}

TestStrings::TestStrings() {
    AddStrings(testStrings);
}

TestMainFrame::TestMainFrame() : Noting(paneSamples) {
    LoadFrame(ownMenu, accelerators);
    resize(640, 480);
    show();
}

std::span<const MenuRow> TestMainFrame::GetMenuRows(unsigned menuId) const {
    return menuId == ownMenu ? std::span<const MenuRow>(ownRows) : std::span<const MenuRow>(documentRows);
}

TestProgram::TestProgram(const std::string& settings) : Noting(ProfileStore(settings)) {
    GetFrameFactory()->SetMainFrame(&mainFrame);
    for (const CRuntimeClass* type :
         {&TestFrame::runtimeClass, &TestHiddenFrame::runtimeClass, &TestView::runtimeClass})
        GetFrameFactory()->GetClasses().Register(*type);
    for (const CDocTemplate::Row& row :
         {CDocTemplate::Row{shownType, documentMenu, &TestDocument::runtimeClass, "TestFrame", "TestView"},
          {hiddenType, ownMenu, &TestDocument::runtimeClass, "TestHiddenFrame", "TestView"}})
        AddDocTemplate(std::make_unique<CDocTemplate>(row));
}

WindowFixture::WindowFixture() {
    Log().clear();
    QApplication::setActiveWindow(&mainFrame);
}

TestDocument& WindowFixture::NewDocument(std::size_t type) {
    return dynamic_cast<TestDocument&>(*program.GetTemplates().at(type)->OpenDocumentFile({}));
}

CMDIChildWnd& WindowFixture::FrameOf(const CDocument& document) {
    return dynamic_cast<CMDIChildWnd&>(*document.GetFrame());
}

} // namespace keltavlo
