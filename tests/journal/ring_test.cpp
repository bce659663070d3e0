#include "journal/recording.h"

#include "support/ring_model.h"
#include "support/workstation.h"

#include <map>
#include <random>

namespace velmora::test
{
namespace
{

class RingTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    store::Table<Operation> &logop = session.journal.logop;
    RingModel model;

    Operation row(int numop)
    {
        EXPECT_TRUE(logop.seek(store::Cmp::Eq, {numop}));
        return logop.row();
    }
    void change(int numop, const std::function<void(Operation &)> &write)
    {
        ASSERT_TRUE(logop.seek(store::Cmp::Eq, {numop}) && logop.edit().ok());
        write(logop.values());
        ASSERT_TRUE(logop.update().ok());
    }
    int record() { return ecritop(session, QStringLiteral("S"), QStringLiteral("nouvel horaire: ")); }
    /// Moves the head and the operation's slot as taking back the latest operation in force does.
    void undo()
    {
        change(0, [](Operation &head) { ++head.ordop; });
        change(model.inForce.front(), [](Operation &slot) { slot.valop = false; });
        model.undo();
    }
    void redo()
    {
        change(0, [](Operation &head) { --head.ordop; });
        change(model.undone.back(), [](Operation &slot) { slot.valop = true; });
        model.redo();
    }

    void compare()
    {
        std::map<int, int> expected; // slot to age
        int age = 0;
        for (auto slot = model.undone.begin(); slot != model.undone.end(); ++slot)
            expected[*slot] = ++age;
        for (const int slot : model.inForce)
            expected[slot] = ++age;
        EXPECT_EQ(row(0).ordop, static_cast<int>(model.undone.size()));
        EXPECT_EQ(row(0).nivop, model.free);
        std::vector<int> freeAges;
        for (int numop = 1; numop <= RingModel::capacity; ++numop) {
            const Operation slot = row(numop);
            const bool inForce =
                std::find(model.inForce.begin(), model.inForce.end(), numop) != model.inForce.end();
            EXPECT_EQ(slot.valop, inForce) << "slot " << numop;
            if (expected.contains(numop))
                EXPECT_EQ(slot.ordop, expected[numop]) << "slot " << numop;
            else
                freeAges.push_back(slot.ordop);
        }
        EXPECT_TRUE(std::is_sorted(freeAges.begin(), freeAges.end()));
        EXPECT_TRUE(freeAges.empty() || freeAges.front() > age);
    }
};

TEST_F(RingTest, FirstOperationTakesTheFirstSlotAndNumbersTheRest)
{
    EXPECT_EQ(ecritop(session, QStringLiteral("A"), QStringLiteral("absence saisie pour EMMA")), 1);
    EXPECT_EQ(row(0).nivop, 29);
    EXPECT_EQ(row(0).ordop, 0);
    EXPECT_EQ(row(1).ficop, QStringLiteral("A"));
    EXPECT_EQ(row(1).libop, QStringLiteral("absence saisie pour EMMA"));
    EXPECT_EQ(row(1).ordop, 1);
    EXPECT_EQ(row(1).nivop, 0);
    EXPECT_TRUE(row(1).valop);
    for (int numop = 2; numop <= 30; ++numop)
        EXPECT_EQ(row(numop).ordop, 30 + numop);
    EXPECT_TRUE(session.peutannul);
    EXPECT_EQ(session.opcour, 1);
    EXPECT_EQ(session.nivcour, 0);
}

TEST_F(RingTest, FullRingGivesUpItsOldestOperation)
{
    for (int i = 1; i <= 30; ++i)
        EXPECT_EQ(record(), model.record());
    EXPECT_EQ(row(0).nivop, 0);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(record(), i);
        model.record();
        compare();
    }
}

TEST_F(RingTest, OperationAfterThreeUndosOfAFullRingFreesTwoSlots)
{
    for (int i = 1; i <= 30; ++i)
        record(), model.record();
    for (int i = 0; i < 3; ++i)
        undo();
    EXPECT_EQ(record(), 28);
    EXPECT_EQ(row(29).ordop, 29);
    EXPECT_EQ(row(30).ordop, 30);
    EXPECT_FALSE(row(29).valop || row(30).valop);
    EXPECT_EQ(row(0).nivop, 2);
    EXPECT_EQ(row(0).ordop, 0);
}

TEST_F(RingTest, CountOfFreeLevelsMayFallBelowTheFreeSlots)
{
    for (int i = 1; i <= 25; ++i)
        record(), model.record();
    undo();
    EXPECT_EQ(record(), 25);
    EXPECT_EQ(row(0).nivop, 4) << "one undone operation counts as none";
    model.record();
    undo();
    undo();
    record();
    EXPECT_EQ(row(0).nivop, 1) << "the former count is dropped";
}

TEST_F(RingTest, RandomRoadsOfRecordingUndoAndRedoKeepTheRingsMeaning)
{
    for (const unsigned seed : {1U, 7U, 2026U}) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        ecritop(session, ficopRemise, QString());
        for (int numop = 1; numop <= 30; ++numop)
            change(numop, [](Operation &slot) { slot.valop = false; });
        model = {};
        for (int step = 0; step < 150 && !HasFailure(); ++step) {
            const unsigned choice = random() % 5;
            if (choice == 0 && !model.undone.empty())
                redo();
            else if (choice <= 2 && model.canUndo())
                undo();
            else
                EXPECT_EQ(record(), model.record());
            if (step > 0 && model.undone.empty()) compare();
        }
    }
}

TEST_F(RingTest, RedoStaysLitAfterANewOperation)
{
    record(), model.record();
    undo();
    session.peutrefaire = true;
    session.peutannul = false;
    record();
    EXPECT_TRUE(session.peutrefaire) << "wanted: redo then finds nothing to do";
    EXPECT_TRUE(session.peutannul);
    EXPECT_EQ(row(0).ordop, 0);
}

TEST_F(RingTest, ResetTouchesOnlyTheHead)
{
    record(), record();
    session.peutrefaire = true;
    EXPECT_EQ(ecritop(session, ficopRemise, QString()), 0);
    EXPECT_EQ(row(0).nivop, 30);
    EXPECT_EQ(row(0).ordop, 0);
    EXPECT_FALSE(session.peutannul || session.peutrefaire);
    EXPECT_TRUE(row(1).valop && row(2).valop);
    EXPECT_EQ(session.opcour, 2);
}

} // namespace
} // namespace velmora::test
