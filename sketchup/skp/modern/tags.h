#pragma once

// The numbers of the records of model.dat that are read. Every class owns a multiple of 500; its fields follow it.

#include <cstdint>

namespace skp::modern::tag {

using number = std::uint16_t;

// The model, and what it holds.
inline constexpr number model = 500;
inline constexpr number model_content = 502;
inline constexpr number model_materials = 503;
inline constexpr number model_layers = 504;
inline constexpr number model_definitions = 505;
inline constexpr number model_camera = 506;
inline constexpr number model_rendering_options = 507;
inline constexpr number model_shadow_info = 516;
inline constexpr number model_scenes = 519;
inline constexpr number model_properties = 521;

// What everything with an identity begins with.
inline constexpr number entity = 1500;
inline constexpr number entity_attachments = 1501;
inline constexpr number entity_id = 1502;

inline constexpr number drawing_element = 2000;
inline constexpr number drawing_material = 2001;
inline constexpr number drawing_layer = 2002;
inline constexpr number drawing_flags = 2003;

inline constexpr number vertex = 2500;
inline constexpr number vertex_position = 2501;

inline constexpr number edge = 3000;
inline constexpr number edge_start = 3001;
inline constexpr number edge_end = 3002;
inline constexpr number edge_curve = 3003;

inline constexpr number face = 3500;
inline constexpr number face_plane = 3501;
inline constexpr number face_loops = 3502;
inline constexpr number face_back_material = 3503;

inline constexpr number edge_use = 4000;
inline constexpr number edge_use_edge = 4001;
inline constexpr number edge_use_reversed = 4002;

inline constexpr number loop = 4500;
inline constexpr number loop_uses = 4501;

// The content of the model or of a definition.
inline constexpr number entities = 5000;
inline constexpr number entities_vertices = 5001;
inline constexpr number entities_edges = 5002;
inline constexpr number entities_faces = 5003;
inline constexpr number entities_instances = 5004;
inline constexpr number entities_groups = 5005;
inline constexpr number entities_order = 5006;
inline constexpr number entities_images = 5008;
inline constexpr number entities_guide_lines = 5009;
inline constexpr number entities_guide_points = 5010;
inline constexpr number entities_section_planes = 5011;
inline constexpr number entities_active_section_plane = 5012;
inline constexpr number entities_curves = 5014;
inline constexpr number entities_arcs = 5015;
inline constexpr number entities_texts = 5016;
inline constexpr number entities_dimensions = 5017;
inline constexpr number entities_glue = 5019;
inline constexpr number entities_has_box = 5023;
inline constexpr number entities_box = 5024;

inline constexpr number definition = 5500;
inline constexpr number definition_guid = 5501;
inline constexpr number definition_name = 5502;
inline constexpr number definition_description = 5503;
inline constexpr number definition_path = 5504;
inline constexpr number definition_time = 5505;
inline constexpr number definition_kind = 5507;

inline constexpr number definition_manager = 6000;
inline constexpr number definition_list = 6001;

inline constexpr number placement = 6500;
inline constexpr number placement_name = 6501;
inline constexpr number placement_transform = 6502;
inline constexpr number placement_definition = 6503;
inline constexpr number placement_guid = 6504;

inline constexpr number behavior = 7000;
inline constexpr number behavior_snap_to = 7001;
inline constexpr number behavior_no_scale_mask = 7002;
inline constexpr number behavior_glues = 7003;
inline constexpr number behavior_cuts_opening = 7004;
inline constexpr number behavior_faces_camera = 7005;
inline constexpr number behavior_shadow_faces_sun = 7006;

inline constexpr number group = 7500;
inline constexpr number image = 8000;

inline constexpr number texture_mapping = 10000;
inline constexpr number texture_mapping_front = 10001;
inline constexpr number texture_mapping_back = 10002;
inline constexpr number side_mapping = 10003;
inline constexpr number side_mapping_use = 10004;
inline constexpr number side_mapping_matrix = 10005;
inline constexpr number side_mapping_direction = 10006;

inline constexpr number material_manager = 12500;
inline constexpr number material_list = 12501;

inline constexpr number material = 13000;
inline constexpr number material_private = 13002;
inline constexpr number material_folder = 13004;

inline constexpr number camera = 13500;
inline constexpr number camera_eye = 13501;
inline constexpr number camera_target = 13502;
inline constexpr number camera_up = 13503;
inline constexpr number camera_perspective = 13506;
inline constexpr number camera_height = 13507;
inline constexpr number camera_field_of_view = 13508;
inline constexpr number camera_aspect = 13509;
inline constexpr number camera_fov_is_vertical = 13510;
inline constexpr number camera_two_dimensional = 13514;

inline constexpr number dictionary_base = 14000;
inline constexpr number attachments = 14001;
inline constexpr number attachment_list = 14002;
inline constexpr number dictionary = 14003;
inline constexpr number dictionary_name = 14004;
inline constexpr number dictionary_entries = 14005;
inline constexpr number dictionary_key = 14006;
inline constexpr number dictionary_read_only = 14007;

// A typed value holds one record, whose tag is this number and the code of the type.
inline constexpr number typed_value = 14500;

inline constexpr number layer_manager = 15000;
inline constexpr number layer_list = 15001;
inline constexpr number layer_root_folder = 15003;

inline constexpr number layer = 15500;
inline constexpr number layer_name = 15501;
inline constexpr number layer_hidden = 15502;
inline constexpr number layer_material = 15503;
inline constexpr number layer_page_behavior = 15504;

inline constexpr number layer_folder = 16000;
inline constexpr number layer_folder_name = 16001;
inline constexpr number layer_folder_hidden = 16002;
inline constexpr number layer_folder_folders = 16003;
inline constexpr number layer_folder_layers = 16004;

inline constexpr number guide = 17000;
inline constexpr number guide_line = 17001;
inline constexpr number guide_point = 17004;

inline constexpr number section_plane = 17500;
inline constexpr number section_plane_plane = 17501;
inline constexpr number section_plane_name = 17502;
inline constexpr number section_plane_symbol = 17503;

inline constexpr number curve = 19000;
inline constexpr number curve_polygon = 19002;

inline constexpr number arc = 19500;
inline constexpr number arc_figures = 19501;

inline constexpr number text = 22000;

inline constexpr number dimension = 23000;
inline constexpr number linear_dimension = 23500;

inline constexpr number glue = 25500;
inline constexpr number glue_base = 25501;
inline constexpr number glue_glued = 25502;
inline constexpr number glue_manager = 25503;
inline constexpr number glue_list = 25504;

inline constexpr number shadow_info = 26000;
inline constexpr number shadow_time = 26001;
inline constexpr number shadow_daylight_saving = 26002;
inline constexpr number shadow_city = 26003;
inline constexpr number shadow_country = 26004;
inline constexpr number shadow_longitude = 26005;
inline constexpr number shadow_latitude = 26006;
inline constexpr number shadow_time_zone = 26007;
inline constexpr number shadow_north = 26008;
inline constexpr number shadow_display = 26009;
inline constexpr number shadow_display_north = 26010;
inline constexpr number shadow_on_all_faces = 26011;
inline constexpr number shadow_on_ground = 26012;
inline constexpr number shadow_from_edges = 26013;
inline constexpr number shadow_light = 26014;
inline constexpr number shadow_dark = 26015;
inline constexpr number shadow_sun_for_all = 26016;

inline constexpr number scene_manager = 28000;
inline constexpr number scene_list = 28001;
inline constexpr number scene_active = 28002;

inline constexpr number scene_base = 28500;
inline constexpr number scene_name = 28501;
inline constexpr number scene_description = 28502;

inline constexpr number scene = 29000;
inline constexpr number scene_flags = 29001;
inline constexpr number scene_camera = 29002;
inline constexpr number scene_rendering_options = 29005;
inline constexpr number scene_shadow_info = 29006;
inline constexpr number scene_hidden_layers = 29008;
inline constexpr number scene_section_planes = 29009;
inline constexpr number scene_in_slide_show = 29015;

inline constexpr number rendering_options = 29500; // its fields stand in a table of their own

// The summary beside the model.
inline constexpr number summary = 100;
inline constexpr number summary_guid = 102;

} // namespace skp::modern::tag
