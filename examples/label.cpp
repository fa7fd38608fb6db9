#include "label.h"

#include <cairo.h>

#include <memory>
#include <stdexcept>

namespace demo {

void drawText(Grey& canvas, KvriPoint baseline, double fontSize, double brightness, const std::string& text) {
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
        cairo_image_surface_create_for_data(canvas.data(), CAIRO_FORMAT_A8, canvas.size().width, canvas.size().height,
                                            canvas.step()),
        cairo_surface_destroy);
    const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context(cairo_create(surface.get()), cairo_destroy);
    cairo_t* cairo = context.get();
    cairo_select_font_face(cairo, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo, fontSize);
    cairo_set_source_rgba(cairo, 0, 0, 0, brightness);  // the surface holds alpha alone: paint adds to it
    cairo_move_to(cairo, baseline.x, baseline.y);
    cairo_show_text(cairo, text.c_str());
    cairo_surface_flush(surface.get());
    const cairo_status_t status = cairo_status(cairo);
    if (status != CAIRO_STATUS_SUCCESS && status != CAIRO_STATUS_INVALID_STRING)
        throw std::runtime_error("cannot draw '" + text + "': " + cairo_status_to_string(status));
}

}  // namespace demo
