// Reads any bytes as an option file, writes the settings, and reads and writes these again: what has been through the
// file once must come through it unchanged.

#include "qlw/option_globals_file.h"
#include "qlw/qlw_globals.h"
#include "tests/support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

// Only settings that the text names: those of the table may be kept in the user's profile.
void read_alone(const temporary_folder& folder, std::string_view text) {
    reset_settings();
    read_option_globals(folder.write("in.txt", text));
}

std::string written(const temporary_folder& folder) {
    cl_output_file file;
    file.open(folder / "out.txt", output_file_mode::quiet);
    write_option_globals_to_open_file(file);
    file.close();
    return folder.read("out.txt");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const temporary_folder folder;
    read_alone(folder, {reinterpret_cast<const char*>(data), size});
    read_alone(folder, written(folder));
    const std::string once = written(folder);
    read_alone(folder, once);
    if (written(folder) != once)
        std::abort();
    return 0;
}
