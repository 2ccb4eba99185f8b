// One demo database for a whole suite: the schema and the demo data of a fixed day,
// read by the tests and never changed by them.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "platform/convert.h"
#include "schema_test_db.h"
#include "server/demo_data.h"
#include "server/schema.h"

namespace schema_test {

class DemoDatabase : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        db_ = std::make_unique<TestDb>();
        schemaError_ = db_->Exec(server::SchemaScript());
        demoError_ = db_->Exec(server::DemoDataScript(Today()));
    }
    static void TearDownTestSuite() { db_.reset(); }

    void SetUp() override {
        ASSERT_EQ(schemaError_, "");
        ASSERT_EQ(demoError_, "");
    }

    // A leap day's neighbour, so that the offsets cross a month and a year's end.
    static platform::Date Today() { return platform::DateSerial(2024, 3, 1); }
    // The date-time text of a day counted from today, as the demo stores it.
    static std::string Day(int offset) {
        return server::ExpandDemoDates("{T" + std::string(offset < 0 ? "-" : "+") + std::to_string(std::abs(offset)) + "}",
                                       Today());
    }

    TestDb& db() { return *db_; }
    long long Count(const std::string& fromWhere) { return db_->Integer("SELECT COUNT(*) FROM " + fromWhere); }

private:
    static inline std::unique_ptr<TestDb> db_;
    static inline std::string schemaError_;
    static inline std::string demoError_;
};

}  // namespace schema_test
