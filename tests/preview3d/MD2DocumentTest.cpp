#include "preview3d/MD2Document.h"

#include "builders/ModelBuilder.h"
#include "support/TestApplication.h"

#include <cstring>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class MD2DocumentTest : public WorkshopTest {
protected:
    std::string OpenModel(const Bytes& bytes) { return Try<MD2Document>(bytes, ".md2"); }
    // The message for the small model with one field changed.
    std::string OpenWith(std::size_t field, std::uint32_t value) {
        Bytes bytes = Small().Build();
        PutU32(bytes, field, value);
        return OpenModel(bytes);
    }
    static Md2Builder Small() {
        Md2Builder model;
        model.skins = {std::string("models/a.pcx\0xy", 15), std::string(64, 'n')};
        model.texCoords = 3;
        model.triangles = {
            {2, 1, 0, 0, 1, 2}, {3, 1, 0, 0, 1, 2}, {2, 1, 0, 0, 3, 2}, {0xFFFF, 0, 0, 0, 0, 0}};
        model.frames = 2;
        model.vertices = 3;
        return model;
    }
};

} // namespace

TEST_F(MD2DocumentTest, ReadsEveryPart) {
    Bytes bytes = Small().Build();
    PutU32(bytes, Md2Builder::frameSize, 1); // of no importance
    const auto* model = Open<MD2Document>(Put("every part.md2", bytes));
    ASSERT_NE(model, nullptr);
    EXPECT_THAT(model->GetSkins(), ElementsAre("models/a.pcxxy", std::string(64, 'n')));
    ASSERT_EQ(model->GetTexCoords().size(), 3U);
    EXPECT_EQ(model->GetTexCoords()[2].s, 2);
    EXPECT_EQ(model->GetTexCoords()[2].t, -2);
    ASSERT_EQ(model->GetFrames().size(), 2U);
    const MD2Document::Frame& frame = model->GetFrames()[1];
    EXPECT_THAT(frame.scale, ElementsAre(1, 2, 3));
    EXPECT_THAT(frame.translate, ElementsAre(10, 20, 30));
    EXPECT_STREQ(frame.name, "frame1");
    ASSERT_EQ(frame.vertices.size(), 3U);
    EXPECT_EQ(std::memcmp(&frame.vertices[2], "\1\2\3", 4), 0);
    const auto& triangles = model->GetTriangles();
    ASSERT_EQ(triangles.size(), 4U);
    EXPECT_THAT(triangles[0].vertices, ElementsAre(2, 1, 0));
    EXPECT_THAT(triangles[0].texCoords, ElementsAre(0, 1, 2));
    EXPECT_TRUE(model->IsDrawable(triangles[0]));
    for (std::size_t i = 1; i < triangles.size(); ++i) EXPECT_FALSE(model->IsDrawable(triangles[i])) << i;
}

TEST_F(MD2DocumentTest, PartsMayBeMissing) {
    Bytes bytes = Md2Builder().Build();
    for (const std::size_t field : {Md2Builder::skinOffset, Md2Builder::texCoordOffset,
                                    Md2Builder::triangleOffset, Md2Builder::frameOffset})
        PutU32(bytes, field, 0xFFFFFFFF);
    EXPECT_EQ(OpenModel(bytes), "");
    Md2Builder poses = Small();
    poses.frames = 0;
    const auto* model = Open<MD2Document>(Put("poses.md2", poses.Build()));
    ASSERT_NE(model, nullptr);
    EXPECT_FALSE(model->IsDrawable(model->GetTriangles()[0]));
    poses.frames = 2;
    poses.vertices = 0;
    EXPECT_EQ(OpenModel(poses.Build()), "");
}

TEST_F(MD2DocumentTest, ChecksTheHeaderInItsOrder) {
    EXPECT_THAT(OpenModel(ToBytes("IDPO" + std::string(64, '\0'))), HasSubstr(badFormat));
    EXPECT_THAT(OpenWith(Md2Builder::version, 7), HasSubstr(badVersion));
    EXPECT_EQ(OpenModel(Md2Builder::Largest()), "");
    for (const auto& [field, limit] :
         {std::pair(Md2Builder::skinCount, 32U), std::pair(Md2Builder::vertexCount, 2048U),
          std::pair(Md2Builder::triangleCount, 4096U), std::pair(Md2Builder::frameCount, 512U)}) {
        EXPECT_THAT(OpenWith(field, limit), HasSubstr(tooShort)) << field;
        EXPECT_THAT(OpenWith(field, limit + 1), HasSubstr(badIndex)) << field;
        EXPECT_THAT(OpenWith(field, 0x7FFFFFFF), HasSubstr(badIndex)) << field;
        EXPECT_THAT(OpenWith(field, 0x80000000), HasSubstr(badIndex)) << field;
    }
    EXPECT_THAT(OpenWith(Md2Builder::texCoordCount, 0x7FFFFFFF), HasSubstr(tooShort));
    EXPECT_THAT(OpenWith(Md2Builder::texCoordCount, 0xFFFFFFFF), HasSubstr(badIndex));
    Bytes bytes = Small().Build();
    PutU32(bytes, Md2Builder::version, 9);
    PutU32(bytes, Md2Builder::skinCount, 33);
    EXPECT_THAT(OpenModel(bytes), HasSubstr(badVersion));
}

TEST_F(MD2DocumentTest, RefusesPartsOutsideTheFile) {
    const Bytes whole = Small().Build();
    for (const std::size_t field : {Md2Builder::skinOffset, Md2Builder::texCoordOffset,
                                    Md2Builder::triangleOffset, Md2Builder::frameOffset})
        for (const std::uint32_t offset :
             {static_cast<std::uint32_t>(whole.size() - 11), 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
            EXPECT_THAT(OpenWith(field, offset), HasSubstr(tooShort)) << field << " " << offset;
    ExpectNoCutOpens<MD2Document>(whole, ".md2", tooShort);
}

TEST_F(MD2DocumentTest, OpensInAPackAndCannotBeSaved) {
    PackBuilder pack;
    pack.Add("models/m.md2", Small().Build());
    auto* model = Open<MD2Document>(Put("pak0.pak", pack.Build()) + "/models/M.MD2");
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->GetFrames().size(), 2U);
    ExpectCannotBeSaved(*model, "Cannot save");
}
