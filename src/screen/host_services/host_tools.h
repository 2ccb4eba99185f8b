// The host's dialogs and business tools.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/value.h"
#include "screen/host_services/host_context.h"
#include "screen/host_services/hosted_form.h"

namespace host_services {

class HostTools {
public:
    virtual ~HostTools() = default;
    virtual void SetToolsContext(HostContext& context) = 0;
    // True when the date may still be posted to.
    virtual bool CheckCloseDay(platform::Date date, int flag) = 0;
    // False when the user cancelled.
    virtual bool InputPassword(const std::string& prompt, const std::string& title, std::string& password) = 0;

    // Printing. PrintDocument fills the template name of a kind of document.
    virtual void PrintDocument(int kind, std::string& templateName, const std::string& documentPath) = 0;
    virtual void ShowPrintDialog(const std::string& settingsFile, const std::string& abstractProcedure,
                                 const std::string& detailProcedure, const std::string& key,
                                 const std::string& documentKind, long hwnd, int flag) = 0;
    virtual void PrintDirect(const std::string& settingsFile, const std::string& abstractProcedure,
                             const std::string& detailProcedure, long hwnd, const std::string& documentKind,
                             long key) = 0;

    // Totals of the item as the screen passes them (quantity, value, ...).
    virtual void ShowItemSchemes(const std::string& itemCode, platform::Date date, const std::string& customer,
                                 const std::vector<double>& totals, long dispatchID) = 0;
    virtual void ShowWidthDialog(int screenNumber) = 0;

    // Picks among several schemes of an item; false when the user chose none.
    virtual bool SelectScheme(const platform::RecordsetPtr& schemes, long& schemeID, long& schemeType,
                              std::string& prompt, const std::string& itemCode) = 0;
    // Picks the free item of a scheme slab; false when the user chose none.
    virtual bool SelectFreeItem(long schemeID, const std::string& schemeName, long slabID, std::string& freeItemCode) = 0;
    // A document to copy from; its reference, empty when none.
    virtual std::string SelectDocument(int kind) = 0;
    virtual void SetNotFoundRecords(const platform::RecordsetPtr& records) = 0;
    virtual void ShowNotFoundDialog(const std::string& text) = 0;
    virtual void ShowDocumentInfoDialog(const std::vector<std::string>& items, const std::string& customer,
                                        const std::string& serial, const std::string& group) = 0;
    // True when the user accepted.
    virtual bool ShowMemoDialog(std::string& memo1, std::string& memo2, std::string& memo3, bool readOnly, int flag) = 0;
};

}  // namespace host_services
