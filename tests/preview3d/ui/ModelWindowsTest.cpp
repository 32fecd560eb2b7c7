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
        const Md2Builder model{
            .skins = {}, .texCoords = 3, .triangles = {{0, 1, 2, 0, 1, 2}}, .frames = 1, .vertices = 3};
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
            EXPECT_GT(document->GetViews().size(), views.size()) << "panes have views of their own";
            if (i > 0) splitter.SetSplit(CSplitterWnd::rows, splitter.GetExtent(CSplitterWnd::rows));
        }
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

int prepared = 0, released = 0;

// Counts the contexts. Its name replaces the program's own view.
struct CountingView final : Dynamic<"MD2View", CountingView, ModelView> {
    void InitGL() override {
        ModelView::InitGL();
        ++prepared;
    }
    void ReleaseResources() override { released += eglGetCurrentContext() != EGL_NO_CONTEXT; }
};

} // namespace

TEST_F(ModelWindowsTest, EveryWayOutReleasesTheViewsResources) {
    program.GetFrameFactory()->GetClasses().Register(CountingView::runtimeClass);
    program.InitInstance({path});
    OpenTileSplitHideAndClose(8);
    EXPECT_GT(prepared, 8);
    EXPECT_EQ(released, prepared);
    program.OpenDocumentFile(path);
    Send(ID_WINDOW_NEW);
    GetMainFrame().close();
    EXPECT_EQ(released, prepared);
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
