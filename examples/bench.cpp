#include "bench.h"

#include "table.h"

namespace demo {

void Bench::print(std::ostream& to) const {
    Table table({{"step"}, {"function"}, {"size", Column::Right}, {"ms", Column::Right}, {"GB/s", Column::Right}});
    for (const Timing& t : timings_) {
        const double bytes = double(t.size.width) * t.size.height * t.pixelBytes;
        table.add({t.step, t.function, toString(t.size), decimal(t.seconds * 1e3, 3), decimal(bytes / t.seconds / 1e9, 1)});
    }
    table.print(to);
}

}  // namespace demo
