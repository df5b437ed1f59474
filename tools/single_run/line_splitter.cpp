#include "tools/single_run/line_splitter.h"

void line_splitter::hand_out() {
    if (gathered.ends_with('\r'))
        gathered.pop_back();
    take(gathered);
    gathered.clear();
}

void line_splitter::add(std::string_view bytes) {
    for (const char letter : bytes) {
        if (letter == '\n' || gathered.size() == longest_line)
            hand_out();
        if (letter != '\n')
            gathered += letter;
    }
}

void line_splitter::finish() {
    if (!gathered.empty())
        hand_out();
}
