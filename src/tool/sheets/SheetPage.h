#pragma once

#include "image/picture/Texture.h"

#include <string>

namespace keltavlo {

// A page of a contact sheet: rows of small pictures, with the name and size below each.
class SheetPage {
public:
    static constexpr int columns = 8, rows = 6;
    static constexpr std::size_t capacity = std::size_t{columns} * rows;

    // Creates a page with a line of text at the top and room for `count` pictures, at most `capacity`.
    SheetPage(const std::string& title, std::size_t count);

    // Fills the next cell. Reduces a picture that is larger than its cell by a whole factor. Texels that are
    // not opaque show a checkerboard.
    void Add(const std::string& name, const Image& picture);
    // Fills the next cell with a note instead of a picture.
    void AddMissing(const std::string& name);

    const Texture& GetPicture() const { return page; }

private:
    // Draws the name of the next cell and returns the cell's top-left corner.
    std::pair<int, int> BeginCell(const std::string& name);

    Texture page;
    int used = 0;
};

} // namespace keltavlo
