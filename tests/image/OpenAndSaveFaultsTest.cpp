#include "framework/core/SaveJournal.h"
#include "image/ImageDocuments.h"
#include "support/ChildProcess.h"
#include "support/CodecHarness.h"
#include "support/Fault.h"
#include "support/TestApplication.h"

#include <filesystem>
#include <sys/stat.h>
#include <thread>

namespace keltavlo {

// Each read, write, flush, rename and allocation of an open and of a save fails, once or from then on.
// Processes are killed, and places cannot be written.

namespace fs = std::filesystem;

namespace {

constexpr Step lastStep = allocationsCanFail ? Step::allocation : Step::rename;

std::size_t CountFiles(const std::string& where) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(where), {}));
}

struct Attempt : FaultOutcome {
    bool succeeded;
};

using SaveFaults = WorkshopTest;

struct FaultPoints : WorkshopTest, testing::WithParamInterface<Codec> {
    static constexpr unsigned never = 1000000;

    // Calls visit(step, first, lasting) for every fault up to `latest`, until it returns false: the fault
    // came too late to hit.
    template <class Visit>
    static void ForEachFault(Visit visit, unsigned latest = never) {
        for (int step = 0; step <= static_cast<int>(lastStep); ++step)
            for (const bool lasting : {false, true})
                for (unsigned first = 1; first < latest && !HasFailure(); ++first) {
                    SCOPED_TRACE(testing::Message() << "step " << step << " from " << first << lasting);
                    if (!visit(static_cast<Step>(step), first, lasting)) break;
                }
    }
    template <class Action>
    Attempt Try(Step step, unsigned first, bool lasting, Action action) {
        messageCount = 0;
        bool succeeded = false;
        const FaultOutcome outcome = RunWithFault(step, first, lasting, [&] { succeeded = action(); });
        const Attempt attempt{outcome, succeeded};
        EXPECT_TRUE(attempt.succeeded || messageCount > 0 || attempt.ranOutOfMemory);
        std::vector<std::string>().swap(messages);
        return attempt;
    }

    TavloDocument& MakeDocument(int side) {
        auto& document = New<WALDocument>();
        Texture& texture = document.GetTexture();
        texture.SetSize(side, side);
        for (Color color = 0xFF000000; Color & pixel : texture.Pixels()) pixel = color += 0x10305;
        texture.quake2.name = "a name that takes memory of its own";
        texture.SetPalette(CodecHarness::Palette());
        document.SetModifiedFlag();
        return document;
    }
    static bool Same(const Texture& left, const Texture& right) {
        return SamePixels(left, right) && left.quake2 == right.quake2 && !left.palette == !right.palette &&
               (!left.palette || *left.palette == *right.palette);
    }
    // Saves a new document over a file with these bytes, or over no file if there are none.
    Attempt Save(int side, const Bytes& old, Step step, unsigned first, bool lasting) {
        fs::remove(target);
        if (!old.empty()) WriteFile(target, old);
        TavloDocument& document = MakeDocument(side);
        const Texture before = document.GetTexture();
        const Attempt attempt = Try(step, first, lasting, [&] { return document.OnSaveDocument(target); });
        EXPECT_EQ(document.IsModified(), !attempt.succeeded);
        EXPECT_TRUE(!attempt.ranOutOfMemory || first == 1) << "a save that has begun tells of its failure";
        // A picture that was fitted stays fitted, which can be undone.
        if (document.GetHistory().CanUndo()) document.GetHistory().Undo();
        EXPECT_TRUE(Same(document.GetTexture(), before));
        document.OnCloseDocument();
        return attempt;
    }
    Bytes Written() const { return fs::exists(target) ? ReadFile(target) : Bytes(); }

    std::string target = PathTo("target." + std::string(GetParam().name));
};

} // namespace

TEST_P(FaultPoints, ASaveLeavesTheDocumentAndTheOldFileOrTheNew) {
    for (const auto& [side, old] : {std::pair(8, ToBytes("old")), {12, Bytes()}}) {
        ASSERT_TRUE(Save(side, old, Step::read, never, false).succeeded);
        const Bytes whole = Written();
        ForEachFault([&](Step step, unsigned first, bool lasting) {
            const std::ptrdiff_t liveBefore = liveAllocations;
            const Attempt attempt = Save(side, old, step, first, lasting);
            EXPECT_EQ(liveAllocations, liveBefore);
            const Bytes written = Written();
            EXPECT_TRUE(written == whole || (!attempt.succeeded && written == old));
            EXPECT_EQ(CountFiles(PathTo("")), written.empty() ? 0U : 1U) << "nothing else lies there";
            return attempt.wasHit;
        });
    }
}

TEST_P(FaultPoints, AnOpenGivesTheWholeDocumentOrNone) {
    ASSERT_TRUE(Save(8, {}, Step::read, never, false).succeeded);
    const Bytes file = ReadFile(target);
    auto* document = Open<TavloDocument>(target);
    ASSERT_NE(document, nullptr);
    const Texture whole = document->GetTexture();
    document->OnCloseDocument();
    const std::vector<CDocument*> others = application.GetDocuments();
    // Files are read by the 321st allocation; then come the references, which are the same for all formats.
    const unsigned latest = GetParam().name == "wal" ? never : 400;
    ForEachFault(
        [&](Step step, unsigned first, bool lasting) {
            const std::ptrdiff_t liveBefore = liveAllocations;
            const Attempt attempt = Try(step, first, lasting,
                                        [&] { return (document = Open<TavloDocument>(target)) != nullptr; });
            if (attempt.succeeded) {
                EXPECT_TRUE(Same(document->GetTexture(), whole));
                EXPECT_FALSE(std::ranges::count(document->GetReferences(), nullptr));
                document->OnCloseDocument();
            }
            EXPECT_EQ(liveAllocations, liveBefore);
            EXPECT_EQ(application.GetDocuments(), others);
            EXPECT_EQ(Written(), file);
            return attempt.wasHit;
        },
        latest);
}

INSTANTIATE_TEST_SUITE_P(AllFormats, FaultPoints, testing::ValuesIn(Codecs().begin(), Codecs().end()),
                         [](const auto& format) { return std::string(format.param.name); });

TEST_F(SaveFaults, AKilledSaveLeavesTheOldFileOrTheNew) {
    const std::string path = Put("killed.wal", MakeWal(64, 64));
    auto* document = Open<WALDocument>(path);
    const auto save = [&](unsigned number) {
        std::ranges::fill(document->GetTexture().Pixels(), 0xFF000000 | number % 16 * 0x0F0F0F);
        return document->OnSaveDocument(path);
    };
    // Programs that start meanwhile remove only what killed programs left behind.
    std::optional<ChildProcess> starting(std::in_place, [] {
        for (;;) RemoveAbandonedSaves();
        return 0;
    });
    for (unsigned number = 0; number < 1000; ++number) ASSERT_TRUE(save(number)) << messages.front();
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        {
            const ChildProcess saving([&] {
                for (unsigned number = 0;; ++number) save(number);
                return 0;
            });
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 0x2000));
        }
        const Bytes wal = ReadFile(path);
        ASSERT_EQ(wal.size(), 5540U) << round;
        ASSERT_EQ(std::count(wal.begin() + 100, wal.end(), wal.back()), 5440) << round;
    }
    starting.reset();
    RemoveAbandonedSaves();
    EXPECT_EQ(CountFiles(PathTo("")), 1U);
}

TEST_F(SaveFaults, PlacesThatCannotBeWrittenStayAsTheyWere) {
    auto* document = Open<WALDocument>(Put("floor.wal", MakeWal(64, 64)));
    const std::string locked = PathTo("locked"), readOnly = locked + "/readonly.wal",
                      writable = locked + "/writable.wal";
    fs::create_directory(locked);
    WriteFile(readOnly, ToBytes("old"));
    WriteFile(writable, ToBytes("old"));
    for (const auto& [path, mode] :
         {std::pair(PathTo(""), 0755), {readOnly, 0444}, {writable, 0666}, {locked, 0555}})
        chmod(path.c_str(), static_cast<mode_t>(mode));
    ChildProcess child([&] { // as another user, because root may do everything
        int failures = geteuid() == 0 && setuid(65534) != 0;
        for (const std::string& path : {readOnly, locked + "/new.wal", PathTo("removed/new.wal"), locked}) {
            document->SetModifiedFlag();
            messages.clear();
            if (document->OnSaveDocument(path) || messages.size() != 1 || !document->IsModified()) ++failures;
        }
        return failures + !document->OnSaveDocument(writable);
    });
    EXPECT_EQ(child.Wait(), 0);
    EXPECT_EQ(ReadFile(readOnly), ToBytes("old"));
    EXPECT_EQ(ReadFile(writable).size(), 5540U) << "the file itself could be written";
    EXPECT_EQ(CountFiles(locked), 2U);
    chmod(locked.c_str(), 0755);
}

} // namespace keltavlo
