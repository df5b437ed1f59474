#include "sketchup/skp/writer/written_colors.h"

#include "image/decode_picture.h"
#include "sketchup/model/colorize.h"

namespace skp {

sketchup::rgba written_average(const sketchup::model& m, const sketchup::texture& t) {
    constexpr sketchup::rgba grey{128, 128, 128, 255};
    if (t.average_color != sketchup::rgba{})
        return t.average_color;
    if (t.picture == sketchup::no_index)
        return grey;
    const auto pixels = image::decode_picture(m.pictures[t.picture].load());
    return pixels ? sketchup::average_color(*pixels) : grey;
}

sketchup::rgba written_shown_average(const sketchup::model& m, const sketchup::material& of) {
    const sketchup::texture& t = m.textures[of.texture];
    if (sketchup::is_recolored(of) && t.average_color == sketchup::rgba{})
        return {of.color.red, of.color.green, of.color.blue, 255};
    return written_average(m, t);
}

} // namespace skp
