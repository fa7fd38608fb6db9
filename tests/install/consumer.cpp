// tests/install/consumer.cpp: a C++17 program as a user would write it. Prints the path of the library it runs on.
#include <dlfcn.h>
#include <kvrcore.h>
#include <kvri.h>

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace {

void require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
}

struct Free {
    void operator()(Kvr16u* p) const { kvriFree(p); }
};

struct Image {
    int step = 0;
    std::unique_ptr<Kvr16u, Free> pixels;
    explicit Image(KvriSize size) : pixels(kvriMalloc_16u_C4(size.width, size.height, &step)) {
        require(pixels != nullptr, "no memory");
    }
};

void checkImages() {
    constexpr KvriSize size{19, 4};
    constexpr std::array<Kvr16u, 4> colour{1000, 2000, 3000, 4000};
    constexpr std::array<int, 4> reverse{3, 2, 1, 0};
    const Image src(size), dst(size);
    require(kvriSet_16u_C4R(colour.data(), src.pixels.get(), src.step, size) == kvrStatusOk, "set");
    require(kvriSwapChannels_16u_C4R(src.pixels.get(), src.step, dst.pixels.get(), dst.step, size, reverse.data()) ==
                kvrStatusOk, "swap");
    for (int y = 0; y < size.height; ++y)
        for (int i = 0; i < size.width * 4; ++i)
            require(dst.pixels.get()[y * dst.step / 2 + i] == colour[3 - i % 4], "wrong sample");
}

}  // namespace

int main() try {
    checkImages();
    const KvrLibraryVersion* version = kvriGetLibVersion();
    require(version->major == 8 && version->minor == 2 && version->update == 3, "wrong version");
    require(std::string_view(version->version).substr(0, 5) == "8.2.3", "wrong version text");
    const std::unique_ptr<void, decltype(&kvrFree)> memory(kvrMalloc(100), kvrFree);
    require(memory && reinterpret_cast<uintptr_t>(memory.get()) % 64 == 0, "kvrMalloc");

    Dl_info library;
    require(dladdr(version, &library) != 0, "the version record belongs to no library");
    std::puts(library.dli_fname);
} catch (const std::exception& e) {
    std::fprintf(stderr, "consumer.cpp: %s\n", e.what());
    return 1;
}
