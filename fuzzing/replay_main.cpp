// SPDX-License-Identifier: MIT
// Feeds every file of a corpus folder to a fuzzer's entry point, so that what fuzzing once found stays found
// in each test run and with each compiler.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

// The name and the signature are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::uint8_t> readBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

int replay(const std::filesystem::path& folder) {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        // The name goes out before the input is tried: after a crash it is the last line.
        std::printf("%s\n", entry.path().filename().string().c_str());
        std::fflush(stdout);
        const std::vector<std::uint8_t> bytes = readBytes(entry.path());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
        ++count;
    }
    return count;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER\n", argv[0]);
        return 2;
    }
    try {
        const int count = replay(argv[1]);
        std::printf("%d inputs replayed\n", count);
        // An empty corpus would let this pass whatever the reader does.
        return count > 0 ? 0 : 1;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
