// geometry/resize_8u.cpp: Resize by weights, samples of 8 bits; linear, which is exact, is in resize_linear8u.cpp.
#include "geometry/resize_weights.h"

namespace kvri {
namespace {

KVRI_EXPORT(kvriResizeCubic_8u_C1R, cubic<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeCubic_8u_C3R, cubic<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeCubic_8u_C4R, cubic<Kvr8u, C4>);

KVRI_EXPORT(kvriResizeLanczos_8u_C1R, lanczos<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeLanczos_8u_C3R, lanczos<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeLanczos_8u_C4R, lanczos<Kvr8u, C4>);

KVRI_EXPORT(kvriResizeSuper_8u_C1R, super<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeSuper_8u_C3R, super<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeSuper_8u_C4R, super<Kvr8u, C4>);

KVRI_EXPORT(kvriResizeAntialiasing_8u_C1R, antialiasing<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_8u_C3R, antialiasing<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_8u_C4R, antialiasing<Kvr8u, C4>);

}  // namespace
}  // namespace kvri
