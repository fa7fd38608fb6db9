#include "resizer.h"

#include <algorithm>
#include <utility>

#include "call.h"

namespace demo {
namespace {

constexpr Method kMethods[] = {
    {"nearest", "the nearest pixel", kvrInterpNearest, false, 0, 1},
    {"linear", "2 x 2 pixels", kvrInterpLinear, false, 0, 2},
    {"cubic", "4 x 4 pixels", kvrInterpCubic, false, 0, 4},
    {"lanczos2", "4 x 4 pixels", kvrInterpLanczos, false, 2, 4},
    {"lanczos3", "6 x 6 pixels", kvrInterpLanczos, false, 3, 6},
    {"super", "mean of the covered area", kvrInterpSuper, false, 0, 1},
    {"aa-linear", "stretched when shrinking", kvrInterpLinear, true, 0, 2},
    {"aa-cubic", "stretched when shrinking", kvrInterpCubic, true, 0, 4},
    {"aa-lanczos2", "stretched when shrinking", kvrInterpLanczos, true, 2, 4},
    {"aa-lanczos3", "stretched when shrinking", kvrInterpLanczos, true, 3, 6},
};

template <class T>
using ApplyTo = KvrStatus (*)(const T*, int, T*, int, KvriPoint, KvriSize, KvriBorderType, const T*, const KvriResizeSpec*, Kvr8u*);

using Apply = KvrStatus (*)(const void*, int, void*, int, KvriPoint, KvriSize, const KvriResizeSpec*, Kvr8u*);

// The library's function for images of samples T as one for any.
template <class T, ApplyTo<T> function>
KvrStatus applyTo(const void* src, int srcStep, void* dst, int dstStep, KvriPoint offset, KvriSize size,
                  const KvriResizeSpec* spec, Kvr8u* buffer) {
    return function(static_cast<const T*>(src), srcStep, static_cast<T*>(dst), dstStep, offset, size, kvrBorderRepl, nullptr, spec, buffer);
}

}  // namespace

// What the library has for one type of samples; the members' names are those of its functions.
struct Resizer::Functions {
    Checked<decltype(&kvriResizeGetSize_8u)> getSize;
    Checked<decltype(&kvriResizeNearestInit_8u)> nearestInit, linearInit, superInit;
    Checked<decltype(&kvriResizeCubicInit_8u)> cubicInit;
    Checked<decltype(&kvriResizeLanczosInit_8u)> lanczosInit;
    Checked<decltype(&kvriResizeGetBufferSize_8u)> getBufferSize;
    Checked<decltype(&kvriResizeGetBorderSize_8u)> getBorderSize;
    Checked<decltype(&kvriResizeGetSrcOffset_8u)> getSrcOffset;
    Checked<decltype(&kvriResizeGetSrcRoi_8u)> getSrcRoi;
    struct {
        Checked<Apply> nearest, linear, cubic, lanczos, super, antialiasing;
    } apply[3];  // of 1, 3 and 4 channels

    static const Functions of8u, of16u;
};

#define KVRI_APPLY(function, type) Checked<Apply>{#function, applyTo<Kvr##type, function>}
#define KVRI_APPLY_ALL(type, layout)                                                                               \
    {KVRI_APPLY(kvriResizeNearest_##type##_##layout##R, type), KVRI_APPLY(kvriResizeLinear_##type##_##layout##R, type),  \
     KVRI_APPLY(kvriResizeCubic_##type##_##layout##R, type), KVRI_APPLY(kvriResizeLanczos_##type##_##layout##R, type),   \
     KVRI_APPLY(kvriResizeSuper_##type##_##layout##R, type),                                                       \
     KVRI_APPLY(kvriResizeAntialiasing_##type##_##layout##R, type)}
#define KVRI_RESIZE_FUNCTIONS(type)                                                                                          \
    {KVRI_CALL(kvriResizeGetSize_##type), KVRI_CALL(kvriResizeNearestInit_##type), KVRI_CALL(kvriResizeLinearInit_##type), \
     KVRI_CALL(kvriResizeSuperInit_##type), KVRI_CALL(kvriResizeCubicInit_##type),                                 \
     KVRI_CALL(kvriResizeLanczosInit_##type), KVRI_CALL(kvriResizeGetBufferSize_##type),                           \
     KVRI_CALL(kvriResizeGetBorderSize_##type), KVRI_CALL(kvriResizeGetSrcOffset_##type),                          \
     KVRI_CALL(kvriResizeGetSrcRoi_##type),                                                                        \
     {KVRI_APPLY_ALL(type, C1), KVRI_APPLY_ALL(type, C3), KVRI_APPLY_ALL(type, C4)}}

constexpr Resizer::Functions Resizer::Functions::of8u = KVRI_RESIZE_FUNCTIONS(8u);
constexpr Resizer::Functions Resizer::Functions::of16u = KVRI_RESIZE_FUNCTIONS(16u);

std::span<const Method> methods() { return kMethods; }

const Method& methodOf(const std::string& name) {
    return *std::ranges::find_if(kMethods, [&](const Method& m) { return name == m.name; });
}

Resizer::Resizer(const Method& method, CubicFamily cubic, PixelKind kind, KvriSize source, KvriSize destination)
    : functions_(kind.bits == 8 ? Functions::of8u : Functions::of16u),
      method_(method),
      kind_(kind),
      source_(source),
      destination_(destination) {
    requireSizes();
    init(cubic);
}

void Resizer::requireSizes() const {
    const int least = method_.smallestSource;
    if (source_.width < least || source_.height < least)
        throw SizeError(std::string(method_.name) + " needs a picture of at least " + toString(KvriSize{least, least}) +
                          " pixels, this one has " + toString(source_));
    if (method_.interpolation == kvrInterpSuper && (destination_.width > source_.width || destination_.height > source_.height))
        throw SizeError("super does not enlarge: " + toString(source_) + " to " + toString(destination_) + " pixels");
}

void Resizer::init(CubicFamily cubic) {
    int specBytes = 0, scratchBytes = 0;
    functions_.getSize(source_, destination_, method_.interpolation, method_.antialiasing, &specBytes, &scratchBytes);
    spec_.resize(size_t(specBytes));
    Bytes scratch(static_cast<size_t>(scratchBytes));
    const auto [b, c] = cubic;
    const auto& [name, description, interpolation, antialiasing, lobes, smallest] = method_;
    const KvriSize from = source_, to = destination_;
    switch (interpolation) {
        case kvrInterpNearest: return functions_.nearestInit(from, to, spec());
        case kvrInterpSuper: return functions_.superInit(from, to, spec());
        case kvrInterpLinear:
            if (antialiasing) return KVRI_CALL(kvriResizeAntialiasingLinearInit)(from, to, spec(), scratch.data());
            return functions_.linearInit(from, to, spec());
        case kvrInterpCubic:
            if (antialiasing) return KVRI_CALL(kvriResizeAntialiasingCubicInit)(from, to, b, c, spec(), scratch.data());
            return functions_.cubicInit(from, to, b, c, spec(), scratch.data());
        default:
            if (antialiasing) return KVRI_CALL(kvriResizeAntialiasingLanczosInit)(from, to, lobes, spec(), scratch.data());
            return functions_.lanczosInit(from, to, lobes, spec(), scratch.data());
    }
}

RowRange Resizer::sourceRows(RowRange destination) const {
    KvriPoint offset{};
    KvriSize size{};
    KvriBorderSize border{};
    functions_.getSrcRoi(spec(), KvriPoint{0, destination.first}, KvriSize{1, destination.count()}, &offset, &size);
    functions_.getBorderSize(spec(), &border);
    // The region ends at the last position. Super's pixels cover rows from there on, the first and last in part.
    const int further = method_.interpolation == kvrInterpSuper ? source_.height / destination_.height + 1 : 0;
    return {std::max(offset.y - border.top, 0), std::min(offset.y + size.height + border.bottom + further, source_.height)};
}

size_t Resizer::bufferBytes(KvriSize tile) const {
    int bytes = 0;
    const KvriSize clipped{std::min(tile.width, destination_.width), std::min(tile.height, destination_.height)};
    functions_.getBufferSize(spec(), clipped, Kvr32u(kind_.channels), &bytes);
    return size_t(bytes);
}

void Resizer::apply(ConstRows source, Rows destination, KvriRect tile, unsigned char* buffer) const {
    const auto& [nearest, linear, cubic, lanczos, super, antialiasing] = functions_.apply[std::max(kind_.channels - 2, 0)];
    const auto& function = method_.antialiasing                           ? antialiasing
                           : method_.interpolation == kvrInterpNearest ? nearest
                           : method_.interpolation == kvrInterpLinear  ? linear
                           : method_.interpolation == kvrInterpCubic   ? cubic
                           : method_.interpolation == kvrInterpSuper   ? super
                                                                       : lanczos;
    KvriPoint from{};
    functions_.getSrcOffset(spec(), KvriPoint{tile.x, tile.y}, &from);
    function(source[from.y] + ptrdiff_t(from.x) * kind_.bytes(), source.step,
             destination[tile.y] + ptrdiff_t(tile.x) * kind_.bytes(), destination.step, KvriPoint{tile.x, tile.y},
             KvriSize{tile.width, tile.height}, spec(), buffer);
}

}  // namespace demo
