#pragma once

// Many models: the runs of a list, side by side on this machine, and the table of what became of them. GNU parallel
// starts the runs; this decides what each of them is and gathers their reports.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct list_options {
    std::string list;                   // file, read as tools/model_lists/model_list.h has it
    std::optional<std::string> root;    // the common folder; the deepest that holds all models if nothing
    std::string output;                 // folder; made if missing
    std::size_t first = 0;              // number of the first model that is run, from 0
    std::optional<std::size_t> count;   // how many from there, as far as the list goes; all if nothing
    std::string jobs = "100%";          // at a time, as GNU parallel has it: 4, or 50% of the processors
    std::string tries = "1";            // for each model
    bool resumes = false;               // leaves out what the job log of an interrupted run calls done
    std::vector<std::string> run_words; // options for each single run, as they stand on its command line
};

// Runs the models, each by this program itself, into the places below the output folder that their paths have below the
// common one. Leaves there, in the folder of the list: the report of each run, what GNU parallel was given and its job
// log, and, if all models were asked for, the table as table.csv and table.txt. Prints the table on standard output and
// ends with a sentence on standard error. Gives the status for the program: 0 if all models are done or were so before,
// else the highest of their statuses; 2 for a list that cannot be worked on or where GNU parallel is missing, 4 if the
// output folder or standard output cannot be written, 6 if the run is asked to end.
int run_list(const list_options& options);

// The table alone, from the reports that are there, for all models of the list. The same output and statuses.
int print_table(const list_options& options);

// How many models the list has, as one line on standard output. 0, 2 for a list that cannot be worked on, or 4 if the
// line cannot be written.
int print_count(const list_options& options);
