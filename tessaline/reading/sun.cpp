// Which shadow settings of the open model become settings of the renderer.

#include "tessaline/reading/sun.h"

#include "qlw/qlw_globals.h"
#include "tessaline/model/dictionary_values.h"
#include "tessaline/state/run_state.h"

#include <cmath>

namespace {

double number_of(SUShadowInfoRef info, const char* key) {
    typed_value value;
    SUShadowInfoGetValue(info, key, value.out());
    return value.number().value_or(0);
}

bool flag_of(SUShadowInfoRef info, const char* key) {
    typed_value value;
    SUShadowInfoGetValue(info, key, value.out());
    return value.boolean().value_or(false);
}

fpt vector_of(SUShadowInfoRef info, const char* key) {
    typed_value value;
    SUShadowInfoGetValue(info, key, value.out());
    return value.vector().value_or(fpt());
}

} // namespace

sun_angles sun_angles_of(const fpt& to_sun) {
    const double along_ground = std::sqrt(to_sun.x * to_sun.x + to_sun.y * to_sun.y);
    return {std::atan2(to_sun.y, to_sun.x), std::atan2(to_sun.z, along_ground)};
}

void read_sun() {
    SUShadowInfoRef info = SU_INVALID;
    SUModelGetShadowInfo(open_model, &info);
    const auto [azimuth, altitude] = sun_angles_of(vector_of(info, "SunDirection"));
    set_global_double("rzyn_sun_azimuth", azimuth);
    set_global_double("rzyn_sun_altitude", altitude);
    set_global_double("rskp_sun_azimuth", azimuth);
    set_global_double("rskp_sun_altitude", altitude);
    set_global_bool("bskp_sun_daylight_time", flag_of(info, "DaylightSavings"));
    set_global_double("rskp_sun_latitude", number_of(info, "Latitude"));
    set_global_double("rskp_sun_longitude", number_of(info, "Longitude"));
    set_global_double("rskp_sun_timezone", number_of(info, "TZOffset"));
}
