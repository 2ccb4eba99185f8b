// The grid's shape, its cells and its column settings: the plain operations that
// raise no event.
#include "platform/grid.h"

#include <algorithm>

#include "platform/runtime_error.h"

namespace platform {
namespace {
constexpr long kInvalidArrayIndex = 381;
}  // namespace

// A new grid offers one blank row, as the control did before the program set it up.
DTFlex::DTFlex(FocusScope& scope, std::string name, int columns) : Control(scope, ControlKind::Grid, std::move(name)) {
    if (columns < 0) throw RuntimeError(err::InvalidPropertyValue);
    columns_.resize(static_cast<std::size_t>(columns) + 1);
    cells_.assign(2, std::vector<std::string>(static_cast<std::size_t>(columns) + 1));
}

int DTFlex::GridRows() const { return static_cast<int>(cells_.size()) - 1; }
int DTFlex::GridCols() const { return static_cast<int>(columns_.size()) - 1; }

void DTFlex::SetGridRows(int rows) {
    if (rows < 0) throw RuntimeError(err::InvalidPropertyValue);
    ++contentStamp_;
    cells_.resize(static_cast<std::size_t>(rows) + 1, std::vector<std::string>(columns_.size()));
    if (row_ > rows) {
        // The current row is gone: the cell falls back to the last row without an
        // event, as the control's did.
        DropEdit();
        row_ = std::max(1, rows);
        ++cellStamp_;
    }
}

void DTFlex::SetGridCols(int cols) {
    if (cols < 0) throw RuntimeError(err::InvalidPropertyValue);
    ++contentStamp_;
    for (auto& row : cells_) row.resize(static_cast<std::size_t>(cols) + 1);
    if (droppedList_ && col_ > cols) HideDroppedList();
    columns_.resize(static_cast<std::size_t>(cols) + 1);
    if (col_ > cols) {
        DropEdit();
        col_ = std::max(1, cols);
        ++cellStamp_;
    }
}

void DTFlex::CheckCell(int row, int col) const {
    if (row < 0 || row > GridRows() || col < 0 || col > GridCols()) throw RuntimeError(kInvalidArrayIndex);
}

std::string DTFlex::GetCell(int row, int col) const {
    CheckCell(row, col);
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

void DTFlex::SetCell(int row, int col, std::string text) {
    CheckCell(row, col);
    ++contentStamp_;
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = std::move(text);
}

void DTFlex::RemoveRow(int row) {
    if (row < 1 || row > GridRows()) throw RuntimeError(kInvalidArrayIndex);
    ++contentStamp_;
    cells_.erase(cells_.begin() + row);
    if (row < row_) {
        // The current cell stays on its row, which has moved up one place.
        --row_;
    } else if (row == row_) {
        DropEdit();
        row_ = std::max(1, std::min(row_, GridRows()));
        ++cellStamp_;
    }
}

void DTFlex::ClearGrid() {
    DropEdit();
    HideDroppedList();
    ++contentStamp_;
    for (std::size_t r = 1; r < cells_.size(); ++r) std::fill(cells_[r].begin(), cells_[r].end(), std::string());
    row_ = 1;
    col_ = 1;
    ++cellStamp_;
}

bool DTFlex::IsBlankRow(int row) const {
    // The program asks after a removal about a row that may be gone; the control
    // answered without an error.
    if (row < 1 || row > GridRows()) return false;
    const auto& cells = cells_[static_cast<std::size_t>(row)];
    return std::all_of(cells.begin() + 1, cells.end(), [](const std::string& cell) { return cell.empty(); });
}

bool DTFlex::HasCurrentCell() const { return row_ >= 1 && row_ <= GridRows() && col_ >= 1 && col_ <= GridCols(); }

bool DTFlex::CurrentCellLocked() const { return ColumnAt(col_).locked; }

// ---- column settings ---------------------------------------------------------

DTFlex::Column& DTFlex::ColumnAt(int col) {
    if (col < 0 || col > GridCols()) throw RuntimeError(kInvalidArrayIndex);
    return columns_[static_cast<std::size_t>(col)];
}

const DTFlex::Column& DTFlex::ColumnAt(int col) const {
    if (col < 0 || col > GridCols()) throw RuntimeError(kInvalidArrayIndex);
    return columns_[static_cast<std::size_t>(col)];
}

void DTFlex::SetColHeading(int col, std::string heading) { SetCell(0, col, std::move(heading)); }
void DTFlex::SetColWidth(int col, double width) { ColumnAt(col).width = width; }
double DTFlex::ColWidth(int col) const { return ColumnAt(col).width; }
void DTFlex::SetColAlignment(int col, int alignment) { ColumnAt(col).alignment = alignment; }
int DTFlex::ColAlignment(int col) const { return ColumnAt(col).alignment; }
void DTFlex::SetColFormat(int col, std::string format) { ColumnAt(col).format = std::move(format); }
const std::string& DTFlex::ColFormat(int col) const { return ColumnAt(col).format; }
void DTFlex::SetColInputClass(int col, int inputClass) { ColumnAt(col).inputClass = inputClass; }
int DTFlex::ColInputClass(int col) const { return ColumnAt(col).inputClass; }
void DTFlex::SetColListAuto(int col, bool automatic) { ColumnAt(col).listAuto = automatic; }
bool DTFlex::ColListAuto(int col) const { return ColumnAt(col).listAuto; }
bool DTFlex::ColLocked(int col) const { return ColumnAt(col).locked; }
int DTFlex::ColNext(int col) const { return ColumnAt(col).next; }

void DTFlex::SetColLocked(int col, bool locked) {
    ColumnAt(col).locked = locked;
    // An editor open in a column that has just been locked takes no more text.
    if (locked && col == col_) DropEdit();
}

void DTFlex::SetColNext(int col, int next) {
    if (next < 0 || next > GridCols()) throw RuntimeError(err::InvalidPropertyValue);
    ColumnAt(col).next = next;
}

}  // namespace platform
