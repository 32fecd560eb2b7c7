#include "formats/TextureBytes.h"
#include "framework/core/DiskFile.h"
#include "image/picture/ColorList.h"
#include "image/picture/DibSection.h"
#include "image/picture/Texture.h"
#include "support/builders/PackBuilder.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <random>

namespace keltavlo {

// Reads files into new pictures in memory, with a warm page cache. The files stay in the folder named by the
// variable BENCH_FILES, so that other programs can read them.

namespace {

constexpr int largeSide = 4096;

std::string PathTo(const std::string& name) {
    static const QTemporaryDir temporary;
    const char* wanted = std::getenv("BENCH_FILES");
    return (wanted ? std::string(wanted) : temporary.path().toStdString()) + "/" + name;
}

const ColorList& Palette() {
    static const ColorList palette = [] {
        std::mt19937 random(1);
        std::vector<Color> colors(256);
        for (Color& color : colors) color = static_cast<Color>(random()) | alphaMask;
        return ColorList(colors);
    }();
    return palette;
}

// Runs of one to eight equal pixels, as in drawn textures.
Texture MakePicture(int side, Color transparency) {
    Texture picture(side, side);
    picture.SetPalette(Palette());
    std::mt19937 random(2);
    Color color = 0;
    unsigned left = 0;
    for (Color& pixel : picture.Pixels()) {
        if (left-- == 0) {
            left = random() % 8;
            color = Palette()[random() % 256] & ~transparency;
        }
        pixel = color;
    }
    return picture;
}

std::string Put(const std::string& name, const Bytes& bytes) {
    WriteFile(PathTo(name), bytes);
    return PathTo(name);
}

std::string PutPicture(const std::string& name, std::string_view documentClass, int side,
                       Color transparency = 0) {
    return Put(name, EncodeTexture(*FindCodec(documentClass), MakePicture(side, transparency), &Palette()));
}

std::string PutIndexedBitmap(const std::string& name) {
    return Put(name, WriteThroughArchive([](OutputStream& out) {
                   DibSection bitmap(largeSide, largeSide, 8);
                   bitmap.SetColorTable(0, Palette().Colors());
                   std::mt19937 random(3);
                   for (std::size_t i = 0; i < bitmap.GetImageSize(); ++i)
                       bitmap.GetBits()[i] = static_cast<std::uint8_t>(random());
                   bitmap.WriteStream(out, true);
               }));
}

void Read(benchmark::State& state, const std::string& path, std::string_view documentClass) {
    const Codec& codec = *FindCodec(documentClass);
    for (auto _ : state) {
        DiskFile file(path, CFile::modeRead);
        const Texture texture = DecodeTexture(codec, file, &Palette());
        benchmark::DoNotOptimize(texture.Pixels().data());
    }
}

// Allocating and clearing the memory of a picture, as a vector does it and as pictures do it.
template <class Pixels>
void ReadClear(benchmark::State& state) {
    for (auto _ : state) {
        Pixels pixels(std::size_t{largeSide} * largeSide, Color{0});
        benchmark::DoNotOptimize(pixels.data());
    }
}
BENCHMARK(ReadClear<PixelVector>)->Name("ReadClearLargePages")->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadClear<std::vector<Color>>)->Name("ReadClear")->Unit(benchmark::kMicrosecond);

void ReadTarga24(benchmark::State& state) {
    static const std::string path = PutPicture("24.tga", "TGADocument", largeSide);
    Read(state, path, "TGADocument");
}
BENCHMARK(ReadTarga24)->Unit(benchmark::kMicrosecond);

void ReadTarga32(benchmark::State& state) {
    static const std::string path = PutPicture("32.tga", "TGADocument", largeSide, 0x80000000);
    Read(state, path, "TGADocument");
}
BENCHMARK(ReadTarga32)->Unit(benchmark::kMicrosecond);

void ReadBitmap8(benchmark::State& state) {
    static const std::string path = PutIndexedBitmap("8.bmp");
    Read(state, path, "BMPDocument");
}
BENCHMARK(ReadBitmap8)->Unit(benchmark::kMicrosecond);

void ReadPCX(benchmark::State& state) {
    static const std::string path = PutPicture("8.pcx", "PCXDocument", largeSide);
    Read(state, path, "PCXDocument");
}
BENCHMARK(ReadPCX)->Unit(benchmark::kMicrosecond);

void ReadWAL(benchmark::State& state) {
    static const std::string path = PutPicture("256.wal", "WALDocument", 256);
    Read(state, path, "WALDocument");
}
BENCHMARK(ReadWAL)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace keltavlo
