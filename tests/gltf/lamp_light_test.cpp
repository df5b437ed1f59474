#include "tools/batch_glb/lamp_light.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;

// All the light of a cone of one candela, added up by the format's own formula.
double lumens_of_one_candela(double inner, double outer) {
    double sum = 0;
    constexpr int steps = 200000;
    for (int i = 0; i < steps; ++i) {
        const double angle = (i + 0.5) * outer / steps;
        const double part =
            std::min(1.0, std::max(0.0, (std::cos(angle) - std::cos(outer)) / (std::cos(inner) - std::cos(outer))));
        sum += part * part * 2 * pi * std::sin(angle) * outer / steps;
    }
    return sum;
}

} // namespace

TEST(LampLight, of_a_spot_has_half_its_angles_and_all_its_lumens) {
    const lamp_file lamp = read_lamp_file("type;spot\r\nbeam_angle;30.000000\r\nfield_angle;45.000000\r\n"
                                          "intensity_lumens;850.000000\r\ncolor;#ff8000\r\ndirection;(0,1,0)\r\n");
    const gltf::json light = light_of(lamp);
    EXPECT_EQ(light["type"], "spot");
    const double inner = light["spot"]["innerConeAngle"];
    const double outer = light["spot"]["outerConeAngle"];
    EXPECT_NEAR(inner, 15 * pi / 180, 1e-7);
    EXPECT_NEAR(outer, 22.5 * pi / 180, 1e-7);
    EXPECT_NEAR(light["intensity"].get<double>() * lumens_of_one_candela(inner, outer), 850, 0.1);
    EXPECT_EQ(light["color"][0], 1);
    EXPECT_EQ(light["color"][2], 0);
    EXPECT_TRUE(is_directed(lamp));
}

TEST(LampLight, of_a_plane_shines_into_half_of_space) {
    const gltf::json light = light_of(read_lamp_file("type;rect_glow\nintensity_lumens;1000\n"));
    EXPECT_NEAR(light["spot"]["outerConeAngle"].get<double>(), pi / 2, 1e-5);
    EXPECT_LT(light["spot"]["outerConeAngle"].get<double>(), pi / 2);
    EXPECT_NEAR(light["intensity"].get<double>() * lumens_of_one_candela(0, pi / 2), 1000, 0.1);
}

TEST(LampLight, without_lumens_takes_17_for_each_watt) {
    EXPECT_EQ(lumens_of(read_lamp_file("intensity;60\nintensity_lumens;-1\n")), 1020);
    EXPECT_EQ(lumens_of(read_lamp_file("intensity;-1\nintensity_lumens;-1\n")), 0);
    EXPECT_EQ(lumens_of(read_lamp_file("intensity;60\nintensity_lumens;500\n")), 500);
}

TEST(LampLight, of_odd_angles_stays_within_what_the_format_allows) {
    for (const char* angles : {"beam_angle;180\nfield_angle;360\n", "beam_angle;nan\nfield_angle;-4\n",
                               "beam_angle;0.0001\nfield_angle;0.0001\n", "beam_angle;90\nfield_angle;-1\n"}) {
        const gltf::json spot =
            light_of(read_lamp_file(std::string("type;spot\nintensity_lumens;1\n") + angles))["spot"];
        EXPECT_LT(spot["innerConeAngle"], spot["outerConeAngle"]) << angles;
        EXPECT_GE(spot["innerConeAngle"], 0) << angles;
        EXPECT_LT(spot["outerConeAngle"], pi / 2) << angles;
    }
}

TEST(LampLight, of_any_other_type_shines_to_all_sides) {
    const lamp_file lamp = read_lamp_file("type;torch\nintensity_lumens;100\n");
    EXPECT_FALSE(is_directed(lamp));
    EXPECT_NEAR(light_of(lamp)["intensity"].get<double>(), 100 / (4 * pi), 1e-5);
}
