// Opening, making and copying database files: what is not ours is refused and
// left as it was, and a copy is a consistent snapshot.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/runtime_error.h"
#include "server/database_files.h"
#include "server/schema.h"
#include "server_test_support.h"
#include "support/scratch_files.h"

namespace server {
namespace {

using std::filesystem::exists;
using test_support::ScratchPath;
using ::testing::HasSubstr;
using testkit::Refusal;
using testkit::RowsText;

std::string Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// A new scratch file holding the text.
std::string Written(const std::string& text) {
    const std::string path = ScratchPath("written");
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

// The schema script runs inside the transaction that makes every database; a COMMIT
// of its own would end that transaction and fail every test that opens one.

TEST(DatabaseFiles, RefusesWhatIsNotOursAndLeavesItAlone) {
    const std::string missing = ScratchPath("missing", ".db");
    EXPECT_EQ(Refusal([&] { OpenDatabase(missing); }), "The database file '" + missing + "' does not exist.");
    EXPECT_FALSE(exists(missing));

    const std::string text = Written("These are not the rows you are looking for.\n");
    EXPECT_THAT(Refusal([&] { OpenDatabase(text); }), HasSubstr("is not a dispatch database"));
    EXPECT_EQ(Contents(text), "These are not the rows you are looking for.\n");

    const std::string foreign = ScratchPath("foreign", ".db");
    EmbeddedConnection(foreign, {.create = true})
        .ExecuteScript(
            "CREATE TABLE SchemaInfo (Name TEXT, Value TEXT); INSERT INTO SchemaInfo VALUES "
            "('Application', 'Payroll');");
    EXPECT_EQ(Refusal([&] { OpenDatabase(foreign); }), "'" + foreign + "' is not a dispatch database.");
}

TEST(DatabaseFiles, MakingRefusesAnExistingFileAndCleansUpAFailure) {
    const std::string existing = Written("keep me");
    EXPECT_THAT(Refusal([&] { CreateDatabaseFromScripts(existing, {SchemaScript()}); }), HasSubstr("exists already"));
    EXPECT_EQ(Contents(existing), "keep me");

    const std::string broken = ScratchPath("broken", ".db");
    EXPECT_THAT(Refusal([&] {
                    CreateDatabaseFromScripts(broken, {SchemaScript(), "CREATE TABLE Customer (x);"});
                }),
                HasSubstr("already exists"));
    EXPECT_EQ(std::tuple(exists(broken), exists(broken + "-wal")), std::tuple(false, false));

    const std::string anonymous = ScratchPath("anonymous", ".db");
    EXPECT_THAT(Refusal([&] { CreateDatabaseFromScripts(anonymous, {"CREATE TABLE t (a);"}); }),
                HasSubstr("SchemaInfo"));
    EXPECT_FALSE(exists(anonymous));

    // An empty file, as a temporary-name call leaves it, may be filled. (The settings a
    // file opens with are read by the copy and transaction tests.)
    const std::string empty = Written("");
    CreateDatabaseFromScripts(empty, {SchemaScript()});
    EXPECT_TRUE(IsDispatchDatabase(*OpenEmbedded(empty)));
}

TEST(DatabaseFiles, ACopyIsAConsistentSnapshot) {
    const std::string source = ScratchPath("source", ".db"), copied = ScratchPath("copy", ".db");
    auto writer = CreateDatabase(source, true);
    writer->Execute("Update Customer Set CreditLimit = 1 Where CustomerID = 'C001'");
    const std::string details = RowsText(writer->ExecuteNative("SELECT count(*) FROM DispatchDetail"));

    // A clerk in the middle of a save: what is not committed is not copied.
    writer->BeginTrans();
    writer->Execute("Delete From DispatchDetail");
    CopyDatabase(source, copied);
    writer->RollbackTrans();

    auto copy = OpenEmbedded(copied);
    EXPECT_EQ(RowsText(copy->ExecuteNative("SELECT count(*) FROM DispatchDetail")), details);
    EXPECT_EQ(RowsText(copy->ExecuteNative("SELECT CreditLimit FROM Customer WHERE CustomerID = 'C001'")), "1r");

    EXPECT_THAT(Refusal([&] { CopyDatabase(source, copied); }), HasSubstr("exists already"));
    const std::string second = ScratchPath("copy", ".db");
    EXPECT_THAT(Refusal([&] { CopyDatabase(Written("text"), second); }), HasSubstr("not a dispatch database"));
    EXPECT_FALSE(exists(second));
}

}  // namespace
}  // namespace server
