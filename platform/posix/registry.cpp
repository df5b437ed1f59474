// A system without a registry answers every question with nothing.

#include "platform/platform.h"

namespace platform {

namespace {

class empty_registry : public registry {
public:
    registry_answer read(registry_hive, const std::string&, const std::string&) override { return {}; }
    bool has_key(registry_hive, const std::string&) override { return false; }
    bool make_key(registry_hive, const std::string&) override { return false; }
    bool write_text(registry_hive, const std::string&, const std::string&, const std::string&) override {
        return false;
    }
};

} // namespace

std::unique_ptr<registry> system_registry() {
    return std::make_unique<empty_registry>();
}

} // namespace platform
