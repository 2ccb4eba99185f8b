// The host's global routines: documents and their references, lookups, units of
// measure, focus and keys.
#include "host_fixture.h"
#include "platform/controls.h"
#include "platform/convert.h"

namespace host_test {
namespace {

class GlobalTest : public HostTest {
protected:
    GlobalTest() {
        Sql(R"(
            INSERT INTO TransactionDocNumber (TransactionType, DocumentType, Prefix, LastCount, Active, IsDefault) VALUES
                (5, 'DN-A', 'DA', 41, 1, 1), (5, 'OLD', 'OL', 3, 0, 0), (5, 'Quo''te', 'Q', 0, 1, 0),
                (6, 'OTHER', 'OT', 1, 1, 1);
            INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C2', 'O''Brien Stores');
            INSERT INTO SOAbstract (SONumber, SODate, CustomerID) VALUES (12, '2026-11-01 00:00:00', 'C2');
            INSERT INTO UOM (UOM, Description) VALUES (1, 'Piece'), (2, 'Box'), (3, 'Carton');
            INSERT INTO ItemCategories (CategoryID, Category_Name) VALUES (1, 'Soaps');
            INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2,
                               UOM2_Conversion) VALUES
                ('ONE', 'Loose soap', 1, 1, 1, NULL, NULL, NULL, NULL),
                ('KID''S', 'Kid''s soap', 1, 1, 1, NULL, NULL, NULL, NULL),
                ('TWO', 'Soap in boxes', 1, 2, 1, 2, 12, NULL, NULL),
                ('THREE', 'Soap in cartons', 1, 3, 1, 2, 12, 3, 144);
        )");
    }

    // Validates and checks that a refusal leaves both out values at 0.
    bool Valid(const std::string& item, const std::string& quantity, double* base = nullptr) {
        int parts = -1;
        double baseQuantity = -1;
        bool valid = global().ValidateUOMQuantity(item, quantity, parts, baseQuantity);
        if (!valid) {
            EXPECT_EQ(parts, 0) << quantity;
            EXPECT_EQ(baseQuantity, 0) << quantity;
        }
        if (base) *base = baseQuantity;
        return valid;
    }
};

TEST_F(GlobalTest, TheNextReferenceIsThePrefixAndTheCountAfterTheLast) {
    const std::vector<std::pair<std::string, std::string>> next = {{"DN-A", "DA42"}, {"dn-a", "DA42"}, {"OLD", "OL4"},
                                                                   {"Quo'te", "Q1"}, {"OTHER", ""},    {"NONE", ""}};
    for (const auto& [type, reference] : next) EXPECT_EQ(global().GetNextDocumentReference(type, 5), reference) << type;
}

TEST_F(GlobalTest, ReferencesSplitIntoLeadAndNumber) {
    using Case = std::tuple<const char*, long, int>;
    for (const auto& [reference, number, prefix] :
         std::vector<Case>{{"DN1234", 1234, 2}, {"1234", 1234, 0}, {"DN/12X3", 12, 3}, {"DN", 0, 2}}) {
        EXPECT_EQ(global().ParseDocumentNumber(reference), number) << reference;
        EXPECT_EQ(global().GetDocumentPrefixLength(reference), prefix) << reference;
    }
    EXPECT_EQ(std::tuple(global().ParseDocumentNumber(""), global().GetVoucherPrefix("NO SUCH")), std::tuple(0, ""));
}

TEST_F(GlobalTest, LookupsEscapeTheirValues) {
    EXPECT_EQ(std::tuple(global().LookupName("Customer", "CustomerID", "Company_Name", "C2"),
                         global().LookupCode("Customer", "CustomerID", "Company_Name", "O'Brien Stores"),
                         global().LookupCode("Customer", "CustomerID", "Company_Name", "x' Or '1' = '1"),
                         global().LookupName("Customer", "CustomerID", "Company_Name", "C9"),
                         global().LookupValue(*connection, "Select Company_Name From Customer Where 1 = 0").IsNull()),
              std::tuple("O'Brien Stores", "C2", "", "", true));
    for (const auto& [reference, found] :
         std::vector<std::pair<std::string, std::string>>{{"SC12", "12"}, {"12", "12"}, {"SC99", ""}, {"SC", ""}})
        EXPECT_EQ(platform::ToText(global().LookupFieldByKey("SOAbstract", "SONumber", reference)), found) << reference;
}

// Every answer of a saving procedure is read past its row counts in the save sessions;
// here what they never meet.
TEST_F(GlobalTest, NextRecordsetLeavesTheCallersSetAndFallsBackOnAnEmptyResult) {
    using platform::ResultSet;
    using platform::Value;
    ResultSet rowCount{{}, {}, 1}, empty{{"a"}, {}}, answer{{"b"}, {{Value(7)}}};
    auto call = std::make_shared<platform::Recordset>(std::vector<ResultSet>{rowCount, empty, answer});
    ASSERT_TRUE(global().NextRecordset(call));
    EXPECT_EQ(call->FieldCount(), 0) << "the caller's recordset stays on its own result";

    auto result =
        global().NextRecordset(std::make_shared<platform::Recordset>(std::vector<ResultSet>{rowCount, empty}));
    ASSERT_TRUE(result);
    EXPECT_EQ(std::tuple(result->FieldName(0), result->Eof()), std::tuple("a", true));
    EXPECT_EQ(global().NextRecordset(nullptr), nullptr);
}

TEST_F(GlobalTest, TheWorkingDateIsTheSessionsAndTransactionsGoByItsDay) {
    host->SetServerDate(platform::DateTime(2026, 11, 22, 10, 30, 0));
    EXPECT_EQ(global().GetTransactionDate(), platform::DateSerial(2026, 11, 22));
    settings.Set("GetTransactionDate", "2026-11-20");
    EXPECT_EQ(global().GetTransactionDate(), platform::DateSerial(2026, 11, 20));
}

TEST_F(GlobalTest, UnitRatesFollowTheLadderOfEachItem) {
    using Case = std::tuple<const char*, long, double>;
    for (const auto& [item, uom, rate] : std::vector<Case>{
             {"ONE", 2, 0}, {"TWO", 3, 0}, {"three", 2, 12}, {"THREE", 0, 1}, {"NOSUCH", 1, 0}, {"KID'S", 1, 1}})
        EXPECT_EQ(global().ConvertToBaseUOM(item, uom), rate) << item << " " << uom;

    using Level = std::tuple<const char*, long, double, long>;
    for (const auto& [item, level, rate, levelUom] :
         std::vector<Level>{{"THREE", 1, 1, 1}, {"TWO", 3, 0, 0}, {"NOSUCH", 1, 0, 0}}) {
        long uom = -1;
        EXPECT_EQ(global().ConvertWithRate(item, level, uom), rate) << item << " " << level;
        EXPECT_EQ(uom, levelUom) << item << " " << level;
    }
}

TEST_F(GlobalTest, QuantityExpressionsAlignToTheBaseUnitOnTheRight) {
    double base = 0;
    int parts = 0;
    EXPECT_TRUE(global().ValidateUOMQuantity("THREE", "2*0*5", parts, base));
    EXPECT_EQ(std::tuple(parts, base), std::tuple(3, 2 * 144 + 5));
    const std::tuple<const char*, const char*, double> cases[] = {
        {"THREE", "3*4", 3 * 12 + 4},  {"TWO", "3*4", 40},   {"THREE", "7", 7}, {"TWO", "1.5*0", 18},
        {"THREE", " 1 * 0 * 0 ", 144}, {"THREE", "0*0*0", 0}};
    for (const auto& [item, text, expected] : cases) {
        EXPECT_TRUE(Valid(item, text, &base)) << item << " " << text;
        EXPECT_EQ(base, expected) << item << " " << text;
    }
    EXPECT_EQ(global().ConvertToDisplayUOM("THREE", "1*1*1"), 157);
    EXPECT_EQ(global().ConvertToDisplayUOM("THREE", "x"), 0);
    for (const auto& [typed, info] : std::vector<std::pair<std::string, std::string>>{
             {"2*0*5", "2*0*5"}, {"3*4", "0*3*4"}, {"5", "0*0*5"}, {"", "0*0*0"}})
        EXPECT_EQ(global().GetUOMInfo(typed), info) << typed;
}

TEST_F(GlobalTest, EveryOtherQuantityTextIsRefusedWithoutAnError) {
    for (const char* text : {"", "*", "2**5", "2*", "*5", "-1*2", "+1", "1*-0", "a*2", "2*b", "1e2", "2 3", "1.2.3",
                             ".", "0x1", "1*2*3*4"})
        EXPECT_FALSE(Valid("THREE", text)) << '"' << text << '"';
    EXPECT_FALSE(Valid("ONE", "1*2")) << "more counts than the item has units";
    EXPECT_FALSE(Valid("TWO", "1*2*3"));
    EXPECT_FALSE(Valid("NOSUCH", "5")) << "unknown item";
    EXPECT_EQ(transcript.ErrorCount(), 0);
}

constexpr int kEnter = 13, kBackspace = 8;

class KeyboardTest : public HostTest {
protected:
    KeyboardTest() { services().mainForm.CaptureChildObj(form); }

    TestForm form{"frmDispatch"};
    platform::TextBox billing{form, "txtBillingAddress"};
    platform::TextBox salesman{form, "txtSalesman"};
};

TEST_F(KeyboardTest, FocusMovesOnlyToAControlThatCanTakeIt) {
    salesman.Visible = false;
    global().SetFocusTo(salesman);
    EXPECT_TRUE(form.moves.empty());
    global().SetFocusTo(billing);
    global().SetFocusTo(billing);
    EXPECT_EQ(form.moves, std::vector<std::string>{"txtBillingAddress"});
}

// Two Enters in a row leave an address in the header sessions; typing between them
// makes the second a new line again.
TEST_F(KeyboardTest, TypingBetweenTwoEntersInAnAddressStartsTheRowAgain) {
    global().SetFocusTo(billing);
    int key = kEnter;
    EXPECT_EQ(global().AddressEnterStep(key), 0);
    billing.SetText("1 Mill Road\nLeeds");
    EXPECT_EQ(global().AddressEnterStep(key), 0);
    EXPECT_EQ(key, kEnter) << "the Enter stays a new line in the box";
}

TEST_F(KeyboardTest, ComboTypeAheadGoesOnFromWhatWasTyped) {
    platform::ComboBox names(form, "cboCustomer");
    for (const char* name : {"Alpha", "Beta", "Bravo"}) names.AddItem(name);
    auto type = [&](int key) {
        global().ComboAutoComplete(names, key);
        EXPECT_EQ(key, 0);
        return names.Text();
    };
    EXPECT_EQ(type('b'), "Beta");
    EXPECT_EQ(type('r'), "Bravo");
    EXPECT_EQ(type(kBackspace), "Beta");
    EXPECT_EQ(type('x'), "bx");
    EXPECT_EQ(names.ListIndex(), -1);
}

}  // namespace
}  // namespace host_test
