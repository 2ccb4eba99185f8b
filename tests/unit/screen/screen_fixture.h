// The dispatch screen over the plain host and a private copy of the demo database,
// opened the way the host opens it, with the helpers the grid, item entry and party
// tests share.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>  // the tests compare neighbouring values as one tuple
#include <vector>

#include "grid/row_model/grid_columns.h"
#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/convert.h"
#include "platform/fault_connection.h"
#include "platform/value.h"
#include "screen/zuro_cls_dispatch.h"
#include "screen/zuro_frm_dispatch_dispatch.h"
#include "server/embedded_connection.h"
#include "session/key_press.h"

namespace screen_test {

class ScreenTest : public ::testing::Test {
protected:
    ScreenTest();
    ~ScreenTest() override;
    // A test ends with no error logged, unless it names how many it caused (-1: any).
    void TearDown() override {
        if (expectedErrors >= 0) {
            EXPECT_EQ(Errors(), expectedErrors) << ErrorLines();
        }
    }

    // Opens the screen in a mode, as the host does, on 2026-11-22 unless told.
    screen::Zuro_frmDispatch_Dispatch& Open(long mode, platform::Date serverDate = Today(),
                                            platform::Date alertDate = Today()) {
        component->InitDispatch(serverDate, mode, host->Context(), alertDate);
        form = dynamic_cast<screen::Zuro_frmDispatch_Dispatch*>(component->Form());
        return *form;
    }
    static platform::Date Today() { return platform::DateSerial(2026, 11, 22); }
    // The host (and a new component) over another connection to the same database,
    // as a decorator wraps it; before Open.
    void UseConnection(platform::ConnectionPtr connection);

    // The user presses a key on a control: the form previews it, then the control's
    // key-down and, for Enter, key-press.
    void Key(platform::Control& control, int keyCode, int shift = 0) {
        form->Form_KeyDown(keyCode, shift);
        if (keyCode == 0) return;
        control.KeyDown.Raise(keyCode, shift);
        if (keyCode == 13 || keyCode == 27) control.KeyPress.Raise(keyCode);
    }
    // The user types into a box: focus, then the text with its change event.
    void Type(platform::TextBox& box, const std::string& text) {
        if (form->ActiveControl() != &box) form->MoveFocus(box);
        box.SetText(text);
    }
    // Picks row n (from 1) of the open type-ahead list.
    void Pick(int row) {
        ASSERT_NE(host->VisibleList(), nullptr) << "no type-ahead list is open";
        host->VisibleList()->Pick(row);
    }
    std::vector<std::string> ListRows() {
        auto* list = host->VisibleList();
        return list ? list->RowTexts() : std::vector<std::string>{};
    }

    // One value of SQLite's own query on the database.
    std::string Scalar(const std::string& sqliteSql) {
        auto result = database->ExecuteNative(sqliteSql);
        return result.rows.empty() || result.rows[0].empty() ? "" : platform::ToText(result.rows[0][0]);
    }
    int Errors() const { return transcript.ErrorCount(); }
    std::string LastStatus() const { return transcript.LastStatus() ? transcript.LastStatus()->text : ""; }
    int LastStatusKind() const { return transcript.LastStatus() ? transcript.LastStatus()->flag : -1; }
    bool TranscriptHas(const std::string& fragment) const {
        for (const auto& line : transcript.Lines())
            if (line.find(fragment) != std::string::npos) return true;
        return false;
    }
    // The error lines of the transcript, one a line, for a failure's message.
    std::string ErrorLines() const {
        std::string lines;
        for (const auto& line : transcript.Lines())
            if (line.rfind("error ", 0) == 0) lines += line + "\n";
        return lines;
    }

    // Cells of the grid, row 1 unless told; Cells joins several columns with "|" to
    // check a row at once.
    std::string Cell(int col, int row = 1) const { return form->DTFlexDispatch.GetCell(row, col); }
    std::string Cells(std::initializer_list<int> cols) const {
        std::string text;
        for (const int& col : cols) text += (&col == cols.begin() ? "" : "|") + Cell(col);
        return text;
    }
    void SetCell(int col, const std::string& text, int row = 1) { form->DTFlexDispatch.SetCell(row, col, text); }

    // Opens the screen (Mode 2 unless told) for item entry: the grid's cell updates
    // wired and a retailer's prices.
    // A new note for Ravi Stores (C005), whose salesman and beat fill themselves,
    // chosen from the list; the save's validation finds the code for the typed name.
    screen::Zuro_frmDispatch_Dispatch& OpenForRavi() {
        auto& f = Open(2);
        Type(f.txtCustomer, "Ravi");
        Pick(1);
        Key(f.txtCustomer, 13);
        f.szEnteredCustomerCode = "C005";
        return f;
    }
    // A line as the clerk keys it: the item, Enter, then the quantity. A quantity with
    // "*" first steps the unit round to the multi-unit entry, as the slash key does. The
    // row takes the entry the batch list stands on; coming back to its quantity puts the
    // list on the first saleable entry, and the key that ends the quantity takes it
    // (Enter, batch entry 1) or the one below it (Down).
    void KeyLine(int row, const std::string& itemCode, const std::string& quantity, int batchEntry = 1) {
        auto& grid = form->DTFlexDispatch;
        form->MoveFocus(grid);
        grid.UserGoto(row, 1);
        grid.UserType(itemCode);
        session::PressGridKey(*form, grid, 13, 0);
        grid.UserGoto(row, 5);
        grid.UserGoto(row, 6);
        for (int n = 0; quantity.find('*') != std::string::npos && grid.GetCell(row, grid::colUOMID) != "0" && n < 4;
             ++n)
            form->CycleUOM();
        grid.UserType(quantity);
        session::PressGridKey(*form, grid, batchEntry == 1 ? 13 : 40, 0);
    }
    screen::Zuro_frmDispatch_Dispatch& OpenForItems(long mode = 2) {
        Open(mode);
        form->nCustomerCategory = 2;
        return *form;
    }
    // Row 1 holds the item in a unit of the given rate, with its flags from the master,
    // as the grid holds it once the item and its unit are in.
    void ItemLine(const std::string& code, const std::string& uomID, double rate) {
        auto& grid = form->DTFlexDispatch;
        if (grid.GridRows() < 1) grid.SetGridRows(1);
        SetCell(grid::colItemCode, code);
        SetCell(grid::colItemName, Scalar("SELECT ProductName FROM Items WHERE Product_Code = '" + code + "'"));
        SetCell(grid::colUOMID, uomID);
        form->dUOMRate = rate;
        form->GetItemPrice(code, 1);
        form->dUOMRate = rate;  // the unit stays as the line was given it
        form->nPriceOption = static_cast<long>(platform::Val(Cell(grid::colPriceOption)));
    }
    // The end of an edit of a cell in row 1 as the grid raises it; whether it was cancelled.
    bool EndEdit(int col) {
        bool cancel = false;
        form->DTFlexDispatch_AfterColUpdate(1, col, cancel);
        return cancel;
    }
    // The user's quantity in row 1, and the end of its edit.
    bool Quantity(const std::string& text) {
        SetCell(grid::colQuantity, text);
        return EndEdit(grid::colQuantity);
    }
    // The stock list's entries: text, then sub-items 2, 3 and 5 (price, quantity, free).
    std::string ListEntries() const {
        std::string entries;
        for (int i = 1; i <= form->lstAvailable.Count(); ++i) {
            const auto& entry = form->lstAvailable.Item(i);
            if (!entries.empty()) entries += ";";
            entries += entry.Text + "|" + entry.SubItem(2) + "|" + entry.SubItem(3) + "|" + entry.SubItem(5);
        }
        return entries;
    }

    // A row picked from a party box's list: its text and its key land in the box, and
    // the user has closed whatever list the typing opened.
    void Pick(platform::TextBox& box, const std::string& text, const std::string& key) {
        box.SetText(text);
        box.Tag = key;
        for (auto* list : {form->objSalesmanList.get(), form->objBeatList.get(), form->objCustomerList.get()})
            if (list && list->GetVisible()) list->HideList();
    }
    // Enter in a party box, straight to its handler; the handler may change the key.
    void EnterSalesman() { form->txtSalesman_KeyDown(enterKey = 13, 0); }
    void EnterBeat() { form->txtBeat_KeyDown(enterKey = 13, 0); }
    void EnterCategory() { form->txtCategory_KeyDown(enterKey = 13, 0); }
    // A box as "text|tag".
    static std::string Box(const platform::TextBox& box) { return box.Text() + "|" + box.Tag; }
    std::string Focused() const {
        auto* control = form->ActiveControl();
        return control ? control->FullName() : "";
    }
    std::vector<long> Numbered() { return transcript.TakeNumbered(); }
    std::vector<std::string> Messages() { return transcript.TakeMessages(); }
    // Queues the user's answer to the next message box.
    void Answer(int button) { answers.Queue("AskMessage", {std::to_string(button)}); }

    // Every row of every table, in key order, and every cell of the grid: what a
    // failed save, cancel or amendment must leave as it found them.
    std::string Tables() {
        std::string text;
        auto tables = database->ExecuteNative("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
        for (const auto& table : tables.rows) {
            const std::string name = platform::ToText(table[0]);
            text += "[" + name + "]\n";
            for (const auto& row : database->ExecuteNative("SELECT * FROM \"" + name + "\" ORDER BY rowid").rows) {
                for (const auto& value : row) text += platform::ToText(value) + "|";
                text += "\n";
            }
        }
        return text;
    }
    std::string GridCells() const {
        auto& grid = form->DTFlexDispatch;
        std::string text;
        for (int r = 1; r <= grid.GridRows(); ++r) {
            for (int c = 1; c <= grid.GridCols(); ++c) text += grid.GetCell(r, c) + "|";
            text += "\n";
        }
        return text;
    }

    // Runs the action over and over, the first time with the (skip + 1)-th database
    // call from now failing, then the next one, until the action goes through; after
    // each failure `unchanged` checks what must not have moved. Answers how many
    // runs failed, or -1 when the action never went through.
    template <class Action, class Check>
    int FailEachCallInTurn(platform::FaultInjectingConnection& faults, int skip, Action action, Check unchanged) {
        for (int n = 1; n < 300; ++n) {
            faults.FailNthCall(skip + n);
            const bool done = action();
            faults.ClearFaults();
            if (done) return n - 1;
            SCOPED_TRACE("database call " + std::to_string(n) + " failed");
            unchanged();
            if (HasFatalFailure()) return -1;
        }
        return -1;
    }

    std::string path;
    std::shared_ptr<server::EmbeddedConnection> database;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host;
    std::unique_ptr<screen::Zuro_clsDispatch> component;
    screen::Zuro_frmDispatch_Dispatch* form = nullptr;
    int enterKey = 13;
    int expectedErrors = 0;
};

// A new note for the party tests, with what its opening said already taken.
class PartiesTest : public ScreenTest {
protected:
    PartiesTest() {
        Numbered();
        Messages();
    }

    // What a refusal left: the numbered messages since the last look, the box's text
    // and the focus, as "6 [] txtSalesman".
    std::string Refusal(const platform::TextBox& box) {
        std::string numbers;
        for (long number : Numbered()) numbers += std::to_string(number) + " ";
        return numbers + "[" + box.Text() + "] " + Focused();
    }

    screen::Zuro_frmDispatch_Dispatch& f = Open(screen::mode::NewDispatch);
};

}  // namespace screen_test
