#pragma once

// Every setting that a fresh table holds, sorted by name, one a line: name, save type, type (1 integer or boolean,
// 2 string, 3 double, 4 point, 5 colour) and default, a colour as "#rrggbb". Kept apart from the table that the program
// registers, and in another form, so that a slip in either shows.

#include <string_view>

inline constexpr std::string_view settings_expected = R"(
b_distortion_allowed 2 1 0
b_open_avi_file 2 1 1
baz_developer_mode 1 1 0
bcomm_use_extraction_log_file 2 1 0
bdlg_make_lamp_show_full_pane 2 1 0
bdlg_options_show_full_pane 2 1 0
bqlw_use_openpanel_for_browse 2 1 0
bshow_matl_browse_ok 1 1 0
btack_options_dialog 2 1 0
buse_small_icons_on_setup_wizard 2 1 1
bvl_accept_rpc_drops 2 1 1
bvl_add_jpeg_comment 5 1 0
bvl_adjust_transparency 4 1 1
bvl_allow_lighting_channels_to_brighten_image 2 1 1
bvl_alpha_ground_plane 4 1 0
bvl_anim_close_renderer 2 1 1
bvl_anim_dont_prompt_for_overwrite 1 1 0
bvl_anim_lock_tone_operator 4 1 0
bvl_anim_open_make_avi 2 1 1
bvl_anim_photo_real 4 1 0
bvl_anim_save_alpha_pngs 4 1 0
bvl_anim_use_render_farm 4 1 0
bvl_apply_metric_25_4_factor 4 1 0
bvl_artificial_lighting 4 1 1
bvl_auto_bump 4 1 0
bvl_auto_daylight_portals 4 1 0
bvl_auto_image_transparent 4 1 0
bvl_auto_lighting_channels 4 1 1
bvl_auto_maintain_aspect 4 1 0
bvl_auto_movie_background 4 1 0
bvl_auto_name_image 5 1 1
bvl_auto_reflection 4 1 0
bvl_auto_room_add_ceiling 4 1 1
bvl_auto_room_add_floor 4 1 1
bvl_auto_room_fill_with_lights 4 1 1
bvl_auto_room_lights_visible 4 1 1
bvl_auto_room_use_walls 4 1 1
bvl_auto_room_zoom_out 1 1 0
bvl_auto_synch_materials 2 1 0
bvl_auto_wall_load_column 1 1 1
bvl_auto_wall_load_wall1 1 1 1
bvl_auto_wall_load_wall2 1 1 1
bvl_auto_wall_show_horizon 1 1 0
bvl_azure_load_monitor 2 1 1
bvl_azure_low_priority 2 1 0
bvl_azure_use_cloud_for_anim 2 1 0
bvl_azure_was_once_ok 2 1 0
bvl_background_blur 4 1 0
bvl_batch_log_file 4 1 0
bvl_camera_light_hide 2 1 1
bvl_close_window_when_image_done 5 1 0
bvl_display_all_plants_as_2d_images 4 1 0
bvl_doing_auto_movie 1 1 0
bvl_dont_opengl_orbit 2 1 1
bvl_edges_cast_shadows 2 1 0
bvl_embed_textures 1 1 0
bvl_enable_fog 4 1 0
bvl_expand_proxy_components 4 1 1
bvl_fog_warning_out 1 1 0
bvl_foreground_blur 4 1 0
bvl_ground_plane 4 1 0
bvl_ground_plane_opaque 4 1 1
bvl_is_azure_direct_render_job 1 1 0
bvl_is_displaying_native_image 1 1 0
bvl_is_editing_light 1 1 0
bvl_is_planer_hdri 1 1 0
bvl_is_zwcad 4 1 0
bvl_launch_farm_displayer 4 1 1
bvl_launch_when_image_done 5 1 0
bvl_light_sort_descending 2 1 0
bvl_lighting_channel_on0 4 1 1
bvl_lighting_channel_on1 4 1 1
bvl_lighting_channel_on2 4 1 1
bvl_lighting_channel_on3 4 1 1
bvl_lighting_channel_on4 4 1 1
bvl_lighting_channel_on5 4 1 1
bvl_lighting_channel_on6 4 1 1
bvl_lighting_channel_on7 4 1 1
bvl_lighting_channel_on8 4 1 1
bvl_lighting_channel_on_av 4 1 1
bvl_load_auto_room_tab 4 1 0
bvl_lowend_render_mode 7 1 0
bvl_lowend_section_planes 4 1 1
bvl_make_auto_image_name_unique 5 1 1
bvl_make_panorama 4 1 0
bvl_material_display_large 2 1 0
bvl_metallic 4 1 0
bvl_monte_carlo_reflection 4 1 0
bvl_move_transparency_towards_white 4 1 1
bvl_no_blurry_reflection 4 1 1
bvl_no_render_limit 4 1 0
bvl_open_scene_image_folder 2 1 1
bvl_plant_random_rotation 4 1 0
bvl_preset_room_save_materials 1 1 1
bvl_preset_room_save_thumbnail 1 1 1
bvl_preset_room_save_walls 1 1 1
bvl_preview_close_window_when_image_done 1 1 0
bvl_preview_launch_when_image_done 1 1 0
bvl_preview_mode 1 1 0
bvl_preview_use_auto_image 5 1 0
bvl_process_invisible_lights 4 1 0
bvl_prompt_before_rendering 5 1 0
bvl_prompt_when_image_done 5 1 1
bvl_remember_filters 4 1 0
bvl_render_farm_auto_image 4 1 0
bvl_render_farm_installed 4 1 0
bvl_render_farm_show_active 2 1 1
bvl_render_farm_show_completed 2 1 1
bvl_render_farm_show_scheduled 2 1 1
bvl_render_farm_show_suspended 2 1 1
bvl_render_scene_stills 1 1 0
bvl_render_selection_set 4 1 1
bvl_rendering_was_saved 1 1 0
bvl_retain_decal_aspect 2 1 0
bvl_reverse_lamp_direction 2 1 0
bvl_rotate_camera 2 1 0
bvl_run_32_bit_batch_exe 2 1 0
bvl_save_debug_text_file 2 1 0
bvl_save_image_as_hdri 2 1 1
bvl_save_image_ask_before_overwrite 2 1 1
bvl_save_rpcs_file 2 1 0
bvl_show_auto_room 2 1 0
bvl_show_bulbs 4 1 1
bvl_show_close_batch_warning 2 1 1
bvl_show_lamp_overrides 2 1 1
bvl_show_layer_list 2 1 1
bvl_show_light_warning 2 1 1
bvl_show_lighting_panel 2 1 1
bvl_show_material_preview 2 1 0
bvl_show_render_selection_set 1 1 1
bvl_show_rendering_dialog 2 1 1
bvl_show_room_debug_tab 1 1 0
bvl_show_sketchup_rendering 5 1 0
bvl_show_tmb_pro_buttons 2 1 1
bvl_skip_start_dialog 1 1 0
bvl_skp_xray_mode 1 1 0
bvl_sky_illuminates_if_off 4 1 1
bvl_sky_reflected_if_off 4 1 1
bvl_sky_visible 4 1 0
bvl_special_surface_processing 2 1 0
bvl_split_rectangular_lights 2 1 0
bvl_studio_brightness 4 1 1
bvl_sun_on 4 1 0
bvl_sun_setting_manual 4 1 0
bvl_sun_setting_native 4 1 1
bvl_synchronize_sky_and_ground 4 1 1
bvl_tmb_indirect_lighting_override 4 1 0
bvl_tmb_use_sky 4 1 0
bvl_url_compoment_large 2 1 0
bvl_use_auto_image 5 1 0
bvl_use_auto_room 4 1 0
bvl_use_camera_lights 4 1 0
bvl_use_criss_cross_for_2d_rpcs 4 1 0
bvl_use_lc_avg_lum_for_anim 4 1 0
bvl_use_lc_avg_lum_for_rendering 4 1 0
bvl_use_material_channels 1 1 0
bvl_use_model_name_for_light_style_category 2 1 1
bvl_use_old_rpc_logic 2 1 0
bvl_use_plant_width 4 1 0
bvl_use_qlw_overrides_glow 4 1 0
bvl_use_render_farm 4 1 0
bvl_use_ruby_extractor 2 1 0
bvl_use_saved_camera 4 1 0
bvl_use_scene_name_for_light_style_subfolder 2 1 0
bvl_use_sketchup_aspect_ratio 4 1 1
bvl_use_sketchup_sun_intensity 4 1 1
bvl_use_watts 2 1 0
bvl_vellane_show_post_rendering_dialog 2 1 1
bvl_vellane_zyn_mode 2 1 1
bvl_zoom_all 2 1 0
bvl_zoom_hdri 1 1 1
bvlb_plantbaker_criss_cross_image 2 1 0
bvlb_plantbaker_make_top_view 2 1 0
bvlzyn_show_revit_decals 2 1 1
bvlzyn_show_revit_massings 2 1 0
bvlzyn_use_low_priority 2 1 0
bzyn_background_image_hdri 4 1 0
bzyn_background_maintain_aspect 4 1 0
bzyn_background_use_auto_room 4 1 1
bzyn_background_use_horizon 4 1 0
bzyn_display_all_layers 1 1 1
bzyn_display_background_layer 1 1 1
bzyn_display_foreground_layer 1 1 1
bzyn_display_model_layer 1 1 1
bzyn_display_show_hdri_layer 1 1 1
bzyn_foreground_active 4 1 0
bzyn_foreground_lock_aspect 4 1 0
bzyn_foreground_mask 4 1 0
bzyn_foreground_use_edge_lines 4 1 0
bzyn_foreground_use_multiply_mode 4 1 1
bzyn_hide_windows 2 1 0
bzyn_is_from_batch 7 1 0
bzyn_is_sketchup 7 1 1
bzyn_last_daylight_savings 2 1 0
bzyn_load_hdri_background 2 1 1
bzyn_load_material_editor 1 1 0
bzyn_no_rotation_or_assignment 1 1 0
bzyn_reflect_background_image 4 1 0
bzyn_sel_called_from_layer_dlg 1 1 0
bzyn_show_backgd_while_resizing 4 1 1
bzyn_show_render_area_only 2 1 0
bzyn_show_wireframe_model 2 1 0
bzyn_store_background_in_model 4 1 1
bzyn_sun_daylight_time 4 1 0
bzyn_suppress_assignment_mode 1 1 0
bzyn_use_background_image 4 1 1
bzyn_use_hdri_as_background 4 1 0
bzyn_use_original_image_resolution 2 1 0
corndll_carpet_color 2 5 #e7d5c7
corndll_disp_color 1 5 #14c814
corndll_grass_color 2 5 #8cc864
cskp_bk_color 4 5 #ffffff
cskp_ground_color 4 5 #ffffff
cskp_sky_color 4 5 #ffffff
cvl_bkgnd_fill_color 2 5 #333333
cvl_camera_light_color 2 5 #ffffff
cvl_custom_sky_color 4 5 #ffffff
cvl_fog_color 4 5 #ffffff
cvl_haze_color 4 5 #cccccc
cvl_layer_color 4 5 #e4e4e4
cvl_zw_lamp_color 4 5 #ffffff
icomm_translation_size_increase 2 1 0
iorn_new_material_type 1 1 0
iorndll_carpet_density 2 1 10000
iorndll_disp_density 1 1 10000
iorndll_grass_density 2 1 5000
iorndll_grass_or_carpet 2 1 0
ipr_assign_material_mode 2 1 0
ipr_material_rotation 2 1 1
iql_cur_select_material_tab 2 1 0
iql_cur_select_matl_index 2 1 0
iql_cur_select_tree_index 2 1 0
iql_last_matl_index 2 1 0
iql_sel_txtr_list_mode 2 1 0
iql_sel_wall_list_mode 2 1 0
iqlw_edit_lamp_type_tab 7 1 0
itxtr_category_filter 2 1 2
ivl_2_sided_faces 4 1 1
ivl_acad_instance_handle 1 1 0
ivl_acad_material_mode 2 1 0
ivl_ambient_type 4 1 2
ivl_anim_avi_handler 2 1 0
ivl_anim_compression_quality 2 1 85
ivl_anim_frame_rate 2 1 10
ivl_anim_frames_per_key 2 1 10
ivl_anim_output_type 2 1 0
ivl_anim_render_farm_tasks 4 1 6
ivl_auto_background_filter 1 1 0
ivl_auto_name_extension 5 1 0
ivl_auto_room_background 4 1 0
ivl_auto_room_ceiling_lights 4 1 3
ivl_auto_save_passes 5 1 5
ivl_azure_estimated_passes 1 1 0
ivl_azure_machine 2 1 0
ivl_azure_region 2 1 0
ivl_azure_tokens_needed 1 1 0
ivl_background_brightness 4 1 50
ivl_background_contrast 4 1 50
ivl_blur_mode 1 1 0
ivl_camera_light_bulbs 2 1 2
ivl_camera_light_channel 2 1 0
ivl_cameras_mode 2 1 1
ivl_channel_ceiling 4 1 3
ivl_channel_other 4 1 2
ivl_channel_self_glow 4 1 4
ivl_channel_sky 4 1 1
ivl_channel_sun 4 1 0
ivl_cloudiness 4 1 20
ivl_color_render_mode 4 1 0
ivl_decal_glow 2 1 0
ivl_dialog_ht 2 1 480
ivl_dialog_plantbaker_ht 2 1 900
ivl_dialog_plantbaker_wd 2 1 405
ivl_dialog_wd 2 1 640
ivl_dialog_x 2 1 0
ivl_dialog_y 2 1 0
ivl_edge_lines 4 1 0
ivl_fog_bounds 4 1 0
ivl_foreground_brightness 4 1 50
ivl_foreground_contrast 4 1 50
ivl_hdri_sub_tab 1 1 1
ivl_image_dpi 4 1 96
ivl_image_filters 4 1 0
ivl_image_quality 5 1 95
ivl_image_resolution 5 1 72
ivl_image_view_dialog_ht 2 1 560
ivl_image_view_dialog_wd 2 1 640
ivl_image_view_dialog_x 2 1 0
ivl_image_view_dialog_y 2 1 0
ivl_indirect_lighting 4 1 0
ivl_indirect_lighting_bounces 4 1 1
ivl_instance_components_at 4 1 0
ivl_lamps_tab 2 1 0
ivl_last_save_index 2 1 1
ivl_layer_color_mode 4 1 0
ivl_layer_wizard_tab 2 1 1
ivl_layr_dialog_hgt 2 1 0
ivl_layr_dialog_x 2 1 0
ivl_layr_dialog_y 2 1 0
ivl_light_balance 4 1 50
ivl_light_edit_mode 2 1 0
ivl_light_query_type 1 1 0
ivl_light_sort_column 2 1 0
ivl_light_warning_threshold 5 1 200
ivl_light_zoom_mode 2 1 0
ivl_lighting_channels 4 1 2
ivl_lighting_preset_mode 4 1 2
ivl_material_darkness_pct 2 1 50
ivl_material_display_mode 2 1 1
ivl_material_load_mode 2 1 0
ivl_material_styles_mode 2 1 0
ivl_material_wizard_display 2 1 1
ivl_matl_dialog_hgt 2 1 0
ivl_matl_dialog_x 2 1 0
ivl_matl_dialog_y 2 1 0
ivl_max_azure_minutes 2 1 15
ivl_max_azure_passes 2 1 0
ivl_max_azure_remaining_tokens 1 1 0
ivl_max_image_resolution 4 1 1000
ivl_max_render_minutes 4 1 0
ivl_max_render_passes 4 1 20
ivl_max_threads 2 1 -1
ivl_open_model_tab 2 1 0
ivl_options_mode 1 1 0
ivl_page_transitions 1 1 0
ivl_plant_detail 4 1 1
ivl_plant_prune 4 1 0
ivl_plant_random_height 4 1 1
ivl_plant_season 4 1 1
ivl_preset_room_load_mode 4 1 0
ivl_preset_room_save_number 1 1 0
ivl_processor_cores 1 1 0
ivl_progress_dlg_x 2 1 0
ivl_progress_dlg_y 2 1 0
ivl_reflective_bounces 4 1 3
ivl_refractive_bounces 4 1 6
ivl_remake_sketchup_texture 2 1 0
ivl_render_engine 4 1 0
ivl_render_farm_date_da 4 1 0
ivl_render_farm_date_mo 4 1 0
ivl_render_farm_date_yr 4 1 0
ivl_render_farm_slice_size 4 1 32
ivl_render_farm_start_mode 4 1 0
ivl_render_farm_time_hr 4 1 0
ivl_render_farm_time_mi 4 1 0
ivl_render_farm_time_se 4 1 0
ivl_render_preview_display_in 2 1 0
ivl_render_preview_hide_model 2 1 0
ivl_render_preview_resx 1 1 0
ivl_render_preview_resy 1 1 0
ivl_render_preview_size 2 1 0
ivl_render_quality 4 1 0
ivl_render_size 4 1 0
ivl_resx 4 1 600
ivl_resy 4 1 420
ivl_save_image_action 2 1 0
ivl_section_planes 4 1 0
ivl_selected_color_index 1 1 0
ivl_setup_tab 7 1 0
ivl_shadow_softness 4 1 50
ivl_show_all_materials 2 1 0
ivl_show_only_room_materials 1 1 0
ivl_sketchup_render_mode 4 1 0
ivl_skp_resx 5 1 0
ivl_skp_resy 5 1 0
ivl_sky_color 4 1 2
ivl_sky_intensity 4 1 33
ivl_sky_rotation 4 1 0
ivl_sky_saturation 4 1 0
ivl_sky_type 4 1 2
ivl_start_render_after_dialog_closed 4 1 0
ivl_stats_dialog_ht 2 1 600
ivl_stats_dialog_wd 2 1 320
ivl_stats_dialog_x 2 1 0
ivl_stats_dialog_y 2 1 0
ivl_still_image_type 4 1 0
ivl_sun_highlight 4 1 90
ivl_sun_intensity 4 1 80
ivl_texture_units_mode 2 1 0
ivl_threads_selection 2 1 0
ivl_tmb_sun_intensity 4 1 1
ivl_tmb_sun_wall_number 4 1 0
ivl_tone_operator_brightness 4 1 50
ivl_tone_operator_burn 4 1 50
ivl_tone_operator_contrast 4 1 50
ivl_tone_operator_saturation 4 1 100
ivl_txtr_dpi 2 1 72
ivl_url_compoment_mode 2 1 1
ivl_zw_light_intensity 4 1 100
ivl_zw_light_shape 4 1 0
ivl_zw_light_type 4 1 0
ivlb_plantbaker_background_type 2 1 1
ivlb_plantbaker_resolution_factor 2 1 1
ivlb_plantbaker_shadow_mask 2 1 3
izyn_background_perspective_mode 4 1 0
izyn_background_projection 4 1 0
izyn_batch_action 4 1 0
izyn_batch_folder_mode 4 1 0
izyn_foreground_display_position 4 1 0
izyn_foreground_image_blend 4 1 50
izyn_last_latitude_dir 2 1 0
izyn_last_longitude_dir 2 1 0
izyn_last_sun_utc 2 1 7
izyn_latitude_dir 4 1 0
izyn_lights_per_pass_index 4 1 2
izyn_longitude_dir 4 1 0
izyn_minimum_lights_per_pass 4 1 5
izyn_model_opacity 2 1 100
izyn_option_value_tabs 1 1 0
izyn_render_default_size_hires 5 1 2000
izyn_render_default_size_large 5 1 1200
izyn_render_default_size_medium 5 1 900
izyn_render_default_size_small 5 1 600
izyn_sun_date 4 1 0
izyn_sun_flags 4 1 0
izyn_sun_time 4 1 0
izyn_sun_utc 4 1 -1
pzyn_sun_date 4 4 (0, 0, 0)
pzyn_sun_time 4 4 (0, 0, 0)
rorndll_carpet_height 2 3 1
rorndll_carpet_width 2 3 0.2
rorndll_disp_height 1 3 3
rorndll_disp_width 1 3 0.1
rorndll_grass_height 2 3 2.5
rorndll_grass_width 2 3 0.1
rvl_anim_world_avg_lum 4 3 0
rvl_auto_hgt 4 3 100
rvl_auto_illumination 4 3 0
rvl_auto_ior 4 3 1.3
rvl_auto_reflection 4 3 0
rvl_auto_room_ceiling_light_offset 4 3 24
rvl_auto_room_ceiling_light_size 4 3 24
rvl_auto_room_ceiling_light_spacing 4 3 72
rvl_auto_room_floor_height 4 3 0
rvl_auto_room_offset 4 3 24
rvl_auto_room_wall_height 4 3 120
rvl_auto_sharpness 4 3 0
rvl_auto_transparency 4 3 0
rvl_auto_wid 4 3 100
rvl_average_luminance 1 3 0
rvl_blur_intensity 4 3 0
rvl_camera_light_beam_angle 2 3 60
rvl_camera_light_field_angle 2 3 0
rvl_camera_light_intensity 2 3 75
rvl_camera_light_lamp_size 2 3 3
rvl_camera_light_offset_x 2 3 12
rvl_camera_light_offset_y 2 3 3
rvl_depth_focus 4 3 1
rvl_depth_of_field 4 3 0
rvl_edge_line_width 4 3 2
rvl_floor_image_width 4 3 12
rvl_focal_distance 4 3 0
rvl_focus_zone 4 3 1
rvl_fog_absorption_pct 4 3 0
rvl_fog_pmax_x 4 3 6
rvl_fog_pmax_y 4 3 6
rvl_fog_pmax_z 4 3 6
rvl_fog_pmin_x 4 3 0
rvl_fog_pmin_y 4 3 0
rvl_fog_pmin_z 4 3 0
rvl_fog_scatter_direction 4 3 0.2
rvl_fog_scattering_pct 4 3 20
rvl_gamma_factor 4 3 1.23
rvl_glare_intensity 4 3 0
rvl_glare_threshold 4 3 3600
rvl_haze_far 4 3 1200
rvl_haze_intensity 4 3 0
rvl_haze_near 4 3 0
rvl_image_offset 4 3 0.05
rvl_last_floor_image_width 2 3 12
rvl_lighting_channel_intensity0 4 3 1
rvl_lighting_channel_intensity1 4 3 1
rvl_lighting_channel_intensity2 4 3 1
rvl_lighting_channel_intensity3 4 3 1
rvl_lighting_channel_intensity4 4 3 1
rvl_lighting_channel_intensity5 4 3 1
rvl_lighting_channel_intensity6 4 3 1
rvl_lighting_channel_intensity7 4 3 1
rvl_lighting_channel_intensity8 4 3 1
rvl_lighting_channel_intensity_av 4 3 1
rvl_near_clipping 4 3 0.01
rvl_plant_density 4 3 1
rvl_preset_average_luminance 4 3 0
rvl_sky_intensity 4 3 1
rvl_sky_pitch 4 3 0
rvl_sky_rotation 4 3 0
rvl_tmb_sun_altitude 4 3 75
rvl_tmb_sun_angle 4 3 0
rvl_tone_operator_brightness 1 3 0
rvl_tone_operator_burn 1 3 0
rvl_tone_operator_saturation 1 3 0
rvl_vignette 4 3 0
rvl_wall_multiply 4 3 2
rvl_zw_light_beam_angle 4 3 45
rvl_zw_light_field_angle 4 3 0
rvl_zw_light_length 4 3 24
rvl_zw_light_radius 4 3 1.5
rvl_zw_light_width 4 3 12
rvlb_camera_height 2 3 50
rvlb_plantbaker_average_illumination 2 3 100
rvlb_plantbaker_rotation 2 3 0
rvlb_plantbaker_sky_rotation 2 3 55
rvlb_top_view_image_height 2 3 1
rzyn_average_lumens 2 3 5000
rzyn_background_angle 4 3 0
rzyn_background_rotation 4 3 0
rzyn_background_xoffset 4 3 0
rzyn_background_xscale 4 3 100
rzyn_background_yoffset 4 3 0
rzyn_background_yscale 4 3 100
rzyn_distort_ll_offset_x 4 3 0
rzyn_distort_ll_offset_y 4 3 0
rzyn_distort_lr_offset_x 4 3 0
rzyn_distort_lr_offset_y 4 3 0
rzyn_distort_ul_offset_x 4 3 0
rzyn_distort_ul_offset_y 4 3 0
rzyn_distort_ur_offset_x 4 3 0
rzyn_distort_ur_offset_y 4 3 0
rzyn_fg_distort_ll_offset_x 4 3 0
rzyn_fg_distort_ll_offset_y 4 3 0
rzyn_fg_distort_lr_offset_x 4 3 0
rzyn_fg_distort_lr_offset_y 4 3 0
rzyn_fg_distort_ul_offset_x 4 3 0
rzyn_fg_distort_ul_offset_y 4 3 0
rzyn_fg_distort_ur_offset_x 4 3 0
rzyn_fg_distort_ur_offset_y 4 3 0
rzyn_foreground_scale 4 3 1
rzyn_foreground_xoffset 4 3 0
rzyn_foreground_xscale 4 3 100
rzyn_foreground_yoffset 4 3 0
rzyn_foreground_yscale 4 3 100
rzyn_groundplane_elevation 4 3 -0.01
rzyn_last_latitude 2 3 40
rzyn_last_longitude 2 3 105
rzyn_max_lumens 2 3 20000
rzyn_sun_altitude 4 3 0.5
rzyn_sun_azimuth 4 3 0.17
rzyn_sun_latitude 4 3 40
rzyn_sun_longitude 4 3 105
rzyn_sun_north 4 3 0
rzyn_sun_timezone 4 3 -6
sff_material_display_name 2 2
sff_material_selected_fullpath 1 2
sff_material_selected_item 2 2
sff_material_selected_material 1 2
sfill_orn_model_mode 1 2
slast_image_to_convert 2 2
slast_material_library_folder 2 2
slast_material_library_selection 2 2
smarevo_materials_folder 2 2
sns_cur_url_category 2 2
sns_last_url_list_item 2 2
sns_last_url_subcategory 2 2
sorndll_material_lib 2 2
sorndll_material_name 2 2
sorndll_plant_lib 2 2
sorndll_plant_name 2 2
sornmaterial_type 1 2
sqlw_current_batch_folder 1 2
sqlw_current_batch_folder_on_dialog 1 2
sqlw_extract_mode 1 2
svl_acad_block_selected 1 2
svl_acad_drawing_units 4 2
svl_acad_layer_selected 1 2
svl_anim_avi_codec 2 2
svl_anim_avi_file_full 2 2
svl_anim_file_extension 2 2 .jpg
svl_anim_image_full 2 2
svl_auto_image_folder 5 2
svl_auto_image_name 4 2
svl_auto_pattern 4 2
svl_auto_room_column_folder 4 2
svl_auto_room_floor_texture 4 2
svl_auto_room_wall1_folder 4 2
svl_auto_room_wall2_folder 4 2
svl_azure_job_email 2 2
svl_azure_job_name 4 2
svl_azure_project_group 2 2
svl_azure_token_group 2 2
svl_cur_url_category 2 2
svl_current_user_room 4 2
svl_decal_image 2 2
svl_get_rpc_plugin 1 2
svl_green_button_defaults 2 2 Draft
svl_image_filters 4 2
svl_last_floor_image_file 2 2
svl_last_iray_matl_fullpath 2 2
svl_last_jpeg_file 2 2
svl_last_layer_materials_file 2 2
svl_last_light_channel_file 2 2
svl_last_material_channel_file 4 2
svl_last_material_path 2 2
svl_last_rpc_fullpath 2 2
svl_last_rpc_selected 2 2
svl_last_scheme 2 2 Scheme 1
svl_last_stats_search 2 2
svl_last_texture_category 2 2 not set
svl_last_texture_filter 2 2 not set
svl_last_texture_folder 2 2
svl_last_url_list_item 2 2
svl_last_url_subcategory 2 2
svl_layer_texture 4 2
svl_layer_texture_name 4 2
svl_library_ornmaterial_name 2 2
svl_light_style_category 2 2
svl_light_style_subfolder 2 2
svl_lighting_channel_name0 4 2 Sun
svl_lighting_channel_name1 4 2 Sky
svl_lighting_channel_name2 4 2 Other
svl_lighting_channel_name3 4 2 Ceiling
svl_lighting_channel_name4 4 2 Self Glow
svl_lighting_channel_name5 4 2
svl_lighting_channel_name6 4 2
svl_lighting_channel_name7 4 2
svl_lighting_channel_name8 4 2
svl_lighting_style_name 2 2
svl_material_style_category 2 2
svl_material_style_name 2 2
svl_new_material_cat 1 2
svl_new_material_name 1 2
svl_preset_room_save_description 1 2
svl_progress_dlg_name 2 2
svl_render_farm_cur_model 1 2
svl_render_farm_job_name 4 2
svl_save_batch_folder 2 2
svl_save_batch_name 1 2
svl_save_image_folder 2 2
svl_save_image_name 1 2
svl_saved_camera 4 2
svl_saved_camera_full 4 2
svl_selected_material_style_category 2 2
svl_selected_style_name 2 2
svl_sky_hdr 4 2 rnl_probe.hdr
svl_still_image_folder 4 2
svl_sun_direction 4 2
svl_txt_texture_cat 2 2
svl_url_compoment_type 1 2
svl_zyn_image_full_path 2 2
szw_translation_file 2 2
szyn_background_image 4 2
szyn_batch_folder 4 2
szyn_batch_model_folder 4 2
szyn_foreground_image 4 2
szyn_last_background_image 2 2
szyn_original_background_image 4 2
szyn_sketchup_image 5 2
szyn_sun_utc 4 2
)";
