// geometry/resize_16u.cpp: Resize by weights, unsigned samples of 16 bits.
#include "geometry/resize_weights.h"

namespace kvri {
namespace {

KVRI_EXPORT(kvriResizeLinear_16u_C1R, linear<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeLinear_16u_C3R, linear<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeLinear_16u_C4R, linear<Kvr16u, C4>);

KVRI_EXPORT(kvriResizeCubic_16u_C1R, cubic<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeCubic_16u_C3R, cubic<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeCubic_16u_C4R, cubic<Kvr16u, C4>);

KVRI_EXPORT(kvriResizeLanczos_16u_C1R, lanczos<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeLanczos_16u_C3R, lanczos<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeLanczos_16u_C4R, lanczos<Kvr16u, C4>);

KVRI_EXPORT(kvriResizeSuper_16u_C1R, super<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeSuper_16u_C3R, super<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeSuper_16u_C4R, super<Kvr16u, C4>);

KVRI_EXPORT(kvriResizeAntialiasing_16u_C1R, antialiasing<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_16u_C3R, antialiasing<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_16u_C4R, antialiasing<Kvr16u, C4>);

}  // namespace
}  // namespace kvri
