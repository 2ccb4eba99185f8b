// The scheme button on notes of 100 and 1,000 lines over 200 items, each item with
// an item scheme (a stepped quantity slab, a once-only slab or a value slab) and
// four special category schemes across them, every free item one that can always
// be had. The first click works everything out; the second finds nothing changed.
#include <benchmark/benchmark.h>

#include <cmath>
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

constexpr int kItems = 200;

std::string ItemCode(int n) {
    char code[8];
    std::snprintf(code, sizeof code, "BX%03d", n);
    return code;
}

// The demo database with its own schemes switched off, 200 items like Salt Crackers
// with plenty of stock, and the schemes of the bench.
const std::string& SchemeDatabase() {
    static platform::PrivateFolder folder("dispatch-scheme-bench");
    static const std::string path = [] {
        std::string file = (folder.Path() / "schemes.db").string();
        auto db = server::CreateDatabase(file, true);
        auto run = [&](const std::string& sql) { db->ExecuteNative(sql); };
        run("UPDATE Schemes SET Active = 0");
        for (int n = 1; n <= kItems; ++n) {
            const std::string code = ItemCode(n), id = std::to_string(1000 + n), slab = std::to_string(10000 + n);
            run("INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, Sale_Price, PTS, PTR) "
                "VALUES ('" +
                code + "', 'Bench item " + code + "', 1, 1, 10, 10, 10)");
            run("INSERT INTO Batch_Products (Product_Code, Quantity, SalePrice, PTS, PTR) VALUES ('" + code +
                "', 1e9, 10, 10, 10)");
            run("INSERT INTO Schemes (SchemeID, SchemeName, SchemeType, SchemeScope) VALUES (" + id +
                ", 'Item offer', 3, 1)");
            run("INSERT INTO SchemeProducts VALUES (" + id + ", '" + code + "', 0)");
            // Thirds: one free every 5, two free once from 3 up, one free for every 100 of value.
            const char* kinds[] = {"3, 100000, 1, 5, 1", "3, 100000, 1, 0, 2", "20, 1e9, 4, 100, 1"};
            run("INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit) "
                "VALUES (" +
                slab + ", " + id + ", " + kinds[n % 3] + ", 1)");
            run("INSERT INTO SchemeFreeItems VALUES (" + slab + ", 'PM002')");
        }
        for (int group = 0; group < 4; ++group) {
            const std::string id = std::to_string(2000 + group), slab = std::to_string(20000 + group);
            run("INSERT INTO Schemes (SchemeID, SchemeName, SchemeType, SchemeScope) VALUES (" + id +
                ", 'Group offer', 3, 2)");
            for (int n = 1 + group * 50; n <= (group + 1) * 50; ++n)
                run("INSERT INTO SchemeProducts VALUES (" + id + ", '" + ItemCode(n) + "', 0)");
            run("INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit) "
                "VALUES (" +
                slab + ", " + id + ", 10, 1e9, 1, 50, 1, 1)");
            run("INSERT INTO SchemeFreeItems VALUES (" + slab + ", 'PM002')");
        }
        return file;
    }();
    return path;
}

// A new note for Ravi Stores whose lines run through the items in turn, six pieces
// a line, with the free item chosen whenever it is asked for.
struct SchemeNote {
    explicit SchemeNote(int lines) : database(server::OpenEmbedded(SchemeDatabase())) {
        host = std::make_unique<host::PlainHost>(database, settings, transcript, answers);
        platform::Date today = platform::DateSerial(2026, 11, 22), alert = today;
        long mode = screen::mode::NewDispatch;
        host->SetServerDate(today);
        component = std::make_unique<screen::Zuro_clsDispatch>(host->Services());
        component->InitDispatch(today, mode, host->Context(), alert);
        form = dynamic_cast<screen::Zuro_frmDispatch_Dispatch*>(component->Form());
        form->txtCustomer.Tag = "C005";
        form->szCustomerCode = "C005";
        for (int i = 0; i < kItems + 8; ++i) answers.Queue("SelectFreeItem", {"PM002"});

        auto& grid = form->DTFlexDispatch;
        grid.SetGridRows(lines + 1);
        for (int r = 1; r <= lines; ++r) {
            auto set = [&](int col, const std::string& text) { grid.SetCell(r, col, text); };
            set(grid::colItemCode, ItemCode((r - 1) % kItems + 1));
            set(grid::colQuantity, "6");
            set(grid::colUOMID, "1");
            set(grid::colSalePrice, "10");
            set(grid::colFreeItem, "0");
            set(grid::colFreeRow, "0");
            set(grid::colSerialNo, std::to_string(r));
        }
        form->nSerialCounter = static_cast<std::int16_t>(lines);
    }

    std::shared_ptr<server::EmbeddedConnection> database;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host;
    std::unique_ptr<screen::Zuro_clsDispatch> component;
    screen::Zuro_frmDispatch_Dispatch* form = nullptr;
};

void Check(const SchemeNote& note) {
    if (!note.form->bSchemesApplied || note.transcript.ErrorCount() != 0)
        throw std::runtime_error("the schemes were not applied");
}

void BM_ApplySchemeFirstClick(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto note = std::make_unique<SchemeNote>(lines);
        state.ResumeTiming();
        note->form->cmdApplyScheme_Click();
        state.PauseTiming();
        Check(*note);
        state.counters["rows after"] = note->form->DTFlexDispatch.GridRows();
        note.reset();
        state.ResumeTiming();
    }
    state.counters["lines"] = lines;
}
BENCHMARK(BM_ApplySchemeFirstClick)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void BM_ApplySchemeNothingChanged(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto note = std::make_unique<SchemeNote>(lines);
        note->form->cmdApplyScheme_Click();
        Check(*note);
        state.ResumeTiming();
        note->form->cmdApplyScheme_Click();
        state.PauseTiming();
        note.reset();
        state.ResumeTiming();
    }
    state.counters["lines"] = lines;
}
BENCHMARK(BM_ApplySchemeNothingChanged)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
