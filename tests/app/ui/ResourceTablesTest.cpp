// Each row of the menus, keys, tools and strings.
#include "app/ui/HelpPages.h"
#include "framework/core/StringTable.h"
#include "res/DocumentStrings.h"
#include "res/Menus.h"
#include "res/ShellStrings.h"
#include "res/ToolBars.h"
#include "support/ui/TavloViewFixture.h"

#include <set>

namespace keltavlo {

namespace {

// Ids in their order, 0 for a separator and brackets round a popup.
std::string Outline(std::span<const MenuRow> rows) {
    std::string text;
    for (const MenuRow& row : rows)
        text += row.items.empty() ? std::to_string(row.id) + " " : "( " + Outline(row.items) + ") ";
    return text;
}

void Collect(std::span<const MenuRow> rows, std::vector<MenuRow>& all) {
    for (const MenuRow& row : rows) {
        if (row.id) all.push_back(row);
        Collect(row.items, all);
    }
}

struct ResourceTablesTest : TavloViewFixture {
    ResourceTablesTest() {
        for (const auto& rows :
             {MenuBarRows(IDR_MAINFRAME), MenuBarRows(IDR_DOCUMENT), ImageContextMenuRows()})
            Collect(rows, items);
        for (const MenuRow& item : items) ids.insert(item.id);
        for (const AcceleratorRow& row : AcceleratorRows()) ids.insert(row.id);
        for (const auto& rows : {StandardBarRows(), FilterBarRows()})
            for (const ToolBarRow& row : rows) ids.insert(row.id);
        ids.erase(0);
    }

    std::vector<MenuRow> items;
    std::set<CommandId> ids;
};

} // namespace

TEST_F(ResourceTablesTest, HoldTheirIdsInOrder) {
    const std::string help = "( 57667 0 57664 ) ", brushes = "( 32790 0 32793 ) ",
                      zoom = "( 32774 32776 32777 32778 32779 ) ";
    EXPECT_EQ(Outline(MenuBarRows(IDR_MAINFRAME)),
              "( 57600 57601 0 57616 0 57665 ) ( ( 59392 ) 59393 0 32784 ) ( ( 32783 ) ) ( 32802 ) " + help);
    EXPECT_EQ(Outline(MenuBarRows(IDR_DOCUMENT)),
              "( 57600 57601 57602 0 57603 57604 0 32771 0 57616 0 57665 ) "
              "( 57643 57644 0 57635 57634 57637 0 57632 ( 57642 32772 ) 0 32839 ) "
              "( ( 59392 ) 59393 0 " +
                  zoom +
                  "0 ( 32815 32813 32814 ) 0 ( 32791 32792 ) 0 32784 ) ( ( 32783 ) 0 32799 32800 ) ( " +
                  brushes + "( 32810 0 32789 0 32794 0 57601 ) 0 32802 ) " +
                  "( 57648 ( 57651 57652 57650 0 57649 ) 57653 ) " + help);
    EXPECT_EQ(Outline(ImageContextMenuRows()), "( " + brushes + "32783 " + zoom + "32839 32795 ) ");
    std::string keys, tools;
    for (const AcceleratorRow& row : AcceleratorRows())
        keys += row.keys + (" " + std::to_string(row.id)) + ", ";
    EXPECT_EQ(keys, "Ctrl+A 57642, Ctrl+C 57634, Ctrl+N 57600, Ctrl+O 57601, Ctrl+S 57603, Ctrl+V 57637, "
                    "Alt+Backspace 57643, Shift+Del 57635, F1 57670, Shift+F1 57669, F6 57680, "
                    "Shift+F6 57681, Ctrl+Ins 57634, Shift+Ins 57637, Ctrl+X 57635, Ctrl+Y 57644, "
                    "Ctrl+Z 57643, ");
    for (const auto& rows : {StandardBarRows(), FilterBarRows()})
        for (const ToolBarRow& row : rows) tools += std::to_string(row.id) + " ";
    EXPECT_EQ(tools, "57600 57601 57603 0 57635 57634 57637 0 57643 57644 32798 0 32791 32792 ");
}

// Placeholders of runs and what other kinds of documents do are disabled for a texture.
TEST_F(ResourceTablesTest, EveryCommandHasItsTextsAndPageAndIsOfferedWhereItCanBeCarriedOut) {
    EXPECT_TRUE(Send(ID_EDIT_COPY) && Send(ID_COLOR_TABLE_FIRST) && Send(ID_FORMAT_NEAREST));
    const std::set<CommandId> pageless{ID_CANCEL, ID_NEXT_PANE, ID_PREV_PANE};
    const std::set<CommandId> disabled{
        ID_FILE_PROPERTIES, ID_SELECT_NONE,    ID_EDIT_SELECT_ALL, ID_EDIT_CLEAR,   ID_EDIT_REDO,
        ID_BRUSHES,         ID_PALETTE_TABLES, ID_PALETTE_SPACES,  ID_3D_WIREFRAME, ID_3D_SOLID,
        ID_3D_TEXTURED,     ID_NEXT_PANE,      ID_PREV_PANE};
    for (const CommandId id : ids) {
        EXPECT_FALSE(CommandPrompt(id).empty() || CommandToolTip(id).empty()) << id;
        EXPECT_EQ(HelpPageFor(id) == nullptr, pageless.contains(id)) << id;
        EXPECT_EQ(StateOf(id).enabled, !disabled.contains(id)) << id;
    }
}

TEST_F(ResourceTablesTest, KeysThatAnItemNamesCarryItOut) {
    for (const MenuRow& item : items) {
        const std::string_view text = item.text;
        if (const auto tab = text.find('\t'); tab != text.npos && item.id != ID_EDIT_CLEAR) {
            EXPECT_TRUE(std::ranges::any_of(AcceleratorRows(), [&](const AcceleratorRow& row) {
                return row.id == item.id && row.keys == text.substr(tab + 1);
            })) << text;
        }
    }
}

TEST_F(ResourceTablesTest, NoIdHasTwoStrings) {
    std::set<unsigned> seen;
    for (const auto& rows : {ShellStrings(), DocumentStrings()})
        for (const StringRow& row : rows) {
            EXPECT_TRUE(seen.insert(row.id).second) << row.id;
            EXPECT_EQ(LoadString(row.id), row.text);
        }
}

} // namespace keltavlo
