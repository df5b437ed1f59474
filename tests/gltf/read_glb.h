#pragma once

// Reads a GLB file back as its bytes are laid down, for tests: the JSON text, and numbers out of the buffer.

#include "tests/samples_folder.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

struct read_glb {
    nlohmann::json text;
    std::string buffer;

    // Throws for a file that is none at all.
    explicit read_glb(const std::string& file_name) {
        const std::vector<std::uint8_t> bytes = file_bytes(file_name);
        const auto number = [&bytes](std::size_t at) {
            std::uint32_t result = 0;
            for (std::size_t i = 4; i-- > 0;)
                result = result << 8U | bytes.at(at + i);
            return result;
        };
        if (bytes.size() < 20)
            throw std::runtime_error("no GLB: " + file_name);
        EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "glTF");
        EXPECT_EQ(number(4), 2U);
        EXPECT_EQ(number(8), bytes.size());
        const std::uint32_t size = number(12);
        EXPECT_EQ(size % 4, 0U);
        EXPECT_EQ(std::string(bytes.begin() + 16, bytes.begin() + 20), "JSON");
        text = nlohmann::json::parse(bytes.begin() + 20, bytes.begin() + 20 + size);
        if (20 + size == bytes.size())
            return;
        EXPECT_EQ(number(20 + size) + 28 + size, bytes.size());
        EXPECT_EQ(std::string(bytes.begin() + 24 + size, bytes.begin() + 28 + size), std::string("BIN\0", 4));
        buffer.assign(bytes.begin() + 28 + size, bytes.end());
    }

    // The numbers of an accessor, whatever their type.
    std::vector<double> numbers(std::size_t accessor) const {
        const nlohmann::json& a = text.at("accessors").at(accessor);
        const nlohmann::json& view = text.at("bufferViews").at(a.at("bufferView").get<std::size_t>());
        const std::size_t at = view.at("byteOffset").get<std::size_t>();
        const std::string type = a.at("type");
        const std::size_t count = a.at("count").get<std::size_t>() * (type == "VEC3" ? 3 : type == "VEC2" ? 2 : 1);
        const int component = a.at("componentType");
        std::vector<double> result;
        for (std::size_t i = 0; i < count; ++i) {
            if (component == 5126)
                result.push_back(double{at_offset<float>(at + 4 * i)});
            else if (component == 5123)
                result.push_back(at_offset<std::uint16_t>(at + 2 * i));
            else
                result.push_back(at_offset<std::uint32_t>(at + 4 * i));
        }
        return result;
    }

    std::vector<double> attribute(const nlohmann::json& primitive, const char* name) const {
        return numbers(primitive.at("attributes").at(name).get<std::size_t>());
    }
    std::vector<double> indices(const nlohmann::json& primitive) const {
        return numbers(primitive.at("indices").get<std::size_t>());
    }

    // The node of that name; null if there is none.
    nlohmann::json node(const std::string& name) const {
        for (const nlohmann::json& one : text.at("nodes"))
            if (one.value("name", "") == name)
                return one;
        return nullptr;
    }
    nlohmann::json mesh_of(const std::string& node_name) const {
        return text.at("meshes").at(node(node_name).at("mesh").get<std::size_t>());
    }
    nlohmann::json material_of(const nlohmann::json& primitive) const {
        return text.at("materials").at(primitive.at("material").get<std::size_t>());
    }
    const nlohmann::json& extras() const { return text.at("scenes").at(0).at("extras"); }

private:
    template<class Number>
    Number at_offset(std::size_t at) const {
        Number number{};
        EXPECT_LE(at + sizeof number, buffer.size());
        if (at + sizeof number <= buffer.size())
            std::memcpy(&number, &buffer[at], sizeof number);
        return number;
    }
};
