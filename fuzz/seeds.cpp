#include "fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>

/// Runs a target on each file of a folder, and on no bytes at all.
int main(int count, char** arguments)
{
    require(count == 2 && !std::filesystem::is_empty(arguments[1]));
    LLVMFuzzerTestOneInput(nullptr, 0);
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::cerr << entry << std::endl;
        std::vector<std::uint8_t> bytes(entry.file_size()); // its block is not larger
        std::ifstream(entry.path())
            .read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size()));
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    return 0;
}
