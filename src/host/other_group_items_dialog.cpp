// The dialog of F12: the free items of other category groups that stand in the note,
// which the user keeps or drops, and others the user adds by item, batch and
// quantity. On ok it hands the form the entries settled on, as the desktop dialog
// did; on cancel the form hears nothing.
#include <vector>

#include "host/dialog_replies.h"
#include "host/other_group_items_answer.h"
#include "host/other_group_items_offer.h"
#include "host/plain_tools.h"
#include "platform/convert.h"

namespace host {

namespace field = host_services::ocg_field;

namespace {

using Entry = std::vector<platform::Value>;

// The standing entries of the form's table (the field first); slots without an item are spare.
std::vector<Entry> StandingEntries(const platform::VariantTable& items) {
    std::vector<Entry> entries;
    if (!items.IsArray()) return entries;
    for (long slot = 0; slot <= items.UBound(2); ++slot) {
        if (platform::ToText(items.At(field::ItemCode, slot)).empty()) continue;
        Entry entry(field::Count);
        for (int f = 0; f < field::Count; ++f) entry[f] = items.At(f, slot);
        entries.push_back(std::move(entry));
    }
    return entries;
}

long EntrySerial(const Entry& entry) { return static_cast<long>(platform::ToNumber(entry[field::SerialNo])); }

// "BV001 OD24A 12 #3": item, batch, quantity and the row's serial; "free" for free stock.
std::string Describe(const Entry& entry) {
    std::string text = platform::ToText(entry[field::ItemCode]) + " " +
                       QuoteText(platform::ToText(entry[field::Batch])) + " " +
                       platform::ToText(entry[field::Quantity]);
    if (platform::ToNumber(entry[field::FreeRow]) == 1) text += " free";
    return text + " #" + std::to_string(EntrySerial(entry));
}

// The table the form reads: the entry first, and a spare slot after the last entry.
platform::VariantTable EntryFirstTable(const std::vector<Entry>& entries) {
    platform::VariantTable table(static_cast<long>(entries.size()), field::Last);
    for (std::size_t e = 0; e < entries.size(); ++e)
        for (int f = 0; f < field::Count; ++f) table.At(static_cast<long>(e), f) = entries[e][f];
    return table;
}

}  // namespace

void PlainTools::ShowDocumentInfoDialog(host_services::OCGFreeItemsOwner& form, const platform::VariantTable& items,
                                        const std::string& customer, const std::string& serial,
                                        const std::string& group) {
    std::vector<Entry> entries = StandingEntries(items);
    std::string given = QuoteText(customer) + " " + QuoteText(serial) + " " + QuoteText(group) + " [";
    for (std::size_t e = 0; e < entries.size(); ++e) given += (e ? ", " : "") + Describe(entries[e]);
    given += "]";

    std::vector<std::string> shown;
    for (const auto& entry : entries) shown.push_back(Describe(entry));
    DialogReply reply =
        TakeReply(state_.answers, {"ShowDocumentInfoDialog", customer + " " + serial, group, 0, shown, false});
    std::string problem;
    const OtherGroupItemsAnswer answer =
        reply.byDefault ? OtherGroupItemsAnswer{} : ReadOtherGroupItemsAnswer(reply.values, problem);
    if (!answer.accepted) {
        state_.transcript.Dialog("ShowDocumentInfoDialog", given, reply.Shown("cancel"));
        return;
    }

    std::erase_if(entries, [&](const Entry& entry) {
        if (answer.dropAll) return true;
        for (long dropped : answer.droppedSerials)
            if (EntrySerial(entry) == dropped) return true;
        return false;
    });
    std::string notOffered;
    for (const auto& wanted : answer.added) {
        OfferedFreeItem offer = OfferFreeItem(*state_.connection, wanted, group);
        if (offer.fields.empty())
            notOffered += " (" + wanted.itemCode + " not offered: " + offer.refusal + ")";
        else
            entries.push_back(std::move(offer.fields));
    }

    std::string settled = "ok [";
    for (std::size_t e = 0; e < entries.size(); ++e) settled += (e ? ", " : "") + Describe(entries[e]);
    state_.transcript.Dialog("ShowDocumentInfoDialog", given, settled + "]" + notOffered);

    form.LoadOCGFreeItems(EntryFirstTable(entries), static_cast<long>(platform::Val(serial)));
}

}  // namespace host
