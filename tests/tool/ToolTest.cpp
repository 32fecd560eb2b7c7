#include "tool/Tool.h"

#include "support/FolderTest.h"
#include "support/builders/ModelBuilder.h"
#include "support/builders/TextureBuilder.h"
#include "support/builders/WadBuilder.h"
#include "tool/TreeWalk.h"

#include <filesystem>
#include <sstream>

namespace keltavlo {

namespace fs = std::filesystem;
using testing::HasSubstr;

class ToolTest : public FolderTest {
protected:
    ToolTest() {
        PackBuilder builder;
        builder.Add("textures/floor.wal", MakeWal(64, 32, "e1u1/floor"));
        builder.Add("textures/broken.wal", ToBytes("no texture"));
        builder.Add("readme.txt", ToBytes("hello"));
        builder.Add("README.txt", ToBytes("second"));
        builder.Add("../escape.txt", ToBytes("out"));
        builder.Add("models/player.mdl", MdlBuilder{{{4, 2}, {0, 1}, {16, 16}}}.Build());
        Put("a.pak", builder.Build());
    }
    // Returns the exit code. The texts are in `out` and `err`.
    int Run(const std::vector<std::string>& arguments) {
        std::ostringstream output, errors;
        const int code = Tool(output, errors, false).Run(arguments);
        out = output.str();
        err = errors.str();
        return code;
    }

    const std::string pack = PathTo("a.pak"), floor = pack + "/textures/floor.wal";
    std::string out, err;
};

TEST_F(ToolTest, RefusesWhatItDoesNotUnderstand) {
    for (const auto& [command, sentence] :
         {std::pair<std::vector<std::string>, const char*>{{}, "No command given"},
          {{"fly", "a"}, "Unknown command: fly."},
          {{"list"}, "list requires PATH"},
          {{"list", "a", "--wings"}, "Unknown option: --wings."},
          {{"convert", "a", "b", "--to"}, "--to requires wal|mip|"},
          {{"extract", "--force=1", "a", "b"}, "--force takes no value."},
          {{"convert", "-j", "-1", "a", "b"}, "--jobs requires a number"},
          {{"convert", "a", ""}, "The name of the output is empty."},
          {{"convert", pack, PathTo("out")}, "requires --to FORMAT"},
          {{"convert", pack, PathTo("out"), "--to", "gif"}, "--to requires wal"},
          {{"convert", floor, PathTo("x.gif")}, "must end in .wal"}}) {
        EXPECT_EQ(Run(command), 2) << sentence;
        EXPECT_THAT(err, HasSubstr(sentence));
        EXPECT_EQ(out, "");
    }
    EXPECT_EQ(Run({"extract", "--help"}), 0);
    EXPECT_THAT(out, HasSubstr("extract [OPTION]... PATH... OUTDIR"));
}

TEST_F(ToolTest, ListsAndDescribes) {
    EXPECT_EQ(Run({"list", pack}), 0);
    EXPECT_THAT(out, HasSubstr("folder"));
    EXPECT_THAT(out, HasSubstr("         5  unknown"));
    EXPECT_EQ(Run({"list", pack + "/textures"}), 0);
    EXPECT_THAT(out, HasSubstr("Quake II Texture Files (*.wal)          floor.wal"));
    EXPECT_EQ(Run({"list", floor}), 1);
    EXPECT_EQ(Run({"list", PathTo("missing.pak")}), 1);
    EXPECT_EQ(Run({"info", floor}), 0);
    EXPECT_THAT(out, HasSubstr("size: 64 x 32\nQuake II name: e1u1/floor\n"));
    EXPECT_EQ(Run({"info", pack + "/textures/broken.wal"}), 1);
    EXPECT_THAT(err, HasSubstr("broken.wal\". The file ends too early."));
}

TEST_F(ToolTest, ListsFoldersAndArchivesInArchives) {
    PackBuilder outer;
    outer.Add("maps/inner.pak", ReadFile(pack));
    outer.Add("caf\xE9", {});
    const std::string path = Put("outer.pak", outer.Build());
    EXPECT_EQ(Run({"list", "-r", path}), 0);
    EXPECT_THAT(out, HasSubstr("  maps/inner.pak/textures/floor.wal\n"));
    EXPECT_EQ(Run({"list", "-r", "--no-archives", "--json", path, PathTo("no.pak")}), 1);
    EXPECT_THAT(err, HasSubstr("no.pak\" was not found"));
    EXPECT_THAT(out,
                HasSubstr("\"name\": \"caf%E9\",\n        \"type\": \"unknown\",\n        \"size\": 0\n"));
    EXPECT_THAT(out, testing::Not(HasSubstr("floor.wal")));
    EXPECT_EQ(Run({"info", "--json", floor}), 0);
    EXPECT_THAT(out, HasSubstr("\"width\": 64,\n    \"height\": 32,\n    \"quake2Name\": \"e1u1/floor\""));
}

TEST_F(ToolTest, FindsEveryNameThatItLists) {
    std::vector<std::string> names{"..", "%41", "%%41", "a%1", "%2F"};
    for (int code = 1; code < 256; ++code)
        if (code != '/' && code != '\\' && code != ':') names.emplace_back(1, static_cast<char>(code));
    WadBuilder wad;
    const auto sizeOf = [](const std::string& name) { // names ignore case
        return name.size() * 300 +
               static_cast<std::size_t>(std::tolower(static_cast<unsigned char>(name.back())));
    };
    for (const std::string& name : names) wad.Add(name, 0, Bytes(sizeOf(name)));
    const std::string path = Put("names.wad", wad.Build());
    EXPECT_EQ(Run({"list", path}), 0);
    std::istringstream lines(out);
    std::ostringstream nothing;
    Tool tool(nothing, nothing, false);
    for (const std::string& name : names) {
        std::string line;
        std::getline(lines, line);
        const std::string shown = line.substr(52);
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(TreePath(path + "/" + shown), status);
        EXPECT_EQ(status.size, sizeOf(name)) << shown;
    }
}

TEST_F(ToolTest, ConvertsOnePictureWithoutOverwriting) {
    EXPECT_EQ(Run({"convert", floor, PathTo("new/floor.tga")}), 0);
    EXPECT_EQ(Run({"convert", PathTo("new/floor.tga"), PathTo("new/floor.wal")}), 0);
    EXPECT_EQ(Run({"convert", floor, PathTo("new/floor.wal")}), 1);
    EXPECT_THAT(err, HasSubstr("--force"));
    EXPECT_EQ(Run({"convert", "--force", floor, PathTo("new/floor.wal")}), 0);
}

TEST_F(ToolTest, RefusesToConvertWhatIsNoPicture) {
    for (const std::string& path :
         {Put("palette.lmp", Bytes(768)), pack + "/readme.txt", pack + "/models/player.mdl"}) {
        EXPECT_EQ(Run({"convert", path, PathTo("x.tga")}), 1) << path;
        EXPECT_NE(err, "") << path;
    }
    EXPECT_THAT(err, HasSubstr("player.mdl\" is not a picture"));
    EXPECT_FALSE(fs::exists(PathTo("x.tga")));
}

TEST_F(ToolTest, NeverWritesOverItsOwnFiles) {
    const Bytes wal = MakeWal(64, 32, "e1u1/floor");
    Put("x.wal", wal);
    EXPECT_EQ(Run({"convert", PathTo("x.wal"), PathTo("x.tga")}), 0);
    const Bytes tga = ReadFile(PathTo("x.tga"));
    fs::create_symlink(PathTo("x.wal"), PathTo("link.tga"));
    fs::create_hard_link(PathTo("x.wal"), PathTo("hard.tga"));
    fs::create_symlink(pack, PathTo("pack.tga"));
    for (const auto& [from, to] : {std::pair{PathTo("x.wal"), "x.wal"},
                                   {PathTo("x.wal"), "link.tga"},
                                   {PathTo("x.wal"), "hard.tga"},
                                   {floor, "pack.tga"}}) {
        EXPECT_EQ(Run({"convert", "--force", from, PathTo(to)}), 1) << to;
        EXPECT_THAT(err, HasSubstr("is read in this run")) << to;
    }
    const Bytes archive = ReadFile(pack);
    fs::create_directories(PathTo("two"));
    for (const char* name : {"x.tga", "x.wal"}) fs::copy(PathTo(name), PathTo("two"));
    EXPECT_EQ(Run({"convert", "--force", PathTo("two"), PathTo("two"), "--to", "tga"}), 1);
    EXPECT_THAT(err, HasSubstr("is read in this run"));
    EXPECT_EQ(Run({"convert", "--force", PathTo("two"), PathTo("out"), "--to", "pcx"}), 1);
    EXPECT_THAT(err, HasSubstr("x.pcx\" was written in this run"));
    EXPECT_EQ(Run({"extract", "--force", PathTo("two"), PathTo("two")}), 1);
    EXPECT_EQ(ReadFile(PathTo("two/x.tga")), tga);
    EXPECT_EQ(ReadFile(PathTo("two/x.wal")), wal);
    PackBuilder itself;
    itself.Add("itself.pak", ToBytes("not this"));
    Put("itself.pak", itself.Build());
    EXPECT_EQ(Run({"extract", "--force", PathTo("itself.pak"), folder.path().toStdString()}), 1);
    EXPECT_EQ(ReadFile(PathTo("itself.pak")), itself.Build());
    EXPECT_EQ(ReadFile(pack), archive);
}

TEST_F(ToolTest, FilesWithTheNameOfAFolderAreAllWritten) {
    PackBuilder builder;
    for (const char* name : {"a", "a/b", "c/d", "c", "A_2"}) builder.Add(name, ToBytes(name));
    const std::string twins = Put("twins.pak", builder.Build());
    EXPECT_EQ(Run({"list", twins}), 0);
    EXPECT_THAT(out, HasSubstr("folder                                  a/\n"));
    EXPECT_EQ(Run({"list", twins + "/a/"}), 0);
    EXPECT_THAT(out, HasSubstr("  b\n"));
    EXPECT_EQ(Run({"extract", twins, PathTo("out")}), 0);
    EXPECT_THAT(err, HasSubstr("\"a_3\""));
    for (const auto& [file, text] :
         {std::pair{"a", "a"}, {"a_3/b", "a/b"}, {"c/d", "c/d"}, {"c_2", "c"}, {"A_2", "A_2"}})
        EXPECT_EQ(ReadFile(PathTo("out/" + std::string(file))), ToBytes(text)) << file;
    EXPECT_EQ(Run({"extract", twins + "/a/", PathTo("one")}), 0);
    EXPECT_EQ(ReadFile(PathTo("one/b")), ToBytes("a/b"));
}

TEST_F(ToolTest, ConvertsTreesAndNamesWhatWasLeftOut) {
    EXPECT_EQ(Run({"convert", pack, PathTo("out"), "--to", "tga"}), 1);
    EXPECT_FALSE(fs::exists(PathTo("out/textures/broken.tga")));
    EXPECT_THAT(err, HasSubstr("broken.wal"));
    EXPECT_THAT(err, HasSubstr("Skipped \"readme.txt\": not a picture"));
    EXPECT_EQ(Run({"convert", PathTo("out"), PathTo("back"), "--to", "wal"}), 0);
    EXPECT_EQ(ReadFile(PathTo("back/textures/floor.wal")).size(), 100 + 64 * 32 * 85 / 64);
}

TEST_F(ToolTest, ExtractsInsideTheFolderOnly) {
    EXPECT_EQ(Run({"extract", pack, PathTo("out")}), 1);
    EXPECT_EQ(ReadFile(PathTo("out/readme.txt")), ToBytes("hello"));
    EXPECT_EQ(ReadFile(PathTo("out/textures/floor.wal")), MakeWal(64, 32, "e1u1/floor"));
    EXPECT_FALSE(fs::exists(PathTo("escape.txt")));
    EXPECT_THAT(err, HasSubstr("would lead out of"));
    EXPECT_THAT(err, HasSubstr("this one becomes \"README_2.txt\""));
    EXPECT_EQ(ReadFile(PathTo("out/README_2.txt")), ToBytes("second"));
    EXPECT_EQ(Run({"extract", pack + "/readme.txt", PathTo("one")}), 0);
    EXPECT_EQ(ReadFile(PathTo("one/readme.txt")), ToBytes("hello"));
    EXPECT_EQ(Run({"extract", pack + "/nothing", PathTo("one")}), 1);
}

TEST_F(ToolTest, DescribesModelsAndWritesTheirTextures) {
    const Md2Builder model{.skins = {"models/a.pcx"},
                           .texCoords = 5,
                           .triangles = {{0, 1, 2, 0, 1, 2}},
                           .frames = 2,
                           .vertices = 3};
    EXPECT_EQ(Run({"info", Put("a.md2", model.Build())}), 0);
    EXPECT_THAT(out, HasSubstr("frames: 2\nvertices of a frame: 3\ntexture coordinates: 5\ntriangles: 1\n"
                               "skins: 1\nskin: models/a.pcx\n"));
    const std::string path = pack + "/models/player.mdl";
    EXPECT_EQ(Run({"info", path}), 0);
    EXPECT_THAT(out, HasSubstr("textures: 3\ntexture: 4 x 2\ntexture: 0 x 1\ntexture: 16 x 16\n"));
    EXPECT_EQ(Run({"extract", path, PathTo("out")}), 0);
    EXPECT_THAT(err, HasSubstr("player_2.tga\": it would have no pixels"));
    EXPECT_EQ(ReadFile(PathTo("out/player_1.tga"))[18], std::byte{4 * 3}) << "blue of the bottom left";
    EXPECT_EQ(Run({"extract", PathTo("out/player.mdl"), PathTo("out")}), 1) << "nothing is written over";
    EXPECT_EQ(Run({"extract", PathTo("out/player.mdl"), PathTo("again")}), 0);
    EXPECT_FALSE(fs::exists(PathTo("again/player.mdl"))) << "it lies on the disk already";
}

} // namespace keltavlo
