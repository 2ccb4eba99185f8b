#include "host/pdf_canvas.h"

#include <pango/pangocairo.h>

#include <memory>

namespace host {
namespace {

constexpr const char* kFontFamily = "DejaVu Sans, Sans";

struct GObjectUnref {
    void operator()(void* object) const { g_object_unref(object); }
};
struct FontDescriptionFree {
    void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};

std::unique_ptr<PangoLayout, GObjectUnref> MakeLayout(cairo_t* cairo, const std::string& text, const TextStyle& style,
                                                      double width, CellAlign align) {
    std::unique_ptr<PangoLayout, GObjectUnref> layout(pango_cairo_create_layout(cairo));
    std::unique_ptr<PangoFontDescription, FontDescriptionFree> font(pango_font_description_new());
    pango_font_description_set_family(font.get(), kFontFamily);
    pango_font_description_set_absolute_size(font.get(), style.size * PANGO_SCALE);
    pango_font_description_set_weight(font.get(), style.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(font.get(), style.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_layout_set_font_description(layout.get(), font.get());
    // Figures are right-aligned and never broken: a long one reaches into the
    // padding on its left rather than losing its last digits to a second line.
    if (align == CellAlign::Left) {
        pango_layout_set_width(layout.get(), int(width * PANGO_SCALE));
        pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    }
    pango_layout_set_text(layout.get(), text.c_str(), int(text.size()));
    return layout;
}

double WidthOf(PangoLayout* layout) {
    int width = 0, height = 0;
    pango_layout_get_size(layout, &width, &height);
    return double(width) / PANGO_SCALE;
}

double HeightOf(PangoLayout* layout) {
    int width = 0, height = 0;
    pango_layout_get_size(layout, &width, &height);
    return double(height) / PANGO_SCALE;
}

}  // namespace

double PdfCanvas::Text(const std::string& text, const TextStyle& style, double x, double y, double width,
                       CellAlign align) {
    if (text.empty()) return 0.0;
    auto layout = MakeLayout(cairo_, text, style, width, align);
    if (drawing_) {
        if (align == CellAlign::Right) x += width - WidthOf(layout.get());
        cairo_set_source_rgb(cairo_, style.grey, style.grey, style.grey);
        cairo_move_to(cairo_, x, y);
        pango_cairo_show_layout(cairo_, layout.get());
    }
    return HeightOf(layout.get());
}

double PdfCanvas::Measure(const std::string& text, const TextStyle& style, double width, CellAlign align) {
    if (text.empty()) return 0.0;
    return HeightOf(MakeLayout(cairo_, text, style, width, align).get());
}

void PdfCanvas::Rule(double x1, double x2, double y, double weight, double grey) {
    if (!drawing_) return;
    cairo_set_source_rgb(cairo_, grey, grey, grey);
    cairo_set_line_width(cairo_, weight);
    cairo_move_to(cairo_, x1, y);
    cairo_line_to(cairo_, x2, y);
    cairo_stroke(cairo_);
}

void PdfCanvas::Fill(double x, double y, double width, double height, double grey) {
    if (!drawing_) return;
    cairo_set_source_rgb(cairo_, grey, grey, grey);
    cairo_rectangle(cairo_, x, y, width, height);
    cairo_fill(cairo_);
}

}  // namespace host
