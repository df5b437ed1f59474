// Which files of the settings a run opens, as the system's watch of a folder reports it.

#include "tests/batch/batch_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace {

using namespace sketchup;

// Counts how often the files of a folder are opened, by whatever process. Closing is watched too: the system reports
// equal events in a row as one.
class opens_in {
public:
    explicit opens_in(const std::string& folder) : queue(inotify_init1(IN_NONBLOCK)) {
        EXPECT_GE(inotify_add_watch(queue, folder.c_str(), IN_OPEN | IN_CLOSE), 0) << std::strerror(errno);
    }
    opens_in(const opens_in&) = delete;
    opens_in& operator=(const opens_in&) = delete;
    ~opens_in() { close(queue); }

    // The names of the files opened so far, one for each time; the folder itself is left out.
    std::vector<std::string> names() const {
        std::vector<std::string> opened;
        alignas(inotify_event) std::array<char, 64 * (sizeof(inotify_event) + NAME_MAX + 1)> events{};
        for (ssize_t size = read_into(events); size > 0; size = read_into(events))
            for (ssize_t at = 0; at < size;) {
                const auto* const event = reinterpret_cast<const inotify_event*>(events.data() + at);
                if (event->len > 0 && (event->mask & IN_OPEN) != 0)
                    opened.emplace_back(event->name);
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        return opened;
    }

private:
    template<std::size_t size>
    ssize_t read_into(std::array<char, size>& events) const {
        return read(queue, events.data(), events.size());
    }

    int queue;
};

TEST(OpenedSettings, a_run_opens_each_file_of_the_settings_once_and_only_those_it_needs) {
    const std::string settings_folder = "home/.config/Quillon Systems";
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    const std::string text = "[Globals]\r\nivl_txtr_dpi=150\r\nsvl_last_scheme=Night\r\n";
    b.surrounding().write(settings_folder + "/Profile.ini", text);
    b.surrounding().write(settings_folder + "/Tessaline.ini", "[Common]\r\nLastSKP=old\r\n");
    const opens_in opened(b.surrounding() / settings_folder);
    EXPECT_EQ(b.run().errors, quiet_errors);
    EXPECT_THAT(opened.names(), testing::ElementsAre("Profile.ini"));
    EXPECT_EQ(b.surrounding().read(settings_folder + "/Profile.ini"), text);
}

} // namespace
