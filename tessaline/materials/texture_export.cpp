// Under which name, and in which form, the picture of a material is written. Reads the folder of pictures and the
// texture writer of the run.

#include "tessaline/materials/texture_export.h"

#include "qlw/qlw_trace.h"
#include "tessaline/files/paths.h"
#include "tessaline/model/model_text.h"
#include "tessaline/state/run_state.h"
#include "text/letter_case.h"

#include <cstdint>

namespace {

constexpr std::uint32_t most_pixels = 0x4000000; // 8192 x 8192

void trace(int line, std::string_view format, auto... values) {
    cl_trace::here("SketchUpReader::get_material_number", trace_level::plain, __builtin_FILE(), line)
        .report(format, values...);
}

std::string picture_name(SUTextureRef texture, int number, const std::string& encoded_name) {
    std::string extension = in_capitals(std::string(extension_of(name_by(SUTextureGetFileName, texture))));
    if (extension == ".PSD" || extension == ".TIF")
        extension = ".png";
    return format_text("TX%04d_%s%s", number, encoded_name, extension).value_or(std::string());
}

// The product wraps round at 32 bits, as it always did: the sizes that pass are those that a run has always written.
bool can_be_exported(std::size_t width, std::size_t height) {
    const std::uint32_t pixels = static_cast<std::uint32_t>(width) * static_cast<std::uint32_t>(height);
    return pixels >= 1 && pixels <= most_pixels;
}

// Writes the picture with `write`, which takes a full name, under its usual name or else under that of the fallback.
// Gives the full name that was tried last.
template<class Write>
std::string write_under_either_name(const std::string& usual_name, int material_id, Write write) {
    const std::string usual = joined_inside(texture_folder_path, usual_name);
    if (!usual.empty()) {
        write(usual);
        if (is_file(usual))
            return usual;
    }
    const std::string fallback =
        joined(texture_folder_path, format_text("TX%04d.jpg", material_id).value_or(std::string()));
    write(fallback);
    return fallback;
}

std::string export_straightened(SUFaceRef face, bool is_front, const std::string& usual_name, int material_id) {
    long id = 0;
    SUTextureWriterGetTextureIdForFace(texture_writer, face, is_front, &id);
    trace(__LINE__, "txtr id: %d, is_front: %d", id, is_front);
    long front_id = 0;
    long back_id = 0;
    SUTextureWriterLoadFace(texture_writer, face, &front_id, &back_id);
    trace(__LINE__, "after SUTextureWriterLoadFace");
    trace(__LINE__, "before SUTextureWriterWriteTexture");
    return write_under_either_name(usual_name, material_id, [id](const std::string& path) {
        constexpr bool reorient = false;
        SUTextureWriterWriteTexture(texture_writer, id, platform::utf8_from_own(path).c_str(), reorient);
    });
}

} // namespace

exported_texture export_material_texture(SUTextureRef texture, SUFaceRef face, bool is_front, bool not_affine,
                                         int number, int material_id, const std::string& encoded_name) {
    exported_texture exported;
    std::size_t width = 0;
    std::size_t height = 0;
    SUTextureGetDimensions(texture, &width, &height, &exported.tile_x, &exported.tile_y);
    if (!can_be_exported(width, height))
        return exported;
    const std::string usual_name = picture_name(texture, number, encoded_name);
    if (not_affine)
        exported.image_path = export_straightened(face, is_front, usual_name, material_id);
    else
        exported.image_path = write_under_either_name(usual_name, material_id, [texture](const std::string& path) {
            SUTextureWriteToFile(texture, platform::utf8_from_own(path).c_str());
        });
    return exported;
}
