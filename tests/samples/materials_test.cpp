// Every sample converted by the built program: the files of its materials and their pictures.

#include "image/decode_picture.h"
#include "tests/samples/convert_sample.h"
#include "tests/samples/expected_figures.h"
#include "tools/batch_reading/material_reader.h"
#include "tools/batch_reading/stream_reader.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

class declared_materials : public stream_visitor {
public:
    void record(std::string_view tag, std::string_view payload) override {
        if (tag == "MATF")
            names.emplace_back(payload);
        if (tag == "MATI")
            numbers.push_back(std::stoi(std::string(payload)));
    }
    std::vector<std::string> names;
    std::vector<int> numbers;
};

std::set<std::string> files_in(const std::string& folder) {
    std::set<std::string> names;
    if (std::filesystem::exists(folder))
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.insert(entry.path().filename().string());
    return names;
}

// The value of the line with that key; empty if there is none.
std::string line_of(const std::string& text, const std::string& key) {
    const std::size_t start = text.find("\n" + key);
    return start == std::string::npos
               ? std::string()
               : text.substr(start + 1 + key.size(), text.find('\r', start) - start - 1 - key.size());
}

std::optional<image::picture> decoded(const std::string& path) {
    const std::string text = text_of_file(path);
    return image::decode_picture(std::vector<std::uint8_t>(text.begin(), text.end()));
}

// Width and height of the picture of each textured material, by its name.
std::map<std::string, std::vector<std::uint32_t>> announced_sizes(const json& figures) {
    std::map<std::string, std::vector<std::uint32_t>> sizes;
    for (const json& material : figures["materials"])
        if (material.contains("pixels"))
            sizes[material["name"]] = material["pixels"].get<std::vector<std::uint32_t>>();
    return sizes;
}

// What a conversion left of materials.
struct converted_materials {
    explicit converted_materials(const std::string& sample) {
        read_stream(convert(sample, batch), declared);
        for (const std::string& name : declared.names)
            texts[name] = batch.read("ZynBatch_Materials/" + file_of_material(name));
    }

    const temporary_folder batch;
    declared_materials declared;
    std::map<std::string, std::string> texts; // of the material files, by the name in the stream
};

void expect_a_file_for_each_number_from_10(const converted_materials& found) {
    std::set<std::string> expected;
    ASSERT_EQ(found.declared.names.size(), found.declared.numbers.size());
    for (std::size_t i = 0; i < found.declared.numbers.size(); ++i) {
        const std::string& name = found.declared.names[i];
        const std::string& text = found.texts.at(name);
        EXPECT_EQ(found.declared.numbers[i], 10 + static_cast<int>(i));
        EXPECT_EQ(read_material_file(text).value_or(read_material()).name, name);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 38) << name;
        expected.insert(file_of_material(name));
    }
    EXPECT_EQ(files_in(found.batch / "ZynBatch_Materials"), expected);
}

void expect_named_pictures_to_decode_and_no_others(const converted_materials& found) {
    std::set<std::string> named;
    for (const auto& [name, text] : found.texts) {
        const std::string path = read_material_file(text).value_or(read_material()).image_path;
        if (path.empty())
            continue;
        const std::string file = std::filesystem::path(path).filename().string(); // in UTF-8
        EXPECT_EQ(path, found.batch / ("Batch_SketchUp_Textures/" + platform::own_from_utf8(file)));
        EXPECT_TRUE(decoded(path)) << path;
        named.insert(file);
    }
    EXPECT_EQ(files_in(found.batch / "Batch_SketchUp_Textures"), named);
}

// A picture is never scaled; only one that was straightened for a distorted face has a size of its own.
void expect_pictures_of_the_announced_size(const converted_materials& found, const json& figures) {
    if (figures["faces_with_texture_mapping"] != 0)
        return;
    const auto sizes = announced_sizes(figures);
    for (const auto& [name, text] : found.texts) {
        const auto size = sizes.find(line_of(text, "Disp: "));
        if (size == sizes.end())
            continue;
        const auto picture = decoded(read_material_file(text).value_or(read_material()).image_path);
        ASSERT_TRUE(picture) << name;
        EXPECT_EQ((std::vector<std::uint32_t>{picture->width(), picture->height()}), size->second) << name;
    }
}

void expect_a_material_for_each_image(const converted_materials& found, const json& figures, bool one_is_bare) {
    const auto& names = found.declared.names;
    const auto images = std::count_if(names.begin(), names.end(),
                                      [](const std::string& name) { return name.starts_with("IMAGE_TX_"); });
    EXPECT_EQ(images + (one_is_bare ? 1 : 0), figures["written"]["images"].get<int>());
}

class SampleMaterials : public testing::TestWithParam<std::string> {};

TEST_P(SampleMaterials, have_their_files_and_pictures) {
    const json& figures = expected_figures()[GetParam()];
    const converted_materials found(GetParam());
    if (!figures["opens"].get<bool>())
        return;
    expect_a_file_for_each_number_from_10(found);
    expect_named_pictures_to_decode_and_no_others(found);
    expect_pictures_of_the_announced_size(found, figures);
    // The image of this sample has lost the material that would carry its picture.
    expect_a_material_for_each_image(found, figures, GetParam() == "testup-missing_material.skp");
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleMaterials);
INSTANTIATE_TEST_SUITE_P(Samples, SampleMaterials, testing::ValuesIn(sample_names()),
                         [](const auto& sample) { return test_name_of(sample.param); });

} // namespace
