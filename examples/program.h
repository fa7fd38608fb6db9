// examples/program.h: what the programs have in common.
#pragma once

#include <string>

#include "kvri.h"

namespace demo {

// --help says what they mean.
enum ExitCode { kSuccess = 0, kUsage = 1, kInput = 2, kOutput = 3, kFailure = 4 };

inline std::string libraryVersion() { return std::string("kvri ") + kvriGetLibVersion()->version; }

}  // namespace demo
