// The `dispatch` command: runs session scripts against the dispatch screen and
// writes the demo database.
#include <CLI/CLI.hpp>

#include "commands.h"
#include "session/session_options.h"

int main(int argc, char** argv) {
    CLI::App cli{"The dispatch-note screen, driven by session scripts of user events.", "dispatch"};
    cli.require_subcommand(1);

    app::SessionCommand session;
    std::string database, printFolder;
    auto* sessionCommand = cli.add_subcommand("session", "Run a session script and print its transcript.");
    sessionCommand->add_option("SCRIPT", session.script, "The session script")->required();
    sessionCommand->add_option("--db", database,
                               "Database file used when the script names none (default: a fresh demo copy)");
    sessionCommand->add_flag("--trace-sql", session.traceSql,
                             "Show every statement and procedure call the screen sends");
    sessionCommand->add_option("--print-dir", printFolder,
                               "Folder for printed notes (default: the session's temporary folder)");

    std::string demoFile;
    bool force = false;
    auto* demoCommand = cli.add_subcommand("demo-db", "Write the demo database to a file.");
    demoCommand->add_option("FILE", demoFile, "The database file to write")->required();
    demoCommand->add_flag("--force", force, "Replace the file when it exists");

    cli.footer(
        "Exit status of session: 0 every expect held, 1 an expect failed, 2 the script or the command is wrong.");

    try {
        cli.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        // Help is a success; every other mistake on the command line is a usage error.
        return cli.exit(e) == 0 ? 0 : session::ExitScriptWrong;
    }

    if (*sessionCommand) {
        if (!database.empty()) session.database = database;
        if (!printFolder.empty()) session.printFolder = printFolder;
        return app::RunSession(session);
    }
    return app::WriteDemoDatabase(demoFile, force);
}
