#pragma once

// One reading of one model: the fixed order of the run, the walk, and all that it writes. The members are grouped by
// the file that holds them.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/blocks/block_writer.h"
#include "tessaline/faces/face_mesh.h"
#include "tessaline/faces/face_sides.h"
#include "tessaline/lamps/light_record.h"
#include "tessaline/materials/known_materials.h"
#include "tessaline/model/transforms.h"
#include "tessaline/plants/plants.h"
#include "tessaline/state/camera_view.h"
#include "tessaline/state/edge_record.h"
#include "tessaline/stream/geometry_stream.h"
#include "tessaline/walk/placements.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A list of entities on its way through the walk.
struct list_walk {
    SUEntitiesRef entities;
    const transform16& transform; // from the list to the model, inches
    std::string& path;            // the ids of what encloses the list, each followed by "-"
    int depth;                    // 0 at the top
};

// A face where the walk meets it.
struct face_in_walk {
    SUFaceRef face;
    const transform16& matrix;   // from the face's list to the world, inches
    bool flip;                   // the matrix mirrors
    std::string_view layer_name; // the layer that the face counts as being on
    bool casts_shadows;
};

// What a side of a face is told of its material.
struct material_of_side {
    int number = 0; // 0 for no material, else 10 or above
    bool has_texture = false;
    bool not_affine = false; // the texture is distorted; never within scattered components
    bool has_glow = false;
};

// Where the writing of the edge block stands.
struct edge_block_state {
    double pixels = 0;      // how wide a line is to look
    int last_layer = -2;    // that of the open block; no edge has this one
    int edges = 0;          // that were long enough to be written
    int local_vertices = 0; // of the open block
};

// A picture where the walk meets it. Points are world metres.
struct image_quad {
    std::string_view layer_name{};
    int material = 0;
    fpt origin;    // the corner of the picture's lower left
    fpt corner_y;  // at its height
    fpt corner_x;  // at its width
    fpt corner_xy; // at both
    fpt normal;    // unit
    bool casts_shadows = true;
};

struct material_file_names;

class SketchUpReader {
public:
    // model_reading.cpp: the order of one reading.
    // Gives 1 when the run ended, -1 when the model could not be opened; nothing has been written then.
    int ReadSkpFile(const std::string& input_path, const std::string& output_path);
    // Ends a reading that was broken off: closes the stream as it stands, and the model if it is open.
    void abandon_reading();

    // counting.cpp: how many steps of progress the walk will report.
    // Adds those of the list, and of all that it places, to items_done. Hidden content counts too. Always 1.
    int CountEntities(SUEntitiesRef entities);

    // traversal.cpp: the writing pass.
    // Walks a list and all that it places: groups, instances, at depth 0 the scattered components, then faces, images,
    // edges and, at depth 0, section planes.
    // transform: from the list to the model, in inches; element 15 is 1. path: the ids of what encloses the list, each
    // followed by "-"; grows and shrinks with the walk. depth: 0 at the top, where the bottom parameter record is
    // pushed and stays. Always 1.
    int ProcessEntities(SUEntitiesRef entities, const transform16& transform, std::string& path, int depth);
    void advance_progress(); // one more item is done; the display moves every 100 items at most

    // placements.cpp: what decides whether a group or an instance is entered, and what its level says.
    placement_decision enter_group(SUGroupRef group, placement_walk& walk);
    placement_decision enter_instance(SUComponentInstanceRef instance, placement_walk& walk);
    // Whether an element may be entered at all; invisible: its layer is off and only a lamp is let through.
    bool is_let_in(SUDrawingElementRef element, SULayerRef layer, bool& invisible) const;
    void close_lamp(const transform16& transform);

    // skatter_instances.cpp: components that a scattering tool has placed.
    void process_skatter_instances();
    void count_skatter_instances();

    // rpc_objects.cpp: components that stand for objects of an outside library.
    // transform: from the instance to the world, in inches.
    void write_rpc(SUComponentInstanceRef instance, const rpc_description& rpc, const transform16& transform);

    // zyn_plants.cpp: components that stand for plants of the renderer.
    // Writes the plant's record, and its file if it brings one; a hidden instance leaves nothing. Takes one random
    // number for each plant written. instance: invalid for a scattered plant, which has no size of its own then.
    // transform: from the plant to the world, in inches. layer_text, name_text: without effect, a plant's record names
    // neither.
    void Write_Zyn_plant(SUComponentInstanceRef instance, const plant_description& plant, const transform16& transform,
                         std::string_view layer_text, std::string_view name_text);

    // section_planes.cpp: which section planes clip the rendered scene.
    // Gives 1 if the plane was written, else 0.
    int process_section_plane(SUSectionPlaneRef plane);

    // edge_lines.cpp: which edges are shown as lines.
    // Keeps the edge for the edge block if it is one of them. matrix: from its list to the world, in inches. path:
    // without effect. Gives 1 if the edge was kept, else 0.
    int ProcessEdge(SUEdgeRef edge, const transform16& matrix, const std::string& path);

    // edge_block.cpp: how they become geometry at the end of the stream.
    // Writes nothing if no edge was kept. Needs no model. The view decides how thick a line is, and which edges are too
    // short to show; a view without a pixel height takes that of the setting "ivl_resy", and keeps it.
    void write_edge_lines();
    // One edge as a beam without caps. start, end: metres. b, a: half its width, square to it and to one another.
    // local_vertices: number of its first vertex in the block; grows by 16.
    void write_edge_box(const fpt& start, const fpt& end, const fpt& b, const fpt& a, int& local_vertices);

    // images.cpp: pictures placed in the model.
    // Writes the picture as a quad of two triangles. matrix: from its list to the world, in inches. path: without
    // effect. Gives 1 if it was written, 0 if it is hidden.
    int ProcessImage(SUImageRef image, const transform16& matrix, const std::string& path);
    // The block of it, or its part of an open lamp block.
    void write_image_quad(const image_quad& quad);

    // image_materials.cpp: the number of the material that carries the picture. One that is new to the run gets its
    // record, its files and its lines in the stream. Gives 0 for no pixels and for a picture that cannot be read, else
    // 10 or above.
    int get_image_material_number(SUImageRef image);

    // face_meshing.cpp: which side of a face becomes which block, and what stands in it.
    // Writes one face of the list that is being walked, on the parameter level that was pushed for it.
    // matrix: from the list to the world, in inches. flip: the matrix mirrors. path: of the entities down to the face;
    // without effect. Gives 1 when the face was handled, 0 when it was skipped.
    int ProcessFace(SUFaceRef face, const transform16& matrix, bool flip, const std::string& path);
    // The part of it that follows when the sides are known.
    int write_face_sides(const face_in_walk& walked, const face_side& front, const face_side& back);

    // material_numbers.cpp: the number of a face's side. A material that is new to the run gets its record, its files
    // and its lines in the stream.
    // kind: what asks, "face". The attribute list holds the material's attributes afterwards if the material is new,
    // its file could not be made, or the texture is distorted.
    material_of_side get_material_number(SUFaceRef face, SUMaterialRef material, std::string_view kind, bool is_front);

    geometry_stream stream; // closed until the run opens it; drops all lines while closed

    block_writer blocks{stream}; // what is open in the stream, and all that opens and closes there

    int ilights_saved = 0; // number of the next lamp

    // lamps.cpp: the lamps written so far, by number. The record of the run; nothing reads it back.
    std::vector<cl_lp_light> lights;

    // What the face at hand is meshed into; kept for the next, so that a face allocates nothing.
    face_scratch scratch;

    // Whether traces are heard, asked once for a list of faces; nothing outside of one.
    std::optional<bool> traces_heard;

    // Answers about materials, so that a face asks neither for names nor for files.
    known_materials materials;

    // How many edges are kept; the first one beyond is reported, and all of them are left out. A small model can place
    // its edges a thousand million times, and they all wait for the end of the stream.
    std::size_t most_edges = std::size_t{1} << 25;
    bool edges_left_out = false;

    // The camera that the parent has set.
    camera_view view;

    // Progress and model facts.
    int total_items = 0;
    int items_done = 0;
    int last_percent = 0;
    bool layer0_hidden = false;
    int version_major = 0;
    int version_minor = 0;
    int version_build = 0;

private:
    // model_reading.cpp: the steps of ReadSkpFile.
    void open_stream(const std::string& output_path);
    void write_stream_head();
    void number_layers();
    void count_items();
    void walk_model();

    // traversal.cpp: one kind of entity each.
    void process_groups(const list_walk& list);
    void process_instances(const list_walk& list);
    void process_group(SUGroupRef group, const list_walk& list);
    void process_instance(SUComponentInstanceRef instance, const list_walk& list);
    void process_faces(const list_walk& list);
    void process_images(const list_walk& list);
    void process_edges(const list_walk& list);
    void process_section_planes(SUEntitiesRef entities);
    void walk_placement(const placement_walk& walk, std::string& path);
    void walk_beams(const placement_walk& walk, std::string& path);

    // placements.cpp
    struct met_instance;
    // Pushes the level if it gets one. Fills what is still open of met and walk.
    placement_decision decide(met_instance& met, placement_walk& walk) const;
    // What is written in place of the component's content; nothing if the content is.
    static std::optional<placement_decision> stand_in_of(met_instance& met);
    static void push_level(const met_instance& met);
    void begin_instance(placement_decision decision, const met_instance& met, const placement_walk& walk);
    // What a level that was pushed writes ahead of its content. forced_hidden: its layer is off.
    void begin_level(placement_decision decision, const placement_walk& walk, std::string_view direct_label,
                     bool forced_hidden);

    // edge_block.cpp
    void write_edge_as_line(const cl_tsl_edge& edge, double pixels);
    void write_edge_as_beam(const cl_tsl_edge& edge, edge_block_state& state);
    void change_edge_block(int layer, edge_block_state& state);

    // material_numbers.cpp
    struct material_request;
    int find_or_declare_material(const material_request& asked);
    int declare_material(const material_request& asked, const std::string& name, const material_file_names& names,
                         bool has_file);

    // face_meshing.cpp
    bool begins_face_lamp() const;
    void begin_face_lamp(const transform16& matrix);
    void end_face_lamp(SUFaceRef face);
    bool write_face_pass(const face_in_walk& walked, const face_plan& plan, face_pass pass, bool face_lamp);
    void begin_face_pass(const face_in_walk& walked, const face_plan& plan, face_pass pass);
    void write_face_vertices(const transform16& matrix, const face_plan& plan, face_pass pass, const uv_helper& uv);
    void write_face_triangles(bool reversed);
};
