// What of the model is written, in which order, and under which transform. Works on the parameter stack of the run.

#include "qlw/qlw_globals.h"
#include "qlw/qlw_trace.h"
#include "tessaline/faces/edge_choice.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/progress_dlg.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tessaline/walk/walk_log.h"

#include <cstdint>
#include <string>

// A model may nest 4,096 deep, and each level costs the frames of ProcessEntities, process_groups and process_group (or
// their like for instances): what a level needs for a moment only stays in the functions that these call and return
// from.

int SketchUpReader::ProcessEntities(SUEntitiesRef entities, const transform16& transform, std::string& path,
                                    int depth) {
    if (depth == 0)
        current_oparms = oparms_array.push();
    const list_walk list{entities, transform, path, depth};
    process_groups(list);
    process_instances(list);
    if (depth == 0)
        process_skatter_instances();
    process_faces(list);
    process_images(list);
    process_edges(list);
    if (depth == 0) {
        process_section_planes(entities);
        log_end_of_walk();
    }
    return 1;
}

void SketchUpReader::process_groups(const list_walk& list) {
    for (const SUGroupRef group : all_handles(SUEntitiesGetNumGroups, SUEntitiesGetGroups, list.entities))
        process_group(group, list);
}

void SketchUpReader::process_group(SUGroupRef group, const list_walk& list) {
    placement_walk walk;
    walk.transform = list.transform;
    walk.depth = list.depth;
    if (!is_walked(enter_group(group, walk)))
        return;
    walk_placement(walk, list.path);
    if (blocks.has_lamp_of_depth(list.depth))
        close_lamp(walk.transform);
    current_oparms = oparms_array.pop();
}

void SketchUpReader::process_instances(const list_walk& list) {
    for (const SUComponentInstanceRef instance :
         all_handles(SUEntitiesGetNumInstances, SUEntitiesGetInstances, list.entities))
        process_instance(instance, list);
}

void SketchUpReader::process_instance(SUComponentInstanceRef instance, const list_walk& list) {
    placement_walk walk;
    walk.transform = list.transform;
    walk.depth = list.depth;
    if (!is_walked(enter_instance(instance, walk)))
        return;
    walk_placement(walk, list.path);
    if (blocks.has_lamp_of_depth(list.depth)) {
        close_lamp(walk.transform);
        walk_beams(walk, list.path);
    }
    current_oparms = oparms_array.pop();
}

void SketchUpReader::walk_placement(const placement_walk& walk, std::string& path) {
    const std::size_t length = path.size();
    path += std::to_string(walk.id);
    path += '-';
    ProcessEntities(walk.entities, walk.transform, path, walk.depth + 1);
    path.resize(length);
}

// The beams of a spot lamp stand outside its block, as ordinary meshes.
void SketchUpReader::walk_beams(const placement_walk& walk, std::string& path) {
    if (blocks.begin_beam_pass())
        walk_placement(walk, path);
    blocks.end_beam_pass();
}

void SketchUpReader::process_faces(const list_walk& list) {
    const auto faces = all_handles(SUEntitiesGetNumFaces, SUEntitiesGetFaces, list.entities);
    if (faces.empty())
        return;
    const bool mirrored = is_mirrored(list.transform);
    traces_heard = traces_are_heard(); // asks the system, which no face should
    for (const SUFaceRef face : faces) {
        current_oparms = oparms_array.push();
        ProcessFace(face, list.transform, mirrored, list.path);
        current_oparms = oparms_array.pop();
        advance_progress();
    }
    traces_heard.reset();
    blocks.end_face_list();
}

void SketchUpReader::process_images(const list_walk& list) {
    if (blocks.state().beam_pass_running)
        return;
    for (const SUImageRef image : all_handles(SUEntitiesGetNumImages, SUEntitiesGetImages, list.entities)) {
        cl_trace::here("SketchUpReader::ProcessEntities", trace_level::plain).report("before ProcessImage");
        log_image_step(list.depth);
        ProcessImage(image, list.transform, list.path);
        advance_progress();
    }
}

void SketchUpReader::process_edges(const list_walk& list) {
    const int edge_lines = get_global_int("ivl_edge_lines");
    if (edge_lines == no_edges || blocks.state().beam_pass_running)
        return;
    cl_trace::here("SketchUpReader::ProcessEntities", trace_level::plain).report("before Edge Lines");
    for (const SUEdgeRef edge : edges_of(list.entities, edge_lines == stand_alone_edges)) {
        ProcessEdge(edge, list.transform, list.path);
        advance_progress();
    }
}

void SketchUpReader::process_section_planes(SUEntitiesRef entities) {
    for (const SUSectionPlaneRef plane :
         all_handles(SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes, entities))
        process_section_plane(plane);
}

void SketchUpReader::advance_progress() {
    constexpr int items_between_updates = 100;
    ++items_done;
    // A second reading of a process may not count what it walks, so the total can be 0 here.
    if (items_done % items_between_updates != 0 || total_items == 0)
        return;
    const int percent = static_cast<int>(std::int64_t{100} * items_done / total_items);
    if (percent == last_percent)
        return;
    last_percent = percent;
    update_progress(percent);
}
