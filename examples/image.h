// examples/image.h: images that own their memory, in rows padded by the library.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <variant>

#include "call.h"
#include "kvri.h"

namespace demo {

// What an image needs of the library. A further kind of image is a line in each, and one in AnyImage.
template <class Sample, int channels>
inline constexpr auto kMalloc = nullptr;
template <>
inline constexpr auto kMalloc<Kvr8u, 1> = kvriMalloc_8u_C1;
template <>
inline constexpr auto kMalloc<Kvr8u, 3> = kvriMalloc_8u_C3;
template <>
inline constexpr auto kMalloc<Kvr8u, 4> = kvriMalloc_8u_C4;
template <>
inline constexpr auto kMalloc<Kvr32f, 3> = kvriMalloc_32f_C3;

template <class Sample, int channels>
inline constexpr auto kCopy = nullptr;
template <>
inline constexpr auto kCopy<Kvr8u, 1> = KVRI_CALL(kvriCopy_8u_C1R);
template <>
inline constexpr auto kCopy<Kvr8u, 3> = KVRI_CALL(kvriCopy_8u_C3R);
template <>
inline constexpr auto kCopy<Kvr8u, 4> = KVRI_CALL(kvriCopy_8u_C4R);

inline std::string toString(KvriSize size) { return std::to_string(size.width) + " x " + std::to_string(size.height); }

template <class SampleType, int channelCount>
class Image {
    struct Free {
        void operator()(SampleType* p) const { kvriFree(p); }
    };
    KvriSize size_;
    int step_ = 0;
    std::unique_ptr<SampleType[], Free> samples_;

public:
    using Sample = SampleType;
    static constexpr int kChannels = channelCount;
    static constexpr int kPixelBytes = channelCount * int(sizeof(Sample));

    // Contents are undefined.
    explicit Image(KvriSize size) : size_(size) {
        constexpr int64_t kMaxPadding = 63;  // the library counts an image's bytes in 32 bits
        if (size.width < 1 || size.height < 1 ||
            size.width * int64_t(kPixelBytes) + kMaxPadding > std::numeric_limits<int32_t>::max() / size.height)
            throw std::length_error("cannot hold an image of " + toString(size) + " pixels");
        samples_.reset(kMalloc<Sample, kChannels>(size.width, size.height, &step_));
        if (!samples_) throw LibraryError("no memory for an image of " + toString(size) + " pixels");
    }

    KvriSize size() const { return size_; }
    int step() const { return step_; }
    Sample* data() { return samples_.get(); }
    const Sample* data() const { return samples_.get(); }
    Sample* at(int x, int y, int channel = 0) { return samples_.get() + offset(x, y, channel); }
    const Sample* at(int x, int y, int channel = 0) const { return samples_.get() + offset(x, y, channel); }

private:
    ptrdiff_t offset(int x, int y, int channel) const {
        return ptrdiff_t(y) * (step_ / int(sizeof(Sample))) + ptrdiff_t(x) * kChannels + channel;
    }
};

using Grey = Image<Kvr8u, 1>;
using Rgb = Image<Kvr8u, 3>;
using Rgba = Image<Kvr8u, 4>;
using FloatRgb = Image<Kvr32f, 3>;

// An image as a file holds it.
using AnyImage = std::variant<Grey, Rgb, Rgba>;

inline KvriSize sizeOf(const AnyImage& image) {
    return std::visit([](const auto& i) { return i.size(); }, image);
}

}  // namespace demo
