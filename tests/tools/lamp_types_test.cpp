// How lamps are told apart by their type, which may be any text.

#include "tests/tools/small_batch.h"
#include "tests/tools/stream_pieces.h"
#include "tools/batch_check/check_batch.h"

namespace {

using namespace batch_check;

// A batch with a direct light of each type.
batch_report report_on(const std::vector<std::string>& types) {
    small_batch::files_by_name files;
    const std::string lamp = small_batch::still()["ZynBatch_Lights/light_2.txt"];
    const std::string line = "type;bulb\r\n";
    stream_pieces::lines lights;
    for (std::size_t i = 0; i < types.size(); ++i) {
        const std::string number = std::to_string(i);
        lights.insert(lights.end(), {"#; Process Instance Lamp Direct Light", "LGHT;" + number});
        std::string own = lamp;
        own.replace(own.find(line), line.size(), "type;" + types[i] + "\r\n");
        files["ZynBatch_Lights/light_" + number + ".txt"] = own;
    }
    using namespace stream_pieces;
    files["batch_file.txt"] = text_of(joined({head, pass, lights, end}));
    return check_batch(files_in_memory(files));
}

TEST(LampTypes, are_counted_by_their_first_80_bytes) {
    const std::string eighty(80, 'x');
    const batch_report report = report_on({"bulb", eighty, eighty + "a", eighty + "b"});
    const std::map<std::string, std::uint64_t> expected = {{"bulb", 1}, {eighty, 1}, {eighty + "...", 2}};
    EXPECT_EQ(report.lamps_by_type, expected);
}

TEST(LampTypes, beyond_the_hundredth_are_counted_together) {
    std::vector<std::string> types;
    for (int i = 0; i < 103; ++i)
        types.push_back("type " + std::to_string(i));
    types.emplace_back("type 7"); // which is known
    const batch_report report = report_on(types);
    EXPECT_EQ(report.lamps_by_type.size(), 101U);
    EXPECT_EQ(report.lamps_by_type.at("type 99"), 1U);
    EXPECT_EQ(report.lamps_by_type.at("type 7"), 2U);
    EXPECT_EQ(report.lamps_by_type.at("..."), 3U); // 100, 101 and 102
    EXPECT_EQ(report.stream.lamps.size(), 104U);
}

} // namespace
