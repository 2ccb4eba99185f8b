// The current cell, its editor and the lists attached to columns: what the program
// and the user's keys share. A move by the program drops an open edit; ending an
// edit is the one way typed text reaches a cell through the AfterColUpdate check.
#include "platform/grid.h"

#include "platform/runtime_error.h"

namespace platform {
namespace {
constexpr long kInvalidArrayIndex = 381;
}  // namespace

void DTFlex::SetGridRow(int row) {
    if (row < 1 || row > GridRows()) throw RuntimeError(kInvalidArrayIndex);
    MoveTo(row, col_);
}

void DTFlex::SetGridCol(int col) {
    if (col < 1 || col > GridCols()) throw RuntimeError(kInvalidArrayIndex);
    MoveTo(row_, col);
}

void DTFlex::MoveTo(int row, int col) {
    if (row == row_ && col == col_) return;
    DropEdit();
    HideDroppedList();
    row_ = row;
    col_ = col;
    ++cellStamp_;
    const Column& column = ColumnAt(col);
    if (column.list && column.listAuto) DropListDown();
    RowColChange.Raise(row, col);
}

void DTFlex::OpenEditor(std::string text) {
    textBeforeEdit_ = cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(col_)];
    refusedText_.reset();
    editText_ = std::move(text);
    editing_ = true;
    ++cellStamp_;
}

void DTFlex::DropEdit() {
    if (!editing_) return;
    editing_ = false;
    editText_.clear();
    refusedText_.reset();
    ++cellStamp_;
}

void DTFlex::SetCellEdit(int value) {
    if (value == 0) {
        DropEdit();
        return;
    }
    if (editing_ || !HasCurrentCell() || CurrentCellLocked()) return;
    OpenEditor(cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(col_)]);
}

bool DTFlex::CommitEdit() {
    if (!editing_) return true;
    if (!HasCurrentCell()) {
        DropEdit();
        return true;
    }
    const int row = row_, col = col_;
    const std::string typed = editText_;
    // The handler judges the row as it will stand, so the text is in the cell
    // before the event; the editor counts as closed while the handler runs.
    ++contentStamp_;
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = typed;
    editing_ = false;
    const unsigned stamp = ++cellStamp_;

    bool cancel = false;
    if (col >= 1 && col <= LastCheckedCol) AfterColUpdate.Raise(row, col, cancel);
    if (cancel) {
        // The refused text stays in the editor for the user to put right, unless the
        // handler has moved the current cell or opened an edit of its own meanwhile.
        if (cellStamp_ == stamp && HasCurrentCell()) {
            editing_ = true;
            editText_ = typed;
            refusedText_ = typed;
        }
        return false;
    }
    if (cellStamp_ == stamp) editText_.clear();
    AddEntryRowIfNeeded();
    return true;
}

bool DTFlex::ChooseFromList(const std::string& text, bool keepListOpen) {
    if (!HasCurrentCell()) return false;
    const int col = col_;
    // A list's choice lands in a locked column as well: that is what the list is for.
    if (editing_) {
        editText_ = text;
    } else {
        OpenEditor(text);
    }
    if (!CommitEdit()) return false;
    if (!keepListOpen && col <= GridCols()) {
        Control* list = columns_[static_cast<std::size_t>(col)].list;
        if (list) list->Visible = false;
        if (list == droppedList_) droppedList_ = nullptr;
    }
    return true;
}

void DTFlex::AttachColumnList(int col, Control& list) {
    if (col < 1 || col > GridCols()) throw RuntimeError(kInvalidArrayIndex);
    columns_[static_cast<std::size_t>(col)].list = &list;
}

void DTFlex::DropListDown() {
    if (!HasCurrentCell()) return;
    Control* list = columns_[static_cast<std::size_t>(col_)].list;
    if (!list) return;
    list->Visible = true;
    droppedList_ = list;
}

// Only a list the grid dropped down is closed when its cell is left: a list the
// program showed is the program's to hide.
void DTFlex::HideDroppedList() {
    if (!droppedList_) return;
    droppedList_->Visible = false;
    droppedList_ = nullptr;
}

TextBox& DTFlex::EditorBox() {
    if (!editorBox_) {
        editorBox_ = std::make_unique<TextBox>(scope_, Name() + "Editor");
        editorBox_->Visible = false;
        editorBox_->Change.Connect([this] { TakeEditorBoxText(); });
    }
    return *editorBox_;
}

// The box only carries a text into the editor: it is emptied again at once, so that
// the next write, even of the same text, is seen as a change.
void DTFlex::TakeEditorBoxText() {
    if (takingEditorBoxText_) return;
    takingEditorBoxText_ = true;
    const std::string text = editorBox_->Text();
    editorBox_->SetText({});
    takingEditorBoxText_ = false;
    if (!HasCurrentCell()) return;
    if (editing_) {
        editText_ = text;
    } else {
        OpenEditor(text);
    }
}

// A grid that lets the user add rows keeps a blank row at its end to type into.
void DTFlex::AddEntryRowIfNeeded() {
    if (!AllowAddRows) return;
    const int rows = GridRows();
    if (rows == 0 || !IsBlankRow(rows)) SetGridRows(rows + 1);
}

}  // namespace platform
