#include <gtest/gtest.h>
#include <tuple>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "host/print_layout.h"
#include "host/print_templates.h"
#include "host/printing.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/database_files.h"
#include "support/scratch_files.h"

namespace host_test {
namespace {

// The PDF's text as the reader lays it out, one page or all.
std::string PdfText(const std::string& pdf, int page = 0) {
    std::string command = std::string(PDFTOTEXT_PROGRAM) + " -layout";
    if (page > 0) command += " -f " + std::to_string(page) + " -l " + std::to_string(page);
    command += " '" + pdf + "' -";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string text;
    char buffer[4096];
    for (std::size_t read; pipe && (read = fread(buffer, 1, sizeof buffer, pipe.get())) > 0;) text.append(buffer, read);
    return text;
}

bool HasLineWith(const std::string& text, const std::vector<std::string>& parts) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        bool all = true;
        for (const auto& part : parts) all = all && line.find(part) != std::string::npos;
        if (all) return true;
    }
    return false;
}

class PrintedPdfTest : public ::testing::Test {
protected:
    std::string PrintNote(long dispatchID) {
        host::NotePrinter printer(*database);
        return printer.Print({"Dispatch.ini", host::kDispatchAbstractProcedure, host::kDispatchDetailProcedure,
                              "Dispatch", std::to_string(dispatchID)},
                             folder);
    }

    std::shared_ptr<server::EmbeddedConnection> database =
        server::CreateDatabase(test_support::ScratchPath("print", ".db"), true);
    std::string folder = test_support::ScratchPath("printed");
};

// Note 9 has three sold lines and two free ones.
TEST_F(PrintedPdfTest, TheNoteIsWrittenBesideItsTextWithNumberCustomerAndEveryLine) {
    const std::string printed = PrintNote(9);
    EXPECT_EQ(std::filesystem::path(printed).filename(), "Dispatch-9.txt");
    ASSERT_TRUE(std::filesystem::exists(printed));
    std::stringstream kept;
    kept << std::ifstream(printed).rdbuf();
    EXPECT_NE(kept.str().find("\nDispatch No: DN49\n"), std::string::npos) << kept.str();
    EXPECT_NE(kept.str().find("\n5 lines\n"), std::string::npos) << "the text rendering stays as it was";
    const std::string pdf = host::PdfFileOf(printed);
    EXPECT_EQ(std::filesystem::path(pdf).filename(), "Dispatch-9.pdf");

    const std::string text = PdfText(pdf);
    EXPECT_NE(text.find("DN49"), std::string::npos) << text;
    auto customer = database->ExecuteNative(
        "SELECT c.Company_Name FROM DispatchAbstract a JOIN Customer c ON c.CustomerID = a.CustomerID "
        "WHERE a.DispatchID = 9");
    EXPECT_NE(text.find(platform::ToText(customer.rows.at(0).at(0))), std::string::npos) << text;

    auto lines = database->ExecuteNative(
        "SELECT Product_Code, UOMQty, FreeItem FROM DispatchDetail WHERE DispatchID = 9 ORDER BY DetailID");
    ASSERT_EQ(lines.rows.size(), 5u);
    for (std::size_t i = 0; i < lines.rows.size(); ++i) {
        std::vector<std::string> parts{std::to_string(i + 1) + " ", platform::ToText(lines.rows[i][0]),
                                       " " + platform::ToText(lines.rows[i][1]) + " "};
        if (platform::ToNumber(lines.rows[i][2]) != 0) parts.push_back("Free");
        EXPECT_TRUE(HasLineWith(text, parts)) << "line " << i + 1 << " in\n" << text;
    }
    EXPECT_TRUE(HasLineWith(text, {"Page 1 of 1"})) << text;
}

TEST_F(PrintedPdfTest, ManyLinesRunOntoAnotherPageWithTheTableHeadingAgain) {
    database->ExecuteScript(R"(
        WITH RECURSIVE n(k) AS (SELECT 1 UNION ALL SELECT k + 1 FROM n WHERE k < 70)
        INSERT INTO DispatchDetail (DispatchID, Product_Code, UOM, UOMQty, UOMPrice, Quantity, SalePrice)
        SELECT 2, 'PM001', UOM, 100 + k, 150, 100 + k, 150 FROM n, (SELECT UOM FROM DispatchDetail WHERE DetailID = 5);
    )");
    const std::string pdf = host::PdfFileOf(PrintNote(2));
    const std::string first = PdfText(pdf, 1), second = PdfText(pdf, 2);
    EXPECT_TRUE(HasLineWith(first, {"Code", "Item", "Qty", "Value"})) << first;
    EXPECT_TRUE(HasLineWith(second, {"Code", "Item", "Qty", "Value"})) << second;
    EXPECT_TRUE(HasLineWith(second, {"DN42", "continued"})) << second;
    EXPECT_TRUE(HasLineWith(second, {"Page 2 of"})) << second;
    EXPECT_EQ(first.find("Total,"), std::string::npos) << "the totals close the last page only";
    const std::string all = PdfText(pdf);
    EXPECT_TRUE(HasLineWith(all, {"74 ", "PM001", "170"})) << "the last line is printed";
    EXPECT_TRUE(HasLineWith(all, {"Total, 74 lines"}));
}

TEST_F(PrintedPdfTest, APdfThatCannotBeWrittenRaisesError75) {
    std::filesystem::create_directories(std::filesystem::path(folder) / "Dispatch-2.pdf");
    try {
        PrintNote(2);
        FAIL() << "a folder stands where the PDF should be";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), 75);
    }
}

// What the procedure does not answer stays off the page; what it answers beyond the
// known fields is shown under its own name.
TEST(NoteLayoutTest, ShowsOnlyWhatTheProceduresAnswered) {
    host::PrintedNote note{"Dispatch", "7", "", {}, true, {"Item Code", "Unit", "Quantity", "Value", "Free"}, {}};
    note.header = {{"Dispatch No", "DN7"}, {"Customer", "Acme"}, {"Vehicle", "TN 01 AB 1234"}, {"Memo 1", ""}};
    note.rows = {{"A1", "BOX", 2.0, 40.0, ""}, {"A2", "PCS", 3.0, 0.0, "Free"}};
    const host::NoteLayout layout = host::LayOutNote(note);

    EXPECT_EQ(std::tuple(layout.number, layout.date), std::tuple("DN7", ""));
    ASSERT_EQ(layout.parties.size(), 1u);
    EXPECT_EQ(std::tuple(layout.parties[0].name, layout.parties[0].lines.empty()), std::tuple("Acme", true));
    ASSERT_EQ(layout.details.size(), 1u);
    EXPECT_EQ(std::tuple(layout.details[0].second, layout.remarks.empty()), std::tuple("TN 01 AB 1234", true));

    std::vector<std::string> headings;
    for (const auto& column : layout.columns) headings.push_back(column.heading);
    EXPECT_EQ(headings, (std::vector<std::string>{"#", "Code", "Unit", "Qty", "Value"}));
    EXPECT_EQ(std::tuple(layout.rows[0].free, layout.rows[1].free, layout.rows[1].cells[4]),
              std::tuple(false, true, "Free"));
    EXPECT_EQ(layout.totals[3], "") << "boxes and pieces are not added up";
    EXPECT_EQ(layout.totals[4], "40.00");
}

// Quantities of one unit add up; the note's own total value is the one printed,
// and its date is the day without the hour.
TEST(NoteLayoutTest, TotalsTheQuantityOfOneUnitAndPrintsTheNotesOwnValue) {
    host::PrintedNote note{"Dispatch", "8", "", {}, true, {"Item Name", "Unit", "Quantity", "Value"}, {}};
    note.header = {{"Date", platform::DateTime(2026, 11, 24, 9, 30, 0)},
                   {"Shipping Address", "Godown 3\r\nPondy Bazaar"},
                   {"Total Value", 99.5}};
    note.rows = {{"Soap", "PCS", 2.0, 40.0}, {"Oil", "PCS", 1.5, 60.0}};
    const host::NoteLayout layout = host::LayOutNote(note);

    EXPECT_EQ(layout.number, "8") << "without a number the key names the note";
    EXPECT_EQ(layout.date, "24/11/2026");
    ASSERT_EQ(layout.parties.size(), 1u);
    EXPECT_EQ(layout.parties[0].caption, "Ship to");
    EXPECT_EQ(layout.parties[0].lines, (std::vector<std::string>{"Godown 3\nPondy Bazaar"}));
    EXPECT_EQ(layout.totals, (std::vector<std::string>{"", "Total, 2 lines", "", "3.5", "99.50"}));
}

}  // namespace
}  // namespace host_test
