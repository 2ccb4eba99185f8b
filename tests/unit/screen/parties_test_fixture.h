// A new-dispatch screen over a fresh demo database and the plain host, for the
// tests of the salesman, beat and category group fields. The handlers are called as
// their events would call them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "screen/zuro_frm_dispatch_dispatch.h"
#include "server/embedded_connection.h"

namespace parties_test {

// A database file of its own, removed with its companions at the end.
class ScratchDatabase {
public:
    ScratchDatabase();
    ~ScratchDatabase();
    ScratchDatabase(const ScratchDatabase&) = delete;
    ScratchDatabase& operator=(const ScratchDatabase&) = delete;
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

// A new demo database at path.
std::shared_ptr<server::EmbeddedConnection> MakeDemoDatabase(const std::string& path);

class PartiesTest : public ::testing::Test {
protected:
    PartiesTest();
    ~PartiesTest() override;

    screen::Zuro_frmDispatch_Dispatch& Form() { return *form; }
    // SQLite's own statements, straight on the database.
    void Sql(const std::string& script);

    // A row picked from a box's list: its text and its key land in the box.
    void Pick(platform::TextBox& box, const std::string& text, const std::string& key);
    void EnterSalesman(int shift = 0);
    void EnterBeat(int shift = 0);
    void EnterCategory(int shift = 0);

    // The grid holding one line of an item, and the blank row for entry under it.
    void AddGridLine(const std::string& itemCode, const std::string& itemName);
    int GridLines() const;

    std::string Focused() const;
    // The error reports of the party routines since the form opened, "error N TEXT";
    // what other parts of the screen report is theirs to test.
    std::vector<std::string> ErrorLines() const;
    std::vector<long> Numbered() { return transcript.TakeNumbered(); }
    std::vector<std::string> Messages() { return transcript.TakeMessages(); }
    // Queues the user's answer to the next message box.
    void Answer(int button) { answers.Queue("AskMessage", {std::to_string(button)}); }

    ScratchDatabase file;
    std::shared_ptr<server::EmbeddedConnection> database;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host;
    std::unique_ptr<screen::Zuro_frmDispatch_Dispatch> form;
    std::size_t linesAtOpen = 0;
};

// A result's rows as "a|b;c|d", each value as the runtime writes it.
std::string RowsText(const platform::RecordsetPtr& rs);

}  // namespace parties_test
