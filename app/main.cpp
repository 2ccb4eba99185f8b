// The `dispatch` command: runs session scripts against the dispatch screen and
// writes the demo database.
#include <CLI/CLI.hpp>

#include "commands.h"
#include "session/session_options.h"

int main(int argc, char** argv) {
    CLI::App cli{"The dispatch-note screen: served to clerks' browsers, or driven by session scripts of user events.",
                 "dispatch"};
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

    app::ServeCommand serve;
    serve.dataFolder = app::DefaultDataFolder();
    std::string serveDatabase, servePrints, serveSettings;
    auto* serveCommand = cli.add_subcommand("serve", "Serve the clerk's screen to browsers.");
    serveCommand->add_option("--db", serveDatabase,
                             "Database file (default: the demo database kept in the data folder)");
    serveCommand->add_option("--listen", serve.listen, "ADDRESS:PORT to listen on")->capture_default_str();
    serveCommand->add_option("--print-dir", servePrints, "Folder for printed notes (default: in the data folder)");
    serveCommand->add_option("--settings", serveSettings, "Settings file ([Settings] NAME = VALUE)");
    serveCommand->add_option("--idle-minutes", serve.idleMinutes, "Close a form left idle this long")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    serveCommand->add_option("--data-dir", serve.dataFolder, "Folder for the demo database and printed notes")
        ->capture_default_str();
    serveCommand->add_flag("--log", serve.logRequests, "Log each request (method, path, status) to standard error");

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
    if (*serveCommand) {
        if (!serveDatabase.empty()) serve.database = serveDatabase;
        if (!servePrints.empty()) serve.printFolder = servePrints;
        if (!serveSettings.empty()) serve.settingsFile = serveSettings;
        return app::Serve(serve);
    }
    return app::WriteDemoDatabase(demoFile, force);
}
