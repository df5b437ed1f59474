#pragma once

// Whether a lamp file holds its 20 lines, each in its form.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"

#include <optional>
#include <string>

namespace batch_check {

struct lamp_facts {
    std::string type;
    bool gives_light = false;
};

// file: as "ZynBatch_Lights/light_0.txt". is_direct: the stream refers to it by "LGHT;". Nothing if the file cannot be
// read.
std::optional<lamp_facts> check_lamp(const batch_files& files, const std::string& file, bool is_direct,
                                     findings& found);

} // namespace batch_check
