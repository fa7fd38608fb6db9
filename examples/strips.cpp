#include "strips.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>

#include "parallel.h"

namespace demo {
namespace {

int partsOf(int length, int part) { return (length + part - 1) / part; }

class RowBuffer {
    size_t rowBytes_;
    int step_;
    std::unique_ptr<unsigned char[]> bytes_;

public:
    RowBuffer(size_t rowBytes, int rows)
        : rowBytes_(rowBytes),
          step_(int((rowBytes + 63) / 64 * 64)),
          bytes_(std::make_unique_for_overwrite<unsigned char[]>(size_t(step_) * size_t(rows))) {}
    size_t rowBytes() const { return rowBytes_; }
    Rows from(int first) const { return {bytes_.get(), step_, first}; }
};

// The source rows that a strip needs. It only moves down.
class Window {
    RowReader& reader_;
    RowBuffer buffer_;
    RowRange held_{0, 0};  // held_.end is also the next row to read

public:
    Window(RowReader& reader, int rows) : reader_(reader), buffer_(reader.info().rowBytes(), rows) {}

    Rows moveTo(RowRange wanted) {
        const Rows old = buffer_.from(held_.first), rows = buffer_.from(wanted.first);
        if (wanted.first < held_.end)
            std::memmove(rows[wanted.first], old[wanted.first], size_t(held_.end - wanted.first) * size_t(rows.step));
        skipTo(wanted.first);
        for (; held_.end < wanted.end; ++held_.end) reader_.read(rows[held_.end]);
        held_.first = wanted.first;
        return rows;
    }

    // Reads rows that nobody needs: the file is checked to its end.
    void skipTo(int row) {
        if (held_.end >= row) return;
        for (; held_.end < row; ++held_.end) reader_.read(buffer_.from(0)[0]);
    }
};

// Where the destination is cut.
class Plan {
    const Resizer& resizer_;
    KvriSize tile_;
    int height_;  // of a strip: whole tiles

public:
    Plan(const Resizer& resizer, const Tiling& tiling) : resizer_(resizer), tile_(tiling.tile) {
        const KvriSize from = resizer.source(), to = resizer.destination();
        const int64_t pixelsPerRow = to.width + int64_t(from.width) * from.height / to.height;
        const int fitting = int(std::clamp<int64_t>(tiling.stripBytes / (pixelsPerRow * resizer.kind().bytes()), 1, to.height));
        if (tile_.width == 0) tile_ = {partsOf(to.width, tiling.threads), fitting};
        tile_ = {std::min(tile_.width, to.width), std::min(tile_.height, to.height)};
        height_ = std::max(fitting / tile_.height, 1) * tile_.height;
    }

    KvriSize tile() const { return tile_; }
    int stripHeight() const { return height_; }
    int strips() const { return partsOf(resizer_.destination().height, height_); }
    RowRange strip(int i) const { return {i * height_, std::min((i + 1) * height_, resizer_.destination().height)}; }

    int windowRows() const {
        int rows = 0;
        for (int i = 0; i < strips(); ++i) rows = std::max(rows, resizer_.sourceRows(strip(i)).count());
        return rows;
    }

    int tiles(RowRange strip) const { return partsOf(resizer_.destination().width, tile_.width) * partsOf(strip.count(), tile_.height); }
    KvriRect tileOf(RowRange strip, int i) const {
        const int across = partsOf(resizer_.destination().width, tile_.width);
        const int x = i % across * tile_.width, y = strip.first + i / across * tile_.height;
        return {x, y, std::min(tile_.width, resizer_.destination().width - x), std::min(tile_.height, strip.end - y)};
    }
};

// Makes strips, one at a time.
class Tiler {
    const Resizer& resizer_;
    const Plan& plan_;
    std::vector<Bytes> buffers_;  // one for each thread
    double seconds_ = 0;

public:
    Tiler(const Resizer& resizer, const Plan& plan, int threads)
        : resizer_(resizer), plan_(plan), buffers_(size_t(threads), Bytes(resizer.bufferBytes(plan.tile()))) {}

    double seconds() const { return seconds_; }

    void make(RowRange strip, Rows source, Rows destination) {
        const auto start = std::chrono::steady_clock::now();
        forEachOnThreads(plan_.tiles(strip), int(buffers_.size()), [&](int i, int thread) {
            resizer_.apply(source, destination, plan_.tileOf(strip, i), buffers_[size_t(thread)].data());
        });
        seconds_ += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
};

}  // namespace

double resizeInStrips(RowReader& source, RowWriter& destination, const Resizer& resizer, const Tiling& tiling,
                      const std::function<void(double done)>& progress) {
    const Plan plan(resizer, tiling);
    Tiler tiler(resizer, plan, tiling.threads);
    Window window(source, plan.windowRows());
    const size_t rowBytes = size_t(resizer.destination().width) * size_t(resizer.kind().bytes());
    // Two buffers: a strip is written while the next one is read and made.
    const RowBuffer buffers[2] = {{rowBytes, plan.stripHeight()}, {rowBytes, plan.stripHeight()}};
    std::future<void> written;
    for (int i = 0; i < plan.strips(); ++i) {
        const RowRange strip = plan.strip(i);
        const Rows made = buffers[i % 2].from(strip.first);
        tiler.make(strip, window.moveTo(resizer.sourceRows(strip)), made);
        if (i > 0) written.get();
        written = std::async(tiling.threads > 1 ? std::launch::async : std::launch::deferred, [&destination, strip, made] {
            for (int y = strip.first; y < strip.end; ++y) destination.write(made[y]);
        });
        progress(double(i + 1) / plan.strips());
    }
    window.skipTo(resizer.source().height);
    written.get();
    return tiler.seconds();
}

}  // namespace demo
