#pragma once

// A folder into which edited materials are restored.

#include "tessaline/materials/edited_material.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>

inline constexpr std::string_view header_key = "ORNZyn Material Settings";
// "Hi" in a frame of 41 characters.
inline constexpr std::string_view framed_hi = "[ORNZyn Material Settings][00000004]-4869";

inline edited_material carried(std::string_view header,
                               std::initializer_list<std::pair<int, std::string_view>> chunks) {
    edited_material edited;
    edited.take(header_key, header);
    for (const auto& [number, text] : chunks)
        edited.take(std::string(header_key) + "_chunk" + std::to_string(number), text);
    return edited;
}

class EditedMaterial : public testing::Test {
protected:
    std::string restore(const edited_material& edited, const std::string& name = "Brick.OrnMaterial") {
        return restore_edited_material(edited, folder.name(), name);
    }

    trace_capture trace;
    answering_desktop desktop;
    temporary_folder folder;
};
