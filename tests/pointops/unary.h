// tests/pointops/unary.h: the functions of one operand, in the shape of the two-operand ones.
#pragma once

#include "tests/pointops/arithmetic.h"

namespace test::arithmetic {

// In place. Out of place they have the shape of a two-operand function in place: pSrc leads to pDst.
template <class T, class... Tail>
Function function(KvrStatus (*f)(T*, int, KvriSize, Tail...)) {
    return [=](const Call& c, int n) {
        return detail::repeat(n, [&] { return detail::withTail(c, std::tuple<Tail...>{}, f, (T*)c.dst, c.dstStep, c.roi); });
    };
}

#define KVRI_TWO(op, t, sfs) KVRI_BOTH(op, t, C1, sfs), KVRI_BOTH(op, t, C3, sfs)
#define KVRI_OF_EACH_TYPE(op, layouts) layouts(op, 8u, Sfs), layouts(op, 16u, Sfs), layouts(op, 16s, Sfs), layouts(op, 32f, )

inline const std::vector<Case> kUnary = {
    KVRI_FOUR(Abs, 16s, ), KVRI_FOUR(Abs, 32f, ), KVRI_OF_EACH_TYPE(Sqr, KVRI_FOUR), KVRI_OF_EACH_TYPE(Sqrt, KVRI_THREE),
    KVRI_CASE(kvriSqrt_32f_C4IR), KVRI_OF_EACH_TYPE(Ln, KVRI_TWO), KVRI_OF_EACH_TYPE(Exp, KVRI_TWO),
};

}  // namespace test::arithmetic
