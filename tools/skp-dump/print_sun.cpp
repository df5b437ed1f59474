// Where the model stands, when, and where its sun is.

#include "tools/model_opening/su_lists.h"
#include "tools/skp-dump/prints.h"

#include <chrono>
#include <cstdio>

namespace {

// "2026-06-21 13:05:00"
std::string date_and_time(std::int64_t seconds) {
    using namespace std::chrono;
    const sys_seconds moment{std::chrono::seconds(seconds)};
    const sys_days day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss<std::chrono::seconds> clock(moment - day);
    char text[80];
    std::snprintf(text, sizeof text, "%d-%02u-%02u %02d:%02d:%02d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text;
}

// The answers of a model's shadow info; the neutral value for one that it does not give.
class shadow_answers {
public:
    explicit shadow_answers(SUShadowInfoRef of) : info(of) { SUTypedValueCreate(&value); }
    shadow_answers(const shadow_answers&) = delete;
    shadow_answers& operator=(const shadow_answers&) = delete;
    ~shadow_answers() { SUTypedValueRelease(&value); }

    double number(const char* key) {
        double answer = 0;
        if (ask(key))
            SUTypedValueGetDouble(value, &answer);
        return answer;
    }
    bool is_on(const char* key) {
        bool answer = false;
        if (ask(key))
            SUTypedValueGetBool(value, &answer);
        return answer;
    }
    std::int64_t time(const char* key) {
        std::int64_t answer = 0;
        if (ask(key))
            SUTypedValueGetTime(value, &answer);
        return answer;
    }
    std::string words(const char* key) { return ask(key) ? su_text(value, SUTypedValueGetString) : std::string(); }
    bool direction(const char* key, double (&to)[3]) {
        return ask(key) && SUTypedValueGetVector3d(value, to) == SU_ERROR_NONE;
    }

private:
    bool ask(const char* key) { return SUShadowInfoGetValue(info, key, &value) == SU_ERROR_NONE; }

    SUShadowInfoRef info;
    SUTypedValueRef value = SU_INVALID;
};

} // namespace

void print_sun(SUModelRef model) {
    SUShadowInfoRef info = SU_INVALID;
    if (SUModelGetShadowInfo(model, &info) != SU_ERROR_NONE)
        return;
    shadow_answers shadow(info);
    std::printf("  place %s, %s: latitude %.6g, longitude %.6g, %.6g hours from Greenwich, north %.6g degrees from y\n",
                shadow.words("City").c_str(), shadow.words("Country").c_str(), shadow.number("Latitude"),
                shadow.number("Longitude"), shadow.number("TZOffset"), shadow.number("NorthAngle"));
    std::printf("  time %s%s, shadows %s\n", date_and_time(shadow.time("ShadowTime")).c_str(),
                shadow.is_on("DaylightSavings") ? " (daylight saving)" : "",
                shadow.is_on("DisplayShadows") ? "on" : "off");
    double to_sun[3] = {};
    if (shadow.direction("SunDirection", to_sun))
        std::printf("  sun towards (%.6g, %.6g, %.6g)\n", to_sun[0], to_sun[1], to_sun[2]);
}
