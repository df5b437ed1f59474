#include "sketchup/api/provider_state.h"

#include "sketchup/api/handles.h"

#include <algorithm>
#include <utility>

namespace sketchup::api {
namespace {

provider_state the_provider;
const std::vector<opening> no_openings;

} // namespace

void provider_state::empty() {
    models.clear();
    loose_textures.clear();
    strings.empty();
    typed_values.empty();
    uv_helpers.empty();
    mesh_helpers.empty();
    openings.empty();
    texture_writers.empty();
}

provider_state& provider() {
    return the_provider;
}

open_model* open_model_of(const model* m) {
    const auto is_it = [m](const std::unique_ptr<open_model>& open) { return open->model.get() == m; };
    const auto found = std::find_if(the_provider.models.begin(), the_provider.models.end(), is_it);
    return found == the_provider.models.end() ? nullptr : found->get();
}

const std::vector<opening>& openings_of(const face& f) {
    if (!may_have_openings(f))
        return no_openings;
    open_model& open = *open_model_of(f.owner);
    if (!open.openings)
        open.openings.emplace(*open.model);
    return open.openings->of(f);
}

const face_cut* cut_of(const face& f) {
    if (!may_have_openings(f))
        return nullptr;
    open_model& open = *open_model_of(f.owner);
    if (!open.cuts)
        open.cuts.emplace(*open.model);
    return &open.cuts->of(f, openings_of(f));
}

SUModelRef adopt_model(std::unique_ptr<model> linked) {
    auto open = std::make_unique<open_model>();
    open->model = std::move(linked);
    the_provider.models.push_back(std::move(open));
    return handle_of<SUModelRef>(*the_provider.models.back()->model);
}

} // namespace sketchup::api
