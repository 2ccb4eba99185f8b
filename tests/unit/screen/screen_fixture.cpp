#include "screen_fixture.h"

#include <filesystem>

#include "platform/convert.h"
#include "server/database_files.h"
#include "support/scratch_files.h"

namespace screen_test {

namespace {
namespace fs = std::filesystem;

// The demo database is made once for the whole run; each test works on a copy.
const std::string& DemoDatabase() {
    static const std::string path = [] {
        const std::string file = test_support::ScratchPath("demo", ".db");
        server::CreateDatabase(file, true);
        return file;
    }();
    return path;
}

std::string FreshCopy() {
    const std::string file = test_support::ScratchPath("screen", ".db");
    server::CopyDatabase(DemoDatabase(), file);
    return file;
}
}  // namespace

ScreenTest::ScreenTest() : path(FreshCopy()) {
    database = server::OpenEmbedded(path);
    host = std::make_unique<host::PlainHost>(database, settings, transcript, answers);
    host->SetServerDate(Today());
    component = std::make_unique<screen::Zuro_clsDispatch>(host->Services());
}

ScreenTest::~ScreenTest() {
    component.reset();
    host.reset();
    database.reset();
    for (const char* suffix : {"", "-wal", "-shm"}) fs::remove(path + suffix);
}

void ScreenTest::UseConnection(platform::ConnectionPtr connection) {
    component.reset();
    host = std::make_unique<host::PlainHost>(std::move(connection), settings, transcript, answers);
    host->SetServerDate(Today());
    component = std::make_unique<screen::Zuro_clsDispatch>(host->Services());
}

platform::Date ScreenTest::Today() { return platform::DateSerial(2026, 11, 22); }

screen::Zuro_frmDispatch_Dispatch& ScreenTest::Open(long mode, platform::Date serverDate, platform::Date alertDate) {
    component->InitDispatch(serverDate, mode, host->Context(), alertDate);
    form = dynamic_cast<screen::Zuro_frmDispatch_Dispatch*>(component->Form());
    return *form;
}

void ScreenTest::Key(platform::Control& control, int keyCode, int shift) {
    form->Form_KeyDown(keyCode, shift);
    if (keyCode == 0) return;
    control.KeyDown.Raise(keyCode, shift);
    if (keyCode == 13 || keyCode == 27) control.KeyPress.Raise(keyCode);
}

void ScreenTest::Type(platform::TextBox& box, const std::string& text) {
    if (form->ActiveControl() != &box) form->MoveFocus(box);
    box.SetText(text);
}

void ScreenTest::Pick(int row) {
    auto* list = host->VisibleList();
    ASSERT_NE(list, nullptr) << "no type-ahead list is open";
    list->Pick(row);
}

std::vector<std::string> ScreenTest::ListRows() {
    auto* list = host->VisibleList();
    return list ? list->RowTexts() : std::vector<std::string>{};
}

std::string ScreenTest::Scalar(const std::string& sqliteSql) {
    auto result = database->ExecuteNative(sqliteSql);
    if (result.rows.empty() || result.rows[0].empty()) return {};
    return platform::ToText(result.rows[0][0]);
}

std::string ScreenTest::LastStatus() const {
    const auto* status = transcript.LastStatus();
    return status ? status->text : std::string();
}

bool ScreenTest::TranscriptHas(const std::string& fragment) const {
    for (const auto& line : transcript.Lines())
        if (line.find(fragment) != std::string::npos) return true;
    return false;
}

std::string ScreenTest::ErrorLines() const {
    std::string lines;
    for (const auto& line : transcript.Lines())
        if (line.rfind("error ", 0) == 0) lines += line + "\n";
    return lines;
}

}  // namespace screen_test
