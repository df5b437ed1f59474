#pragma once

// Puts text where the user can paste it from.

#include <string>

// text: its lines end as they should arrive. A failure is shown to the user, with one message for each cause.
void copy_to_clipboard(const std::string& text);
