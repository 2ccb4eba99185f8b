#include "host/print_pdf.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <numeric>

#include "host/pdf_canvas.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace host {
namespace {

constexpr long kPathFileAccessError = 75;

// A4 in points; the foot line lives in the room below the body.
constexpr double kPageWidth = 595.28, kPageHeight = 841.89;
constexpr double kLeft = 42, kRight = kPageWidth - 42, kWidth = kRight - kLeft;
constexpr double kTop = 40, kBodyEnd = kPageHeight - 56;
constexpr double kCellPadX = 4, kCellPadY = 3.5;
constexpr double kSignatureRoom = 46;  // blank space above a signature line to sign in

const TextStyle kTitle{18, true}, kNumber{12, true}, kContinuedTitle{11, true};
const TextStyle kBody{9}, kTotals{9, true}, kFreeRow{9, false, true}, kPartyName{10, true};
const TextStyle kCaption{7, true, false, 0.4}, kColumnHeading{8, true}, kFoot{7.5, false, false, 0.4};

// The rows a page holds, and whether the totals, remarks and signatures close it.
struct PagePlan {
    std::size_t firstRow = 0, endRow = 0;
    bool closing = false;
};

class NotePages {
public:
    NotePages(const NoteLayout& layout, PdfCanvas& canvas) : note_(layout), canvas_(canvas) {
        const double shares = std::accumulate(layout.columns.begin(), layout.columns.end(), 0.0,
                                              [](double sum, const TableColumn& column) { return sum + column.share; });
        double x = kLeft;
        for (const auto& column : layout.columns) {
            columnX_.push_back(x);
            columnWidth_.push_back(kWidth * column.share / shares);
            x += columnWidth_.back();
        }
    }

    // Measures every part without drawing and fills the pages greedily; the closing
    // part is never split from the last page's rows and never cut by a page end.
    std::vector<PagePlan> Plan() {
        canvas_.SetDrawing(false);
        const bool table = !note_.columns.empty();
        const double heading = table ? TableHeading(0) : 0.0;
        const double laterTop = LaterHeader(kTop) + heading;
        double y = FirstHeader(kTop) + heading;
        std::vector<PagePlan> pages(1);
        for (std::size_t row = 0; row < note_.rows.size(); ++row) {
            const double height = Row(note_.rows[row].cells, RowStyle(note_.rows[row]), 0, true);
            if (y + height > kBodyEnd && pages.back().endRow > pages.back().firstRow) {
                pages.push_back({row, row, false});
                y = laterTop;
            }
            y += height;
            pages.back().endRow = row + 1;
        }
        if (y + Closing(0, false) > kBodyEnd && pages.back().endRow > pages.back().firstRow) {
            pages.push_back({note_.rows.size(), note_.rows.size(), false});
        }
        pages.back().closing = true;
        canvas_.SetDrawing(true);
        return pages;
    }

    void Draw(const std::vector<PagePlan>& pages, cairo_t* cairo) {
        for (std::size_t page = 0; page < pages.size(); ++page) {
            const PagePlan& plan = pages[page];
            double y = page == 0 ? FirstHeader(kTop) : LaterHeader(kTop);
            if (!note_.columns.empty()) y += TableHeading(y);
            for (std::size_t row = plan.firstRow; row < plan.endRow; ++row)
                y += Row(note_.rows[row].cells, RowStyle(note_.rows[row]), y, true);
            if (plan.closing) Closing(y, true);
            Foot(page + 1, pages.size());
            cairo_show_page(cairo);
        }
    }

private:
    static const TextStyle& RowStyle(const TableRow& row) { return row.free ? kFreeRow : kBody; }

    // The title, number and date, the parties and the note's details; where the
    // table starts.
    double FirstHeader(double y) {
        const double title = canvas_.Text(note_.title, kTitle, kLeft, y, kWidth * 0.6);
        double right =
            canvas_.Text("No. " + note_.number, kNumber, kLeft + kWidth * 0.4, y, kWidth * 0.6, CellAlign::Right);
        if (!note_.date.empty())
            right += 2 + canvas_.Text("Date " + note_.date, kBody, kLeft + kWidth * 0.4, y + right + 2, kWidth * 0.6,
                                      CellAlign::Right);
        y += std::max(title, right) + 8;
        canvas_.Rule(kLeft, kRight, y, 1.2, 0.0);
        y += 12;
        if (!note_.parties.empty()) y += Parties(y) + 14;
        if (!note_.details.empty()) y += Details(y) + 14;
        return y;
    }

    double LaterHeader(double y) {
        const double title =
            canvas_.Text(note_.title + " " + note_.number + " (continued)", kContinuedTitle, kLeft, y, kWidth * 0.7);
        const double date = canvas_.Text(note_.date, kBody, kLeft + kWidth * 0.7, y, kWidth * 0.3, CellAlign::Right);
        y += std::max(title, date) + 6;
        canvas_.Rule(kLeft, kRight, y, 0.8, 0.0);
        return y + 10;
    }

    double Parties(double y) {
        const std::size_t across = std::max<std::size_t>(note_.parties.size(), 2);
        const double gap = 24, width = (kWidth - gap * double(across - 1)) / double(across);
        double tallest = 0;
        for (std::size_t i = 0; i < note_.parties.size(); ++i) {
            const PartyBlock& party = note_.parties[i];
            const double x = kLeft + double(i) * (width + gap);
            double height = canvas_.Text(platform::UCase(party.caption), kCaption, x, y, width) + 3;
            if (!party.name.empty()) height += canvas_.Text(party.name, kPartyName, x, y + height, width) + 2;
            for (const auto& line : party.lines) height += canvas_.Text(line, kBody, x, y + height, width) + 1;
            tallest = std::max(tallest, height);
        }
        return tallest;
    }

    // Four captioned values a row.
    double Details(double y) {
        constexpr std::size_t kAcross = 4;
        const double width = kWidth / kAcross;
        double height = 0;
        for (std::size_t first = 0; first < note_.details.size(); first += kAcross) {
            double tallest = 0;
            for (std::size_t i = first; i < std::min(first + kAcross, note_.details.size()); ++i) {
                const double x = kLeft + double(i - first) * width;
                const auto& [caption, value] = note_.details[i];
                double cell = canvas_.Text(platform::UCase(caption), kCaption, x, y + height, width - 10) + 2;
                cell += canvas_.Text(value, kBody, x, y + height + cell, width - 10);
                tallest = std::max(tallest, cell);
            }
            height += tallest + 6;
        }
        return height - 6;
    }

    double CellsHeight(const std::vector<std::string>& cells, const TextStyle& style) {
        double tallest = canvas_.Measure("0", style, kWidth);
        for (std::size_t c = 0; c < cells.size() && c < columnWidth_.size(); ++c)
            tallest = std::max(
                tallest, canvas_.Measure(cells[c], style, columnWidth_[c] - 2 * kCellPadX, note_.columns[c].align));
        return tallest + 2 * kCellPadY;
    }

    void Cells(const std::vector<std::string>& cells, const TextStyle& style, double y) {
        for (std::size_t c = 0; c < cells.size() && c < columnWidth_.size(); ++c)
            canvas_.Text(cells[c], style, columnX_[c] + kCellPadX, y + kCellPadY, columnWidth_[c] - 2 * kCellPadX,
                         note_.columns[c].align);
    }

    double TableHeading(double y) {
        std::vector<std::string> headings;
        for (const auto& column : note_.columns) headings.push_back(column.heading);
        const double height = CellsHeight(headings, kColumnHeading);
        canvas_.Fill(kLeft, y, kWidth, height, 0.88);
        Cells(headings, kColumnHeading, y);
        canvas_.Rule(kLeft, kRight, y + height, 0.8, 0.0);
        return height;
    }

    double Row(const std::vector<std::string>& cells, const TextStyle& style, double y, bool ruleBelow) {
        const double height = CellsHeight(cells, style);
        Cells(cells, style, y);
        if (ruleBelow) canvas_.Rule(kLeft, kRight, y + height, 0.4, 0.75);
        return height;
    }

    // The totals, the remarks and the signature lines; its height. Drawn, the
    // signatures sit at the foot of the page when there is room, as on a form.
    double Closing(double top, bool atFoot) {
        double y = top;
        if (!note_.totals.empty()) {
            canvas_.Rule(kLeft, kRight, y, 1.0, 0.0);
            y += Row(note_.totals, kTotals, y, false);
            canvas_.Rule(kLeft, kRight, y, 1.0, 0.0);
        }
        if (!note_.remarks.empty()) {
            y += 14;
            y += canvas_.Text("REMARKS", kCaption, kLeft, y, kWidth) + 3;
            for (const auto& remark : note_.remarks) y += canvas_.Text(remark, kBody, kLeft, y, kWidth) + 1;
        }
        y += kSignatureRoom;
        const std::size_t across = std::max<std::size_t>(note_.signatures.size(), 1);
        const double gap = 48, width = (kWidth - gap * double(across - 1)) / double(across);
        double captions = 0;
        for (const auto& caption : note_.signatures)
            captions = std::max(captions, canvas_.Measure(caption, kFoot, width));
        if (atFoot) y = std::max(y, kBodyEnd - captions - 4);
        for (std::size_t i = 0; i < note_.signatures.size(); ++i) {
            const double x = kLeft + double(i) * (width + gap);
            canvas_.Rule(x, x + width, y, 0.6, 0.0);
            canvas_.Text(note_.signatures[i], kFoot, x, y + 4, width);
        }
        return y + 4 + captions - top;
    }

    void Foot(std::size_t page, std::size_t pages) {
        const double y = kBodyEnd + 22;
        canvas_.Rule(kLeft, kRight, y - 4, 0.4, 0.6);
        canvas_.Text(note_.title + " " + note_.number, kFoot, kLeft, y, kWidth / 2);
        canvas_.Text("Page " + std::to_string(page) + " of " + std::to_string(pages), kFoot, kLeft + kWidth / 2, y,
                     kWidth / 2, CellAlign::Right);
    }

    const NoteLayout& note_;
    PdfCanvas& canvas_;
    std::vector<double> columnX_, columnWidth_;
};

cairo_status_t WriteToStream(void* closure, const unsigned char* data, unsigned int length) {
    auto& out = *static_cast<std::ofstream*>(closure);
    out.write(reinterpret_cast<const char*>(data), length);
    return out ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

struct SurfaceDestroy {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ContextDestroy {
    void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};

}  // namespace

void WriteNotePdf(const NoteLayout& layout, const std::string& path) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) throw platform::RuntimeError(kPathFileAccessError, "Path/File access error");
    std::unique_ptr<cairo_surface_t, SurfaceDestroy> surface(
        cairo_pdf_surface_create_for_stream(WriteToStream, &out, kPageWidth, kPageHeight));
    const std::string title = layout.title + " " + layout.number;
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, title.c_str());
    {
        std::unique_ptr<cairo_t, ContextDestroy> cairo(cairo_create(surface.get()));
        PdfCanvas canvas(cairo.get());
        NotePages pages(layout, canvas);
        pages.Draw(pages.Plan(), cairo.get());
    }
    cairo_surface_finish(surface.get());
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS || !out.flush())
        throw platform::RuntimeError(kPathFileAccessError, "Path/File access error");
}

}  // namespace host
