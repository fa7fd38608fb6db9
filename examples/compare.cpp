#include "compare.h"

#include <algorithm>
#include <chrono>
#include <limits>

#include "contact_sheet.h"

namespace demo {
namespace {

constexpr int kRuns = 3;         // the best of which counts
constexpr int kNarrowest = 160;  // cell, for its caption

struct Result {
    AnyImage image;
    double seconds;
};

template <class Picture>
Result resized(const Picture& picture, const Method& method, CubicFamily cubic, KvriSize size) {
    const Resizer resizer(method, cubic, PixelKind{Picture::kChannels, 8}, picture.size(), size);
    Picture result(size);
    double best = std::numeric_limits<double>::infinity();
    for (int i = 0; i < kRuns; ++i) {
        const auto start = std::chrono::steady_clock::now();
        resizeWhole(resizer, picture, result);
        best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return {std::move(result), best};
}

}  // namespace

Comparison compareMethods(const AnyImage& picture, const std::string& title, KvriSize size, CubicFamily cubic,
                          const std::function<void(double done)>& progress) {
    const int count = int(methods().size());
    ContactSheet sheet(title, count, {count / 2, {std::max(size.width, kNarrowest), size.height}});
    Table table({{"method"}, {"ms", Column::Right}, {"Mpixel/s", Column::Right}});
    int done = 0;
    for (const Method& method : methods()) try {
        const auto [image, seconds] = std::visit([&](const auto& p) { return resized(p, method, cubic, size); }, picture);
        sheet.add(image, method.name, method.description);
        table.add({method.name, decimal(seconds * 1e3, 3), decimal(double(size.width) * size.height / seconds / 1e6, 1)});
        progress(double(++done) / count);
    } catch (const SizeError&) {
        sheet.addMissing(method.name, "not for these sizes");
        table.add({method.name, "-", "-"});
    }
    return {std::move(table), std::move(sheet).page()};
}

}  // namespace demo
