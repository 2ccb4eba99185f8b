// What the user does in the grid: keys, typing, clicks on a cell, deleting a row.
// Every key goes to the KeyCode event first; the grid acts on it only when the
// handler neither swallowed it (code 0) nor moved the current cell itself.
#include "platform/grid.h"

#include <algorithm>

#include "platform/grid_key_text.h"
#include "platform/key_codes.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {
constexpr long kInvalidArrayIndex = 381;
}  // namespace

// A grid that is switched off, hidden or on a page that takes no focus gets no keys.
bool DTFlex::AcceptsUserInput() const { return GridEnabled && CanTakeFocus(); }

int DTFlex::LastShownCol() const { return VisibleCols > 0 ? std::min(VisibleCols, GridCols()) : GridCols(); }

int DTFlex::LastEntryColumn() const { return LastEntryCol > 0 ? std::min(LastEntryCol, GridCols()) : LastShownCol(); }

void DTFlex::UserKey(int keyCode, int shift) {
    if (!AcceptsUserInput()) return;
    const int row = row_, col = col_;
    KeyCode.Raise(keyCode, shift);
    // A handler that moved the current cell has done what the key was for.
    if (keyCode == 0 || row_ != row || col_ != col) return;
    ActOnKey(keyCode, shift);
}

void DTFlex::ActOnKey(int keyCode, int shift) {
    switch (keyCode) {
        case keys::Enter:
            if (CommitEdit()) EnterForward();
            return;
        case keys::Escape: GiveUpEdit(); return;
        case keys::Left:
        case keys::Up:
        case keys::Right:
        case keys::Down:
            if (CommitEdit()) MoveByArrow(keyCode);
            return;
        case keys::Backspace: RemoveLastCharacter(); return;
        case keys::Delete: EmptyEditor(); return;
        case keys::F4: DropListDown(); return;
        default: break;
    }
    if (auto character = grid_keys::KeyCharacter(keyCode, shift); character && TypeIntoEditor(*character, false))
        Change.Raise(col_);
}

void DTFlex::UserType(const std::string& text) {
    if (!AcceptsUserInput()) return;
    // Typing nothing is clearing the cell, which the user does with Delete.
    if (text.empty()) {
        UserKey(keys::Delete);
        return;
    }
    bool typed = false;
    for (const std::string& character : grid_keys::Characters(text)) {
        int keyCode = grid_keys::KeyCodeOf(character);
        const int row = row_, col = col_;
        KeyCode.Raise(keyCode, keys::NoShift);
        if (keyCode == 0 || row_ != row || col_ != col) continue;
        // The first character that gets through replaces what the editor held.
        if (TypeIntoEditor(character, !typed)) typed = true;
    }
    if (typed) Change.Raise(col_);
}

void DTFlex::UserGoto(int row, int col) {
    if (!AcceptsUserInput()) return;
    if (row < 1 || row > GridRows() || col < 1 || col > GridCols()) throw RuntimeError(kInvalidArrayIndex);
    if (row == row_ && col == col_) return;
    if (!CommitEdit()) return;
    // The check of the edit may have removed rows.
    if (row > GridRows()) return;
    MoveTo(row, col);
}

void DTFlex::UserDeleteRow(int row) {
    if (!AcceptsUserInput() || !AllowDeleteRows) return;
    if (row < 1 || row > GridRows()) throw RuntimeError(kInvalidArrayIndex);
    // An edit in the row that goes is given up; one elsewhere is ended first.
    if (editing_ && row_ == row) DropEdit();
    if (!CommitEdit()) return;
    if (row > GridRows()) return;

    bool cancel = false;
    BeforeDelete.Raise(row, cancel);
    if (cancel || row < 1 || row > GridRows()) return;
    RemoveRow(row);
    AddEntryRowIfNeeded();
    AfterDelete.Raise();
}

// ---- what the keys do --------------------------------------------------------

void DTFlex::EnterForward() {
    if (!HasCurrentCell()) {
        AtLastRow.Raise();
        return;
    }
    const int next = ColumnAt(col_).next;
    if (next >= 1 && next <= GridCols() && next != col_) {
        MoveTo(row_, next);
    } else if (col_ < LastEntryColumn()) {
        MoveTo(row_, col_ + 1);
    } else if (row_ < GridRows()) {
        MoveTo(row_ + 1, 1);
    } else if (AllowAddRows && !IsBlankRow(row_)) {
        AddEntryRowIfNeeded();
        MoveTo(row_ + 1, 1);
    } else {
        AtLastRow.Raise();
    }
}

void DTFlex::MoveByArrow(int keyCode) {
    if (!HasCurrentCell()) {
        if (keyCode == keys::Left || keyCode == keys::Up) AtFirstRow.Raise();
        return;
    }
    switch (keyCode) {
        case keys::Left:
            if (col_ > 1)
                MoveTo(row_, col_ - 1);
            else if (row_ == 1)
                AtFirstRow.Raise();
            break;
        case keys::Up:
            if (row_ > 1)
                MoveTo(row_ - 1, col_);
            else
                AtFirstRow.Raise();
            break;
        case keys::Right:
            if (col_ < LastShownCol()) MoveTo(row_, col_ + 1);
            break;
        case keys::Down:
            if (row_ < GridRows()) MoveTo(row_ + 1, col_);
            break;
        default: break;
    }
}

// True when the character went into the editor. A locked column takes no typing;
// when a list is attached to it, the key drops the list down instead.
bool DTFlex::TypeIntoEditor(const std::string& character, bool replaceEditorText) {
    if (!HasCurrentCell()) return false;
    if (CurrentCellLocked()) {
        DropListDown();
        return false;
    }
    // Typing into a cell with no editor open starts from an empty text, as the
    // control did: the keys replace what the cell showed.
    if (!editing_)
        OpenEditor({});
    else if (replaceEditorText)
        editText_.clear();
    editText_ += character;
    return true;
}

void DTFlex::RemoveLastCharacter() {
    if (!HasCurrentCell() || CurrentCellLocked()) return;
    if (!editing_) OpenEditor(cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(col_)]);
    if (editText_.empty()) return;
    grid_keys::RemoveLastCharacter(editText_);
    Change.Raise(col_);
}

void DTFlex::EmptyEditor() {
    if (!HasCurrentCell() || CurrentCellLocked()) return;
    if (!editing_)
        OpenEditor({});
    else
        editText_.clear();
    Change.Raise(col_);
}

// Escape gives up the edit: a cell that holds text a refused check left in it gets
// back what it held before.
void DTFlex::GiveUpEdit() {
    if (editing_) {
        auto& cell = cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(col_)];
        if (refusedText_ && cell == *refusedText_) {
            cell = textBeforeEdit_;
            ++contentStamp_;
        }
        DropEdit();
    }
    HideDroppedList();
}

}  // namespace platform
