// Whether a source document still names only category groups that are switched on.
// A confirmation (kind 1) and a dispatch (kind 2) keep their groups as a comma list;
// a document that is not found, or names no group, passes.
#include <string>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/lists_procedures.h"

namespace server::lists {

namespace {
constexpr long kConfirmation = 1, kDispatch = 2;

platform::Value GroupsOf(ProcedureContext& context, long kind, const platform::Value& document) {
    if (kind == kConfirmation) return context.Scalar("SELECT GroupID FROM SOAbstract WHERE SONumber = ?", {document});
    if (kind == kDispatch)
        return context.Scalar("SELECT GroupID FROM DispatchAbstract WHERE DispatchID = ?", {document});
    return platform::Value::Null();
}
}  // namespace

// (kind, document): one row, 1 when every group the document names is active, else 0.
std::vector<platform::ResultSet> CheckForGroupID(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("Sp_CheckForGroupID", parameters, {"@Type", "@DocumentID"});
    args.ExpectAtMost(2);
    const long kind = static_cast<long>(args.IntOr(0, 0));
    const platform::Value groups = GroupsOf(context, kind, args.Int(1));
    long active = 1;
    for (const std::string& piece : platform::Split(platform::ToText(groups), ",")) {
        const std::string group = platform::Trim(piece);
        if (group.empty()) continue;
        const platform::Value switchedOn = context.Scalar(
            "SELECT Active FROM ProductCategoryGroupAbstract WHERE GroupID = ?", {platform::Value(group)});
        if (!switchedOn.IsNull() && platform::ToNumber(switchedOn) == 0) active = 0;
    }
    platform::ResultSet answer;
    answer.columns = {"Active"};
    answer.rows = {{platform::Value(active)}};
    return {answer};
}

}  // namespace server::lists
