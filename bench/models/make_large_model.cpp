// Writes one of the large models into a file.

#include "bench/models/large_models.h"
#include "image/encode_picture.h"
#include "tools/command_line/answers.h"

#include <charconv>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view archive_ending = ".archive";

std::string usage() {
    std::string text = "usage: make_large_model NAME[.archive] MODEL.skp [SIZE]\n"
                       "Writes a model of that size, in the archive container if asked. NAME, usual SIZE, what it "
                       "counts:\n";
    for (const large_model& one : large_models())
        text.append("  ").append(one.name).append(" ").append(std::to_string(one.size)).append(" ").append(one.holds) +=
            '\n';
    return text;
}

// A number above 0, or nothing.
std::optional<std::uint32_t> size_of_text(std::string_view text) {
    std::uint32_t size = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), size);
    if (fault != std::errc() || end != text.data() + text.size() || size == 0)
        return {};
    return size;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "make_large_model", usage()))
        return *status;
    if (argc < 3 || argc > 4)
        return refuse_command_line(usage());
    std::string_view name = argv[1];
    const bool archive = name.ends_with(archive_ending);
    if (archive)
        name.remove_suffix(archive_ending.size());
    const large_model* const which = find_large_model(name);
    const std::optional<std::uint32_t> size =
        argc == 4 ? size_of_text(argv[3]) : std::optional(which ? which->size : 0);
    if (!which || !size)
        return refuse_command_line(usage());

    const auto bytes = large_model_file(*which, *size, archive ? model_container::archive : model_container::classic);
    if (!image::write_picture_file(argv[2], bytes)) {
        std::fprintf(stderr, "make_large_model: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
