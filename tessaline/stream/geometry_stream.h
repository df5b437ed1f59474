#pragma once

// The geometry stream: every record of the format, how its text is formed, and the buffer on its way to the file.
//
// The stream is lines of text that end in CR LF, each a tag of capitals, a semicolon and a payload, or a comment behind
// "#". Callers decide when a record is due; nothing else in the program knows how one is spelt.
//
// Points and normals are triples "(%.9g,%.9g,%.9g)". Each component nearer to zero than 1e-7 is written as plain 0.
// Names and paths go out as they are, of any length, nothing escaped.
//
// No call reports or fails: while the stream is not open, or was opened for a mode whose records are all dropped,
// nothing happens. The first write that the system refuses is traced; what would follow is dropped.

#include "platform/platform.h"
#include "qlw/qlw_math.h"
#include "qlw/text_format.h"

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

// A placed plant. Lengths in world inches.
struct plant_record {
    std::string_view library; // not looked at if the plant has data of its own
    std::string_view name;    // with data of its own: the name of that data
    bool has_own_data = false;
    fpt base;
    double diameter = 0;
    int season = 1;
    double rotation_degrees = 0; // about the vertical axis
    double scale = 1;
};

// A placed object of an outside library. Lengths in world inches.
struct rpc_record {
    fpt position;
    std::array<fpt, 3> axes;      // unit
    std::array<double, 3> scales; // of the axes before they were made unit
    std::string_view layer_name;
    std::string_view type_id;
};

class geometry_stream {
public:
    static constexpr std::size_t usual_block = std::size_t{256} * 1024;

    // block: bytes gathered before they go to the file, at least 1; a line may go over it. Tests make it tiny.
    explicit geometry_stream(std::size_t block = usual_block);
    geometry_stream(const geometry_stream&) = delete;
    geometry_stream& operator=(const geometry_stream&) = delete;
    ~geometry_stream(); // closes

    // Opens the file for writing, emptied, or standard output if path is null. Without a word the stream stays closed
    // if the file cannot be made. Must not be open already. extract_mode: in the mode "AcMarevo" the file is made, and
    // every record is dropped.
    void open(const char* path, std::string_view extract_mode);
    bool is_open() const { return target != sink::none; }
    bool is_standard_output() const { return target == sink::standard_output; }
    // Sends what is gathered and closes the file. Does nothing if the stream is not open.
    void close();

    // The general writer: one line, formatted as printf does, with its end. For records that are rare; numbers of the
    // form %.9g come out right, but slowly. A format that does not fit its arguments writes nothing.
    template<class... Arguments>
    void write_stream_line(std::string_view format, const Arguments&... arguments) {
        const std::array<text_argument, sizeof...(arguments)> list{text_argument(arguments)...};
        write_formatted_line(format, list);
    }

    // ---- the frame of a stream

    // The comments with program and date, and the default colours of front faces, back faces and edges.
    void write_header(std::string_view date_text);
    void write_layer(int layer_index, std::string_view layer_name); // one entry of the layer table
    void write_pass();                                              // the one pass that a stream has
    void write_end();

    // ---- material declaration

    // material_number: 10 or above.
    void write_material_declaration(std::string_view material_file, int material_number);

    // ---- what opens a block and stands at its head

    void write_comment(std::string_view text);      // "#;" and the text, which may be empty
    void write_block_label(std::string_view label); // the comment "#; " and the label
    void write_mesh_opening();
    void write_image_mesh_opening();        // images spell it without the semicolon
    void write_lamp_shape(int lamp_number); // the block is the shape of that lamp
    void write_no_shadow();
    void write_ground_cover(int orientation, std::string_view path);
    void write_invisible(); // unseen by the camera, which takes the shadow with it

    // ---- state lines

    void write_layer_name(std::string_view layer_name);
    void write_layer_chain(std::string_view layer_indices); // joined by commas, outermost first
    void write_culling(bool one_sided);
    void write_front_material(int material_number);
    void write_back_material(int material_number);
    void write_front_textured(); // the front material uses the block's texture coordinates
    void write_back_textured();

    // ---- geometry

    // One vertex group: normal, texture coordinates unless null, position, number.
    // normal: unit. uvq: the third component is written as given. number: unique within the block.
    void write_vertex(int number, const fpt& normal, const fpt* uvq, const fpt& position_metres);
    void write_face(int a, int b, int c);            // one triangle by the numbers of its vertices
    void write_image_face(int a, int b, int c);      // images put a blank behind each comma
    void write_mesh_closing(std::string_view label); // the label may be empty

    // ---- records outside blocks

    void write_direct_light(int lamp_number);
    // normal: the plane's first three coefficients. point: near the plane.
    void write_clip_plane(const fpt& normal, const fpt& point_metres);
    void write_plant(const plant_record& plant);
    void write_rpc(const rpc_record& rpc);

    // ---- edges as true lines, the form for 3D documents: mark, layer name, then the line itself

    void write_line_mark();
    // normal: unit, square to the line. These triples alone have a blank behind each comma.
    void write_line(const fpt& start_inches, const fpt& end_inches, const fpt& normal);

private:
    enum class sink { none, file, standard_output };

    bool drops_records() const { return target == sink::none || mode_drops_records; }
    char* room();
    void append(std::string_view text);
    void write_formatted_line(std::string_view format, std::span<const text_argument> arguments);
    void write_text_line(std::string_view tag, std::string_view text);
    void write_integer_line(std::string_view tag, int value);
    void write_triple_line(std::string_view tag, const fpt& triple, std::string_view separator);
    void write_face_line(int a, int b, int c, std::string_view separator);
    void write_mesh_line(std::string_view behind_tag);
    char* put_normal_line(char* out, const fpt& normal);
    void send();

    std::size_t block_size;
    std::unique_ptr<char[]> buffer; // a block and, behind it, what one write without a further check may take
    char* cursor;                   // end of what is gathered
    platform::file file;
    sink target = sink::none;
    bool mode_drops_records = false;
    bool write_failed = false;

    // The line of the last normal: the corners of a flat face share it.
    static constexpr std::size_t normal_line_room = 64;
    fpt last_normal;
    std::array<char, normal_line_room> last_normal_line;
    std::size_t last_normal_size = 0; // 0: none yet
};
