// Each allocation of each command fails, once or from then on. A run either does all that it should or ends
// with a sentence and code 1, and its outputs are old or whole.
#include "support/ChildProcess.h"
#include "support/Fault.h"
#include "support/FolderTest.h"
#include "support/builders/CompressedPictures.h"
#include "support/builders/ModelBuilder.h"
#include "support/builders/TextureBuilder.h"
#include "support/builders/WadBuilder.h"
#include "support/readers/ArchiveSeeds.h"
#include "tool/CommandLine.h"
#include "tool/MemoryShortage.h"
#include "tool/Tool.h"

#include <filesystem>
#include <limits>
#include <map>
#include <sstream>
#include <sys/mman.h>

namespace keltavlo {

namespace fs = std::filesystem;

namespace {

struct ToolRun {
    const char* name;
    const char* words;
    const char* partial = nullptr; // an output that shows what could be read of the inputs
    bool parsesToo = false;        // each allocation of the parser fails as well
};

constexpr ToolRun toolRuns[] = {
    {"List", "list -r a.pak b.wad c.zip d.bsp"},
    {"ListAsJson", "list -r --json a.pak b.wad c.zip d.bsp"},
    {"Info", "info b.wad/wall.mip g.mdl h.png"},
    {"InfoAsJson", "info --json a.pak b.wad floor.wal e.md2 f.mdl i.jpg"},
    {"Sheet", "sheet --force a.pak out/old.png", "old.png"},
    {"Extract", "extract --force --jobs 1 --metadata a.pak c.zip f.mdl out", "textures.json"},
    {"ConvertToMip",
     "convert --force --jobs 1 --metadata --palette own --dither a.pak d.bsp h.png out --to mip",
     "textures.json", true},
    {"ConvertToWal", "convert --force --jobs 1 --set value=300,next=wall2 b.wad i.jpg out --to wal"},
    {"ConvertToPcx", "convert --force --jobs 1 --palette h.png floor.wal out/old.pcx"},
    {"ConvertToBmp", "convert --force --jobs 1 h.png floor.wal out --to bmp"},
    {"ConvertToPng", "convert --force --jobs 1 floor.wal out/old.png"},
    {"ConvertInThreads", "convert --force --jobs 2 a.pak d.bsp h.png i.jpg out --to tga"},
    {"PackPak", "pack --force --jobs 1 a.pak c.zip out/old.pak"},
    {"PackWad2", "pack --force --jobs 1 --wad2 textures out/old.wad"},
    {"PackWad3", "pack --force --jobs 2 textures out/old.wad"},
    {"Append", "pack --append --jobs 1 c.zip out/old.pak"},
    {"Replace", "pack --replace --jobs 1 textures out/old.pak"},
    {"Delete", "pack --delete textures out/old.pak"},
};

std::vector<std::string> WordsOf(const char* line) {
    std::istringstream in(line);
    return {std::istream_iterator<std::string>(in), {}};
}

// A number that all processes of the test share.
class SharedNumber {
public:
    SharedNumber()
        : number(static_cast<unsigned*>(
              mmap(nullptr, sizeof(unsigned), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {}
    unsigned& operator*() const { return *number; }

private:
    unsigned* number; // until the test's process ends
};

using Tree = std::map<std::string, Bytes>;

class ToolFaults : public FolderTest, public testing::WithParamInterface<ToolRun> {
protected:
    ToolFaults() {
        const Bytes wal = MakeWal(16, 8, "floor");
        Put("floor.wal", wal);
        PackBuilder inner{{"x.wal", wal}};
        const PackBuilder pack{{"floor.wal", wal},
                               {"sub/Floor.wal", wal},
                               {"sub/in.pak", inner.Build()},
                               {"note.txt", ToBytes("text")}};
        Put("a.pak", oldPack = pack.Build());
        WadBuilder wad;
        wad.Add("wall", WadBuilder::wad3TextureType, MakeMip("wall", 16, 8, true));
        Put("b.wad", wad.Build());
        Put("c.zip", MakeZip());
        Put("d.bsp", MakeMap());
        Put("e.md2", Md2Builder{.skins = {"skin"},
                                .texCoords = 3,
                                .triangles = {{0, 1, 2, 0, 1, 2}},
                                .frames = 1,
                                .vertices = 3}
                         .Build());
        Put("f.mdl", MdlBuilder{{{2, 2}}}.Build());
        Put("g.mdl", MakeSkinnedModel());
        Put("h.png", MakePng(8, 3, false));
        Put("i.jpg", MakeJpeg(3, false));
        fs::create_directory(PathTo("textures"));
        Put("textures/floor.wal", wal);
        fs::current_path(PathTo(""));
    }
    ~ToolFaults() override { fs::current_path(before); }

    // Puts only an old file in the folder of the outputs, at the place of a single output.
    void Reset() {
        Tree fresh;
        if (words.back().starts_with("out/")) fresh[words.back()] = oldPack;
        if (fs::exists("out") && ReadTree() == fresh) return;
        fs::remove_all("out");
        fs::create_directory("out");
        for (const auto& [path, bytes] : fresh) WriteFile(path, bytes);
    }
    static Tree ReadTree() {
        Tree tree;
        for (const auto& file : fs::recursive_directory_iterator("out"))
            if (file.is_regular_file()) tree[file.path().string()] = ReadFile(file.path().string());
        return tree;
    }
    // Returns the exit code of the program.
    int Run(unsigned first, bool lasting) {
        // Large enough to need no more memory.
        std::ostringstream output(std::string(20000, ' ')), errors(output.str());
        Tool tool(output, errors, false);
        int code = 1;
        const FaultOutcome outcome =
            RunWithFault(Step::allocation, first, lasting, [&] { code = tool.Run(words); });
        hit = outcome.wasHit;
        EXPECT_TRUE(code == 0 || outcome.ranOutOfMemory ||
                    errors.str().find("not enough memory") != std::string::npos)
            << errors.str();
        return code;
    }
    void ExpectOldOrWhole(bool failed) const {
        const Tree now = ReadTree();
        EXPECT_TRUE(failed || now == whole);
        for (const auto& [path, bytes] : now) {
            const auto place = whole.find(path);
            EXPECT_TRUE((place != whole.end() && (place->second == bytes || path.ends_with(partial))) ||
                        bytes == oldPack)
                << path;
        }
    }

    const fs::path before = fs::current_path();
    const std::vector<std::string> words = WordsOf(GetParam().words);
    const std::string partial = GetParam().partial ? GetParam().partial : "nothing";
    Bytes oldPack;
    Tree whole;
    bool hit = true;
};

} // namespace

// Where a library ends the process, the loop continues in another one.
TEST_P(ToolFaults, ARunWithoutMemoryEndsWithASentence) {
    if (!allocationsCanFail) GTEST_SKIP();
    constexpr unsigned never = std::numeric_limits<unsigned>::max();
    Reset();
    ASSERT_EQ(Run(never, false), 0);
    whole = ReadTree();
    const Fault counter(Step::allocation, never, false);
    if (!GetParam().parsesToo) static_cast<void>(ParseCommandLine(words));
    const SharedNumber first;
    bool processEnded = false;
    // A fault that lasts would end such a process nearly every time.
    for (const bool lasting : {false, true}) {
        if (lasting && processEnded) break;
        for (*first = counter.GetCount();; processEnded = true) {
            ChildProcess child([&] {
                EndOnMemoryShortage();
                for (hit = true; hit && !HasFailure();) {
                    SCOPED_TRACE(testing::Message() << "from " << ++*first << lasting);
                    Reset();
                    ExpectOldOrWhole(Run(*first, lasting) != 0);
                }
                return HasFailure() ? 2 : 0;
            });
            const int status = child.Wait();
            if (status == 0) break;
            ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << "from " << *first << lasting;
            ExpectOldOrWhole(true);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, ToolFaults, testing::ValuesIn(toolRuns),
                         [](const auto& run) { return std::string(run.param.name); });

} // namespace keltavlo
