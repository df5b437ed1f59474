#pragma once

// Option files and view files that hold every kind of line.

#include <string_view>

namespace option_seeds {

inline constexpr std::string_view option_file = "# from the parent\r\n\r\n;value\r\n"
                                                "btest_flag; 1\r\nitest_count;-3\nrtest_size; 1e-9\r\n"
                                                "ptest_point; (1, 2.5, -3)\r\nstest_text; c:\\\\a\\n\\\\\r\n"
                                                "ctest_color; 16777215\r\nxtest_other; 1\r\nitest_empty;\r\n"
                                                "  stest_blanks ;  a;b  \r\nno separator\r\n";

inline constexpr std::string_view view_file =
    "# view\r\nEYE;(1,2,3)\r\nEYEX;1\r\neyey;2\r\nEYEZ;3\r\nTARGETX;4\r\nTARGETY;5\r\nTARGETZ;6\r\nFOV;35\r\n"
    "CAMERATYPE;ortho\r\nORTHOHEIGHT;12.5\r\nM_D;1\r\nM_L;2\r\nM_R;3\r\nM_B;4\r\nM_T;5\r\nPIXELWIDTH;800\r\n"
    "PIXELHEIGHT;600\r\nHEIGHT;0\r\nEYE;1,2\r\n;x\r\nEND_CURRENT;\r\nFOV;90\r\n";

} // namespace option_seeds
