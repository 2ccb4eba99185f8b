// Printing a note: right after it is saved, and from the view of a stored note.
// Both ask the host what to do, find the print template, read the two procedures
// that feed the report from the template's settings file and hand all of it to
// the host's print routes. Neither has a handler of its own: a fault belongs to
// the routine that asked for the print.
#include "platform/convert.h"
#include "platform/profile_string.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
using host_services::msgbox::AnswerCancel;
using host_services::msgbox::AnswerNo;
using host_services::msgbox::AnswerYes;
using host_services::msgbox::YesNoCancelQuestionSecond;

constexpr int kPrinterServiceDocument = 1;
constexpr int kDispatchDocument = 2;
constexpr std::size_t kProfileBuffer = 256;

struct PrintTemplate {
    std::string szSettingsFile;
    std::string szAbstractSP, szDetailSP;
};

// The template and the two procedures its settings file names; nothing when the
// host's document service gives no template.
std::optional<PrintTemplate> FindPrintTemplate(host_services::HostServices& host) {
    auto& global = host.global;
    std::string szTemplate;
    if (global.GetPrinterService() == kPrinterServiceDocument) {
        host.tools.PrintDocument(kDispatchDocument, szTemplate, global.GetPrintDocumentPath());
        if (szTemplate.empty()) return std::nullopt;
    } else {
        szTemplate = global.PrintWithTemplate(global.GetPrintDocumentPath());
    }
    PrintTemplate found;
    found.szSettingsFile = global.GetIniFilePath() + szTemplate;
    found.szAbstractSP =
        platform::GetPrivateProfileString("General", "AbstractSP", "", kProfileBuffer, found.szSettingsFile);
    found.szDetailSP =
        platform::GetPrivateProfileString("General", "DetailSP", "", kProfileBuffer, found.szSettingsFile);
    return found;
}

int AskToPrint(host_services::HostServices& host) {
    return host.messages.AskMessage(host.global.GetPrintPromptText(), YesNoCancelQuestionSecond,
                                    host.global.GetPrintPromptTitle());
}
}  // namespace

void Zuro_frmDispatch_Dispatch::PrintSavedDispatch(long nDispatchID) {
    // A print mode the host does not know leaves no answer at all, and the note
    // prints through the dialog without its flag.
    int nAnswer = 0;
    switch (host_.global.GetPrintOnSaveMode()) {
        case 0: nAnswer = AnswerNo; break;
        case 1: nAnswer = AskToPrint(host_); break;
        case 2: nAnswer = AnswerCancel; break;
        default: break;
    }
    if (nAnswer == AnswerCancel) return;

    auto found = FindPrintTemplate(host_);
    if (!found) return;
    // After a save even a "no" prints, through the dialog without its flag.
    host_.tools.ShowPrintDialog(found->szSettingsFile, found->szAbstractSP, found->szDetailSP,
                                platform::NumberToText(static_cast<double>(nDispatchID)), "Dispatch", hWnd,
                                nAnswer == AnswerYes ? 1 : 0);
}

void Zuro_frmDispatch_Dispatch::PrintViewedDispatch() {
    int nAnswer = AnswerNo;
    if (host_.global.GetPrintOnSaveMode() != 0) {
        nAnswer = AskToPrint(host_);
        if (nAnswer == AnswerCancel) return;
    }

    auto found = FindPrintTemplate(host_);
    if (!found) return;
    const double fKey = platform::Val(szDocNumbers);
    if (nAnswer == AnswerYes)
        host_.tools.ShowPrintDialog(found->szSettingsFile, found->szAbstractSP, found->szDetailSP,
                                    platform::NumberToText(fKey), "Dispatch", hWnd, 1);
    else if (nAnswer == AnswerNo)
        host_.tools.PrintDirect(found->szSettingsFile, found->szAbstractSP, found->szDetailSP, hWnd, "Dispatch",
                                platform::CLng(fKey));
}

}  // namespace screen
