#include "tests/batch/stream_grammar.h"

#include "tests/batch/stream_items.h"

std::ostream& operator<<(std::ostream& out, const grammar_fault& fault) {
    return out << "line " << fault.line << ": " << fault.reason;
}

std::optional<grammar_fault> first_grammar_fault(std::string_view stream) {
    const auto lines = stream_lines(stream);
    if (!lines)
        return grammar_fault{1, "not every line ends in CR LF"};
    try {
        stream_items(*lines).take_stream();
    } catch (const grammar_fault& fault) {
        return fault;
    }
    return std::nullopt;
}
