#include "preview3d/MD2Document.h"

#include "support/TestApplication.h"
#include "support/builders/ModelBuilder.h"

#include <cstring>

namespace keltavlo {

using testing::ElementsAre;

struct MD2DocumentTest : WorkshopTest {
    std::string OpenModel(const Bytes& bytes) { return Try<MD2Document>(bytes, ".md2"); }
    static Md2Builder Small() {
        return {.skins = {std::string("models/a.pcx\0xy", 15), std::string(64, 'n')},
                .texCoords = 3,
                .triangles = {{2, 1, 0, 0, 1, 2},
                              {3, 1, 0, 0, 1, 2},
                              {2, 1, 0, 0, 3, 2},
                              {0xFFFF, 0, 0, 0, 0, 0}},
                .frames = 2,
                .vertices = 3};
    }
};

TEST_F(MD2DocumentTest, ReadsEveryPartAlsoInAPack) {
    Bytes bytes = Small().Build();
    PutU32(bytes, Md2Builder::frameSize, 1); // not used by the reader
    const PackBuilder pack{{"models/m.md2", bytes}};
    auto* model = Open<MD2Document>(Put("pak0.pak", pack.Build()) + "/models/M.MD2");
    ASSERT_NE(model, nullptr);
    EXPECT_THAT(model->GetSkins(), ElementsAre("models/a.pcxxy", std::string(64, 'n')));
    EXPECT_EQ(model->GetTexCoords().at(2).s, 2);
    EXPECT_EQ(model->GetTexCoords().at(2).t, -2);
    const MD2Document::Frame& frame = model->GetFrames().at(1);
    EXPECT_THAT(frame.scale, ElementsAre(1, 2, 3));
    EXPECT_THAT(frame.translate, ElementsAre(10, 20, 30));
    EXPECT_STREQ(frame.name, "frame1");
    ASSERT_EQ(frame.vertices.size(), 3U);
    EXPECT_EQ(std::memcmp(&frame.vertices[2], "\1\2\3", 4), 0);
    const auto& triangles = model->GetTriangles();
    EXPECT_THAT(triangles.at(0).vertices, ElementsAre(2, 1, 0));
    EXPECT_THAT(triangles[0].texCoords, ElementsAre(0, 1, 2));
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(model->IsDrawable(triangles.at(i)), i == 0) << i;
    EXPECT_FALSE(model->OnOpenDocument(PathTo("missing.md2")));
    EXPECT_TRUE(model->GetSkins().empty() && model->GetTexCoords().empty() && triangles.empty() &&
                model->GetFrames().empty());
}

TEST_F(MD2DocumentTest, PartsMayBeMissingOrAsLargeAsTheGameAllows) {
    Bytes bytes = Md2Builder().Build();
    std::fill_n(bytes.begin() + Md2Builder::skinOffset, 16, std::byte{0xFF}); // the offsets of the parts
    EXPECT_EQ(OpenModel(bytes), "");
    Md2Builder poses = Small();
    poses.frames = 0;
    EXPECT_FALSE(Open<MD2Document>(Put("poses.md2", poses.Build()))->IsDrawable({}));
    poses.frames = 2;
    poses.vertices = 0;
    EXPECT_EQ(OpenModel(poses.Build()), "");
    EXPECT_EQ(OpenModel(Md2Builder::Largest()), "");
}

} // namespace keltavlo
