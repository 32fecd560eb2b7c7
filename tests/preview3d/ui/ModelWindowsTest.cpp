#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/WindowClasses.h"
#include "monkey/ToolkitComplaints.h"
#include "preview3d/ui/ModelView.h"
#include "support/builders/ModelBuilder.h"
#include "support/ui/GLErrors.h"
#include "support/ui/ProgramFixture.h"

#include <EGL/egl.h>
#include <malloc.h>

namespace keltavlo {

namespace {

// A leaked context takes some megabytes, more than everything else of a hundred windows.
constexpr long leeway = 8 << 20; // bytes

// Bytes in use; 0 under a sanitizer, which keeps what was freed and finds leaks itself.
long MemoryInUse() {
#ifdef __SANITIZE_ADDRESS__
    return 0;
#endif
    malloc_trim(0);
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return file.readAll().split(' ')[1].toLong() * 4096;
}

struct ModelWindowsTest : ProgramFixture {
    ModelWindowsTest() {
        Md2Builder model;
        model.texCoords = model.vertices = 3;
        model.triangles = {{0, 1, 2, 0, 1, 2}};
        model.frames = 1;
        Put("model.md2", model.Build());
    }

    void OpenTileSplitHideAndClose(std::size_t windowCount) {
        CDocument* document = program.OpenDocumentFile(path);
        while (document->GetViews().size() < windowCount) Send(ID_WINDOW_NEW);
        const std::vector<DocumentView*> views = document->GetViews();
        for (const CommandId arrangement : {ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT, ID_WINDOW_CASCADE}) {
            auto& first = dynamic_cast<QWidget&>(*views.front()->GetFrame());
            first.showMaximized();
            Send(arrangement);
            QCoreApplication::processEvents();
            EXPECT_FALSE(first.isMaximized());
        }
        for (std::size_t i = 0; i < views.size(); i += 5) {
            CSplitterWnd& splitter = dynamic_cast<ChildFrame&>(*views[i]->GetFrame()).GetSplitter();
            for (const auto direction : {CSplitterWnd::rows, CSplitterWnd::columns})
                splitter.SetSplit(direction, splitter.GetExtent(direction) / 2);
        }
        EXPECT_GT(document->GetViews().size(), views.size()) << "panes have views of their own";
        const auto frame = [&](std::size_t i) -> QWidget& {
            return dynamic_cast<QWidget&>(*views[i]->GetFrame());
        };
        for (std::size_t i = 0; i < views.size(); i += 3) frame(i).hide();
        QCoreApplication::processEvents();
        for (std::size_t i = 0; i < views.size(); i += 6) frame(i).show();
        QCoreApplication::processEvents();
        ExpectNoGLErrors(GetMainFrame());
        for (std::size_t i = 0; i + 1 < views.size(); ++i) frame(i).close();
        document->OnCloseDocument();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    const std::string path = PathTo("model.md2");
};

std::vector<std::string> steps;

// Records the steps that happen once for each context. Its name replaces the program's own view.
class NotingView final : public Dynamic<"MD2View", NotingView, ModelView> {
public:
    void InitGL() override {
        ModelView::InitGL();
        Note("init");
    }
    void ReleaseResources() override { Note("release"); }

private:
    static void Note(const std::string& step) {
        steps.push_back(eglGetCurrentContext() == EGL_NO_CONTEXT ? step + ", not current" : step);
    }
};

} // namespace

TEST_F(ModelWindowsTest, EveryWayOutReleasesTheViewsResources) {
    const std::vector<std::string> once{"init", "release"}, twice{"init", "init", "release", "release"};
    program.GetFrameFactory()->GetClasses().Register(NotingView::runtimeClass);
    const auto stepsOf = [](auto action) {
        steps.clear();
        action();
        return steps;
    };
    program.InitInstance({path});
    CDocument* document = program.OpenDocumentFile(path);
    EXPECT_EQ(stepsOf([&] {
                  Send(ID_WINDOW_NEW);
                  dynamic_cast<QWidget&>(*document->GetViews().back()->GetFrame()).close();
              }),
              once);
    EXPECT_EQ(stepsOf([&] {
                  auto& splitter = dynamic_cast<ChildFrame&>(*document->GetFrame()).GetSplitter();
                  splitter.SetSplit(CSplitterWnd::rows, splitter.GetExtent(CSplitterWnd::rows) / 2);
                  splitter.SetSplit(CSplitterWnd::rows, 0);
              }),
              once);
    document->OnCloseDocument();
    EXPECT_EQ(steps.back(), "release") << "the first window's";
    EXPECT_EQ(stepsOf([&] {
                  program.OpenDocumentFile(path);
                  Send(ID_WINDOW_NEW);
                  GetMainFrame().close();
              }),
              twice);
}

TEST_F(ModelWindowsTest, ManyComeAndGoWithoutATrace) {
    const ToolkitComplaints complaints;
    program.InitInstance({path});
    OpenTileSplitHideAndClose(20);
    const long before = MemoryInUse();
    OpenTileSplitHideAndClose(100);
    EXPECT_LT(MemoryInUse() - before, leeway);
    EXPECT_EQ(ToolkitComplaints::texts, std::vector<std::string>());
}

} // namespace keltavlo
