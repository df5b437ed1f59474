#include "tools/content_hash/content_hash.h"

#include <xxhash.h>

struct content_hash::state {
    XXH3_state_t of_library;
};

content_hash::content_hash() : gathered(std::make_unique<state>()) {
    XXH3_128bits_reset(&gathered->of_library);
}

content_hash::~content_hash() = default;

void content_hash::add(std::string_view bytes) {
    XXH3_128bits_update(&gathered->of_library, bytes.data(), bytes.size());
}

std::string content_hash::digest() const {
    XXH128_canonical_t most_significant_first;
    XXH128_canonicalFromHash(&most_significant_first, XXH3_128bits_digest(&gathered->of_library));
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const unsigned char byte : most_significant_first.digest) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xfU];
    }
    return text;
}

std::string content_hash_of(std::string_view bytes) {
    content_hash hash;
    hash.add(bytes);
    return hash.digest();
}
