#include "tests/sketchup/skp/writer/version_gaps.h"

#include <vector>

namespace {

struct missing {
    const char* fact; // as a description names it
    const char* reason;
};

const std::vector<missing> ids = {
    {"id of a vertex", "the first version with persistent ids is 2017"},
    {"id of an edge", "as above"},
    {"id of an edge use", "as above"},
    {"id of a face", "as above"},
    {"id of a curve", "as above"},
    {"id of a placement", "as above"},
    {"id of a section plane", "as above"},
    {"id of an annotation", "as above"},
    {"id of a definition", "as above"},
    {"id of a layer", "as above"},
    {"id of a material", "as above"},
    {"id of a texture", "as above"},
    {"id of a dictionary", "as above"},
    {"id of a scene", "as above"},
    {"id of settings", "as above"},
    {"id of the model", "as above"},
};
const std::vector<missing> before_2017 = {
    {"guid of a placement", "layout 4 of CComponentInstance ends with the name"},
};
const std::vector<missing> before_2018 = {
    {"name of a section plane", "layout 2 of CSectionPlane ends with the plane"},
    {"SectionDefaultFillColor", "from layout 37 of CRenderingOptions"},
    {"SectionCutFilled", "from layout 37 of CRenderingOptions"},
};
const std::vector<missing> before_2020 = {
    {"folders of layers", "from layout 7 of CLayerManager"},
    {"DrawHiddenGeometry", "layouts below 39 have one option for both"},
    {"DrawHiddenObjects", "layouts below 39 have one option for both"},
};
const std::vector<missing> only_6 = {
    {"properties of the model", "from layout 21 of CSketchUpModel"},
    {"read-only dictionary", "layout 0 of CAttributeNamed ends with the entries"},
    {"no-scale mask", "layout 4 of CComponentBehavior ends with the camera bits"},
    {"DrawBackEdges", "from layout 36 of CRenderingOptions"},
};
const std::vector<missing> since_2020 = {
    {"DrawHidden", "layouts from 39 have two options in its place"},
};
const std::vector<missing> modern = {
    {"id of a texture", "a texture is part of a document that knows no ids"},
    {"dictionary of a texture", "as above"},
    {"id of a dictionary", "the base of a dictionary only holds those nested in it"},
    {"id of an edge use", "nothing refers to an edge use, so it has no id"},
    {"id of settings", "nothing refers to them"},
    {"alpha of a material", "the document has three channels"},
    {"compound attribute of a material", "their text form is not known"},
    {"nested dictionary of a material", "the document has one level"},
    {"read-only dictionary of a material", "the document has no such flag"},
    {"number of a picture's format", "the signature tells the format"},
    {"quality of a picture", "its record is not read: re-encoding needs it, and nothing re-encodes"},
    {"insertion point", "has no field"},
    {"radial dimension or polyline", "their records are not known"},
    {"DrawHidden", "two options stand in its place"},
    {"FaceColorMode", "has no known field"},
    {"DisplayInstanceAxes", "which of the unknown flags it is, is not known"},
    {"DrawProfilesOnly", "as above"},
    {"DrawBackEdges", "as above"},
};

std::set<std::string> all_of(const std::vector<std::vector<missing>>& lists) {
    std::set<std::string> facts;
    for (const std::vector<missing>& list : lists)
        for (const missing& one : list)
            facts.insert(one.fact);
    return facts;
}

} // namespace

std::set<std::string> facts_missing_in(skp::classic_version version) {
    switch (version) {
    case skp::classic_version::v6:
        return all_of({ids, only_6, before_2017, before_2018, before_2020});
    case skp::classic_version::v8:
        return all_of({ids, before_2017, before_2018, before_2020});
    case skp::classic_version::v17:
        return all_of({before_2018, before_2020});
    default:
        return all_of({since_2020});
    }
}

std::set<std::string> facts_missing_in_archives() {
    return all_of({modern});
}

std::set<std::string> persistent_ids() {
    return all_of({ids});
}
