#include "res/DialogIcons.h"

namespace keltavlo {

namespace {

constexpr std::string_view gammaIcon[] = {
    ".......##.......", //
    "....###yw###....", //
    "...#ywywywyg#...", //
    "..#yyywywywgg#..", //
    ".#yyywywywyggg#.", //
    ".#yyyywywywggg#.", //
    ".#yyywywywyggg#.", //
    "#yyyyywywywgggg#", //
    "#yyyywywywygggg#", //
    ".#yyyywywywggg#.", //
    ".#yyywywywyggg#.", //
    ".#yyyywywywggg#.", //
    "..#yywywywygg#..", //
    "...#yywywywg#...", //
    "....###wy###....", //
    ".......##.......", //
};
constexpr std::string_view redIcon[] = {
    ".......##.......", //
    "....###rr###....", //
    "...#rrrrrrrr#...", //
    "..#rrrrrrrrrr#..", //
    ".#rrrrrrrrrrrr#.", //
    ".#rrrrrrrrrrrr#.", //
    ".#rrrrrrrrrrrr#.", //
    "#rrrrrrrrrrrrrr#", //
    "#rrrrrrrrrrrrrr#", //
    ".#rrrrrrrrrrrr#.", //
    ".#rrrrrrrrrrrr#.", //
    ".#rrrrrrrrrrrr#.", //
    "..#rrrrrrrrrr#..", //
    "...#rrrrrrrr#...", //
    "....###rr###....", //
    ".......##.......", //
};
constexpr std::string_view greenIcon[] = {
    ".......##.......", //
    "....###nn###....", //
    "...#nnnnnnnn#...", //
    "..#nnnnnnnnnn#..", //
    ".#nnnnnnnnnnnn#.", //
    ".#nnnnnnnnnnnn#.", //
    ".#nnnnnnnnnnnn#.", //
    "#nnnnnnnnnnnnnn#", //
    "#nnnnnnnnnnnnnn#", //
    ".#nnnnnnnnnnnn#.", //
    ".#nnnnnnnnnnnn#.", //
    ".#nnnnnnnnnnnn#.", //
    "..#nnnnnnnnnn#..", //
    "...#nnnnnnnn#...", //
    "....###nn###....", //
    ".......##.......", //
};
constexpr std::string_view blueIcon[] = {
    ".......##.......", //
    "....###bb###....", //
    "...#bbbbbbbb#...", //
    "..#bbbbbbbbbb#..", //
    ".#bbbbbbbbbbbb#.", //
    ".#bbbbbbbbbbbb#.", //
    ".#bbbbbbbbbbbb#.", //
    "#bbbbbbbbbbbbbb#", //
    "#bbbbbbbbbbbbbb#", //
    ".#bbbbbbbbbbbb#.", //
    ".#bbbbbbbbbbbb#.", //
    ".#bbbbbbbbbbbb#.", //
    "..#bbbbbbbbbb#..", //
    "...#bbbbbbbb#...", //
    "....###bb###....", //
    ".......##.......", //
};

} // namespace

PixelArt GammaIcon() {
    return gammaIcon;
}

PixelArt RedIcon() {
    return redIcon;
}

PixelArt GreenIcon() {
    return greenIcon;
}

PixelArt BlueIcon() {
    return blueIcon;
}

} // namespace keltavlo
