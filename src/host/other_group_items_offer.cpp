#include "host/other_group_items_offer.h"

#include "host/setting_catalog.h"
#include "host/sql_text.h"
#include "host/transcript.h"
#include "platform/convert.h"
#include "screen/host_services/other_group_free_items.h"

namespace host {

namespace field = host_services::ocg_field;

namespace {

// "1,3" as an IN list; empty when the text names no group.
std::string GroupList(const std::string& groups) {
    std::string list;
    for (const auto& piece : platform::Split(groups, ",")) {
        long group = 0;
        if (!ParseInteger(platform::Trim(piece), group) || group <= 0) return "";
        list += (list.empty() ? "" : ",") + std::to_string(group);
    }
    return list;
}

}  // namespace

OfferedFreeItem OfferFreeItem(platform::Connection& connection, const OtherGroupItemsAnswer::Added& wanted,
                              const std::string& groups) {
    OfferedFreeItem offer;
    const std::string code = SqlText(wanted.itemCode);
    auto item = connection.Execute(
        "Select i.ProductName, i.UOM, u.Description, i.Track_Batches, c.Price_Option, c.Track_Inventory, "
        "i.CategoryID From Items i, ItemCategories c, UOM u Where c.CategoryID = i.CategoryID And u.UOM = i.UOM "
        "And i.Active = 1 And i.Product_Code = " +
        code);
    if (item->Eof()) {
        offer.refusal = "no such item";
        return offer;
    }
    const std::string category = platform::NumberToText(platform::ToNumber(item->Fields(6)));
    if (const std::string list = GroupList(groups); !list.empty()) {
        auto inGroup = connection.Execute("Select Count(*) From ProductCategoryGroupDetail Where GroupID In (" + list +
                                          ") And CategoryID = " + category);
        if (platform::ToNumber(inGroup->Fields(0)) > 0) {
            offer.refusal = "of the note's own group";
            return offer;
        }
    }

    const bool keepsStock = platform::ToNumber(item->Fields(5)) != 0;
    double batchCode = 0;
    if (keepsStock) {
        auto stock = connection.Execute(
            "Select Top 1 Batch_Code From Batch_Products Where Product_Code = " + code + " And Batch_Number = " +
            SqlText(wanted.batch) + " And IsNull(Free, 0) = " + (wanted.freeStock ? "1" : "0") +
            " And Quantity > 0 And (Expiry Is Null Or Expiry >= getdate()) Order By CreationDate, Batch_Code");
        if (stock->Eof()) {
            offer.refusal = std::string("no live ") + (wanted.freeStock ? "free" : "saleable") + " stock of batch " +
                            QuoteText(wanted.batch);
            return offer;
        }
        batchCode = platform::ToNumber(stock->Fields(0));
    }

    offer.fields.resize(field::Count);
    offer.fields[field::ItemCode] = wanted.itemCode;
    offer.fields[field::ItemName] = platform::ToText(item->Fields(0));
    offer.fields[field::Batch] = wanted.batch;
    offer.fields[field::UOM] = platform::ToText(item->Fields(2));
    offer.fields[field::Quantity] = wanted.quantity;
    offer.fields[field::BatchCode] = batchCode;
    offer.fields[field::UOMID] = platform::ToNumber(item->Fields(1));
    offer.fields[field::BatchTrack] = platform::ToNumber(item->Fields(3));
    offer.fields[field::PriceOption] = platform::ToNumber(item->Fields(4));
    offer.fields[field::TrackInventory] = platform::ToNumber(item->Fields(5));
    offer.fields[field::FreeRow] = wanted.freeStock ? 1.0 : 0.0;
    offer.fields[field::SerialNo] = 0.0;
    return offer;
}

}  // namespace host
