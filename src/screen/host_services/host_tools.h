// The host's dialogs and business tools.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/value.h"
#include "screen/host_services/host_context.h"
#include "screen/host_services/hosted_form.h"
#include "screen/host_services/other_group_free_items.h"

namespace host_services {

class HostTools {
public:
    virtual ~HostTools() = default;
    // Binds the tools to the host's context; the form calls it once when it initialises.
    virtual void SetToolsContext(HostContext& context) = 0;
    // True when the date may still be posted to; the host says why when not. The form
    // passes -1 when the host's day-close mode is 1, else 0.
    virtual bool CheckCloseDay(platform::Date date, int closeDayModeOne) = 0;
    // Asks for a password in a masked box; false when the user cancelled.
    virtual bool InputPassword(const std::string& prompt, const std::string& title, std::string& password) = 0;

    // Fills the name of the print template of a kind of document; empty when none.
    virtual void PrintDocument(int kind, std::string& templateName, const std::string& documentPath) = 0;
    // Prints a document through the host's print dialog; answeredYes is 1 when the
    // user said yes to printing, 0 when the note prints without being asked.
    virtual void ShowPrintDialog(const std::string& settingsFile, const std::string& abstractProcedure,
                                 const std::string& detailProcedure, const std::string& key,
                                 const std::string& documentKind, long hwnd, int answeredYes) = 0;
    // Prints a document straight to the printer, without the dialog.
    virtual void PrintDirect(const std::string& settingsFile, const std::string& abstractProcedure,
                             const std::string& detailProcedure, long hwnd, const std::string& documentKind,
                             long key) = 0;

    // Lists the schemes of the item for the customer on the date; the totals of the
    // item as the screen passes them (quantity, value, ...).
    virtual void ShowItemSchemes(const std::string& itemCode, platform::Date date, const std::string& customer,
                                 const std::vector<double>& totals, long dispatchID) = 0;
    // Lets the user set the widths of the look-up list's columns for the screen number.
    virtual void ShowWidthDialog(int screenNumber) = 0;

    // Picks among several schemes of an item; false when the user chose none.
    virtual bool SelectScheme(const platform::RecordsetPtr& schemes, long& schemeID, long& schemeType,
                              std::string& prompt, const std::string& itemCode) = 0;
    // Picks the free item of a scheme slab among the slab's free items, for the primary
    // item a scheme is applied for (empty when the scheme is not an item's); false when
    // the user chose none.
    virtual bool SelectFreeItem(long schemeID, const std::string& schemeName, long slabID,
                                const std::string& primaryItemCode, std::string& freeItemCode) = 0;
    // A document of the kind to copy from; its reference, empty when none was chosen.
    virtual std::string SelectDocument(int kind) = 0;
    // Hands over the rows ShowNotFoundDialog lists.
    virtual void SetNotFoundRecords(const platform::RecordsetPtr& records) = 0;
    // Shows the items a document names that are unknown here.
    virtual void ShowNotFoundDialog(const std::string& text) = 0;
    // Offers the note's free items of other category groups (items, the field first) for
    // the customer, the current row's serial and the note's group; when the user accepts,
    // hands the form the entries settled on through LoadOCGFreeItems.
    virtual void ShowDocumentInfoDialog(OCGFreeItemsOwner& form, const platform::VariantTable& items,
                                        const std::string& customer, const std::string& serial,
                                        const std::string& group) = 0;
    // The memo fields dialog, read-only on a note that cannot change; true when the
    // user accepted. The form passes 2 as the host's option word.
    virtual bool ShowMemoDialog(std::string& memo1, std::string& memo2, std::string& memo3, bool readOnly,
                                int hostOption) = 0;
};

}  // namespace host_services
