#include "fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

/// About how many beginnings of a file are run at most; a larger file skips some of its own.
const std::size_t MaxBeginnings = 250;

/// Runs a target on each file of a folder and on each beginning of it, down to no bytes at all.
int main(int count, char** arguments)
{
    require(count == 2 && !std::filesystem::is_empty(arguments[1]));
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::cerr << entry << std::endl;
        std::ifstream file(entry.path());
        const std::string contents{std::istreambuf_iterator<char>(file), {}};
        const std::size_t step = 1 + contents.size() / MaxBeginnings;
        for (std::size_t size = contents.size() % step; size <= contents.size(); size += step) {
            const std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[size]);
            std::copy_n(contents.begin(), size, block.get());
            LLVMFuzzerTestOneInput(block.get(), size);
        }
    }
    return 0;
}
