// Stored procedures and table functions through the connection: finding them by
// name as the server did, what they answer, and their helpers.
#include <stdexcept>

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server_test_support.h"

namespace server {
namespace {

using testkit::RowsText;

// Takes stock out of a batch, once its named arguments have been read.
std::vector<platform::ResultSet> TakeStock(ProcedureContext& context, const platform::ParameterList& parameters) {
    ProcedureArguments args(context.ObjectName(), parameters, {"@BatchCode", "@Quantity"});
    args.ExpectAtMost(2);
    context.Run("UPDATE Batch_Products SET Quantity = Quantity - ? WHERE Batch_Code = ?", {args.Float(1), args.Int(0)});
    return {};
}

std::vector<platform::ResultSet> CustomerName(ProcedureContext& context, const platform::ParameterList& parameters) {
    ProcedureArguments args(context.ObjectName(), parameters);
    return {context.Query("SELECT Company_Name FROM Customer WHERE CustomerID = ?", {args.Text(0)})};
}

// The demo database through a registry holding only the two procedures above.
class Procedures : public testkit::DemoDatabase {
protected:
    Procedures() {
        registry_.RegisterProcedure("sp_Take_Stock", &TakeStock);
        registry_.RegisterProcedure("sp_get_CustomerName", &CustomerName);
        connection_ = std::make_unique<EmbeddedConnection>(Path(), EmbeddedConnection::Options{}, registry_);
    }

    ProcedureRegistry registry_;
    std::unique_ptr<EmbeddedConnection> connection_;
};

TEST_F(Procedures, AreFoundWithoutRegardToCaseOrOwner) {
    platform::ParameterList customer{{"C002", platform::adtype::VarChar}};
    for (const char* name : {"sp_get_CustomerName", "SP_GET_CUSTOMERNAME", "dbo.sp_get_customername",
                             "[dbo].[sp_get_CustomerName]", " Dbo.Sp_Get_CustomerName "}) {
        EXPECT_EQ(RowsText(connection_->RunProcedure(name, customer)), "Bharat Traders") << name;
    }
    EXPECT_EQ(CanonicalObjectName("other.sp_x"), "other.sp_x");  // another owner's object is another object
    EXPECT_EQ(registry_.FindProcedure("other.sp_get_CustomerName"), nullptr);
}

TEST_F(Procedures, UnknownNamesAndBadArgumentsAreTheServersErrors) {
    using testkit::Refusal;
    auto take = [&](const platform::ParameterList& parameters) {
        return Refusal([&] { connection_->RunProcedure("sp_Take_Stock", parameters); });
    };
    EXPECT_EQ(Refusal([&] { connection_->RunProcedure("dbo.sp_no_such_thing", {}); }),
              "Could not find stored procedure 'dbo.sp_no_such_thing'.");
    EXPECT_EQ(Refusal([&] { connection_->Execute("Select * From dbo.Fn_No_Such(1)"); }),
              "Invalid object name 'Fn_No_Such'.");
    EXPECT_EQ(take({{7, platform::adtype::Integer}}),
              "Procedure or function 'sp_Take_Stock' expects parameter '@Quantity', which was not supplied.");
    EXPECT_EQ(take({{7, 3}, {1, 5}, {1, 5}}), "Procedure or function sp_Take_Stock has too many arguments.");
    EXPECT_EQ(take({{"7b", platform::adtype::VarChar}, {1, 5}}),
              "Conversion failed when converting the varchar value '7b' to data type int.");
    // Nothing was taken by the refused calls.
    EXPECT_EQ(RowsText(connection_->ExecuteNative("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 7")), "144r");
}

// Run, Scalar, LastInsertId and the row count are carried by every save procedure,
// whose tests read what they wrote; no procedure calls another yet.
TEST_F(Procedures, ContextCallsProceduresAndRefusesStatementsItCannotBind) {
    ProcedureContext context(*connection_, "helpers");
    EXPECT_EQ(RowsText(context.CallProcedure("dbo.sp_get_CustomerName", {{"C001", 200}}).front()), "Anand Stores");
    EXPECT_THROW(context.Query("SELECT ? FROM Items", {}), platform::RuntimeError);
    EXPECT_THROW(context.Query("SELECT 1; SELECT 2"), platform::RuntimeError);
}

// Connections made without a registry use the default one: every save test relies on it.
TEST(ProcedureRegistry, RefusesANameTwice) {
    const Procedure answer = [](ProcedureContext&, const platform::ParameterList&) {
        return std::vector<platform::ResultSet>{};
    };
    ProcedureRegistry registry;
    registry.RegisterProcedure("sp_x", answer);
    EXPECT_THROW(registry.RegisterProcedure("DBO.SP_X", answer), std::logic_error);
}

}  // namespace
}  // namespace server
