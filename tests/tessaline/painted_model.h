#pragma once

// Materials with numbers of the test's own choice, on a model that was built in memory.

#include "tests/tessaline/exported_pictures.h"

#include "tessaline/materials/texture_preload.h"

// A reader on a batch folder of the test's own, whose texture writer knows the model as that of a run does.
class painted_model_test : public reader_test {
protected:
    painted_model_test() {
        set_global_bool("bvl_move_transparency_towards_white", true);
        set_global_bool("bvl_adjust_transparency", true);
        set_global_bool("bvl_auto_lighting_channels", true);
    }
    ~painted_model_test() override {
        if (SUIsValid(texture_writer))
            SUTextureWriterRelease(&texture_writer);
    }

    // A material with that entity id.
    sketchup::index plain(std::int32_t id, std::string_view name, double opacity = 1) {
        const sketchup::index made = builder.material(name, {200, 100, 50, 255}, opacity);
        builder.model().materials[made].id = id;
        return made;
    }
    // The same with a picture on a tile of 10 by 20 inches.
    sketchup::index textured(std::int32_t id, std::string_view name) {
        const sketchup::index made =
            builder.textured_material(name, encoded(gradient(2, 2), image::picture_format::bmp), "picture.bmp", 10, 20);
        builder.model().materials[made].id = id;
        return made;
    }
    // A square of 100 inches with these materials on its sides.
    sketchup::entity_place square(sketchup::index front, sketchup::index back = sketchup::no_index) {
        const sketchup::entity_place made = builder.root().square(100);
        builder.element(made).material = front;
        builder.face(made).back_material = back;
        return made;
    }
    void distort_front(sketchup::entity_place face) {
        sketchup::side_mapping& mapping = builder.mapping(face).front;
        mapping.positioned = true;
        mapping.matrix = {1, 0, 0.001, 0, 1, 0, 0, 0, 1};
    }

    // Opens the model and lets the texture writer see all of it: the textures of the faces are numbered from 1.
    void open_painted() {
        open();
        SUTextureWriterCreate(&texture_writer);
        preload_textures(open_model, texture_writer);
    }

    // What a side is told of its material, and the number in it.
    material_of_side told(SUFaceRef face, bool is_front = true) {
        SUMaterialRef material = SU_INVALID;
        (is_front ? SUFaceGetFrontMaterial : SUFaceGetBackMaterial)(face, &material);
        return reader.get_material_number(face, material, "face", is_front);
    }
    int number_of(SUFaceRef face, bool is_front = true) { return told(face, is_front).number; }

    std::string material_file(const std::string& name) const { return batch.read("ZynBatch_Materials/" + name); }
    bool has_material_file(const std::string& name) const { return batch.has("ZynBatch_Materials/" + name); }
    bool has_picture(const std::string& name) const { return batch.has("Batch_SketchUp_Textures/" + name); }
};
