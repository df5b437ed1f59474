#pragma once

// The materials that a stream declares, and what becomes of them in a GLB.

#include "tools/batch_glb/material_look.h"
#include "tools/batch_reading/kept_records.h"
#include "tools/glb_pictures/embedded_picture.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class batch_materials {
public:
    // Numbers with a meaning of their own.
    static constexpr int none = 0;
    static constexpr int of_edges = 1;

    // kept: counts what is declared; it outlives this.
    batch_materials(std::string batch_folder, gltf::glb_writer& to, kept_records& kept);

    // "MATF;": the file of the materials that are declared from now on.
    void name_next(std::string_view name);

    // "MATI;": from now on the number means the material of the file that was named last. The file is read once;
    // without one the material is white. Where there is no room for more the number means none.
    void declare(int number);

    // Where the material stands that a number means now; the same for all numbers that mean none.
    std::size_t slot_of(int number) const;
    std::size_t declared() const { return slots.size() - first_declared; }

    // Whether the material of that slot has a picture that can be shown; the picture goes into the GLB with the first
    // question.
    bool has_picture(std::size_t slot);

    // The material of the GLB. Two-sided ones, and ones with a picture, are materials of their own.
    std::size_t material_of(std::size_t slot, bool two_sided, bool with_picture);

    std::size_t pictures() const { return embedded; }
    // In words, a line each, at most `most_notes`.
    const std::vector<std::string>& notes() const { return said; }

private:
    static constexpr std::size_t slot_of_none = 0;
    static constexpr std::size_t slot_of_edges = 1;
    static constexpr std::size_t first_declared = 2;
    static constexpr std::size_t most_notes = 20;

    struct shown_picture {
        std::optional<std::size_t> texture;
        coverage covers = coverage::opaque;
    };
    // A material file, and what came of its picture.
    struct file_look {
        material_look look;
        bool picture_known = false;
        shown_picture shown;
    };
    struct slot {
        int number = 0;
        std::size_t look = 0; // among the looks
    };

    void note(const std::string& text);
    file_look read_look(std::string_view name);
    std::optional<std::size_t> look_of(const std::string& name);
    file_look& look_at(std::size_t slot_number) { return looks[slots[slot_number].look]; }
    void find_picture(file_look& of);
    shown_picture load(const std::string& path);

    std::string folder;
    gltf::glb_writer& writer;
    kept_records& room;
    std::vector<file_look> looks;
    std::unordered_map<std::string, std::size_t> look_by_name;
    std::string named; // by name_next
    // Of that name, once it has been asked for: names may be of any length, and numbers without end may have the same.
    std::optional<std::optional<std::size_t>> named_look;
    std::vector<slot> slots;
    std::unordered_map<int, std::size_t> by_number;
    std::unordered_map<std::string, shown_picture> by_path;
    std::map<std::pair<std::size_t, int>, std::size_t> made; // by slot, and which of its four
    std::size_t embedded = 0;
    std::vector<std::string> said;
};
