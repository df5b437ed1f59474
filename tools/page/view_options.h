#pragma once

// What batch-view and skp-view are asked for on their command lines.

#include <cstddef>
#include <optional>
#include <string>

struct view_options {
    std::string input;
    std::string page_file;    // empty if no page is wanted
    std::string picture_file; // empty if no picture is wanted
    std::size_t width = 640;
    std::size_t height = 480;
    bool is_clear = false; // the picture has no background
};

// INPUT [-o PAGE] [--png PICTURE [--size WxH] [--clear]], in any order. Nothing for anything else: neither page nor
// picture, a size without a picture, a side that is not 1 to 8192.
std::optional<view_options> read_view_options(int argc, const char* const* argv);
