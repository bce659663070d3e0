#include "session/help.h"
#include "session/records.h"

#include "support/workstation.h"

#include <QDir>

namespace velmora::test
{
namespace
{

class RecordsTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
};

TEST_F(RecordsTest, HolidayIsFoundByItsFirstDateOnly)
{
    EXPECT_FALSE(jourferie(session, QDate(2026, 7, 14)));
    auto &ferie = session.base.ferie;
    ASSERT_TRUE(ferie.addNew().ok());
    ferie.values() = {QDate(2026, 7, 14), QDate(2026, 7, 16), QStringLiteral("Fête nationale"), 0, 0};
    ASSERT_TRUE(ferie.update().ok());
    EXPECT_TRUE(jourferie(session, QDate(2026, 7, 14)));
    EXPECT_EQ(ferie.row().lib, QStringLiteral("Fête nationale"));
    EXPECT_FALSE(jourferie(session, QDate(2026, 7, 15))) << "the end date is not used as a span";
}

TEST_F(RecordsTest, ParameterSetInForceElseTheOldest)
{
    auto &parcg = session.base.parcg;
    jeuaudate(session, QDate(2026, 1, 1));
    EXPECT_FALSE(parcg.hasRow());
    for (const int year : {2025, 2026}) {
        ASSERT_TRUE(parcg.addNew().ok());
        parcg.values().dat = QDate(year, 6, 1);
        ASSERT_TRUE(parcg.update().ok());
    }
    const std::pair<QDate, int> cases[] = {
        {{2025, 6, 1}, 2025}, {{2026, 5, 31}, 2025}, {{2026, 6, 1}, 2026},
        {{2030, 1, 1}, 2026}, {{2024, 1, 1}, 2025},
    };
    for (const auto &[date, year] : cases) {
        jeuaudate(session, date);
        EXPECT_EQ(parcg.row().dat.year(), year) << date.toString().toStdString();
    }
}

TEST_F(RecordsTest, EmptyingDeletesRowsOfOneKeyToo)
{
    for (int i = 0; i < 5; ++i)
        station.addAbsence(1, QStringLiteral("CP"), QDate(2026, 6, 3), QDate(2026, 6, 3));
    videtable(session, session.base.absences);
    EXPECT_TRUE(session.base.absences.isEmpty());
    videtable(session, session.base.absences);
}

TEST_F(RecordsTest, AbsenceOfADayAndStartOfAWalk)
{
    station.addAbsence(1, QStringLiteral("A"), QDate(2026, 6, 3), QDate(2026, 6, 5));
    station.addAbsence(1, QStringLiteral("B"), QDate(2026, 6, 10), QDate(2026, 6, 10));
    station.addAbsence(3, QStringLiteral("C"), QDate(2026, 6, 1), QDate(2026, 6, 30));
    struct Case {
        int nump;
        int day;
        const char *onDay; ///< code that absjour finds, null for none
        const char *near;  ///< code that absproche finds
    };
    const Case cases[] = {
        {1, 2, nullptr, "A"},      {1, 3, "A", "A"},          {1, 5, "A", "A"}, {1, 6, nullptr, "A"},
        {1, 10, "B", "A"},         {1, 11, nullptr, "B"},     {3, 1, "C", "C"}, {3, 30, "C", "C"},
        {2, 15, nullptr, nullptr}, {4, 15, nullptr, nullptr},
    };
    auto &absences = session.base.absences;
    for (const Case &one : cases) {
        const QDate date(2026, 6, one.day);
        SCOPED_TRACE(testing::Message() << "line " << one.nump << " day " << one.day);
        EXPECT_EQ(absjour(session, one.nump, date), one.onDay != nullptr);
        if (one.onDay) {
            EXPECT_EQ(absences.row().codabs, QString::fromLatin1(one.onDay));
        }
        EXPECT_EQ(absproche(session, one.nump, date), one.near != nullptr);
        if (one.near) {
            EXPECT_EQ(absences.row().codabs, QString::fromLatin1(one.near));
        }
    }
}

class HelpTest : public RecordsTest
{
protected:
    QTemporaryDir current;
    QString former = QDir::currentPath();

    HelpTest() { QDir::setCurrent(current.path()); }
    ~HelpTest() override { QDir::setCurrent(former); }

    static void write(const QString &path)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QString opened(const QString &page)
    {
        ouvreaide(session, page);
        return station.host.opened.last();
    }
};

TEST_F(HelpTest, CurrentFolderWinsOverTheDataFolderAndThatOverTheSite)
{
    const QString page = QStringLiteral("dossiers.htm");
    EXPECT_EQ(opened(page), session.urlaide + page);
    write(station.folder() + page);
    EXPECT_EQ(opened(page), station.folder() + page);
    write(current.path() + QLatin1Char('/') + page);
    EXPECT_EQ(opened(page), page);
}

TEST_F(HelpTest, EmptyPageKeepsTheOneSetBefore)
{
    EXPECT_EQ(opened(QString()), session.urlaide + QStringLiteral("sommaire.htm"));
    opened(QStringLiteral("liggest.htm"));
    EXPECT_EQ(opened(QString()), session.urlaide + QStringLiteral("liggest.htm"));
    session.pagecourante = QStringLiteral("accueil.htm");
    EXPECT_EQ(opened(QString()), session.urlaide + QStringLiteral("accueil.htm"));
}

} // namespace
} // namespace velmora::test
