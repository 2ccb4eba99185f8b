// The screen opened for a new note, for the tests of the salesman, beat and category
// group fields. The handlers are called as their events would call them.
#pragma once

#include <string>
#include <vector>

#include "screen_fixture.h"

namespace parties_test {

class PartiesTest : public screen_test::ScreenTest {
protected:
    PartiesTest();

    screen::Zuro_frmDispatch_Dispatch& Form() { return *form; }
    // SQLite's own statements, straight on the database.
    void Sql(const std::string& script) { database->ExecuteScript(script); }

    // A row picked from a box's list: its text and its key land in the box.
    void Pick(platform::TextBox& box, const std::string& text, const std::string& key);
    void EnterSalesman(int shift = 0) { Enter(&screen::Zuro_frmDispatch_Dispatch::txtSalesman_KeyDown, shift); }
    void EnterBeat(int shift = 0) { Enter(&screen::Zuro_frmDispatch_Dispatch::txtBeat_KeyDown, shift); }
    void EnterCategory(int shift = 0) { Enter(&screen::Zuro_frmDispatch_Dispatch::txtCategory_KeyDown, shift); }

    // The grid holding one line of an item, and the blank row for entry under it.
    void AddGridLine(const std::string& itemCode, const std::string& itemName);
    int GridLines() const;

    std::string Focused() const;
    // The error reports since the form opened, "error N TEXT".
    std::vector<std::string> ErrorLines() const;
    std::vector<long> Numbered() { return transcript.TakeNumbered(); }
    std::vector<std::string> Messages() { return transcript.TakeMessages(); }
    // Queues the user's answer to the next message box.
    void Answer(int button) { answers.Queue("AskMessage", {std::to_string(button)}); }

    std::size_t linesAtOpen = 0;

private:
    void Enter(void (screen::Zuro_frmDispatch_Dispatch::*keyDown)(int&, int), int shift) {
        int key = 13;
        (form->*keyDown)(key, shift);
    }
};

// A result's rows as "a|b;c|d", each value as the runtime writes it.
std::string RowsText(const platform::RecordsetPtr& rs);

}  // namespace parties_test
