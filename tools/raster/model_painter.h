#pragma once

// Draws what a model shows, asked of the C interface alone: faces with their own or inherited materials, edges, placed
// images. Hidden entities and those on layers that are switched off are left out.

#include "sketchup/model/values.h"
#include "sketchup/SketchUpAPI.h"
#include "tools/model_opening/walked_place.h"
#include "tools/raster/model_pictures.h"
#include "tools/raster/rasterizer.h"

#include <string>
#include <vector>

// Where the texture coordinates and pictures of faces come from.
enum class texture_source {
    material, // the material's picture, and the face's own coordinates with q
    writer,   // the pictures that a texture writer numbers, and the coordinates that belong to them
};

class model_painter {
public:
    // work_file: as model_pictures has it.
    model_painter(SUModelRef model, texture_source from, std::string work_file, rasterizer& into);
    model_painter(const model_painter&) = delete;
    model_painter& operator=(const model_painter&) = delete;
    ~model_painter();

    void draw();

    // How many pictures that the model shows could not be drawn.
    std::size_t missing_pictures() const { return pictures.missing(); }

    // The colour of an option like "BackgroundColor"; `otherwise` if the model does not hold it.
    static color option_color(SUModelRef model, const char* key, const color& otherwise);

private:
    struct place {
        sketchup::transform transform;
        walked_place inherited;
    };
    struct paint {
        color plain;
        const image::picture* picture = nullptr;
        double opacity = 1;
        double u_scale = 1; // what coordinates are multiplied by
        double v_scale = 1;
    };
    struct clear_triangle {
        std::array<vec, 3> corners;
        std::array<picture_point, 3> points;
        paint with;
    };

    void draw_list(SUEntitiesRef list, const place& at);
    void draw_placement(SUComponentInstanceRef instance, const place& at);
    void draw_face(SUFaceRef face, const place& at);
    void draw_edge(SUEdgeRef edge, const place& at);
    void draw_image(SUImageRef image, const place& at);
    void draw_triangle(const std::array<vec, 3>& corners, const std::array<picture_point, 3>& points,
                       const paint& with);
    paint paint_of(SUFaceRef face, bool front, const place& at);
    paint paint_of(SUMaterialRef material, SUFaceRef face, bool front, bool is_own);

    SUModelRef model_;
    texture_source source;
    rasterizer& picture;
    walk_rules rules;
    SUTextureWriterRef writer = SU_INVALID;
    model_pictures pictures;
    color front_color, back_color;
    std::vector<clear_triangle> clear; // drawn when all that is opaque stands
};
