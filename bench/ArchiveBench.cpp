#include "app/HeadlessApplication.h"
#include "archives/FolderDocument.h"
#include "framework/core/DiskFile.h"
#include "framework/core/Text.h"
#include "support/PackBuilder.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>

namespace {

constexpr std::size_t entryCount = 4096;
constexpr std::uint64_t packSize = std::uint64_t{1} << 30;

// A pack of 1 GiB whose entries fill it evenly.
class LargePack {
public:
    LargePack() : path(folder.path().toStdString() + "/large.pak") {
        PackBuilder builder;
        for (std::size_t i = 0; i < entryCount; ++i)
            builder.Add("textures/set" + std::to_string(i / 64) + "/floor" + std::to_string(i) + ".wal", {});
        Bytes pack = builder.Build();
        constexpr auto entrySize = static_cast<std::uint32_t>((packSize - 12) / entryCount - 64);
        for (std::size_t i = 0; i < entryCount; ++i) {
            PutU32(pack, 12 + i * 64 + 56, static_cast<std::uint32_t>(pack.size() + i * entrySize));
            PutU32(pack, 12 + i * 64 + 60, entrySize);
        }
        WriteFile(path, pack);
        std::ofstream out(path, std::ios::binary | std::ios::app);
        const std::string block(1 << 20, 'x');
        for (std::uint64_t size = pack.size(); size < packSize; size += block.size())
            out.write(block.data(),
                      static_cast<std::streamsize>(std::min<std::uint64_t>(block.size(), packSize - size)));
    }

    QTemporaryDir folder;
    std::string path;
};

const LargePack& Pack() {
    static const LargePack pack;
    return pack;
}

void ReadPackThrough(benchmark::State& state) {
    const std::string& path = Pack().path;
    std::vector<std::byte> buffer(128 * 1024); // what cat reads at once
    for (auto _ : state) {
        DiskFile file(path, CFile::modeRead);
        while (file.Read(buffer.data(), buffer.size()) > 0) benchmark::ClobberMemory();
    }
}
BENCHMARK(ReadPackThrough)->Unit(benchmark::kMillisecond);

void OpenPack(benchmark::State& state) {
    const std::string& path = Pack().path;
    HeadlessApplication application([](const std::string&) {});
    for (auto _ : state) application.OpenDocumentFile(path)->OnCloseDocument();
}
BENCHMARK(OpenPack)->Unit(benchmark::kMillisecond);

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
