#include "framework/core/DiskFile.h"
#include "preview3d/MD2Document.h"
#include "resources/streams/ArchiveTransfer.h"
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

// The lower bound of loading: reading the file's bytes into new memory.
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
        MD2Document document;
        ReadThroughArchive(file, [&](InputStream& in) { document.ReadContents(in); });
        benchmark::DoNotOptimize(document);
    }
}
BENCHMARK(ReadModel)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace keltavlo
