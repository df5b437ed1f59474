// Which attributes of an object change the parameters of its level. None is known yet.

#include "tessaline/slp_oparms.h"

bool cl_slp_oparms::store_attributes_in_oparms(std::string_view) {
    return false;
}
