#include "image/SurfaceFlags.h"

namespace keltavlo {

const std::array<std::string_view, 32> surfaceFlagLabels{
    "Light", "Slick", "Sky", "Warp", "Trans 33", "Trans 66", "Flowing", "No Draw", "Hint", "Skip", "10",
    "11",    "12",    "13",  "14",   "15",       "16",       "17",      "18",      "19",   "20",   "21",
    "22",    "23",    "24",  "25",   "26",       "27",       "28",      "29",      "30",   "31"};

const std::array<std::string_view, 32> contentsFlagLabels{"Solid",
                                                          "Window",
                                                          "Aux",
                                                          "Lava",
                                                          "Slime",
                                                          "Water",
                                                          "Mist",
                                                          "7",
                                                          "8",
                                                          "9",
                                                          "10",
                                                          "11",
                                                          "12",
                                                          "13",
                                                          "14",
                                                          "Area Portal",
                                                          "Player Clip",
                                                          "Monster Clip",
                                                          "Current 0°",
                                                          "Current 90°",
                                                          "Current 180°",
                                                          "Current 270°",
                                                          "Up",
                                                          "Down",
                                                          "Origin",
                                                          "Monster",
                                                          "Dead Monster",
                                                          "Detail",
                                                          "Translucent",
                                                          "Ladder",
                                                          "30",
                                                          "31"};

std::string DescribeFlags(std::uint32_t flags, const std::array<std::string_view, 32>& labels) {
    std::string text;
    for (std::size_t bit = 0; bit < labels.size(); ++bit) {
        if (!(flags >> bit & 1)) continue;
        if (!text.empty()) text += ", ";
        text += labels[bit];
    }
    return text;
}

} // namespace keltavlo
