// geometry/resize_float.cpp: Resize by weights, samples of single and double precision.
#include "geometry/resize_weights.h"

namespace kvri {
namespace {

KVRI_EXPORT(kvriResizeLinear_32f_C1R, linear<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeLinear_32f_C3R, linear<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeLinear_32f_C4R, linear<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeLinear_64f_C1R, linear<Kvr64f, C1>);
KVRI_EXPORT(kvriResizeLinear_64f_C3R, linear<Kvr64f, C3>);
KVRI_EXPORT(kvriResizeLinear_64f_C4R, linear<Kvr64f, C4>);

KVRI_EXPORT(kvriResizeCubic_32f_C1R, cubic<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeCubic_32f_C3R, cubic<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeCubic_32f_C4R, cubic<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeLanczos_32f_C1R, lanczos<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeLanczos_32f_C3R, lanczos<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeLanczos_32f_C4R, lanczos<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeSuper_32f_C1R, super<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeSuper_32f_C3R, super<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeSuper_32f_C4R, super<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeAntialiasing_32f_C1R, antialiasing<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_32f_C3R, antialiasing<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_32f_C4R, antialiasing<Kvr32f, C4>);

}  // namespace
}  // namespace kvri
