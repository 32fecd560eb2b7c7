#include "tool/Tool.h"

#include "builders/ModelBuilder.h"
#include "support/TestApplication.h"

#include <QTemporaryDir>

#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class ToolTest : public testing::Test {
protected:
    ToolTest() {
        PackBuilder pack;
        pack.Add("textures/floor.wal", MakeWal(64, 32, "e1u1/floor"));
        pack.Add("textures/broken.wal", ToBytes("no texture"));
        pack.Add("readme.txt", ToBytes("hello"));
        pack.Add("README.txt", ToBytes("second"));
        pack.Add("../escape.txt", ToBytes("out"));
        pack.Add("models/player.mdl", MdlBuilder{{{4, 2}, {0, 1}, {16, 16}}}.Build());
        WriteFile(At("a.pak"), pack.Build());
    }
    std::string At(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
    // The exit code; what was written is in `out` and `err`.
    int Run(const std::vector<std::string>& arguments) {
        std::ostringstream output, errors;
        const int code = Tool(output, errors, false).Run(arguments);
        out = output.str();
        err = errors.str();
        return code;
    }

    QTemporaryDir folder;
    std::string out, err;
};

} // namespace

TEST_F(ToolTest, RefusesWhatItDoesNotUnderstand) {
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(Run({"fly", "a"}), 2);
    EXPECT_EQ(Run({"list"}), 2);
    EXPECT_EQ(Run({"list", "a", "--wings"}), 2);
    EXPECT_EQ(Run({"convert", At("a.pak"), At("out")}), 2);
    EXPECT_EQ(Run({"convert", At("a.pak"), At("out"), "--to", "png"}), 2);
    EXPECT_EQ(Run({"convert", At("a.pak/textures/floor.wal"), At("x.png")}), 2);
    EXPECT_THAT(out, IsEmpty());
    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_THAT(out, HasSubstr("extract PATH OUTDIR"));
}

TEST_F(ToolTest, ListsAndDescribes) {
    EXPECT_EQ(Run({"list", At("a.pak")}), 0);
    EXPECT_THAT(out, HasSubstr("folder"));
    EXPECT_THAT(out, HasSubstr("         5  unknown"));
    EXPECT_EQ(Run({"list", At("a.pak/textures")}), 0);
    EXPECT_THAT(out, HasSubstr("Quake II Texture Files (*.wal)          floor.wal"));
    EXPECT_EQ(Run({"list", At("a.pak/textures/floor.wal")}), 1);
    EXPECT_EQ(Run({"list", At("missing.pak")}), 1);
    EXPECT_EQ(Run({"info", At("a.pak/textures/floor.wal")}), 0);
    EXPECT_THAT(out, HasSubstr("size: 64 x 32\nQuake II name: e1u1/floor\n"));
    EXPECT_EQ(Run({"info", At("a.pak/textures/broken.wal")}), 1);
    EXPECT_THAT(err, HasSubstr("broken.wal\". The file ends too early."));
}

TEST_F(ToolTest, ConvertsOnePictureWithoutOverwriting) {
    EXPECT_EQ(Run({"convert", At("a.pak/textures/floor.wal"), At("new/floor.tga")}), 0);
    EXPECT_EQ(Run({"convert", At("new/floor.tga"), At("new/floor.wal")}), 0);
    EXPECT_EQ(ReadFile(At("new/floor.wal")).size(), 100 + 64 * 32 * 85 / 64);
    EXPECT_EQ(Run({"convert", At("a.pak/textures/floor.wal"), At("new/floor.wal")}), 1);
    EXPECT_THAT(err, HasSubstr("--force"));
    EXPECT_EQ(Run({"convert", "--force", At("a.pak/textures/floor.wal"), At("new/floor.wal")}), 0);
}

TEST_F(ToolTest, ConvertsTreesAndNamesWhatWasLeftOut) {
    EXPECT_EQ(Run({"convert", At("a.pak"), At("out"), "--to", "tga"}), 1);
    EXPECT_TRUE(fs::exists(At("out/textures/floor.tga")));
    EXPECT_FALSE(fs::exists(At("out/textures/broken.tga")));
    EXPECT_THAT(err, HasSubstr("broken.wal"));
    EXPECT_THAT(err, HasSubstr("\"readme.txt\" is no picture"));
    EXPECT_EQ(Run({"convert", At("out"), At("back"), "--to", "wal"}), 0);
    EXPECT_EQ(ReadFile(At("back/textures/floor.wal")).size(), 100 + 64 * 32 * 85 / 64);
}

TEST_F(ToolTest, ExtractsInsideTheFolderOnly) {
    EXPECT_EQ(Run({"extract", At("a.pak"), At("out")}), 1);
    EXPECT_EQ(ReadFile(At("out/readme.txt")), ToBytes("hello"));
    EXPECT_EQ(ReadFile(At("out/textures/floor.wal")), MakeWal(64, 32, "e1u1/floor"));
    EXPECT_FALSE(fs::exists(At("escape.txt")));
    EXPECT_THAT(err, HasSubstr("would lead out"));
    EXPECT_THAT(err, HasSubstr("\"README.txt\" stands there a second time"));
    EXPECT_EQ(Run({"extract", At("a.pak/readme.txt"), At("one")}), 0);
    EXPECT_EQ(ReadFile(At("one/readme.txt")), ToBytes("hello"));
    EXPECT_EQ(Run({"extract", At("a.pak/nothing"), At("one")}), 1);
}

TEST_F(ToolTest, DescribesModelsAndWritesTheirTextures) {
    Md2Builder model;
    model.skins = {"models/a.pcx"};
    model.texCoords = 5;
    model.triangles = {{0, 1, 2, 0, 1, 2}};
    model.frames = 2;
    model.vertices = 3;
    WriteFile(At("a.md2"), model.Build());
    EXPECT_EQ(Run({"info", At("a.md2")}), 0);
    EXPECT_THAT(out, HasSubstr("frames: 2\nvertices of a frame: 3\ntexture coordinates: 5\ntriangles: 1\n"
                               "skins: 1\nskin: models/a.pcx\n"));
    const std::string path = At("a.pak/models/player.mdl");
    EXPECT_EQ(Run({"info", path}), 0);
    EXPECT_THAT(out, HasSubstr("textures: 3\ntexture: 4 x 2\ntexture: 0 x 1\ntexture: 16 x 16\n"));
    EXPECT_EQ(Run({"extract", path, At("out")}), 0);
    EXPECT_THAT(err, HasSubstr("player_2.tga\" would have no pixels"));
    EXPECT_TRUE(fs::exists(At("out/player.mdl")));
    EXPECT_EQ(ReadFile(At("out/player_1.tga"))[18], std::byte{4 * 3}) << "blue of the bottom left";
    EXPECT_EQ(Run({"info", At("out/player_3.tga")}), 0);
    EXPECT_THAT(out, HasSubstr("size: 16 x 16\n"));
    EXPECT_EQ(Run({"extract", At("out/player.mdl"), At("out")}), 1) << "nothing is written over";
    EXPECT_EQ(Run({"extract", At("out/player.mdl"), At("again")}), 0);
    EXPECT_FALSE(fs::exists(At("again/player.mdl"))) << "it lies on the disk already";
}
