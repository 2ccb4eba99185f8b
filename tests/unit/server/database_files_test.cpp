// Opening, making and copying database files: what is not ours is refused and
// left as it was, and a copy is a consistent snapshot.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "server/database_files.h"
#include "server/schema.h"
#include "server_test_support.h"

namespace server {
namespace {

using testkit::RowsText;

std::string Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void Write(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

TEST(DatabaseFiles, AMadeDatabaseOpensWithItsSettings) {
    testkit::ScratchFolder folder;
    const std::string path = folder.File("made.db");
    CreateDatabaseFromScripts(path, {testkit::SmallSchema()});
    auto connection = OpenEmbedded(path);
    EXPECT_TRUE(IsDispatchDatabase(*connection));
    EXPECT_EQ(RowsText(connection->ExecuteNative("PRAGMA journal_mode")), "wal");
    EXPECT_EQ(RowsText(connection->ExecuteNative("PRAGMA foreign_keys")), "1");
    platform::ConnectionPtr plain = OpenDatabase(path);
    EXPECT_EQ(RowsText(plain->Execute("Select count(*) From Customer")), "2");
}

TEST(DatabaseFiles, TheSchemaScriptRunsInsideTheCallersTransaction) {
    testkit::ScratchFolder folder;
    EmbeddedConnection::Options create;
    create.create = true;
    EmbeddedConnection db(folder.File("schema.db"), create);
    db.BeginTrans();
    db.ExecuteScript(SchemaScript());
    db.RollbackTrans();  // refused, were the transaction already ended by a COMMIT in the script
    EXPECT_EQ(RowsText(db.ExecuteNative("SELECT count(*) FROM sqlite_master")), "0");
}

TEST(DatabaseFiles, RefusesWhatIsNotOursAndLeavesItAlone) {
    testkit::ScratchFolder folder;
    EXPECT_EQ(testkit::Refusal([&] { OpenDatabase(folder.File("missing.db")); }),
              "The database file '" + folder.File("missing.db") + "' does not exist.");
    EXPECT_FALSE(std::filesystem::exists(folder.File("missing.db")));

    const std::string text = folder.File("notes.txt");
    Write(text, "These are not the rows you are looking for.\n");
    EXPECT_NE(testkit::Refusal([&] { OpenDatabase(text); }).find("is not a dispatch database"), std::string::npos);
    EXPECT_EQ(Contents(text), "These are not the rows you are looking for.\n");

    const std::string foreign = folder.File("foreign.db");
    {
        EmbeddedConnection::Options create;
        create.create = true;
        EmbeddedConnection other(foreign, create);
        other.ExecuteScript(
            "CREATE TABLE SchemaInfo (Name TEXT, Value TEXT); "
            "INSERT INTO SchemaInfo VALUES ('Application', 'Payroll');");
    }
    EXPECT_EQ(testkit::Refusal([&] { OpenDatabase(foreign); }), "'" + foreign + "' is not a dispatch database.");
}

TEST(DatabaseFiles, MakingRefusesAnExistingFileAndCleansUpAFailure) {
    testkit::ScratchFolder folder;
    const std::string existing = folder.File("existing.db");
    Write(existing, "keep me");
    EXPECT_NE(
        testkit::Refusal([&] { CreateDatabaseFromScripts(existing, {testkit::SmallSchema()}); }).find("exists already"),
        std::string::npos);
    EXPECT_EQ(Contents(existing), "keep me");

    const std::string broken = folder.File("broken.db");
    EXPECT_NE(testkit::Refusal([&] {
                  CreateDatabaseFromScripts(broken, {testkit::SmallSchema(), "CREATE TABLE Customer (x);"});
              }).find("already exists"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(broken));
    EXPECT_FALSE(std::filesystem::exists(broken + "-wal"));

    const std::string anonymous = folder.File("anonymous.db");
    EXPECT_NE(
        testkit::Refusal([&] { CreateDatabaseFromScripts(anonymous, {"CREATE TABLE t (a);"}); }).find("SchemaInfo"),
        std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(anonymous));

    // An empty file, as a temporary-name call leaves it, may be filled.
    const std::string empty = folder.File("empty.db");
    Write(empty, "");
    EXPECT_NO_THROW(CreateDatabaseFromScripts(empty, {testkit::SmallSchema()}));
    EXPECT_NO_THROW(OpenDatabase(empty));
}

TEST(DatabaseFiles, ACopyIsAConsistentPrivateSnapshot) {
    testkit::ScratchFolder folder;
    ProcedureRegistry registry;
    const std::string source = folder.File("source.db");
    auto writer = testkit::MakeSmallDatabase(source, registry);
    writer->Execute("Update Customer Set CreditLimit = 1 Where CustomerID = 'C001'");

    // A clerk in the middle of a save: what is not committed is not copied.
    writer->BeginTrans();
    writer->Execute("Delete From DispatchDetail");
    CopyDatabase(source, folder.File("copy.db"));
    writer->RollbackTrans();

    auto copy = OpenEmbedded(folder.File("copy.db"));
    EXPECT_EQ(RowsText(copy->ExecuteNative("SELECT count(*) FROM DispatchDetail")), "2");
    EXPECT_EQ(RowsText(copy->ExecuteNative("SELECT CreditLimit FROM Customer WHERE CustomerID = 'C001'")), "1r");
    EXPECT_EQ(RowsText(copy->ExecuteNative("PRAGMA journal_mode")), "wal");

    copy->Execute("Delete From Customer Where CustomerID = 'C002'");
    EXPECT_EQ(RowsText(writer->ExecuteNative("SELECT count(*) FROM Customer")), "2");

    EXPECT_NE(testkit::Refusal([&] { CopyDatabase(source, folder.File("copy.db")); }).find("exists already"),
              std::string::npos);
    Write(folder.File("plain.txt"), "text");
    EXPECT_NE(testkit::Refusal([&] {
                  CopyDatabase(folder.File("plain.txt"), folder.File("copy2.db"));
              }).find("not a dispatch database"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.File("copy2.db")));
}

}  // namespace
}  // namespace server
