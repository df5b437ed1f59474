#include "tests/sketchup/skp/writer/classic_samples.h"

#include "tests/samples_folder.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>

namespace {

// The first bytes of a file, which hold all that tells its version.
std::string head_of(const std::string& path) {
    std::string head(2000, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(file.gcount()));
    return head;
}

// 0 for a file of another container.
int major_version(const std::string& head) {
    constexpr std::size_t product = 4 + 2 * 14;  // its marker, length and characters
    constexpr std::size_t version = product + 4; // behind the marker and length of the next string
    if (head.size() <= version || head[version] != '{' || head.find("CVersionMap") == std::string::npos)
        return 0;
    int major = 0;
    for (std::size_t at = version + 2; at < head.size(); at += 2) {
        if (std::isdigit(static_cast<unsigned char>(head[at])) == 0)
            break;
        major = 10 * major + (head[at] - '0');
    }
    return major;
}

} // namespace

std::vector<classic_sample> classic_samples(int major) {
    std::vector<classic_sample> found;
    if (samples_folder().empty())
        return found;
    for (const auto& entry : std::filesystem::directory_iterator(samples_folder()))
        if (major_version(head_of(entry.path().string())) == major)
            found.push_back({entry.path().filename().string(), file_bytes(entry.path().string())});
    std::ranges::sort(found, {}, &classic_sample::name);
    return found;
}
