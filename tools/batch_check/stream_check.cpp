// The frame of a stream, and where the check goes on behind a fault.

#include "tools/batch_check/stream_check.h"

#include "tools/batch_check/check_stream.h"

namespace batch_check {
namespace {

constexpr int most_faults = 200; // out of order; more say nothing new

} // namespace

stream_facts check_stream(byte_source& stream, const std::string& file, findings& found, std::uint64_t most_kept) {
    stream_facts facts;
    stream_check(stream, file, found, facts, most_kept).take_stream();
    return facts;
}

void stream_check::take_stream() {
    try {
        take_parts();
    } catch (const given_up&) {
        is_given_up = true;
        facts.is_whole = false;
        lines.report(code::stream_given_up, "the rest is not read");
    }
    report_lines();
    facts.layers = layer_names.size();
    facts.bytes = lines.source().bytes_read();
}

void stream_check::take_parts() {
    try {
        take_head();
    } catch (const out_of_order&) {
        while (!lines.at_end() && !begins_item() && !at_end_of_body() && !lines.take_if("PASS;0"))
            lines.skip();
        lines.take_if("#;");
    }
    take_body();
    take_end();
}

void stream_check::take_head() {
    const auto take = [this](std::string_view line) {
        if (!lines.at(line))
            lines.refuse(code::stream_head, in_quotes(line) + " must stand here");
        lines.skip();
    };
    take("#;Tessaline Geometry, new extractor");
    if (!lines.at_tag("#;") || !is_date(lines.line().substr(2)))
        lines.report(code::stream_head, "no date");
    if (lines.at_tag("#"))
        lines.skip();
    for (const char* line : {"DFFC;ffffff", "DFBC;ffffff", "DFEC;000000", "#;"})
        take(line);
    while (lines.at_tag("LYIN;"))
        take_layer();
    for (const char* line : {"#;", "PASS;0", "#;"})
        take(line);
}

void stream_check::take_layer() {
    lines.take_this_number("LYIN;", layer_count++, code::stream_layer_number);
    std::string name = lines.take_text("LYNM;");
    count_kept(name.size());
    table_names.insert(std::move(name));
}

void stream_check::take_body() {
    int faults = 0;
    while (!lines.at_end() && !lines.at("END;") && !(lines.at("#;") && lines.next_is("END;"))) {
        const std::size_t before = lines.number();
        try {
            open = inside::nothing;
            if (lines.at("#;") && lines.next_is("#;EDGES"))
                take_edges();
            else
                take_item();
        } catch (const out_of_order&) {
            recover();
            if (lines.number() == before)
                lines.skip();
            if (++faults >= most_faults)
                throw given_up();
        }
    }
    facts.is_whole = faults == 0;
}

bool stream_check::at_end_of_body() {
    return lines.at("END;") || (lines.at("#;") && (lines.next_is("END;") || lines.next_is("#;EDGES")));
}

void stream_check::take_end() {
    if (!lines.take_if("#;") && !lines.at_end())
        lines.report(code::stream_order, "\"#;\" must stand here");
    if (lines.at_end()) {
        facts.is_whole = false;
        if (!lines.reported_end())
            lines.report(code::stream_cut_off, "the stream stops before its \"END;\"");
        return;
    }
    lines.skip(); // the body ends ahead of "END;" and nowhere else
    if (!lines.at_end())
        lines.report(code::stream_after_end, "nothing may stand behind \"END;\"");
}

void stream_check::report_lines() {
    while (!is_given_up && !lines.at_end()) // the ends of all lines count
        lines.skip();
    const line_source& source = lines.source();
    if (source.wrong_ends() > 0)
        found.add(code::stream_line_end, file_name, source.first_wrong_end(),
                  std::to_string(source.wrong_ends()) + " lines do not end in CR LF; this is the first");
    if (source.cut_lines() > 0)
        found.add(code::stream_given_up, file_name, 0,
                  std::to_string(source.cut_lines()) + " lines are too long and were read in part");
}

void stream_check::recover() {
    if (is_alone && is_at_front)
        owes_no_back = true;
    is_alone = is_at_front = false;
    while (!lines.at_end() && !at_end_of_body()) {
        if (ends_what_is_open()) {
            lines.skip();
            return;
        }
        const bool may_hold_items = open == inside::lamp || open == inside::glow || open == inside::edges;
        if (may_hold_items ? lines.at_tag("#; Process") : begins_item())
            return;
        note_passed_over();
        lines.skip();
    }
}

bool stream_check::begins_item() {
    return lines.at_tag("#; Process") || lines.at("EMSH; Face") || lines.at("EMSH; Close for new Face Lamp MESH") ||
           lines.at_tag("MATF;") || lines.at_tag("CLPN;") || lines.at("#;PLANT") || lines.at_tag("RPCP;") ||
           (lines.at("#;") && lines.next_is("#;NEW MESH for Image"));
}

bool stream_check::ends_what_is_open() const {
    switch (open) {
    case inside::lamp:
        return lines.at("EMSH; END OF LAMP");
    case inside::glow:
        return lines.at("EMSH;") || lines.at("EMSH; END OF ILLUM material");
    case inside::edges: // nothing but the end stands behind them
        return false;
    default:
        return lines.at("EMSH;");
    }
}

void stream_check::note_passed_over() {
    if (lines.at_tag("MATF;")) {
        passed_name = lines.line().substr(5);
    } else if (lines.at_tag("MATI;") && !passed_name.empty()) {
        count_kept(passed_name.size());
        facts.materials.push_back({passed_name, lines.number()});
        passed_name.clear();
    } else if (lines.at_tag("LITE;") || lines.at_tag("LGHT;")) {
        count_kept();
        facts.lamps.push_back({lines.number(), lines.at_tag("LGHT;")});
    }
}

void stream_check::count_kept(std::size_t bytes_of_name) {
    constexpr std::size_t bytes_beside_name = 64; // of an entry of a list, or of a node of a set
    kept_bytes += bytes_beside_name + bytes_of_name;
    if (kept_bytes > most_kept_bytes)
        throw given_up();
}

} // namespace batch_check
