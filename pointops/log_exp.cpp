// pointops/log_exp.cpp: Ln and Exp.
#include "pointops/log_exp.h"

#include "core/fpcontrol.h"
#include "kvri/pointops.h"
#include "pointops/unary.h"

namespace kvri {
namespace {

struct FloatLogarithm {
    using Sample = float;
    static constexpr int unrolled = 1;
};

struct FloatExponential {
    using Sample = float;
    static constexpr int unrolled = 1;
    Vec<float> operator()(Vec<float> v) const {
        if (!anyBeyondSmall(v)) [[likely]] return smallExponential(v);
        return exponential(v);
    }
};

// Logarithms of integers above 0, times 2^-scaleFactor, to the nearest integer: only of 1 is a logarithm rational. In single
// precision that is right for 8u, and for 16 bits with scale factors from leastScaleFactor on.
class SingleLogarithms {
    using Wide = Vec<int32_t>;
    Vec<float> scale_;

public:
    static constexpr int leastScaleFactor = -1;
    explicit SingleLogarithms(int scaleFactor) : scale_(splat<Vec<float>>(scaleOf(scaleFactor))) {}
    Wide operator()(Wide x) const { return toNearest(logarithm(__builtin_convertvector(x, Vec<float>)) * scale_); }
};

class DoubleLogarithms {
    using Wide = Vec<int32_t>;
    Vec<double> scale_;

public:
    explicit DoubleLogarithms(int scaleFactor) : scale_(splat<Vec<double>>(scaleOf(scaleFactor))) {}
    Wide operator()(Wide x) const {
        const Split<Vec<float>> s(__builtin_convertvector(x, Vec<float>));
        const Vec<float> f = s.m - 1;
        return joinHalves(toNearestHalf(preciseLogarithm(lowerHalf(s.exponent), lowerHalf(f)) * scale_),
                          toNearestHalf(preciseLogarithm(upperHalf(s.exponent), upperHalf(f)) * scale_));
    }
};

template <class T, class Logarithms>
struct IntegerLogarithm {
    using Sample = T;
    static constexpr int unrolled = 1;
    Logarithms logarithms;
    Vec<T> operator()(Vec<T> v) const { return mapWidened<T>(v > 0 ? v : splat<Vec<T>>(1), logarithms); }
};

// Maps an operation on integers, and gives a warning where any sample is 0.
template <class Op, class Task>
KvrStatus mapLogarithms(const Task& task, const Op& operation) {
    using U = Vec<std::make_unsigned_t<typename Op::Sample>>;
    const Op op = operation;
    U least = (U)~Bytes<>{};
    task.template each<Op>([&](auto write, auto inside, auto v) KVRI_INLINE {
        least = smaller(least, (U)((Bytes<>)v | ~inside(~Bytes<>{})));
        write(op(v));
    });
    return anyZero(least) ? kvrStatusLnZeroArgWarning : kvrStatusOk;
}

struct Ln {
    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        using Single = IntegerLogarithm<T, SingleLogarithms>;
        const DefaultFloatControl control;
        const auto map = [&](const auto& op) { return mapLogarithms(task, op); };
        if constexpr (sizeof(T) == 1) return map(TableOf(Single{SingleLogarithms(scaleFactor)}));
        else if (scaleFactor >= SingleLogarithms::leastScaleFactor) return map(Single{SingleLogarithms(scaleFactor)});
        else return map(IntegerLogarithm<T, DoubleLogarithms>{DoubleLogarithms(scaleFactor)});
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        const DefaultFloatControl control;
        Bytes<> zeros{};
        task.template each<FloatLogarithm>([&](auto write, auto inside, auto v) KVRI_INLINE {
            if (!anySpecial(v)) [[likely]] return write(logarithm(v));
            zeros |= inside((Bytes<>)(v == 0));
            write(anyLogarithm(v));
        });
        return allZero(zeros) ? kvrStatusOk : kvrStatusLnZeroArgWarning;
    }
};

// Exponentials of integers are 0 up to some sample and saturated from another on; between them lie 12 at most.
template <class T>
class IntegerExponential {
public:
    using Sample = T;
    static constexpr int unrolled = 2;

private:
    using V = Vec<T>;
    using U = Vec<std::make_unsigned_t<T>>;
    static constexpr int bias = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    U base_;  // results of samples from here on stand in the table, as unsigned numbers above the type's least
    Bytes<> low_, high_;  // bytes of the results

public:
    explicit IntegerExponential(int scaleFactor) {
        const int s = std::clamp(scaleFactor, -100000, 100000);  // beyond, all samples are alike
        // The result is 1/2 at (s - 1) ln 2, an integer only for s = 1; that tie goes to 0.
        const int first = int(std::floor((s - 1) * 0x1.62e42fefa39efp-1)) + 1;
        const int base = std::clamp(first - 1, bias, most);
        Bytes<16> low{}, high{};
        double real = exponential(std::max(first, base), s);
        for (int i = std::max(first - base, 0); i < 16; ++i) {
            const int result = std::clamp(int(std::lrint(real)), 1, most);
            low[i] = uint8_t(result), high[i] = uint8_t(result >> 8);
            real = std::min(real * 0x1.5bf0a8b145769p+1, 0x1p17);  // times e
        }
        base_ = splat<U>(ElementOf<U>(base - bias));
        low_ = broadcastLane<Bytes<>>(low);
        high_ = broadcastLane<Bytes<>>(high);
    }

    V operator()(V v) const {
        const U at = smaller(subSat((U)v ^ ElementOf<U>(bias), base_), splat<U>(15));
        if constexpr (sizeof(T) == 1) return shuffle(low_, at);
        else return (V)(shuffle(low_, (Bytes<>)(at | 0x8000)) | shuffle(high_, (Bytes<>)(at << 8 | 0x80)));
    }

private:
    // e^x * 2^-s, or so much that it saturates. The first part of ln 2 has 32 bits: multiples of it are exact.
    static double exponential(int x, int s) {
        return std::exp(std::min(x - s * 0x1.62e42feep-1 - s * 0x1.a39ef35793c76p-33, 12.0));
    }
};

struct Exp {
    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        const DefaultFloatControl control;
        task(IntegerExponential<T>(scaleFactor));
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        const DefaultFloatControl control;
        task(FloatExponential{});
        return kvrStatusOk;
    }
};

KVRI_EXPORT(kvriLn_8u_C1RSfs, unary<Ln, Kvr8u, C1>);
KVRI_EXPORT(kvriLn_8u_C1IRSfs, unaryInPlace<Ln, Kvr8u, C1>);
KVRI_EXPORT(kvriLn_8u_C3RSfs, unary<Ln, Kvr8u, C3>);
KVRI_EXPORT(kvriLn_8u_C3IRSfs, unaryInPlace<Ln, Kvr8u, C3>);
KVRI_EXPORT(kvriLn_16u_C1RSfs, unary<Ln, Kvr16u, C1>);
KVRI_EXPORT(kvriLn_16u_C1IRSfs, unaryInPlace<Ln, Kvr16u, C1>);
KVRI_EXPORT(kvriLn_16u_C3RSfs, unary<Ln, Kvr16u, C3>);
KVRI_EXPORT(kvriLn_16u_C3IRSfs, unaryInPlace<Ln, Kvr16u, C3>);
KVRI_EXPORT(kvriLn_16s_C1RSfs, unary<Ln, Kvr16s, C1>);
KVRI_EXPORT(kvriLn_16s_C1IRSfs, unaryInPlace<Ln, Kvr16s, C1>);
KVRI_EXPORT(kvriLn_16s_C3RSfs, unary<Ln, Kvr16s, C3>);
KVRI_EXPORT(kvriLn_16s_C3IRSfs, unaryInPlace<Ln, Kvr16s, C3>);
KVRI_EXPORT(kvriLn_32f_C1R, unary<Ln, Kvr32f, C1>);
KVRI_EXPORT(kvriLn_32f_C1IR, unaryInPlace<Ln, Kvr32f, C1>);
KVRI_EXPORT(kvriLn_32f_C3R, unary<Ln, Kvr32f, C3>);
KVRI_EXPORT(kvriLn_32f_C3IR, unaryInPlace<Ln, Kvr32f, C3>);

KVRI_EXPORT(kvriExp_8u_C1RSfs, unary<Exp, Kvr8u, C1>);
KVRI_EXPORT(kvriExp_8u_C1IRSfs, unaryInPlace<Exp, Kvr8u, C1>);
KVRI_EXPORT(kvriExp_8u_C3RSfs, unary<Exp, Kvr8u, C3>);
KVRI_EXPORT(kvriExp_8u_C3IRSfs, unaryInPlace<Exp, Kvr8u, C3>);
KVRI_EXPORT(kvriExp_16u_C1RSfs, unary<Exp, Kvr16u, C1>);
KVRI_EXPORT(kvriExp_16u_C1IRSfs, unaryInPlace<Exp, Kvr16u, C1>);
KVRI_EXPORT(kvriExp_16u_C3RSfs, unary<Exp, Kvr16u, C3>);
KVRI_EXPORT(kvriExp_16u_C3IRSfs, unaryInPlace<Exp, Kvr16u, C3>);
KVRI_EXPORT(kvriExp_16s_C1RSfs, unary<Exp, Kvr16s, C1>);
KVRI_EXPORT(kvriExp_16s_C1IRSfs, unaryInPlace<Exp, Kvr16s, C1>);
KVRI_EXPORT(kvriExp_16s_C3RSfs, unary<Exp, Kvr16s, C3>);
KVRI_EXPORT(kvriExp_16s_C3IRSfs, unaryInPlace<Exp, Kvr16s, C3>);
KVRI_EXPORT(kvriExp_32f_C1R, unary<Exp, Kvr32f, C1>);
KVRI_EXPORT(kvriExp_32f_C1IR, unaryInPlace<Exp, Kvr32f, C1>);
KVRI_EXPORT(kvriExp_32f_C3R, unary<Exp, Kvr32f, C3>);
KVRI_EXPORT(kvriExp_32f_C3IR, unaryInPlace<Exp, Kvr32f, C3>);

}  // namespace
}  // namespace kvri
