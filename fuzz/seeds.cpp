#include "fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

/// Runs a target on each file of a folder and on each beginning of it, down to no bytes at all.
int main(int count, char** arguments)
{
    require(count == 2 && !std::filesystem::is_empty(arguments[1]));
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::cerr << entry << std::endl;
        std::ifstream file(entry.path());
        const std::string contents{std::istreambuf_iterator<char>(file), {}};
        for (std::size_t size = 0; size <= contents.size(); ++size) {
            const std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[size]);
            std::copy_n(contents.begin(), size, block.get());
            LLVMFuzzerTestOneInput(block.get(), size);
        }
    }
    return 0;
}
