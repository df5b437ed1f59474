// 2,500 edges in all modes and views: the blocks of 999 and 1,000, and what is chosen. The expected streams are formed
// here from the places of the edges, in a way of their own; the texts at the borders are written out.

#include "tests/batch/batch_runner.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <optional>

namespace {

using namespace sketchup;

constexpr int alone = 2300;   // edges along x at y = 0, 1, 2 ... inches, of which every third is painted
constexpr int of_faces = 200; // edges of 50 squares of 10 inches in a row at y = 5000
constexpr double inch = 0.0254;

struct segment {
    std::array<double, 3> start{}; // inches
    std::array<double, 3> end{};
};

segment lone_edge(int i) {
    return {{0, double(i), 0}, {100, double(i), 0}};
}

// Side s of square i, counter-clockwise from the lower left corner.
segment side_of_square(int i, int s) {
    const double x = 20.0 * i;
    const std::array<std::array<double, 3>, 4> corners{
        {{x, 5000, 0}, {x + 10, 5000, 0}, {x + 10, 5010, 0}, {x, 5010, 0}}};
    return {corners[std::size_t(s)], corners[std::size_t((s + 1) % 4)]};
}

vec3 point(const std::array<double, 3>& p) {
    return {p[0], p[1], p[2]};
}

enum class squares { hidden, shown };

void put_edges(batch& b, int choice, squares faces) {
    model_builder m;
    const sketchup::index red = m.material("Red", {255, 0, 0, 255});
    for (int i = 0; i < alone; ++i) {
        const segment at = lone_edge(i);
        const entity_place edge = m.root().edge(point(at.start), point(at.end));
        if (i % 3 == 0)
            m.element(edge).material = red;
    }
    for (int i = 0; i < of_faces / 4; ++i) {
        const auto corner = [i](int s) { return point(side_of_square(i, s).start); };
        m.element(m.root().face({corner(0), corner(1), corner(2), corner(3)})).hidden = faces == squares::hidden;
    }
    m.attribute(m.root().list(), "qlw_globals", "ivl_edge_lines", whole_number(choice));
    b.put_model(m);
}

std::vector<segment> chosen(int choice) {
    std::vector<segment> all;
    for (int i = 0; i < alone; ++i)
        if (choice != 3 || i % 3 == 0)
            all.push_back(lone_edge(i));
    for (int i = 0; choice == 1 && i < of_faces; ++i)
        all.push_back(side_of_square(i / 4, i % 4));
    return all;
}

// ---- the expected text

std::string number(double value) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.9g", std::abs(value) < 1e-7 ? 0 : value);
    return text.data();
}

std::string triple(double x, double y, double z, const char* comma = ",") {
    return "(" + number(x) + comma + number(y) + comma + number(z) + ")";
}

void add_line(std::string& text, const std::string& line) {
    text += line + "\r\n";
}

// How wide a line is at the middle of an edge, in metres; nothing if there is no view.
using width_of_line = std::optional<double> (*)(const segment& where);

std::optional<double> width_without_view(const segment&) {
    return std::nullopt;
}

std::optional<double> width_in_parallel(const segment&) {
    return 4.2 / 420 * 2;
}

// The eye stands 10 m above the origin, and the field of view is 40, taken as radians.
std::optional<double> width_in_perspective(const segment& where) {
    const double x = (where.start[0] + where.end[0]) / 2 * inch;
    const double y = (where.start[1] + where.end[1]) / 2 * inch;
    return std::sin(40.0) * std::sqrt(x * x + y * y + 10 * 10) * 2 / 420;
}

// All edges lie level, so b points down, and a to the right of the edge as seen from above.
void add_beam(std::string& text, const segment& edge, const std::optional<double>& width, int first) {
    const double half = width.value_or(0) / 4;
    const double length = std::hypot(edge.end[0] - edge.start[0], edge.end[1] - edge.start[1]);
    const double along_x = (edge.end[0] - edge.start[0]) / length;
    const double along_y = (edge.end[1] - edge.start[1]) / length;
    const double unit = half == 0 ? 0 : half > 0 ? 1 : -1;
    const std::string normal_a = triple(along_y * unit, -along_x * unit, 0);
    const std::string normal_b = triple(0, 0, -unit);
    int number_of_vertex = first;
    const auto corner = [&](const std::string& normal, const std::array<double, 3>& end, int a, int b) {
        add_line(text, "NORM;" + normal);
        add_line(text, "VERT;" + triple(end[0] * inch + a * half * along_y, end[1] * inch - a * half * along_x,
                                        end[2] * inch - b * half));
        add_line(text, "ADDV;" + std::to_string(number_of_vertex++));
    };
    const auto side = [&](const std::string& normal, int a1, int b1, int a2, int b2) {
        corner(normal, edge.start, a1, b1);
        corner(normal, edge.start, a2, b2);
        corner(normal, edge.end, a2, b2);
        corner(normal, edge.end, a1, b1);
        const auto at = [&](int back) { return std::to_string(number_of_vertex - back); };
        add_line(text, "FACE;" + at(4) + "," + at(3) + "," + at(2));
        add_line(text, "FACE;" + at(2) + "," + at(1) + "," + at(4));
    };
    side(normal_a, 1, -1, 1, 1);
    side(normal_a, -1, -1, -1, 1);
    side(normal_b, -1, 1, 1, 1);
    side(normal_b, -1, -1, 1, -1);
}

const std::string head = "#;Tessaline Geometry, new extractor\r\n#;09/09/2001  01:46:40 GMT\r\nDFFC;ffffff\r\n"
                         "DFBC;ffffff\r\nDFEC;000000\r\n#;\r\n#;\r\nPASS;0\r\n#;\r\n";
const std::string end_of_stream = "#;\r\nEND;\r\n";
const std::string edges_begin = "#;\r\n#;EDGES\r\n";
const std::string head_of_block = "#;MESH for Edges\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMATL;1\r\nMAT2;1\r\n";
const std::string close_of_block = "EMSH; Edges\r\n";

std::string stream_of_beams(const std::vector<segment>& edges, width_of_line width) {
    std::string text = head;
    if (!edges.empty())
        text += edges_begin + head_of_block;
    int in_block = 0;
    int room = 999;
    for (const segment& edge : edges) {
        if (in_block == room) {
            text += close_of_block + head_of_block;
            in_block = 0;
            room = 1000;
        }
        add_beam(text, edge, width(edge), 16 * in_block++);
    }
    if (!edges.empty())
        text += close_of_block;
    return text + end_of_stream;
}

void add_true_line(std::string& text, const segment& edge) {
    for (const char* line : {"#;", "MESH;", "EDGE;1", "TLAY;Edges"})
        add_line(text, line);
    add_line(text, "EDG1;" + triple(edge.start[0], edge.start[1], edge.start[2], ", "));
    add_line(text, "EDG2;" + triple(edge.end[0], edge.end[1], edge.end[2], ", "));
    add_line(text, "EDGN;(0, 0, -1)");
    add_line(text, "EMSH;");
}

std::string stream_of_lines(const std::vector<segment>& edges) {
    std::string text = head;
    if (!edges.empty())
        text += edges_begin;
    for (const segment& edge : edges)
        add_true_line(text, edge);
    return text + end_of_stream;
}

// The stream, the model, the view and nothing else. Compares without printing megabytes.
void expect_stream(batch& b, const std::string& stream) {
    b.expect_file("batch_file.txt", stream);
    files_by_name expected = b.expected_files();
    expected.insert(b.models().begin(), b.models().end());
    EXPECT_EQ(differences(expected, b.files()), std::vector<std::string>());
    EXPECT_EQ(b.folders(), folders_of_every_run());
}

struct view_case {
    const char* name;
    const char* file; // null: no view file
    width_of_line width;
};

constexpr view_case views[] = {
    {"without a view", nullptr, width_without_view},
    {"parallel", "CAMERATYPE;ortho\r\nORTHOHEIGHT;4.2\r\nPIXELHEIGHT;420\r\nFOV;40\r\n", width_in_parallel},
    {"perspective", "EYE;(0,0,10)\r\nFOV;40\r\nPIXELHEIGHT;420\r\nORTHOHEIGHT;4.2\r\n", width_in_perspective},
};

void run_with_view(batch& b, const view_case& view, int choice, squares faces = squares::hidden) {
    put_edges(b, choice, faces);
    if (view.file) {
        b.put("zyn_view.txt", view.file);
        b.expect_file("zyn_view.txt", view.file);
    }
    EXPECT_EQ(b.run().status, 0);
}

TEST(ManyEdgesBatch, beams_in_every_mode_and_view) {
    for (const view_case& view : views)
        for (const int choice : {0, 1, 2, 3}) {
            SCOPED_TRACE(std::string(view.name) + ", choice " + std::to_string(choice));
            batch b;
            run_with_view(b, view, choice);
            expect_stream(b, stream_of_beams(choice == 0 ? std::vector<segment>() : chosen(choice), view.width));
        }
}

// A parallel view counts as one in perspective. The lines are narrow enough for all edges; without a view their width
// is no number, and none is drawn.
TEST(ManyEdgesBatch, true_lines_in_every_mode_and_view) {
    for (const view_case& view : views)
        for (const int choice : {0, 1, 2, 3}) {
            SCOPED_TRACE(std::string(view.name) + ", choice " + std::to_string(choice));
            batch b("3dpdf_batch");
            run_with_view(b, view, choice);
            if (choice == 0)
                expect_stream(b, stream_of_lines({}));
            else if (view.file)
                expect_stream(b, stream_of_lines(chosen(choice)));
            else
                expect_stream(b, std::string(head).append(edges_begin).append(end_of_stream));
        }
}

// ---- the borders, written out

std::size_t count_of(const std::string& part, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

TEST(ManyEdgesBatch, blocks_end_behind_edges_999_and_1999_and_at_the_end) {
    batch b;
    run_with_view(b, views[1], 1);
    const std::string text = b.read("batch_file.txt");
    EXPECT_EQ(count_of("EMSH; Edges\r\n", text), 3u);
    EXPECT_EQ(count_of("ADDV;", text), 2500u * 16);
    EXPECT_EQ(count_of("FACE;", text), 2500u * 8);

    // The first edge: y = 0, to 2.54 m.
    EXPECT_NE(text.find("#;\r\n#;EDGES\r\n#;MESH for Edges\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMATL;1\r\nMAT2;1\r\n"
                        "NORM;(0,-1,0)\r\nVERT;(0,-0.005,0.005)\r\nADDV;0\r\n"
                        "NORM;(0,-1,0)\r\nVERT;(0,-0.005,-0.005)\r\nADDV;1\r\n"
                        "NORM;(0,-1,0)\r\nVERT;(2.54,-0.005,-0.005)\r\nADDV;2\r\n"
                        "NORM;(0,-1,0)\r\nVERT;(2.54,-0.005,0.005)\r\nADDV;3\r\n"
                        "FACE;0,1,2\r\nFACE;2,3,0\r\n"),
              std::string::npos);
    // The last corner of edge 999, at 998 x 0.0254 = 25.3492 m, is number 998 x 16 + 15 = 15983; the next edge starts
    // a block at 25.3746 m.
    EXPECT_NE(text.find("NORM;(0,0,-1)\r\nVERT;(2.54,25.3542,0.005)\r\nADDV;15983\r\n"
                        "FACE;15980,15981,15982\r\nFACE;15982,15983,15980\r\n"
                        "EMSH; Edges\r\n"
                        "#;MESH for Edges\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMATL;1\r\nMAT2;1\r\n"
                        "NORM;(0,-1,0)\r\nVERT;(0,25.3696,0.005)\r\nADDV;0\r\n"),
              std::string::npos);
    // Edge 1999 is the thousandth of its block, at 1998 x 0.0254 = 50.7492 m, and the next is at 50.7746 m.
    EXPECT_NE(text.find("NORM;(0,0,-1)\r\nVERT;(2.54,50.7542,0.005)\r\nADDV;15999\r\n"
                        "FACE;15996,15997,15998\r\nFACE;15998,15999,15996\r\n"
                        "EMSH; Edges\r\n"
                        "#;MESH for Edges\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMATL;1\r\nMAT2;1\r\n"
                        "NORM;(0,-1,0)\r\nVERT;(0,50.7696,0.005)\r\nADDV;0\r\n"),
              std::string::npos);
    // The last edge is the left side of the last square, from (980, 5010) to (980, 5000) inches: (24.892, 127.254) to
    // (24.892, 127) m. It is number 501 of its block: 500 x 16 + 15 = 8015. It runs along -y: a is to the left, b down.
    EXPECT_TRUE(text.ends_with("NORM;(0,0,-1)\r\nVERT;(24.897,127,0.005)\r\nADDV;8015\r\n"
                               "FACE;8012,8013,8014\r\nFACE;8014,8015,8012\r\n"
                               "EMSH; Edges\r\n#;\r\nEND;\r\n"));
}

TEST(ManyEdgesBatch, behind_faces_one_close_more_stands_ahead_of_the_first_block) {
    batch b;
    run_with_view(b, views[1], 1, squares::shown);
    const std::string text = b.read("batch_file.txt");
    EXPECT_EQ(count_of("EMSH; Edges\r\n", text), 4u);
    EXPECT_NE(text.find("EMSH;\r\n#;\r\n#;EDGES\r\nEMSH; Edges\r\n#;MESH for Edges\r\nMESH;\r\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("EMSH; Edges\r\n#;\r\nEND;\r\n"));
}

TEST(ManyEdgesBatch, a_true_line_is_written_out_as_two_ends_and_a_normal) {
    batch b("3dpdf_batch");
    run_with_view(b, views[2], 1);
    const std::string text = b.read("batch_file.txt");
    EXPECT_EQ(count_of("EDGE;1\r\n", text), 2500u);
    EXPECT_EQ(count_of("EMSH; Edges\r\n", text), 0u);
    EXPECT_NE(text.find("#;\r\n#;EDGES\r\n#;\r\nMESH;\r\nEDGE;1\r\nTLAY;Edges\r\nEDG1;(0, 0, 0)\r\nEDG2;(100, 0, 0)\r\n"
                        "EDGN;(0, 0, -1)\r\nEMSH;\r\n#;\r\nMESH;\r\nEDGE;1\r\nTLAY;Edges\r\nEDG1;(0, 1, 0)\r\n"),
              std::string::npos);
    EXPECT_TRUE(
        text.ends_with("EDG1;(980, 5010, 0)\r\nEDG2;(980, 5000, 0)\r\nEDGN;(0, 0, -1)\r\nEMSH;\r\n#;\r\nEND;\r\n"));
}

} // namespace
