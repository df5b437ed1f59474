#include "tests/tools/damage.h"

#include <optional>
#include <string_view>
#include <utility>

namespace {

// Where a line begins; nothing if there are not so many.
std::optional<std::size_t> place_of(const std::string& text, const std::string& line, int nth) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t feed = text.find("\r\n", at);
        if (text.compare(at, feed - at, line) == 0 && nth-- == 0)
            return at;
        at = feed == std::string::npos ? text.size() : feed + 2;
    }
    return std::nullopt;
}

// Replaces the line with its end by a text.
change with_line(const std::string& file, const std::string& line, int nth, const std::string& by) {
    return [=](files_by_name& files) {
        std::string& text = files[file];
        const auto at = place_of(text, line, nth);
        if (at)
            text.replace(*at, line.size() + 2, by);
        return at.has_value();
    };
}

// Replaces a whole file by what is made of it.
template<class Edit>
change with_bytes(const std::string& file, Edit edit) {
    return [=](files_by_name& files) {
        std::string& text = files[file];
        const std::string before = text;
        text = edit(text);
        return text != before;
    };
}

} // namespace

change replaced(const std::string& file, const std::string& line, const std::string& by, int nth) {
    return with_line(file, line, nth, by + "\r\n");
}

change removed(const std::string& file, const std::string& line, int nth) {
    return with_line(file, line, nth, "");
}

change doubled(const std::string& file, const std::string& line, int nth) {
    return with_line(file, line, nth, line + "\r\n" + line + "\r\n");
}

change put_ahead(const std::string& file, const std::string& line, const std::string& added, int nth) {
    return with_line(file, line, nth, added + "\r\n" + line + "\r\n");
}

change swapped_with_next(const std::string& file, const std::string& line, int nth) {
    return [=](files_by_name& files) {
        std::string& text = files[file];
        const auto at = place_of(text, line, nth);
        if (!at)
            return false;
        const std::size_t next = *at + line.size() + 2;
        const std::size_t end = text.find("\r\n", next) + 2;
        const std::string swapped = text.substr(next, end - next) + line + "\r\n";
        text.replace(*at, swapped.size(), swapped);
        return true;
    };
}

change cut_behind(const std::string& file, const std::string& line, int nth) {
    return cut_within(file, line, line.size() + 2, nth);
}

change cut_within(const std::string& file, const std::string& line, std::size_t bytes, int nth) {
    return [=](files_by_name& files) {
        const auto at = place_of(files[file], line, nth);
        if (at)
            files[file].resize(*at + bytes);
        return at.has_value();
    };
}

change with_bare_line_feed(const std::string& file, const std::string& line, int nth) {
    return with_line(file, line, nth, line + "\n");
}

change appended(const std::string& file, const std::string& bytes) {
    return with_bytes(file, [bytes](const std::string& text) { return text + bytes; });
}

change removed_file(const std::string& file) {
    return [file](files_by_name& files) { return files.erase(file) == 1; };
}

change renamed_file(const std::string& file, const std::string& to) {
    return [file, to](files_by_name& files) {
        files[to] = files[file];
        return files.erase(file) == 1;
    };
}

change added_file(const std::string& file, const std::string& bytes) {
    return [file, bytes](files_by_name& files) { return files.emplace(file, bytes).second; };
}

change overwritten(const std::string& file, const std::string& bytes) {
    return with_bytes(file, [bytes](const std::string&) { return bytes; });
}

change cut_to(const std::string& file, std::size_t bytes) {
    return with_bytes(file, [bytes](const std::string& text) { return text.substr(0, bytes); });
}

change with_flipped_byte(const std::string& file, std::size_t at) {
    return with_bytes(file, [at](std::string text) {
        text.at(at) = static_cast<char>(text.at(at) ^ 0x55);
        return text;
    });
}

change replaced_everywhere(const std::string& file, const std::string& text, const std::string& by) {
    return with_bytes(file, [text, by](std::string all) {
        for (std::size_t at = all.find(text); at != std::string::npos; at = all.find(text, at + by.size()))
            all.replace(at, text.size(), by);
        return all;
    });
}

change all_of(std::vector<change> changes) {
    return [changes = std::move(changes)](files_by_name& files) {
        for (const change& one : changes)
            if (!one(files))
                return false;
        return true;
    };
}
