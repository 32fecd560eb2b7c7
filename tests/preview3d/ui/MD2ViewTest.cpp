#include "preview3d/ui/MD2View.h"

#include "builders/ModelBuilder.h"
#include "framework/ui/CMDIChildWnd.h"
#include "image/TavloDocument.h"
#include "preview3d/MD2Document.h"
#include "res/CommandIds.h"
#include "support/ui/ProgramFixture.h"
#include "support/ui/SoftwareProjection.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <GL/gl.h>
#include <cmath>

namespace {

using Vector = SoftwareProjection::Vector;

constexpr QRgb grey = qRgb(0x80, 0x80, 0x80);
constexpr Vector cameraPlace{0, -4, 0};

// A colour that no other texel has.
Color TexelColor(int x, int y) {
    return 0xFF000000 | static_cast<Color>(x) << 16 | static_cast<Color>(y) << 8 | 0x40;
}

// A model of quads, for the program and for the projection.
class QuadModel {
public:
    struct Corner {
        Md2Builder::Vertex vertex;
        Md2Builder::TexCoord texCoord;
    };
    using Quad = std::array<Corner, 4>; // counter-clockwise as seen from where it is to be seen

    explicit QuadModel(std::vector<Quad> ofQuads) : quads(std::move(ofQuads)) {}

    Bytes Build(std::vector<std::vector<std::uint16_t>> otherTriangles = {}) const {
        Md2Builder model;
        model.texCoords = model.vertices = static_cast<std::uint32_t>(4 * quads.size());
        model.vertexAt = [&](int, int i) { return At(i).vertex; };
        model.texCoordAt = [&](int i) { return At(i).texCoord; };
        model.triangles = std::move(otherTriangles);
        for (std::uint16_t i = 0; i < model.vertices; i = static_cast<std::uint16_t>(i + 4))
            for (const int k : {1, 2}) {
                const auto second = static_cast<std::uint16_t>(i + k);
                const auto third = static_cast<std::uint16_t>(i + k + 1);
                model.triangles.push_back({i, second, third, i, second, third});
            }
        model.frames = 2;
        model.scale = scale;
        model.translate = translate;
        return model.Build();
    }

    SoftwareProjection Project(QSize size, SoftwareProjection::Shade shade, const Vector& offset = {}) const {
        SoftwareProjection projection(cameraPlace, {0, 0, 0}, size, std::move(shade));
        for (const auto& quad : quads) {
            std::array<SoftwareProjection::Corner, 4> corners;
            for (std::size_t i = 0; i < quad.size(); ++i) {
                for (std::size_t axis = 0; axis < 3; ++axis)
                    corners[i].place[axis] = static_cast<double>(scale[axis]) * quad[i].vertex[axis] +
                                             static_cast<double>(translate[axis]) + offset[axis];
                corners[i].values = {static_cast<double>(quad[i].texCoord[0]),
                                     static_cast<double>(quad[i].texCoord[1])};
            }
            projection.AddQuad(corners);
        }
        return projection;
    }

private:
    const Corner& At(int i) const {
        return quads[static_cast<std::size_t>(i) / 4][static_cast<std::size_t>(i) % 4];
    }

    std::vector<Quad> quads;
    std::array<float, 3> scale{0.25F, 0.5F, 0.25F};
    std::array<float, 3> translate{-30, 40, -30};
};

// One before the other, the nearer tilted and with a texture that is laid side by side; a third is turned
// away before both.
const QuadModel scene({
    {{{{0, 120, 0}, {0, 90}},
      {{240, 120, 0}, {120, 90}},
      {{240, 120, 240}, {120, 0}},
      {{0, 120, 240}, {0, 0}}}},
    {{{{20, 40, 30}, {-40, 150}},
      {{130, 90, 60}, {100, 150}},
      {{140, 60, 160}, {100, 10}},
      {{60, 20, 150}, {-40, 10}}}},
    {{{{0, 10, 0}, {0, 0}}, {{0, 10, 240}, {0, 9}}, {{240, 10, 240}, {9, 9}}, {{240, 10, 0}, {9, 0}}}},
});

// The colour of the texel at (s, t) of a 64 x 64 picture that is laid side by side.
QRgb ColorOfSmallTexture(const Vector& place) {
    const auto texel = [](double at) { return static_cast<int>(std::floor(at)) & 63; };
    return TexelColor(texel(place[0]), texel(place[1]));
}

class MD2ViewTest : public ProgramFixture {
protected:
    // An open texture, every texel in a colour of its own.
    TavloDocument& OpenTexture(const std::string& name, int width, int height) {
        auto* document = dynamic_cast<TavloDocument*>(program.OpenDocumentFile(Put(name, MakeWal(8, 8))));
        document->GetTexture().SetSize(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) document->GetTexture().SetPixel(x, y, TexelColor(x, y));
        return *document;
    }
    MD2View& OpenModel(const Bytes& bytes) {
        CDocument* document = program.OpenDocumentFile(Put("model.md2", bytes));
        QCoreApplication::processEvents();
        return ViewOf(*document);
    }
    static MD2View& ViewOf(CDocument& document) {
        return dynamic_cast<MD2View&>(*document.GetViews().back());
    }
    static QImage PictureOf(QWidget& view) {
        return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    static void ExpectScene(MD2View& view, const SoftwareProjection::Shade& shade = ColorOfSmallTexture,
                            const Vector& offset = {}) {
        scene.Project(view.size(), shade, offset).ExpectSeenIn(PictureOf(view));
    }
    static void Type(QWidget& view, const QString& text, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, 0, keys, text);
        QCoreApplication::sendEvent(&view, &event);
    }

    bool started = program.InitInstance({Put("model.mdl", MdlBuilder{.textures = {{8, 8}}}.Build())});
};

} // namespace

TEST_F(MD2ViewTest, DrawsTheModelWithThePicture) {
    OpenTexture("floor.wal", 64, 64);
    MD2View& view =
        OpenModel(scene.Build({{0, 1, 12, 0, 1, 2}, {0, 1, 2, 0, 1, 12}, {0xFFFF, 1, 2, 0, 1, 2}}));
    ExpectScene(view);
    view.window()->resize(700, 900);
    QCoreApplication::processEvents();
    ExpectScene(view);
    auto& control = dynamic_cast<OpenGLCtrl&>(*view.childAt(view.rect().center()));
    control.MakeCurrent();
    EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
    control.ReleaseCurrent();
}

// The picture is brought to 256 x 256 without moving a texel; its edge runs on to the right and below.
TEST_F(MD2ViewTest, ShowsEachTexelInItsPlace) {
    OpenTexture("skin.wal", 200, 194);
    const QuadModel sheet({{{{{0, 20, 0}, {0, 194}},
                             {{240, 20, 0}, {200, 194}},
                             {{240, 20, 240}, {200, 0}},
                             {{0, 20, 240}, {0, 0}}}},
                           {{{{0, 0, 0}, {180, 256}},
                             {{30, 0, 0}, {256, 256}},
                             {{30, 0, 30}, {256, 180}},
                             {{0, 0, 30}, {180, 180}}}}});
    MD2View& view = OpenModel(sheet.Build());
    view.setMinimumSize(900, 900);
    const auto texel = [](double at, int count) { return std::min(static_cast<int>(at), count - 1); };
    sheet
        .Project(view.size(),
                 [&](const Vector& place) { return TexelColor(texel(place[0], 200), texel(place[1], 194)); })
        .ExpectSeenIn(PictureOf(view));
}

TEST_F(MD2ViewTest, MovesByTheKeyboard) {
    OpenTexture("floor.wal", 64, 64);
    MD2View& view = OpenModel(scene.Build());
    const auto expectAt = [&](double x, double y) {
        SCOPED_TRACE(testing::Message() << x << ", " << y);
        ExpectScene(view, ColorOfSmallTexture, {x, y, 0});
    };
    Type(view, "e");
    expectAt(0, -16);
    Type(view, "d");
    Type(view, "d", Qt::ShiftModifier);
    Type(view, "f");
    expectAt(-16, 1);
    Type(view, "s");
    Type(view, "s", Qt::ShiftModifier);
    for (const char* idle : {"D", "E", "F", "S", "x", "dd", ""}) Type(view, idle, Qt::ShiftModifier);
    for (const Qt::KeyboardModifier key : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        Type(view, "s", key);
    expectAt(1, 1);
}

TEST_F(MD2ViewTest, KeepsThePictureOfWhenItWasMade) {
    TavloDocument& floor = OpenTexture("floor.wal", 64, 64);
    MD2View& view = OpenModel(scene.Build());
    floor.GetTexture().SetSize(1, 1);
    floor.GetTexture().SetPixel(0, 0, 0xFF102030);
    floor.UpdateAllViews(nullptr);
    ExpectScene(view);
    CDocument& model = *view.GetDocument();
    model.GetDocTemplate()->CreateNewFrame(model)->InitialUpdate(true);
    MD2View& later = ViewOf(model);
    ASSERT_NE(&later, &view);
    ExpectScene(later, [](const Vector&) { return qRgb(0x10, 0x20, 0x30); });
    ExpectScene(view);
}

TEST_F(MD2ViewTest, IsGreyWithoutAPictureAndRedWithoutTexture) {
    MD2View& view = OpenModel(scene.Build());
    const auto expect = [&](QRgb color) { ExpectScene(view, [&](const Vector&) { return color; }); };
    expect(grey);
    EXPECT_TRUE(StateOf(ID_3D_TEXTURED).radio);
    EXPECT_TRUE(Send(ID_3D_SOLID));
    expect(qRgb(255, 0, 0));
    EXPECT_TRUE(StateOf(ID_3D_SOLID).radio);
    EXPECT_FALSE(StateOf(ID_3D_TEXTURED).radio);
    EXPECT_TRUE(Send(ID_3D_TEXTURED));
    expect(grey);
    EXPECT_FALSE(StateOf(ID_3D_WIREFRAME).enabled);
}

TEST_F(MD2ViewTest, ShowsNothingWhereNothingIsDrawn) {
    OpenTexture("floor.wal", 64, 64);
    const auto expectBlack = [](QWidget& view) {
        QImage black(view.size(), QImage::Format_RGB32);
        black.fill(Qt::black);
        EXPECT_EQ(PictureOf(view), black);
    };
    expectBlack(OpenModel(Md2Builder().Build()));
    CDocument* studioModel = program.OpenDocumentFile(PathTo("model.mdl"));
    auto& studioView = dynamic_cast<ModelView&>(*studioModel->GetViews().front());
    expectBlack(studioView);
    Type(studioView, "d");
    expectBlack(studioView);
}
