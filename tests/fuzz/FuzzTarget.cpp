#include "FuzzTarget.h"

#include <cstdio>
#include <cstdlib>

namespace kyfuzz {

void fail(const std::string& what, const std::string& details) {
    std::fprintf(stderr, "broken promise: %s\n", what.c_str());
    if (!details.empty()) {
        // Long details (a whole drawing) are cut: the saved input holds them.
        constexpr std::size_t kShown = 4000;
        std::fprintf(stderr, "%s%s\n", details.substr(0, kShown).c_str(),
                     details.size() > kShown ? "\n[...]" : "");
    }
    std::fflush(stderr);
    std::abort();
}

}  // namespace kyfuzz
