// The replay driver: a fuzz target's LLVMFuzzerTestOneInput built without
// libFuzzer, fed every file of the folders (or the files) named on the
// command line, in name order. A broken promise aborts and the run fails;
// ctest runs it on the target's regressions and seeds in every build.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "FuzzTarget.h"

// A target that needs no set-up defines no LLVMFuzzerInitialize.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) __attribute__((weak));

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputsOf(const fs::path& path) {
    std::vector<fs::path> inputs;
    if (fs::is_directory(path)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(path)) {
            if (entry.is_regular_file()) {
                inputs.push_back(entry.path());
            }
        }
        std::sort(inputs.begin(), inputs.end());
    } else if (fs::is_regular_file(path)) {
        inputs.push_back(path);
    }
    return inputs;
}

}  // namespace

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize != nullptr) {
        LLVMFuzzerInitialize(&argc, &argv);
    }
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        if (!fs::exists(argv[i])) {
            std::fprintf(stderr, "%s: no such file or folder\n", argv[i]);
            return 1;
        }
        for (const fs::path& input : inputsOf(argv[i])) {
            std::ifstream in(input, std::ios::binary);
            const std::vector<char> bytes((std::istreambuf_iterator<char>(in)),
                                          std::istreambuf_iterator<char>());
            if (!in && !in.eof()) {
                std::fprintf(stderr, "can't read %s\n", input.string().c_str());
                return 1;
            }
            std::printf("%s\n", input.string().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
            ++replayed;
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    return 0;
}
