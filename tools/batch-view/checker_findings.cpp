#include "tools/batch-view/checker_findings.h"

#include "platform/platform.h"
#include "tools/batch_check/check_batch.h"

void add_findings(const std::string& batch_folder, page_facts& facts) {
    const batch_check::batch_report report = batch_check::check_batch(*batch_check::folder_on_disk(batch_folder));
    facts.findings = nlohmann::json::array();
    std::uint64_t found = 0;
    for (const auto weight :
         {batch_check::severity::error, batch_check::severity::warning, batch_check::severity::note})
        found += report.found.count(weight);
    for (const batch_check::finding& each : report.found.kept()) {
        const batch_check::code_entry& entry = batch_check::entry_of(each.what);
        facts.findings.push_back({{"code", entry.name},
                                  {"severity", batch_check::name_of(entry.weight)},
                                  {"file", platform::utf8_from_own(each.file)},
                                  {"line", each.line},
                                  {"text", platform::utf8_from_own(each.text)}});
    }
    facts.skipped_findings = found - report.found.kept().size();
}
