#include "formats/TextureBytes.h"
#include "image/picture/ColorList.h"
#include "image/picture/Image.h"
#include "image/picture/NearestSearch.h"
#include "support/PlainDiffusion.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>
#include <vector>

namespace keltavlo {

// Every search is new, so the time includes building its tables. "Plain" is the scan of the list with its
// cache. The arguments are the picture's side and its number of colors, where 0 means one per pixel.

namespace {

constexpr std::size_t paletteSize = 256;
constexpr std::size_t cacheSlots = 1021; // a prime, so that ramps of one channel spread well

ColorList MakePalette(Color alphaBits) {
    std::mt19937 random(1);
    std::vector<Color> colors(paletteSize);
    for (Color& color : colors) color = static_cast<Color>(random()) | alphaBits;
    return ColorList(colors);
}

// Distinct colors in random order: multiplying by an odd number permutes the 24-bit numbers.
std::vector<Color> MakeDistinctColors(std::size_t count) {
    std::vector<Color> colors(count);
    for (std::size_t i = 0; i < count; ++i)
        colors[i] = (static_cast<Color>(i) * 0x9E3779B1 & ~alphaMask) | alphaMask;
    return colors;
}

std::vector<Color> MakePixels(const benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0) * state.range(0));
    const auto colorCount = static_cast<std::size_t>(state.range(1));
    if (colorCount == 0) return MakeDistinctColors(count);
    std::mt19937 random(2);
    std::vector<Color> colors(colorCount);
    for (Color& color : colors) color = static_cast<Color>(random()) | alphaMask;
    std::vector<Color> pixels(count);
    for (Color& pixel : pixels) pixel = colors[random() % colorCount];
    return pixels;
}

template <typename Picture>
void Fill(Picture& picture, const std::vector<Color>& pixels) {
    std::ranges::copy(pixels, picture.Pixels().begin());
}

void FindPlainly(const ColorList& list, std::span<const Color> pixels, std::span<std::uint8_t> indices) {
    list.CreateCache(cacheSlots);
    std::ranges::transform(pixels, indices.begin(), [&](Color color) {
        return static_cast<std::uint8_t>(list.FindNearestIndex(color));
    });
    list.DestroyCache();
}

void FindFast(const ColorList& list, std::span<const Color> pixels, std::span<std::uint8_t> indices) {
    NearestSearch(list).FindIndices(pixels, indices);
}

template <auto find>
void NearestIndices(benchmark::State& state) {
    const ColorList list = MakePalette(alphaMask);
    const std::vector<Color> pixels = MakePixels(state);
    std::vector<std::uint8_t> indices(pixels.size());
    for (auto _ : state) {
        find(list, pixels, indices);
        benchmark::ClobberMemory();
    }
}

// Both the pixels and the entries have various alphas.
template <auto find>
void NearestAlphas(benchmark::State& state) {
    const ColorList list = MakePalette(0);
    std::vector<Color> pixels = MakePixels(state);
    std::mt19937 random(3);
    for (Color& pixel : pixels) pixel = (pixel & ~alphaMask) | (static_cast<Color>(random()) & alphaMask);
    std::vector<std::uint8_t> indices(pixels.size());
    for (auto _ : state) {
        find(list, pixels, indices);
        benchmark::ClobberMemory();
    }
}

void DiffuseRowsPlainly(Image& picture, const ColorList& list) {
    list.CreateCache(cacheSlots);
    for (int y = 0; y < picture.GetHeight(); ++y) DiffusePlainly(picture.Row(y), list);
    list.DestroyCache();
}

void DiffuseFast(Image& picture, const ColorList& list) {
    picture.ConvertByErrorDiffusion(list);
}

template <auto diffuse>
void NearestDiffusion(benchmark::State& state) {
    const ColorList list = MakePalette(alphaMask);
    const std::vector<Color> pixels = MakePixels(state);
    Image picture(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Fill(picture, pixels); // a small part of either time
        diffuse(picture, list);
        benchmark::ClobberMemory();
    }
}

void NearestWrite(benchmark::State& state, const char* documentClass) {
    const Codec& codec = *FindCodec(documentClass);
    const ColorList list = MakePalette(alphaMask);
    Texture texture;
    texture.SetSize(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)));
    Fill(texture, MakePixels(state));
    for (auto _ : state) {
        benchmark::DoNotOptimize(EncodeTexture(codec, texture, &list));
    }
}

void AllPictures(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgsProduct({{256, 1024}, {0, 200}})->Unit(benchmark::kMicrosecond);
}

void DistinctColors(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgsProduct({{256, 1024}, {0}})->Unit(benchmark::kMicrosecond);
}

void SmallPicture(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({256, 0})->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(NearestIndices<FindPlainly>)->Name("NearestIndicesPlain")->Apply(AllPictures);
BENCHMARK(NearestIndices<FindFast>)->Name("NearestIndices")->Apply(AllPictures);
BENCHMARK(NearestAlphas<FindPlainly>)->Name("NearestAlphasPlain")->Apply(SmallPicture);
BENCHMARK(NearestAlphas<FindFast>)->Name("NearestAlphas")->Apply(SmallPicture);
BENCHMARK(NearestDiffusion<DiffuseRowsPlainly>)->Name("NearestDiffusionPlain")->Apply(DistinctColors);
BENCHMARK(NearestDiffusion<DiffuseFast>)->Name("NearestDiffusion")->Apply(DistinctColors);
BENCHMARK_CAPTURE(NearestWrite, WAL, "WALDocument")->Apply(SmallPicture);
BENCHMARK_CAPTURE(NearestWrite, MIP, "MIPDocument")->Apply(SmallPicture);
BENCHMARK_CAPTURE(NearestWrite, PCX, "PCXDocument")->Apply(SmallPicture);

} // namespace keltavlo
