// Saving and printing settings of the global service, and its one text helper.
#include "host/plain_global.h"
#include "platform/convert.h"

namespace host {

std::string PlainGlobal::GetPrintDocumentPath() { return state_.settings.Text("GetPrintDocumentPath"); }
std::string PlainGlobal::GetPrintPromptText() { return state_.settings.Text("GetPrintPromptText"); }
std::string PlainGlobal::GetPrintPromptTitle() { return state_.settings.Text("GetPrintPromptTitle"); }
std::string PlainGlobal::PrintWithTemplate(const std::string&) { return state_.settings.Text("PrintWithTemplate"); }
long PlainGlobal::GetSaveCounterOne() { return state_.settings.Integer("GetSaveCounterOne"); }
long PlainGlobal::GetSaveCounterTwo() { return state_.settings.Integer("GetSaveCounterTwo"); }
long PlainGlobal::GetCancelCounter() { return state_.settings.Integer("GetCancelCounter"); }
std::string PlainGlobal::GetUserName() { return state_.settings.Text("UserName"); }

// A list built element by element ends in its separator ("A|B|", "1,2,"); the
// callers split it and want no empty last element.
std::string PlainGlobal::GetSplitSource(const std::string& text) {
    std::string list = platform::Trim(text);
    while (!list.empty() && (list.back() == '|' || list.back() == ',' || list.back() == ';')) list.pop_back();
    return list;
}

}  // namespace host
