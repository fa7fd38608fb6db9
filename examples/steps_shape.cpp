// examples/steps_shape.cpp: borders, mirrors, a transposed picture, and rounding.
#include <array>

#include "convert.h"
#include "steps.h"
#include "thumbnail.h"

namespace demo {
namespace {

// The photograph made smaller, with a margin of a quarter of its size around it.
template <class Border>
AnyImage framed(const Rgb& photo, Border border) {
    const Rgb small = thumbnail(photo, {(photo.size().width + 1) / 2, (photo.size().height + 1) / 2});
    const KvriSize inner = small.size(), margin{inner.width / 4, inner.height / 4};
    Rgb result({inner.width + 2 * margin.width, inner.height + 2 * margin.height});
    border(small, result, margin);
    return result;
}

template <class... Value>
auto timedBorder(Bench& bench, const char* name, auto call, Value... value) {
    return [=, &bench](const Rgb& small, Rgb& result, KvriSize margin) {
        bench.time(name, result.size(), 6, call, small.data(), small.step(), small.size(), result.data(), result.step(),
                   result.size(), margin.height, margin.width, value...);
    };
}

AnyImage constantBorder(const Rgb& photo, Bench& bench) {
    static constexpr Kvr8u kPaper[3] = {240, 232, 214};
    return framed(photo, timedBorder(bench, "constant border", KVRI_CALL(kvriCopyConstBorder_8u_C3R), kPaper));
}

AnyImage replicatedBorder(const Rgb& photo, Bench& bench) {
    return framed(photo, timedBorder(bench, "replicated border", KVRI_CALL(kvriCopyReplicateBorder_8u_C3R)));
}

// Periodic borders exist for samples of four bytes: a pixel of RGBA is one.
AnyImage wrappedBorder(const Rgb& photo, Bench& bench) {
    return framed(photo, [&](const Rgb& small, Rgb& result, KvriSize margin) {
        constexpr int kRgbAndValue[4] = {0, 1, 2, 3};
        constexpr Kvr8u kOpaque = 255;
        Rgba source(small.size()), wrapped(result.size());
        KVRI_CALL(kvriSwapChannels_8u_C3C4R)(small.data(), small.step(), source.data(), source.step(), small.size(), kRgbAndValue, kOpaque);
        bench.time("periodic border", result.size(), 8, KVRI_CALL(kvriCopyWrapBorder_32s_C1R),
                   reinterpret_cast<const Kvr32s*>(source.data()), source.step(), source.size(),
                   reinterpret_cast<Kvr32s*>(wrapped.data()), wrapped.step(), wrapped.size(), margin.height, margin.width);
        KVRI_CALL(kvriCopy_8u_AC4C3R)(wrapped.data(), wrapped.step(), result.data(), result.step(), result.size());
    });
}

AnyImage transposed(const Rgb& photo, Bench& bench) {
    Rgb result({photo.size().height, photo.size().width});
    bench.time("transpose", photo.size(), 6, KVRI_CALL(kvriTranspose_8u_C3R), photo.data(), photo.step(), result.data(),
               result.step(), photo.size());
    return result;
}

template <KvriAxis axis>
AnyImage mirrored(const Rgb& photo, Bench& bench) {
    constexpr const char* kNames[] = {"mirror, horizontal axis", "mirror, vertical axis", "mirror, both axes",
                                      "mirror, main diagonal", "mirror, other diagonal"};
    const KvriSize size = photo.size();
    constexpr bool kTurned = axis == kvrAxisMainDiagonal || axis == kvrAxisAntiDiagonal;
    if (size.width < 2 || size.height < 2) return kTurned ? transposed(photo, bench) : framed(photo, [](auto&...) {});
    Rgb result(kTurned ? KvriSize{size.height, size.width} : size);
    bench.time(kNames[axis], size, 6, KVRI_CALL(kvriMirror_8u_C3R), photo.data(), photo.step(), result.data(), result.step(), size, axis);
    return result;
}

// The error of halving a picture and doubling it again in each rounding mode, 100 times enlarged around a middle grey; a
// third of the picture each.
AnyImage roundingErrors(const Rgb& photo, Bench& bench) {
    constexpr Kvr32f kHalf[3] = {0.5f, 0.5f, 0.5f};
    constexpr Kvr8u kTwo[3] = {2, 2, 2}, kGain[3] = {100, 100, 100}, kMiddle[3] = {128, 128, 128};
    constexpr std::array<KvrRoundMode, 3> kModes = {kvrRndZero, kvrRndNear, kvrRndFinancial};
    const KvriSize size = photo.size();
    FloatRgb half(size);
    bench.time("to floating point", size, 15, KVRI_CALL(kvriConvert_8u32f_C3R), photo.data(), photo.step(), half.data(), half.step(), size);
    KVRI_CALL(kvriMulC_32f_C3IR)(kHalf, half.data(), half.step(), size);

    Rgb result(size);
    for (int i = 0; i < 3; ++i) {
        Rgb rounded(size), more(size), less(size);
        bench.time("back, rounding mode " + std::to_string(i), size, 15, KVRI_CALL(kvriConvert_32f8u_C3R), half.data(), half.step(),
                   rounded.data(), rounded.step(), size, kModes[size_t(i)]);
        KVRI_CALL(kvriMulC_8u_C3IRSfs)(kTwo, rounded.data(), rounded.step(), size, 0);
        KVRI_CALL(kvriSub_8u_C3RSfs)(rounded.data(), rounded.step(), photo.data(), photo.step(), more.data(), more.step(), size, 0);
        KVRI_CALL(kvriSub_8u_C3RSfs)(photo.data(), photo.step(), rounded.data(), rounded.step(), less.data(), less.step(), size, 0);
        for (Rgb* part : {&more, &less}) KVRI_CALL(kvriMulC_8u_C3IRSfs)(kGain, part->data(), part->step(), size, 0);
        KVRI_CALL(kvriAddC_8u_C3IRSfs)(kMiddle, more.data(), more.step(), size, 0);
        KVRI_CALL(kvriSub_8u_C3IRSfs)(less.data(), less.step(), more.data(), more.step(), size, 0);
        const int left = int(int64_t(size.width) * i / 3), right = int(int64_t(size.width) * (i + 1) / 3);
        if (right > left)
            KVRI_CALL(kvriCopy_8u_C3R)(more.at(left, 0), more.step(), result.at(left, 0), result.step(), KvriSize{right - left, size.height});
    }
    return result;
}

constexpr Step kSteps[] = {
    {"border-constant", "A margin of paper", "kvriCopyConstBorder_8u_C3R", constantBorder},
    {"border-replicated", "A margin of the edge's pixels", "kvriCopyReplicateBorder_8u_C3R", replicatedBorder},
    {"border-wrapped", "A margin that repeats the picture", "kvriCopyWrapBorder_32s_C1R on RGBA", wrappedBorder},
    {"mirror-horizontal", "Mirrored about the horizontal axis", "kvriMirror_8u_C3R", mirrored<kvrAxisHorizontal>},
    {"mirror-vertical", "Mirrored about the vertical axis", "kvriMirror_8u_C3R", mirrored<kvrAxisVertical>},
    {"mirror-both", "Mirrored about both axes", "kvriMirror_8u_C3R", mirrored<kvrAxisBoth>},
    {"mirror-diagonal", "Mirrored about the main diagonal", "kvriMirror_8u_C3R", mirrored<kvrAxisMainDiagonal>},
    {"mirror-antidiagonal", "Mirrored about the other diagonal", "kvriMirror_8u_C3R", mirrored<kvrAxisAntiDiagonal>},
    {"transposed", "Transposed", "kvriTranspose_8u_C3R", transposed},
    {"rounding", "Halved, doubled: errors toward zero, to even, away", "kvriConvert_8u32f_C3R, kvriConvert_32f8u_C3R", roundingErrors},
};

}  // namespace

std::span<const Step> shapeSteps() { return kSteps; }

}  // namespace demo
