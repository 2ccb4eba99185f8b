#include "host/print_templates.h"

#include <filesystem>
#include <fstream>

#include "platform/runtime_error.h"

namespace host {

namespace {
constexpr long kPathFileAccessError = 75;
}

std::string WritePrintTemplates(const std::string& folder) {
    namespace fs = std::filesystem;
    std::error_code failure;
    fs::create_directories(folder, failure);
    const fs::path file = fs::path(folder) / "Dispatch.ini";
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << "; The dispatch note: its header and its lines, by the note's key.\n"
        << "[General]\n"
        << "AbstractSP=" << kDispatchAbstractProcedure << "\n"
        << "DetailSP=" << kDispatchDetailProcedure << "\n";
    if (!out.flush()) throw platform::RuntimeError(kPathFileAccessError, "Path/File access error");
    return (fs::path(folder) / "").string();
}

}  // namespace host
