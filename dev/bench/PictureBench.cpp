#include "image/picture/ChannelTable.h"
#include "image/picture/ColorList.h"
#include "image/picture/DibSection.h"
#include "image/picture/Image.h"

#include <array>
#include <benchmark/benchmark.h>
#include <random>
#include <vector>

namespace keltavlo {

// "CopyPicture" is the reference for the others: run all of them to compare, with the option
// --benchmark_enable_random_interleaving=true.

namespace {

constexpr int side = 1024;

Image MakePicture() {
    Image picture(side, side);
    std::mt19937 random(1);
    for (Color& pixel : picture.Pixels()) pixel = static_cast<Color>(random());
    return picture;
}

using Table = std::array<std::uint32_t, 256>;

Table MakeRandomTable() {
    Table table{};
    std::mt19937 random(2);
    for (std::uint32_t& entry : table) entry = static_cast<std::uint32_t>(random());
    return table;
}

// Like the table of a gamma setting: changes the colors and keeps alpha.
Table MakeGammaTable() {
    Table table{};
    for (std::uint32_t i = 0; i < 256; ++i) table[i] = Compose(i * i / 255, (i + 255) / 2, 255 - i, i);
    return table;
}

void CountBytes(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * side * side * static_cast<int>(sizeof(Color)));
}

void CopyPicture(benchmark::State& state) {
    const Image picture = MakePicture();
    std::vector<std::uint8_t> bytes(picture.Pixels().size_bytes());
    for (auto _ : state) {
        picture.CopyBytesTo(bytes.data());
        benchmark::ClobberMemory();
    }
    CountBytes(state);
}

void MakeHalfSize(benchmark::State& state) {
    const Image picture = MakePicture();
    Image half;
    for (auto _ : state) {
        picture.MakeHalfSize(half);
        benchmark::ClobberMemory();
    }
    CountBytes(state);
}

void ApplyTable(benchmark::State& state, const Table& table) {
    const auto kernels = AvailableKernels<ChannelKernels>();
    const auto number = static_cast<std::size_t>(state.range(0));
    if (number >= kernels.size()) {
        state.SkipWithError("not on this processor");
        return;
    }
    const Image picture = MakePicture();
    Image output(side, side);
    for (auto _ : state) {
        ChannelTable(table.data(), *kernels[number]).Apply(picture.Pixels(), output.Pixels());
        benchmark::ClobberMemory();
    }
    CountBytes(state);
}

void GammaTable(benchmark::State& state) {
    ApplyTable(state, MakeGammaTable());
}

void RandomTable(benchmark::State& state) {
    ApplyTable(state, MakeRandomTable());
}

void RenderWith(benchmark::State& state, const PixelTransform& transform) {
    const Image picture = MakePicture();
    DibSection bitmap(side, side, 32);
    for (auto _ : state) {
        picture.RenderTo(bitmap, transform);
        benchmark::ClobberMemory();
    }
    CountBytes(state);
}

void RenderIdentity(benchmark::State& state) {
    RenderWith(state, IdentityTransform{});
}

void RenderOverBackground(benchmark::State& state) {
    RenderWith(state, OverBackgroundTransform{0xFF808080});
}

void RenderGammaTable(benchmark::State& state) {
    const Table table = MakeGammaTable();
    RenderWith(state, ChannelTableTransform{table.data()});
}

void FindNearest(benchmark::State& state) {
    const Image picture = MakePicture();
    const Table table = MakeRandomTable();
    const ColorList list(std::vector<Color>(table.begin(), table.end()));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(list.FindNearestIndex(picture.Pixels()[next]));
        next = (next + 1) % picture.Pixels().size();
    }
}

} // namespace

BENCHMARK(CopyPicture);
BENCHMARK(MakeHalfSize);
// The argument is the kind of kernels: lookups, shuffles, permutes.
BENCHMARK(GammaTable)->DenseRange(0, 2);
BENCHMARK(RandomTable)->DenseRange(0, 2);
BENCHMARK(RenderIdentity);
BENCHMARK(RenderOverBackground);
BENCHMARK(RenderGammaTable);
BENCHMARK(FindNearest);

} // namespace keltavlo
