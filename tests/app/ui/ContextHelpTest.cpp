#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

// The program with a texture; each test asks for help on parts of its window.
struct ContextHelpTest : TavloViewFixture {
    static bool IsAsking() {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor && cursor->shape() == Qt::WhatsThisCursor;
    }
    // Closes the help and returns the page that it showed.
    static std::string TakePage() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (const auto* browser = window->findChild<QTextBrowser*>(); browser && window->isVisible()) {
                EXPECT_FALSE(browser->toPlainText().isEmpty()) << browser->source().toString().toStdString();
                window->close();
                return browser->source().fileName().toStdString();
            }
        return "none";
    }
    std::string PageAfterClick(QWidget& target, const QPoint& place) {
        EXPECT_TRUE(Send(ID_CONTEXT_HELP));
        EXPECT_TRUE(IsAsking());
        QTest::mouseClick(&target, Qt::LeftButton, {}, place);
        EXPECT_FALSE(IsAsking());
        return TakePage();
    }
    std::string PageAfterClick(QWidget& target) { return PageAfterClick(target, target.rect().center()); }
    std::string PageAfterItem(CommandId id) {
        QAction* item = GetMainFrame().GetCurrentMenu().FindItem(id);
        auto& popup = dynamic_cast<QMenu&>(*item->parent());
        popup.popup({});
        return PageAfterClick(popup, popup.actionGeometry(item).center());
    }
};

TEST_F(ContextHelpTest, TheNextClickOpensThePageOfWhatItHits) {
    const std::pair<CommandId, const char*> pages[] = {
        {ID_FILE_OPEN, "open.html"},        {ID_APP_EXIT, "save.html"},
        {ID_EDIT_PROPERTIES, "flags.html"}, {ID_EDIT_CLEAR, "disabled.html"},
        {ID_3D_SOLID, "models.html"},       {ID_COLOR_TABLE_FIRST, "palettes.html"},
        {ID_HELP_FINDER, "index.html"}};
    for (const auto& [id, page] : pages) {
        EXPECT_EQ(PageAfterItem(id), page) << id;
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
    EXPECT_TRUE(GetMainFrame().isVisible() && GetMainFrame().MDIGetActive()) << "nothing is carried out";
    auto& filters = *GetMainFrame().findChild<QToolBar*>("bar59398");
    EXPECT_EQ(PageAfterClick(*filters.widgetForAction(filters.actions().back())), "palettes.html");
    EXPECT_EQ(PageAfterClick(filters, {1, 1}), "palettes.html");
    EXPECT_EQ(PageAfterClick(*GetMainFrame().findChild<QDockWidget*>("bar59401")->widget()), "palettes.html");
    EXPECT_EQ(program.GetCurrentColor(), 0U) << "the click picks no color";
    EXPECT_EQ(PageAfterClick(GetMainFrame().GetStatusBar()), "seam.html");
    EXPECT_EQ(PageAfterClick(*view), "painting.html") << "the page of the active window";
}

TEST_F(ContextHelpTest, EscapeEndsIt) {
    ASSERT_TRUE(Send(ID_CONTEXT_HELP) && Send(ID_CONTEXT_HELP));
    EXPECT_TRUE(IsAsking());
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_FALSE(QGuiApplication::overrideCursor());
    Choose(texelBrushFile);
    QTest::mouseClick(view, Qt::LeftButton);
    EXPECT_TRUE(document->IsModified());
    EXPECT_EQ(TakePage(), "none");
}

} // namespace keltavlo
