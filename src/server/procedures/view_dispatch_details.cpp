// The lines of a stored note as the grid rows they were keyed as. A save stores a
// grid row as one detail row for each unit it was keyed in and, within a unit, one
// for each batch its stock came from, all under the row's serial. Read back, the
// rows of a serial are one grid row again: quantities added up, the unit counts of
// a row keyed in several units written as the expression the clerk types, largest
// unit first, with as many counts as the item has units. The batch is the one the
// row named; a row whose stock came from batches of different numbers named none.
// Batch code, expiry and PKD are those of the first batch the row took.
#include <map>
#include <optional>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/view_procedures.h"

namespace server::view {

namespace {

// The stored rows in the order they were saved, with what the grid row needs from
// the master: the item's name and units, the batch's dates, the unit's text.
constexpr const char* kStoredRows = R"SQL(
SELECT d.Serial, d.Product_Code, i.ProductName, d.Quantity, d.Batch_Number, d.SalePrice, u.Description,
       d.Batch_Code, d.Track_Inventory, d.Price_Option, b.Expiry, b.PKD, d.FreeItem, d.Track_Batches,
       d.UOM, d.UOMQty, d.UOMPrice, d.FreeSerial, d.CSchemeID, d.MultipleSchemeDetails, d.Free, d.OtherCG_Item,
       d.SchemeID, d.SPLCATSCHEMEID, d.SpecialCategoryScheme, d.SPLCATSERIAL, d.MultipleSplCategorySchDetail,
       i.BaseUOM, i.UOM1, i.UOM2
FROM DispatchDetail d
LEFT JOIN Items i ON i.Product_Code = d.Product_Code
LEFT JOIN UOM u ON u.UOM = d.UOM
LEFT JOIN Batch_Products b ON b.Batch_Code = d.Batch_Code
WHERE d.DispatchID = ?
ORDER BY d.Serial, d.DetailID)SQL";

enum Stored {
    kSerial,
    kItem,
    kItemName,
    kQuantity,
    kBatchNumber,
    kSalePrice,
    kUnitText,
    kBatchCode,
    kTrackInventory,
    kPriceOption,
    kExpiry,
    kPKD,
    kFreeItem,
    kTrackBatches,
    kUnit,
    kUnitQty,
    kUnitPrice,
    kFreeSerial,
    kSchemeIDs,
    kSchemeDetails,
    kFree,
    kOtherGroupItem,
    kSchemeID,
    kSplCatSchemeIDs,
    kSplCatScheme,
    kSplCatSerial,
    kSplCatSchemeDetails,
    kBaseUnit,
    kUnit1,
    kUnit2
};

// The unit text of a row keyed in several units, as the screen labels it.
std::string MultipleUnitText(ProcedureContext& context) {
    const platform::Value caption =
        context.Scalar("SELECT Caption FROM Labels WHERE BaseText = 'Multiple' AND LabelKind = 'Label'");
    const std::string text = platform::ToText(caption);
    return text.empty() ? "Multiple" : text;
}

// One grid row: its stored rows, first to last.
struct GridRow {
    std::vector<const std::vector<platform::Value>*> parts;

    const std::vector<platform::Value>& First() const { return *parts.front(); }

    double Sum(Stored field) const {
        double total = 0;
        for (const auto* part : parts) total += platform::ToNumber((*part)[field]);
        return total;
    }

    bool KeyedInSeveralUnits() const {
        for (const auto* part : parts)
            if (platform::ToNumber((*part)[kUnit]) != platform::ToNumber(First()[kUnit])) return true;
        return false;
    }

    std::string BatchNamed() const {
        const std::string first = platform::ToText(First()[kBatchNumber]);
        for (const auto* part : parts)
            if (platform::UCase(platform::ToText((*part)[kBatchNumber])) != platform::UCase(first)) return "";
        return first;
    }

    // "a*b*c" over the item's units, largest first: three counts for an item of
    // three units, two for one of two.
    std::string UnitExpression() const {
        const auto& first = First();
        std::vector<platform::Value> ladder = {first[kUnit2], first[kUnit1], first[kBaseUnit]};
        if (ladder.front().IsNull()) ladder.erase(ladder.begin());
        std::string text;
        for (const auto& unit : ladder) {
            double count = 0;
            for (const auto* part : parts)
                if (!unit.IsNull() && platform::ToNumber((*part)[kUnit]) == platform::ToNumber(unit))
                    count += platform::ToNumber((*part)[kUnitQty]);
            text += (text.empty() ? "" : "*") + platform::NumberToText(count);
        }
        return text;
    }
};

}  // namespace

// (DispatchID): one row a grid row, in the order of their serials. By position:
// 0 item, 1 name, 2 base quantity, 3 batch, 4 price of a base unit, 5 unit text,
// 6 Batch_Code, 7 track inventory, 8 price option, 9 expiry, 10 PKD, 11 free item,
// 12 batch track; then by name the quantity as text, the unit's price and ID, and
// the row's serial and scheme links.
std::vector<platform::ResultSet> DispatchDetails(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_view_DispatchDetails_MUOM_QAX", parameters, {"@DispatchID"});
    args.ExpectAtMost(1);
    const platform::ResultSet stored = context.Query(kStoredRows, {args.Int(0)});

    std::vector<GridRow> rows;
    std::map<long long, std::size_t> rowOfSerial;
    for (const auto& part : stored.rows) {
        const long long serial = static_cast<long long>(platform::ToNumber(part[kSerial]));
        auto [at, added] = rowOfSerial.try_emplace(serial, rows.size());
        if (added) rows.emplace_back();
        rows[at->second].parts.push_back(&part);
    }

    platform::ResultSet result;
    result.columns = {"Product_Code",
                      "ProductName",
                      "Quantity",
                      "Batch_Number",
                      "SalePrice",
                      "UOMDescription",
                      "Batch_Code",
                      "Track_Inventory",
                      "Price_Option",
                      "Expiry",
                      "PKD",
                      "FreeItem",
                      "Track_Batches",
                      "UOMQty",
                      "UOMPrice",
                      "UOMID",
                      "FreeSerial",
                      "Serial",
                      "CSchemeID",
                      "MultipleSchemeDetails",
                      "Free",
                      "OtherCG_Item",
                      "SchemeID",
                      "SPLCATSCHEMEID",
                      "SpecialCategoryScheme",
                      "SPLCATSERIAL",
                      "MultipleSplCategorySchDetail"};
    std::optional<platform::Value> multipleUnit;  // read once, for the first row that needs it
    for (const GridRow& row : rows) {
        const auto& first = row.First();
        const bool severalUnits = row.KeyedInSeveralUnits();
        if (severalUnits && !multipleUnit) multipleUnit = platform::Value(MultipleUnitText(context));
        // A row keyed in several units is priced by its base unit.
        const platform::Value unitQuantity = severalUnits ? platform::Value(row.UnitExpression())
                                                          : platform::Value(platform::NumberToText(row.Sum(kUnitQty)));
        result.rows.push_back({first[kItem],
                               first[kItemName],
                               platform::Value(row.Sum(kQuantity)),
                               platform::Value(row.BatchNamed()),
                               first[kSalePrice],
                               severalUnits ? *multipleUnit : first[kUnitText],
                               first[kBatchCode],
                               first[kTrackInventory],
                               first[kPriceOption],
                               first[kExpiry],
                               first[kPKD],
                               first[kFreeItem],
                               first[kTrackBatches],
                               unitQuantity,
                               severalUnits ? first[kSalePrice] : first[kUnitPrice],
                               severalUnits ? platform::Value(0LL) : first[kUnit],
                               first[kFreeSerial],
                               first[kSerial],
                               first[kSchemeIDs],
                               first[kSchemeDetails],
                               first[kFree],
                               first[kOtherGroupItem],
                               first[kSchemeID],
                               first[kSplCatSchemeIDs],
                               first[kSplCatScheme],
                               first[kSplCatSerial],
                               first[kSplCatSchemeDetails]});
    }
    return {result};
}

}  // namespace server::view
