#include "fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

static void run(const std::string& contents)
{
    const std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[contents.size()]);
    std::copy(contents.begin(), contents.end(), block.get());
    LLVMFuzzerTestOneInput(block.get(), contents.size());
}

/// Runs a target on each file of a folder, and on no bytes at all.
int main(int count, char** arguments)
{
    require(count == 2 && !std::filesystem::is_empty(arguments[1]));
    run("");
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::cerr << entry << std::endl;
        std::ifstream file(entry.path());
        run({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
    }
    return 0;
}
