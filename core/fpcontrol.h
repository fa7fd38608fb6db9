// core/fpcontrol.h: the processor's floating-point control for the duration of a call.
#pragma once

#include <immintrin.h>

namespace kvri {

// Rounding to nearest, no exceptions, denormal numbers as they are - and then again what the caller had, flags included.
class DefaultFloatControl {
    static constexpr unsigned control = 0xFFC0, defaults = 0x1F80;  // the sticky flags below stay
    unsigned before_ = _mm_getcsr();

    static bool isDefault(unsigned csr) { return (csr & control) == defaults; }

public:
    // Whether the caller has this anyway.
    static bool isSet() { return isDefault(_mm_getcsr()); }

    DefaultFloatControl() {
        if (!isDefault(before_)) _mm_setcsr((before_ & ~control) | defaults);
    }
    DefaultFloatControl(const DefaultFloatControl&) = delete;
    ~DefaultFloatControl() {
        if (_mm_getcsr() != before_) _mm_setcsr(before_);  // costs more than looking
    }
};

}  // namespace kvri
