// Units of measure of the global service, from the item master.
#include "host/plain_global.h"

namespace host {

double PlainGlobal::ConvertToBaseUOM(const std::string& itemCode, long uom) { return units_.RateOf(itemCode, uom); }

double PlainGlobal::ConvertToDisplayUOM(const std::string& itemCode, const std::string& quantity) {
    return units_.BaseQuantity(itemCode, quantity);
}

bool PlainGlobal::ValidateUOMQuantity(const std::string& itemCode, const std::string& quantity, int& parts,
                                      double& baseQuantity) {
    return units_.Validate(itemCode, quantity, parts, baseQuantity);
}

int PlainGlobal::ComputeUOMIndex(const platform::ListControl& list, long uom) {
    for (int i = 0; i < list.ListCount(); ++i)
        if (list.ItemData(i) == uom) return i;
    return -1;
}

std::string PlainGlobal::GetUOMDescription(const std::string& itemCode, long& uom) {
    return units_.Description(itemCode, uom);
}

std::string PlainGlobal::GetUOMInfo(const std::string& quantity) { return NormaliseQuantityExpression(quantity); }

double PlainGlobal::ConvertWithRate(const std::string& itemCode, int level, long& uom) {
    return units_.RateOfLevel(itemCode, level, uom);
}

}  // namespace host
