#include "host/plain_tools.h"

#include <algorithm>
#include <optional>

#include "host/dialog_replies.h"
#include "host/result_sets.h"
#include "platform/convert.h"

namespace host {
namespace {

std::string JoinTexts(const std::vector<std::string>& texts, const char* separator = ",") {
    std::string joined;
    for (std::size_t i = 0; i < texts.size(); ++i) joined += (i ? separator : "") + texts[i];
    return joined;
}

}  // namespace

bool AskForText(HostState& state, const std::string& dialog, const std::string& prompt, const std::string& title,
                std::string& text) {
    // Both dialogs ask for a password: what is typed is masked, and never written down.
    DialogReply reply = TakeReply(state.answers, {dialog, prompt, title, 0, {}, true});
    bool cancelled = reply.byDefault || reply.values[0] == "cancel";
    text = cancelled ? "\t" : reply.values[0];
    state.transcript.Dialog(dialog, QuoteText(prompt) + " " + QuoteText(title),
                            reply.Shown(cancelled ? "cancel" : "(given)"));
    return !cancelled;
}

// The latest day the distributor closed, from the company's own record; none when no
// day has been closed yet.
std::optional<platform::Date> PlainTools::LastClosedDay() {
    auto last = state_.connection->Execute("Select Max(CloseDate) From DayClose");
    if (!last || last->Eof()) return std::nullopt;
    const platform::Value value = last->Fields(0);
    if (value.IsNull() || value.IsEmpty()) return std::nullopt;
    if (value.kind() == platform::Value::Kind::Date) return platform::DateOnly(value.AsDate());
    auto day = platform::ParseIsoDate(platform::ToText(value));
    return day ? std::optional(platform::DateOnly(*day)) : std::nullopt;
}

bool PlainTools::CheckCloseDay(platform::Date date, int closeDayModeOne) {
    const platform::Date day = platform::DateOnly(date);
    auto refuse = [&](const std::string& why) {
        state_.transcript.Status(why, 1);
        return false;
    };
    auto opening = platform::ParseIsoDate(state_.settings.Text("GetOpeningDate"));
    if (opening && day.serial < opening->serial)
        return refuse("Transactions cannot be posted before the opening date " + platform::DateToText(*opening) + ".");
    const auto closed = LastClosedDay();
    if (!closed) return true;
    if (day.serial <= closed->serial)
        return refuse("Day close has been done for " + platform::DateToText(day) +
                      ". Transactions cannot be posted to it.");
    // Mode 1 keeps the days in order: the day after the latest closed one must be
    // closed before a later day takes postings.
    const platform::Date nextOpen{closed->serial + 1};
    if (closeDayModeOne == -1 && day.serial > nextOpen.serial)
        return refuse("Day close has not been done for " + platform::DateToText(nextOpen) +
                      ". Close it before posting to a later day.");
    return true;
}

bool PlainTools::InputPassword(const std::string& prompt, const std::string& title, std::string& password) {
    return AskForText(state_, "InputPassword", prompt, title, password);
}

void PlainTools::PrintDocument(int, std::string& templateName, const std::string&) {
    templateName = state_.settings.Text("PrintDocument");
}

void PlainTools::ShowPrintDialog(const std::string& settingsFile, const std::string& abstractProcedure,
                                 const std::string& detailProcedure, const std::string& key,
                                 const std::string& documentKind, long, int answeredYes) {
    std::string file = printer_.Print({settingsFile, abstractProcedure, detailProcedure, documentKind, key},
                                      state_.settings.Text("OutputFolder"));
    state_.transcript.Print(documentKind + " " + key + " -> " + file + " (dialog, flag " + std::to_string(answeredYes) +
                            ")");
}

void PlainTools::PrintDirect(const std::string& settingsFile, const std::string& abstractProcedure,
                             const std::string& detailProcedure, long, const std::string& documentKind, long key) {
    std::string keyText = std::to_string(key);
    std::string file = printer_.Print({settingsFile, abstractProcedure, detailProcedure, documentKind, keyText},
                                      state_.settings.Text("OutputFolder"));
    state_.transcript.Print(documentKind + " " + keyText + " -> " + file);
}

void PlainTools::ShowItemSchemes(const std::string& itemCode, platform::Date date, const std::string& customer,
                                 const std::vector<double>& totals, long dispatchID) {
    std::vector<std::string> figures;
    for (double total : totals) figures.push_back(platform::NumberToText(total));
    state_.transcript.Dialog("ShowItemSchemes",
                             QuoteText(itemCode) + " " + platform::DateToIso(platform::DateOnly(date)) + " " +
                                 QuoteText(customer) + " [" + JoinTexts(figures) + "] " + std::to_string(dispatchID),
                             "ok");
}

void PlainTools::ShowWidthDialog(int screenNumber) {
    state_.transcript.Dialog("ShowWidthDialog", std::to_string(screenNumber), "ok");
}

// The scheme rows: position 0 the scheme ID, 2 its type, 3 a flag, 4 the prompt
// that goes with the scheme when the flag is 1.
namespace {
struct OfferedScheme {
    std::string id;
    long type = 0;
    std::string prompt;
};

std::vector<OfferedScheme> OfferedSchemes(const platform::RecordsetPtr& schemes) {
    std::vector<OfferedScheme> offered;
    platform::RecordsetPtr rows = FirstResultWithRows(schemes);
    if (!rows || !rows->IsOpen()) return offered;
    int fields = rows->FieldCount();
    for (; !rows->Eof(); rows->MoveNext()) {
        OfferedScheme scheme;
        scheme.id = platform::ToText(rows->Fields(0));
        if (fields > 2) scheme.type = static_cast<long>(platform::ToNumber(rows->Fields(2)));
        if (fields > 4 && platform::ToNumber(rows->Fields(3)) == 1) scheme.prompt = platform::ToText(rows->Fields(4));
        offered.push_back(std::move(scheme));
    }
    return offered;
}
}  // namespace

bool PlainTools::SelectScheme(const platform::RecordsetPtr& schemes, long& schemeID, long& schemeType,
                              std::string& prompt, const std::string& itemCode) {
    std::vector<OfferedScheme> offered = OfferedSchemes(schemes);
    std::vector<std::string> ids;
    for (const auto& scheme : offered) ids.push_back(scheme.id);
    std::string detail = QuoteText(itemCode) + " [" + JoinTexts(ids) + "]";

    DialogReply reply = TakeReply(state_.answers, {"SelectScheme", itemCode, "Schemes", 0, ids, false});
    if (reply.byDefault || reply.values[0] == "none") {
        state_.transcript.Dialog("SelectScheme", detail, reply.Shown("none"));
        return false;
    }
    const std::string& wanted = reply.values[0];
    for (const auto& scheme : offered) {
        if (scheme.id != wanted) continue;
        schemeID = static_cast<long>(platform::Val(scheme.id));
        schemeType = scheme.type;
        prompt = scheme.prompt;
        state_.transcript.Dialog("SelectScheme", detail, wanted);
        return true;
    }
    // The user can only pick a scheme the dialog lists.
    state_.transcript.Dialog("SelectScheme", detail, wanted + " (not offered: none)");
    return false;
}

// The free items a slab offers that the master still sells.
std::vector<std::string> PlainTools::OfferedFreeItems(long slabID) {
    const std::string slab = std::to_string(slabID);
    auto rows = state_.connection->Execute(
        "Select f.Free_Item_Code From SchemeFreeItems f Join Items i On i.Product_Code = f.Free_Item_Code "
        "Where f.SlabID = " +
        slab +
        " And i.Active = 1 Union "
        "Select s.FreeItem From SchemeSlabs s Join Items i On i.Product_Code = s.FreeItem "
        "Where s.SlabID = " +
        slab + " And i.Active = 1");
    std::vector<std::string> items;
    for (; rows && rows->IsOpen() && !rows->Eof(); rows->MoveNext()) items.push_back(platform::ToText(rows->Fields(0)));
    return items;
}

bool PlainTools::SelectFreeItem(long schemeID, const std::string& schemeName, long slabID,
                                const std::string& primaryItemCode, std::string& freeItemCode) {
    const std::vector<std::string> offered = OfferedFreeItems(slabID);
    std::string detail = std::to_string(schemeID) + " " + QuoteText(schemeName) + " " + std::to_string(slabID);
    if (!primaryItemCode.empty()) detail += " " + QuoteText(primaryItemCode);
    detail += " [" + JoinTexts(offered) + "]";

    DialogReply reply = TakeReply(state_.answers, {"SelectFreeItem", schemeName, "Free Items", 0, offered, false});
    if (reply.byDefault || reply.values[0] == "none") {
        state_.transcript.Dialog("SelectFreeItem", detail, reply.Shown("none"));
        return false;
    }
    // The user can only pick an item the dialog lists.
    const std::string& wanted = reply.values[0];
    const auto found = std::find_if(offered.begin(), offered.end(), [&](const std::string& item) {
        return platform::UCase(item) == platform::UCase(wanted);
    });
    if (found == offered.end()) {
        state_.transcript.Dialog("SelectFreeItem", detail, QuoteText(wanted) + " (not offered: none)");
        return false;
    }
    freeItemCode = *found;
    state_.transcript.Dialog("SelectFreeItem", detail, reply.Shown(QuoteText(freeItemCode)));
    return true;
}

std::string PlainTools::SelectDocument(int kind) {
    DialogReply reply = TakeReply(state_.answers, {"SelectDocument", std::to_string(kind), "Documents", 0, {}, false});
    std::string reference = reply.byDefault ? std::string() : reply.values[0];
    state_.transcript.Dialog("SelectDocument", std::to_string(kind),
                             reply.Shown(reply.byDefault ? "cancel" : QuoteText(reference)));
    return reference;
}

void PlainTools::SetNotFoundRecords(const platform::RecordsetPtr& records) {
    notFound_.clear();
    if (!records || !records->IsOpen()) return;
    // The caller still reads and closes the recordset: walk a copy of it.
    platform::Recordset rows = *records;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        if (rows.FieldCount() > 0) notFound_.push_back(platform::ToText(rows.Fields(0)));
}

void PlainTools::ShowNotFoundDialog(const std::string& text) {
    state_.transcript.Dialog("ShowNotFoundDialog", QuoteText(text) + " [" + JoinTexts(notFound_) + "]", "ok");
}

bool PlainTools::ShowMemoDialog(std::string& memo1, std::string& memo2, std::string& memo3, bool readOnly, int) {
    std::string given = QuoteText(memo1) + " " + QuoteText(memo2) + " " + QuoteText(memo3);
    if (readOnly) given += " read-only";
    DialogReply reply = TakeReply(
        state_.answers, {"ShowMemoDialog", readOnly ? "read-only" : "", "Memo", 0, {memo1, memo2, memo3}, false});
    bool accepted = !reply.byDefault && reply.values.back() == "ok";
    // A note on view shows its memos but keeps them.
    if (accepted && !readOnly && reply.values.size() == 4) {
        memo1 = reply.values[0];
        memo2 = reply.values[1];
        memo3 = reply.values[2];
    }
    state_.transcript.Dialog("ShowMemoDialog", given, reply.Shown(accepted ? "ok" : "cancel"));
    return accepted;
}

}  // namespace host
