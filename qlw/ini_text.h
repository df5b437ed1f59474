#pragma once

// The text of one ini file: looked up by section and key, and edited so that every other byte stays as it was.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

// Lines end in LF or CR LF; the last may lack its end. "[section]" opens a section, "key=value" stands in the section
// above it; white space around names and values does not count, nor does the case of ASCII letters in names. A value
// between two equal quotation marks, single or double, is what stands between them. A line that starts with ";" is a
// comment, and whatever else there is is kept and means nothing. Of sections with the same name the first counts, and
// in it the first of equal keys. A UTF-8 byte-order mark in front is no part of the text; a text with one of UTF-16
// holds nothing and is never edited.
class ini_text {
public:
    explicit ini_text(std::string file_bytes = {});

    // The value under a key; nothing if the section or the key is missing.
    std::optional<std::string> value(std::string_view section, std::string_view key) const;

    // Makes the value under a key read so. The old value gives way to the new one in its place; a new key goes behind
    // the last key of its section, a new section to the end, with the line ends of the file (CR LF in a file without).
    // Of a value only the part in front of the first line end or zero byte is taken; one that would lose blanks or
    // quotation marks in reading is put between double ones.
    // False if nothing has changed: the value stands there already, or a reader could not find it again because a name
    // holds a line end, a zero byte or what separates names, or the key is empty.
    bool set_value(std::string_view section, std::string_view key, std::string_view new_value);

    const std::string& bytes() const { return text; }

private:
    struct span {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    void index();
    void index_line(span line, std::string& current_section);
    std::string_view at(span part) const;
    span trimmed(span part) const;
    std::string_view line_end() const;
    void insert_line(std::size_t position, const std::string& line);

    std::string text;
    bool is_foreign = false;                      // in an encoding of two bytes a letter
    std::unordered_map<std::string, span> values; // by folded names; the value as it stands, quotation marks included
    std::unordered_map<std::string, std::size_t> section_ends; // by folded name: behind the last key line of a section
};
