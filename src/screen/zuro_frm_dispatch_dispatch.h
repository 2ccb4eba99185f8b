// The dispatch form: one object that owns all of the screen's state — its
// controls, its fields and the grid, the only home of a note's lines. Routines are
// plain members with by-reference results; each subsystem defines its own in its
// own folder.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/runtime_error.h"
#include "platform/value.h"
#include "platform/variant_table.h"
#include "screen/host_services/host_services.h"
#include "screen/host_services/other_group_free_items.h"
#include "screen/screen_form.h"

namespace screen {

// The modes of the screen, fixed for the life of the form.
namespace mode {
inline constexpr long FromSalesConfirmation = 1;
inline constexpr long NewDispatch = 2;
inline constexpr long FromPurchaseOrder = 3;
inline constexpr long View = 4;
inline constexpr long Cancel = 5;
inline constexpr long FromAlert = 6;
inline constexpr long Amendment = 7;
}  // namespace mode

class Zuro_frmDispatch_Dispatch : public ScreenForm,
                                  public host_services::AutoListOwner,
                                  public host_services::OCGFreeItemsOwner {
public:
    explicit Zuro_frmDispatch_Dispatch(host_services::HostServices host);
    ~Zuro_frmDispatch_Dispatch() override;

    // ---- controls -------------------------------------------------------------
    // Frames: Frame1(0) the list page's filter frame, Frame1(1) the customer frame,
    // Frame3 the entry page, Frame4 the party fields, Frame5 the two address frames.
    platform::Frame Frame1_0, Frame1_1, Frame2, Frame3, Frame4, Frame5_0, Frame5_1, Frame6, frameRemarks,
        FrameAvailable;
    platform::DatePicker dtFromDate, dtToDate, DTDispatchDate;
    platform::TextBox txtCustomer, txtCustomerID, txtSalesman, txtBeat, txtCategory, txtref, txtDocReference, txtDocID,
        txtDocIDTo, txtBillingAddress, txtShippingAddress, txtRemarks;
    platform::ComboBox cbodocumenttype, cboCustomer, cboCustomerID, cboSalesman, cboBeat, cboCatGroup;
    platform::ListView lstSO, lstAvailable;
    platform::ListBox lstUOM;
    platform::DTFlex DTFlexDispatch;
    platform::CommandButton cmdContinue, cmdClose_0, cmdClose_1, cmdSave, cmdGo, cmdRefresh, cmdApplyScheme, cmdMemo,
        cmdChange;
    static constexpr int kFieldLabels = 15;  // 10 to 13 are unused places of the array
    std::vector<std::unique_ptr<platform::Label>> lblFieldsArray;
    platform::Label lblDispDate, lblSalesman, lblBeat, lblCatGroup, lblRef, lblCustomer, lblCustomerId, lblDocReference,
        lblDocType, lblDispatchID;

    // The indexed controls by their index, as the screen addresses them.
    platform::Frame& Frame1(int index);
    platform::Frame& Frame5(int index);
    platform::CommandButton& cmdClose(int index);
    platform::Label& lblFields(int index);

    // ---- screen fields --------------------------------------------------------
    std::shared_ptr<host_services::HostLink> objLink;
    long nMode = 0;
    platform::Date dtServerDate{};
    std::string szCustomerCode, szCustomerName;
    long nCustomerCategory = 0;
    std::string szDocNumbers, szPONumbers, szRefNumbers, szDocIDs, szDocIDs2, szCopySONumber;
    std::string szMemo1, szMemo2, szMemo3;
    std::unique_ptr<host_services::AutoList> objCustomerList, objSalesmanList, objBeatList, objItemList;
    std::string szLblSelectSalesman, szLblSelectBeat, szLblSelectCategory, szLblAllCategories, szLblAllCustomers;
    std::string szSCPrefix, szPOPrefix, szDispatchPrefix;
    std::string szDefaultDocReference, szOriginalDocType;
    bool bAskOnExit = false;
    long nCustomerEntrySource = 0;
    bool bAllCategories = false;
    std::vector<platform::Control*> vFocusOrder, vFocusOrder2;
    long bListArmed = 0;  // the grid's key switch: a typing key reached the item columns

    // ---- entry and life cycle -------------------------------------------------
    void InitForm(platform::Date DServerDate, long nMode, host_services::HostContext& Zuro_objGlobal,
                  platform::Date AlertDate);
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(int& Cancel, int UnloadMode);
    void Form_Unload(int& Cancel);
    void Form_KeyDown(int& KeyCode, int Shift) override;
    void cmdMemo_Click();
    void ClearMemoFields();
    void InitDTFlexDispatch();

    // ---- the document lists: pending sales confirmations, received purchase orders ----
    void InitList();
    void InitValues();
    void ListAllSOAbstract();
    void ListSpecifiedSOAbstract(const std::string& szCustomerID);
    void LoadData(platform::Recordset& rsRecords);
    void ListAllPOAbstract();
    void ListSpecifiedPOAbstract(const std::string& szCustomerID);
    void LoadPOData(platform::Recordset& rsRecords);
    void GetDetails();
    bool Validate();
    void SelectConfirmation(platform::ListView& lstView, int Item, bool bSingle, bool bKeepOthers);
    void lstSO_ItemCheck(int Item);
    void lstSO_KeyDown(int& KeyCode, int Shift);
    void cmdRefresh_Click();
    void dtFromDate_LostFocus();
    void dtToDate_LostFocus();
    void dtFromDate_KeyDown(int& KeyCode, int Shift);
    void dtToDate_KeyDown(int& KeyCode, int Shift);
    // The pending documents of the mode for the customer filter: every customer's
    // under the tag "%", else szCustomerCode's.
    void ListPendingDocuments();
    void WireDocumentLists();

    // ---- the stored notes' list, the look-up by number and the Continue step ----------
    std::string szDocStatusText;  // the status word of the note ticked on the list
    void ListDispatch(bool& bDocLookUp);
    void AlignDocLookUp();
    void cmdGo_Click();
    void txtDocID_GotFocus();
    void txtDocIDTo_GotFocus();
    void txtDocID_KeyDown(int& KeyCode, int Shift);
    void txtDocIDTo_KeyDown(int& KeyCode, int Shift);
    void HandleSingleSelection(platform::ListView& lstView, int Item);
    void cmdContinue_Click();
    void cmdContinue_KeyDown(int& KeyCode, int Shift);
    void cmdClose_Click(int Index);
    void cmdClose_LostFocus(int Index);
    void ValidateDispatch(int nType, bool& bValid);
    void ShowNotFound(const std::string& szPONumbers);
    void HandleControls();
    // The look-up's rows, or the period's, go into lstSO.
    void FillDispatchList(platform::Recordset& rsRecords);
    // Continue's load of the document that was ticked, by mode.
    void LoadTickedDocument();
    void WireStoredNotesAndContinue();

    // ---- pages, layout and focus -------------------------------------------------
    void SetFrame(long nScreen);
    void LayoutHeaderFields();
    void LayoutCustomerFields();
    void AlignControlsforDocumentNumber();
    void MakeControlsVisible();
    void SetTabStop(long nScreen);
    void AdvanceField(int Shift);
    void AdvanceField2(int Shift);
    void RepositionAutolist();
    void cmdChange_Click();
    void cmdChange_KeyDown(int& KeyCode, int Shift);
    void txtref_KeyDown(int& KeyCode, int Shift);
    void txtRemarks_KeyDown(int& KeyCode, int Shift);
    void txtBillingAddress_KeyPress(int& KeyAscii);
    void txtShippingAddress_KeyPress(int& KeyAscii);
    void DTDispatchDate_KeyDown(int& KeyCode, int Shift);

    // ---- document type and numbering ---------------------------------------------
    bool bComboDropped = false;
    void GetNewDispatchID();
    void LoadDocumentTypes(int nTransactionType);
    void SetDocumentReference(int nTransactionType);
    void GetRefNO();
    void txtDocReference_KeyDown(int& KeyCode, int Shift);
    void cbodocumenttype_KeyDown(int& KeyCode, int Shift);
    void cbodocumenttype_KeyPress(int& KeyAscii);
    void cbodocumenttype_DropDown();
    void cbodocumenttype_Click();
    void cbodocumenttype_LostFocus();

    // ---- customer --------------------------------------------------------------------
    int nLastKeyShift = 0;  // the Shift of the key that is running, for the key-press handlers
    void InitCustAutolists();
    void txtCustomer_Change();
    void txtCustomerID_Change();
    void txtCustomer_KeyDown(int& KeyCode, int Shift);
    void txtCustomerID_KeyDown(int& KeyCode, int Shift);
    void txtCustomer_KeyPress(int& KeyAscii);
    void txtCustomerID_KeyPress(int& KeyAscii);
    void txtCustomer_LostFocus();
    void txtCustomerID_LostFocus();
    void LoadCustomerAdd();
    void LoadCustomerInfo();
    void HandleCtrlF7(int& KeyCode, int Shift);
    void ClearCustomer();
    long GetCustomerCategory(const std::string& szCustomerID);
    static std::string DoubleQuotes(const std::string& szText);

    // ---- customer credit -------------------------------------------------------------
    void ShowCustomerCredit(const std::string& szName, bool bWithBills);
    double GetCreditLimit(const std::string& szCode);
    double GetOutstandingBalance(const std::string& szCode);
    double GetCustomerOverDue(const std::string& szCode, long nKind);
    double GetChequesInHand(const std::string& szCode);
    platform::Value LoadBillsOutstanding(const std::string& szName);
    bool IsTradeCustomer(const std::string& szCode);
    static void ToUpperKey(int& nKeyAscii);

    // ---- salesman, beat and category group -----------------------------------------
    std::int16_t nPrevSalesmanID = 0;
    std::string szPrevSalesmanName;
    std::int16_t nPrevBeatID = 0;
    std::string szPrevBeatName;
    std::string szPrevCustomerCode, szPrevCustomerName;
    std::string szPrevGroupID, szPrevGroupName;
    bool bPartyAutoFilled = false;
    bool bGroupReset = false;
    bool bGroupClearedSalesman = false;
    // The beat box is being emptied by its own Change handler. Each form keeps its own:
    // several clerks' forms run at once.
    bool bEmptyingBox = false;
    std::string szGroupIDs, szGroupNames;
    std::string szCurrentGroupID;
    void LoadSalesman();
    void LoadBeat();
    void LoadCustomer();
    void LoadCategoryGroup(long nInd);
    void LoadDefaultBeatSalesman();
    void LoadPreviousValues();
    void SetDefaultSalesman(long nSalesmanID);
    void SetDefaultBeat(long nBeatID);
    void SetDefaultCatGroup(const std::string& szGroup);
    void CheckForGroupChange(const std::string& szGroup, long nInd);
    void CheckForGridItem(long nSalesmanChange, bool& nResult);
    void ResetCatGrp();
    void GroupExistsForSalesman(long nSalesmanID, const std::string& szGroup, long& nResult);
    static void GrpExists(const std::string& szOld, const std::string& szNew, bool& bAll, bool& bAny);
    void DSTypeCatMapped(long nSalesmanID, long& nResult);
    bool DSTypeNotMapped(const std::string& szGroup);
    void CheckForAllCatGrpMapped(long nSalesmanID, long& nResult);
    std::string GetCategoryGroupNames(const std::string& szGroupIDs);
    void ClearSalesman();
    void ClearBeat();
    void ClearCategoryGroup();
    long GetSalesmanID();
    std::string GetSalesmanName();
    long GetBeatID();
    std::string GetBeatName();
    std::string GetGroupID();
    std::string GetGroupName();
    bool ValidSalesman();
    bool ValidBeat();
    bool ValidCatGroup();
    bool isBeatDeactivated(long nBeatID);
    void txtSalesman_Change();
    void txtSalesman_KeyDown(int& KeyCode, int Shift);
    void txtSalesman_LostFocus();
    void txtBeat_Change();
    void txtBeat_KeyDown(int& KeyCode, int Shift);
    void txtBeat_LostFocus();
    void txtCategory_KeyDown(int& KeyCode, int Shift);
    void txtCategory_LostFocus();
    void CheckTinNumber();

    // ---- row serials ---------------------------------------------------------------
    static std::string GetSerialInAscOrder(const std::string& szList);

    // The item list's two statements, set by the category group (ResetCatGrp).
    std::string szItemCodeQuery, szItemNameQuery;

    // ---- item look-up, row serials, units of measure ----------------------------------
    // The item list and its two companions, which are made with it and only owned.
    std::unique_ptr<host_services::AutoList> objItemListSpare1, objItemListSpare2;
    long nDispatchID = 0;             // the dispatch being amended
    std::int16_t nSerialCounter = 0;  // the last row serial given out
    void InitAutolist();
    void SetAutolistOption(long nCol);
    void Add_Unique_Serial(long& nRow, std::int16_t& iResetAll, std::int16_t& bToSet);
    long getRowNumber(long nSerial);
    // 1 removes the listed free rows, 2 sums the rows' base quantities, 4 lists the
    // rows' numbers; Empty for an empty list.
    platform::Value DoRowOperation(long lOperation, const std::string& szRows, platform::DTFlex& DTFlexProducts);
    void LoadItemUOM(const std::string& szItemCode, long nRow);
    void ApplyUOMChange(bool bFocusGrid);
    void CycleUOM();
    void ValidateUOM(long nRows, bool& bValid);
    void CheckForMultipleUOM(long nRow);
    void lstUOM_Click();
    void lstUOM_DblClick();
    void lstUOM_KeyDown(int& KeyCode, int Shift);
    void lstUOM_GotFocus();
    void lstUOM_LostFocus();
    void CopyGridItems(platform::DTFlex& grid);
    void PasteGridItems(platform::DTFlex& grid);
    long FirstBlankGridRow(platform::DTFlex& grid);
    long FindQuantityColumn(platform::DTFlex& grid, long nRow);
    std::string GetGridQuantity(platform::DTFlex& grid, long nRow);
    void WireItemLookupAndUnits();

    // ---- item entry, pricing and batches --------------------------------------------------
    double dUOMRate = 0;    // base units in one unit of the row in hand
    long nBatchTrack = 0;   // colBatchTrack of the current row
    long nPriceOption = 0;  // colPriceOption of the current row
    bool bQtySyntaxError = false;
    bool bQtyRefused = false;  // refused for stock, or the row carries an ignored free item
    bool bNoStockRow = false;  // the row's item has no stock: a zero quantity passes
    bool bUOMTyped = false;    // the user changed the unit cell by hand
    std::string szGroupID;
    void DTFlexDispatch_AfterColUpdate(int nRow, int nCol, bool& bCancel);
    void GetItemPrice(const std::string& szItemCode, long nRow);
    void GetItemProperty(const std::string& szItemCode, long nProperty, long& nValue);
    void ClearItemDetails(long nRow);
    void ComputeDispatchValue(long nLastRow, double& dValue);
    double GetTotalBookStock(const std::string& szItemCode);

    std::string szBatchItemCode;  // the item whose stock lstAvailable shows
    int objBatchEntry = 0;        // lstAvailable's selected entry, by index; 0 none
    double dStoredQty = 0;        // colStoredQty of the current row
    std::string szExpiryText, szPKDText;
    std::vector<double> vListWidths;
    void DispatchBatchDetails(const std::string& szItemCode, const std::string& szBatch, const std::string& szPrice,
                              long nBatchTrack, long nPriceOption, long nStoredRow, const std::string& szStoredBatch);
    void SetGridMode(platform::ListView& list, long nPriceOption, long nBatchTrack, const std::string& szItemCode);
    void LoadListWidths(long nScreen, platform::Frame& frame, platform::ListView& list);
    long GetItemBatchFlags(const std::string& szItemCode, long& nVirtualBatches);
    double LoadBatchStock(platform::ListView& list, const std::string& szItemCode, long nBatchTrack, long nPriceOption,
                          long nCustomerCategory, const std::string& szProcedure, long nVirtualBatches, long nTrackPKD,
                          double dRate, long nDetail);
    platform::RecordsetPtr OpenBatchStock(const std::string& szItemCode, long nBatchTrack, long nPriceOption,
                                          long nCustomerCategory, const std::string& szProcedure, long nVirtualBatches);
    void AddBatchInfo(const std::string& szBatch, double dQuantity, double dPrice, long nBatchCode);
    void PreserveOriginalQty(const std::string& szOption, const std::string& szExpiry, const std::string& szPKD,
                             double dPrice, double dQuantity);
    void AddUnBatchQty(const std::string& szBatchOption, double dPrice, double dQuantity, long nFree);
    void AddUnBatchInfo(double dQuantity, double dPrice, const std::string& szExpiry, const std::string& szPKD,
                        const std::string& szFreeText);
    // The row takes batch, stock and price from objBatchEntry (the key handler's step).
    void TakeFromBatchEntry(long nRow, long nCol);
    // "Batch: {0}, " and "Total: {0}" on the status line for the row in hand.
    void ShowBatchStockStatus(long nRow, long nCol);
    void WireItemEntryAndBatches();

    // ---- scheme arithmetic, grid keyboard and rows -------------------------------------
    // Scheme arithmetic and look-ups shared by every scheme generation.
    double getQuotient(double nDividend, double nDivider);
    double GetApplicableQuantity(double dQuantity, double dAmount, long nSlabUnit, double dOnward);
    double GetActualQuantity(long nRow, int nSlabUnit, double dOnward, platform::DTFlex& DTFlexProducts);
    double GetBaseUOMConv(const std::string& szItemCode, int nUnit);
    long chkFreeItemFound(long nSchID, long nSlab);
    std::string AddStringwithCheck(const std::string& szString, const std::string& szAddString,
                                   const std::string& szDelimit);
    void CheckScheme(long nRow, bool isRowDeleted, platform::DTFlex& DTFlexProducts);
    long GetSaleID(const std::string& szItemCode);
    void ComputeAmount(long& nRow, platform::DTFlex* DTFlexProducts);  // kept for the interface only
    void ComputeTotal(long nRow, bool bSkip);
    static double ComputeDiscount(double dValue1, double dValue2, double dValue3);
    double GetTotalQtyAmountForItem(const std::string& szItemCode);
    // "<scheme>|<slab>|0|0" of colMultiSchemeDetail and colMultiSpecialCatSchemeDetail;
    // the second narrows the scheme to 16 bits (error 6 beyond).
    static std::string MultiSchemeDetail(long nSchemeID, long nSlabID);
    static std::string MultiSpecialCatSchemeDetail(long nSchemeID, long nSlabID);
    // A free row for a primary row at the bottom of the grid; its serial and a comma
    // go onto szNewSerials. Answers the free row.
    // The SKU evaluation's free row links to every primary serial of its item, moves
    // the grid's cell to column 5 before its Enter and writes its detail string last.
    struct SkuFreeRow {
        std::string szPrimarySerials;
    };
    void WriteItemPropertyCells(int nRow, const std::string& szItemCode);
    long MakeSchemeFreeRow(long nPrimaryRow, long nSchemeID, long nSlabID, const std::string& szFreeCode, double fFree,
                           std::string& szNewSerials, const SkuFreeRow* pSkuRow = nullptr);

    // The document's scheme memory: per item (0 code, 1 base quantity, 2 amount,
    // 3 serials, 4 rows) at the last scheme run and now, and for whom and when.
    using SkuArray = std::vector<std::vector<platform::Value>>;
    SkuArray arrPrevSKU, arrCurrSKU;
    long nPrevSKUCount = 0, nCurrSKUCount = 0, nPrimaryRowCount = 0;
    std::string szSchemeCustomer;
    platform::Date dtSchemeDate{};
    bool bSplCatRefused = false, bSplCatFreeMissing = false;
    void ResetSchemeMemory();

    // ---- the scheme passes: dispatch item, special category and SKU schemes ----------
    bool bSchemeRunning = false;    // a scheme routine is looking for free goods and writing free rows
    bool bFreeItemMissing = false;  // a free item could not be had; kept for the host, read nowhere here
    bool bSchemesApplied = false;   // one complete run of the scheme button has been made
    bool bCustomerHasScheme = false;
    // Two marks of the special category pass that the screen has always kept and
    // never read.
    bool bSplCatApplied = false, bSplCatReverted = false;
    double fUOMRate = 0;  // the unit rate of the row in hand; 1 while a free row is written
    long nCurrPrimaryRowCount = 0;
    std::string szFailedSKU;  // the item whose free SKU failed in the last application
    // Mode 7: the stored note's own date and creation date, by which its schemes are judged.
    platform::Date dtOldDispatchDate{};
    std::string szOldCreationDate;

    void cmdApplyScheme_Click();
    SkuArray PopulateItemArray(long& nCount);
    long GetGridRowCnt();
    void RevertAllSkuSchemes(const SkuArray& arrUnused);
    bool ApplyShemesForAllSKU();
    void ReverSKUScheme(const std::string& szItemCode, const std::string& szRows);
    bool FreeItemExits(const std::string& szItemCode, const std::string& szRows);
    bool FindSKUSchemes(const std::string& szItemCode, double nQuantity, double nAmount,
                        const std::string& szPrimarySerial, const std::string& szPrimaryRowNos,
                        const std::string& CreationDate);
    bool ApplySKUScheme(long nSchemeType, platform::DTFlex& DTFlexProducts, const std::string& szPrimaryRows,
                        platform::Recordset& rsSlab, long nSchemeID, const std::string& szSchName, long nSlabID,
                        const std::string& szPrimaryItemCode, double dTotPrimaryQty, double dTotPrimaryAmount,
                        const std::string& szPrimarySerail);
    void CheckSchemeExistsForCustomer();
    std::string GetCustomerKey();

    void FindDispatchSchemes(const std::string& szItemCode, double nQuantity, platform::Date DServerDate, long nRow,
                             const std::string& CreationDate);
    void ApplyItemScheme(long nSchemeType, platform::DTFlex& DTFlexProducts, long nRowIndex,
                         platform::Recordset& rsSlab, const std::string& szPromptMssg, double nQty,
                         std::int16_t nSchemeID, const std::string& szSchName, long nSlabID);

    bool FindSpecialCategoryScheme(platform::DTFlex& DTFlexProducts, bool& bResult);
    void ApplySpecialCategoryScheme(std::vector<std::string>& vSplit1, std::vector<std::string>& vFreeItems,
                                    long& nSchemeID, double& nTotQty, double& nUOM1Qty, double& nUOM2Qty,
                                    double& nTotAmount, long& nQtyOrValueSlab, double& nFactor, long& nSchemeType,
                                    double& dDiscountAmount, platform::DTFlex& DTFlexProducts, long& nSlabID,
                                    double& nApplicableQty);
    void RevertAllSpecialCatScheme(platform::DTFlex& DTFlexProducts);
    void RevertSplCatScheme(long nSchemeID, long nSchemeType, long nSplCatCode, const std::string& szAlternateMessage,
                            platform::DTFlex& DTFlexProducts);
    bool IsAppliedSplScheme(long nSplSchemeID, long nSplCatCode, platform::DTFlex& DTFlexProducts);
    bool SplCatFreeItemDeleted(bool& bResult);
    void ClearDispatchFreeItemSch();
    void WireSchemes();

    // The grid's keys and rows.
    bool bSchemeViewKey = false;  // true while Space in colQuantity shows the item's schemes
    void DTFlexDispatch_KeyCode(int& KeyCode, int Shift);
    void DTFlexDispatch_RowColChange(int nRow, int nCol);
    void DTFlexDispatch_Change(int nCol);
    void DTFlexDispatch_BeforeDelete(int& nRow, bool& bCancel);
    void DTFlexDispatch_AfterDelete();
    void DTFlexDispatch_AtLastRow();
    void DTFlexDispatch_AtFirstRow();
    void GetMaxSchemeGridID(long& nNext);
    void AdjustRow(long nRemoved);
    std::string GetCustomerForScheme();
    void WireGridKeysAndRows();

    // ---- free items of other category groups (F12) -------------------------------
    // The rows with colOCGItem 1, the field first, one spare slot; no array when none.
    platform::VariantTable ClubOCGFreeItems();
    // Removes the other-group rows whose serial no entry (the entry first) names.
    void DeleteExistingOCGItems(const platform::VariantTable& vItems);
    // The host's dialog answers here with the entries the user settled on.
    void LoadOCGFreeItems(const platform::VariantTable& vItems, long nReturnSerial) override;
    // F12 of Form_KeyDown, at the grid's cell as the key found it.
    void ShowOCGFreeItemsDialog(int nRow, int nCol);
    void WireOtherGroupFreeItems();

    // ---- credit gates ------------------------------------------------------------------
    bool CheckCreditGates(long nSalesmanID, long nBeatID, long nRows);
    bool CheckCrLimit();
    bool CheckCreditLimit(double fExposure, double fCreditLimit);
    // Where both gates let an administrator overrule them: the typed password against
    // the administrator's.
    bool AdministratorPasswordMatches(const std::string& szTyped);

    // ---- saving and printing -------------------------------------------------------
    std::string szEnteredCustomerCode;        // the customer cmdSave_Click found for the typed name
    platform::Value vOldRefNumber;            // amendment: the stored note's reference
    std::uint8_t nOriginalStatus = 0;         // amendment: the stored note's Status
    platform::Date dtOriginalDispatchDate{};  // amendment: the stored note's date
    platform::Date dtPrevDispatchDate{};      // the date of the last note saved
    bool bInTransaction = false;
    long hWnd = 0;  // the form's window; a plain host draws none
    bool bFlushRow = false;
    std::string szError;  // why the journal refused a posting
    bool SaveDispatch();
    void CleanUp();
    void InitAfterAmendment(const std::string& szDispatchID);
    bool SaveDetailRows(long nRows, long nDispatchID, platform::Date dtDispatchDay, long nDatedPosting);
    std::string GetPrimaryItemName(long nRow, const std::string& szCol17, const std::string& szCol32);
    void PrintSavedDispatch(long nDispatchID);
    void PrintViewedDispatch();
    void WireSavingAndPrinting();

    // ---- loading a stored note ----------------------------------------------------------
    // The stored note's date as it was loaded; a cancel adjusts the openings from it.
    platform::Date dtLoadedDispatchDate{};
    // What the loaded note took out of stock, for the amendment to give back: rows
    // from 1, one a grid row, columns 1 to 6 holding item, batch code, quantity, sale
    // price, track inventory and unit. Sized to one empty row before a load.
    platform::VariantTable vOldDetail;
    long LoadDispatchInfo(long DispatchID);
    long LoadolddispDate(long DispatchID);
    void WireStoredNoteLoading();

    // ---- cancellation and amendment of stored notes ---------------------------------
    // True (and bValid) while the note is open: not closed, cancelled or amended.
    bool ValidDispatch(long nDispatchID, bool& bValid);
    // The cancel mode's save: closes the loaded note, gives its stock back and
    // reverses its posting. Runs under cmdSave_Click's handler.
    void CancelDispatch();
    void AdjustOpeningForCancel();
    // Puts a line's stock back into its batch: the quantity in the line's unit, turned
    // into base units.
    void GiveStockBack(const std::string& szItem, long nBatchCode, double fQty, long nUOM);
    // Inside an amendment's save: closes the old note and gives its stock back.
    bool AmendOldDispatch();
    void WireCancellationAndAmendment();

    // ---- the save button ---------------------------------------------------------------
    std::int32_t nDSTypeGroup = 0;  // the group DSTypeCatMapped gives for the note's salesman
    void cmdSave_Click();
    void cmdSave_KeyDown(int& KeyCode, int Shift);
    bool ValidateHealthCareItems(const std::string& szCustomerCode);
    bool ValidateQty(long nRows);

    // ---- filling the grid from source documents and their load-time schemes -----
    void LoadItemDetails();
    void LoadPOItems();
    void CopyCallBack();
    void FindSchemes(const std::string& szItemCode, double nQuantity, platform::Date DServerDate, long& nRow);
    void AssignScheme(long nSchemeType, platform::DTFlex& DTFlexProducts, long nRowIndex, platform::Recordset& rsSlab,
                      const std::string& szPromptMssg, double nQty, long nHasSlabs);
    void WireSourceLoading();

    // ---- call-backs of the host's lists -----------------------------------------
    void AutoListCallBack() override;
    void CustomerCallBack(const std::string& szCustomerCode, const std::string& szCustomerName) override;

    // ---- what a driving host sees ---------------------------------------------
    std::string FormName() const override { return "Zuro_frmDispatch_Dispatch"; }
    platform::Control* ActiveControl() const override { return activeControl_; }
    void MoveFocus(platform::Control& to) override;
    platform::Control* FindControl(const std::string& name, int index = -1) override;
    std::vector<platform::Control*> Controls() const override;
    platform::DTFlex* Grid() override { return &DTFlexDispatch; }
    std::optional<std::string> FieldText(const std::string& name) const override;
    bool SetFieldText(const std::string& name, const std::string& text) override;
    const RoutineTable& Routines() const override { return routines_; }
    bool KeyPreview() const override { return true; }
    bool Close() override;
    bool IsLoaded() const override { return loaded_; }

    // The window the form lies under: the host's frame, or 0 for the desktop.
    long ParentWindow() const { return parentWindow_; }
    bool FormVisible() const { return formVisible_; }

private:
    // The one handler every routine runs under: "Dispatch: <routine> - " and the
    // error's description go to the host's error log.
    template <class Body>
    bool Handled(const char* routine, Body&& body) {
        return platform::RunHandled(host_.global, std::string("Dispatch: ") + routine + " - ", body);
    }

    // An object that was never set raises the runtime's error 91 when used.
    template <class T>
    static T& RequireObject(const std::unique_ptr<T>& object) {
        if (!object) throw platform::RuntimeError(platform::err::ObjectNotSet);
        return *object;
    }

    // The checks of cmdSave_Click that ask the host or the database.
    bool DayMayStillBePosted();
    bool SalesmanBeatAndCustomerMapped();
    bool LinesSoldByTheGroup();

    // The steps of SaveDispatch and the locals that cross them.
    struct SaveLocals;
    bool SaveAbstract(SaveLocals& save);
    bool UpdateTransactionSerial(SaveLocals& save);
    void UpdateSourceDocuments(const SaveLocals& save);
    bool PostToAccounts(const SaveLocals& save);
    // One pass of a detail row: its unit, quantity and price go to the server.
    struct DetailPass;
    bool SaveDetailPass(long nRow, const DetailPass& pass);

    // The two halves of LoadDispatchInfo: the abstract fills the header, the details
    // the grid. The header answers false when there is no stored note.
    bool LoadStoredHeader(long DispatchID);
    void LoadStoredRows(long DispatchID);

    void RegisterControls();
    void RegisterRoutines();
    void RegisterFields();
    void WireEvents();
    void WirePartyEvents();
    void TitleFrame(const std::string& title);
    void ShowAllCustomers();
    void SelectActiveText();
    void LoadOnce();
    void PlaceApplySchemeBesideMemo();

    // The grid's rows by serial as getRowNumber finds them (the first row carrying
    // it), good while the grid's content stamp stands where it was read.
    struct SerialIndex {
        bool read = false;
        unsigned long stamp = 0;
        std::unordered_map<double, long> rows;
    };
    SerialIndex serialIndex_;

    host_services::HostServices host_;
    host_services::HostContext* objHostContext_ = nullptr;  // the running component's context
    std::map<std::string, platform::Control*> controls_;
    std::map<std::string, std::function<std::string()>> fields_;
    std::map<std::string, std::string*> writableFields_;
    std::map<std::string, long*> writableNumbers_;  // written as the runtime reads a typed number
    RoutineTable routines_;
    platform::Control* activeControl_ = nullptr;
    bool loaded_ = false;
    bool formVisible_ = false;
    long parentWindow_ = 0;
};

}  // namespace screen
