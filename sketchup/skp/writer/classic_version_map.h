#pragma once

// Which layout of each class the classic writer uses, by version.

#include <span>
#include <string_view>

namespace skp {

// The versions that write_classic can write, in the order of class_layout::numbers.
enum class classic_version { v6, v8, v17, v20 };

struct class_layout {
    std::string_view name;
    int numbers[4]; // by classic_version; -1: the class does not exist in that version
};

// Every class that files of these versions name in their version map, in its order.
std::span<const class_layout> class_layouts();

// The layout number of a class, -1 if that version does not have it. An unknown name gives -1.
int layout_number(std::string_view class_name, classic_version version);

} // namespace skp
