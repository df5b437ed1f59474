#pragma once

// A reader whose stream is open, on a model that was built in memory.

#include "qlw/qlw_globals.h"
#include "sketchup/api/handles.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/link.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tests/support/temporary_folder.h"
#include "tests/tessaline/stream_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class reader_test : public testing::Test {
protected:
    reader_test() {
        reset_process();
        reset_settings();
        set_global_bool("bvl_show_bulbs", true);
        set_global_int("ivl_2_sided_faces", 0);
        theApp.batch_folder = batch.name();
        SUInitialize();
        reader.stream.open(stream_name.c_str(), "Tessaline");
        current_oparms = oparms_array.push();
    }
    ~reader_test() override {
        if (SUIsValid(open_model))
            SUModelRelease(&open_model);
        SUTerminate();
        reset_process();
        reset_settings();
    }

    // Opens what the builder holds as the model of the run.
    void open() {
        auto model = builder.finish();
        skp::link(*model);
        open_model = sketchup::api::adopt_model(std::move(model));
        for (const SULayerRef layer : all_handles(SUModelGetNumLayers, SUModelGetLayers, open_model))
            layers.add(layer);
    }

    // The faces of the model's own list, in its order.
    std::vector<SUFaceRef> faces() const {
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        return all_handles(SUEntitiesGetNumFaces, SUEntitiesGetFaces, entities);
    }

    // Walks over all of them as the walk does, each on a level of its own. Gives what ProcessFace gave for the last.
    int process_faces(const transform16& matrix = identity16) {
        int result = -1;
        for (const SUFaceRef face : faces()) {
            current_oparms = oparms_array.push();
            result = reader.ProcessFace(face, matrix, is_mirrored(matrix), "");
            current_oparms = oparms_array.pop();
        }
        return result;
    }

    // Opens the block of a lamp at the top of the walk; the stream then holds lamp_head.
    void open_lamp_block() { reader.blocks.open_lamp_block(0, false, 0); }

    // What the stream holds; it is closed afterwards.
    std::string stream_text() {
        reader.stream.close();
        return text_of_file(stream_name);
    }

    temporary_folder batch;   // where lamps, materials and pictures go
    temporary_folder outside; // for what does not belong among them
    const std::string stream_name = outside / "stream.txt";
    SketchUpReader reader;
    sketchup::model_builder builder;
};

// What opens the block of the first lamp.
inline const std::string lamp_head = lines({"#; Process Group Lamp", "MESH;", "LITE;0"});

// The vertices of a square of 100 inches in the plane z = 0 and its two triangles, in the order of the host.
inline const std::string square_without_uvq =
    lines({"NORM;(0,0,1)", "VERT;(2.54,0,0)", "ADDV;0", "NORM;(0,0,1)", "VERT;(0,2.54,0)", "ADDV;1", "NORM;(0,0,1)",
           "VERT;(0,0,0)", "ADDV;2", "NORM;(0,0,1)", "VERT;(2.54,2.54,0)", "ADDV;3", "FACE;0,1,2", "FACE;1,0,3"});
