#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

/// One side of a comparison. The benchmark's argument is a number of access points. What counts is
/// its processor time, or the counter "value" where it sets one.
using Side = std::function<void(benchmark::State& state)>;

/// Measures something of the analyser beside a floor, the least that does the same. What is told is
/// how many times the floor it takes, both from the same run and in turns: times by themselves say
/// more of the machine than of the program. The goal is a ratio at the last of `sizes`.
void compare(const char* what, const char* floorIs, double goal, const std::vector<int>& sizes,
    const Side& measured, const Side& floor);

/// The floor of something that is no time, in the unit of its counter.
Side fixed(double floor);

const std::vector<int> Growing = {1, 16, 64, 127}; ///< to see how a cost grows
const std::vector<int> Most = {127};

/// Runs them, and tells the ratios: a table on standard output, and a JSON file.
void runComparisons(const char* jsonFile);

// What is compared, by file.
void compareScan();
void compareViews();
void compareReport();
/// `self` is this program, which starts as others too.
void comparePrograms(const char* self);

/// The exit status of the program that `word` makes of this one, below 0 when it is none.
int startAs(const std::string& word);
