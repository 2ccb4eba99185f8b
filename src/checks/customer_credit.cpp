// Where the customer's account stands, on the status line: limit, what is owed,
// what of it is overdue, cheques in hand and, in one variant, the bills outstanding.
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::ShowCustomerCredit(const std::string& szName, bool bWithBills) {
    Handled("ShowCustomerCredit", [&] {
        auto& global = host_.global;
        const std::string szCode = global.LookupCode("Customer", "CustomerID", "Company_Name", szName);
        const std::string money = global.GetNumberFormat(0);
        const double fLimit = GetCreditLimit(szCode);
        std::vector<std::string> figures{
            fLimit == -1 ? std::string("N/A") : platform::Format(fLimit, money),
            platform::Format(-GetOutstandingBalance(szCode), money),
            platform::Format(GetCustomerOverDue(szCode, 0), money),
            platform::Format(GetCustomerOverDue(szCode, 1), money),
            platform::NumberToText(GetChequesInHand(szCode)),
        };
        std::string text;
        if (bWithBills) {
            figures.push_back(global.ToText(LoadBillsOutstanding(szName)));
            text = host_.messages.FormatMessage(
                "Net Cr Limit: {0}, Net O/S: {1}, Not Overdue: {2}, Overdue: {3}, Chqs in Hand: {4}, No.of Bills O/S: "
                "{5}",
                figures);
        } else {
            text = host_.messages.FormatMessage(
                "Net Cr Limit: {0}, Net O/S: {1}, Not Overdue: {2}, Overdue: {3}, Chqs in Hand: {4}", figures);
        }
        global.ShowStatus(text, 0);
    });
}

double Zuro_frmDispatch_Dispatch::GetCreditLimit(const std::string& szCode) {
    double limit = 0;
    Handled("GetCreditLimit", [&] {
        auto& global = host_.global;
        limit = global.ToNumber(global.LookupValue(
            global.GetConnection(), "SELECT CreditLimit FROM Customer WHERE CustomerID = N'" + szCode + "'"));
    });
    return limit;
}

double Zuro_frmDispatch_Dispatch::GetOutstandingBalance(const std::string& szCode) {
    double balance = 0;
    Handled("GetOutstandingBalance", [&] {
        auto& global = host_.global;
        auto result = global.RunProcedure("sp_get_Customer_OutStanding_Balance", {{szCode, platform::adtype::VarChar}});
        if (auto* field = FirstRowField(result)) balance = global.ToNumber(*field);
    });
    return balance;
}

double Zuro_frmDispatch_Dispatch::GetCustomerOverDue(const std::string& szCode, long nKind) {
    double amount = 0;
    Handled("GetCustomerOverDue", [&] {
        auto& global = host_.global;
        auto result = global.NextRecordset(
            global.RunProcedure("sp_get_Customer_OverDue", {{szCode, platform::adtype::VarChar},
                                                            {global.GetTransactionDate(), platform::adtype::Date},
                                                            {nKind, platform::adtype::Integer}}));
        if (auto* field = FirstRowField(result, "Amount")) amount = global.ToNumber(*field);
    });
    return amount;
}

double Zuro_frmDispatch_Dispatch::GetChequesInHand(const std::string& szCode) {
    double cheques = 0;
    Handled("GetChequesInHand", [&] {
        auto& global = host_.global;
        auto result =
            global.NextRecordset(global.RunProcedure("sp_acc_PartyChqsinhand", {{szCode, platform::adtype::VarChar}}));
        if (auto* field = FirstRowField(result))
            cheques = platform::Val(platform::Format(global.ToText(*field), "Fixed"));
    });
    return cheques;
}

platform::Value Zuro_frmDispatch_Dispatch::LoadBillsOutstanding(const std::string& szName) {
    platform::Value bills(0);
    Handled("LoadBillsOutstanding", [&] {
        auto& global = host_.global;
        auto result = global.NextRecordset(
            global.RunProcedure("sp_get_CustomerInvoiceLimit", {{szName, platform::adtype::VarChar}}));
        if (auto* field = FirstRowField(result)) bills = platform::Value(platform::CInt(global.ToNumber(*field)));
    });
    return bills;
}

bool Zuro_frmDispatch_Dispatch::IsTradeCustomer(const std::string& szCode) {
    bool trade = false;
    Handled("IsTradeCustomer", [&] {
        auto result = host_.global.RunProcedure("sp_get_TradeCustomer", {{szCode, platform::adtype::VarChar}});
        trade = result && result->IsOpen() && !result->Bof() && !result->Eof();
    });
    return trade;
}

void Zuro_frmDispatch_Dispatch::ToUpperKey(int& nKeyAscii) {
    if (nKeyAscii >= 'a' && nKeyAscii <= 'z') nKeyAscii -= 'a' - 'A';
}

}  // namespace screen
