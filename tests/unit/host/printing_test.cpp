#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "canned_connection.h"
#include "host_fixture.h"

namespace host_test {
namespace {

using platform::ResultSet;
using platform::Value;

std::string ReadFile(const std::string& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

class PrintingTest : public ::testing::Test {
protected:
    PrintingTest() {
        canned->procedures["sp_view_DispatchAbstract"] = {
            ResultSet{{}, {}, 1},
            ResultSet{{"DispatchID", "CustomerID", "DocReference"}, {{Value(15), Value("C1"), Value("DN15")}}}};
        canned->procedures["sp_view_DispatchDetails_MUOM_QAX"] = {
            ResultSet{{"Product_Code", "Quantity"}, {{Value("SOAP1"), Value(5)}, {Value("SOAP2"), Value(2.5)}}}};
        host.SetOutputFolder(folder.str());
    }

    TempPath folder{"-notes"};
    std::shared_ptr<CannedConnection> canned = std::make_shared<CannedConnection>();
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    host::PlainHost host{canned, settings, transcript, answers};
    host_services::HostTools& tools = host.Services().tools;
};

TEST_F(PrintingTest, TheDialogRendersHeaderAndLinesToAFile) {
    tools.ShowPrintDialog("Dispatch.ini", "sp_view_DispatchAbstract", "sp_view_DispatchDetails_MUOM_QAX", "15",
                          "Dispatch", 0, 1);
    std::string file = (std::filesystem::path(folder.str()) / "Dispatch-15.txt").string();
    ASSERT_TRUE(std::filesystem::exists(file));
    std::string note = ReadFile(file);
    EXPECT_NE(note.find("Dispatch 15\n"), std::string::npos) << note;
    EXPECT_NE(note.find("CustomerID: C1\n"), std::string::npos) << note;
    EXPECT_NE(note.find("DocReference: DN15\n"), std::string::npos) << note;
    EXPECT_NE(note.find("SOAP1 | 5\nSOAP2 | 2.5\n"), std::string::npos) << note;
    EXPECT_NE(note.find("2 lines"), std::string::npos) << note;
    EXPECT_EQ(transcript.Lines().back(), "print Dispatch 15 -> " + file + " (dialog, flag 1)");
    ASSERT_EQ(canned->lastParameters.size(), 1u);
    EXPECT_EQ(canned->lastParameters[0].type, platform::adtype::Integer);
}

TEST_F(PrintingTest, DirectPrintingWritesTheSameNote) {
    tools.PrintDirect("Dispatch.ini", "sp_view_DispatchAbstract", "sp_view_DispatchDetails_MUOM_QAX", 0,
                      "Dispatch", 15);
    std::string file = (std::filesystem::path(folder.str()) / "Dispatch-15.txt").string();
    EXPECT_NE(ReadFile(file).find("SOAP2 | 2.5"), std::string::npos);
    EXPECT_EQ(transcript.Lines().back(), "print Dispatch 15 -> " + file);
}

TEST_F(PrintingTest, WithoutProcedureNamesTheNoteIsStillWritten) {
    tools.ShowPrintDialog("", "", "", "15", "Dispatch", 0, 0);
    std::string file = (std::filesystem::path(folder.str()) / "Dispatch-15.txt").string();
    EXPECT_EQ(ReadFile(file).rfind("Dispatch 15\n", 0), 0u);
    EXPECT_TRUE(canned->calls.empty());
    EXPECT_EQ(transcript.Lines().back(), "print Dispatch 15 -> " + file + " (dialog, flag 0)");
}

TEST_F(PrintingTest, ServerAndFileErrorsReachTheCaller) {
    EXPECT_THROW(tools.ShowPrintDialog("", "sp_no_such", "", "15", "Dispatch", 0, 0), platform::RuntimeError);
    std::ofstream(folder.str() + "-file") << "in the way";
    host.SetOutputFolder(folder.str() + "-file");
    try {
        tools.PrintDirect("", "", "", 0, "Dispatch", 15);
        FAIL() << "a file stands where the folder should be";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), 75);
    }
    std::filesystem::remove(folder.str() + "-file");
    EXPECT_TRUE(transcript.Lines().empty());
}

}  // namespace
}  // namespace host_test
