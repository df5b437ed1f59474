#include "tools/batch_check/check_batch.h"

#include "tools/batch_check/batch_contents.h"
#include "tools/batch_check/batch_folders.h"
#include "tools/batch_check/check_option_file.h"
#include "tools/batch_check/check_references.h"
#include "tools/batch_check/check_stream.h"

namespace batch_check {

batch_report check_batch(const batch_files& files, const std::set<code>& ignored) {
    batch_report report;
    report.found = findings(ignored);
    batch_contents contents(files);
    const std::unique_ptr<byte_source> stream = contents.has(stream_file_name) ? files.open(stream_file_name) : nullptr;
    if (!stream) {
        report.found.add(code::not_a_batch, "", 0,
                         contents.is_readable() ? "the folder holds no stream that can be read"
                                                : "the folder cannot be read");
        return report;
    }
    report.is_batch = true;
    report.files = contents.file_count();
    report.bytes = contents.bytes();
    report.stream = check_stream(*stream, stream_file_name, report.found);
    reference_check references(files, contents, report);
    references.check_materials();
    references.check_lamps();
    references.check_plants();
    references.check_ground_covers();
    check_option_file(files, report.found);
    contents.report_rest(report.stream.is_whole, report.found);
    return report;
}

} // namespace batch_check
