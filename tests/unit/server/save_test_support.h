// Shared by the tests of the save's server objects: the procedures called as the
// screen calls them on the demo database, and a dispatch line with the values the
// screen would send for it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/database.h"
#include "server/embedded_connection.h"
#include "server_test_support.h"

namespace server::save_test {

// The values of one line, with those of a plain sold line of Marie Biscuit in boxes.
struct Line {
    long long dispatchID = 0;
    std::string item = "FD001", batch;
    double originalPrice = 9.00, baseQuantity = 24;
    int batchTrack = 1, trackInventory = 1;
    int customerCategory = 2;  // sent by the customer-price procedure only
    int freeItem = 0, freeRow = 0;
    platform::Value dispatchDay;  // today when left empty
    int datedPosting = 0, unit = 2;
    double unitQuantity = 1, unitPrice = 216.00;
    int rowNumber = 1, otherGroupItem = 0, schemeID = 0;
    std::string freeSerial, schemeIDs, splCatSchemeIDs;
    int splCatScheme = 0;
    std::string splCatSerial, multiScheme, multiSplCatScheme;

    // The parameters of the procedure the screen picks by price option, short (other-
    // category-group items on) or long.
    platform::ParameterList Parameters(bool customerPrice, bool longList) const;
};

class SaveDatabase : public testkit::DemoDatabase {
public:
    // Every result of the call, as the server sends them.
    std::vector<platform::ResultSet> Call(const std::string& name, const platform::ParameterList& parameters);
    // Field 0 of the first result that has rows, which is what the screen's host takes
    // as a procedure's answer; Null when none has.
    platform::Value Answer(const std::string& name, const platform::ParameterList& parameters);
    // The refusal the call raises; "(no error)" when it goes through.
    std::string Refusal(const std::string& name, const platform::ParameterList& parameters);

    // A new note of the customer through sp_Save_DispatchAbstract; its DispatchID. Both
    // calls go through the test's own connection unless given another.
    long long NewNote(const std::string& customer = "C005", EmbeddedConnection* on = nullptr);
    // A line stored through the detail procedure: its answer, 1 stored or 0 refused.
    long long StoreLine(const Line& line, bool customerPrice = false, bool longList = true,
                        EmbeddedConnection* on = nullptr);
    // The rows of one note, as Text gives them.
    std::string NoteRows(const std::string& columns, long long dispatchID, const std::string& rest = "");
};

// Field 0 of the first result with rows.
platform::Value FirstAnswer(const std::vector<platform::ResultSet>& results);

}  // namespace server::save_test
