// The documents a form printed, as the host's transcript names them
// ("Dispatch 50 -> FOLDER/Dispatch-50.txt", with " (dialog, flag N)" after a print
// through the print dialog), found again as the PDF written beside each.
#pragma once

#include <string>

namespace web {

// The PDF of a printed document; empty when the line names none or it is not there.
std::string PrintedPdfOf(const std::string& printDetail);
std::string FileNameOf(const std::string& path);

}  // namespace web
