#include "lists/stored_note_words.h"

#include "platform/convert.h"

namespace screen::lists {

namespace {
constexpr long kCancelled = 192, kAmended = 256, kClosed = 128;
}  // namespace

// The bits are read in this order: a cancelled note is closed too, and an amended one
// as well, so the closed bit alone is the last to be asked.
std::string DispatchStatusText(host_services::HostMessages& messages, long nStatus, bool bInvoiced) {
    if ((nStatus & kCancelled) == kCancelled) return messages.GetStatusCancelledText();
    if ((nStatus & kAmended) == kAmended) return messages.GetStatusAmendedText();
    if ((nStatus & kClosed) == kClosed) return messages.GetStatusInvoicedText();
    return bInvoiced ? messages.GetStatusClosedText() : messages.GetStatusPendingText();
}

std::string LookUpPrefix(host_services::HostDocuments& documents, const std::string& szFrom, const std::string& szTo) {
    if (platform::IsNumericText(szFrom) && platform::IsNumericText(szTo)) return {};
    const auto nLen1 = static_cast<std::size_t>(documents.GetDocumentPrefixLength(szFrom));
    const auto nLen2 = static_cast<std::size_t>(documents.GetDocumentPrefixLength(szTo));
    if (platform::UCase(szFrom.substr(0, nLen1)) != platform::UCase(szTo.substr(0, nLen2))) return {};
    return szFrom.substr(0, nLen1);
}

}  // namespace screen::lists
