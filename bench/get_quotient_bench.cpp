// The slab count for growing quotients: the time should stay flat from a thousand to
// a thousand million steps.
#include <benchmark/benchmark.h>

#include <cmath>

#include "schemes/scheme_arithmetic_quotient.h"

namespace {

// Dividers on the dividend's own grid: whole pieces, and a decimal step.
void BM_SlabCountWholeSteps(benchmark::State& state) {
    const double dividend = std::pow(10.0, static_cast<double>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(schemes::CountBySubtraction(dividend, 1));
    state.counters["quotient"] = schemes::CountBySubtraction(dividend, 1);
}
BENCHMARK(BM_SlabCountWholeSteps)->DenseRange(3, 9, 1);

void BM_SlabCountDecimalSteps(benchmark::State& state) {
    const double dividend = 0.3 * std::pow(10.0, static_cast<double>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(schemes::CountBySubtraction(dividend, 0.3));
    state.counters["quotient"] = schemes::CountBySubtraction(dividend, 0.3);
}
BENCHMARK(BM_SlabCountDecimalSteps)->DenseRange(3, 9, 1);

// A divider with more decimals than the dividend's fifteen digits hold: rounded
// steps, counted one decade of the dividend at a time.
void BM_SlabCountFinerDivider(benchmark::State& state) {
    const double dividend = 1.23456789012345 * std::pow(10.0, static_cast<double>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(schemes::CountBySubtraction(dividend, 1.00000000000001));
    state.counters["quotient"] = schemes::CountBySubtraction(dividend, 1.00000000000001);
}
BENCHMARK(BM_SlabCountFinerDivider)->DenseRange(3, 9, 2);

}  // namespace
