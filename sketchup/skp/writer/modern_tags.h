#pragma once

// The numbers of the records of model.dat that are written and never read, beside those of skp/modern/tags.h. Fields
// without a name here have no known meaning; they are written by their number with the value that every file has.

#include "sketchup/skp/modern/tags.h"

namespace skp::modern::tag {

inline constexpr number reserved = 99; // begins some containers since 2023

inline constexpr number model_next_id = 501;
inline constexpr number model_axes = 508;
inline constexpr number model_fonts = 509;
inline constexpr number model_text_defaults = 510;
inline constexpr number model_dimension_defaults = 511;
inline constexpr number model_options = 512;
inline constexpr number model_watermarks = 515;
inline constexpr number model_classifications = 517;
inline constexpr number model_styles = 518;
inline constexpr number model_line_styles = 520;
inline constexpr number model_summary_entry = 522;
inline constexpr number model_behavior = 526;
inline constexpr number model_environments = 528;

inline constexpr number id_source = 1000;
inline constexpr number id_source_next = 1001;

inline constexpr number definition_modified = 5506;

inline constexpr number definition_thumbnail = 5509;

inline constexpr number picture = 9000;
inline constexpr number picture_format = 9001;
inline constexpr number picture_entry = 9002;

inline constexpr number thumbnail = 9500;
inline constexpr number thumbnail_camera = 9501;

inline constexpr number side_mapping_pins = 10007;

inline constexpr number watermark_manager = 11500;
inline constexpr number watermark_list = 11501;

inline constexpr number material_jpeg_quality = 13005;

inline constexpr number camera_near = 13504;
inline constexpr number camera_far = 13505;
inline constexpr number camera_description = 13512;
inline constexpr number camera_image_width = 13513;
inline constexpr number camera_scale = 13515;
inline constexpr number camera_center_x = 13516;
inline constexpr number camera_center_y = 13517;

inline constexpr number layer_active = 15002;
inline constexpr number layer_folder_expanded = 16005;

inline constexpr number line_style_manager = 16500;
inline constexpr number line_style_list = 16501;
inline constexpr number line_style = 16502;
inline constexpr number line_style_name = 16503;
inline constexpr number line_style_pattern = 16504;

inline constexpr number guide_line_figures = 17002;
inline constexpr number guide_line_stipple = 17003;
inline constexpr number guide_point_position = 17005;
inline constexpr number guide_point_origin = 17006;
inline constexpr number guide_point_has_origin = 17007;

inline constexpr number axes = 18000;
inline constexpr number axes_origin = 18001;
inline constexpr number axes_x = 18002;
inline constexpr number axes_y = 18003;
inline constexpr number axes_z = 18004;

inline constexpr number curve_edge_count = 19001;
inline constexpr number curve_first_edge = 19003;
inline constexpr number curve_last_edge = 19004;

inline constexpr number font_manager = 20000;
inline constexpr number font_list = 20001;
inline constexpr number font = 20500;
inline constexpr number font_name = 20501;
inline constexpr number font_points = 20504;
inline constexpr number font_world_size = 20506;

inline constexpr number attachment = 21000;
inline constexpr number attachment_kind = 21001;
inline constexpr number attachment_point = 21002;
inline constexpr number attachment_first = 21003;
inline constexpr number attachment_second = 21004;
inline constexpr number attached_to = 21500;
inline constexpr number attached_path = 21502;

inline constexpr number text_content = 22001;
inline constexpr number text_screen_x = 22002;
inline constexpr number text_screen_y = 22003;
inline constexpr number text_attachment = 22004;
inline constexpr number text_leader = 22005;
inline constexpr number text_font = 22009;

inline constexpr number text_defaults = 22500;

inline constexpr number dimension_text = 23001;
inline constexpr number dimension_font = 23002;
inline constexpr number linear_dimension_start = 23501;
inline constexpr number linear_dimension_end = 23502;
inline constexpr number linear_dimension_x_axis = 23503;
inline constexpr number linear_dimension_normal = 23504;
inline constexpr number linear_dimension_offset = 23506;

inline constexpr number dimension_defaults = 24500;

inline constexpr number option_manager = 25000;
inline constexpr number option_providers = 25001;
inline constexpr number option_provider = 25002;
inline constexpr number option_provider_name = 25003;
inline constexpr number option_provider_options = 25004;
inline constexpr number option_key = 25005;

inline constexpr number style_manager = 27000;
inline constexpr number style_list = 27001;
inline constexpr number style_selected = 27002;
inline constexpr number style_working_copy = 27003;
inline constexpr number style_is_changed = 27004;

inline constexpr number style = 27500;
inline constexpr number style_guid = 27501;
inline constexpr number style_description = 27502;
inline constexpr number style_folder = 27503;

inline constexpr number scene_axes = 29007;
inline constexpr number scene_shows_axes = 29010;
inline constexpr number scene_label = 29011;
inline constexpr number scene_transition_time = 29012;
inline constexpr number scene_delay = 29013;

inline constexpr number environment_manager = 31000;
inline constexpr number environment_list = 31001;

// Of the summary beside the model.
inline constexpr number summary_model_preview = 103;
inline constexpr number summary_dialog_preview = 104;
inline constexpr number summary_unit = 109;
inline constexpr number summary_path = 111;
inline constexpr number summary_lowest_reader = 115;
inline constexpr number summary_format = 116;
inline constexpr number summary_version = 117;
inline constexpr number summary_major = 118;
inline constexpr number summary_minor = 119;
inline constexpr number summary_history = 120;
inline constexpr number save_history = 200;
inline constexpr number save_list = 201;
inline constexpr number save = 202;
inline constexpr number save_program = 203;
inline constexpr number save_time = 204;
inline constexpr number save_number = 205;

} // namespace skp::modern::tag
