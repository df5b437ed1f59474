#include "tests/support/shown_to_user.h"

#include "tests/support/temporary_folder.h"
#include "tests/support/windows/window_reader.h"

#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

namespace {

std::mutex guard;     // of what follows
std::string all_read; // since the program was started

} // namespace

class attended_desktop::attendant {
public:
    attendant() : watching([this] { watch(); }) {}
    attendant(const attendant&) = delete;
    attendant& operator=(const attendant&) = delete;
    ~attendant() {
        is_over = true;
        watching.join();
    }

private:
    void watch() {
        window_reader reader(GetCurrentProcessId());
        while (!is_over) {
            {
                // Who asks what was read waits until a window that is closed has been put down.
                const std::lock_guard<std::mutex> lock(guard);
                reader.close_open_windows();
                all_read = reader.read();
            }
            Sleep(5);
        }
    }

    std::atomic<bool> is_over = false;
    std::thread watching;
};

attended_desktop::attended_desktop() : somebody(std::make_unique<attendant>()) {}
attended_desktop::~attended_desktop() = default;

std::string shown_to_user(const std::function<void()>& action) {
    const auto read_so_far = [] {
        const std::lock_guard<std::mutex> lock(guard);
        return all_read;
    };
    const std::size_t before = read_so_far().size();
    testing::internal::CaptureStderr();
    action();
    const std::string written = testing::internal::GetCapturedStderr();
    return written + read_so_far().substr(before);
}

// GoogleTest's own way reads the file as text.
std::string written_to_output(const std::function<void()>& action) {
    const temporary_folder folder;
    const HANDLE before = GetStdHandle(STD_OUTPUT_HANDLE);
    const HANDLE file = CreateFileA((folder / "output").c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    SetStdHandle(STD_OUTPUT_HANDLE, file);
    action();
    SetStdHandle(STD_OUTPUT_HANDLE, before);
    CloseHandle(file);
    return folder.read("output");
}
