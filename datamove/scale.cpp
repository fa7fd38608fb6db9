// datamove/scale.cpp: Scale, the range of one sample type onto that of another.
#include "core/fpcontrol.h"
#include "core/roundmode.h"
#include "datamove/convert.h"

namespace kvri {
namespace {

// 8u to T: the byte in every byte; of signed T less half of the range.
template <class T>
struct Repeated {
    using Source = Kvr8u;
    using Target = T;
    using Work = std::make_unsigned_t<T>;
    using V = Vec<Work>;
    V operator()(V v) const {
        const V repeated = (V)shuffle((Bytes<>)v, constant<Bytes<>>([](int i) { return i % 16 & -int(sizeof(T)); }));
        return std::is_unsigned_v<T> ? repeated : repeated ^ (Work(1) << (8 * sizeof(T) - 1));
    }
};

// T to 8u, the nearest byte n to v / r where r is 257 or 16843009, bytes of 1. From t = v + (r - 1) / 2, bytes of 128, it is the
// first byte of t - (t >> 8): that is n << 8 (or 24) for t = n r, and one less for t = n r - 1.
template <class T>
struct Nearest;

template <>
struct Nearest<Kvr16u> {
    using Source = Kvr16u;
    using Target = Kvr8u;
    using Work = Kvr16u;
    using V = Vec<Work>;
    V operator()(V v) const {
        const V t = addSat(v, splat<V>(0x80));
        return (t - (t >> 8)) >> 8;
    }
};

template <>
struct Nearest<Kvr16s> {
    using Source = Kvr16s;
    using Target = Kvr8u;
    using Work = Kvr16s;
    Vec<Kvr16u> operator()(Vec<Work> v) const { return Nearest<Kvr16u>{}((Vec<Kvr16u>)v ^ 0x8000); }
};

template <>
struct Nearest<Kvr32s> {
    using Source = Kvr32s;
    using Target = Kvr8u;
    using Work = Kvr32s;
    using U = Vec<Kvr32u>;
    U operator()(Vec<Work> v) const {
        const U t = (U)smaller(v, splat<Vec<Work>>(0x7F7F7F7F)) + 0x80808080;  // with 2^31 more, as unsigned
        return (t - (t >> 8)) >> 24;
    }
};

template <class Op, class L, class S = typename Op::Source, class T = typename Op::Target>
KvrStatus scale(const S* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = checkImages<Steps::Positive>(pSrc, srcStep, pDst, dstStep, roi)) return e;
    convertImage<L>(Op{}, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

// The interval of 32f numbers. A difference that is no number is not above 0.
KvrStatus notEmpty(Kvr32f vMin, Kvr32f vMax) { return vMax - vMin > 0 ? kvrStatusOk : kvrStatusEmptyRange; }

struct ToInterval {
    using Source = Kvr8u;
    using Target = Kvr32f;
    using Work = Kvr32u;
    using F = Vec<float>;
    static constexpr int grouped = 16;
    F least, step;
    F operator()(Vec<Work> v) const { return least + toFloats((Vec<int32_t>)v) * step; }
};

struct FromInterval {
    using F = Vec<float>;
    F factor, offset;
    F operator()(F v) const { return v * factor - offset; }
};

template <class L>
KvrStatus toInterval(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roi, Kvr32f vMin, Kvr32f vMax) {
    using F = Vec<float>;
    if (KvrStatus e = firstError(notEmpty(vMin, vMax), checkImages<Steps::Positive>(pSrc, srcStep, pDst, dstStep, roi))) return e;
    convertImage<L>(ToInterval{splat<F>(vMin), splat<F>((vMax - vMin) / 255)}, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class L>
KvrStatus fromInterval(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roi, Kvr32f vMin, Kvr32f vMax) {
    using F = Vec<float>;
    const DefaultFloatControl control;
    if (KvrStatus e = firstError(notEmpty(vMin, vMax), checkImages<Steps::Positive>(pSrc, srcStep, pDst, dstStep, roi))) return e;
    const Kvr32f factor = 255 / (vMax - vMin);
    convertImage<L>(Rounded<Kvr8u, ToNearest, FromInterval>{{splat<F>(factor), splat<F>(vMin * factor)}}, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriScale_8u16u_C1R, scale<Repeated<Kvr16u>, C1>);
KVRI_EXPORT(kvriScale_8u16u_C3R, scale<Repeated<Kvr16u>, C3>);
KVRI_EXPORT(kvriScale_8u16u_C4R, scale<Repeated<Kvr16u>, C4>);
KVRI_EXPORT(kvriScale_8u16u_AC4R, scale<Repeated<Kvr16u>, AC4>);
KVRI_EXPORT(kvriScale_8u16s_C1R, scale<Repeated<Kvr16s>, C1>);
KVRI_EXPORT(kvriScale_8u16s_C3R, scale<Repeated<Kvr16s>, C3>);
KVRI_EXPORT(kvriScale_8u16s_C4R, scale<Repeated<Kvr16s>, C4>);
KVRI_EXPORT(kvriScale_8u16s_AC4R, scale<Repeated<Kvr16s>, AC4>);
KVRI_EXPORT(kvriScale_8u32s_C1R, scale<Repeated<Kvr32s>, C1>);
KVRI_EXPORT(kvriScale_8u32s_C3R, scale<Repeated<Kvr32s>, C3>);
KVRI_EXPORT(kvriScale_8u32s_C4R, scale<Repeated<Kvr32s>, C4>);
KVRI_EXPORT(kvriScale_8u32s_AC4R, scale<Repeated<Kvr32s>, AC4>);
KVRI_EXPORT(kvriScale_16u8u_C1R, scale<Nearest<Kvr16u>, C1>);
KVRI_EXPORT(kvriScale_16u8u_C3R, scale<Nearest<Kvr16u>, C3>);
KVRI_EXPORT(kvriScale_16u8u_C4R, scale<Nearest<Kvr16u>, C4>);
KVRI_EXPORT(kvriScale_16u8u_AC4R, scale<Nearest<Kvr16u>, AC4>);
KVRI_EXPORT(kvriScale_16s8u_C1R, scale<Nearest<Kvr16s>, C1>);
KVRI_EXPORT(kvriScale_16s8u_C3R, scale<Nearest<Kvr16s>, C3>);
KVRI_EXPORT(kvriScale_16s8u_C4R, scale<Nearest<Kvr16s>, C4>);
KVRI_EXPORT(kvriScale_16s8u_AC4R, scale<Nearest<Kvr16s>, AC4>);
KVRI_EXPORT(kvriScale_32s8u_C1R, scale<Nearest<Kvr32s>, C1>);
KVRI_EXPORT(kvriScale_32s8u_C3R, scale<Nearest<Kvr32s>, C3>);
KVRI_EXPORT(kvriScale_32s8u_C4R, scale<Nearest<Kvr32s>, C4>);
KVRI_EXPORT(kvriScale_32s8u_AC4R, scale<Nearest<Kvr32s>, AC4>);

KVRI_EXPORT(kvriScale_8u32f_C1R, toInterval<C1>);
KVRI_EXPORT(kvriScale_8u32f_C3R, toInterval<C3>);
KVRI_EXPORT(kvriScale_8u32f_C4R, toInterval<C4>);
KVRI_EXPORT(kvriScale_8u32f_AC4R, toInterval<AC4>);
KVRI_EXPORT(kvriScale_32f8u_C1R, fromInterval<C1>);
KVRI_EXPORT(kvriScale_32f8u_C3R, fromInterval<C3>);
KVRI_EXPORT(kvriScale_32f8u_C4R, fromInterval<C4>);
KVRI_EXPORT(kvriScale_32f8u_AC4R, fromInterval<AC4>);

}  // namespace
}  // namespace kvri
