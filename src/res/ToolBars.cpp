#include "res/ToolBars.h"

#include "res/CommandIds.h"

namespace keltavlo {

namespace {

constexpr std::string_view newIcon[] = {
    "..#######.......", //
    "..#wwwww##......", //
    "..#wwwww#w#.....", //
    "..#wwwww####....", //
    "..#wwwwwwww#....", //
    "..#wwwwwwww#....", //
    "..#wwwwwwww#....", //
    "..#wwwwwwww#....", //
    "..#wwwwww.y.....", //
    "..#wwwwyy.y.yy..", //
    "..#wwwwwyyyyy...", //
    "..#wwwwyyyyyyyy.", //
    "..#wwwwwyyyyy...", //
    "..#####yy.y.yy..", //
    "..........y.....", //
};
constexpr std::string_view openIcon[] = {
    "................", //
    ".........###....", //
    "........#...#.#.", //
    ".............##.", //
    "..####......###.", //
    ".#yyyy#.........", //
    ".#yyyyy######...", //
    ".#yyyyyyyyyy#...", //
    ".#yyyyyyyyyy#...", //
    ".#yyy###########", //
    ".#yy#yyyyyyyyyy#", //
    ".#y#yyyyyyyyyy#.", //
    ".##yyyyyyyyyy#..", //
    ".############...", //
    "................", //
};
constexpr std::string_view saveIcon[] = {
    ".##############.", //
    ".#bb#wwwwww#bb#.", //
    ".#bb#wwwwww#bb#.", //
    ".#bb#wwwwww#bb#.", //
    ".#bb#wwwwww#bb#.", //
    ".#bb########bb#.", //
    ".#bbbbbbbbbbbb#.", //
    ".#bbbbbbbbbbbb#.", //
    ".#bb########bb#.", //
    ".#bb#gg#www#bb#.", //
    ".#bb#gg#www#bb#.", //
    ".#bb#gg#www#bb#.", //
    "..#b#gg#www#bb#.", //
    "...############.", //
    "................", //
};
constexpr std::string_view cutIcon[] = {
    "....#......#....", //
    "....##....##....", //
    ".....#....#.....", //
    ".....##..##.....", //
    "......#..#......", //
    "......####......", //
    ".......##.......", //
    ".......##.......", //
    "......####......", //
    ".....b#..#b.....", //
    "...bbbb..bbbb...", //
    "..bb..b..b..bb..", //
    "..b...b..b...b..", //
    "..bb.bb..bb.bb..", //
    "...bbb....bbb...", //
};
constexpr std::string_view copyIcon[] = {
    ".#######........", //
    ".#wwwww##.......", //
    ".#wwwww#w#......", //
    ".#wggww####.....", //
    ".#wwwwwwww#.....", //
    ".#wgggg#######..", //
    ".#wwwww#bbbbb##.", //
    ".#wgggg#bbbbb#b#", //
    ".#wwwww#bwwbb###", //
    ".#wwwww#bbbbbbb#", //
    ".#######bwwwwbb#", //
    ".......#bbbbbbb#", //
    ".......#bwwwwbb#", //
    ".......#bbbbbbb#", //
    ".......#########", //
};
constexpr std::string_view pasteIcon[] = {
    "......###.......", //
    "..####www####...", //
    "..#y#wwwww#y#...", //
    "..#y#######y#...", //
    "..#yyyyyyyyy#...", //
    "..#yyyyyyyyy#...", //
    "..#yyyy########.", //
    "..#yyyy#wwwww##.", //
    "..#yyyy#wggww###", //
    "..#yyyy#wwwwwww#", //
    "..#yyyy#wggggww#", //
    "..#yyyy#wwwwwww#", //
    "..######wggggww#", //
    ".......#wwwwwww#", //
    ".......#########", //
};
constexpr std::string_view undoIcon[] = {
    "................", //
    "................", //
    "....b...........", //
    "...bb...........", //
    "..bbbbbbbb......", //
    ".bbbbbbbbbbb....", //
    "..bbbbbbbbbbb...", //
    "...bb.....bbbb..", //
    "....b......bbb..", //
    "............bb..", //
    "............bb..", //
    "............bb..", //
    "...........bb...", //
    ".........bbb....", //
    "................", //
};
constexpr std::string_view redoIcon[] = {
    "................", //
    "................", //
    "...........n....", //
    "...........nn...", //
    "......nnnnnnnn..", //
    "....nnnnnnnnnnn.", //
    "...nnnnnnnnnnn..", //
    "..nnnn.....nn...", //
    "..nnn......n....", //
    "..nn............", //
    "..nn............", //
    "..nn............", //
    "...nn...........", //
    "....nnn.........", //
    "................", //
};
// A sun, half of it dark.
constexpr std::string_view halfIcon[] = {
    ".......yg.......", //
    ".......yg.......", //
    "..y..........g..", //
    "...y...##...g...", //
    "....##yygg##....", //
    "....#yyygggg....", //
    "...#yyyyggg##...", //
    "yy.#yyyygggg#.gg", //
    "yy.#yyyygggg#.gg", //
    "...#yyyyggg##...", //
    "....#yyygggg....", //
    "....##yygg##....", //
    "...y...##...g...", //
    "..y....yg....g..", //
    ".......yg.......", //
};
// Bands of flat color with sharp edges.
constexpr std::string_view nearestIcon[] = {
    "................", //
    ".##############.", //
    ".#rrrryyyynnnn#.", //
    ".#rrrryyyynnnn#.", //
    ".#rrrryyyynnnn#.", //
    ".#rrrryyyynnnn#.", //
    ".#yyyynnnnbbbb#.", //
    ".#yyyynnnnbbbb#.", //
    ".#yyyynnnnbbbb#.", //
    ".#yyyynnnnbbbb#.", //
    ".#nnnnbbbbwwww#.", //
    ".#nnnnbbbbwwww#.", //
    ".#nnnnbbbbwwww#.", //
    ".##############.", //
    "................", //
};
// Dots that thin out.
constexpr std::string_view ditherIcon[] = {
    "................", //
    ".##############.", //
    ".#bbbbbbwbwbww#.", //
    ".#bbbbwbwbwwww#.", //
    ".#bbbbbwbwbwww#.", //
    ".#bbbwbbwwbwww#.", //
    ".#bbbbbwbwwwww#.", //
    ".#bbwbbbwbwbww#.", //
    ".#bbbbwbwwbwww#.", //
    ".#bbbbbwbwwwww#.", //
    ".#bbbwbwbwbwww#.", //
    ".#bbbbwbwwwwww#.", //
    ".#bbbbbwbwbwww#.", //
    ".##############.", //
    "................", //
};

constexpr ToolBarRow separator{};

constexpr ToolBarRow standardBar[] = {
    {ID_FILE_NEW, newIcon},   {ID_FILE_OPEN, openIcon}, {ID_FILE_SAVE, saveIcon},   separator,
    {ID_EDIT_CUT, cutIcon},   {ID_EDIT_COPY, copyIcon}, {ID_EDIT_PASTE, pasteIcon}, separator,
    {ID_EDIT_UNDO, undoIcon}, {ID_EDIT_REDO, redoIcon},
};
constexpr ToolBarRow filterBar[] = {
    {ID_FILTER_HALF, halfIcon},
    separator,
    {ID_FILTER_NEAREST, nearestIcon},
    {ID_FILTER_DITHER, ditherIcon},
};

} // namespace

std::span<const ToolBarRow> StandardBarRows() {
    return standardBar;
}

std::span<const ToolBarRow> FilterBarRows() {
    return filterBar;
}

} // namespace keltavlo
