#include "schemes/other_group_table_text.h"

#include "platform/convert.h"
#include "screen/host_services/other_group_free_items.h"
#include "screen/routine_table.h"

namespace schemes {

namespace field = host_services::ocg_field;

std::string OCGTableText(const platform::VariantTable& vItems) {
    if (!vItems.IsArray()) return "";
    std::string szText;
    for (long nEntry = 0; nEntry <= vItems.UBound(2); ++nEntry) {
        if (nEntry > 0) szText += ";";
        for (int nField = 0; nField <= vItems.UBound(1); ++nField)
            szText += (nField ? "|" : "") + platform::ToText(vItems.At(nField, nEntry));
    }
    return szText;
}

platform::VariantTable OCGTableFromText(const std::string& szItems) {
    const std::vector<std::string> vEntries = platform::Split(szItems, ";");
    platform::VariantTable vItems(static_cast<long>(vEntries.size()), field::Last);
    for (std::size_t nEntry = 0; nEntry < vEntries.size(); ++nEntry) {
        const std::vector<std::string> vFields = platform::Split(vEntries[nEntry], "|");
        if (vFields.size() != static_cast<std::size_t>(field::Count))
            throw screen::RoutineRefused("entry " + std::to_string(nEntry + 1) + " has " +
                                         std::to_string(vFields.size()) + " fields, not " +
                                         std::to_string(field::Count));
        for (int nField = 0; nField < field::Count; ++nField) {
            const std::string& szField = vFields[nField];
            if (nField <= field::LastText) {
                vItems.At(static_cast<long>(nEntry), nField) = szField;
            } else {
                if (!platform::IsNumericText(szField))
                    throw screen::RoutineRefused("entry " + std::to_string(nEntry + 1) + " field " +
                                                 std::to_string(nField) + ": \"" + szField + "\" is not a number");
                vItems.At(static_cast<long>(nEntry), nField) = platform::ToNumber(platform::Value(szField));
            }
        }
    }
    return vItems;
}

}  // namespace schemes
