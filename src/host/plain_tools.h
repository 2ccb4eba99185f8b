// The host's dialogs and business tools. Each dialog writes a transcript line with
// what it was given and what the user answered; the answers come from the
// session's queue, or the dialog's default when none waits.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/host_state.h"
#include "host/printing.h"
#include "screen/host_services/host_tools.h"

namespace host {

class PlainTools : public host_services::HostTools {
public:
    explicit PlainTools(HostState& state) : state_(state), printer_(*state.connection) {}

    void SetToolsContext(host_services::HostContext& context) override { state_.context = &context; }
    bool CheckCloseDay(platform::Date date, int closeDayModeOne) override;
    bool InputPassword(const std::string& prompt, const std::string& title, std::string& password) override;

    void PrintDocument(int kind, std::string& templateName, const std::string& documentPath) override;
    void ShowPrintDialog(const std::string& settingsFile, const std::string& abstractProcedure,
                         const std::string& detailProcedure, const std::string& key, const std::string& documentKind,
                         long hwnd, int answeredYes) override;
    void PrintDirect(const std::string& settingsFile, const std::string& abstractProcedure,
                     const std::string& detailProcedure, long hwnd, const std::string& documentKind, long key) override;

    void ShowItemSchemes(const std::string& itemCode, platform::Date date, const std::string& customer,
                         const std::vector<double>& totals, long dispatchID) override;
    void ShowWidthDialog(int screenNumber) override;
    bool SelectScheme(const platform::RecordsetPtr& schemes, long& schemeID, long& schemeType, std::string& prompt,
                      const std::string& itemCode) override;
    bool SelectFreeItem(long schemeID, const std::string& schemeName, long slabID, const std::string& primaryItemCode,
                        std::string& freeItemCode) override;
    std::string SelectDocument(int kind) override;
    void SetNotFoundRecords(const platform::RecordsetPtr& records) override;
    void ShowNotFoundDialog(const std::string& text) override;
    // other_group_items_dialog.cpp
    void ShowDocumentInfoDialog(host_services::OCGFreeItemsOwner& form, const platform::VariantTable& items,
                                const std::string& customer, const std::string& serial,
                                const std::string& group) override;
    bool ShowMemoDialog(std::string& memo1, std::string& memo2, std::string& memo3, bool readOnly,
                        int hostOption) override;

private:
    std::vector<std::string> OfferedFreeItems(long slabID);
    std::optional<platform::Date> LastClosedDay();
    HostState& state_;
    NotePrinter printer_;
    std::vector<std::string> notFound_;  // the item codes handed over for the not-found dialog
};

// A masked text box answered from the queue of its kind: false when cancelled, the
// text then a single tab, as the host's own boxes give back.
bool AskForText(HostState& state, const std::string& dialog, const std::string& prompt, const std::string& title,
                std::string& text);

}  // namespace host
