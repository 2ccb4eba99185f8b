// Units of measure, computed from the item master. An item has a ladder of up to
// three units: level 1 the base unit (rate 1), level 2 UOM1 holding UOM1_Conversion
// base units, level 3 UOM2, the largest, holding UOM2_Conversion base units. A
// quantity expression gives up to three counts joined by "*", the largest unit
// first and the last count always in base units: "2*0*5" on a three-level item is
// 2 UOM2 + 0 UOM1 + 5 base, "3*4" on a two-level item 3 UOM1 + 4 base.
#pragma once

#include <optional>
#include <string>

#include "platform/database.h"

namespace host {

struct UnitLevel {
    long uom = 0;     // the unit's identifier; 0 when the item has no unit here
    double rate = 0;  // base units in one such unit; 0 when absent
    bool Present() const { return uom != 0 && rate > 0; }
};

struct ItemLadder {
    UnitLevel level[4];  // [1] base, [2] UOM1, [3] UOM2; [0] unused
    long salesUom = 0;   // the item's default sales unit
    // The highest level the item has; counts beyond it are refused.
    int Levels() const;
};

class UnitsOfMeasure {
public:
    explicit UnitsOfMeasure(platform::Connection& connection) : connection_(connection) {}

    std::optional<ItemLadder> Ladder(const std::string& itemCode);

    // Base units in one unit of the item; 1 for the base unit, 0 for a unit the
    // item does not have (or an unknown item).
    double RateOf(const std::string& itemCode, long uom);
    // True when the text is a well-formed quantity for the item: parts takes the
    // number of counts given, baseQuantity the total in base units. A refused text
    // leaves both 0.
    bool Validate(const std::string& itemCode, const std::string& quantity, int& parts, double& baseQuantity);
    // The base quantity of a well-formed expression; 0 for one that is not.
    double BaseQuantity(const std::string& itemCode, const std::string& quantity);
    // The rate of a ladder level (1 to 3) and, into uom, its unit; 0 and 0 when the
    // item has no unit at that level.
    double RateOfLevel(const std::string& itemCode, int level, long& uom);
    // The unit's description; with uom 0 the item's sales unit is taken and handed
    // back through uom.
    std::string Description(const std::string& itemCode, long& uom);

private:
    platform::Connection& connection_;
};

// An expression normalised to its three counts, "a*b*c", short ones aligned to the
// base unit on the right: "3*4" gives "0*3*4", "" gives "0*0*0".
std::string NormaliseQuantityExpression(const std::string& quantity);

}  // namespace host
