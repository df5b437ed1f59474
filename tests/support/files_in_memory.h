#pragma once

// A batch that lies in memory.

#include "tools/batch_check/batch_files.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

class files_in_memory : public batch_check::batch_files {
public:
    using files_by_name = std::map<std::string, std::string>; // names from the batch folder on, with "/" between

    // folder: the full name of the batch folder; empty if full names may lead anywhere.
    explicit files_in_memory(files_by_name all, std::string folder = {})
        : files(std::move(all)), full_name(std::move(folder)) {}

    std::optional<std::vector<batch_check::listed_entry>> list(const std::string& folder) const override {
        const std::string beginning = folder.empty() ? folder : folder + '/';
        std::map<std::string, batch_check::listed_entry> entries;
        for (const auto& [name, bytes] : files) {
            if (!name.starts_with(beginning))
                continue;
            const std::string rest = name.substr(beginning.size());
            const std::size_t slash = rest.find('/');
            const std::string first = rest.substr(0, slash);
            const bool is_folder = slash != std::string::npos;
            entries[first] = {first, is_folder, is_folder ? 0 : bytes.size()};
        }
        if (entries.empty())
            return std::nullopt;
        std::vector<batch_check::listed_entry> all;
        for (auto& [name, entry] : entries)
            all.push_back(std::move(entry));
        return all;
    }

    std::optional<std::uint64_t> size(const std::string& name) const override {
        const auto found = files.find(name);
        return found == files.end() ? std::nullopt : std::optional<std::uint64_t>(found->second.size());
    }

    std::unique_ptr<byte_source> open(const std::string& name) const override {
        const auto found = files.find(name);
        return found == files.end() ? nullptr : std::make_unique<bytes_in_memory>(found->second);
    }

    std::vector<std::string> full_names() const override {
        return full_name.empty() ? std::vector<std::string>() : std::vector<std::string>{full_name};
    }

private:
    files_by_name files;
    std::string full_name;

public:
    // The bytes must outlive it.
    class bytes_in_memory : public byte_source {
    public:
        explicit bytes_in_memory(std::string_view all) : rest(all) {}
        std::size_t read(char* into, std::size_t size) override {
            const std::size_t count = std::min(size, rest.size());
            std::memcpy(into, rest.data(), count);
            rest.remove_prefix(count);
            return count;
        }

    private:
        std::string_view rest;
    };
};
