// What the host gives the form's save and print: posting to accounts, the posting
// counters, the user, and where and with what the printed note goes.
#pragma once

#include <string>

#include "platform/value.h"

namespace host_services {

// Posting to accounts; writes its rows in the caller's open transaction.
class JournalService {
public:
    virtual ~JournalService() = default;
    // Posts the dispatch under the counter; false when posting failed, szError then
    // says why.
    virtual bool Journal(long nCounter, long nDispatchID, std::string& szError) = 0;
    // The same on a given posting date, for where the caller's rules say so.
    virtual bool Journal(long nCounter, long nDispatchID, std::string& szError, platform::Date dtPostDate) = 0;
};

class HostSaving {
public:
    virtual ~HostSaving() = default;

    // The service that posts a saved or cancelled note to accounts.
    virtual JournalService& GetJournalService() = 0;
    // The journal counter an amended note is posted under.
    virtual long GetSaveCounterOne() = 0;
    // The journal counter a new note is posted under.
    virtual long GetSaveCounterTwo() = 0;
    // The journal counter a cancelled note is posted under.
    virtual long GetCancelCounter() = 0;
    // The name of the user logged in to the host.
    virtual std::string GetUserName() = 0;

    // The path the print templates of documents are looked up under.
    virtual std::string GetPrintDocumentPath() = 0;
    // The question asked before a note is printed.
    virtual std::string GetPrintPromptText() = 0;
    // The title of the box that asks it.
    virtual std::string GetPrintPromptTitle() = 0;
    // The name of the print template under the document path.
    virtual std::string PrintWithTemplate(const std::string& documentPath) = 0;
};

}  // namespace host_services
