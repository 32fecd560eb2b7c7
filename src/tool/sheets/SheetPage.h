#pragma once

#include "image/picture/Texture.h"

#include <string>

namespace keltavlo {

// A page of a contact sheet: rows of small pictures, each with its name and its size below.
class SheetPage {
public:
    static constexpr int columns = 8, rows = 6;
    static constexpr std::size_t capacity = std::size_t{columns} * rows;

    // A page with a line of text at the top and room for `count` pictures, at most `capacity`.
    SheetPage(const std::string& title, std::size_t count);

    // Fills the next cell. A picture that is larger than its cell is shown smaller, by a whole factor; texels
    // that are not opaque show a checkerboard.
    void Add(const std::string& name, const Image& picture);
    // Fills the next cell with a note in the place of a picture.
    void AddMissing(const std::string& name);

    const Texture& GetPicture() const { return page; }

private:
    // The top-left corner of the next cell, whose name is drawn.
    std::pair<int, int> BeginCell(const std::string& name);

    Texture page;
    int used = 0;
};

} // namespace keltavlo
