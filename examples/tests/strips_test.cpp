// examples/tests/strips_test.cpp: resizing in strips and tiles, and what the methods do.
#include "strips.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "parallel.h"
#include "support.h"

namespace {

using namespace demo;
using namespace test;

class MemoryReader : public RowReader {
    const Bytes& samples_;
    size_t next_ = 0;

public:
    MemoryReader(KvriSize size, PixelKind kind, const Bytes& samples) : samples_(samples) { info_ = {size, kind, {}}; }
    bool atEnd() const { return next_ == samples_.size(); }
    void read(void* row) override {
        ASSERT_LE(next_ + info_.rowBytes(), samples_.size());
        std::memcpy(row, &samples_[next_], info_.rowBytes());
        next_ += info_.rowBytes();
    }
};

struct MemoryWriter : RowWriter {
    size_t rowBytes;
    Bytes samples;

    explicit MemoryWriter(size_t bytes) : rowBytes(bytes) {}
    void write(const void* row) override {
        const auto* bytes = static_cast<const unsigned char*>(row);
        samples.insert(samples.end(), bytes, bytes + rowBytes);
    }
    void finish() override {}
};

Bytes noise(KvriSize size, PixelKind kind, unsigned seed) {
    std::mt19937 random(seed);
    Bytes samples(size_t(size.width) * size.height * kind.bytes());
    for (auto& byte : samples) byte = (unsigned char)random();
    return samples;
}

Bytes inStrips(const Resizer& resizer, const Bytes& source, const Tiling& tiling) {
    MemoryReader reader(resizer.source(), resizer.kind(), source);
    MemoryWriter writer(size_t(resizer.destination().width) * resizer.kind().bytes());
    double last = 0;
    resizeInStrips(reader, writer, resizer, tiling, [&](double done) {
        EXPECT_GT(done, last);
        last = done;
    });
    EXPECT_EQ(last, 1);
    EXPECT_TRUE(reader.atEnd()) << "the end of the file was not checked";
    return writer.samples;
}

// One call for the whole picture, rows without padding.
Bytes whole(const Resizer& resizer, const Bytes& source) {
    const KvriSize from = resizer.source(), to = resizer.destination();
    const int bytes = resizer.kind().bytes();
    Bytes result(size_t(to.width) * to.height * bytes), buffer(resizer.bufferBytes(to));
    resizer.apply({source.data(), from.width * bytes, 0}, {result.data(), to.width * bytes, 0}, {0, 0, to.width, to.height}, buffer.data());
    return result;
}

TEST(Strips, AreBitForBitTheWholePicture) {
    std::mt19937 random(7);
    const auto pick = [&](int low, int high) { return low + int(random() % unsigned(high - low + 1)); };
    int run = 0;
    for (const Method& method : methods())
        for (int channels : {1, 3, 4})
            for (int bits : {8, 16})
                for (int i = 0; i < 6; ++i, ++run) {
                    const KvriSize from{pick(6, 60), pick(6, 200)};
                    const bool enlarge = method.interpolation != kvrInterpSuper && i % 2 == 0;
                    const KvriSize to{pick(1, enlarge ? 90 : from.width), pick(1, enlarge ? 300 : from.height)};
                    const Tiling tiling{pick(1, 4), i % 3 == 0 ? KvriSize{0, 0} : KvriSize{pick(1, 70), pick(1, 40)}, pick(1, 3000)};
                    const Resizer resizer(method, {1 / 3.0f, 1 / 3.0f}, {channels, bits}, from, to);
                    const Bytes source = noise(from, resizer.kind(), unsigned(run));
                    ASSERT_EQ(inStrips(resizer, source, tiling), whole(resizer, source))
                        << method.name << ", " << toString(resizer.kind()) << ", " << toString(from) << " to " << toString(to)
                        << ", tiles of " << toString(tiling.tile) << ", strips of " << tiling.stripBytes << " bytes";
                }
}

TEST(Strips, PassOnFailuresOfEitherFile) {
    struct Failing : RowReader, RowWriter {
        Failing() { info_ = {{50, 50}, {1, 8}, {}}; }
        void read(void*) override { throw std::runtime_error("while reading"); }
        void write(const void*) override { throw std::runtime_error("while writing"); }
        void finish() override {}
    } failing;
    const Resizer resizer(methodOf("linear"), {}, {1, 8}, {50, 50}, {50, 50});
    const Bytes source(2500);
    for (int threads : {1, 3}) {
        const Tiling tiling{threads, {0, 0}, 500};
        MemoryReader reader({50, 50}, {1, 8}, source);
        MemoryWriter writer(50);
        const auto ignore = [](double) {};
        EXPECT_THROW(resizeInStrips(failing, writer, resizer, tiling, ignore), std::runtime_error);
        EXPECT_THROW(resizeInStrips(reader, failing, resizer, tiling, ignore), std::runtime_error);
    }
}

TEST(Parallel, CallsEveryPieceOnceAndPassesOnFailures) {
    std::vector<std::atomic<int>> calls(1000);
    forEachOnThreads(1000, 4, [&](int i, int thread) {
        ++calls[size_t(i)];
        EXPECT_LT(thread, 4);
    });
    for (const auto& c : calls) EXPECT_EQ(c, 1);
    EXPECT_THROW(forEachOnThreads(100, 4, [](int i, int) { if (i == 50) throw std::logic_error("50"); }), std::logic_error);
}

// How many samples of a row differ from the ground, where one column of the source does.
int reach(const std::string& method, int from, int to) {
    const Resizer resizer(methodOf(method), {}, {1, 16}, {from, from}, {to, to});
    std::vector<Kvr16u> source(size_t(from) * from, 20000), result(size_t(to) * to);
    for (int y = 0; y < from; ++y) source[size_t(y * from + from / 2 + 1)] = 60000;
    Bytes buffer(resizer.bufferBytes({to, to}));
    resizer.apply({reinterpret_cast<unsigned char*>(source.data()), 2 * from, 0}, {reinterpret_cast<unsigned char*>(result.data()), 2 * to, 0},
                  {0, 0, to, to}, buffer.data());
    return int(std::count_if(result.begin(), result.begin() + to, [](int sample) { return sample != 20000; }));
}

TEST(Methods, ReachAsFarAsTheirKernels) {
    // Enlarged by 4, a pixel spreads over 4 pixels for each tap. Shrunk by 5, plain methods miss a pixel between their samples;
    // the stretched kernels bring it into as many results as they have taps.
    const struct {
        const char* name;
        int enlarged, shrunk;
    } kExpected[] = {{"nearest", 4, 0}, {"linear", 8, 0},    {"cubic", 16, 0},    {"lanczos2", 16, 0},    {"lanczos3", 24, 0},
                     {"super", 0, 1},   {"aa-linear", 8, 2}, {"aa-cubic", 16, 4}, {"aa-lanczos2", 16, 4}, {"aa-lanczos3", 24, 6}};
    for (const auto& expected : kExpected) {
        EXPECT_EQ(reach(expected.name, 75, 15), expected.shrunk) << expected.name;
        if (expected.enlarged > 0) {
            EXPECT_EQ(reach(expected.name, 25, 100), expected.enlarged) << expected.name;
        }
    }
}

TEST(Methods, CubicTakesItsParameters) {
    // At equal size the taps are the kernel at whole distances: for the B-spline 1/6, 2/3, 1/6; for others 0, 1, 0.
    Bytes source(100, 60);
    for (size_t y = 0; y < 10; ++y) source[y * 10 + 5] = 120;
    const auto row = [&](CubicFamily cubic) {
        const Bytes result = whole(Resizer(methodOf("cubic"), cubic, {1, 8}, {10, 10}, {10, 10}), source);
        return Bytes(result.begin() + 3, result.begin() + 8);
    };
    EXPECT_EQ(row({0, 0.5f}), Bytes({60, 60, 120, 60, 60}));
    EXPECT_EQ(row({1, 0}), Bytes({60, 70, 100, 70, 60}));
}

std::string refusal(const std::string& method, KvriSize from, KvriSize to) {
    try {
        Resizer(methodOf(method), {}, {3, 8}, from, to);
    } catch (const SizeError& e) {
        return e.what();
    }
    return "";
}

TEST(Methods, RefuseSizes) {
    for (const Method& method : methods()) {
        const int least = method.smallestSource;
        EXPECT_EQ(refusal(method.name, {least, least}, {1, 1}), "") << method.name;
        if (least == 1) continue;
        EXPECT_CONTAINS(refusal(method.name, {least - 1, 9}, {1, 1}), std::string(method.name) + " needs a picture of at least");
        EXPECT_CONTAINS(refusal(method.name, {9, least - 1}, {1, 1}), std::string(method.name) + " needs a picture of at least");
    }
    EXPECT_CONTAINS(refusal("super", {9, 9}, {9, 10}), "super does not enlarge");
    EXPECT_CONTAINS(refusal("super", {9, 9}, {10, 9}), "super does not enlarge");
}

}  // namespace
