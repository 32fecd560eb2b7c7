// Each allocation of the program's own code fails while its windows open, show, change, list and save
// documents. A document and its file are as before or whole, and the next attempt succeeds.
#include "framework/ui/CMDIChildWnd.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "image/ui/TavloView.h"
#include "resources/Brush.h"
#include "resources/BuiltInFiles.h"
#include "resources/PaletteDocument.h"
#include "support/Fault.h"
#include "support/builders/ModelBuilder.h"
#include "support/builders/WadBuilder.h"
#include "support/ui/ProgramFixture.h"

#include <filesystem>

namespace keltavlo {

namespace {

// Enters a text in dialogs and confirms them, message boxes, too. Closes a dialog that stays open.
class Attendant {
public:
    explicit Attendant(const std::string& textToEnter) : text(QString::fromStdString(textToEnter)) {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
        timer.start(0);
    }

    int answered = 0; // dialogs

private:
    // Queues the clicks, because what they do can fail.
    void Look() {
        const FaultPause pause;
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        looks = dialog == last ? looks + 1 : 0;
        last = dialog;
        constexpr int enough = 5, most = 8;
        if (looks > enough) dialog->reject();
        if (looks > 0 || ++answered > most) return;
        for (auto* line : dialog->findChildren<QLineEdit*>())
            QMetaObject::invokeMethod(line, "setText", Qt::QueuedConnection, Q_ARG(QString, text));
        QAbstractButton* button = dialog->findChild<QDialogButtonBox*>()->buttons().front();
        QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
    }

    QTimer timer;
    QString text;
    QPointer<QDialog> last;
    int looks = 0;
};

struct Action {
    const char* name;
    CommandId command;            // 0 paints a stroke
    const char* text = "";        // for dialogs
    const char* recent = nullptr; // the recent file; without one, a texture is open
};

constexpr Action actions[] = {
    {"Open", ID_FILE_MRU_FIRST, "", "floor.wal"},
    {"OpenFromPak", ID_FILE_MRU_FIRST, "", "a.pak/b/in.wal"},
    {"OpenFromWad", ID_FILE_MRU_FIRST, "", "c.wad/wall.mip"},
    {"OpenMd2", ID_FILE_MRU_FIRST, "", "d.md2"},
    {"OpenMdl", ID_FILE_MRU_FIRST, "", "e.mdl"},
    {"ListArchive", ID_FILE_OPEN, "a.pak/b/"},
    {"Paint", 0},
    {"Copy", ID_EDIT_COPY},
    {"Paste", ID_EDIT_PASTE},
    {"Nearest", ID_FORMAT_NEAREST},
    {"Undo", ID_EDIT_UNDO},
    {"Redo", ID_EDIT_REDO},
    {"Properties", ID_EDIT_PROPERTIES, "24"},
    {"Save", ID_FILE_SAVE},
    {"SaveAs", ID_FILE_SAVE_AS, "new.tga"},
    {"NewWindow", ID_WINDOW_NEW},
};

struct ProgramFaults : ProgramFixture, testing::WithParamInterface<Action> {
    ProgramFaults() {
        Put("a.pak", PackBuilder{{"b/in.wal", MakeWal(8, 8, "in")}}.Build());
        WadBuilder wad;
        wad.Add("wall", WadBuilder::wad3TextureType, MakeMip("wall", 8, 8, true));
        Put("c.wad", wad.Build());
        const Md2Builder model{
            .skins = {"skin"}, .texCoords = 3, .triangles = {{0, 1, 2, 0, 1, 2}}, .frames = 1, .vertices = 3};
        Put("d.md2", model.Build());
        Put("e.mdl", MdlBuilder{{{2, 2}}}.Build());
        program.InitInstance({Put("floor.wal", MakeWal(16, 16, "floor"))});
        program.SetCurrentColor(0xFFFFFFFF);
        GetMainFrame().resize(400, 300);
    }
    void Reset() {
        while (CMDIChildWnd* frame = GetMainFrame().MDIGetActive()) {
            frame->GetActiveDocument()->OnCloseDocument();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        std::filesystem::remove(PathTo("new.tga"));
        Put("floor.wal", MakeWal(16, 16, "floor"));
        if (GetParam().recent) return;
        auto* document = Open<TavloDocument>(PathTo("floor.wal"));
        const auto refer = [](BuiltInFile file) { return BaseDocument::OpenReference(GetBuiltInPath(file)); };
        document->SetCurrentBrush(dynamic_cast<BrushDocument*>(refer(texelBrushFile)));
        document->SetCurrentPalette(dynamic_cast<PaletteDocument*>(refer(quakePalette)));
        PastePicture(*document, Image(16, 16));
        document->GetTexture().SetPixel(5, 5, 0xFF123456);
        document->GetTexture().quakeName = std::string(40, 'n'); // takes memory of its own
        if (GetParam().command == ID_EDIT_REDO) {
            ChangeQuakeName(*document, "");
            document->GetHistory().Undo();
        }
        QCoreApplication::processEvents();
    }
    void Act() {
        if (GetParam().command != 0) {
            Send(GetParam().command);
        } else {
            QWidget* view = GetMainFrame().MDIGetActive()->GetActiveView();
            for (const auto type :
                 {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
                const QPoint place(type == QEvent::MouseButtonPress ? 3 : 9, 3);
                QMouseEvent event(type, place, view->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
                QCoreApplication::sendEvent(view, &event);
            }
        }
        QCoreApplication::processEvents();
    }
    // Returns whether the action met the fault.
    bool Try(unsigned first) {
        if (GetParam().recent) program.AddToRecentFileList(PathTo(GetParam().recent));
        attendant.answered = 0;
        const Fault fault(Step::ownAllocation, first, false);
        Act();
        const FaultPause pause;
        do QCoreApplication::processEvents(); // the warning opens
        while (QApplication::activeModalWidget());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return fault.HasHit();
    }
    // Returns what the windows show and what the files contain.
    std::string State() {
        std::ostringstream state;
        for (CMDIChildWnd* frame : GetMainFrame().GetChildren()) {
            CDocument* document = frame->GetActiveDocument();
            state << document->GetPathName() << document->IsModified() << "\n";
            auto* textured = dynamic_cast<TavloDocument*>(document);
            if (!textured) continue;
            state << textured->GetTexture().quakeName << "\n";
            for (const Color pixel : textured->GetTexture().Pixels()) state << pixel << " ";
            state << (textured->GetHistory().CanUndo() ? textured->GetHistory().TopUndoName() : "") << "\n";
        }
        for (const std::string& path : {PathTo("floor.wal"), PathTo("new.tga")})
            if (std::filesystem::exists(path))
                for (const std::byte byte : ReadFile(path)) state << std::to_integer<int>(byte) << " ";
        return state.str();
    }

    Attendant attendant{GetParam().command == ID_FILE_OPEN ? PathTo(GetParam().text) : GetParam().text};
};

} // namespace

TEST_P(ProgramFaults, AnActionIsDoneWholeOrNotAtAll) {
    if (!allocationsCanFail) GTEST_SKIP();
    Send(ID_EDIT_COPY);
    Reset();
    const std::string before = State();
    Try(std::numeric_limits<unsigned>::max());
    const std::string whole = State();
    bool hit = true;
    for (unsigned first = 1; hit && !HasFailure(); ++first) {
        SCOPED_TRACE(first);
        if (State() != before) Reset();
        hit = Try(first);
        const std::string state = State();
        EXPECT_TRUE(state == whole || (hit && state == before)) << state;
        EXPECT_TRUE(state == whole || !GetParam().recent || attendant.answered > 0) << "says so";
    }
}

INSTANTIATE_TEST_SUITE_P(Actions, ProgramFaults, testing::ValuesIn(actions),
                         [](const auto& action) { return std::string(action.param.name); });

} // namespace keltavlo
