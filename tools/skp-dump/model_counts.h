#pragma once

// How many of each thing a model holds, every entity list once, placed or not.

#include "sketchup/model/model.h"

#include <cstddef>
#include <map>
#include <string>

struct model_counts {
    std::size_t component_definitions = 0;
    std::size_t group_definitions = 0;
    std::size_t image_definitions = 0;
    std::size_t camera_facing_definitions = 0;
    std::size_t instances = 0;
    std::size_t groups = 0;
    std::size_t images = 0;
    std::size_t hidden_instances = 0;
    std::size_t hidden_groups = 0;
    std::size_t hidden_images = 0;
    std::size_t hidden_faces = 0;
    std::size_t faces = 0;
    std::size_t faces_with_holes = 0;
    std::size_t faces_with_texture_mapping = 0;
    std::size_t loops = 0;
    std::size_t edges = 0;
    std::size_t soft_edges = 0;
    std::size_t smooth_edges = 0;
    std::size_t hidden_edges = 0;
    std::size_t vertices = 0;
    std::size_t curves = 0;
    std::size_t section_planes = 0;
    std::size_t active_section_planes = 0;
    std::size_t glued = 0;
    std::size_t openings = 0; // that what is glued cuts into faces
    std::size_t faces_with_openings = 0;
    std::size_t guides = 0;
    std::size_t texts = 0;
    std::size_t dimensions = 0;
    std::size_t private_materials = 0; // of images, and whatever else the host does not list but the layers' own
    std::size_t dictionaries = 0;
    std::map<std::string, std::size_t> dictionaries_by_owner;
    std::map<std::string, std::size_t> dictionaries_by_name;
};

model_counts count_model(const sketchup::model& m);
