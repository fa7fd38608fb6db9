// tests/datamove/call.h: one shape for every data-movement function, so that one test runs them all.
#pragma once

#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "kvri.h"

namespace test {

// The arguments of a call; a function takes those that it has. Planar images use more than the first plane.
struct Call {
    std::array<const void*, 4> src{};
    std::array<void*, 4> dst{};
    int srcStep = 0, dstStep = 0;
    KvriSize roi{};
    const Kvr8u* mask = nullptr;
    int maskStep = 0;
    const void* value = nullptr;  // the sample itself is passed for functions that take it by value
    const int* order = nullptr;
    int flags = 0;
};

// Calls a function so many times; the status is that of the last.
using Function = std::function<KvrStatus(const Call&, int)>;

template <class F>
KvrStatus repeat(int times, F f) {
    KvrStatus status = kvrStatusOk;
    while (times-- > 0) status = f();
    return status;
}

template <class T>
const T* as(const void* p) { return static_cast<const T*>(p); }
template <class T>
T* as(void* p) { return static_cast<T*>(p); }

// Copy, Dup
template <class T>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize)) {
    return [=](const Call& c, int n) { return repeat(n, [&] { return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi); }); };
}
template <class T>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, const Kvr8u*, int)) {
    return [=](const Call& c, int n) {
        return repeat(n, [&] { return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi, c.mask, c.maskStep); });
    };
}
inline Function function(KvrStatus (*f)(const Kvr8u*, int, Kvr8u*, int, KvriSize, int)) {
    return [=](const Call& c, int n) { return repeat(n, [&] { return f(as<Kvr8u>(c.src[0]), c.srcStep, as<Kvr8u>(c.dst[0]), c.dstStep, c.roi, c.flags); }); };
}
// Planar: as the parameters are declared as arrays, the number of planes is told.
template <int N, class T>
Function toPlanes(KvrStatus (*f)(const T*, int, T* const*, int, KvriSize)) {
    return [=](const Call& c, int n) {
        T* planes[N];
        for (int i = 0; i < N; ++i) planes[i] = as<T>(c.dst[i]);
        return repeat(n, [&] { return f(as<T>(c.src[0]), c.srcStep, planes, c.dstStep, c.roi); });
    };
}
template <int N, class T>
Function fromPlanes(KvrStatus (*f)(const T* const*, int, T*, int, KvriSize)) {
    return [=](const Call& c, int n) {
        const T* planes[N];
        for (int i = 0; i < N; ++i) planes[i] = as<T>(c.src[i]);
        return repeat(n, [&] { return f(planes, c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi); });
    };
}
// Set
template <class V, class T>
V sampleOf(const void* value) {
    if constexpr (std::is_pointer_v<V>) return as<T>(value);
    else return *as<T>(value);
}
template <class V, class T>
Function function(KvrStatus (*f)(V, T*, int, KvriSize)) {
    return [=](const Call& c, int n) { return repeat(n, [&] { return f(sampleOf<V, T>(c.value), as<T>(c.dst[0]), c.dstStep, c.roi); }); };
}
template <class V, class T>
Function function(KvrStatus (*f)(V, T*, int, KvriSize, const Kvr8u*, int)) {
    return [=](const Call& c, int n) {
        return repeat(n, [&] { return f(sampleOf<V, T>(c.value), as<T>(c.dst[0]), c.dstStep, c.roi, c.mask, c.maskStep); });
    };
}
// SwapChannels
template <class T>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, const int*)) {
    return [=](const Call& c, int n) { return repeat(n, [&] { return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi, c.order); }); };
}
template <class T>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, const int*, T)) {
    return [=](const Call& c, int n) {
        return repeat(n, [&] { return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi, c.order, *as<T>(c.value)); });
    };
}
inline Function function(KvrStatus (*f)(Kvr8u*, int, KvriSize, const int*)) {
    return [=](const Call& c, int n) { return repeat(n, [&] { return f(as<Kvr8u>(c.dst[0]), c.dstStep, c.roi, c.order); }); };
}

// How a function moves samples: destination channel k takes source channel from[k], the value where it is kValue, and
// stays as it is where it is kKept. Images hold as many channels as named; a pointer to one channel alone owns that
// channel's samples only.
constexpr int kValue = -1, kKept = -2;
enum Traits : unsigned {
    kSrcOneChannel = 1, kDstOneChannel = 2, kSrcPlanar = 4, kDstPlanar = 8, kMasked = 16,
    kByValue = 32  // the value is one sample, not an array
};

struct Case {
    std::string name;
    Function function;
    int sampleBytes;
    int srcChannels, dstChannels;
    std::vector<int> from;
    unsigned traits = 0;

    bool is(Traits t) const { return traits & t; }
    bool hasSource() const { return srcChannels > 0; }
    bool hasArray() const { return !hasSource() && !is(kByValue); }
    int srcRow(int width) const { return row(width, srcChannels, is(kSrcOneChannel), is(kSrcPlanar)); }
    int dstRow(int width) const { return row(width, dstChannels, is(kDstOneChannel), is(kDstPlanar)); }
    int srcPlanes() const { return is(kSrcPlanar) ? srcChannels : 1; }
    int dstPlanes() const { return is(kDstPlanar) ? dstChannels : 1; }

private:
    int row(int width, int channels, bool oneChannel, bool planar) const {
        if (planar) return width * sampleBytes;
        return ((width - 1) * channels + (oneChannel ? 1 : channels)) * sampleBytes;
    }
};

inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

}  // namespace test
