#include "tests/sketchup/skp/writer/archive_exceptions.h"

#include <string>

namespace {

constexpr const char* options = "an option that the model itself sets";
constexpr const char* sun = "a setting of the sun that the model itself makes";
constexpr const char* attributes = "what is attached is the model's";
constexpr const char* paint = "whether it is painted, or on which layer, is the model's";
constexpr const char* place_unknown = "a model does not keep where annotations lie";
constexpr const char* nothing_there = "a list without content";

constexpr archive_exception exceptions[] = {
    // What the model says.
    {"29500/29501", lack::zero, options},
    {"29500/29503", lack::zero, options},
    {"29500/29504", lack::zero, options},
    {"29500/29505", lack::zero, options},
    {"29500/29507", lack::zero, options},
    {"29500/29508", lack::zero, options},
    {"29500/29509", lack::zero, options},
    {"29500/29512", lack::zero, options},
    {"29500/29518", lack::zero, options},
    {"29500/29519", lack::zero, options},
    {"29500/29520", lack::zero, options},
    {"29500/29522", lack::zero, options},
    {"29500/29524", lack::zero, options},
    {"29500/29534", lack::zero, options},
    {"29500/29537", lack::zero, options},
    {"29500/29546", lack::zero, options},
    {"29500/29547", lack::zero, options},
    {"29500/29556", lack::zero, options},
    {"29500/29557", lack::zero, options},
    {"29500/29558", lack::zero, options},
    {"26000/26003", lack::empty, sun},
    {"26000/26004", lack::empty, sun},
    {"26000/26007", lack::zero, sun},
    {"26000/26011", lack::zero, sun},
    {"26000/26012", lack::zero, sun},
    {"26000/26015", lack::zero, sun},
    {"506/13500/13502", lack::zero, "a view at the origin"},
    {"506/13500/13506", lack::zero, "a parallel view"},
    {"506/13500/13510", lack::zero, "a field of view that is told horizontally"},
    {"2000/2003", lack::zero, "all switches of an element can be off"},
    {"10003/10004", lack::zero, "a side on which the texture lies as by default"},
    {"6500/2000/2001", lack::absent, paint},
    {"23000/2000/2001", lack::absent, paint},
    {"23000/2000/2002", lack::absent, paint},
    {"2000/1500/1501", lack::absent, attributes},
    {"502/5000/2000/1500", lack::empty, attributes},
    {"AttributeDictionaries/AttributeDictionary/Attribute", lack::absent, attributes},
    {"1501/14001/14002/10000", lack::absent, "a list of dictionaries, of a face whose texture lies as by default"},
    {"1501/14001/14002/14003/14005/*", lack::absent, attributes},
    {"1501/14001/14002/14003/14005/*", lack::empty, attributes},
    {"1501/14001/14002/14003/14005/*", lack::zero, attributes},
    {"1501/14001/14002/14003/14005", lack::empty, attributes},
    // What a model in memory does not have.
    {"100/111", lack::empty, "a model in memory has no path"},
    {"17004/17005", lack::zero, place_unknown},
    {"texture/images/image", lack::absent, "a texture whose picture is missing"},
    {"503/12500/12501/13000", lack::absent, nothing_there},
    {"503/12500/12501", lack::empty, nothing_there},
    {"5500/5000/5001", lack::absent, nothing_there},
    {"5500/5000/5002", lack::absent, nothing_there},
};

bool is_end_of(const std::string& path, const std::string& end) {
    return path == end || path.ends_with("/" + end);
}

} // namespace

std::span<const archive_exception> archive_exceptions() {
    return exceptions;
}

bool is_up_to_the_model(const archive_exception& exception) {
    return exception.reason == options || exception.reason == sun || exception.reason == attributes;
}

bool excuses(const archive_exception& exception, const finding& found) {
    if (exception.what != found.what)
        return false;
    const std::string pattern = exception.path;
    if (!pattern.ends_with("/*"))
        return is_end_of(found.path, pattern);
    return ("/" + found.path).find("/" + pattern.substr(0, pattern.size() - 1)) != std::string::npos;
}
