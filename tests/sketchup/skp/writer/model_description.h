#pragma once

// A model as text, for comparing two of them.

#include "sketchup/model/model.h"

#include <set>
#include <string>
#include <vector>

// Everything that a model holds, one line each, indented by what it belongs to. No line depends on where in the model's
// arrays an element stands, only on the order of lists that have a meaning: what an element refers to is told by its
// name, its figures or its place in a list.
// left_out: kinds of facts that are not told. Their names stand at the calls of `tells` and of `leaves_out`.
std::vector<std::string> description_of(const sketchup::model& m, const std::set<std::string>& left_out = {});

// The first line in which two descriptions differ, with the lines before it; empty if they are equal. What the model of
// the first one has none of and every file has some of (ids, guids, times), the second may state as it likes.
std::string first_difference(const std::vector<std::string>& expected, const std::vector<std::string>& actual);
