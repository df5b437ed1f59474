#include "sketchup/skp/writer/written_sun.h"

namespace skp {

sketchup::shadow_info written_sun(const sketchup::shadow_info& sun) {
    constexpr std::int64_t afternoon_of_8_november_2020 = 1604842200; // half past one
    sketchup::shadow_info written = sun;
    if (written.time == 0)
        written.time = afternoon_of_8_november_2020;
    if (sun.city.empty() && sun.country.empty() && sun.longitude == 0 && sun.latitude == 0) {
        written.city = "Boulder (CO)";
        written.country = "USA";
        written.longitude = -105.242139;
        written.latitude = 40.018309;
        written.time_zone = -7;
    }
    return written;
}

} // namespace skp
