#include "grid/row_model/grid_columns.h"

namespace grid {

namespace {
using A = ColumnAlign;
constexpr std::array<ColumnDefinition, kGridColumnCount> kColumns{{
    {colItemCode, "colItemCode", "Item Code", 1200, A::Left},
    {colItemName, "colItemName", "Item Name", 2500, A::Left},
    {colBatch, "colBatch", "Batch", 1000, A::Left},
    {colUOM, "colUOM", "UOM", 800, A::Left},
    {colSalePrice, "colSalePrice", "Sale Price", 1200, A::Right},
    {colQuantity, "colQuantity", "Quantity", 1000, A::Right},
    {colBatchRequired, "colBatchRequired", "Batch Required", 0, A::Right},
    {colAvailableQty, "colAvailableQty", "Available Qty", 0, A::Right},
    {colBatchTrack, "colBatchTrack", "Batch Track", 0, A::Right},
    {colPriceOption, "colPriceOption", "Price Option", 0, A::Right},
    {colOriginalPrice, "colOriginalPrice", "Original Price", 0, A::Right},
    {colTrackInventory, "colTrackInventory", "Track Inventory", 0, A::Default},
    {colSchemeID, "colSchemeID", "SchemeID", 0, A::Right},
    {colSchemeName, "colSchemeName", "Scheme Name", 0, A::Left},
    {colFreeItem, "colFreeItem", "FreeItem", 0, A::Right},
    {colPromptMessage, "colPromptMessage", "Prompt Message", 0, A::Left},
    {colItemCheck, "colItemCheck", "Item Check", 0, A::Right},
    // The primary's code on a free row repeats the heading of column 1.
    {colPrimaryItemCode, "colPrimaryItemCode", "Item Code", 0, A::Left},
    {colFreeRow, "colFreeRow", "Free Row", 0, A::Default},
    {colBatchSelection, "colBatchSelection", "Batch Selection", 0, A::Default},
    {colStoredBatch, "colStoredBatch", std::nullopt, 0, A::Default},
    {colStoredQty, "colStoredQty", std::nullopt, 0, A::Default},
    {colStoredRow, "colStoredRow", std::nullopt, 0, A::Default},
    {colStoredExpiry, "colStoredExpiry", std::nullopt, 0, A::Default},
    {colStoredPKD, "colStoredPKD", std::nullopt, 0, A::Default},
    {colBatchCode, "colBatchCode", std::nullopt, 0, A::Default},
    {colUOMID, "colUOMID", "UOMID", 0, A::Left},
    {colUOMDesc, "colUOMDesc", "UOMDesc", 0, A::Left},
    {colOCGItem, "colOCGItem", "OCGItem", 0, A::Right},
    {colSerialNo, "colSerialNo", "Serial No", 0, A::Default},
    {colPrevQty, "colPrevQty", "PrevQty", 0, A::Default},
    {colSplCatSerial, "colSplCatSerial", "SPLCATSERIAL", 0, A::Default},
    {colSplCatSchemeID, "colSplCatSchemeID", "SPLCATSCHEMEID", 0, A::Default},
    {colSplCatSchemeIndicator, "colSplCatSchemeIndicator", "SPLCATSCHEME_INDICATOR", 0, A::Default},
    // These three headings end in a blank, as the screen always had them.
    {colSplCategoryScheme, "colSplCategoryScheme", "SPLCATEGORYSCHEME ", 0, A::Default},
    {colSplCatDiscPercent, "colSplCatDiscPercent", "SPLCATDISCPERCENT ", 0, A::Default},
    {colSplCatDiscAmount, "colSplCatDiscAmount", "SPLCATDISCAMOUNT ", 0, A::Default},
    {colSplCatCode, "colSplCatCode", "SPLCAT_CODE", 0, A::Default},
    {colFreeItmIgnored, "colFreeItmIgnored", "FreeItmIgnored", 0, A::Default},
    {colSchemeCustID, "colSchemeCustID", "SchemeCustID", 0, A::Default},
    {colSchemeInvDate, "colSchemeInvDate", "SchemeInvDate", 0, A::Default},
    {colMultiSchemeDetail, "colMultiSchemeDetail", "multischemedetail", 0, A::Default},
    {colMultiSpecialCatSchemeDetail, "colMultiSpecialCatSchemeDetail", "multispecialcatschemedetail", 0, A::Default},
}};
}  // namespace

const std::array<ColumnDefinition, kGridColumnCount>& ColumnTable() { return kColumns; }

}  // namespace grid
