// The screen opened for a new note, for the tests of the salesman, beat and category
// group fields. The handlers are called as their events would call them.
#pragma once

#include <string>
#include <vector>

#include "platform/convert.h"
#include "screen_fixture.h"

namespace parties_test {

class PartiesTest : public screen_test::ScreenTest {
protected:
    PartiesTest() {
        Open(screen::mode::NewDispatch);
        transcript.TakeNumbered();
        transcript.TakeMessages();
        linesAtOpen = transcript.Lines().size();
    }

    screen::Zuro_frmDispatch_Dispatch& Form() { return *form; }
    // SQLite's own statements, straight on the database.
    void Sql(const std::string& script) { database->ExecuteScript(script); }

    // A row picked from a box's list: its text and its key land in the box, and the
    // user has closed whatever list the typing opened.
    void Pick(platform::TextBox& box, const std::string& text, const std::string& key) {
        box.SetText(text);
        box.Tag = key;
        for (auto* list : {form->objSalesmanList.get(), form->objBeatList.get(), form->objCustomerList.get()})
            if (list && list->GetVisible()) list->HideList();
    }
    void EnterSalesman(int shift = 0) {
        int key = 13;
        form->txtSalesman_KeyDown(key, shift);
    }
    void EnterBeat(int shift = 0) {
        int key = 13;
        form->txtBeat_KeyDown(key, shift);
    }
    void EnterCategory(int shift = 0) {
        int key = 13;
        form->txtCategory_KeyDown(key, shift);
    }

    // The grid holding one line of an item, and the blank row for entry under it.
    void AddGridLine(const std::string& itemCode, const std::string& itemName) {
        auto& grid = form->DTFlexDispatch;
        const int row = GridLines() + 1;
        grid.SetGridRows(row + 1);
        grid.SetCell(row, 1, itemCode);
        grid.SetCell(row, 2, itemName);
    }
    int GridLines() const {
        const auto& grid = form->DTFlexDispatch;
        int rows = grid.GridRows();
        return rows > 0 && grid.IsBlankRow(rows) ? rows - 1 : rows;
    }

    std::string Focused() const {
        auto* control = form->ActiveControl();
        return control ? control->FullName() : "";
    }
    // The error reports since the form opened, "error N TEXT".
    std::vector<std::string> ErrorLines() const {
        std::vector<std::string> errors;
        const auto& lines = transcript.Lines();
        for (std::size_t i = linesAtOpen; i < lines.size(); ++i)
            if (lines[i].rfind("error ", 0) == 0) errors.push_back(lines[i]);
        return errors;
    }
    std::vector<long> Numbered() { return transcript.TakeNumbered(); }
    std::vector<std::string> Messages() { return transcript.TakeMessages(); }
    // Queues the user's answer to the next message box.
    void Answer(int button) { answers.Queue("AskMessage", {std::to_string(button)}); }

    std::size_t linesAtOpen = 0;
};

// A result's rows as "a|b;c|d", each value as the runtime writes it.
inline std::string RowsText(const platform::RecordsetPtr& rs) {
    std::string text;
    for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
        if (!text.empty()) text += ";";
        for (int i = 0; i < rs->FieldCount(); ++i) text += (i ? "|" : "") + platform::ToText(rs->Fields(i));
    }
    return text;
}

}  // namespace parties_test
