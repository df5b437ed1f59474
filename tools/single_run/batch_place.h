#pragma once

// The folder of a batch: who may work in it, and what it holds when a run has ended, however it has ended.
//
// A folder in which a run is at work holds a file, the mark, which the run holds and which begins as a report does;
// when the batch is finished the mark becomes the report, by being renamed. What a run replaces stands beside its
// folder meanwhile, under the folder's name and put_aside_ending. Nothing else is ever removed, no link is followed,
// and whatever point a run is killed at, the next one finds its way back: to the finished batch if there was one, to no
// folder otherwise.

#include "platform/held_file.h"
#include "tools/single_run/run_clock.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view mark_name = "tessaline-run.json.part";
inline constexpr std::string_view report_name = "tessaline-run.json";
inline constexpr std::string_view put_aside_ending = ".tessaline-run.before";

class batch_place {
public:
    // folder: a full name without a separator at its end.
    explicit batch_place(std::string folder);

    const std::string& folder() const { return name; }
    std::string operator/(std::string_view inside) const;

    // The calls below give a complaint in words that go behind the folder's name, such as "is a link"; empty if all is
    // well. Each waits a moment for another run that is about to end.

    // Brings back what a run left that was killed.
    std::string recover(const run_clock& clock);
    // The bytes of the report if the folder holds a finished batch.
    std::optional<std::string> finished_report() const;
    // Makes the folder, with those above it, and its mark, which is held from then on. A finished batch is put aside;
    // what an unfinished run left is removed; an empty folder is taken as it is.
    std::string claim(const run_clock& clock);

    // For a claimed folder. Puts the report into the mark, renames it, and removes what was put aside. All bytes of the
    // batch are on the disk before the report is.
    std::string finish(std::string_view report);
    // For a claimed folder. Removes all that was made and puts back what was put aside.
    std::string abandon();

private:
    enum class step { done, again };
    struct stepped {
        step next = step::done;
        std::string complaint;
    };

    stepped recover_once();
    stepped restore();
    stepped claim_once();
    stepped claim_old_folder();
    stepped take_over_unfinished();
    stepped put_aside();
    stepped make_mark();
    stepped make_folder();
    void give_back();
    template<class Try>
    std::string tried(const run_clock& clock, Try attempt);
    bool remove_folder(const std::string& folder, platform::held_file& held);
    void discard_put_aside();

    std::string name;
    std::string aside;
    platform::held_file mark;
    platform::held_file old_report; // of what was put aside
    bool made_folder = false;
    bool has_put_aside = false;
    std::vector<std::string> made_parents; // the outermost first
};

// Whether the bytes are a report of this program.
bool is_report(std::string_view bytes);
