#include "tests/support/environment.h"

void set_environment_variable(const std::string& name, const std::optional<std::string>& value) {
    _putenv_s(name.c_str(), value ? value->c_str() : "");
}
