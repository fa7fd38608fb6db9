// tests/support/main.cpp: says which build of the library is under test, and refuses to test another than was asked for.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "kvri.h"

namespace {

constexpr int kSkipped = 77;

bool processorRuns(const std::string& level) {
    if (level == "x86-64-v4") return __builtin_cpu_supports("x86-64-v4");
    if (level == "x86-64-v3") return __builtin_cpu_supports("x86-64-v3");
    return true;
}

std::string loadedLevel(const std::string& path) {
    for (const char* level : {"x86-64-v4", "x86-64-v3"})
        if (path.find(std::string("glibc-hwcaps/") + level) != std::string::npos) return level;
    return "base";
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    Dl_info info;
    if (dladdr(reinterpret_cast<void*>(&kvriGetLibVersion), &info) == 0) return 1;
    const std::string loaded = loadedLevel(info.dli_fname);
    std::printf("library under test: %s (%s), \"%s\"\n", info.dli_fname, loaded.c_str(), kvriGetLibVersion()->name);

    if (const char* wanted = std::getenv("KVRI_LEVEL")) {
        if (!processorRuns(wanted)) {
            std::printf("SKIPPED: this processor does not run %s\n", wanted);
            return kSkipped;
        }
        if (loaded != wanted) {
            std::printf("FAILED: wanted the %s build\n", wanted);
            return 1;
        }
    }
    return RUN_ALL_TESTS();
}
