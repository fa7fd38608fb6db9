// pointops/unary.cpp: Abs, Sqr and Sqrt.
#include "pointops/unary.h"

#include "core/fpcontrol.h"
#include "kvri/pointops.h"
#include "pointops/product.h"

namespace kvri {
namespace {

template <class T>
struct Magnitude {
    using Sample = T;
    static constexpr int unrolled = 2;
    using V = Vec<T>;
    V operator()(V v) const {
        if constexpr (kHolds<V, float>) return (V)((Vec<uint32_t>)v & 0x7FFFFFFF);
        else return absSat(v);
    }
};

struct Abs {
    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(Magnitude<T>{});
        return kvrStatusOk;
    }
};

// Squares are products.
template <class Product>
struct Square {
    using Sample = typename Product::Sample;
    static constexpr int unrolled = 2;
    Product product;
    Vec<Sample> operator()(Vec<Sample> v) const { return product(v, v); }
};

template <class Task>
struct SquaresOf {
    const Task& task;
    template <class Product>
    void operator()(const Product& product) const { task(Square<Product>{product}); }
    void clear() const { task.clear(); }
};

struct Sqr {
    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        mapProducts<T>(SquaresOf<Task>{task}, scaleFactor);
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(Square<SaturatedProduct<T>>{});
        return kvrStatusOk;
    }
};

struct FloatRoot {
    using Sample = float;
    static constexpr int unrolled = 1;
    using V = Vec<float>;
    V operator()(V v) const { return squareRoot(v); }
};

// Roots in single precision are exact enough for results up to 2^11. The root of a number x of 16 bits is half an integer
// only where x is a square, and then exact. Else root^2 is at least 1/4 from the square of a half integer, which makes
// 1 / (8 * root^2) of the root, and the error is 2^-24 of it at most.
class SmallRoots {
    using Wide = Vec<int32_t>;
    Vec<float> scale_;

public:
    explicit SmallRoots(int scaleFactor) : scale_(splat<Vec<float>>(scaleOf(scaleFactor))) {}
    Wide operator()(Wide x) const { return toNearest(squareRoot(__builtin_convertvector(x, Vec<float>)) * scale_); }
};

// Roots times 2^n for larger results: a root that is right or one too small, and the exact decision. With X = x * 4^n, the
// root lies above k + 1/2 where X > k^2 + k; all of it modulo 2^32, as the difference is small.
class LargeRoots {
    using Wide = Vec<int32_t>;
    using U = Vec<uint32_t>;
    Vec<float> scale_;
    Shift shift_;
    Wide largest_, most_;  // the largest x that does not saturate; the result of those that do

public:
    LargeRoots(int n, int64_t most)
        : scale_(splat<Vec<float>>(scaleOf(-n))), shift_(std::min(2 * n, 32)),
          largest_(splat<Wide>(int((most * most + most) >> std::min(2 * n, 62)))), most_(splat<Wide>(int(most))) {}

    Wide operator()(Wide x) const {
        const Wide k = toNearest(squareRoot(__builtin_convertvector(x, Vec<float>)) * scale_ - 0.25f);
        const Wide rest = (Wide)(((U)x << shift_) - (U)multiplyLow(k, k));
        return x > largest_ ? most_ : k - (Wide)(rest > k);
    }
};

template <class T, class Roots>
struct IntegerRoot {
    using Sample = T;
    static constexpr int unrolled = 1;
    Roots roots;
    Vec<T> operator()(Vec<T> v) const { return mapWidened<T>(v > 0 ? v : Vec<T>{}, roots); }
};

struct Sqrt {
    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        const DefaultFloatControl control;
        if constexpr (sizeof(T) == 1) task(TableOf(IntegerRoot<T, SmallRoots>{SmallRoots(scaleFactor)}));
        else if (scaleFactor >= -3) task(IntegerRoot<T, SmallRoots>{SmallRoots(scaleFactor)});
        else task(IntegerRoot<T, LargeRoots>{LargeRoots(magnitude(scaleFactor), std::numeric_limits<T>::max())});
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(FloatRoot{});
        return kvrStatusOk;
    }
};

KVRI_EXPORT(kvriAbs_16s_C1R, unary<Abs, Kvr16s, C1>);
KVRI_EXPORT(kvriAbs_16s_C1IR, unaryInPlace<Abs, Kvr16s, C1>);
KVRI_EXPORT(kvriAbs_16s_C3R, unary<Abs, Kvr16s, C3>);
KVRI_EXPORT(kvriAbs_16s_C3IR, unaryInPlace<Abs, Kvr16s, C3>);
KVRI_EXPORT(kvriAbs_16s_C4R, unary<Abs, Kvr16s, C4>);
KVRI_EXPORT(kvriAbs_16s_C4IR, unaryInPlace<Abs, Kvr16s, C4>);
KVRI_EXPORT(kvriAbs_16s_AC4R, unary<Abs, Kvr16s, AC4>);
KVRI_EXPORT(kvriAbs_16s_AC4IR, unaryInPlace<Abs, Kvr16s, AC4>);
KVRI_EXPORT(kvriAbs_32f_C1R, unary<Abs, Kvr32f, C1>);
KVRI_EXPORT(kvriAbs_32f_C1IR, unaryInPlace<Abs, Kvr32f, C1>);
KVRI_EXPORT(kvriAbs_32f_C3R, unary<Abs, Kvr32f, C3>);
KVRI_EXPORT(kvriAbs_32f_C3IR, unaryInPlace<Abs, Kvr32f, C3>);
KVRI_EXPORT(kvriAbs_32f_C4R, unary<Abs, Kvr32f, C4>);
KVRI_EXPORT(kvriAbs_32f_C4IR, unaryInPlace<Abs, Kvr32f, C4>);
KVRI_EXPORT(kvriAbs_32f_AC4R, unary<Abs, Kvr32f, AC4>);
KVRI_EXPORT(kvriAbs_32f_AC4IR, unaryInPlace<Abs, Kvr32f, AC4>);

KVRI_EXPORT(kvriSqr_8u_C1RSfs, unary<Sqr, Kvr8u, C1>);
KVRI_EXPORT(kvriSqr_8u_C1IRSfs, unaryInPlace<Sqr, Kvr8u, C1>);
KVRI_EXPORT(kvriSqr_8u_C3RSfs, unary<Sqr, Kvr8u, C3>);
KVRI_EXPORT(kvriSqr_8u_C3IRSfs, unaryInPlace<Sqr, Kvr8u, C3>);
KVRI_EXPORT(kvriSqr_8u_C4RSfs, unary<Sqr, Kvr8u, C4>);
KVRI_EXPORT(kvriSqr_8u_C4IRSfs, unaryInPlace<Sqr, Kvr8u, C4>);
KVRI_EXPORT(kvriSqr_8u_AC4RSfs, unary<Sqr, Kvr8u, AC4>);
KVRI_EXPORT(kvriSqr_8u_AC4IRSfs, unaryInPlace<Sqr, Kvr8u, AC4>);
KVRI_EXPORT(kvriSqr_16u_C1RSfs, unary<Sqr, Kvr16u, C1>);
KVRI_EXPORT(kvriSqr_16u_C1IRSfs, unaryInPlace<Sqr, Kvr16u, C1>);
KVRI_EXPORT(kvriSqr_16u_C3RSfs, unary<Sqr, Kvr16u, C3>);
KVRI_EXPORT(kvriSqr_16u_C3IRSfs, unaryInPlace<Sqr, Kvr16u, C3>);
KVRI_EXPORT(kvriSqr_16u_C4RSfs, unary<Sqr, Kvr16u, C4>);
KVRI_EXPORT(kvriSqr_16u_C4IRSfs, unaryInPlace<Sqr, Kvr16u, C4>);
KVRI_EXPORT(kvriSqr_16u_AC4RSfs, unary<Sqr, Kvr16u, AC4>);
KVRI_EXPORT(kvriSqr_16u_AC4IRSfs, unaryInPlace<Sqr, Kvr16u, AC4>);
KVRI_EXPORT(kvriSqr_16s_C1RSfs, unary<Sqr, Kvr16s, C1>);
KVRI_EXPORT(kvriSqr_16s_C1IRSfs, unaryInPlace<Sqr, Kvr16s, C1>);
KVRI_EXPORT(kvriSqr_16s_C3RSfs, unary<Sqr, Kvr16s, C3>);
KVRI_EXPORT(kvriSqr_16s_C3IRSfs, unaryInPlace<Sqr, Kvr16s, C3>);
KVRI_EXPORT(kvriSqr_16s_C4RSfs, unary<Sqr, Kvr16s, C4>);
KVRI_EXPORT(kvriSqr_16s_C4IRSfs, unaryInPlace<Sqr, Kvr16s, C4>);
KVRI_EXPORT(kvriSqr_16s_AC4RSfs, unary<Sqr, Kvr16s, AC4>);
KVRI_EXPORT(kvriSqr_16s_AC4IRSfs, unaryInPlace<Sqr, Kvr16s, AC4>);
KVRI_EXPORT(kvriSqr_32f_C1R, unary<Sqr, Kvr32f, C1>);
KVRI_EXPORT(kvriSqr_32f_C1IR, unaryInPlace<Sqr, Kvr32f, C1>);
KVRI_EXPORT(kvriSqr_32f_C3R, unary<Sqr, Kvr32f, C3>);
KVRI_EXPORT(kvriSqr_32f_C3IR, unaryInPlace<Sqr, Kvr32f, C3>);
KVRI_EXPORT(kvriSqr_32f_C4R, unary<Sqr, Kvr32f, C4>);
KVRI_EXPORT(kvriSqr_32f_C4IR, unaryInPlace<Sqr, Kvr32f, C4>);
KVRI_EXPORT(kvriSqr_32f_AC4R, unary<Sqr, Kvr32f, AC4>);
KVRI_EXPORT(kvriSqr_32f_AC4IR, unaryInPlace<Sqr, Kvr32f, AC4>);

KVRI_EXPORT(kvriSqrt_8u_C1RSfs, unary<Sqrt, Kvr8u, C1>);
KVRI_EXPORT(kvriSqrt_8u_C1IRSfs, unaryInPlace<Sqrt, Kvr8u, C1>);
KVRI_EXPORT(kvriSqrt_8u_C3RSfs, unary<Sqrt, Kvr8u, C3>);
KVRI_EXPORT(kvriSqrt_8u_C3IRSfs, unaryInPlace<Sqrt, Kvr8u, C3>);
KVRI_EXPORT(kvriSqrt_8u_AC4RSfs, unary<Sqrt, Kvr8u, AC4>);
KVRI_EXPORT(kvriSqrt_8u_AC4IRSfs, unaryInPlace<Sqrt, Kvr8u, AC4>);
KVRI_EXPORT(kvriSqrt_16u_C1RSfs, unary<Sqrt, Kvr16u, C1>);
KVRI_EXPORT(kvriSqrt_16u_C1IRSfs, unaryInPlace<Sqrt, Kvr16u, C1>);
KVRI_EXPORT(kvriSqrt_16u_C3RSfs, unary<Sqrt, Kvr16u, C3>);
KVRI_EXPORT(kvriSqrt_16u_C3IRSfs, unaryInPlace<Sqrt, Kvr16u, C3>);
KVRI_EXPORT(kvriSqrt_16u_AC4RSfs, unary<Sqrt, Kvr16u, AC4>);
KVRI_EXPORT(kvriSqrt_16u_AC4IRSfs, unaryInPlace<Sqrt, Kvr16u, AC4>);
KVRI_EXPORT(kvriSqrt_16s_C1RSfs, unary<Sqrt, Kvr16s, C1>);
KVRI_EXPORT(kvriSqrt_16s_C1IRSfs, unaryInPlace<Sqrt, Kvr16s, C1>);
KVRI_EXPORT(kvriSqrt_16s_C3RSfs, unary<Sqrt, Kvr16s, C3>);
KVRI_EXPORT(kvriSqrt_16s_C3IRSfs, unaryInPlace<Sqrt, Kvr16s, C3>);
KVRI_EXPORT(kvriSqrt_16s_AC4RSfs, unary<Sqrt, Kvr16s, AC4>);
KVRI_EXPORT(kvriSqrt_16s_AC4IRSfs, unaryInPlace<Sqrt, Kvr16s, AC4>);
KVRI_EXPORT(kvriSqrt_32f_C1R, unary<Sqrt, Kvr32f, C1>);
KVRI_EXPORT(kvriSqrt_32f_C1IR, unaryInPlace<Sqrt, Kvr32f, C1>);
KVRI_EXPORT(kvriSqrt_32f_C3R, unary<Sqrt, Kvr32f, C3>);
KVRI_EXPORT(kvriSqrt_32f_C3IR, unaryInPlace<Sqrt, Kvr32f, C3>);
KVRI_EXPORT(kvriSqrt_32f_AC4R, unary<Sqrt, Kvr32f, AC4>);
KVRI_EXPORT(kvriSqrt_32f_AC4IR, unaryInPlace<Sqrt, Kvr32f, AC4>);
KVRI_EXPORT(kvriSqrt_32f_C4IR, unaryInPlace<Sqrt, Kvr32f, C4>);

}  // namespace
}  // namespace kvri
