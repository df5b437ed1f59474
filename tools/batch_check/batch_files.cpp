#include "tools/batch_check/batch_files.h"

#include "platform/platform.h"

#include <algorithm>

namespace batch_check {

std::optional<std::string> whole_file(const batch_files& files, const std::string& name, std::uint64_t limit) {
    const std::optional<std::uint64_t> size = files.size(name);
    if (!size || *size > limit)
        return std::nullopt;
    const std::unique_ptr<byte_source> source = files.open(name);
    if (!source)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(*size), '\0');
    std::size_t filled = 0;
    while (const std::size_t more = source->read(bytes.data() + filled, bytes.size() - filled))
        filled += more;
    bytes.resize(filled); // shorter if someone cut the file meanwhile
    return bytes;
}

namespace {

class file_on_disk : public byte_source {
public:
    bool open(const std::string& name) { return file.open(name, platform::open_mode::read); }
    std::size_t read(char* into, std::size_t size) override { return file.read(into, size); }

private:
    platform::file file;
};

class disk_folder : public batch_files {
public:
    explicit disk_folder(const std::string& as_given) : folder(as_given) {}

    std::optional<std::vector<listed_entry>> list(const std::string& inside) const override {
        const auto entries = platform::list_folder(inside.empty() ? folder : full(inside));
        if (!entries)
            return std::nullopt;
        std::vector<listed_entry> all;
        for (const platform::folder_entry& entry : *entries)
            all.push_back({entry.name, entry.is_folder, entry.size});
        return all;
    }

    std::optional<std::uint64_t> size(const std::string& name) const override {
        return platform::file_size(full(name));
    }

    std::unique_ptr<byte_source> open(const std::string& name) const override {
        auto opened = std::make_unique<file_on_disk>();
        if (!opened->open(full(name)))
            return nullptr;
        return opened;
    }

    std::vector<std::string> full_names() const override {
        std::vector<std::string> names = {platform::absolute_name(folder)};
        if (auto real = platform::real_name(folder))
            names.push_back(*std::move(real));
        for (std::string& name : names)
            while (name.size() > 1 && name.back() == platform::path_separator)
                name.pop_back();
        return names;
    }

private:
    std::string full(std::string name) const {
        std::replace(name.begin(), name.end(), '/', platform::path_separator);
        return platform::joined(folder, name);
    }

    std::string folder;
};

} // namespace

std::unique_ptr<batch_files> folder_on_disk(const std::string& name) {
    return std::make_unique<disk_folder>(name);
}

} // namespace batch_check
