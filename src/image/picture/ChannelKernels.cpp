#include "image/picture/ChannelKernels.h"

#include <algorithm>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace keltavlo {

namespace {

void ApplyByLookups(const ChannelPlanes& channels, std::span<const Color> input, std::span<Color> output) {
    std::ranges::transform(input, output.begin(), [table = channels.words.data()](Color pixel) {
        return MapChannels(table, pixel);
    });
}

constexpr ChannelKernels lookupKernels{ProcessorFeature::none, nullptr, ApplyByLookups};

#if defined(__x86_64__)

constexpr std::size_t shuffledPixels = 32;
constexpr std::size_t permutedPixels = 64;

// Four vectors of pixels, or of single channels.
struct Vectors {
    __m256i rows[4];
};

// Turns 32 pixels into one vector per channel; Join restores them in their order.
[[gnu::target("avx2")]] inline void Split(Vectors& vectors) {
    auto& rows = vectors.rows;
    const __m256i channelsTogether = _mm256_setr_epi8(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, //
                                                      0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
#pragma GCC unroll 4
    for (__m256i& row : rows) row = _mm256_shuffle_epi8(row, channelsTogether);
    const __m256i low01 = _mm256_unpacklo_epi32(rows[0], rows[1]);
    const __m256i high01 = _mm256_unpackhi_epi32(rows[0], rows[1]);
    const __m256i low23 = _mm256_unpacklo_epi32(rows[2], rows[3]);
    const __m256i high23 = _mm256_unpackhi_epi32(rows[2], rows[3]);
    rows[0] = _mm256_unpacklo_epi64(low01, low23);
    rows[1] = _mm256_unpackhi_epi64(low01, low23);
    rows[2] = _mm256_unpacklo_epi64(high01, high23);
    rows[3] = _mm256_unpackhi_epi64(high01, high23);
}

[[gnu::target("avx2")]] inline void Join(Vectors& vectors) {
    auto& rows = vectors.rows;
    const __m256i lowBlueGreen = _mm256_unpacklo_epi8(rows[0], rows[1]);
    const __m256i highBlueGreen = _mm256_unpackhi_epi8(rows[0], rows[1]);
    const __m256i lowRedAlpha = _mm256_unpacklo_epi8(rows[2], rows[3]);
    const __m256i highRedAlpha = _mm256_unpackhi_epi8(rows[2], rows[3]);
    rows[0] = _mm256_unpacklo_epi16(lowBlueGreen, lowRedAlpha);
    rows[1] = _mm256_unpackhi_epi16(lowBlueGreen, lowRedAlpha);
    rows[2] = _mm256_unpacklo_epi16(highBlueGreen, highRedAlpha);
    rows[3] = _mm256_unpackhi_epi16(highBlueGreen, highRedAlpha);
}

// Shuffles the same piece of 16 table bytes in both lanes.
[[gnu::target("avx2")]] inline __m256i ShufflePiece(const std::uint8_t* piece, __m256i indices) {
    const __m128i bytes = _mm_load_si128(reinterpret_cast<const __m128i*>(piece));
    return _mm256_shuffle_epi8(_mm256_broadcastsi128_si256(bytes), indices);
}

// Indices into four pieces of 16 bytes: the low four bits of a value. All but `any` also have the top bit
// set, for which a shuffle returns 0, unless the bits in their names are clear.
struct PieceIndices {
    __m256i any;
    __m256i bit4Clear;
    __m256i bit5Clear;
    __m256i bothClear;
};

[[gnu::target("avx2")]] inline PieceIndices MakePieceIndices(__m256i values) {
    const auto mask = [](int bits) { return static_cast<char>(bits); };
    PieceIndices indices;
    indices.any = _mm256_and_si256(values, _mm256_set1_epi8(mask(0x0F)));
    // The addition carries the bit that the mask keeps into the top bit.
    indices.bit4Clear = _mm256_add_epi8(_mm256_and_si256(values, _mm256_set1_epi8(mask(0x1F))), //
                                        _mm256_set1_epi8(mask(0x70)));
    indices.bit5Clear = _mm256_add_epi8(_mm256_and_si256(values, _mm256_set1_epi8(mask(0x2F))), //
                                        _mm256_set1_epi8(mask(0x60)));
    indices.bothClear = _mm256_or_si256(indices.bit4Clear, indices.bit5Clear);
    return indices;
}

// Looks up values in 64 arranged table bytes.
[[gnu::target("avx2")]] inline __m256i LookUpQuarter(const std::uint8_t* quarter,
                                                     const PieceIndices& indices) {
    return _mm256_xor_si256(_mm256_xor_si256(ShufflePiece(quarter, indices.any), //
                                             ShufflePiece(quarter + 16, indices.bit4Clear)),
                            _mm256_xor_si256(ShufflePiece(quarter + 32, indices.bit5Clear),
                                             ShufflePiece(quarter + 48, indices.bothClear)));
}

// A blend tests the top bit of each byte: bit 7 of the values, or bit 6 of the values doubled.
[[gnu::target("avx2")]] inline __m256i LookUp(const std::uint8_t* plane, __m256i values) {
    const PieceIndices indices = MakePieceIndices(values);
    const __m256i doubled = _mm256_add_epi8(values, values);
    const __m256i lower =
        _mm256_blendv_epi8(LookUpQuarter(plane, indices), LookUpQuarter(plane + 64, indices), doubled);
    const __m256i upper =
        _mm256_blendv_epi8(LookUpQuarter(plane + 128, indices), LookUpQuarter(plane + 192, indices), doubled);
    return _mm256_blendv_epi8(lower, upper, values);
}

// Maps the first channels and keeps the others. Gamma keeps alpha, which saves a quarter of the work.
template <std::size_t channelCount>
[[gnu::target("avx2")]] std::size_t ShuffleChannels(const ChannelPlanes& channels,
                                                    std::span<const Color> input, std::span<Color> output) {
    // The loops over vectors are unrolled, so that the vectors stay in registers at any optimization level.
    const std::size_t count = input.size() / shuffledPixels * shuffledPixels;
    for (std::size_t i = 0; i < count; i += shuffledPixels) {
        const auto* source = reinterpret_cast<const __m256i*>(input.data() + i);
        auto* destination = reinterpret_cast<__m256i*>(output.data() + i);
        Vectors vectors;
#pragma GCC unroll 4
        for (std::size_t row = 0; row < 4; ++row) vectors.rows[row] = _mm256_loadu_si256(source + row);
        Split(vectors);
#pragma GCC unroll 4
        for (std::size_t channel = 0; channel < channelCount; ++channel) {
            vectors.rows[channel] = LookUp(channels.planes[channel].data(), vectors.rows[channel]);
        }
        Join(vectors);
#pragma GCC unroll 4
        for (std::size_t row = 0; row < 4; ++row) _mm256_storeu_si256(destination + row, vectors.rows[row]);
    }
    return count;
}

void ArrangeForShuffles(ChannelPlanes& channels) {
    for (ChannelPlanes::Plane& plane : channels.planes) {
        for (std::size_t i = 0; i < plane.size(); i += 64) {
            // The original last piece is always looked up. The other three contain the bits to flip if bit 4,
            // bit 5 or both are clear.
            for (std::size_t k = i; k < i + 16; ++k) {
                const std::uint8_t both = plane[k + 48];
                const auto bit4Clear = static_cast<std::uint8_t>(both ^ plane[k + 32]);
                const auto bit5Clear = static_cast<std::uint8_t>(both ^ plane[k + 16]);
                plane[k + 48] = static_cast<std::uint8_t>(both ^ plane[k] ^ bit4Clear ^ bit5Clear);
                plane[k + 32] = bit5Clear;
                plane[k + 16] = bit4Clear;
                plane[k] = both;
            }
        }
    }
}

[[gnu::target("avx2")]] void ApplyByShuffles(const ChannelPlanes& channels, std::span<const Color> input,
                                             std::span<Color> output) {
    const std::size_t done = channels.changes[3] ? ShuffleChannels<4>(channels, input, output)
                                                 : ShuffleChannels<3>(channels, input, output);
    ApplyByLookups(channels, input.subspan(done), output.subspan(done));
}

constexpr ChannelKernels shuffleKernels{ProcessorFeature::avx2, ArrangeForShuffles, ApplyByShuffles};

// Sixteen pixels each.
struct WideVectors {
    __m512i rows[4];
};

// Exchanges the odd pieces of the first vector, of one or two bytes, with the even pieces of the second.
template <int pieceBytes>
[[gnu::target("avx512f,avx512bw,avx512vbmi")]] inline void ExchangePieces(__m512i& first, __m512i& second) {
    constexpr __mmask64 even = pieceBytes == 1 ? 0x5555555555555555 : 0x3333333333333333;
    const __m512i neighbors = pieceBytes == 1
                                  ? _mm512_set4_epi32(0x0E0F0C0D, 0x0A0B0809, 0x06070405, 0x02030001)
                                  : _mm512_set4_epi32(0x0D0C0F0E, 0x09080B0A, 0x05040706, 0x01000302);
    const __m512i oldFirst = first;
    first = _mm512_mask_shuffle_epi8(first, ~even, second, neighbors);
    second = _mm512_mask_shuffle_epi8(second, even, oldFirst, neighbors);
}

// Turns 64 pixels into one vector per channel and back: byte k of a pixel in vector i changes places with
// byte i of the pixel in vector k.
[[gnu::target("avx512f,avx512bw,avx512vbmi")]] inline void Transpose(WideVectors& vectors) {
    auto& rows = vectors.rows;
    ExchangePieces<2>(rows[0], rows[2]);
    ExchangePieces<2>(rows[1], rows[3]);
    ExchangePieces<1>(rows[0], rows[1]);
    ExchangePieces<1>(rows[2], rows[3]);
}

[[gnu::target("avx512f,avx512bw,avx512vbmi")]] inline __m512i Permute(const ChannelPlanes::Plane& plane,
                                                                      __m512i values) {
    const __m512i lower =
        _mm512_permutex2var_epi8(_mm512_load_si512(&plane[0]), values, _mm512_load_si512(&plane[64]));
    const __m512i upper =
        _mm512_permutex2var_epi8(_mm512_load_si512(&plane[128]), values, _mm512_load_si512(&plane[192]));
    return _mm512_mask_mov_epi8(lower, _mm512_movepi8_mask(values), upper);
}

// Maps the first channels of 64 pixels and keeps the others.
template <std::size_t channelCount>
[[gnu::target("avx512f,avx512bw,avx512vbmi")]] inline void PermuteGroup(const ChannelPlanes& channels,
                                                                        const Color* input, Color* output) {
    WideVectors vectors;
#pragma GCC unroll 4
    for (std::size_t row = 0; row < 4; ++row)
        vectors.rows[row] = _mm512_loadu_si512(input + permutedPixels / 4 * row);
    Transpose(vectors);
#pragma GCC unroll 4
    for (std::size_t channel = 0; channel < channelCount; ++channel)
        vectors.rows[channel] = Permute(channels.planes[channel], vectors.rows[channel]);
    Transpose(vectors);
#pragma GCC unroll 4
    for (std::size_t row = 0; row < 4; ++row)
        _mm512_storeu_si512(output + permutedPixels / 4 * row, vectors.rows[row]);
}

template <std::size_t channelCount>
[[gnu::target("avx512f,avx512bw,avx512vbmi")]] void
PermuteChannels(const ChannelPlanes& channels, std::span<const Color> input, std::span<Color> output) {
    const std::size_t count = input.size() / permutedPixels * permutedPixels;
    for (std::size_t i = 0; i < count; i += permutedPixels)
        PermuteGroup<channelCount>(channels, input.data() + i, output.data() + i);
    if (count == input.size()) return;
    std::array<Color, permutedPixels> rest{};
    std::ranges::copy(input.subspan(count), rest.begin());
    PermuteGroup<channelCount>(channels, rest.data(), rest.data());
    std::copy_n(rest.begin(), input.size() - count, output.begin() + static_cast<std::ptrdiff_t>(count));
}

void ApplyByPermutes(const ChannelPlanes& channels, std::span<const Color> input, std::span<Color> output) {
    if (channels.changes[3])
        PermuteChannels<4>(channels, input, output);
    else
        PermuteChannels<3>(channels, input, output);
}

constexpr ChannelKernels permuteKernels{ProcessorFeature::avx512Vbmi, nullptr, ApplyByPermutes};

} // namespace

std::vector<const ChannelKernels*> ChannelKernels::All() {
    return {&lookupKernels, &shuffleKernels, &permuteKernels};
}

#else

} // namespace

std::vector<const ChannelKernels*> ChannelKernels::All() {
    return {&lookupKernels};
}

#endif

} // namespace keltavlo
