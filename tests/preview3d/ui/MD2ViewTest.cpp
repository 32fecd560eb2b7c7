#include "preview3d/ui/MD2View.h"

#include "image/TavloDocument.h"
#include "support/builders/ModelBuilder.h"
#include "support/ui/GLErrors.h"
#include "support/ui/ProgramFixture.h"
#include "support/ui/RayCaster.h"

#include <cmath>

namespace keltavlo {

namespace {

using Shade = std::function<QRgb(const QVector3D&)>;

constexpr QRgb gray = qRgb(0x80, 0x80, 0x80);
const QVector3D scale{0.25F, 0.5F, 0.25F}, translate{-30, 40, -30};

// The quads of the model, in unscaled vertices and texture coordinates. The second one is tilted in front of
// the first and repeats the texture. The third one is in front of both but faces away.
const std::vector<RayCaster::Quad> scene = {
    {{{{0, 120, 0}, {0, 200, 0}},
      {{240, 120, 0}, {240, 200, 0}},
      {{240, 120, 240}, {240, 0, 0}},
      {{0, 120, 240}, {0, 0, 0}}}},
    {{{{20, 40, 30}, {-40, 150, 0}},
      {{130, 90, 60}, {100, 150, 0}},
      {{140, 60, 160}, {100, 10, 0}},
      {{60, 20, 150}, {-40, 10, 0}}}},
    {{{{0, 10, 0}, {}}, {{0, 10, 240}, {}}, {{240, 10, 240}, {}}, {{240, 10, 0}, {}}}},
};

// Builds a model of the scene, drawn after triangles that cannot be drawn.
Bytes BuildScene() {
    const auto at = [](int i) -> const RayCaster::Corner& {
        return scene[static_cast<std::size_t>(i) / 4][static_cast<std::size_t>(i) % 4];
    };
    Md2Builder model;
    model.scale = {scale.x(), scale.y(), scale.z()};
    model.translate = {translate.x(), translate.y(), translate.z()};
    model.vertexAt = [=](int, int i) {
        const QVector3D place = at(i).place;
        return Md2Builder::Vertex{qRound(place.x()), qRound(place.y()), qRound(place.z())};
    };
    model.texCoordAt = [=](int i) {
        return Md2Builder::TexCoord{qRound(at(i).values.x()), qRound(at(i).values.y())};
    };
    model.triangles = {{0, 1, 12, 0, 1, 2}, {0, 1, 2, 0, 1, 12}, {0xFFFF, 1, 2, 0, 1, 2}};
    const std::uint16_t corners[][3] = {{0, 1, 2}, {0, 2, 3}, {4, 5, 6}, {4, 6, 7}, {8, 9, 10}, {8, 10, 11}};
    for (const auto& [a, b, c] : corners) model.triangles.push_back({a, b, c, a, b, c});
    model.texCoords = model.vertices = 12;
    model.frames = 2;
    return model.Build();
}

Color TexelColor(int x, int y) {
    return 0xFF000000 | static_cast<Color>(x) << 16 | static_cast<Color>(y) << 8 | 0x40;
}

// The colors of a texture whose edges are repeated up to the side; the result is tiled.
auto TextureShade(int width, int height, int side) {
    return [=](const QVector3D& place) {
        const auto texel = [=](float at, int count) {
            return std::min(static_cast<int>(std::floor(at)) & (side - 1), count - 1);
        };
        return TexelColor(texel(place.x(), width), texel(place.y(), height));
    };
}

auto PlainShade(QRgb color) {
    return [color](const QVector3D&) { return color; };
}

struct MD2ViewTest : ProgramFixture {
    // Opens a texture that has a different color in every texel.
    TavloDocument& OpenTexture(const std::string& name, int width, int height) {
        auto* document = Open<TavloDocument>(Put(name, MakeWal(8, 8)));
        document->GetTexture().SetSize(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) document->GetTexture().SetPixel(x, y, TexelColor(x, y));
        return *document;
    }
    MD2View& OpenModel(const Bytes& bytes = BuildScene()) {
        CDocument* document = program.OpenDocumentFile(Put("model.md2", bytes));
        QCoreApplication::processEvents();
        return dynamic_cast<MD2View&>(*document->GetViews().back());
    }
    static void ExpectScene(MD2View& view, const Shade& shade = TextureShade(64, 64, 64),
                            const QVector3D& offset = {}) {
        RayCaster expected{{0, -4, 0}, scene, shade};
        for (RayCaster::Quad& quad : expected.quads)
            for (auto& corner : quad) corner.place = scale * corner.place + translate + offset;
        expected.ExpectSeenIn(view);
    }
    // Returns whether the view kept the key for itself.
    static bool Type(QWidget& view, const QString& text, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, 0, keys, text);
        return QCoreApplication::sendEvent(&view, &event) && event.isAccepted();
    }

    bool started = program.InitInstance({Put("model.mdl", MdlBuilder{.textures = {{8, 8}}}.Build())});
};

} // namespace

TEST_F(MD2ViewTest, ShowsEachTexelOfAnOddPictureInItsPlace) {
    OpenTexture("skin.wal", 200, 194);
    MD2View& view = OpenModel();
    view.setMinimumSize(900, 900);
    ExpectScene(view, TextureShade(200, 194, 256));
}

TEST_F(MD2ViewTest, MovesByTheKeyboard) {
    OpenTexture("floor.wal", 64, 64);
    MD2View& view = OpenModel();
    const auto expectAt = [&](float x, float y) {
        SCOPED_TRACE(testing::Message() << x << ", " << y);
        ExpectScene(view, TextureShade(64, 64, 64), QVector3D(x, y, 0));
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
        EXPECT_FALSE(Type(view, "s", key));
    expectAt(1, 1);
}

TEST_F(MD2ViewTest, DrawsTheModelWithThePictureOfWhenItWasMade) {
    TavloDocument& floor = OpenTexture("floor.wal", 64, 64);
    MD2View& view = OpenModel();
    ExpectScene(view);
    view.window()->resize(700, 900);
    QCoreApplication::processEvents();
    ExpectScene(view);
    ExpectNoGLErrors(view);
    floor.GetTexture().SetSize(1, 1);
    floor.GetTexture().SetPixel(0, 0, 0xFF102030);
    floor.UpdateAllViews(nullptr);
    ExpectScene(view);
    Send(ID_WINDOW_NEW);
    auto& later = dynamic_cast<MD2View&>(*view.GetDocument()->GetViews().back());
    ASSERT_NE(&later, &view);
    ExpectScene(later, PlainShade(qRgb(0x10, 0x20, 0x30)));
    ExpectScene(view);
}

TEST_F(MD2ViewTest, IsGrayWithoutAPictureAndRedWithoutTexture) {
    MD2View& view = OpenModel();
    ExpectScene(view, PlainShade(gray));
    EXPECT_TRUE(StateOf(ID_3D_TEXTURED).checked);
    EXPECT_TRUE(Send(ID_3D_SOLID));
    ExpectScene(view, PlainShade(qRgb(255, 0, 0)));
    EXPECT_TRUE(StateOf(ID_3D_SOLID).radio);
    EXPECT_FALSE(StateOf(ID_3D_TEXTURED).checked);
    EXPECT_TRUE(Send(ID_3D_TEXTURED));
    ExpectScene(view, PlainShade(gray));
    EXPECT_FALSE(StateOf(ID_3D_WIREFRAME).enabled);
}

TEST_F(MD2ViewTest, ShowsNothingWhereNothingIsDrawn) {
    OpenTexture("floor.wal", 64, 64);
    const RayCaster nothing;
    nothing.ExpectSeenIn(OpenModel(Md2Builder().Build()));
    CDocument* studioModel = program.OpenDocumentFile(PathTo("model.mdl"));
    auto& studioView = dynamic_cast<ModelView&>(*studioModel->GetViews().front());
    nothing.ExpectSeenIn(studioView);
    Type(studioView, "d");
    nothing.ExpectSeenIn(studioView);
}

} // namespace keltavlo
