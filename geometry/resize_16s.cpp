// geometry/resize_16s.cpp: Resize by weights, signed samples of 16 bits.
#include "geometry/resize_weights.h"

namespace kvri {
namespace {

KVRI_EXPORT(kvriResizeLinear_16s_C1R, linear<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeLinear_16s_C3R, linear<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeLinear_16s_C4R, linear<Kvr16s, C4>);

KVRI_EXPORT(kvriResizeCubic_16s_C1R, cubic<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeCubic_16s_C3R, cubic<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeCubic_16s_C4R, cubic<Kvr16s, C4>);

KVRI_EXPORT(kvriResizeLanczos_16s_C1R, lanczos<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeLanczos_16s_C3R, lanczos<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeLanczos_16s_C4R, lanczos<Kvr16s, C4>);

KVRI_EXPORT(kvriResizeSuper_16s_C1R, super<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeSuper_16s_C3R, super<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeSuper_16s_C4R, super<Kvr16s, C4>);

KVRI_EXPORT(kvriResizeAntialiasing_16s_C1R, antialiasing<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_16s_C3R, antialiasing<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_16s_C4R, antialiasing<Kvr16s, C4>);

}  // namespace
}  // namespace kvri
