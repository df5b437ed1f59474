#pragma once

// Reports as one JSON document: the same keys in the same order in every run, no date, no full name.

#include "tools/batch_check/check_batch.h"

#include <memory>
#include <string>
#include <string_view>

namespace batch_check {

// "sound", "findings", "not a batch".
std::string_view status_of(const batch_report& report, bool is_strict);

// The document of one batch after the other; of each no more is kept than what the document says of it.
class json_document {
public:
    // is_strict: warnings make a batch unsound too.
    explicit json_document(bool is_strict);
    ~json_document();
    json_document(const json_document&) = delete;
    json_document& operator=(const json_document&) = delete;

    // folder: as it was given.
    void add(const std::string& folder, const batch_report& report);
    // Ends in a line feed. What is no UTF-8 in a name is replaced.
    std::string text() const;

private:
    struct content;
    std::unique_ptr<content> all;
    bool warnings_count = false;
};

} // namespace batch_check
