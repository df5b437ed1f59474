#include "tests/fuzz/text_seeds.h"

#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

struct seed {
    const char* target;
    const char* name;
    std::string_view bytes;
};

constexpr seed seeds[] = {
    {"fuzz_ini", "empty", ""},
    {"fuzz_ini", "profile",
     "; mine\r\n[Globals]\r\nsvl_name=a b\r\nivl_number = -5 \r\n\r\n[Common]\r\nPhone=\"1\"\r\n"},
    {"fuzz_ini", "plain_line_ends", "\xEF\xBB\xBF[a]\nkey=1\nKEY=2\n[b]\n[A]\nkey='3'\nno end"},
    {"fuzz_ini", "rubbish", "=x\n[open\n]\r\r\n[]\n=\n;[a]\n[a] ; behind\nkey=[\"]=;"},
    {"fuzz_ini", "two_bytes_a_letter", "\xFF\xFE[a]\nkey=1\n"},
    {"fuzz_base64", "empty", ""},
    {"fuzz_base64", "whole_groups", "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"},
    {"fuzz_base64", "padded", "T2FrIQ=="},
    {"fuzz_base64", "left_over", "T2FrIQT"},
    {"fuzz_base64", "broken_lines", "T2Fr\r\nIQ==\r\n"},
    {"fuzz_skatter_line", "empty", ""},
    {"fuzz_skatter_line", "plain", "a;b;c;oak;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1"},
    {"fuzz_skatter_line", "quoted", "a;b;c;\"oak; \"\"old\"\" \"r\"n\"x\";1e5;-2;.5"},
    {"fuzz_skatter_line", "short", "a;\"b"},
};

bool write(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    return out.good();
}

} // namespace

bool write_text_seeds(const std::string& folder) {
    bool is_written = true;
    for (const seed& each : seeds)
        is_written = write(std::filesystem::path(folder) / each.target / each.name, each.bytes) && is_written;
    return is_written;
}
