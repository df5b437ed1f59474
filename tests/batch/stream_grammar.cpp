#include "tests/batch/stream_grammar.h"

#include "tests/batch/line_reader.h"

#include <cmath>
#include <cstdint>
#include <set>

namespace {

constexpr int no_material = 0;
constexpr int edge_material = 1;
constexpr int first_material = 10;

enum class uvq_use { never, always, all_or_none };

// One function for each item of the format, in the order of the file; each takes its lines or reports a fault.
class stream_grammar {
    // The state lines and the mesh of one pass over a face.
    struct shown_side {
        int vertices = 0;
        bool is_alone = false; // seen from its front only
    };

public:
    explicit stream_grammar(std::vector<std::string_view> all_lines) : lines(std::move(all_lines)) {}

    void take_stream() {
        take_head();
        while (!at_end() && !at_edges())
            take_item();
        if (at_edges())
            take_edges();
        lines.take("#;");
        lines.take("END;");
        if (!lines.at_end())
            lines.fail("nothing may stand behind \"END;\"");
    }

private:
    // ---- head

    void take_head() {
        lines.take("#;Tessaline Geometry, new extractor");
        lines.take_date();
        lines.take("DFFC;ffffff");
        lines.take("DFBC;ffffff");
        lines.take("DFEC;000000");
        lines.take("#;");
        while (lines.at_tag("LYIN;"))
            take_layer();
        lines.take("#;");
        lines.take("PASS;0");
        lines.take("#;");
    }

    void take_layer() {
        lines.take("LYIN;" + std::to_string(layer_count++));
        layer_names.emplace(lines.take_text("LYNM;"));
    }

    bool is_animation() const { return layer_count != 0; } // every model has a layer
    bool at_end() const { return lines.at_end() || (lines.at("#;") && lines.next_is("END;")); }
    bool at_edges() const { return lines.at("#;") && lines.next_is("#;EDGES"); }

    // ---- items of the body

    void take_item() {
        if (lines.at("EMSH; Face") || lines.at("#; ProcessFace MESH"))
            take_face_block();
        else if (lines.at("EMSH; Close for new Face Lamp MESH") || lines.at("#; Process Face Lamp MESH"))
            take_face_lamp_block();
        else if (lines.at("#; Process Group Lamp"))
            take_lamp_block();
        else if (lines.at("#; Process Material Illum MESH"))
            take_illuminated_block();
        else if (lines.at("#;") && lines.next_is("#;NEW MESH for Image"))
            take_image_block();
        else if (lines.at("#; Process Group LGHT Lamp Direct Light") ||
                 lines.at("#; Process Instance Lamp Direct Light"))
            take_direct_light();
        else if (lines.at_tag("TLAY;") && inside_direct_light)
            take_bare_face();
        else if (!take_item_of_any_place())
            lines.fail("no item begins so");
    }

    // What may also stand inside a block that gathers faces. False, with nothing taken, if none of them stands here.
    bool take_item_of_any_place() {
        if (lines.at_tag("MATF;"))
            take_material();
        else if (lines.at_tag("CLPN;"))
            take_section_plane();
        else if (lines.at("#;PLANT"))
            take_plant();
        else if (lines.at_tag("RPCP;"))
            take_rpc();
        else
            return false;
        return true;
    }

    void take_material() {
        lines.take_text("MATF;");
        lines.take("MTX2;1");
        lines.take("MATI;" + std::to_string(first_material + material_count++));
    }

    void take_section_plane() {
        take_unit("CLPN;");
        lines.take_triple("CLPP;", ",");
    }

    void take_plant() {
        lines.take("#;PLANT");
        const bool has_own_data = lines.at("PLLB;OrnPlant");
        lines.take_text("PLLB;");
        if (!is_plant_file(lines.take_text("PLNM;")) && has_own_data)
            lines.fail_before("data of its own lie in the folder of plants");
        lines.take_triple("PLLC;", ",");
        // A plant of a library that gives no ratio of its height and none of its width; and a scattered one, which has
        // no size either.
        if (!lines.take_if("PLDM;inf") && !lines.take_if("PLDM;nan"))
            lines.take_real("PLDM;");
        lines.take_signed_number("PLSN;");
        lines.take_real("PLRT;");
        lines.take_real("PLSC;");
        lines.take("PLNT;1");
        lines.take("#");
    }

    // The full name of a file right in the folder of plants.
    static bool is_plant_file(std::string_view name) {
        constexpr std::string_view folder = "/Plants/";
        const std::size_t at = name.rfind(folder);
        return at != std::string_view::npos && name.find('/', at + folder.size()) == std::string_view::npos;
    }

    void take_rpc() {
        lines.take_triple("RPCP;", ",");
        for (const char* axis : {"RPCX;", "RPCY;", "RPCZ;"})
            take_unit_or_zero(axis); // zero if the object is squeezed flat
        for (const char* scale : {"RPSX;", "RPSY;", "RPSZ;"}) {
            if (lines.at_tag(std::string(scale) + "-"))
                lines.fail("the length of an axis is not negative");
            lines.take_real(scale);
        }
        lines.take_text("RPCL;");
        lines.take_text("RPCN;");
        lines.take("#");
    }

    void take_direct_light() {
        lines.skip();
        lines.take("LGHT;" + std::to_string(lamp_count++));
        inside_direct_light = true;
    }

    // The shape of a lamp that has no block: what a face block holds, without its first lines.
    void take_bare_face() {
        take_sides([this] {
            const shown_side taken = take_side(0);
            lines.take("EMSH;");
            return taken;
        });
    }

    // ---- blocks of faces

    void take_face_block() {
        inside_direct_light = false; // all that is in one counts as a lamp and has no block
        take_sides([this] { return take_block_of_side(); });
    }

    shown_side take_block_of_side() {
        if (block_seen)
            lines.take("EMSH; Face");
        block_seen = true;
        lines.take("#; ProcessFace MESH");
        lines.take("MESH;");
        lines.take_if("SHDW;0");
        if (lines.at_tag("GCOR;")) {
            lines.take_signed_number("GCOR;");
            lines.take_text("GNDC;");
        }
        take_invisible();
        const shown_side taken = take_side(0);
        lines.take("EMSH;");
        return taken;
    }

    void take_face_lamp_block() {
        if (block_seen)
            lines.take("EMSH; Close for new Face Lamp MESH");
        block_seen = true;
        lines.take("#; Process Face Lamp MESH");
        take_lamp_head();
        // A face that cannot be cut into triangles leaves the block of its lamp open and empty.
        if (!lines.at_tag("TLAY;"))
            return;
        take_face_in_block(0);
        lines.take("EMSH; END OF LAMP");
    }

    void take_lamp_block() {
        lines.take("#; Process Group Lamp");
        take_lamp_head();
        int vertices = 0;
        while (!lines.take_if("EMSH; END OF LAMP")) {
            if (lines.at_tag("TLAY;")) {
                vertices += take_face_in_block(vertices);
            } else if (lines.at("#;") && lines.next_is("#;INSERT IMAGE IN LAMP")) {
                lines.skip();
                lines.skip();
                vertices += take_image(vertices);
            } else if (!take_item_of_any_place()) {
                lines.fail("this cannot stand in the block of a lamp");
            }
        }
    }

    void take_lamp_head() {
        inside_direct_light = false;
        lines.take("MESH;");
        lines.take("LITE;" + std::to_string(lamp_count++));
        take_invisible();
    }

    void take_illuminated_block() {
        lines.take("#; Process Material Illum MESH");
        lines.take("MESH;");
        take_invisible();
        take_layer_of_geometry();
        lines.take("CULL;0");
        lines.take("MPUV;1");
        const int material = take_material_number("MATL;");
        if (material == no_material)
            lines.fail_before("no material does not glow");
        lines.take("MPU2;1");
        lines.take("MAT2;" + std::to_string(material));
        int vertices = 0;
        while (!lines.take_if("EMSH;") && !lines.take_if("EMSH; END OF ILLUM material")) {
            if (lines.at_tag("NORM;"))
                vertices += take_mesh(vertices, uvq_use::all_or_none);
            else if (lines.at_tag("MATF;")) // only faces stand between the first and the last of the block
                take_material();
            else
                lines.fail("this cannot stand in an illuminated block");
        }
    }

    void take_invisible() {
        if (lines.take_if("INVS;1"))
            lines.take("SHDW;0");
    }

    // ---- the sides of a face

    // A face that shows each of its sides alone gives two, of the same vertices; otherwise one stands for both.
    // Gives how many vertices there are in all.
    template<class Take>
    int take_sides(Take take) {
        const shown_side front = take();
        if (!front.is_alone)
            return front.vertices;
        const shown_side back = take();
        if (!back.is_alone)
            lines.fail_before("the other side of this face must be one-sided too");
        if (back.vertices != front.vertices)
            lines.fail_before("the two sides of this face have other vertices");
        return front.vertices + back.vertices;
    }

    // Both sides inside a block that gathers faces. first: the number of the first vertex.
    int take_face_in_block(int first) {
        return take_sides([this, next = first]() mutable {
            const shown_side taken = take_side(next);
            next += taken.vertices;
            return taken;
        });
    }

    shown_side take_side(int first) {
        take_layer_of_geometry();
        const bool is_alone = lines.at("CULL;1");
        return {take_mesh(first, take_materials()), is_alone};
    }

    void take_layer_of_geometry() {
        const std::string_view layer = lines.take_text("TLAY;");
        if (!is_animation() || !layer_names.contains(layer))
            return;
        for (const int layer_index : lines.take_whole_numbers("LYRS;", ","))
            if (layer_index >= layer_count)
                lines.fail_before("no layer has this number");
    }

    uvq_use take_materials() {
        if (lines.take_if("CULL;1")) {
            take_material_number("MATL;");
            return lines.take_if("MPUV;1") ? uvq_use::all_or_none : uvq_use::never;
        }
        lines.take("CULL;0");
        const bool is_textured = lines.take_if("MPUV;1");
        const int material = take_material_number("MATL;");
        if (is_textured)
            lines.take("MPU2;1");
        lines.take("MAT2;" + std::to_string(material));
        return is_textured ? uvq_use::always : uvq_use::never;
    }

    int take_material_number(std::string_view tag) {
        const int number = lines.take_whole_number(tag);
        if (number != no_material && (number < first_material || number >= first_material + material_count))
            lines.fail_before("no material has this number");
        return number;
    }

    int take_mesh(int first, uvq_use uvq) {
        int count = 0;
        while (lines.at_tag("NORM;")) {
            take_unit_or_zero("NORM;");
            if (uvq == uvq_use::all_or_none)
                uvq = lines.at_tag("UVQ;") ? uvq_use::always : uvq_use::never;
            if (uvq == uvq_use::always)
                take_uvq();
            lines.take_triple("VERT;", ",");
            lines.take("ADDV;" + std::to_string(first + count++));
        }
        if (count == 0)
            lines.fail("a mesh has at least one vertex");
        while (lines.at_tag("FACE;"))
            take_triangle(first, first + count);
        return count;
    }

    void take_uvq() {
        if (lines.take_triple("UVQ;", ",")[2] != 1)
            lines.fail_before("the third texture coordinate of a face is 1");
    }

    void take_triangle(int first, int end) {
        const std::vector<int> corners = lines.take_whole_numbers("FACE;", ",");
        if (corners.size() != 3)
            lines.fail_before("a triangle has three corners");
        for (const int corner : corners)
            if (corner < first || corner >= end)
                lines.fail_before("the mesh has no vertex of this number");
    }

    // ---- images

    void take_image_block() {
        lines.take("#;");
        lines.take("#;NEW MESH for Image");
        lines.take("MESH");
        take_image(0);
        lines.take("EMSH;");
    }

    int take_image(int first) {
        take_layer_of_geometry();
        lines.take("CULL;0");
        lines.take_if("SHDW;0");
        lines.take("MPUV;1");
        take_material_number("MATL;");
        lines.take("MPU2;1");
        lines.take("MAT2;10");
        int number = first;
        for (const char* uvq : {"UVQ;(0,0,0)", "UVQ;(1,0,0)", "UVQ;(1,1,0)", "UVQ;(0,1,0)"}) {
            take_unit_or_zero("NORM;");
            lines.take(uvq);
            lines.take_triple("VERT;", ",");
            lines.take("ADDV;" + std::to_string(number++));
        }
        const auto at = [first](int corner) { return std::to_string(first + corner); };
        lines.take("FACE;" + at(0) + ", " + at(1) + ", " + at(2));
        lines.take("FACE;" + at(2) + ", " + at(3) + ", " + at(0));
        return 4;
    }

    // ---- edges

    void take_edges() {
        lines.take("#;");
        lines.take("#;EDGES");
        // For a 3D document each edge is a block of its own, and nothing is closed behind the last.
        bool is_for_document = false;
        while (lines.at("#;") && lines.next_is("MESH;")) {
            take_edge_line();
            is_for_document = true;
        }
        if (is_for_document || at_end())
            return;
        take_edge_blocks();
    }

    void take_edge_line() {
        lines.take("#;");
        lines.take("MESH;");
        lines.take("EDGE;1");
        lines.take("TLAY;Edges");
        lines.take_triple("EDG1;", ", ");
        lines.take_triple("EDG2;", ", ");
        take_unit_or_zero("EDGN;", ", "); // zero for a line without length
        lines.take("EMSH;");
    }

    // The close ahead of a block closes the one before, be it closed or not.
    void take_edge_blocks() {
        constexpr int most_edges = 1000;
        int edges_wanted = most_edges - 1; // the count that ends a block starts at 1
        bool is_first = true;
        int edges = 0;
        while (true) {
            if (block_seen)
                lines.take("EMSH; Edges");
            if (!lines.at("#;MESH for Edges"))
                return;
            if (!is_first && edges != edges_wanted)
                lines.fail("the block of edges before is not full");
            edges_wanted = is_first ? most_edges - 1 : most_edges;
            is_first = false;
            block_seen = true;
            edges = take_edge_block(edges_wanted);
        }
    }

    int take_edge_block(int most_edges) {
        lines.take("#;MESH for Edges");
        lines.take("MESH;");
        if (!lines.at("TLAY;Layer0"))
            lines.fail("edges count as being on \"Layer0\"");
        take_layer_of_geometry();
        lines.take("CULL;0");
        lines.take("MATL;" + std::to_string(edge_material));
        lines.take("MAT2;" + std::to_string(edge_material));
        int edges = 0;
        while (lines.at_tag("NORM;")) {
            take_beam(edges * vertices_of_beam);
            if (++edges > most_edges)
                lines.fail("the block of edges is overfull");
        }
        if (edges == 0)
            lines.fail("a block of edges has at least one");
        return edges;
    }

    // Opposite sides have the same normal, and the normals of neighbours are square to one another.
    void take_beam(int first) {
        std::array<std::array<double, 3>, 4> normals{};
        for (std::size_t side = 0; side < normals.size(); ++side) {
            for (int corner = 0; corner < 4; ++corner) {
                const std::array<double, 3> normal = take_unit_or_zero("NORM;");
                if (corner != 0 && normal != normals[side])
                    lines.fail_before("the corners of a side have one normal");
                normals[side] = normal;
                lines.take_triple("VERT;", ",");
                lines.take("ADDV;" + std::to_string(first + corner));
            }
            const auto at = [first](int corner) { return std::to_string(first + corner); };
            lines.take("FACE;" + at(0) + "," + at(1) + "," + at(2));
            lines.take("FACE;" + at(2) + "," + at(3) + "," + at(0));
            first += 4;
        }
        if (normals[0] != normals[1] || normals[2] != normals[3] || !is_square(normals[0], normals[2]))
            lines.fail("these are no normals of a beam");
    }

    // ---- vectors

    void take_unit(std::string_view tag) {
        if (!is_unit(lines.take_triple(tag, ",")))
            lines.fail_before("this is no unit vector");
    }

    // The normal of a vertex whose surroundings are squeezed flat has no direction.
    std::array<double, 3> take_unit_or_zero(std::string_view tag, std::string_view separator = ",") {
        const std::array<double, 3> v = lines.take_triple(tag, separator);
        if (!is_unit(v) && v != std::array<double, 3>{})
            lines.fail_before("this is no unit vector");
        return v;
    }

    static constexpr double tolerance = 1e-6; // the text has nine digits, and what is below 1e-7 was cut off

    static bool is_unit(const std::array<double, 3>& v) {
        return std::abs(std::hypot(v[0], v[1], v[2]) - 1) < tolerance;
    }

    static bool is_square(const std::array<double, 3>& v, const std::array<double, 3>& w) {
        return std::abs(v[0] * w[0] + v[1] * w[1] + v[2] * w[2]) < tolerance;
    }

    static constexpr int vertices_of_beam = 16;

    line_reader lines;
    int layer_count = 0;
    std::set<std::string, std::less<>> layer_names;
    int material_count = 0;
    int lamp_count = 0;
    bool inside_direct_light = false; // or behind one, with no block since
    bool block_seen = false;          // a face block, face lamp block or edge block was opened before
};

} // namespace

std::ostream& operator<<(std::ostream& out, const grammar_fault& fault) {
    return out << "line " << fault.line << ": " << fault.reason;
}

std::optional<grammar_fault> first_grammar_fault(std::string_view stream) {
    const auto lines = stream_lines(stream);
    if (!lines)
        return grammar_fault{1, "not every line ends in CR LF"};
    try {
        stream_grammar(*lines).take_stream();
    } catch (const grammar_fault& fault) {
        return fault;
    }
    return std::nullopt;
}
