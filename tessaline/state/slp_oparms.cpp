// The stack of parameters that is handed down the walk. set_layer reads the layer table and current_oparms.

#include "tessaline/state/slp_oparms.h"

#include "qlw/qlw_trace.h"
#include "tessaline/state/run_state.h"

#include <cstddef>
#include <stdexcept>
#include <utility>

namespace {

bool names_real_layer(std::string_view layer_name) {
    return !layer_name.empty() && layer_name != default_layer_name;
}

} // namespace

cl_slp_oparms* cl_oparms_array::push() {
    std::unique_ptr<cl_slp_oparms> level = spare ? std::move(spare) : std::make_unique<cl_slp_oparms>();
    if (levels.empty())
        *level = {};
    else
        *level = *levels.back();
    levels.push_back(std::move(level));
    levels.back()->level = size() - 1;
    return levels.back().get();
}

cl_slp_oparms* cl_oparms_array::pop() {
    if (levels.size() > 1) {
        spare = std::move(levels.back());
        levels.pop_back();
    } else {
        cl_trace::here("cl_oparms_array::pop", trace_level::developer_error).report("Trying to pop first oparms");
    }
    return at(size() - 1);
}

void cl_oparms_array::forget_all_below(int pops_to_come) {
    const std::size_t kept = static_cast<std::size_t>(pops_to_come) + 1;
    if (levels.size() <= kept)
        return;
    const std::size_t count = levels.size() - kept;
    levels.erase(levels.begin(), levels.begin() + static_cast<std::ptrdiff_t>(count));
    forgotten += static_cast<int>(count);
}

cl_slp_oparms* cl_oparms_array::at(int index) const {
    if (index < forgotten || index >= size())
        throw std::invalid_argument("no parameter level of that index");
    return levels[static_cast<std::size_t>(index - forgotten)].get();
}

void cl_oparms_array::clear() {
    levels.clear();
    forgotten = 0;
}

const std::string& cl_slp_oparms::inherited_layer() const {
    return names_real_layer(layer_name) ? layer_name.str() : enclosing_layer.str();
}

void set_layer(cl_slp_oparms& oparms, const std::string& layer_name) {
    if (names_real_layer(oparms.layer_name)) // still the copy of the level below
        oparms.enclosing_layer = oparms.layer_name;
    oparms.layer_name = layer_name;
    if (!theApp.is_doing_animation)
        return; // nobody asks for the chain, and levels that stay on the stack would let it grow without end
    const int index = layers.index_of(layer_name);
    if (index < 0)
        return;
    const std::string& above = current_oparms->layer_chain.str(); // of the enclosing object, or this level's copy of it
    oparms.layer_chain = above.empty() ? std::to_string(index) : above + "," + std::to_string(index);
}
