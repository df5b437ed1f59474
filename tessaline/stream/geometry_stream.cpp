// How each record of the geometry stream is spelt, and how the text reaches the file.

#include "tessaline/stream/geometry_stream.h"

#include "qlw/qlw_trace.h"
#include "tessaline/stream/write_number.h"

#include <cassert>
#include <cstring>

namespace {

constexpr std::string_view line_end = "\r\n";

// Room behind the block, so that one comparison serves for a whole vertex: at most 320 bytes, and number_room more that
// its last number may touch.
constexpr std::size_t slack = 4096;
constexpr std::size_t longest_piece = 2048; // of a text whose length is not known

constexpr std::string_view tight = ",";
constexpr std::string_view spaced = ", ";

constexpr unsigned white = 0xffffff;
constexpr unsigned black = 0x000000;

// Copies a text whose length the compiler knows.
template<std::size_t size>
char* put(char* out, const char (&text)[size]) {
    std::memcpy(out, text, size - 1);
    return out + size - 1;
}

char* put(char* out, std::string_view text) {
    std::memcpy(out, text.data(), text.size());
    return out + text.size();
}

char* put_line_end(char* out) {
    return put(out, "\r\n");
}

char* put_triple(char* out, const fpt& triple, std::string_view separator) {
    *out++ = '(';
    out = write_number(out, snapped(triple.x));
    out = put(out, separator);
    out = write_number(out, snapped(triple.y));
    out = put(out, separator);
    out = write_number(out, snapped(triple.z));
    *out++ = ')';
    return out;
}

bool same_bits(const fpt& a, const fpt& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

// ---- the frame of a stream

void geometry_stream::write_header(std::string_view date_text) {
    write_comment("Tessaline Geometry, new extractor");
    write_comment(date_text);
    write_stream_line("DFFC;%06x", white);
    write_stream_line("DFBC;%06x", white);
    write_stream_line("DFEC;%06x", black);
    write_comment("");
}

void geometry_stream::write_layer(int layer_index, std::string_view layer_name) {
    write_integer_line("LYIN;", layer_index);
    write_text_line("LYNM;", layer_name);
}

void geometry_stream::write_pass() {
    write_comment("");
    write_integer_line("PASS;", 0);
    write_comment("");
}

void geometry_stream::write_end() {
    write_comment("");
    write_text_line("END;", "");
}

// ---- material declaration

void geometry_stream::write_material_declaration(std::string_view material_file, int material_number) {
    write_text_line("MATF;", material_file);
    write_integer_line("MTX2;", 1);
    write_integer_line("MATI;", material_number);
}

// ---- what opens a block and stands at its head

void geometry_stream::write_comment(std::string_view text) {
    write_text_line("#;", text);
}

void geometry_stream::write_block_label(std::string_view label) {
    write_text_line("#; ", label);
}

void geometry_stream::write_mesh_opening() {
    write_mesh_line(";");
}

void geometry_stream::write_image_mesh_opening() {
    write_mesh_line("");
}

void geometry_stream::write_mesh_line(std::string_view behind_tag) {
    write_text_line("MESH", behind_tag);
}

void geometry_stream::write_lamp_shape(int lamp_number) {
    write_integer_line("LITE;", lamp_number);
}

void geometry_stream::write_no_shadow() {
    write_integer_line("SHDW;", 0);
}

void geometry_stream::write_ground_cover(int orientation, std::string_view path) {
    write_integer_line("GCOR;", orientation);
    write_text_line("GNDC;", path);
}

void geometry_stream::write_invisible() {
    write_integer_line("INVS;", 1);
    write_no_shadow();
}

// ---- state lines

void geometry_stream::write_layer_name(std::string_view layer_name) {
    write_text_line("TLAY;", layer_name);
}

void geometry_stream::write_layer_chain(std::string_view layer_indices) {
    write_text_line("LYRS;", layer_indices);
}

void geometry_stream::write_culling(bool one_sided) {
    write_integer_line("CULL;", one_sided ? 1 : 0);
}

void geometry_stream::write_front_material(int material_number) {
    write_integer_line("MATL;", material_number);
}

void geometry_stream::write_back_material(int material_number) {
    write_integer_line("MAT2;", material_number);
}

void geometry_stream::write_front_textured() {
    write_integer_line("MPUV;", 1);
}

void geometry_stream::write_back_textured() {
    write_integer_line("MPU2;", 1);
}

// ---- geometry

void geometry_stream::write_vertex(int number, const fpt& normal, const fpt* uvq, const fpt& position_metres) {
    if (drops_records())
        return;
    char* out = put_normal_line(room(), normal);
    if (uvq) {
        out = put(out, "UVQ;");
        out = put_triple(out, *uvq, tight);
        out = put_line_end(out);
    }
    out = put(out, "VERT;");
    out = put_triple(out, position_metres, tight);
    out = put_line_end(out);
    out = put(out, "ADDV;");
    out = write_integer(out, number);
    cursor = put_line_end(out);
}

char* geometry_stream::put_normal_line(char* out, const fpt& normal) {
    if (last_normal_size == 0 || !same_bits(normal, last_normal)) {
        char* text = put(last_normal_line.data(), "NORM;");
        text = put_line_end(put_triple(text, normal, tight));
        last_normal_size = static_cast<std::size_t>(text - last_normal_line.data());
        last_normal = normal;
    }
    // The whole array: a copy of known size needs no loop, and the slack takes what is too much.
    std::memcpy(out, last_normal_line.data(), last_normal_line.size());
    return out + last_normal_size;
}

void geometry_stream::write_face(int a, int b, int c) {
    write_face_line(a, b, c, tight);
}

void geometry_stream::write_image_face(int a, int b, int c) {
    write_face_line(a, b, c, spaced);
}

void geometry_stream::write_face_line(int a, int b, int c, std::string_view separator) {
    if (drops_records())
        return;
    char* out = put(room(), "FACE;");
    out = put(write_integer(out, a), separator);
    out = put(write_integer(out, b), separator);
    cursor = put_line_end(write_integer(out, c));
}

void geometry_stream::write_mesh_closing(std::string_view label) {
    if (drops_records())
        return;
    append("EMSH;");
    if (!label.empty())
        append(" ");
    append(label);
    append(line_end);
}

// ---- records outside blocks

void geometry_stream::write_direct_light(int lamp_number) {
    write_integer_line("LGHT;", lamp_number);
}

void geometry_stream::write_clip_plane(const fpt& normal, const fpt& point_metres) {
    write_triple_line("CLPN;", normal, tight);
    write_triple_line("CLPP;", point_metres, tight);
}

void geometry_stream::write_plant(const plant_record& plant) {
    write_comment("PLANT");
    write_text_line("PLLB;", plant.has_own_data ? "OrnPlant" : plant.library);
    write_text_line("PLNM;", plant.name);
    write_triple_line("PLLC;", plant.base, tight);
    write_stream_line("PLDM;%f", snapped(plant.diameter));
    write_integer_line("PLSN;", plant.season);
    write_stream_line("PLRT;%f", snapped(plant.rotation_degrees));
    write_stream_line("PLSC;%f", snapped(plant.scale));
    write_integer_line("PLNT;", 1);
    write_text_line("#", "");
}

void geometry_stream::write_rpc(const rpc_record& rpc) {
    write_triple_line("RPCP;", rpc.position, tight);
    write_triple_line("RPCX;", rpc.axes[0], tight);
    write_triple_line("RPCY;", rpc.axes[1], tight);
    write_triple_line("RPCZ;", rpc.axes[2], tight);
    // Scales alone are not snapped.
    write_stream_line("RPSX;%f", rpc.scales[0]);
    write_stream_line("RPSY;%f", rpc.scales[1]);
    write_stream_line("RPSZ;%f", rpc.scales[2]);
    write_text_line("RPCL;", rpc.layer_name);
    write_text_line("RPCN;", rpc.type_id);
    write_text_line("#", "");
}

// ---- edges as true lines

void geometry_stream::write_line_mark() {
    write_integer_line("EDGE;", 1);
}

void geometry_stream::write_line(const fpt& start_inches, const fpt& end_inches, const fpt& normal) {
    write_triple_line("EDG1;", start_inches, spaced);
    write_triple_line("EDG2;", end_inches, spaced);
    write_triple_line("EDGN;", normal, spaced);
}

// ---- forms of lines

void geometry_stream::write_text_line(std::string_view tag, std::string_view text) {
    if (drops_records())
        return;
    append(tag);
    append(text);
    append(line_end);
}

void geometry_stream::write_integer_line(std::string_view tag, int value) {
    if (drops_records())
        return;
    cursor = put_line_end(write_integer(put(room(), tag), value));
}

void geometry_stream::write_triple_line(std::string_view tag, const fpt& triple, std::string_view separator) {
    if (drops_records())
        return;
    cursor = put_line_end(put_triple(put(room(), tag), triple, separator));
}

void geometry_stream::write_formatted_line(std::string_view format, std::span<const text_argument> arguments) {
    if (drops_records())
        return;
    std::string line;
    if (!append_formatted(line, format, arguments))
        return;
    append(line);
    append(line_end);
}

// ---- the way to the file

geometry_stream::geometry_stream(std::size_t block)
    : block_size(block), buffer(std::make_unique_for_overwrite<char[]>(block + slack)), cursor(buffer.get()) {}

geometry_stream::~geometry_stream() {
    close();
}

void geometry_stream::open(const char* path, std::string_view extract_mode) {
    assert(!is_open());
    mode_drops_records = extract_mode == "AcMarevo";
    write_failed = false;
    if (!path)
        target = sink::standard_output;
    else if (file.open(path, platform::open_mode::write))
        target = sink::file;
}

void geometry_stream::close() {
    if (!is_open())
        return;
    send();
    if (target == sink::file && !file.close() && !write_failed)
        cl_trace::here("geometry_stream::close", trace_level::plain)
            .report("The end of the geometry stream was not written");
    target = sink::none;
}

// Where the next line may be formed: at least `slack` bytes.
char* geometry_stream::room() {
    if (cursor >= buffer.get() + block_size)
        send();
    return cursor;
}

void geometry_stream::append(std::string_view text) {
    while (!text.empty()) {
        const std::string_view piece = text.substr(0, longest_piece);
        cursor = put(room(), piece);
        text.remove_prefix(piece.size());
    }
}

// Empties the buffer. A stream that lost bytes has no use for those behind them.
void geometry_stream::send() {
    const std::string_view gathered(buffer.get(), static_cast<std::size_t>(cursor - buffer.get()));
    cursor = buffer.get();
    if (target == sink::standard_output) {
        platform::write_standard_output(gathered);
    } else if (!write_failed && !file.write_all(gathered)) {
        write_failed = true;
        cl_trace::here("geometry_stream::send", trace_level::plain)
            .report("The geometry stream takes no more data; what follows is dropped");
    }
}
