// Text and lines on a Cairo surface, in points from the page's top left. Text is
// laid out by Pango: wrapped at words to the width it is given, so a long item
// name or address takes more lines rather than running over its neighbour. A
// canvas that is not drawing only measures, so a page can be planned with the very
// code that draws it.
#pragma once

#include <cairo.h>

#include <string>

#include "host/print_layout.h"

namespace host {

struct TextStyle {
    double size = 9.0;
    bool bold = false;
    bool italic = false;
    double grey = 0.0;  // 0 black, 1 white
};

class PdfCanvas {
public:
    explicit PdfCanvas(cairo_t* cairo) : cairo_(cairo) {}

    void SetDrawing(bool drawing) { drawing_ = drawing; }

    // Draws the text in the box of the given width; the height it takes.
    double Text(const std::string& text, const TextStyle& style, double x, double y, double width,
                CellAlign align = CellAlign::Left);
    double Measure(const std::string& text, const TextStyle& style, double width, CellAlign align = CellAlign::Left);
    void Rule(double x1, double x2, double y, double weight, double grey);
    void Fill(double x, double y, double width, double height, double grey);

private:
    cairo_t* cairo_;
    bool drawing_ = true;
};

}  // namespace host
