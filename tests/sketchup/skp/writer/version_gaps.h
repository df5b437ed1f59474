#pragma once

// Which facts about a model each version of the two containers has no room for.

#include "sketchup/skp/writer/classic_version_map.h"

#include <set>
#include <string>

// By their names in a description of a model.
std::set<std::string> facts_missing_in(skp::classic_version version);
std::set<std::string> facts_missing_in_archives();

// All facts that tell a persistent id.
std::set<std::string> persistent_ids();
