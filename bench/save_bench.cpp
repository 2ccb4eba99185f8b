// Saving a note of 10, 100 and 1,000 lines through the screen's SaveDispatch on the
// embedded database, beside a baseline that writes the same rows (the abstract, the
// serial, each line and the stock it takes, the two postings) in one transaction
// with prepared statements and nothing else. The ratio is what the screen's
// contract costs: a procedure call per line, the dialect, the value conversions.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "grid/row_model/grid_columns.h"
#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/convert.h"
#include "platform/private_folder.h"
#include "screen/zuro_cls_dispatch.h"
#include "screen/zuro_frm_dispatch_dispatch.h"
#include "server/database_files.h"

namespace {

platform::PrivateFolder& Folder() {
    static platform::PrivateFolder folder("dispatch-bench");
    return folder;
}

// The demo database once, with enough stock in one batch for the largest note.
const std::string& DemoDatabase() {
    static const std::string path = [] {
        std::string file = (Folder().Path() / "demo.db").string();
        auto connection = server::CreateDatabase(file, true);
        connection->ExecuteNative("UPDATE Batch_Products SET Quantity = 1e9 WHERE Batch_Code = 1");
        return file;
    }();
    return path;
}

std::shared_ptr<server::EmbeddedConnection> FreshCopy() {
    static int counter = 0;
    std::string file = (Folder().Path() / ("note-" + std::to_string(++counter) + ".db")).string();
    server::CopyDatabase(DemoDatabase(), file);
    return server::OpenEmbedded(file);
}

void RemoveCopy(const std::string& file) {
    for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(file + suffix);
}

// A screen in Mode 2 with Ravi Stores chosen and a grid of lines of FD001, one box
// each from batch MB2401, as the item entry leaves them.
struct KeyedNote {
    explicit KeyedNote(int lines) : database(FreshCopy()) {
        file = database->Path();
        host = std::make_unique<host::PlainHost>(database, settings, transcript, answers);
        platform::Date today = platform::DateSerial(2026, 11, 22), alert = today;
        long mode = 2;
        host->SetServerDate(today);
        component = std::make_unique<screen::Zuro_clsDispatch>(host->Services());
        component->InitDispatch(today, mode, host->Context(), alert);
        form = dynamic_cast<screen::Zuro_frmDispatch_Dispatch*>(component->Form());
        form->MoveFocus(form->txtCustomer);
        form->txtCustomer.SetText("Ravi");
        host->VisibleList()->Pick(1);
        int enter = 13;
        form->Form_KeyDown(enter, 0);
        form->txtCustomer.KeyDown.Raise(enter, 0);
        form->txtCustomer.KeyPress.Raise(enter);
        form->szEnteredCustomerCode = "C005";

        auto& grid = form->DTFlexDispatch;
        grid.SetGridRows(lines + 1);
        for (int r = 1; r <= lines; ++r) {
            auto set = [&](int col, const std::string& text) { grid.SetCell(r, col, text); };
            set(grid::colItemCode, "FD001");
            set(grid::colItemName, "Marie Biscuit 100g");
            set(grid::colBatch, "MB2401");
            set(grid::colUOM, "BOX");
            set(grid::colSalePrice, "216");
            set(grid::colQuantity, "1");
            set(grid::colBatchTrack, "1");
            set(grid::colPriceOption, "0");
            set(grid::colOriginalPrice, "9");
            set(grid::colTrackInventory, "1");
            set(grid::colFreeItem, "0");
            set(grid::colUOMID, "2");
            set(grid::colSerialNo, std::to_string(r));
        }
        form->nSerialCounter = static_cast<std::int16_t>(lines);
    }
    ~KeyedNote() {
        component.reset();
        host.reset();
        database.reset();
        RemoveCopy(file);
    }

    std::shared_ptr<server::EmbeddedConnection> database;
    std::string file;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host;
    std::unique_ptr<screen::Zuro_clsDispatch> component;
    screen::Zuro_frmDispatch_Dispatch* form = nullptr;
};

void BM_SaveDispatch(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto note = std::make_unique<KeyedNote>(lines);
        state.ResumeTiming();
        if (!note->form->SaveDispatch()) throw std::runtime_error("the note was not saved");
        state.PauseTiming();
        note.reset();
        state.ResumeTiming();
    }
    state.counters["lines"] = lines;
}
BENCHMARK(BM_SaveDispatch)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

// The same rows written straight, with statements prepared once per note.
class Prepared {
public:
    Prepared(sqlite3* db, const char* sql) : db_(db) {
        if (sqlite3_prepare_v2(db, sql, -1, &statement_, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(db));
    }
    ~Prepared() { sqlite3_finalize(statement_); }
    template <class... Values>
    void Run(Values... values) {
        int index = 0;
        (Bind(++index, values), ...);
        if (sqlite3_step(statement_) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db_));
        sqlite3_reset(statement_);
    }

private:
    void Bind(int i, double v) { sqlite3_bind_double(statement_, i, v); }
    void Bind(int i, int v) { sqlite3_bind_int(statement_, i, v); }
    void Bind(int i, sqlite3_int64 v) { sqlite3_bind_int64(statement_, i, v); }
    void Bind(int i, const char* v) { sqlite3_bind_text(statement_, i, v, -1, SQLITE_TRANSIENT); }
    sqlite3* db_;
    sqlite3_stmt* statement_ = nullptr;
};

void BM_PreparedBaseline(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto database = FreshCopy();
        const std::string file = database->Path();
        sqlite3* db = database->Database().Handle();
        state.ResumeTiming();

        sqlite3_exec(db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        {
            Prepared abstract(
                db,
                "INSERT INTO DispatchAbstract (DocumentID, DispatchDate, CustomerID, BillingAddress, "
                "ShippingAddress, Status, RefNumber, NewRefNumber, DocReference, DocumentType, SalesmanID, "
                "BeatID, GroupID, CreationTime) VALUES (51, '2026-11-22 00:00:00', 'C005', 'a', 'a', 2, '', "
                "'', 'TN/DN/43', 'DN-TN', 1, 1, '1,2', '2026-11-22 10:00:00')");
            abstract.Run();
            const sqlite3_int64 id = sqlite3_last_insert_rowid(db);
            Prepared serial(db, "UPDATE DocumentNumbers SET LastNumber = LastNumber + 1 WHERE DocType = 5");
            serial.Run();
            Prepared docType(db,
                             "UPDATE TransactionDocNumber SET LastCount = LastCount + 1 WHERE TransactionType = 5 "
                             "AND DocumentType = 'DN-TN'");
            docType.Run();
            Prepared stock(db, "UPDATE Batch_Products SET Quantity = Quantity - ? WHERE Batch_Code = ?");
            Prepared detail(db,
                            "INSERT INTO DispatchDetail (DispatchID, Serial, Product_Code, Batch_Code, Batch_Number, "
                            "SalePrice, Quantity, UOM, UOMQty, UOMPrice, Track_Batches, Track_Inventory, Price_Option) "
                            "VALUES (?, ?, 'FD001', 1, 'MB2401', 9, 24, 2, 1, 216, 1, 1, 0)");
            for (int r = 1; r <= lines; ++r) {
                stock.Run(24.0, 1);
                detail.Run(id, r);
            }
            Prepared posting(
                db,
                "INSERT INTO JournalPostings (Counter, DocumentID, PostingDate, Account, Debit, Credit, "
                "Narration, UserName, CreationTime) VALUES (2, ?, '2026-11-22 00:00:00', ?, ?, ?, 'Dispatch', "
                "'Admin', '2026-11-22 10:00:00')");
            posting.Run(id, "C005", 216.0 * lines, 0.0);
            posting.Run(id, "Sales", 0.0, 216.0 * lines);
        }
        sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);

        state.PauseTiming();
        database.reset();
        RemoveCopy(file);
        state.ResumeTiming();
    }
    state.counters["lines"] = lines;
}
BENCHMARK(BM_PreparedBaseline)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
