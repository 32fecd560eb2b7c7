#include "app/ui/HelpWindow.h"
#include "res/CommandIds.h"
#include "support/ui/Reading.h"
#include "support/ui/TavloViewFixture.h"

#include <QPlainTextEdit>
#include <QTabWidget>

#include <fstream>
#include <sstream>

namespace keltavlo {

class DialogsTest : public TavloViewFixture {
protected:
    void Read(const QWidget& window) { reading += ReadingOf(window) + '\n'; }
    // Reads the dialog of the command by what the test does to it.
    void ReadDialog(CommandId id, const std::function<void(QDialog&)>& read) {
        const DialogAnswer answer([&](QDialog& dialog) {
            read(dialog);
            dialog.reject();
        });
        EXPECT_TRUE(Send(id));
    }
    // Every page of every sheet in the dialog.
    void ReadPages(QDialog& dialog) {
        Read(dialog);
        for (auto* tabs : dialog.findChildren<QTabWidget*>())
            for (int page = 0; page < tabs->count(); ++page) {
                for (QWidget* above = tabs->parentWidget(); above; above = above->parentWidget())
                    if (auto* outer = qobject_cast<QTabWidget*>(above)) outer->setCurrentIndex(2);
                tabs->setCurrentIndex(page);
                Read(*tabs->currentWidget());
            }
    }

    std::string reading;
};

// The file beside this one says what every dialog shows; a change that is meant changes it, too.
TEST_F(DialogsTest, SayWhatTheyAreKnownToSay) {
    ReadDialog(ID_APP_ABOUT, [&](QDialog& dialog) {
        Read(dialog);
        const QString information = dialog.findChild<QPlainTextEdit*>()->toPlainText();
        for (const std::string& part :
             {PathTo("settings.ini"), std::string(qVersion()), std::string("OpenGL: ")})
            EXPECT_TRUE(information.contains(part.c_str())) << part;
        EXPECT_FALSE(information.contains("not available"));
    });
    ReadDialog(ID_FILE_NEW, [&](QDialog& dialog) { Read(dialog); });
    ReadDialog(ID_EDIT_PROPERTIES, [&](QDialog& dialog) { ReadPages(dialog); });
    ReadDialog(ID_TOOLS_OPTIONS, [&](QDialog& dialog) {
        ReadPages(dialog);
        const DialogAnswer answer([&](QDialog& gamma) {
            Read(gamma);
            gamma.reject();
        });
        for (auto* button : dialog.findChildren<QPushButton*>())
            if (button->text().contains("Gamma")) button->click();
    });
    ReadDialog(ID_FILE_OPEN, [&](QDialog& dialog) {
        for (const char* part : {"lowerList", "enablePreview"})
            Read(*dialog.findChild<QWidget*>(part)->parentWidget());
    });
    Read(*GetMainFrame().findChild<QWidget*>("bar59401"));
    HelpWindow help;
    help.ShowPage("index.html");
    Read(help);
    std::ostringstream known;
    known << std::ifstream(DIALOG_READINGS).rdbuf();
    EXPECT_EQ(reading, known.str());
}

} // namespace keltavlo
