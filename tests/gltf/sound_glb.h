#pragma once

// Whether a GLB holds what its text says: for damaged input, where nothing else is known of what comes out.

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

class sound_glb {
public:
    // Empty if the bytes are sound; else what is wrong.
    static std::string fault_in(std::string_view bytes) {
        try {
            return sound_glb(bytes).fault();
        } catch (const std::exception& error) {
            return error.what();
        }
    }

private:
    using json = nlohmann::json;

    explicit sound_glb(std::string_view bytes) : file(bytes) {
        const std::uint32_t size = number<std::uint32_t>(12);
        text = json::parse(file.substr(20, size));
        if (20 + size < file.size())
            buffer = file.substr(28 + size);
    }

    template<class Number>
    Number number(std::size_t at) const {
        return number_in<Number>(file, at);
    }
    template<class Number>
    static Number number_in(std::string_view bytes, std::size_t at) {
        Number result{};
        if (at > bytes.size() || bytes.size() - at < sizeof result)
            throw std::out_of_range("bytes beyond the end");
        std::memcpy(&result, bytes.data() + at, sizeof result);
        return result;
    }

    std::string fault() const {
        if (file.substr(0, 4) != "glTF" || number<std::uint32_t>(8) != file.size())
            return "the header lies";
        for (const char* list : {"nodes", "meshes", "materials", "accessors", "bufferViews", "textures", "images"})
            if (text.contains(list) && text.at(list).empty())
                return std::string(list) + " is empty";
        for (const json& mesh : text.value("meshes", json::array()))
            for (const json& primitive : mesh.at("primitives"))
                if (const std::string wrong = fault_in_primitive(primitive); !wrong.empty())
                    return wrong;
        return fault_in_nodes();
    }

    std::string fault_in_nodes() const {
        std::vector<int> parents(text.at("nodes").size(), 0);
        for (const json& node : text.at("nodes")) {
            for (const json& child : node.value("children", json::array()))
                ++parents.at(child.get<std::size_t>());
            if (node.contains("mesh"))
                text.at("meshes").at(node.at("mesh").get<std::size_t>());
            if (node.contains("rotation")) {
                double square = 0;
                for (const json& part : node.at("rotation"))
                    square += part.get<double>() * part.get<double>();
                if (!(std::abs(square - 1) < 1e-5))
                    return "a rotation is not unit";
            }
        }
        for (std::size_t at = 0; at < parents.size(); ++at)
            if (parents[at] != (text.at("scenes").at(0).at("nodes").at(0) == at ? 0 : 1))
                return "a node hangs on none or on several";
        return {};
    }

    const json& accessor(const json& number_of_it) const {
        return text.at("accessors").at(number_of_it.get<std::size_t>());
    }
    std::size_t offset_of(const json& a) const {
        return text.at("bufferViews").at(a.at("bufferView").get<std::size_t>()).at("byteOffset");
    }
    float component(const json& a, std::size_t at) const { return number_in<float>(buffer, offset_of(a) + 4 * at); }

    std::string fault_in_primitive(const json& primitive) const {
        text.at("materials").at(primitive.at("material").get<std::size_t>());
        const json& positions = accessor(primitive.at("attributes").at("POSITION"));
        const std::size_t count = positions.at("count");
        std::array<double, 3> low{1e300, 1e300, 1e300};
        std::array<double, 3> high{-1e300, -1e300, -1e300};
        for (std::size_t i = 0; i < 3 * count; ++i) {
            const double part = double{component(positions, i)};
            if (!std::isfinite(part))
                return "a position is not finite";
            low[i % 3] = std::min(low[i % 3], part);
            high[i % 3] = std::max(high[i % 3], part);
        }
        if (positions.at("min") != json(low) || positions.at("max") != json(high))
            return "the least and the greatest lie";
        if (primitive.at("attributes").contains("NORMAL")) {
            const json& normals = accessor(primitive.at("attributes").at("NORMAL"));
            for (std::size_t i = 0; i < count; ++i)
                if (!(std::abs(std::hypot(component(normals, 3 * i), component(normals, 3 * i + 1),
                                          component(normals, 3 * i + 2)) -
                               1) < 1e-4F))
                    return "a normal is not unit";
        }
        return fault_in_indices(accessor(primitive.at("indices")), count);
    }

    std::string fault_in_indices(const json& a, std::size_t vertices) const {
        const bool short_ones = a.at("componentType") == 5123;
        for (std::size_t i = 0; i < a.at("count"); ++i) {
            const std::uint32_t index = short_ones ? number_in<std::uint16_t>(buffer, offset_of(a) + 2 * i)
                                                   : number_in<std::uint32_t>(buffer, offset_of(a) + 4 * i);
            if (index >= vertices)
                return "an index is beyond its vertices";
        }
        return a.at("count") == 0 ? "there are no indices" : "";
    }

    std::string_view file;
    json text;
    std::string_view buffer;
};
