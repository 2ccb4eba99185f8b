// The editable grid the dispatch lines live in. Every cell is text. Row 0 is the
// heading row and column 0 the row header; data rows and columns count from 1.
//
// What the user does reaches the grid through the User* calls (the session driver
// and tests use them); what the program does goes through the plain operations,
// which raise only the events the control raised: moving the current cell raises
// RowColChange, SetCell raises nothing.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace platform {

class DTFlex : public Control {
public:
    DTFlex(FocusScope& scope, std::string name, int columns = 0);

    // ---- shape and cells -----------------------------------------------------
    int GridRows() const;        // data rows, heading row not counted
    void SetGridRows(int rows);  // more appends blank rows, fewer drops from the end
    int GridCols() const;
    void SetGridCols(int cols);
    // Row 0 is the heading; column 0 the row header. Outside the grid: error 381.
    std::string GetCell(int row, int col) const;
    void SetCell(int row, int col, std::string text);
    void RemoveRow(int row);         // rows below move up
    void ClearGrid();                // every data row's contents emptied
    bool IsBlankRow(int row) const;  // every cell of the row (columns 1 up) empty; false for no such row
    // Redraws the grid. The cells are always current here; a driver can still tell
    // that the program asked for a redraw.
    void RefreshGrid() { ++redraws_; }
    // Changes whenever any cell, row or column changes, so that a reader may keep
    // what it worked out of the cells until then.
    unsigned long ContentStamp() const { return contentStamp_; }
    unsigned Redraws() const { return redraws_; }

    // ---- current cell and editing --------------------------------------------
    int GridRow() const { return row_; }
    int GridCol() const { return col_; }
    void SetGridRow(int row);  // raises RowColChange when the cell moves
    void SetGridCol(int col);  // raises RowColChange when the cell moves
    bool Editing() const { return editing_; }
    const std::string& EditText() const { return editText_; }
    // Opens the current cell's editor holding the cell's text (a locked column does
    // not open); 0 drops an open edit.
    void SetCellEdit(int value);
    // Ends the open edit: the text goes into the cell and, for columns 1 to
    // LastCheckedCol, AfterColUpdate is raised; a cancel there keeps the editor open with the text
    // typed and answers false. True when no editor was open.
    bool CommitEdit();
    // The attached list's choice lands in the current cell as if typed, the edit
    // ends (as CommitEdit) and the list is hidden.
    bool ChooseFromList(const std::string& text, bool keepListOpen = false);
    void AttachColumnList(int col, Control& list);
    // The cell editor as a text box, for a type-ahead list to follow. What is written
    // into it lands in the editor of the current cell (opening it when none is
    // open), as the user's choice from the list; Enter then ends the edit.
    TextBox& EditorBox();

    // ---- column settings -----------------------------------------------------
    void SetColHeading(int col, std::string heading);  // row 0 of the column
    void SetColWidth(int col, double width);
    double ColWidth(int col) const;
    void SetColAlignment(int col, int alignment);
    int ColAlignment(int col) const;
    void SetColLocked(int col, bool locked);
    bool ColLocked(int col) const;
    void SetColFormat(int col, std::string format);
    const std::string& ColFormat(int col) const;
    void SetColInputClass(int col, int inputClass);
    int ColInputClass(int col) const;
    void SetColListAuto(int col, bool automatic);
    bool ColListAuto(int col) const;
    void SetColNext(int col, int next);  // where Enter goes from the column; 0 for the next one
    int ColNext(int col) const;

    int VisibleCols = 0;  // the columns the user sees and reaches with the keys; 0 for all
    int EditStyle = 0;
    int LastEntryCol = 0;       // Enter past this column goes to the next row; 0 for the last column seen
    int LastCheckedCol = 6;     // the end of an edit in columns 1 to this one raises AfterColUpdate
    bool AllowAddRows = false;  // the user's entry in the last row adds a blank row under it
    bool AllowDeleteRows = false;
    bool GridEnabled = true;
    int GridSettingA = 0, GridSettingB = 0;
    double GridTop() const { return Top; }

    // ---- the user ----------------------------------------------------------------
    // A key: the KeyCode event first (a handler may swallow it by setting 0); then
    // what the grid does: Enter ends an open edit and moves on by ColNext and
    // LastEntryCol (AtLastRow past the end of the last row), arrows move the current
    // cell (AtFirstRow before the first), a character key opens the editor of an
    // unlocked cell and types, Backspace deletes the last character typed. Escape
    // gives up the edit, Delete empties the editor, F4 drops the column's list. A
    // handler that moves the current cell itself has taken the key's place.
    void UserKey(int keyCode, int shift = 0);
    // Typing a text: the KeyCode event for each character, then the editor holds the
    // text of the characters not swallowed and Change is raised once. An empty text
    // is the Delete key.
    void UserType(const std::string& text);
    // A move of the current cell by a click.
    void UserGoto(int row, int col);
    // Deleting a row: BeforeDelete (which may cancel), the removal, AfterDelete.
    void UserDeleteRow(int row);

    // ---- events ------------------------------------------------------------------
    Event<int, int, bool&> AfterColUpdate;  // row, column, cancel
    Event<int> Change;                      // column
    Event<int&, int> KeyCode;               // key code by reference, shift
    Event<int, int> RowColChange;           // row, column
    Event<int&, bool&> BeforeDelete;        // row by reference, cancel
    Event<> AfterDelete, AtLastRow, AtFirstRow;

private:
    struct Column {
        double width = 0;
        int alignment = 0;
        bool locked = false;
        std::string format;
        int inputClass = 0;
        bool listAuto = true;
        int next = 0;
        Control* list = nullptr;
    };
    Column& ColumnAt(int col);  // error 381 outside 0..GridCols
    const Column& ColumnAt(int col) const;
    void CheckCell(int row, int col) const;
    bool HasCurrentCell() const;
    bool CurrentCellLocked() const;

    // The current cell and its editor (grid_editing.cpp).
    void MoveTo(int row, int col);
    void OpenEditor(std::string text);
    void DropEdit();
    void AddEntryRowIfNeeded();
    void DropListDown();
    void HideDroppedList();

    // What the user's keys do (grid_user.cpp).
    bool AcceptsUserInput() const;
    void ActOnKey(int keyCode, int shift);
    void EnterForward();
    void MoveByArrow(int keyCode);
    bool TypeIntoEditor(const std::string& character, bool replaceEditorText);
    void RemoveLastCharacter();
    void EmptyEditor();
    void GiveUpEdit();
    int LastShownCol() const;
    int LastEntryColumn() const;

    std::vector<std::vector<std::string>> cells_;  // [row][col], row 0 the headings
    std::vector<Column> columns_;                  // [col]
    int row_ = 1, col_ = 1;
    bool editing_ = false;
    std::string editText_;
    std::string textBeforeEdit_;              // what Escape puts back
    std::optional<std::string> refusedText_;  // what a refused commit left in the cell
    // Counts changes of the current cell and its editor (moves, opening, dropping,
    // removal of the current row), so that code which raised an event can tell
    // whether a handler moved on meanwhile.
    unsigned cellStamp_ = 0;
    unsigned redraws_ = 0;
    unsigned long contentStamp_ = 0;
    Control* droppedList_ = nullptr;      // the attached list the grid dropped down
    std::unique_ptr<TextBox> editorBox_;  // made on first use (EditorBox)
    bool takingEditorBoxText_ = false;
    void TakeEditorBoxText();
};

}  // namespace platform
