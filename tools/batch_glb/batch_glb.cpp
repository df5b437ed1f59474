#include "tools/batch_glb/batch_glb.h"

#include "platform/platform.h"
#include "text/path_end.h"
#include "tools/batch_glb/batch_view.h"
#include "tools/batch_glb/lamp_light.h"

#include <cmath>

namespace {

constexpr std::uint64_t most_bytes_of_a_lamp = std::uint64_t{1} << 20U;

std::optional<lamp_file> lamp_of(const std::string& batch_folder, int number) {
    const std::string path = batch_folder + platform::path_separator + "ZynBatch_Lights" + platform::path_separator +
                             "light_" + std::to_string(number) + ".txt";
    const auto bytes = platform::read_file(path, most_bytes_of_a_lamp);
    if (!bytes)
        return std::nullopt;
    return read_lamp_file({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
}

// A lamp with a shape shines from the middle of it; one without from where its file says.
gltf::double3 place_of(const lamp_file& lamp, const seen_lamp& seen) {
    if (seen.shape.is_empty || lamp.type == "bulb" || lamp.type == "spot")
        return lamp.location;
    gltf::double3 middle{};
    for (std::size_t i = 0; i < 3; ++i)
        middle[i] = (double{seen.shape.low[i]} + seen.shape.high[i]) / 2;
    return middle;
}

std::size_t add_lamp(gltf::glb_writer& to, int number, const lamp_file& lamp, const seen_lamp& seen) {
    const std::string name = "lamp " + std::to_string(number);
    gltf::json light = light_of(lamp);
    light["name"] = name;
    const std::size_t at = to.add(gltf::list::lights, light);
    gltf::node_placement where;
    where.translation = place_of(lamp, seen);
    if (is_directed(lamp))
        where.rotation = gltf::rotation_looking(lamp.direction, {0, 0, 1});
    gltf::json node = {{"name", name},
                       {"extensions", {{"KHR_lights_punctual", {{"light", at}}}}},
                       {"extras",
                        {{"lamp_number", number},
                         {"lamp_type", platform::utf8_from_own(lamp.type)},
                         {"lumens", lumens_of(lamp)},
                         {"layer", platform::utf8_from_own(seen.layer)}}}};
    gltf::place(node, where);
    return to.add(gltf::list::nodes, node);
}

void append(std::vector<std::size_t>& to, const std::vector<std::size_t>& what) {
    to.insert(to.end(), what.begin(), what.end());
}

gltf::json box_json(const gltf::float_range& box) {
    if (box.is_empty)
        return nullptr;
    return {{box.low[0], box.low[1], box.low[2]}, {box.high[0], box.high[1], box.high[2]}};
}

gltf::json counts_json(batch_scene& scene) {
    const batch_counts& counts = scene.counts();
    return {{"triangles", counts.triangles},
            {"triangles_unseen", counts.triangles_unseen},
            {"triangles_left_out", counts.triangles_left_out},
            {"lines", counts.lines},
            {"blocks", counts.blocks},
            {"layers", scene.layers().size()},
            {"materials", scene.materials().declared()},
            {"pictures", scene.materials().pictures()},
            {"lamps", scene.lamps().size()},
            {"plants", scene.things().plants.size()},
            {"outside_objects", scene.things().objects.size()}};
}

std::vector<std::string> notes_of(const stream_reading& reading, batch_scene& scene) {
    std::vector<std::string> notes = scene.materials().notes();
    if (!reading.has_end && !scene.has_too_many_parts())
        notes.emplace_back("the stream has no \"END;\": the run that wrote it has not come to its end");
    if (reading.faults > 0)
        notes.push_back(std::to_string(reading.faults) +
                        " lines of the stream cannot be read, the first of them line " +
                        std::to_string(reading.first_fault));
    if (scene.counts().triangles_left_out > 0)
        notes.push_back(std::to_string(scene.counts().triangles_left_out) +
                        " triangles have corners that do not exist, or that lie nowhere");
    if (const std::string left_out = scene.left_out(); !left_out.empty())
        notes.push_back(left_out);
    return notes;
}

class batch_conversion {
public:
    batch_conversion(const std::string& batch_folder, const std::string& glb_file, std::size_t memory)
        : folder(batch_folder), writer(glb_file, memory), scene(batch_folder, writer) {}

    batch_glb_result run() {
        batch_glb_result result;
        const std::string stream = folder + platform::path_separator + "batch_file.txt";
        file_lines lines;
        if (!lines.open(stream)) {
            result.outcome = batch_glb_outcome::no_batch;
            result.failure = "there is no readable stream " + stream;
            return result;
        }
        const stream_reading reading = read_records(lines, scene);
        if (scene.has_too_many_parts())
            result.failure = "the stream has too many materials and lamps on too many layers for one file";
        else
            result.failure = writer.finish(document());
        if (!result.failure.empty())
            result.outcome = batch_glb_outcome::not_written;
        result.notes = notes_of(reading, scene);
        if (!lamps_without_file.empty())
            result.notes.push_back(
                "lamps of the stream without a file that can be read: " + std::to_string(lamps_without_file.size()) +
                ", the first of them lamp " + std::to_string(lamps_without_file.front()));
        result.counts = scene.counts();
        result.box = scene.box();
        return result;
    }

private:
    gltf::json document() {
        std::vector<std::size_t> nodes = scene.finish();
        for (const auto& [number, seen] : scene.lamps())
            if (const auto lamp = lamp_of(folder, number))
                nodes.push_back(add_lamp(writer, number, *lamp, seen));
            else
                lamps_without_file.push_back(number);
        append(nodes, add_placed_things(writer, scene.things()));
        gltf::json views = gltf::json::array();
        if (const auto view = add_view(writer, folder, scene.box())) {
            nodes.push_back(*view);
            views.push_back("view");
        }
        if (const auto sun = add_sun(writer, folder))
            nodes.push_back(*sun);
        const std::string name = platform::utf8_from_own(last_component(folder));
        gltf::json root = {{"name", name}, {"rotation", gltf::rotation_json(gltf::from_z_up)}};
        if (!nodes.empty())
            root["children"] = nodes;
        gltf::json result;
        result["scene"] = 0;
        result["scenes"] = {{{"name", name},
                             {"nodes", {writer.add(gltf::list::nodes, root)}},
                             {"extras",
                              {{"program", "tessaline"},
                               {"kind", "batch"},
                               {"counts", counts_json(scene)},
                               {"box_metres", box_json(scene.box())},
                               {"views", views},
                               {"section_planes", section_planes_json(scene.things().planes)}}}}};
        if (writer.count(gltf::list::textures) > 0)
            result["samplers"] = repeating_samplers();
        return result;
    }

    const std::string& folder;
    gltf::glb_writer writer;
    batch_scene scene;
    std::vector<int> lamps_without_file;
};

} // namespace

batch_glb_result write_batch_glb(const std::string& batch_folder, const std::string& glb_file, std::size_t memory) {
    return batch_conversion(batch_folder, glb_file, memory).run();
}
