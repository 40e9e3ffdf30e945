#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

/// The two sides of a comparison: something of the analyser, or its floor, the least that does the
/// same. The benchmark's argument is a number of access points. The measure is the processor time,
/// or the counter "value" where one is set.
using Sides = std::function<void(benchmark::State& state, bool floor)>;

/// Measures how many times its floor something of the analyser takes, both from the same run and in
/// turns: times by themselves say more of the machine than of the program. The goal is the largest
/// ratio that is good enough at the last of `sizes`.
void compare(const char* what, const char* floorIs, double goal, const std::vector<int>& sizes,
    const Sides& sides);

/// Something that is measured against a number, in the unit of its counter.
Sides against(double floor, const std::function<void(benchmark::State& state)>& measured);

const std::vector<int> Growing = {1, 16, 64, 127}; ///< to see how a cost grows
const std::vector<int> Most = {127};

/// Runs them, and writes the ratios: a table on standard output, where a missed goal is marked, and
/// a JSON file. False when a goal is missed or nothing was measured of one.
bool runComparisons(const char* jsonFile);

// The comparisons, by file.
void compareScan();
void compareViews();
/// `self` is this program, which starts as others too.
void comparePrograms(const char* self);

/// The exit status of the program that `word` makes of this one, below 0 when it makes none.
int startAs(const std::string& word);
