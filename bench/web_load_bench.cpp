// Clerks saving at once through the served screen: notes saved a second and the
// slowest save, with eight clerks of 25 notes each against the same three batches,
// first with stock for every note, then with stock for 12 of the 200.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

#include "support/clerk_load.h"

namespace {

void BM_EightClerksSaveTwentyFiveNotesEach(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        web::testing::ServedScreen screen;
        screen.Sql("UPDATE Batch_Products SET Quantity = " + std::to_string(state.range(0)) +
                   " WHERE Product_Code = 'FD002'");
        state.ResumeTiming();
        const auto outcome = web::testing::RunClerks(screen, {});
        state.PauseTiming();
        const auto slowest = std::max_element(outcome.saveTimes.begin(), outcome.saveTimes.end());
        state.counters["notes_saved"] = static_cast<double>(outcome.savedNumbers.size());
        state.counters["notes_refused"] = outcome.refused;
        state.counters["refused_at_save"] = outcome.refusedAtSave;
        state.counters["notes_per_second"] = static_cast<double>(outcome.savedNumbers.size()) / outcome.elapsed.count();
        state.counters["slowest_save_ms"] = slowest == outcome.saveTimes.end() ? 0 : slowest->count() * 1000;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_EightClerksSaveTwentyFiveNotesEach)
    ->Arg(2400)
    ->Arg(96)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();

}  // namespace
