// Stands in where the page could not be bundled.

#include "tools/page/page_text.h"

std::string_view page_text() {
    return {};
}
