#include "tools/batch_reading/kept_records.h"

kept_records::kept_records(std::size_t records, std::size_t text) : most_records(records), most_text(text) {}

bool kept_records::keep(std::size_t text) {
    if (records_kept >= most_records || text > most_text - text_kept) {
        ++left_out;
        return false;
    }
    ++records_kept;
    text_kept += text;
    return true;
}

std::string kept_records::note() const {
    if (left_out == 0)
        return {};
    return "left out of what the stream declares and places: " + std::to_string(left_out) + "; there is room for " +
           std::to_string(most_records) + " records with " + std::to_string(most_text) + " bytes of names";
}
