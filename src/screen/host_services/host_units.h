// The host's units of measure: an item's ladder of up to three units, and quantities
// typed as "a*b*c", largest unit first.
#pragma once

#include <string>

#include "platform/controls.h"

namespace host_services {

class HostUnits {
public:
    virtual ~HostUnits() = default;

    // Base units in one of the item's given unit.
    virtual double ConvertToBaseUOM(const std::string& itemCode, long uom) = 0;
    // A quantity expression ("2*0*5", largest unit first) in base units of the item.
    virtual double ConvertToDisplayUOM(const std::string& itemCode, const std::string& quantity) = 0;
    // True when the text is a well-formed quantity for the item; parts takes the
    // number of parts typed and baseQuantity the quantity in base units.
    virtual bool ValidateUOMQuantity(const std::string& itemCode, const std::string& quantity, int& parts,
                                     double& baseQuantity) = 0;
    // The index of the list entry whose item data is the unit; -1 when none.
    virtual int ComputeUOMIndex(const platform::ListControl& list, long uom) = 0;
    // The description of the item's unit; uom 0 means the item's sales unit, which
    // then comes back through uom.
    virtual std::string GetUOMDescription(const std::string& itemCode, long& uom) = 0;
    // A quantity expression brought to its three parts, "a*b*c".
    virtual std::string GetUOMInfo(const std::string& quantity) = 0;
    // Base units in the item's unit at a level of its ladder (3 the largest, 1 the
    // base); uom takes that unit.
    virtual double ConvertWithRate(const std::string& itemCode, int level, long& uom) = 0;
};

}  // namespace host_services
