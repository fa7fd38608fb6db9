// examples/call.h: library calls whose status is checked.
#pragma once

#include <stdexcept>
#include <string>

#include "kvri.h"

namespace demo {

struct LibraryError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A library function that throws LibraryError in place of returning a status other than ok.
template <class Function>
struct Checked {
    const char* name;
    Function function;

    template <class... Args>
    void operator()(Args... args) const {
        if (const KvrStatus status = function(args...); status != kvrStatusOk)
            throw LibraryError(std::string(name) + " returned status " + std::to_string(status));
    }
};
template <class Function>
Checked(const char*, Function) -> Checked<Function>;

#define KVRI_CALL(function) (demo::Checked{#function, function})

}  // namespace demo
