// The clerk's screen over HTTP: a note keyed and saved through the events a session
// script raises, a dialog that waits for the clerk, the token rule, bad input, and a
// form closed for idleness.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "support/served_screen.h"

namespace web::testing {
namespace {

using nlohmann::json;

const json kNewNote = {{"screen", "dispatch"}, {"mode", 2}, {"date", "2026-11-22"}};

std::string CellOf(const ClerkTab& tab, int row, int col) {
    return tab.ControlNamed("DTFlexDispatch")["grid"]["cells"][row - 1][col - 1];
}

int NoteCount(const ServedScreen& screen) { return std::stoi(screen.Sql("SELECT COUNT(*) FROM DispatchAbstract")); }

host::Settings CreditPasswordSettings() {
    host::Settings settings;
    settings.Set("GetCreditLimitPasswordEnabled", "true");
    settings.Set("AdministratorPassword", "s3cret");
    return settings;
}

// Ravi Stores over its credit with the smallest note.
void PutRaviOverItsLimit(ServedScreen& screen) {
    screen.Sql("UPDATE Customer SET CreditLimit = 1 WHERE CustomerID = 'C005'");
    screen.Sql("DELETE FROM CustomerCreditTerm WHERE CustomerID = 'C005'");
}

TEST(ServedScreen, AClerkKeysAndSavesANoteWithTheSessionsOwnEvents) {
    ServedScreen screen;
    ASSERT_EQ(screen.Send("GET", "/api/menu", "").body["screens"][1]["caption"], "Generate New Dispatch");
    ClerkTab tab(screen, kNewNote);
    EXPECT_EQ(tab.Drawn()["caption"], "Generate New Dispatch");
    EXPECT_EQ(tab.Drawn()["focus"], "txtSalesman");

    tab.Event({"type", "txtCustomer", "Ravi"});
    EXPECT_EQ(tab.Drawn()["typeAhead"]["under"], "txtCustomer");
    EXPECT_EQ(tab.Drawn()["typeAhead"]["rows"], json({"Ravi Stores"}));
    tab.Event({"pick", "1"});
    tab.Event({"key", "txtCustomer", "13"});
    EXPECT_EQ(tab.ControlNamed("txtSalesman")["text"], "Arun Kumar");

    KeyLine(tab, 1, "FD001", "5");
    KeyLine(tab, 2, "FD002", "3");
    const json grid = tab.ControlNamed("DTFlexDispatch")["grid"];
    EXPECT_EQ(grid["headings"][0], "Item Code");
    EXPECT_EQ(CellOf(tab, 1, 2), "Marie Biscuit 100g");
    EXPECT_EQ(CellOf(tab, 2, 6), "3");
    EXPECT_EQ(grid["row"], 3);

    const int before = NoteCount(screen);
    ASSERT_EQ(tab.Event({"click", "cmdSave"}).status, 200);
    EXPECT_EQ(tab.Status().rfind("DispatchID = DN", 0), 0u) << tab.Status();
    EXPECT_EQ(NoteCount(screen), before + 1);
    EXPECT_EQ(screen.Sql("SELECT Product_Code FROM DispatchDetail WHERE DispatchID = "
                         "(SELECT MAX(DispatchID) FROM DispatchAbstract) ORDER BY Product_Code"),
              "FD001;FD002");
}

TEST(ServedScreen, ADialogWaitsForTheClerksAnswerAndThePasswordIsNeverShown) {
    ServedScreen screen(CreditPasswordSettings());
    PutRaviOverItsLimit(screen);
    ClerkTab tab(screen, kNewNote);
    KeyCustomer(tab, "Ravi");
    KeyLine(tab, 1, "FD001", "5");
    const int before = NoteCount(screen);

    ASSERT_EQ(tab.Event({"click", "cmdSave"}).status, 200);
    const json dialog = tab.Drawn()["dialog"];
    ASSERT_FALSE(dialog.is_null());
    EXPECT_EQ(dialog["kind"], "InputPassword");
    EXPECT_TRUE(dialog["masked"]);
    EXPECT_EQ(dialog["title"], "Credit Limit Exceeded");

    // The save is held in its handler: nothing written, no other event taken, and a
    // reply the dialog cannot take is refused with the dialog still there.
    EXPECT_EQ(NoteCount(screen), before);
    EXPECT_EQ(tab.Event({"click", "cmdClose(1)"}).status, 409);
    EXPECT_EQ(tab.Reply({"s3cret", "again"}).status, 400);
    EXPECT_EQ(tab.State().body["dialog"]["kind"], "InputPassword");

    // A wrong password: the message box that says so waits in its turn.
    Answer refused = tab.Reply({"guess"});
    ASSERT_EQ(refused.status, 200);
    EXPECT_EQ(tab.Drawn()["dialog"]["kind"], "AskMessage");
    EXPECT_EQ(tab.Drawn()["dialog"]["text"], "Invalid Password");
    tab.Reply({"1"});
    EXPECT_EQ(NoteCount(screen), before);
    EXPECT_EQ(tab.Drawn()["focus"], "cmdSave");
    EXPECT_EQ(tab.Reply({"s3cret"}).status, 409) << "no dialog waits once the handler is done";

    tab.Event({"click", "cmdSave"});
    Answer saved = tab.Reply({"s3cret"});
    ASSERT_EQ(saved.status, 200);
    EXPECT_TRUE(saved.body["dialog"].is_null());
    EXPECT_EQ(NoteCount(screen), before + 1);
    for (const Answer& answer : {refused, saved}) {
        EXPECT_EQ(answer.body.dump().find("s3cret"), std::string::npos);
        EXPECT_EQ(answer.body.dump().find("guess"), std::string::npos);
    }
}

TEST(ServedScreen, AStoredNoteViewedAndPrintedComesBackAsPdf) {
    ServedScreen screen;
    ClerkTab tab(screen, {{"screen", "dispatch"}, {"mode", 4}});
    ASSERT_EQ(tab.Event({"tick", "lstSO", "2"}).status, 200);
    tab.Event({"click", "cmdContinue"});
    EXPECT_EQ(tab.ControlNamed("cmdSave")["caption"], "&Print");
    ASSERT_EQ(tab.Event({"click", "cmdSave"}).status, 200);

    // The screen asks whether to print through the print dialog; no prints it at once.
    EXPECT_EQ(tab.Drawn()["dialog"]["kind"], "AskMessage");
    ASSERT_EQ(tab.Reply({"7"}).status, 200);
    ASSERT_EQ(tab.Drawn()["prints"].size(), 1u);
    const std::string name = tab.Drawn()["prints"][0]["name"];
    EXPECT_EQ(name.substr(name.size() - 4), ".pdf");
    Answer pdf = screen.Send("GET", "/api/print/1", "", tab.Token());
    ASSERT_EQ(pdf.status, 200);
    EXPECT_EQ(pdf.body.get<std::string>().rfind("%PDF", 0), 0u);
    EXPECT_EQ(screen.Send("GET", "/api/print/1", "").status, 401) << "a print is the form's own";
}

TEST(ServedScreen, ATabReachesOnlyTheFormItsTokenOpened) {
    ServedScreen screen;
    ClerkTab first(screen, kNewNote);
    ClerkTab second(screen, {{"screen", "cform"}, {"date", "2026-11-22"}});
    EXPECT_EQ(second.Drawn()["screen"], "cform");
    EXPECT_EQ(second.Drawn()["caption"], "C-Form/D-Form Receipt");
    EXPECT_NE(first.Token(), second.Token());

    first.Event({"type", "txtCustomer", "Ravi"});
    EXPECT_EQ(first.ControlNamed("txtCustomer")["text"], "Ravi");
    EXPECT_TRUE(second.State().body["typeAhead"].is_null());

    const std::string event = json{{"words", {"type", "txtCustomer", "X"}}}.dump();
    EXPECT_EQ(screen.Send("POST", "/api/event", event).status, 401);
    EXPECT_EQ(screen.Send("POST", "/api/event", event, std::string(32, '0')).status, 401);

    EXPECT_EQ(first.Close().status, 200);
    EXPECT_EQ(first.Event({"type", "txtCustomer", "X"}).status, 410);
    EXPECT_EQ(first.State().status, 410);
    EXPECT_EQ(first.Close().status, 410);
    EXPECT_EQ(second.State().status, 200);
}

TEST(ServedScreen, BadInputIsRefusedWithAReasonAndChangesNothing) {
    ServedScreen screen;
    ClerkTab tab(screen, kNewNote);
    KeyCustomer(tab, "Ravi");
    KeyLine(tab, 1, "FD001", "5");
    json before = tab.State().body;
    before.erase("lines");
    const int notes = NoteCount(screen);
    const std::string token = tab.Token();

    struct Case {
        const char* method;
        const char* path;
        std::string body;
        int status;
    };
    const std::vector<Case> cases = {
        {"POST", "/api/event", "{not json", 400},
        {"POST", "/api/event", "[1,2]", 400},
        {"POST", "/api/event", R"({"verbs":["click","cmdSave"]})", 400},
        {"POST", "/api/event", R"({"words":[]})", 400},
        {"POST", "/api/event", R"({"words":[{"click":1}]})", 400},
        {"POST", "/api/event", R"({"words":["sql","DELETE FROM DispatchAbstract"]})", 400},
        {"POST", "/api/event", R"({"words":["call","SaveDispatch"]})", 400},
        {"POST", "/api/event", R"({"words":["click","cmdNoSuch"]})", 400},
        {"POST", "/api/event", R"({"words":["key","txtCustomer","thirteen"]})", 400},
        {"POST", "/api/event", R"({"words":["focus","cboCustomer"]})", 409},
        {"POST", "/api/event", R"({"words":["grid","goto","99","1"]})", 409},
        {"POST", "/api/event", R"({"words":["pick","1"]})", 409},
        {"POST", "/api/event", R"({"words":["type","txtCustomer",")" + std::string(70000, 'x') + "\"]}", 413},
        {"POST", "/api/answer", R"({"values":["6"]})", 409},
        {"POST", "/api/forms", R"({"screen":"dispatch","mode":9})", 400},
        {"POST", "/api/forms", R"({"screen":"ledger"})", 400},
        {"POST", "/api/forms", R"({"screen":"dispatch","mode":2,"date":"someday"})", 400},
        {"GET", "/api/print/1", "", 404},
        {"GET", "/api/nothing", "", 404},
    };
    for (const Case& c : cases) {
        Answer answer = screen.Send(c.method, c.path, c.body, token);
        EXPECT_EQ(answer.status, c.status) << c.method << " " << c.path << " " << c.body.substr(0, 80);
        EXPECT_TRUE(answer.body.contains("error") && !answer.body["error"].get<std::string>().empty())
            << c.path << " " << answer.body.dump().substr(0, 200);
    }
    json after = tab.State().body;
    after.erase("lines");
    EXPECT_EQ(after, before);
    EXPECT_EQ(NoteCount(screen), notes);
}

TEST(ServedScreen, TheClerkClosingTheScreenIsAskedAboutItsLinesAndMayStay) {
    ServedScreen screen;
    ClerkTab tab(screen, kNewNote);
    KeyCustomer(tab, "Ravi");
    KeyLine(tab, 1, "FD001", "5");
    const int before = NoteCount(screen);

    tab.Event({"close"});
    EXPECT_EQ(tab.Drawn()["dialog"]["kind"], "ConfirmSaveOnExit");
    tab.Reply({"true"});
    EXPECT_TRUE(tab.Drawn()["open"]) << "the clerk stays to save";
    EXPECT_EQ(tab.Drawn()["focus"], "cmdSave");

    tab.Event({"close"});
    tab.Reply({"false"});
    EXPECT_FALSE(tab.Drawn()["open"]);
    EXPECT_EQ(NoteCount(screen), before);
}

TEST(ServedScreen, AFormLeftIdleIsClosedAndItsNoteIsNotWritten) {
    ServedScreen screen(CreditPasswordSettings(), std::chrono::milliseconds(1000));
    PutRaviOverItsLimit(screen);
    ClerkTab tab(screen, kNewNote);
    KeyCustomer(tab, "Ravi");
    KeyLine(tab, 1, "FD001", "5");
    const int before = NoteCount(screen);
    // Left with the save waiting on the password: closing gives the dialog its way out.
    tab.Event({"click", "cmdSave"});
    ASSERT_FALSE(tab.Drawn()["dialog"].is_null());

    int status = 200;
    for (int tries = 0; tries < 100 && status == 200; ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        status = tab.State().status;
    }
    EXPECT_EQ(status, 410);
    EXPECT_EQ(tab.Reply({"s3cret"}).status, 410);
    EXPECT_EQ(NoteCount(screen), before);
}

}  // namespace
}  // namespace web::testing
