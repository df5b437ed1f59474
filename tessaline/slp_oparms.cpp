// The stack of parameters that is handed down the walk. set_layer reads the layer table and current_oparms.

#include "tessaline/slp_oparms.h"

#include "qlw/qlw_trace.h"
#include "tessaline/run_state.h"

#include <stdexcept>

cl_slp_oparms* cl_oparms_array::push() {
    levels.push_back(levels.empty() ? std::make_unique<cl_slp_oparms>()
                                    : std::make_unique<cl_slp_oparms>(*levels.back()));
    levels.back()->level = size() - 1;
    return levels.back().get();
}

cl_slp_oparms* cl_oparms_array::pop() {
    if (levels.size() > 1)
        levels.pop_back();
    else
        cl_trace("slp_oparms", __LINE__, "cl_oparms_array::pop", 4, 0).report("Trying to pop first oparms");
    return levels.empty() ? nullptr : levels.back().get();
}

cl_slp_oparms* cl_oparms_array::at(int index) const {
    if (index < 0 || index >= size())
        throw std::invalid_argument("no parameter level of that index");
    return levels[static_cast<std::size_t>(index)].get();
}

void set_layer(cl_slp_oparms& oparms, const std::string& layer_name) {
    oparms.layer_name = layer_name;
    const int index = layers.index_of(layer_name);
    if (index < 0)
        return;
    const std::string above = current_oparms->layer_chain; // of the enclosing object, or the copy that this level has
    oparms.layer_chain = above.empty() ? std::to_string(index) : above + "," + std::to_string(index);
}
