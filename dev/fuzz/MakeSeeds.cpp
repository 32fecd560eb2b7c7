// MakeSeeds FOLDER: writes FOLDER/READER/seed1 and so on for every reader, and prints the readers' names.

#include "support/readers/Readers.h"

#include <cstdio>
#include <filesystem>

using namespace keltavlo;

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    for (const Reader& reader : Readers()) {
        const std::filesystem::path folder = std::filesystem::path(argv[1]) / reader.name;
        std::filesystem::create_directories(folder);
        int number = 0;
        for (const Bytes& seed : reader.MakeSeeds())
            WriteFile((folder / ("seed" + std::to_string(++number))).string(), seed);
        std::puts(reader.name.c_str());
    }
    return 0;
}
