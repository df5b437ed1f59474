#pragma once

// The text of a stream, as a test wants to see it.

#include "tessaline/stream/geometry_stream.h"
#include "tests/support/temporary_folder.h"

#include <initializer_list>
#include <string>
#include <string_view>

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
    const temporary_folder folder;
    {
        geometry_stream stream(block);
        stream.open((folder / "stream.txt").c_str(), extract_mode);
        write(stream);
    }
    return folder.read("stream.txt");
}
