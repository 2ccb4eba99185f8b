// The reference a saved note is known by, and the running count of its document
// type. The screen sends a type only when the reference still starts with that
// type's prefix, so the count moves whenever a type comes: a reference the user
// edited after the prefix still spends the type's number. A reference that comes
// without a type but is an active type's prefix and a number ("TN/DN/43") belongs to
// that type: the note records it and the type's count moves up to that number, so a
// proposed reference is never offered twice.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedure_savepoint.h"
#include "server/procedures/save_checks.h"
#include "server/procedures/save_procedures.h"

namespace server::save {

// (transaction type, document type, DispatchID, reference, same reference): writes the
// reference and the type on the note and moves the type's count; one row, the number
// the user is told: the dispatch voucher prefix and the note's document number
// ("DN50"). A note left without a reference is known by that number.
std::vector<platform::ResultSet> UpdateTransactionSerial(ProcedureContext& context,
                                                         const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "sp_Update_TransactionSerial", parameters,
        {"@TransactionType", "@DocumentType", "@DispatchID", "@DocReference", "@SameReference"});
    args.ExpectAtMost(5);
    RequireSupplied(args, 5);
    const long long transactionType = RequiredInt(args.Int(0), "transaction type");
    const std::string documentType = platform::Trim(args.TextOr(1, ""));
    const long long dispatchID = RequiredInt(args.Int(2), "dispatch");
    const std::string reference = platform::Trim(args.TextOr(3, ""));
    RequireDispatch(context, dispatchID);

    const std::string number = platform::ToText(context.Scalar(
        "SELECT IFNULL((SELECT Prefix FROM VoucherPrefix WHERE TranID = 'DISPATCH'), '') || a.DocumentID "
        "FROM DispatchAbstract a WHERE a.DispatchID = ?",
        {dispatchID}));

    ProcedureSavepoint savepoint(context, "update_transaction_serial");
    if (documentType.empty()) {
        const platform::Value owner = context.Scalar(
            "SELECT DocumentType FROM TransactionDocNumber WHERE TransactionType = ?1 AND Active = 1 AND Prefix <> '' "
            "AND substr(?2, 1, length(Prefix)) = Prefix AND length(?2) > length(Prefix) "
            "AND substr(?2, length(Prefix) + 1) NOT GLOB '*[^0-9]*' ORDER BY length(Prefix) DESC LIMIT 1",
            {transactionType, reference});
        if (!owner.IsNull()) {
            context.Run(
                "UPDATE TransactionDocNumber SET LastCount = MAX(LastCount, CAST(substr(?1, length(Prefix) + 1) "
                "AS INTEGER)) WHERE TransactionType = ?2 AND DocumentType = ?3",
                {reference, transactionType, owner});
            context.Run("UPDATE DispatchAbstract SET DocumentType = ? WHERE DispatchID = ?", {owner, dispatchID});
        }
    }
    if (!documentType.empty() &&
        context.Run(
            "UPDATE TransactionDocNumber SET LastCount = LastCount + 1 WHERE TransactionType = ? AND DocumentType = ?",
            {transactionType, documentType}) != 1)
        Refuse("Document type '" + documentType + "' of transaction type " + std::to_string(transactionType) +
               " does not exist.");
    context.Run("UPDATE DispatchAbstract SET DocReference = ? WHERE DispatchID = ?",
                {reference.empty() ? number : reference, dispatchID});
    if (!documentType.empty())
        context.Run("UPDATE DispatchAbstract SET DocumentType = ? WHERE DispatchID = ?", {documentType, dispatchID});
    savepoint.Keep();

    platform::ResultSet answer;
    answer.columns = {"DocumentID"};
    answer.rows.push_back({platform::Value(number)});
    return context.WithRowCount(std::move(answer));
}

}  // namespace server::save
