#include "app/HeadlessApplication.h"
#include "archives/FolderDocument.h"
#include "framework/core/DiskFile.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "support/builders/WadBuilder.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fstream>

namespace keltavlo {

namespace {

// An archive on the disk: its directory, then the bytes of its entries.
class LargeArchive {
public:
    LargeArchive(const std::string& name, const Bytes& directory, std::uint64_t size)
        : path(folder.path().toStdString() + "/" + name) {
        WriteFile(path, directory);
        std::ofstream out(path, std::ios::binary | std::ios::app);
        const std::string block(1 << 20, 'x');
        for (std::uint64_t done = directory.size(); done < size; done += block.size())
            out.write(block.data(),
                      static_cast<std::streamsize>(std::min<std::uint64_t>(block.size(), size - done)));
    }

    QTemporaryDir folder;
    std::string path;
};

// A pack of 1 GiB whose entries fill it evenly.
const std::string& Pack() {
    constexpr std::size_t entryCount = 4096;
    constexpr std::uint64_t packSize = std::uint64_t{1} << 30;
    static const LargeArchive pack = [] {
        PackBuilder builder;
        for (std::size_t i = 0; i < entryCount; ++i)
            builder.Add("textures/set" + std::to_string(i / 64) + "/floor" + std::to_string(i) + ".wal", {});
        Bytes bytes = builder.Build();
        constexpr auto entrySize = static_cast<std::uint32_t>((packSize - 12) / entryCount - 64);
        for (std::size_t i = 0; i < entryCount; ++i) {
            PutU32(bytes, 12 + i * 64 + 56, static_cast<std::uint32_t>(bytes.size() + i * entrySize));
            PutU32(bytes, 12 + i * 64 + 60, entrySize);
        }
        return LargeArchive("large.pak", bytes, packSize);
    }();
    return pack.path;
}

constexpr std::size_t lumpCount = 20000;

// A WAD file of 300 MB.
const std::string& Wad() {
    constexpr std::uint64_t wadSize = 300'000'000;
    static const LargeArchive wad = [] {
        WadBuilder builder;
        for (std::size_t i = 0; i < lumpCount; ++i)
            builder.Add("texture" + std::to_string(i), WadBuilder::wad3TextureType, {});
        Bytes bytes = builder.Build();
        constexpr auto lumpSize =
            static_cast<std::uint32_t>(wadSize / lumpCount - WadBuilder::recordSize - 1);
        for (std::size_t i = 0; i < lumpCount; ++i) {
            const std::size_t record = WadBuilder::headerSize + i * WadBuilder::recordSize;
            PutU32(bytes, record, static_cast<std::uint32_t>(bytes.size() + i * lumpSize));
            PutU32(bytes, record + 4, lumpSize);
            PutU32(bytes, record + 8, lumpSize);
        }
        return LargeArchive("large.wad", bytes, wadSize);
    }();
    return wad.path;
}

using GetArchive = const std::string& (*)();

void ReadThrough(benchmark::State& state, GetArchive archive) {
    const std::string& path = archive();
    std::vector<std::byte> buffer(128 * 1024); // the block size of cat
    for (auto _ : state) {
        DiskFile file(path, CFile::modeRead);
        while (file.Read(buffer.data(), buffer.size()) > 0) benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(ReadThrough, Pack, Pack)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadThrough, Wad, Wad)->Unit(benchmark::kMillisecond);

void Open(benchmark::State& state, GetArchive archive) {
    const std::string& path = archive();
    HeadlessApplication application([](const std::string&) {});
    for (auto _ : state) {
        CDocument* document = application.OpenDocumentFile(path);
        state.PauseTiming();
        document->OnCloseDocument();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(Open, Pack, Pack)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Open, Wad, Wad)->Unit(benchmark::kMillisecond);

// Browsing: lists a folder's names and the status of each. The argument is how many other documents are open.
void ListWithStatus(benchmark::State& state) {
    HeadlessApplication application([](const std::string&) {});
    FileSystem& files = application.GetFileSystem();
    application.OpenDocumentFile(Wad());
    CDocTemplate& pictures = *application.GetTemplates().front();
    for (std::int64_t i = 0; i < state.range(0); ++i) pictures.OpenDocumentFile({});
    for (auto _ : state) {
        FolderListing listing;
        files.ListFolder(Wad(), listing);
        for (const std::string& name : listing.names) {
            EntryStatus status;
            files.GetStatus(JoinPath(Wad(), name), status);
            benchmark::DoNotOptimize(status);
        }
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t{lumpCount});
}
BENCHMARK(ListWithStatus)->Arg(0)->Arg(100)->Unit(benchmark::kMillisecond);

class NamedEntry final : public Entry {
public:
    explicit NamedEntry(std::string entryName) : name(std::move(entryName)) {}
    std::string GetName() const override { return name; }
    void GetStatus(EntryStatus& status) const override { status = {}; }
    std::unique_ptr<CFile> OpenEntry(unsigned, CFileException*, FolderDocument&) override { return nullptr; }

private:
    std::string name;
};

struct Tree : FolderDocument {
    static constexpr int count = 20000;
    Tree() {
        SetRootName("/q/large.wad");
        for (int i = 0; i < count; ++i)
            AddEntry(PathOf(i), std::make_unique<NamedEntry>("lump" + std::to_string(i) + ".mip"));
    }
    static std::string PathOf(int i) { return "/q/large.wad/lump" + std::to_string(i) + ".mip"; }
};

void FindByPath(benchmark::State& state) {
    const Tree tree;
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.FindEntry(Tree::PathOf(i)));
        i = (i + 7919) % Tree::count;
    }
}
BENCHMARK(FindByPath);

void FindByWalking(benchmark::State& state) {
    std::vector<std::unique_ptr<Entry>> entries;
    for (int i = 0; i < Tree::count; ++i)
        entries.push_back(std::make_unique<NamedEntry>("lump" + std::to_string(i) + ".mip"));
    int wanted = 0;
    for (auto _ : state) {
        const std::string name = "lump" + std::to_string(wanted) + ".mip";
        for (const auto& entry : entries)
            if (EqualNoCase(entry->GetName(), name)) {
                benchmark::DoNotOptimize(entry.get());
                break;
            }
        wanted = (wanted + 7919) % Tree::count;
    }
}
BENCHMARK(FindByWalking);

} // namespace

} // namespace keltavlo
