// The host's print templates: for each kind of document a settings file whose
// section "General" names the two procedures that feed the report. The plain host
// ships the dispatch note's.
#pragma once

#include <string>

namespace host {

// The procedures the dispatch template names: the note's header, then its lines.
inline constexpr const char* kDispatchAbstractProcedure = "sp_print_DispatchAbstract";
inline constexpr const char* kDispatchDetailProcedure = "sp_print_DispatchDetail";

// Writes the templates' settings files into the folder (made when missing); the
// path a template's name is appended to, with its trailing separator. Raises
// run-time error 75 when the folder cannot be written.
std::string WritePrintTemplates(const std::string& folder);

}  // namespace host
