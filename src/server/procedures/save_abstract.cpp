// The abstract of a new dispatch note, and of the note that replaces an amended one.
// Storing it spends the next number of the dispatch serial; the caller's transaction
// decides whether the number stays spent.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedure_savepoint.h"
#include "server/procedures/save_checks.h"
#include "server/procedures/save_procedures.h"

namespace server::save {

namespace {

constexpr long long kDispatchSerial = 5;
// A note goes in open: cancelled (64), closed (128) and amended (256) are set later,
// on the note itself, never when it is stored.
constexpr long long kClosingBits = 64 | 128 | 256;
// The note took items of every category group.
constexpr const char* kAllGroups = "-1";

// Parameters of the new note; the amendment has the old document number second
// and the rest one place further on.
const std::vector<std::string> kNewNames = {
    "@RefNumber", "@DispatchDate", "@CustomerID", "@BillingAddress", "@ShippingAddress", "@Status", "@NewRefNumber",
    "@Memo1",     "@Memo2",        "@Memo3",      "@DocReference",   "@SalesmanID",      "@BeatID", "@GroupID"};

std::vector<std::string> AmendNames() {
    std::vector<std::string> names = kNewNames;
    names.insert(names.begin() + 1, "@OriginalReference");
    return names;
}

long long TakeNextDocumentNumber(ProcedureContext& context) {
    if (context.Run("UPDATE DocumentNumbers SET LastNumber = LastNumber + 1 WHERE DocType = ?", {kDispatchSerial}) != 1)
        Refuse("The dispatch serial (DocumentNumbers " + std::to_string(kDispatchSerial) + ") is missing.");
    return context.Scalar("SELECT LastNumber FROM DocumentNumbers WHERE DocType = ?", {kDispatchSerial}).AsInteger();
}

std::vector<platform::ResultSet> StoreAbstract(ProcedureContext& context, const ProcedureArguments& args,
                                               bool amendment) {
    const std::size_t shift = amendment ? 1 : 0;
    args.ExpectAtMost(kNewNames.size() + shift);
    RequireSupplied(args, kNewNames.size() - 1 + shift);  // all but the group
    auto at = [&](std::size_t n) { return n == 0 ? 0 : n + shift; };

    const platform::Value date = args.DateTime(at(1));
    if (date.IsNull()) Refuse("The dispatch date is missing.");
    const std::string customer = args.TextOr(at(2), "");
    const long long status = RequiredInt(args.Int(at(5)), "status of the dispatch");
    if (status < 0 || (status & kClosingBits) != 0)
        Refuse("A dispatch is stored open; status " + std::to_string(status) + " cannot be given to a new note.");
    const std::string group = args.Supplied(at(13)) ? args.TextOr(at(13), kAllGroups) : kAllGroups;
    RequireCustomer(context, customer);

    ProcedureSavepoint savepoint(context, "save_dispatch_abstract");
    const long long documentID = TakeNextDocumentNumber(context);
    context.Run(R"SQL(
INSERT INTO DispatchAbstract (DocumentID, DispatchDate, CustomerID, BillingAddress, ShippingAddress, Status,
                              RefNumber, NewRefNumber, OriginalReference, Memo1, Memo2, Memo3, DocReference,
                              SalesmanID, BeatID, GroupID, UserName, CreationTime)
VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, '', datetime('now', 'localtime')))SQL",
                {documentID, date, customer, args.TextOr(at(3), ""), args.TextOr(at(4), ""), status, args.TextOr(0, ""),
                 args.TextOr(at(6), ""), amendment ? args.TextOr(1, "") : std::string(), args.TextOr(at(7), ""),
                 args.TextOr(at(8), ""), args.TextOr(at(9), ""), args.TextOr(at(10), ""), args.IntOr(at(11), 0),
                 args.IntOr(at(12), 0), group});
    const long long dispatchID = context.LastInsertId();
    savepoint.Keep();
    return context.WithRowCount(
        context.Query("SELECT DispatchID, DocumentID FROM DispatchAbstract WHERE DispatchID = ?", {dispatchID}));
}

}  // namespace

// (first reference, date, customer, billing address, shipping address, status,
// second reference, memo 1 to 3, document reference, salesman, beat [, category
// group]): one row, the new DispatchID and its document number. Without a group the
// note took items of every group.
std::vector<platform::ResultSet> SaveAbstract(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Save_DispatchAbstract", parameters, kNewNames);
    return StoreAbstract(context, args, false);
}

// The same, with the document number of the amended note second; the replacement
// keeps it as its OriginalReference.
std::vector<platform::ResultSet> SaveAmendedAbstract(ProcedureContext& context,
                                                     const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Save_DispatchAbstract_Amend", parameters, AmendNames());
    return StoreAbstract(context, args, true);
}

}  // namespace server::save
