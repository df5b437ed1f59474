#pragma once

// The text of a stream, as a test wants to see it.

#include "tessaline/stream/geometry_stream.h"

#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// A file of the running test's own in the temporary folder.
inline std::string test_file_name(const std::string& ending = "stream.txt") {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    return testing::TempDir() + test->test_suite_name() + "_" + test->name() + "_" + ending;
}

inline std::string file_text(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The lines with the ends that the stream gives them.
inline std::string lines(std::initializer_list<std::string_view> all) {
    std::string text;
    for (const std::string_view line : all)
        text.append(line).append("\r\n");
    return text;
}

// What a stream's file holds when `write` has used it and it is closed.
template<class Write>
std::string written_by(Write&& write, std::size_t block = geometry_stream::usual_block,
                       std::string_view extract_mode = "Tessaline") {
    const std::string name = test_file_name();
    {
        geometry_stream stream(block);
        stream.open(name.c_str(), extract_mode);
        write(stream);
    }
    return file_text(name);
}
