// Each tag of the stream stands as a literal once in the program, in the file that writes the stream.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path program_folder = fs::path(TESSALINE_SOURCE_DIR) / "tessaline";

// The text of every source file of the program by its name.
std::map<std::string, std::string> program_sources() {
    std::map<std::string, std::string> sources;
    for (const auto& entry : fs::recursive_directory_iterator(program_folder)) {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
            continue;
        std::ostringstream text;
        text << std::ifstream(entry.path()).rdbuf();
        sources[entry.path().filename().string()] = text.str();
    }
    return sources;
}

int count_of(const std::string& part, const std::string& text) {
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

} // namespace

TEST(StreamTags, each_tag_is_a_literal_once_and_in_the_stream_writer) {
    const auto sources = program_sources();
    ASSERT_TRUE(sources.contains("geometry_stream.cpp"));
    for (const char* const tag :
         {"DFFC", "DFBC", "DFEC", "LYIN", "LYNM", "PASS", "MATF", "MTX2", "MATI", "MESH", "LITE",
          "SHDW", "GCOR", "GNDC", "INVS", "TLAY", "LYRS", "CULL", "MATL", "MAT2", "MPUV", "MPU2",
          "NORM", "UVQ",  "VERT", "ADDV", "FACE", "EMSH", "LGHT", "EDGE", "EDG1", "EDG2", "EDGN",
          "CLPN", "CLPP", "PLLB", "PLNM", "PLLC", "PLDM", "PLSN", "PLRT", "PLSC", "PLNT", "RPCP",
          "RPCX", "RPCY", "RPCZ", "RPSX", "RPSY", "RPSZ", "RPCL", "RPCN", "END"}) {
        const std::string closed = std::string("\"") + tag + "\""; // without the semicolon, as images spell one
        const std::string open = std::string("\"") + tag + ";";
        for (const auto& [name, text] : sources)
            EXPECT_EQ(count_of(open, text) + count_of(closed, text), name == "geometry_stream.cpp" ? 1 : 0)
                << tag << " in " << name;
    }
}
