#pragma once

// Draws a geometry stream with the materials that lie beside it in its batch folder. Pictures are shown as they are,
// plain colours lightly shaded by the vertex normals.

#include "image/picture.h"
#include "tools/batch_reading/kept_records.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/raster/rasterizer.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// Whether single precision can hold its corners: others lie nowhere, in any viewer, and are not drawn.
bool lies_somewhere(const stream_triangle& found);

class stream_painter : public stream_visitor {
public:
    // batch_folder: where the stream lies.
    stream_painter(std::string batch_folder, rasterizer& into);

    void record(std::string_view tag, std::string_view payload) override;
    void triangle(const stream_triangle& found) override;
    // Draws what is not opaque, which has waited until all else stands.
    void finish();
    // What could not be shown, in words, a line each: at most twenty files of materials and pictures that cannot be
    // read, each once, in the order in which they were looked for; how many materials found no room; whether the
    // picture is cut short.
    std::vector<std::string> notes() const;

private:
    static constexpr std::size_t most_missing = 20;
    static constexpr std::size_t most_waiting = std::size_t{1} << 20U; // triangles

    struct paint {
        color plain = {1, 1, 1};
        const image::picture* picture = nullptr;
        double opacity = 1;
    };
    struct clear_triangle {
        std::array<vec, 3> corners;
        std::array<picture_point, 3> points;
        paint with;
    };
    void declare(int number);
    std::optional<paint> paint_named(const std::string& material_name);
    void note_missing(const std::string& path);
    paint read_paint(const std::string& material_name);
    const image::picture* picture_of(const std::string& path);
    paint paint_of(const stream_triangle& found, bool front) const;
    void draw(const clear_triangle& t);

    std::string folder;
    rasterizer& picture;
    std::string last_name;                                         // of "MATF;"
    std::optional<std::optional<paint>> last_paint;                // of that name, once it has been asked for
    kept_records room;                                             // for materials and their numbers
    std::map<int, paint> paints;                                   // by material number
    std::map<std::string, paint> paints_by_name;                   // of material files that have been read
    std::map<std::string, std::optional<image::picture>> pictures; // by full name
    std::vector<clear_triangle> clear;
    std::vector<std::string> missing_files;
    std::uint64_t left_out = 0; // triangles
};
