#include "app/HeadlessApplication.h"
#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/CView.h"
#include "image/TavloDocument.h"
#include "preview3d/MD2Document.h"
#include "preview3d/TextureBuffer.h"
#include "preview3d/ui/MD2View.h"
#include "preview3d/ui/OffScreenSurface.h"
#include "preview3d/ui/PixelFormat.h"
#include "preview3d/ui/RenderingContext.h"
#include "support/builders/ModelBuilder.h"

#include <QApplication>
#include <QTemporaryDir>

#include <GL/glu.h>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <span>
#include <vector>

using namespace keltavlo;

namespace {

constexpr QSize size(800, 600);
constexpr int around = 64, across = 32; // vertices of the ring
constexpr float nearest = 60;           // units from the origin to the ring

double Turn(int part, int parts) {
    return 2 * std::numbers::pi * part / parts;
}

Md2Builder::Vertex VertexAt(int, int i) {
    const double angle = Turn(i / across, around), tilt = Turn(i % across, across);
    const double radius = 85 + 40 * std::cos(tilt);
    return {static_cast<int>(127 + radius * std::cos(angle)), static_cast<int>(127 + 40 * std::sin(tilt)),
            static_cast<int>(127 + radius * std::sin(angle))};
}

std::uint16_t RingIndex(int i, int k) {
    return static_cast<std::uint16_t>(i % around * across + k % across);
}

// A ring with the largest numbers of triangles, vertices and frames that the game allows.
Md2Builder MakeRing() {
    Md2Builder ring;
    ring.vertices = ring.texCoords = around * across;
    ring.frames = 512;
    ring.vertexAt = VertexAt;
    ring.texCoordAt = [](int i) { return Md2Builder::TexCoord{i / across * 4, i % across * 8}; };
    for (int i = 0; i < around; ++i)
        for (int k = 0; k < across; ++k) {
            const std::uint16_t a = RingIndex(i, k), b = RingIndex(i + 1, k), c = RingIndex(i + 1, k + 1),
                                d = RingIndex(i, k + 1);
            ring.triangles.push_back({a, b, c, a, b, c});
            ring.triangles.push_back({a, c, d, a, c, d});
        }
    ring.scale = {0.25F, 0.25F, 0.25F};
    ring.translate = {-32, nearest, -32};
    return ring;
}

// The ring and a texture, opened as files.
class Files {
public:
    Files() {
        const std::string path = folder.path().toStdString();
        WriteFile(path + "/ring.md2", MakeRing().Build());
        model = dynamic_cast<MD2Document*>(program.OpenDocumentFile(path + "/ring.md2"));
        auto* document = dynamic_cast<TavloDocument*>(program.GetTemplates().front()->OpenDocumentFile({}));
        Texture& texture = document->GetTexture();
        texture.SetSize(256, 256);
        for (int y = 0; y < 256; ++y)
            for (int x = 0; x < 256; ++x) texture.SetPixel(x, y, static_cast<Color>(x << 16 | y << 8));
    }

    QTemporaryDir folder;
    HeadlessApplication program{[](const std::string& text) { std::fputs(text.c_str(), stderr); }};
    MD2Document* model;
};

void ShowModel(benchmark::State& state) {
    const Files files;
    CSplitterWnd window;
    CView& view = window.CreateView(0, 0, MD2View::runtimeClass, *files.model);
    view.setMinimumSize(size);
    window.show();
    QCoreApplication::processEvents();
    QWidget& control = *view.childAt(view.rect().center());
    for (auto _ : state) control.repaint();
    view.Detach();
}
BENCHMARK(ShowModel)->Unit(benchmark::kMicrosecond)->UseRealTime();

void SetUp() {
    glClearColor(0, 0, 0, 0);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_CULL_FACE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glViewport(0, 0, size.width(), size.height());
    glMatrixMode(GL_PROJECTION);
    gluPerspective(45, static_cast<double>(size.width()) / size.height(), 1, 1024);
    glMatrixMode(GL_MODELVIEW);
    gluLookAt(0, -4, 0, 0, 0, 0, 0, 0, 1);
}

// The arguments of the calls, computed in advance.
struct BareCorner {
    float s, t, x, y, z;
};

std::vector<BareCorner> WorkOutCorners() {
    const Md2Builder ring = MakeRing();
    std::vector<BareCorner> corners;
    for (const auto& triangle : ring.triangles)
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const auto [x, y, z] = VertexAt(0, triangle[corner]);
            const auto [s, t] = ring.texCoordAt(triangle[corner + 3]);
            const auto place = [&](int value, std::size_t axis) {
                return static_cast<float>(value) * ring.scale[axis] + ring.translate[axis];
            };
            corners.push_back({static_cast<float>(s) / 256, static_cast<float>(t) / 256, place(x, 0),
                               place(y, 1), place(z, 2)});
        }
    return corners;
}

// The same OpenGL calls on the same surface, and nothing else.
void DrawModelBare(benchmark::State& state) {
    const Files files;
    const TextureBuffer texture = TakeLastPicture();
    const std::vector<BareCorner> corners = WorkOutCorners();
    const auto context = RenderingContext::Create({});
    const auto surface = context->CreateSurface(size);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size.width() * size.height()));
    context->MakeCurrent(*surface);
    SetUp();
    for (auto _ : state) {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glTexImage2D(GL_TEXTURE_2D, 0, 4, 256, 256, 0, GL_BGRA, GL_UNSIGNED_BYTE, texture.GetBytes());
        glEnable(GL_TEXTURE_2D);
        for (std::size_t i = 0; i < corners.size(); i += 3) {
            glBegin(GL_TRIANGLES);
            for (const BareCorner& corner : std::span(corners).subspan(i, 3)) {
                glTexCoord2f(corner.s, corner.t);
                glVertex3f(corner.x, corner.y, corner.z);
            }
            glEnd();
        }
        glFinish();
        glReadPixels(0, 0, size.width(), size.height(), GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, pixels.data());
    }
    RenderingContext::MakeNoneCurrent();
}
BENCHMARK(DrawModelBare)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argumentCount, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
