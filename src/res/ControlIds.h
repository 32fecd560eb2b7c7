#pragma once

namespace keltavlo {

// Controls of the dialogs and property pages.
enum ControlId : unsigned {
    IDC_GAMMA_SETTINGS = 1008,
    IDC_WEBSITE = 1010,
    IDC_EMAIL = 1011,
    IDC_SAMPLE_RED = 1016,
    IDC_SAMPLE_GREEN = 1017,
    IDC_SAMPLE_BLUE = 1018,
    IDC_SAMPLE_RGB = 1019,
    IDC_SLIDER_RED = 1036,
    IDC_SLIDER_GREEN = 1037,
    IDC_SLIDER_BLUE = 1038,
    IDC_LINK_CONTROLS = 1039,
    IDC_GAMMA_VALUE = 1042,
    IDC_INFORMATION = 1044,
    IDC_WIDTH = 1052,
    IDC_HEIGHT = 1053,
    IDC_WIDTH_SPIN = 1062,
    IDC_HEIGHT_SPIN = 1063,
    IDC_NAME = 1086,
    IDC_NEXT_FRAME_NAME = 1087,
    IDC_VALUE = 1096,
    IDC_VALUE_SPIN = 1097,
    IDC_FIRST_FLAG = 2816 // and the next 31 ids
};

} // namespace keltavlo
