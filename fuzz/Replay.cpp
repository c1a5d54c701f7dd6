// SPDX-License-Identifier: MIT
//
// Runs a fuzz target over files and folders of inputs, without a fuzzer: the test that what it once found
// stays mended.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

void replay(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::fprintf(stderr, "%s\n", path.c_str());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argumentCount, char** arguments) {
    int count = 0;
    for (int i = 1; i < argumentCount; ++i)
        for (const auto& entry : fs::recursive_directory_iterator(arguments[i]))
            if (entry.is_regular_file()) {
                replay(entry.path());
                ++count;
            }
    std::fprintf(stderr, "%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
