/* kvri.h - image-processing primitives for regions of interest in caller-owned memory.
 *
 * Link with -lkvri (or the package's target kvri::kvri). No function keeps state, locks, allocates behind the caller's
 * back or starts threads, save where its comment says so: any number of threads may call at once on disjoint
 * destinations. Unless a comment states otherwise, arguments are checked before anything is written, the first failing
 * check decides the status, and on an error the destination keeps its contents. */
#ifndef KVRI_H
#define KVRI_H

#include "kvri/types.h"
#include "kvri/core.h"
#include "kvri/datamove.h"
#include "kvri/pointops.h"
#include "kvri/geometry.h"

#endif
