// The free items of other category groups, as the form and the host's dialog hand
// them to each other: a table of twelve fields an entry. The form gives the dialog
// the standing rows with the field as the first index; the dialog gives back the
// rows the user settled on with the entry as the first index and one spare slot
// after the last entry.
#pragma once

#include "platform/variant_table.h"

namespace host_services {

namespace ocg_field {
inline constexpr int ItemCode = 0;  // text fields: 0 to 3
inline constexpr int ItemName = 1;
inline constexpr int Batch = 2;
inline constexpr int UOM = 3;        // the unit's text
inline constexpr int Quantity = 4;   // number fields: 4 to 11
inline constexpr int BatchCode = 5;  // the stock row, Batch_Products.Batch_Code
inline constexpr int UOMID = 6;
inline constexpr int BatchTrack = 7;
inline constexpr int PriceOption = 8;
inline constexpr int TrackInventory = 9;
inline constexpr int FreeRow = 10;   // 1 when the batch is free stock
inline constexpr int SerialNo = 11;  // the row's serial; 0 for an entry the dialog added
inline constexpr int LastText = UOM;
inline constexpr int Last = SerialNo;
inline constexpr int Count = Last + 1;
}  // namespace ocg_field

// The form the dialog answers: it replaces its other-group free rows by the table's
// entries and returns to the row of the serial.
class OCGFreeItemsOwner {
public:
    virtual ~OCGFreeItemsOwner() = default;
    virtual void LoadOCGFreeItems(const platform::VariantTable& vItems, long nReturnSerial) = 0;
};

}  // namespace host_services
