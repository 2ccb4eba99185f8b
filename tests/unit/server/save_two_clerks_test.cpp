// Two clerks on one database file save a carton each of the last carton of a batch.
// Each save holds the write lock from its BeginTrans to its commit, so the second
// waits (within the busy timeout) and then finds the batch empty: whichever comes
// first, exactly one line is stored and the batch ends at 0.
#include <latch>
#include <thread>

#include "platform/runtime_error.h"
#include "save_test_support.h"
#include "server/database_files.h"

namespace server::save_test {
namespace {

struct ClerkResult {
    long long dispatchID = 0;
    long long stored = -1;
    std::string error;
};

class TwoClerks : public SaveDatabase {
protected:
    // One clerk's save of a note with one carton of MJ10 on it, on a connection of
    // his own.
    void Save(std::latch& start, ClerkResult& result) {
        try {
            auto connection = OpenEmbedded(Path());
            start.arrive_and_wait();
            connection->BeginTrans();
            result.dispatchID = NewNote("C005", connection.get());
            const Line carton{
                .dispatchID = result.dispatchID, .item = "BV002", .batch = "MJ10", .baseQuantity = 6, .unit = 6};
            result.stored = StoreLine(carton, false, true, connection.get());
            connection->CommitTrans();
        } catch (const platform::RuntimeError& error) {
            result.error = error.Description();
        }
    }
};

TEST_F(TwoClerks, OnlyOneGetsTheLastCarton) {
    // Batch MJ10 holds one carton of six.
    std::latch start(2);
    ClerkResult first, second;
    std::thread one([&] { Save(start, first); });
    std::thread two([&] { Save(start, second); });
    one.join();
    two.join();
    ASSERT_EQ(first.error, "");
    ASSERT_EQ(second.error, "");

    EXPECT_EQ(first.stored + second.stored, 1) << "one line stored, one refused";
    EXPECT_EQ(Text("SELECT Quantity FROM Batch_Products WHERE Batch_Number = 'MJ10'"), "0r");
    // The one who got it has the line; the other stored nothing, and the carton he
    // asked for by its batch number was not made up from the other number.
    const ClerkResult& winner = first.stored == 1 ? first : second;
    const ClerkResult& loser = first.stored == 1 ? second : first;
    EXPECT_EQ(std::tuple(NoteRows("Batch_Number, Quantity", winner.dispatchID), NoteRows("COUNT(*)", loser.dispatchID),
                         Text("SELECT Quantity FROM Batch_Products WHERE Batch_Number = 'MJ11'")),
              std::tuple("MJ10|6r", "0", "300r"));
    // Both notes took their own number.
    EXPECT_EQ(
        Text("SELECT group_concat(DocumentID) FROM (SELECT DocumentID FROM DispatchAbstract WHERE DispatchID IN (" +
             std::to_string(first.dispatchID) + ", " + std::to_string(second.dispatchID) + ") ORDER BY 1)"),
        "50,51");
}

}  // namespace
}  // namespace server::save_test
