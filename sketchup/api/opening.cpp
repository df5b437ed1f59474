// The holes that something glued to a face cuts into it.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/api/provider_state.h"

namespace {

using namespace sketchup::api;

// Gives back what was handed out so far if there is no memory for the rest.
void hand_out(const std::vector<sketchup::opening>& found, size_t wanted, SUOpeningRef openings[]) {
    auto& pool = provider().openings;
    size_t made = 0;
    try {
        for (; made < wanted; ++made) {
            openings[made] = SUOpeningRef{};
            opening_object& one = pool.take();
            openings[made] = handle_of<SUOpeningRef>(one);
            one.points = found[made].points;
        }
    } catch (...) {
        for (size_t i = 0; i <= made && i < wanted; ++i)
            SUOpeningRelease(&openings[i]);
        throw;
    }
}

} // namespace

SUResult SUFaceGetNumOpenings(SUFaceRef face, size_t* count) {
    return give(face, count, [](const sketchup::face& f) { return openings_of(f).size(); });
}

SUResult SUFaceGetOpenings(SUFaceRef face, size_t len, SUOpeningRef openings[], size_t* count) {
    const sketchup::face* f = object_of(face);
    if (!f)
        return SU_ERROR_INVALID_INPUT;
    if ((!openings && len > 0) || !count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return guarded([&] {
        const std::vector<sketchup::opening>& found = openings_of(*f);
        const size_t stored = std::min(len, found.size());
        hand_out(found, stored, openings);
        *count = stored;
        return SU_ERROR_NONE;
    });
}

SUResult SUOpeningGetNumPoints(SUOpeningRef opening, size_t* count) {
    return give(opening, count, [](const opening_object& o) { return o.points.size(); });
}

SUResult SUOpeningGetPoints(SUOpeningRef opening, size_t len, SUPoint3D points[], size_t* count) {
    const opening_object* o = object_of(opening);
    if (!o)
        return SU_ERROR_INVALID_INPUT;
    return fill_list(o->points.size(), len, points, count, [o](size_t i) { return to_point(o->points[i]); });
}

SUResult SUOpeningRelease(SUOpeningRef* opening) {
    return release(opening, provider().openings);
}
