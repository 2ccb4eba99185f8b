// The dispatch screen over the plain host and a private copy of the demo database,
// opened the way the host opens it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/value.h"
#include "screen/zuro_cls_dispatch.h"
#include "screen/zuro_frm_dispatch_dispatch.h"
#include "server/embedded_connection.h"

namespace screen_test {

class ScreenTest : public ::testing::Test {
protected:
    ScreenTest();
    ~ScreenTest() override;

    // Opens the screen in a mode, as the host does, on 2026-11-22 unless told.
    screen::Zuro_frmDispatch_Dispatch& Open(long mode, platform::Date serverDate = Today(),
                                            platform::Date alertDate = Today());
    static platform::Date Today();
    // The host (and a new component) over another connection to the same database,
    // as a decorator wraps it; before Open.
    void UseConnection(platform::ConnectionPtr connection);

    // The user presses a key on a control: the form previews it, then the control's
    // key-down and, for Enter, key-press.
    void Key(platform::Control& control, int keyCode, int shift = 0);
    // The user types into a box: focus, then the text with its change event.
    void Type(platform::TextBox& box, const std::string& text);
    // Picks row n (from 1) of the open type-ahead list.
    void Pick(int row);
    std::vector<std::string> ListRows();

    // One value of SQLite's own query on the database.
    std::string Scalar(const std::string& sqliteSql);
    int Errors() const { return transcript.ErrorCount(); }
    std::string LastStatus() const;
    bool TranscriptHas(const std::string& fragment) const;
    // The error lines of the transcript, one a line, for a failure's message.
    std::string ErrorLines() const;

    std::string path;
    std::shared_ptr<server::EmbeddedConnection> database;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host;
    std::unique_ptr<screen::Zuro_clsDispatch> component;
    screen::Zuro_frmDispatch_Dispatch* form = nullptr;
};

}  // namespace screen_test
