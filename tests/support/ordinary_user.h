#pragma once

// Takes the rights of the superuser away for the length of a test, so that what must not be written cannot be.

#include <unistd.h>

class ordinary_user {
public:
    ordinary_user() {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0)
            has_changed = seteuid(nobody) == 0;
    }
    ordinary_user(const ordinary_user&) = delete;
    ordinary_user& operator=(const ordinary_user&) = delete;
    ~ordinary_user() {
        if (has_changed)
            static_cast<void>(seteuid(0) == 0);
    }

private:
    bool has_changed = false;
};
