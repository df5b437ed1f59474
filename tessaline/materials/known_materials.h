#pragma once

// What has been found out about the materials of the open model, so that a face that shows one of them costs a look-up
// and neither builds a name nor asks for a file.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/state/material_record.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

// All that the file name of a material depends on within one reading.
struct material_question {
    SUMaterialRef material;
    std::int32_t texture_id = -1;                   // -1: not asked for
    std::optional<std::int32_t> layer_reflection{}; // of the object, per cent; none unless colours go by layer
    bool by_layer = false;                          // colours go by layer
    bool is_face = true;                            // a face asks
    bool is_scattered = false;                      // within scattered components

    friend bool operator==(const material_question& a, const material_question& b) {
        return a.material.ptr == b.material.ptr && a.texture_id == b.texture_id &&
               a.layer_reflection == b.layer_reflection && a.by_layer == b.by_layer && a.is_face == b.is_face &&
               a.is_scattered == b.is_scattered;
    }
};

struct material_answer {
    int record = 0;        // index in the material records
    bool has_file = false; // its text file is there
};

class known_materials {
public:
    // The answer that was kept, or null. records: how many material records there are. Each new one may claim a name
    // that another was found under, or write a file, so that all answers are forgotten when their number changes.
    const material_answer* find(const material_question& question, std::size_t records);
    void keep(const material_question& question, const material_answer& answer) {
        answers.insert_or_assign(question, answer);
    }

    // Whether the material has a name that is not empty; no for an invalid handle.
    bool is_named(SUMaterialRef material);

    // The index of the first record with that picture; -1 if there is none. records: those of the run, which only grow
    // between two calls of forget().
    int record_with_picture(const std::string& path, const std::vector<cl_tsl_material>& records);

    // As if nothing had been asked; needed when another model is opened.
    void forget();

private:
    struct question_hash {
        std::size_t operator()(const material_question& question) const;
    };

    std::unordered_map<material_question, material_answer, question_hash> answers;
    std::unordered_map<const void*, bool> named;   // by the material's handle
    std::size_t records_then = 0;                  // how many records there were when the answers were found
    std::unordered_map<std::string, int> pictures; // full name to index of the first record with it
    std::size_t pictures_of = 0;                   // how many records the pictures are of
};
