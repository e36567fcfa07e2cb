#include "fuzz/target.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

// run_corpus FOLDER... runs every file of the folders through the target, and a few changes of each by chance, the
// same at each run. A sound target ends with 0.
namespace {

constexpr int changes_of_each = 20;

void run(const std::string& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::string changed(std::string input, std::mt19937& chance) {
    for (int change = 0; change < 4 && !input.empty(); ++change) {
        const std::size_t place = chance() % input.size();
        switch (chance() % 4) {
        case 0:
            input[place] = static_cast<char>(chance());
            break;
        case 1:
            input.erase(place, chance() % 16);
            break;
        case 2:
            input.insert(place, input.substr(chance() % input.size(), chance() % 32));
            break;
        default:
            input.insert(place, 1, "0123456789=;:-/,|\r\n"[chance() % 19]);
        }
    }
    return input;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
            files.push_back(entry.path());
    std::ranges::sort(files);
    std::mt19937 chance; // NOLINT: the same numbers each time are wanted
    for (const auto& path : files) {
        std::ifstream file(path, std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        run(input);
        for (int i = 0; i < changes_of_each; ++i)
            run(changed(input, chance));
    }
    std::printf("%zu files\n", files.size());
    return files.empty() ? 1 : 0;
}
