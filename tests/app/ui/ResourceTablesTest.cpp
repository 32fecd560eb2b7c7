#include "app/ui/FileDialogServices.h"
#include "app/ui/HelpPages.h"
#include "framework/core/StringTable.h"
#include "res/DocumentStrings.h"
#include "res/Menus.h"
#include "res/ShellStrings.h"
#include "res/ToolBars.h"
#include "support/ui/TavloViewFixture.h"

#include <fstream>
#include <set>
#include <sstream>

namespace keltavlo {

struct ResourceTablesTest : TavloViewFixture {
    // Writes the id, how the program offers the command for a texture, and its texts and help page.
    void WriteCommand(CommandId id) {
        const char* page = HelpPageFor(id);
        const CCmdUI state = StateOf(id);
        tables << id << (state.enabled ? "" : " disabled") << (state.checked ? " checked" : "")
               << (state.radio ? " radio" : "") << (state.text ? " says " + *state.text : "") << " '"
               << CommandPrompt(id) << "' '" << CommandToolTip(id) << "' " << (page ? page : "no page")
               << '\n';
    }
    void WriteMenu(std::span<const MenuRow> rows, const std::string& indent = "  ") {
        for (const MenuRow& row : rows) {
            tables << indent << (row.text ? row.text : "--") << (row.id ? " = " : "\n");
            if (row.id) WriteCommand(row.id);
            WriteMenu(row.items, indent + "  ");
        }
    }

    std::ostringstream tables;
};

// The file beside this one lists each row of the menus, keys and tools; a deliberate change edits it, too.
TEST_F(ResourceTablesTest, HoldWhatTheyAreKnownToHold) {
    EXPECT_TRUE(Send(ID_EDIT_COPY) && Send(ID_COLOR_TABLE_FIRST) && Send(ID_FORMAT_NEAREST));
    for (const auto& [name, rows] : {std::pair("Without a document", MenuBarRows(IDR_MAINFRAME)),
                                     {"With a document", MenuBarRows(IDR_DOCUMENT)},
                                     {"Context menu", ImageContextMenuRows()}}) {
        tables << name << '\n';
        WriteMenu(rows);
    }
    for (const AcceleratorRow& row : AcceleratorRows()) {
        tables << row.keys << " = ";
        WriteCommand(row.id);
    }
    for (const auto& rows : {StandardBarRows(), FilterBarRows()})
        for (const ToolBarRow& row : rows) tables << "tool " << row.id << '\n';
    for (const auto& question :
         {FileNameQuestion(), {.proposal = {}, .open = false, .type = program.GetTemplates()[4]}})
        for (const FileFilter& filter : BuildFileFilters(question))
            tables << (question.open ? "open " : "save ") << filter.label << " = " << filter.patterns << '\n';
    document->SetModifiedFlag(false);
    document->OnCloseDocument();
    tables << "Enabled without a document:";
    for (CommandId id = 0; id <= 0xFFFF; ++id)
        if (StateOf(id).enabled) tables << ' ' << id;
    tables << '\n';
    std::ostringstream known;
    known << std::ifstream(KNOWN_TABLES).rdbuf();
    EXPECT_EQ(tables.str(), known.str());
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
