#include "tools/model_opening/opened_model.h"

#include "platform/platform.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"

#include <cstdint>
#include <limits>
#include <new>
#include <vector>

namespace {

// The interface tells no more than a code, so the file is read once more for the words of the reader.
std::string words_of_the_reader(const std::string& file_name) {
    try {
        const auto bytes = platform::read_file(file_name, std::numeric_limits<std::uint32_t>::max());
        if (!bytes)
            return "the file cannot be read";
        const auto* first = reinterpret_cast<const std::uint8_t*>(bytes->data());
        skp::read_model(std::vector<std::uint8_t>(first, first + bytes->size()));
    } catch (const skp::format_error& error) {
        return error.what();
    } catch (const std::bad_alloc&) {
        return "not enough memory";
    }
    return "the interface refused it";
}

} // namespace

opened_model::opened_model(const std::string& file_name) {
    if (SUModelCreateFromFile(&handle, platform::utf8_from_own(file_name).c_str()) != SU_ERROR_NONE)
        reason = words_of_the_reader(file_name);
}

opened_model::~opened_model() {
    if (is_open())
        SUModelRelease(&handle);
}
