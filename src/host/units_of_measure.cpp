#include "host/units_of_measure.h"

#include <cctype>
#include <vector>

#include "host/sql_text.h"
#include "platform/convert.h"

namespace host {
namespace {

long UnitId(const platform::Value& value) {
    return value.IsNull() || value.IsEmpty() ? 0 : static_cast<long>(platform::ToNumber(value));
}

// A count is digits with at most one decimal point; no sign, no exponent, no blanks
// inside. Blanks around it are forgiven.
std::optional<double> ParseCount(const std::string& part) {
    std::string text = platform::Trim(part);
    bool digit = false, point = false;
    for (char c : text) {
        if (std::isdigit(static_cast<unsigned char>(c)))
            digit = true;
        else if (c == '.' && !point)
            point = true;
        else
            return std::nullopt;
    }
    if (!digit) return std::nullopt;
    return platform::Val(text);
}

std::vector<std::string> SplitOnStar(const std::string& text) {
    std::vector<std::string> parts(1);
    for (char c : text) {
        if (c == '*')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

}  // namespace

int ItemLadder::Levels() const {
    if (level[3].Present()) return 3;
    if (level[2].Present()) return 2;
    return 1;
}

std::optional<ItemLadder> UnitsOfMeasure::Ladder(const std::string& itemCode) {
    auto rs = connection_.Execute(
        "Select BaseUOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion, UOM From Items Where Product_Code = " +
        SqlText(itemCode));
    if (!rs || rs->Eof()) return std::nullopt;
    ItemLadder ladder;
    ladder.level[1] = {UnitId(rs->Fields(0)), 1.0};
    ladder.level[2] = {UnitId(rs->Fields(1)), platform::ToNumber(rs->Fields(2))};
    ladder.level[3] = {UnitId(rs->Fields(3)), platform::ToNumber(rs->Fields(4))};
    ladder.salesUom = UnitId(rs->Fields(5));
    for (int i = 2; i <= 3; ++i)
        if (!ladder.level[i].Present()) ladder.level[i] = {};
    rs->Close();
    return ladder;
}

double UnitsOfMeasure::RateOf(const std::string& itemCode, long uom) {
    auto ladder = Ladder(itemCode);
    if (!ladder) return 0;
    // Unit 0 is the multi-unit entry: its expression is counted in base units.
    if (uom == 0) return 1;
    for (int i = 1; i <= 3; ++i)
        if (ladder->level[i].uom == uom) return ladder->level[i].rate;
    return 0;
}

bool UnitsOfMeasure::Validate(const std::string& itemCode, const std::string& quantity, int& parts,
                              double& baseQuantity) {
    parts = 0;
    baseQuantity = 0;
    auto ladder = Ladder(itemCode);
    if (!ladder) return false;
    auto counts = SplitOnStar(quantity);
    int levels = ladder->Levels();
    if (static_cast<int>(counts.size()) > levels) return false;

    double total = 0;
    // The last count is in base units, the one before it a level up, and so on.
    int level = static_cast<int>(counts.size());
    for (const auto& part : counts) {
        auto count = ParseCount(part);
        if (!count) return false;
        // A gap in the ladder (UOM2 without UOM1) cannot hold anything.
        if (*count != 0 && level > 1 && !ladder->level[level].Present()) return false;
        total += *count * ladder->level[level].rate;
        --level;
    }
    parts = static_cast<int>(counts.size());
    baseQuantity = total;
    return true;
}

double UnitsOfMeasure::BaseQuantity(const std::string& itemCode, const std::string& quantity) {
    int parts = 0;
    double base = 0;
    return Validate(itemCode, quantity, parts, base) ? base : 0;
}

double UnitsOfMeasure::RateOfLevel(const std::string& itemCode, int level, long& uom) {
    uom = 0;
    if (level < 1 || level > 3) return 0;
    auto ladder = Ladder(itemCode);
    if (!ladder) return 0;
    const UnitLevel& unit = ladder->level[level];
    // The base level has rate 1 even when the master names no unit for it.
    if (level > 1 && !unit.Present()) return 0;
    uom = unit.uom;
    return unit.rate;
}

std::string UnitsOfMeasure::Description(const std::string& itemCode, long& uom) {
    if (uom == 0) {
        auto ladder = Ladder(itemCode);
        if (!ladder) return {};
        uom = ladder->salesUom != 0 ? ladder->salesUom : ladder->level[1].uom;
        if (uom == 0) return {};
    }
    auto rs = connection_.Execute("Select Description From UOM Where UOM = " + std::to_string(uom));
    if (!rs || rs->Eof()) return {};
    return platform::ToText(rs->Fields(0));
}

std::string NormaliseQuantityExpression(const std::string& quantity) {
    auto counts = SplitOnStar(quantity);
    std::string parts[3] = {"0", "0", "0"};
    // Right-aligned: the last count is the base unit's.
    int slot = 2;
    for (auto it = counts.rbegin(); it != counts.rend() && slot >= 0; ++it, --slot) {
        std::string count = platform::Trim(*it);
        if (!count.empty()) parts[slot] = count;
    }
    return parts[0] + "*" + parts[1] + "*" + parts[2];
}

}  // namespace host
