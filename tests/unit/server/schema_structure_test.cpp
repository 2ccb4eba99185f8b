// The schema script as a whole: it runs, it runs inside a caller's transaction, it
// checks the form of dates and flags, and its documentation names every table it makes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "schema_test_db.h"
#include "server/schema.h"

namespace {

using schema_test::TestDb;

std::set<std::string> TablesOf(TestDb& db) {
    std::set<std::string> names;
    for (const auto& row : db.Rows("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'"))
        names.insert(row.at(0));
    return names;
}

std::set<std::string> ColumnsOf(TestDb& db, const std::string& table) {
    std::set<std::string> names;
    for (const auto& row : db.Rows("PRAGMA table_info(" + table + ")")) names.insert(row.at(1));
    return names;
}

TEST(SchemaScript, RunsOnAnEmptyDatabaseAndLeavesItConsistent) {
    TestDb db;
    ASSERT_EQ(db.Exec(server::SchemaScript()), "");
    EXPECT_EQ(db.Text("PRAGMA integrity_check"), "ok");
    EXPECT_TRUE(db.ForeignKeyViolations().empty());
}

TEST(SchemaScript, RunsInsideTheCallersTransaction) {
    TestDb db;
    ASSERT_EQ(db.Exec("BEGIN;"), "");
    ASSERT_EQ(db.Exec(server::SchemaScript()), "");
    ASSERT_EQ(db.Exec("ROLLBACK;"), "");
    EXPECT_TRUE(TablesOf(db).empty()) << "a COMMIT inside the script would have kept the tables";
}

TEST(SchemaScript, GivesEveryDateTimeAndFlagColumnItsFormatCheck) {
    TestDb db;
    ASSERT_EQ(db.Exec(server::SchemaScript()), "");
    int dateColumns = 0, flagColumns = 0;
    for (const auto& table : TablesOf(db)) {
        const std::string sql = db.Text("SELECT sql FROM sqlite_master WHERE name = '" + table + "'");
        for (const auto& row : db.Rows("PRAGMA table_info(" + table + ")")) {
            const std::string& column = row.at(1);
            const std::string& type = row.at(2);
            if (type == "DATETIME") {
                ++dateColumns;
                EXPECT_NE(sql.find("CHECK (" + column + " GLOB '[0-9]"), std::string::npos) << table << "." << column;
            } else if (type == "BIT") {
                ++flagColumns;
                EXPECT_NE(sql.find("CHECK (" + column + " IN (0, 1))"), std::string::npos) << table << "." << column;
            }
        }
    }
    EXPECT_GT(dateColumns, 20);
    EXPECT_GT(flagColumns, 30);
}

TEST(WithTypeChecks, ChecksColumnLinesAndLeavesOtherTextAlone) {
    const std::string script =
        "CREATE TABLE T (\n"
        "    Made DATETIME NOT NULL,\n"
        "    Done BIT DEFAULT 0,\n"
        "    Bits INTEGER,\n"
        "    -- Note DATETIME in a comment\n"
        "    BITTER TEXT\n"
        ");\n";
    const std::string out = server::WithTypeChecks(script);
    EXPECT_NE(out.find("Made DATETIME CHECK (Made GLOB '"), std::string::npos) << out;
    EXPECT_NE(out.find("Done BIT CHECK (Done IN (0, 1)) DEFAULT 0,"), std::string::npos) << out;
    EXPECT_NE(out.find("    Bits INTEGER,\n"), std::string::npos) << out;
    EXPECT_NE(out.find("    -- Note DATETIME in a comment\n"), std::string::npos) << out;
    EXPECT_NE(out.find("    BITTER TEXT\n"), std::string::npos) << out;
}

TEST(SchemaScript, ComparesTextWithoutRegardToCase) {
    TestDb db;
    ASSERT_EQ(db.Exec(server::SchemaScript()), "");
    ASSERT_EQ(db.Exec("INSERT INTO TransactionDocNumber (TransactionType, DocumentType) VALUES (5, 'DN-TN');"
                      "INSERT INTO VoucherPrefix (TranID, Prefix) VALUES ('Invoice', 'INV');"), "");
    // The document type box writes back the stored spelling of what was typed.
    EXPECT_EQ(db.Text("SELECT DocumentType FROM TransactionDocNumber WHERE DocumentType = 'dn-tn'"), "DN-TN");
    EXPECT_EQ(db.Text("SELECT Prefix FROM VoucherPrefix WHERE TranID = 'dispatch'"), "DN");
    EXPECT_NE(db.Exec("INSERT INTO VoucherPrefix (TranID, Prefix) VALUES ('INVOICE', 'I');"), "");
}

TEST(SchemaDocumentation, DescribesEveryTable) {
    const auto docs = std::filesystem::path(DISPATCH_SOURCE_DIR) / "docs/schema.md";
    std::ifstream file(docs);
    ASSERT_TRUE(file) << docs;
    std::stringstream text;
    text << file.rdbuf();
    std::set<std::string> documented;
    const std::string body = text.str();
    static const std::regex heading(R"(\n### `([A-Za-z_0-9]+)`)");
    for (std::sregex_iterator it(body.begin(), body.end(), heading), end; it != end; ++it) documented.insert((*it)[1]);

    TestDb db;
    ASSERT_EQ(db.Exec(server::SchemaScript()), "");
    for (const auto& table : TablesOf(db)) EXPECT_TRUE(documented.count(table)) << table << " is not in docs/schema.md";
    for (const auto& table : documented) EXPECT_TRUE(TablesOf(db).count(table)) << table << " is documented but not made";
}

}  // namespace
