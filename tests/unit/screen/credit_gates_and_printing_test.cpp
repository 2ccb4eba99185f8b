// The credit gates ahead of a save, GetPrimaryItemName's texts, and the two ways a
// note is printed.
#include <filesystem>
#include <fstream>

#include "screen_fixture.h"
#include "support/scratch_files.h"

namespace screen_test {
namespace {

class CreditGates : public ScreenTest {
protected:
    screen::Zuro_frmDispatch_Dispatch& OpenWithPassword() {
        settings.Set("GetCreditLimitPasswordEnabled", "true");
        settings.Set("AdministratorPassword", "s3cret");
        return Open(2);
    }
};

TEST_F(CreditGates, WithoutAGroupTheScreenComparesExposureWithTheLimit) {
    auto& f = OpenWithPassword();
    // No limit, and an exposure equal to the limit, pass without a question.
    EXPECT_TRUE(f.CheckCreditLimit(1e9, -1));
    EXPECT_TRUE(f.CheckCreditLimit(1000, 1000));
    EXPECT_FALSE(TranscriptHas("InputBoxE"));

    answers.Queue("InputBoxE", {"s3cret"});
    EXPECT_TRUE(f.CheckCreditLimit(1000.01, 1000));
    answers.Queue("InputBoxE", {"S3CRET"});
    EXPECT_FALSE(f.CheckCreditLimit(1000.01, 1000));
    EXPECT_TRUE(TranscriptHas("message 64 \"Invalid Password\""));
    // A cancelled dialog refuses without a word.
    answers.Queue("InputBoxE", {"cancel"});
    const auto before = transcript.Lines().size();
    EXPECT_FALSE(f.CheckCreditLimit(0.01, 0));
    EXPECT_EQ(transcript.Lines().size(), before + 1);  // the dialog's own line only

    // With the setting off the limit does not apply at all.
    settings.Set("GetCreditLimitPasswordEnabled", "false");
    EXPECT_TRUE(f.CheckCreditLimit(1e9, 0));
}

TEST_F(CreditGates, TheServersRefusalAsksForThePasswordOnlyWhenTheSettingSaysSo) {
    auto& f = Open(2);
    // Deepam Supermarket owes more than its limit: the server says so.
    f.szCustomerCode = "C004";
    f.szCurrentGroupID = "1";
    EXPECT_TRUE(f.CheckCreditGates(1, 3, 0));
    EXPECT_FALSE(TranscriptHas("InputPassword"));

    settings.Set("GetCreditLimitPasswordEnabled", "true");
    settings.Set("AdministratorPassword", "s3cret");
    answers.Queue("InputPassword", {"cancel"});
    EXPECT_FALSE(f.CheckCreditGates(1, 3, 0));
    answers.Queue("InputPassword", {"s3cret"});
    EXPECT_TRUE(f.CheckCreditGates(1, 3, 0));

    // Ravi Stores is well inside its limit: no question.
    f.szCustomerCode = "C005";
    EXPECT_TRUE(f.CheckCreditGates(1, 1, 0));
}

TEST_F(CreditGates, AllCategoriesTakeTheScreensOwnComparisonOfTheGridsValue) {
    auto& f = OpenWithPassword();
    f.bAllCategories = true;
    f.szCustomerCode = "C005";  // limit 20000, owes nothing
    auto& grid = f.DTFlexDispatch;
    grid.SetGridRows(2);
    grid.SetCell(1, grid::colQuantity, "100");
    grid.SetCell(1, grid::colSalePrice, "200");
    EXPECT_TRUE(f.CheckCreditGates(0, 0, 1));  // 20000: equal to the limit
    // A quantity expression counts by its leading figure only.
    grid.SetCell(2, grid::colQuantity, "1*0*0");
    grid.SetCell(2, grid::colSalePrice, "0.5");
    answers.Queue("InputBoxE", {"cancel"});
    EXPECT_FALSE(f.CheckCreditGates(0, 0, 2));
}

TEST_F(CreditGates, APrimaryRowsNameExplainsAFreeRowThatCannotBeFilled) {
    auto& f = Open(2);
    auto& grid = f.DTFlexDispatch;
    grid.SetGridRows(3);
    const char* codes[] = {"FD001", "FD002", "FD005"};
    for (int row = 1; row <= 3; ++row) grid.SetCell(row, grid::colItemCode, codes[row - 1]);
    EXPECT_EQ(std::tuple(f.GetPrimaryItemName(3, "2", ""), f.GetPrimaryItemName(3, "", "1"),
                         f.GetPrimaryItemName(3, "0", "0")),
              std::tuple("Free SKU not available. You cannot sale this SKU - FD002",
                         "Free SKU not available. You cannot sale this SKU - FD001",
                         "Free SKU not available. You cannot save this Invoice."));
    grid.SetCell(3, grid::colItemCheck, "x");
    EXPECT_EQ(f.GetPrimaryItemName(3, "", ""), "Insufficient stock for - FD005");
}

class Printing : public ScreenTest {
protected:
    std::string PrintLines() const {
        std::string lines;
        for (const auto& line : transcript.Lines())
            if (line.rfind("print ", 0) == 0) lines += line + "\n";
        return lines;
    }
    void TemplateAt(const std::string& folder, const std::string& body) {
        std::filesystem::create_directories(folder);
        std::ofstream(folder + "/Dispatch.ini") << body;
        settings.Set("GetIniFilePath", folder + "/");
        settings.Set("OutputFolder", folder);
    }
};

TEST_F(Printing, AfterASaveTheModeDecidesWhetherToAskAndHowToPrint) {
    const std::string folder = test_support::ScratchPath("print");
    TemplateAt(folder, "[general]\nabstractsp = sp_print_DispatchAbstract\nDetailSP=sp_print_DispatchDetail\n");
    auto& f = Open(2);

    // The document service without a template for the note prints nothing.
    settings.Set("GetPrinterService", "1");
    const std::string documentTemplate = settings.Text("PrintDocument");
    settings.Set("PrintDocument", "");
    settings.Set("GetPrintOnSaveMode", "0");
    f.PrintSavedDispatch(9);
    EXPECT_EQ(PrintLines(), "");
    settings.Set("PrintDocument", documentTemplate);
    settings.Set("GetPrinterService", "0");

    settings.Set("GetPrintOnSaveMode", "2");
    f.PrintSavedDispatch(9);
    EXPECT_EQ(PrintLines(), "");

    settings.Set("GetPrintOnSaveMode", "0");
    f.PrintSavedDispatch(9);
    EXPECT_EQ(PrintLines(), "print Dispatch 9 -> " + folder + "/Dispatch-9.txt (dialog, flag 0)\n");
    std::ifstream printed(folder + "/Dispatch-9.txt");
    std::string text((std::istreambuf_iterator<char>(printed)), std::istreambuf_iterator<char>());
    EXPECT_NE(text.find("Customer: Anand Stores"), std::string::npos) << text;

    settings.Set("GetPrintOnSaveMode", "1");
    answers.Queue("AskMessage", {"6"});
    f.PrintSavedDispatch(9);
    answers.Queue("AskMessage", {"2"});
    f.PrintSavedDispatch(9);
    EXPECT_NE(PrintLines().find("(dialog, flag 1)"), std::string::npos);
}

TEST_F(Printing, AViewedNotePrintsDirectOnNoAndThroughTheDialogOnYes) {
    const std::string folder = test_support::ScratchPath("print");
    // No settings file at all: the procedures are empty and the note still goes out.
    settings.Set("GetIniFilePath", folder + "/missing/");
    settings.Set("OutputFolder", folder);
    auto& f = Open(4);
    f.szDocNumbers = "9";

    settings.Set("GetPrintOnSaveMode", "0");
    f.PrintViewedDispatch();
    EXPECT_EQ(PrintLines(), "print Dispatch 9 -> " + folder + "/Dispatch-9.txt\n");

    settings.Set("GetPrintOnSaveMode", "2");  // asks here, unlike after a save
    answers.Queue("AskMessage", {"6"});
    f.PrintViewedDispatch();
    EXPECT_NE(PrintLines().find("(dialog, flag 1)"), std::string::npos);
}

}  // namespace
}  // namespace screen_test
