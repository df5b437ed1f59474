#pragma once

// A list of models, and where below an output folder the batch and the report of each one go.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Models below one common folder. Numbers of models count from 0.
struct model_list {
    std::string root;                // full name of the common folder, without a separator at its end
    std::vector<std::string> places; // of each model below the root, in the order of the list, each once

    std::string model(std::size_t number) const; // full name
};

// The folder inside an output folder that holds what belongs to the list as a whole; no batch may lie there.
inline constexpr std::string_view list_folder_name = "tessaline-list";

struct list_reading {
    model_list list;
    std::string refusal; // why the list cannot be worked on, as a sentence without its full stop; empty if it can
};

// Takes a list apart. One model a line, LF or CR LF, empty lines passed over; if a zero byte stands anywhere, each name
// ends with one instead and may hold line feeds (as `find -print0` writes them). Every other byte belongs to the name:
// blanks and quotation marks need no care, and there are no comments. A name that is not full starts at `folder`, a
// full name; "." and ".." are folded by their letters, so that a model has one name, and what is listed twice counts
// once. root: the common folder; if nothing, the deepest one that holds all models.
// Refused: a list without a model, a model outside the root or the root itself, a model whose place lies inside that of
// another (the batch of one would lie in the batch of the other) or in the folder of the list.
list_reading read_model_list(std::string_view text, const std::string& folder, const std::optional<std::string>& root);

// Where the batch of that place goes, and where its report.
std::string batch_folder(const std::string& output, const std::string& place);
std::string report_file(const std::string& output, const std::string& place);
