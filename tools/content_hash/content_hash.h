#pragma once

// What stands for the bytes of a file, to tell whether two are equal: XXH3 of 128 bits. Two files share it by chance
// once in 10^38 pairs; it is no defence against files that are made to collide.

#include <memory>
#include <string>
#include <string_view>

class content_hash {
public:
    content_hash();
    ~content_hash();
    content_hash(const content_hash&) = delete;
    content_hash& operator=(const content_hash&) = delete;

    // Takes the next bytes, in pieces of any size.
    void add(std::string_view bytes);
    // Of all that was added so far, as 32 hexadecimal digits of lower case: what xxh128sum prints for a file.
    std::string digest() const;

private:
    struct state;
    std::unique_ptr<state> gathered;
};

std::string content_hash_of(std::string_view bytes);
