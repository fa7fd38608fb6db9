// core/version.cpp: the version record; the one export whose two variants differ.
#include "core/dispatch.h"
#include "kvri/core.h"

namespace kvri {
namespace {

constexpr KvrLibraryVersion record(const char (&target)[3], const char* name) {
    return {8, 2, 3, 48108, {target[0], target[1], 0, 0}, name, "8.2.3 (r48108)", "Jul 23 2015"};
}

constexpr KvrLibraryVersion plainRecord = record("u8", "kvrIP SSSE3 (u8)");
constexpr KvrLibraryVersion inOrderRecord = record("n8", "kvrIP Quarn (n8)");

template <const KvrLibraryVersion& version>
const KvrLibraryVersion* libVersion() {
    return &version;
}

KVRI_EXPORT(kvriGetLibVersion, libVersion<plainRecord>, libVersion<inOrderRecord>);

}  // namespace
}  // namespace kvri
