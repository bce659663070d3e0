#include "support/commands.h"
#include "support/data_folder.h"

#include <malloc.h>
#include <random>

namespace velmora::test
{
namespace
{

constexpr int lines = 4;
constexpr int daysPerOperation = 5;
constexpr int imagesPerOperation = 2 * daysPerOperation;

/// One session that works on: entries, deletions, pastes, undos and redos at random over two months.
class SoakTest : public testing::Test
{
protected:
    DataFolder folder;
    AnsweringHost host;
    Session session{host};
    std::mt19937 random{7};

    void SetUp() override
    {
        folder.give(session);
        ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
        for (store::Engine *engine : {&session.base.engine, &session.journal.engine})
            ASSERT_TRUE(engine->execute(QStringLiteral("PRAGMA synchronous = OFF")).ok());
        for (int nump = 1; nump <= lines; ++nump) {
            ASSERT_TRUE(
                session.base.engine
                    .execute(QStringLiteral("INSERT INTO ligmois (nump, nom, datedeb, datefin) VALUES "
                                            "(%1, 'LIGNE %1', '2020-01-01', '2099-01-01')")
                                 .arg(nump))
                    .ok());
        }
    }

    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random); }
    QDate anyDay() { return QDate(2026, 6, 1).addDays(below(50)); }
    void operation()
    {
        host.said.clear();
        const int nump = 1 + below(lines);
        const QDate day = anyDay();
        const QDate last = day.addDays(below(daysPerOperation));
        switch (below(8)) {
        case 0:
        case 1:
        case 2: {
            const int hour = 6 + below(6);
            enterHours(session, nump, day, last, {QString::number(hour), QString::number(hour + 7)});
            break;
        }
        case 3: deleteDays(session, nump, day, last); break;
        case 4: moveDays(session, nump, day, last, 1 + below(lines), anyDay(), below(2) == 0); break;
        case 5:
        case 6: annulop(session); break;
        default: refaitop(session);
        }
    }

    struct Size {
        std::size_t heap;
        int basePages;
        int journalPages;
    };
    static int pages(store::Engine &engine)
    {
        const auto count = engine.prepare(QStringLiteral("PRAGMA page_count"));
        return count && count->step() == store::Statement::Step::Row ? static_cast<int>(count->columnInt(0))
                                                                     : -1;
    }
    Size size() { return {mallinfo2().uordblks, pages(session.base.engine), pages(session.journal.engine)}; }
};

// VELMORA_OPERATIONS sets how many.
TEST_F(SoakTest, MemoryStaysFlatAndTheFilesBounded)
{
    const int operations = setting("VELMORA_OPERATIONS", 1500);
    for (int i = 0; i < operations / 3; ++i)
        operation();
    const Size before = size();
    for (int i = operations / 3; i < operations; ++i)
        operation();
    const Size after = size();
    std::printf("%d operations: heap %zu then %zu bytes, base %d then %d pages, journal %d then %d pages\n",
                operations, before.heap, after.heap, before.basePages, after.basePages, before.journalPages,
                after.journalPages);
    EXPECT_LT(after.heap, before.heap + 65536);
    EXPECT_LE(after.basePages, before.basePages + 2);
    EXPECT_LE(after.journalPages, before.journalPages + 8);
    EXPECT_EQ(session.journal.logop.recordCount(), 31);
    EXPECT_LE(session.journal.sitlog.recordCount(), 30 * imagesPerOperation);
    session.base.close();
    session.journal.close();
    EXPECT_EQ(faultsIn(folder.path()), "");
}

} // namespace
} // namespace velmora::test
