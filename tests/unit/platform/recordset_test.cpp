#include <gtest/gtest.h>

#include "error_number.h"
#include "platform/database.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;

ResultSet Customers() {
    return {{"CustomerID", "Company_Name"}, {{Value("C1"), Value("Apex Traders")}, {Value("C2"), Value::Null()}}};
}

TEST(Recordset, AnEmptyOrDefaultSetIsAtBothEnds) {
    Recordset empty(std::vector<ResultSet>{{{"CustomerID"}, {}}});
    EXPECT_TRUE(empty.Bof());
    EXPECT_TRUE(empty.Eof());
    EXPECT_EQ(ErrorNumberOf([&] { empty.Fields(0); }), err::NoCurrentRecord);
    EXPECT_EQ(ErrorNumberOf([&] { empty.MoveNext(); }), err::NoCurrentRecord);

    Recordset noResult(std::vector<ResultSet>{}), nothing;  // a call that answered with no result at all
    for (Recordset* set : {&noResult, &nothing}) EXPECT_TRUE(set->Bof() && set->Eof());
    EXPECT_FALSE(nothing.NextRecordset());
}

TEST(Recordset, WalksItsRowsRefusesToGoPastTheEndAndFindsFieldsByNameInAnyCase) {
    Recordset set(std::vector<ResultSet>{Customers()});
    EXPECT_FALSE(set.Bof());
    EXPECT_FALSE(set.Eof());
    EXPECT_EQ(set.Fields(0), Value("C1"));
    set.MoveNext();
    EXPECT_EQ(set.Fields(0), Value("C2"));
    EXPECT_TRUE(set.Fields(1).IsNull());
    set.MoveNext();
    EXPECT_TRUE(set.Eof());
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields(0); }), err::NoCurrentRecord);
    EXPECT_EQ(ErrorNumberOf([&] { set.MoveNext(); }), err::NoCurrentRecord);
    set.MoveFirst();
    EXPECT_EQ(set.Fields("CustomerID"), Value("C1"));
    EXPECT_EQ(set.RecordCount(), 2);
    EXPECT_EQ(set.Fields("COMPANY_NAME"), Value("Apex Traders"));
    EXPECT_EQ(set.FieldCount(), 2);
    EXPECT_EQ(set.FieldName(1), "Company_Name");
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields("Company"); }), err::ItemNotFound);
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields(2); }), err::ItemNotFound);
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields(-1); }), err::ItemNotFound);
}

TEST(Recordset, NextRecordsetStepsThroughEverySetThenCloses) {
    ResultSet rowCount;
    rowCount.rowsAffected = 3;
    ResultSet answer{{"Serial"}, {{Value(42)}}};
    Recordset set(std::vector<ResultSet>{rowCount, answer, Customers()});

    EXPECT_EQ(set.RowsAffected(), 3);
    EXPECT_TRUE(set.Eof());
    ASSERT_TRUE(set.NextRecordset());
    EXPECT_EQ(set.Fields(0), Value(42));
    ASSERT_TRUE(set.NextRecordset());
    EXPECT_EQ(set.Fields("customerid"), Value("C1"));  // each set starts at its first row
    EXPECT_FALSE(set.NextRecordset());
    EXPECT_FALSE(set.IsOpen());
    EXPECT_EQ(ErrorNumberOf([&] { set.Eof(); }), 3704);

    Recordset closed(std::vector<ResultSet>{Customers()});
    closed.Close();
    EXPECT_FALSE(closed.IsOpen());
    EXPECT_EQ(ErrorNumberOf([&] { closed.Fields(0); }), 3704);
}

}  // namespace
}  // namespace platform
