#include "tool/sheets/SheetPage.h"

#include "tool/sheets/BitmapFont.h"

#include <algorithm>

namespace keltavlo {

namespace {

// Sizes in pixels.
constexpr int margin = 8, pictureSide = 128, nameLines = 2, textGap = 3, checkSide = 8;
constexpr int cellWidth = pictureSide + margin;
constexpr int cellHeight = pictureSide + textGap + (nameLines + 1) * bitmapfont::lineHeight + margin;
constexpr int titleHeight = margin + bitmapfont::lineHeight;
constexpr Color background = Compose(40, 40, 40);
constexpr Color lightCheck = Compose(144, 144, 144), darkCheck = Compose(112, 112, 112);

constexpr std::size_t lineLength = std::size_t{pictureSide / bitmapfont::advance};

Color CheckAt(int x, int y) {
    return (x / checkSide + y / checkSide) % 2 == 0 ? lightCheck : darkCheck;
}

std::uint32_t Mix(std::uint64_t sum, std::uint32_t below, std::uint64_t alpha, std::uint64_t full) {
    return static_cast<std::uint32_t>((sum + below * (full - alpha)) / full);
}

// Returns the average color of a block of texels in front of a background.
Color AverageOver(const Image& picture, int left, int top, int side, Color below) {
    const int right = std::min(left + side, picture.GetWidth());
    const int bottom = std::min(top + side, picture.GetHeight());
    std::uint64_t red = 0, green = 0, blue = 0, alpha = 0, full = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const Color texel = picture.GetPixel(x, y);
            const std::uint64_t weight = Alpha(texel);
            red += Red(texel) * weight;
            green += Green(texel) * weight;
            blue += Blue(texel) * weight;
            alpha += weight;
            full += opaqueAlpha;
        }
    }
    return Compose(Mix(red, Red(below), alpha, full), Mix(green, Green(below), alpha, full),
                   Mix(blue, Blue(below), alpha, full));
}

void DrawSmall(Image& page, int left, int top, const Image& picture) {
    const int longSide = std::max(picture.GetWidth(), picture.GetHeight());
    const int factor = std::max(1, (longSide + pictureSide - 1) / pictureSide);
    const int width = (picture.GetWidth() + factor - 1) / factor;
    const int height = (picture.GetHeight() + factor - 1) / factor;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            page.SetPixel(left + x, top + y,
                          AverageOver(picture, x * factor, y * factor, factor, CheckAt(x, y)));
}

// Breaks a name into lines of at most `lineLength` characters. A name that is too long for all lines loses
// its beginning.
std::vector<std::string> LinesOf(const std::string& name) {
    constexpr std::size_t limit = lineLength * nameLines;
    const std::string text = name.size() <= limit ? name : ".." + name.substr(name.size() - limit + 2);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < text.size(); i += lineLength) lines.push_back(text.substr(i, lineLength));
    return lines;
}

int RowsFor(std::size_t count) {
    return (static_cast<int>(count) + SheetPage::columns - 1) / SheetPage::columns;
}

int TextTop(int line) {
    return pictureSide + textGap + line * bitmapfont::lineHeight;
}

} // namespace

SheetPage::SheetPage(const std::string& title, std::size_t count)
    : page(margin + columns * cellWidth, titleHeight + margin + RowsFor(count) * cellHeight) {
    std::ranges::fill(page.Pixels(), background);
    bitmapfont::Draw(page, margin, margin, title);
}

void SheetPage::Add(const std::string& name, const Image& picture) {
    const auto [left, top] = BeginCell(name);
    DrawSmall(page, left, top, picture);
    const std::string size = std::to_string(picture.GetWidth()) + " x " + std::to_string(picture.GetHeight());
    bitmapfont::Draw(page, left, top + TextTop(nameLines), size);
}

void SheetPage::AddMissing(const std::string& name) {
    const auto [left, top] = BeginCell(name);
    bitmapfont::Draw(page, left, top + TextTop(nameLines), "cannot be read");
}

std::pair<int, int> SheetPage::BeginCell(const std::string& name) {
    const int left = margin + used % columns * cellWidth;
    const int top = titleHeight + margin + used / columns * cellHeight;
    ++used;
    int line = 0;
    for (const std::string& text : LinesOf(name)) bitmapfont::Draw(page, left, top + TextTop(line++), text);
    return {left, top};
}

} // namespace keltavlo
