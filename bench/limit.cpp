#include "bench/limit.h"

#include <cstring>

namespace bench {

Movers loopsBase(const Traffic&);
Movers loopsV3(const Traffic&);
Movers loopsV4(const Traffic&);

Movers plainLoops(const Traffic& t) {
    if (__builtin_cpu_supports("x86-64-v4")) return loopsV4(t);
    if (__builtin_cpu_supports("x86-64-v3")) return loopsV3(t);
    return loopsBase(t);
}

Mover libraryCall(const Traffic& t) {
    if (t.read == t.written)
        return [](const Traffic& t, int times) {
            while (times-- > 0) {
                std::memcpy(t.dst, t.src, size_t(t.read));
                asm volatile("" : : "r"(t.dst) : "memory");
            }
        };
    if (t.read == 0)
        return [](const Traffic& t, int times) {
            while (times-- > 0) {
                std::memset(t.dst, 3, size_t(t.written));
                asm volatile("" : : "r"(t.dst) : "memory");
            }
        };
    return nullptr;
}

}  // namespace bench
