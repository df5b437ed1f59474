#include "qlw/profile_state.h"

namespace {

cl_profile_state process_profile_state;

} // namespace

cl_profile_state& profile_state() {
    return process_profile_state;
}

void reset_profile_state() {
    process_profile_state = {};
}
