/* kvri/core.h - the library itself. */
#ifndef KVRI_CORE_H
#define KVRI_CORE_H

#include "kvri/types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The library's version record and the processor variant chosen at load: "u8", or "n8" on low-power in-order cores.
 * Constant data of the library; never null, never freed. */
const KvrLibraryVersion* kvriGetLibVersion(void);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
