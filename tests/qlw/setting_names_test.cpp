#include "qlw/setting_names.h"

#include "captured_trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SettingNames, a_name_of_the_right_first_letter_is_accepted_in_silence) {
    captured_trace trace;
    EXPECT_TRUE(check_global_name_int("ivl_resx"));
    EXPECT_TRUE(check_global_name_int("bvl_sun_on"));
    EXPECT_TRUE(check_global_name_bool("bvl_sun_on"));
    EXPECT_TRUE(check_global_name_double("rvl_gamma_factor"));
    EXPECT_TRUE(check_global_name_String("svl_sky_hdr"));
    EXPECT_TRUE(check_global_name_fpt("pzyn_sun_date"));
    EXPECT_TRUE(check_global_name_COLORREF("cvl_fog_color"));
    EXPECT_THAT(trace.take(), IsEmpty());
}

TEST(SettingNames, each_check_reports_a_wrong_first_letter_under_its_own_name_and_shows_no_dialog) {
    captured_trace trace;
    EXPECT_FALSE(check_global_name_int("rvl_x"));
    EXPECT_FALSE(check_global_name_bool("ivl_x"));
    EXPECT_FALSE(check_global_name_double("ivl_x"));
    EXPECT_FALSE(check_global_name_String("ivl_x"));
    EXPECT_FALSE(check_global_name_fpt("ivl_x"));
    EXPECT_FALSE(check_global_name_COLORREF("ivl_x"));
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_globals", "check_global_name_int",
                                                      "*** ERROR: Integer globals should start with 'i': 'rvl_x'"},
                                          traced_line{"qlw_globals", "check_global_name_bool",
                                                      "*** ERROR: bool globals should start with 'b': 'ivl_x'"},
                                          traced_line{"qlw_globals", "check_global_name_double",
                                                      "*** ERROR: Double globals should start with 'r': ivl_x"},
                                          traced_line{"qlw_globals", "check_global_name_String",
                                                      "*** ERROR: CString globals should start with 's': ivl_x"},
                                          traced_line{"qlw_globals", "check_global_name_fpt",
                                                      "*** ERROR: Floating Point globals should start with 'p': ivl_x"},
                                          traced_line{"qlw_globals", "check_global_name_COLORREF",
                                                      "*** ERROR: COLORREF globals should start with 'c': ivl_x"}));
}

TEST(SettingNames, the_first_letter_counts_in_its_own_case) {
    captured_trace trace;
    EXPECT_FALSE(check_global_name_int("Ivl_resx"));
}

TEST(SettingNames, the_empty_name_fits_no_type) {
    captured_trace trace;
    EXPECT_FALSE(check_global_name_int(""));
    EXPECT_FALSE(check_global_name_bool(""));
    EXPECT_FALSE(check_global_name_double(""));
    EXPECT_FALSE(check_global_name_String(""));
    EXPECT_FALSE(check_global_name_fpt(""));
    EXPECT_FALSE(check_global_name_COLORREF(""));
}
