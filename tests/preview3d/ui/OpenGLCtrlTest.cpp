#include "preview3d/ui/OpenGLCtrl.h"

#include "framework/core/StringTable.h"
#include "preview3d/ui/PixelFormat.h"
#include "preview3d/ui/RenderingContext.h"
#include "res/ShellStrings.h"
#include "support/ui/DialogAnswer.h"
#include "support/ui/RayCaster.h"

#include <EGL/egl.h>
#include <GL/gl.h>
#include <dlfcn.h>
#include <gmock/gmock.h>

namespace keltavlo {

using testing::ElementsAre;

namespace {

bool surfacesFail = false;

bool IsAnyCurrent() {
    return eglGetCurrentContext() != EGL_NO_CONTEXT;
}

// A control on a widget of its own that records its steps.
struct NotingCtrl final : OpenGLCtrl {
    explicit NotingCtrl(QRect area = {0, 0, 120, 90}) {
        host.resize(200, 200);
        OpenGLCtrl::Create(area, host);
        host.show();
        QCoreApplication::processEvents();
    }
    ~NotingCtrl() override {
        setParent(nullptr);
        Destroy();
    }

    std::vector<std::string> Take() { return std::exchange(log, {}); }

    QWidget host;
    std::vector<std::string> log;
    bool resizeWhileDrawing = false;
    bool hungry = false;

    void InitGL() override {
        Note("init");
        OpenGLCtrl::InitGL();
    }
    void ResizeView(int cx, int cy) override {
        Note("resize " + std::to_string(cx) + " x " + std::to_string(cy));
        OpenGLCtrl::ResizeView(cx, cy);
    }
    void DrawScene() override {
        if (hungry) throw std::bad_alloc();
        if (std::exchange(resizeWhileDrawing, false)) resize(60, 40);
        Note("draw");
        OpenGLCtrl::DrawScene();
        EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
    }
    void ReleaseResources() override { Note("release"); }
    void Note(const std::string& step) { log.push_back(IsAnyCurrent() ? step : step + ", not current"); }
};

class GreedyCtrl final : public OpenGLCtrl {
    void AdjustPixelFormat(PixelFormat& format) override { format.colorBits = 4096; }
};

// Expects the cube that the control draws. Each corner's color is its place; three sides are visible.
void ExpectCube(OpenGLCtrl& control) {
    const auto corner = [](float x, float y, float z) { return RayCaster::Corner{{x, y, z}, {x, y, z}}; };
    const RayCaster cube{{4, 4, 4},
                         {{corner(1, 1, 1), corner(-1, 1, 1), corner(-1, -1, 1), corner(1, -1, 1)},
                          {corner(1, -1, -1), corner(1, 1, -1), corner(1, 1, 1), corner(1, -1, 1)},
                          {corner(1, 1, -1), corner(-1, 1, -1), corner(-1, 1, 1), corner(1, 1, 1)}},
                         [](const QVector3D& place) {
                             const QVector3D color = (place + QVector3D(1, 1, 1)) / 2;
                             return QColor::fromRgbF(color.x(), color.y(), color.z()).rgb();
                         }};
    cube.ExpectSeenIn(control, 2);
}

} // namespace

// Replaces the system's function.
extern "C" EGLSurface eglCreatePbufferSurface(EGLDisplay display, EGLConfig config,
                                              const EGLint* attributes) {
    using Create = EGLSurface (*)(EGLDisplay, EGLConfig, const EGLint*);
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "eglCreatePbufferSurface"));
    return surfacesFail ? EGL_NO_SURFACE : create(display, config, attributes);
}

TEST(OpenGLCtrlTest, DrawsACube) {
    NotingCtrl control;
    ExpectCube(control);
    control.resize(97, 151);
    ExpectCube(control);
    NotingCtrl withoutArea(QRect(5, 5, 0, 0));
    EXPECT_THAT(withoutArea.Take(), ElementsAre("init"));
    withoutArea.resize(30, 20);
    ExpectCube(withoutArea);
}

TEST(OpenGLCtrlTest, IsCurrentOnlyWithinItsSteps) {
    NotingCtrl control;
    EXPECT_EQ(control.log.at(0) + ", " + control.log.at(1), "init, resize 120 x 90");
    EXPECT_EQ(control.Take().back(), "draw");
    EXPECT_NE(DescribeOpenGL(), "");
    EXPECT_FALSE(IsAnyCurrent());
    control.resize(0, 30);
    QPaintEvent nothing{QRegion()};
    QCoreApplication::sendEvent(&control, &nothing);
    EXPECT_THAT(control.Take(), testing::IsEmpty()) << "a control without an area keeps what it has";
    control.MakeCurrent();
    control.MakeCurrent();
    control.ReleaseCurrent();
    EXPECT_TRUE(IsAnyCurrent());
    control.ReleaseCurrent();
    EXPECT_FALSE(IsAnyCurrent());
    control.Destroy();
    EXPECT_THAT(control.Take(), ElementsAre("release"));
}

TEST(OpenGLCtrlTest, PreparesTheContextOnceAsSoonAsThereIsASurface) {
    surfacesFail = true;
    NotingCtrl control;
    EXPECT_EQ(std::ranges::count(control.log, "init"), 0);
    control.Take();
    surfacesFail = false;
    control.repaint();
    EXPECT_EQ(control.log.at(0) + ", " + control.log.at(1), "init, resize 120 x 90");
    ExpectCube(control);
    control.resize(60, 90);
    ExpectCube(control);
    EXPECT_EQ(std::ranges::count(control.Take(), "init"), 1);
}

TEST(OpenGLCtrlTest, ASceneWithoutMemoryOrWithANewSurfaceLeavesNothingCurrent) {
    NotingCtrl control;
    control.hungry = true;
    control.repaint();
    EXPECT_FALSE(IsAnyCurrent());
    control.hungry = false;
    control.Take();
    control.resizeWhileDrawing = true;
    control.repaint();
    EXPECT_EQ(control.Take()[1], "draw");
    EXPECT_FALSE(IsAnyCurrent());
    ExpectCube(control);
}

TEST(OpenGLCtrlTest, KeepsItsContextWhenItMoves) {
    NotingCtrl first, second(QRect(0, 0, 50, 50));
    QWidget other;
    first.Take();
    first.setParent(&other);
    first.show();
    other.show();
    ExpectCube(first);
    first.hide();
    ExpectCube(second);
    first.show();
    ExpectCube(first);
    EXPECT_EQ(std::ranges::count(first.log, "init"), 0);
    first.setParent(nullptr);
}

TEST(OpenGLCtrlTest, SaysSoWhenItCannotDraw) {
    AddStrings(ShellStrings());
    QWidget host;
    host.resize(300, 80);
    GreedyCtrl control;
    control.Create(host.rect(), host);
    host.show();
    EXPECT_FALSE(IsPlain(host.grab().toImage())) << "there is a sentence";
    control.setParent(nullptr);
}

} // namespace keltavlo
