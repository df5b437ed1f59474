#pragma once

// What the program says about its own use.

#include <string_view>

inline constexpr std::string_view usage_text =
    "usage: tessaline INPUT OUTPUT [-is_animation]\n"
    "       tessaline FOLDER/geometry.qlm\n"
    "\n"
    "Converts the SketchUp model INPUT. The geometry stream goes to OUTPUT; everything else, materials, textures and\n"
    "lamps, goes to the folder of INPUT. With a single path that ends in \".qlm\" the stream is its neighbour\n"
    "\"batch_file.txt\". With no arguments on a terminal the program asks for both paths.\n"
    "\n"
    "  -is_animation     write all layers, with their table, for a renderer that switches them\n"
    "  --support-report  alone: print what support needs to know of this machine; in front of INPUT: with every "
    "error,\n"
    "                    print where it occurred, and the report on standard output\n"
    "  --help            show this text\n"
    "  --version         show the version\n"
    "\n"
    "Folder of INPUT may hold: option_globals.txt (settings; rewritten at the end), zyn_view.txt (camera),\n"
    "skatter_insts.txt (scattered components). Its sub-folders for lamps and textures are emptied.\n"
    "TESSALINE_TRACE=FILE, or -, writes what the program reports to developers.\n";
