// A converter, or a checker, that does not do its work, in the way that the file stand_in.txt beside it says:
//   wait    makes the file "waiting" beside the stream and waits to be ended
//   half    leaves the beginning of a stream
//   crash   ends as programs do that have gone wrong
//   status  tells its user something with a control character, leaves nothing and ends with status 3
// Its arguments are those of the converter, of which the last is the stream, or those of the checker, of which the last
// is the batch folder.

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <thread>

namespace {

std::string beside(const std::string& file, const std::string& name) {
    return file.substr(0, file.find_last_of("/\\") + 1) + name;
}

std::string text_of(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

int main(int argc, char** argv) {
    constexpr int words_of_converter = 3;
    constexpr int words_of_checker = 5;
    if (argc != words_of_converter && argc != words_of_checker)
        return 1;
    const std::string stream = argc == words_of_converter ? argv[2] : std::string(argv[4]) + "/batch_file.txt";
    const std::string what = text_of(beside(argv[0], "stand_in.txt"));
    if (what == "wait") {
        std::ofstream(beside(stream, "left_behind")) << "by a run that was killed";
        std::ofstream(beside(stream, "waiting")) << "yes";
        for (;;)
            std::this_thread::sleep_for(std::chrono::hours(1));
    }
    if (what == "half")
        std::ofstream(stream, std::ios::binary) << "#;Tessaline Geometry\r\n";
    if (what == "crash")
        std::abort();
    if (what == "status")
        std::cerr << "a bell\x07\n";
    return what == "status" ? 3 : 0;
}
