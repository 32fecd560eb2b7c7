#include "framework/core/CArchive.h"
#include "framework/core/DiskFile.h"
#include "preview3d/MD2Document.h"
#include "resources/streams/ArchiveStream.h"
#include "support/builders/ModelBuilder.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <memory>

namespace keltavlo {

namespace {

class ModelFile {
public:
    ModelFile() : path(folder.path().toStdString() + "/largest.md2") { WriteFile(path, bytes); }

    QTemporaryDir folder;
    std::string path;
    Bytes bytes = Md2Builder::Largest();
};

const ModelFile& Largest() {
    static const ModelFile model;
    return model;
}

// The least that loading can cost: the file's bytes in memory of their own.
void ReadModelBytes(benchmark::State& state) {
    const ModelFile& model = Largest();
    for (auto _ : state) {
        const auto bytes = std::make_unique_for_overwrite<std::byte[]>(model.bytes.size());
        std::FILE* file = std::fopen(model.path.c_str(), "rb");
        benchmark::DoNotOptimize(std::fread(bytes.get(), 1, model.bytes.size(), file));
        std::fclose(file);
    }
}
BENCHMARK(ReadModelBytes)->Unit(benchmark::kMicrosecond);

void ReadModel(benchmark::State& state) {
    const ModelFile& model = Largest();
    for (auto _ : state) {
        DiskFile file(model.path, CFile::modeRead);
        CArchive archive(file, CArchive::load);
        ArchiveStream stream(archive);
        MD2Document document;
        document.ReadContents(stream);
        benchmark::DoNotOptimize(document);
    }
}
BENCHMARK(ReadModel)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace keltavlo
