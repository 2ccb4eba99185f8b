// Clerks at the served screen at once, each keying and saving notes of one line
// against the same few batches, and what each save came to.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "support/served_screen.h"

namespace web::testing {

struct LoadPlan {
    int clerks = 8;
    int notesEach = 25;
    std::string item = "FD002";
    std::string quantity = "2";
};

struct LoadOutcome {
    std::vector<std::string> savedNumbers;                 // the numbers the screen said it gave
    int refused = 0;                                       // notes the screen or the save turned away
    std::vector<std::chrono::duration<double>> saveTimes;  // the save button, each note
    std::chrono::duration<double> elapsed{};
    std::vector<std::string> faults;  // calls that got no proper answer
};

LoadOutcome RunClerks(ServedScreen& screen, const LoadPlan& plan);

}  // namespace web::testing
