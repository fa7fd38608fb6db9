// tests/datamove/turn.h: every function that mirrors or transposes, one shape for all, for the tests and the benchmarks.
#pragma once

#include "tests/datamove/call.h"

namespace test {

// The arguments of a call; in-place forms take the destination alone.
struct Turn {
    const void* src = nullptr;
    int srcStep = 0;
    void* dst = nullptr;
    int dstStep = 0;
    KvriSize roi{};
    KvriAxis axis = kvrAxisMainDiagonal;
};

struct TurnCase {
    std::string name;
    std::function<KvrStatus(const Turn&, int)> function;  // so many times
    int pixelBytes, colourBytes;
    bool inPlace;
};

template <class T>
TurnCase turnCase(const char* name, KvrStatus (*f)(const T*, int, T*, int, KvriSize, KvriAxis), int channels, int colours) {
    return {name, [=](const Turn& t, int n) {
        return repeat(n, [&] { return f(as<T>(t.src), t.srcStep, as<T>(t.dst), t.dstStep, t.roi, t.axis); });
    }, int(sizeof(T)) * channels, int(sizeof(T)) * colours, false};
}
template <class T>
TurnCase turnCase(const char* name, KvrStatus (*f)(T*, int, KvriSize, KvriAxis), int channels, int colours) {
    return {name, [=](const Turn& t, int n) { return repeat(n, [&] { return f(as<T>(t.dst), t.dstStep, t.roi, t.axis); }); },
            int(sizeof(T)) * channels, int(sizeof(T)) * colours, true};
}
template <class T>
TurnCase turnCase(const char* name, KvrStatus (*f)(const T*, int, T*, int, KvriSize), int channels, int colours) {
    return {name, [=](const Turn& t, int n) {
        return repeat(n, [&] { return f(as<T>(t.src), t.srcStep, as<T>(t.dst), t.dstStep, t.roi); });
    }, int(sizeof(T)) * channels, int(sizeof(T)) * colours, false};
}
template <class T>
TurnCase turnCase(const char* name, KvrStatus (*f)(T*, int, KvriSize), int channels, int colours) {
    return {name, [=](const Turn& t, int n) { return repeat(n, [&] { return f(as<T>(t.dst), t.dstStep, t.roi); }); },
            int(sizeof(T)) * channels, int(sizeof(T)) * colours, true};
}

#define KVRI_TURN(name, channels, colours) turnCase(#name, name, channels, colours)
#define KVRI_TURNS(operation, t, form)                  \
    KVRI_TURN(kvri##operation##_##t##_C1##form, 1, 1),  \
    KVRI_TURN(kvri##operation##_##t##_C3##form, 3, 3),  \
    KVRI_TURN(kvri##operation##_##t##_C4##form, 4, 4)
#define KVRI_MIRRORS(t)                                                                    \
    KVRI_TURNS(Mirror, t, R), KVRI_TURN(kvriMirror_##t##_AC4R, 4, 3),                      \
    KVRI_TURNS(Mirror, t, IR), KVRI_TURN(kvriMirror_##t##_AC4IR, 4, 3)
#define KVRI_TRANSPOSES(t) KVRI_TURNS(Transpose, t, R), KVRI_TURNS(Transpose, t, IR)

inline const std::vector<TurnCase> kMirrorCases = {
    KVRI_MIRRORS(8u), KVRI_MIRRORS(16u), KVRI_MIRRORS(16s), KVRI_MIRRORS(32s), KVRI_MIRRORS(32f)};

inline const std::vector<TurnCase> kTransposeCases = {
    KVRI_TRANSPOSES(8u), KVRI_TRANSPOSES(16u), KVRI_TRANSPOSES(16s), KVRI_TRANSPOSES(32s), KVRI_TRANSPOSES(32f)};

}  // namespace test
