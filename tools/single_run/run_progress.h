#pragma once

// How far a run is, for a render manager that reads it.

#include <string>
#include <string_view>

// Lines on standard output as the Open Job Description has them: "openjd_progress: 42", a percentage, and
// "openjd_status: checking", what is being done. Writes nothing unless it is wanted.
class run_progress {
public:
    explicit run_progress(bool is_wanted) : wanted(is_wanted) {}

    void tell_status(std::string_view text) const;
    // percent: 0 to 100; one that is not higher than the last one told is not told again.
    void tell_percent(int percent);

private:
    bool wanted;
    int told = -1;
};
