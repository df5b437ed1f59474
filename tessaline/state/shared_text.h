#pragma once

// A text that costs the same to copy however long it is: the copies share its bytes. What an object says is copied to
// every level below it, and a model may nest thousands of levels below a text of megabytes.

#include <memory>
#include <string>
#include <string_view>

class shared_text {
public:
    shared_text() = default; // empty
    shared_text& operator=(std::string_view text) {
        bytes = text.empty() ? nullptr : std::make_shared<const std::string>(text);
        return *this;
    }

    bool empty() const { return !bytes; }
    // Valid as long as this text, or any copy of it, holds the same bytes.
    const std::string& str() const { return bytes ? *bytes : none(); }
    operator std::string_view() const { return str(); }

    friend bool operator==(const shared_text& a, std::string_view b) { return a.str() == b; }

private:
    static const std::string& none() {
        static const std::string empty_text;
        return empty_text;
    }

    std::shared_ptr<const std::string> bytes; // never an empty text
};
