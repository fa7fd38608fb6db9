// examples/zone_plate.h: a test picture.
#pragma once

#include "rows.h"

namespace demo {

// Grey rings that grow finer from the centre on; at the nearer edge one pixel is light and the next one dark. Shrunk, detail
// finer than the result can show should turn to even grey: where new rings appear, the method lets it through.
class ZonePlate : public RowReader {
    int next_ = 0;

public:
    explicit ZonePlate(KvriSize size) { info_ = {size, {1, 8}, {}}; }
    void read(void* row) override;
};

}  // namespace demo
