#include "server/procedures/save_detail_line.h"

#include "server/procedure_arguments.h"
#include "server/procedures/save_checks.h"

namespace server::save {

namespace {

const std::vector<std::string> kItemPriceNames = {
    "@DispatchID", "@ItemCode", "@BatchNumber", "@OriginalPrice", "@Quantity", "@BatchTrack", "@TrackInventory",
    "@FreeItem", "@FreeRow", "@DispatchDate", "@DatedPosting", "@UOM", "@UOMQty", "@UOMPrice", "@Serial",
    "@OtherCG_Item", "@SchemeID", "@FreeSerial",
    // The long list only.
    "@CSchemeID", "@SPLCATSCHEMEID", "@SpecialCategoryScheme", "@SPLCATSERIAL", "@MultipleSchemeID",
    "@MultipleSchemeDetails", "@MultipleSplCategorySchemeID", "@MultipleSplCategorySchDetail"};

constexpr std::size_t kShortList = 18;
constexpr std::size_t kCategoryAt = 7;

std::vector<std::string> CustomerPriceNames() {
    std::vector<std::string> names = kItemPriceNames;
    names.insert(names.begin() + kCategoryAt, "@CustomerCategory");
    return names;
}

}  // namespace

const std::vector<std::string>& DetailParameterNames(bool customerPrice) {
    static const std::vector<std::string> customer = CustomerPriceNames();
    return customerPrice ? customer : kItemPriceNames;
}

DetailLine ReadDetailLine(const ProcedureArguments& args, bool customerPrice) {
    const std::size_t shift = customerPrice ? 1 : 0;
    args.ExpectAtMost(kItemPriceNames.size() + shift);
    RequireSupplied(args, kShortList + shift);
    // Positions of the item-price list; the customer's category pushes the rest on.
    auto at = [&](std::size_t n) { return n < kCategoryAt ? n : n + shift; };
    auto flag = [&](std::size_t n) {
        const platform::Value value = args.Bit(at(n));
        return value.IsNull() ? 0LL : value.AsInteger();
    };

    DetailLine line;
    line.dispatchID = RequiredInt(args.Int(0), "dispatch of the line");
    line.item = args.TextOr(1, "");
    line.batchNumber = args.TextOr(2, "");
    line.originalPrice = args.FloatOr(3, 0);
    line.baseQuantity = RequiredFloat(args.Float(4), "quantity of the line");
    line.batchTrack = flag(5);
    line.trackInventory = flag(6);
    line.customerPrice = customerPrice;
    if (customerPrice) line.customerCategory = args.IntOr(kCategoryAt, 0);
    line.freeItem = flag(7);
    line.freeRow = flag(8);
    line.dispatchDay = args.DateTime(at(9));
    line.datedPosting = flag(10);
    line.unit = RequiredInt(args.Int(at(11)), "unit of the line");
    line.unitQuantity = args.FloatOr(at(12), 0);
    line.unitPrice = args.FloatOr(at(13), 0);
    line.serial = args.IntOr(at(14), 0);
    line.otherGroupItem = flag(15);
    line.schemeID = args.IntOr(at(16), 0);
    line.freeSerial = args.TextOr(at(17), "");
    line.schemeIDs = args.TextOr(at(18), "");
    line.splCatSchemeIDs = args.TextOr(at(19), "");
    line.splCatScheme = args.Supplied(at(20)) ? flag(20) : 0;
    line.splCatSerial = args.TextOr(at(21), "");
    line.multipleSchemeIDs = args.TextOr(at(22), "");
    line.multipleSchemeDetails = args.TextOr(at(23), "");
    line.multipleSplCatSchemeIDs = args.TextOr(at(24), "");
    line.multipleSplCatSchemeDetails = args.TextOr(at(25), "");
    if (line.dispatchDay.IsNull()) Refuse("The dispatch date of the line is missing.");
    return line;
}

}  // namespace server::save
