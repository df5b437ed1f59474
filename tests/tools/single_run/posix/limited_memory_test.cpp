// Runs whose programs get too little memory. The address sanitizer asks for more of it than any limit leaves.

#include "tests/tools/single_run/run_fixture.h"

namespace {

using namespace sketchup;
using testing::EndsWith;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool is_sanitized = true;
#elif defined(__has_feature)
constexpr bool is_sanitized = __has_feature(address_sanitizer);
#else
constexpr bool is_sanitized = false;
#endif

class LimitedMemory : public RunFixture {
protected:
    void SetUp() override {
        if (is_sanitized)
            GTEST_SKIP() << "no limit leaves a sanitized program its memory";
    }

    void expect_refused(const std::string& limit) const {
        const program_result outcome = run_with({"--memory", limit, "--json", here / "report.json"});
        EXPECT_EQ(outcome.status, 7) << outcome.errors;
        EXPECT_EQ(last_line(outcome.errors),
                  "tessaline-run: The converter did not get on with the memory that it was given.");
        EXPECT_FALSE(here.has("batch"));
        EXPECT_EQ(nlohmann::json::parse(here.read("report.json"))["status"], 7);
    }
};

TEST_F(LimitedMemory, memory_in_which_no_program_starts_ends_the_run_with_status_7) {
    expect_refused("1M");
}

TEST_F(LimitedMemory, memory_that_the_model_alone_fills_ends_the_run_with_status_7) {
    model_builder m;
    m.root().square(10);
    m.attribute(m.root().list(), "notes", "text", text(std::string(std::size_t{64} << 20U, 'x')));
    put_model(m);
    expect_refused("64M");
}

TEST_F(LimitedMemory, memory_enough_makes_no_difference) {
    EXPECT_EQ(run_with({"--memory", "1G"}).status, 0);
}

} // namespace
