#pragma once

#include "support/faulty_engine.h"
#include "support/workstation.h"

namespace velmora::test
{

/// Two lines and what the files hold of them, as short texts to be compared.
class StoredDays : public testing::Test
{
protected:
    Faults faults;
    Workstation station{QDate(2026, 6, 15), std::make_unique<FaultyEngine>(faults)};
    Session &session = station.session;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"));
        station.addLine(2, QStringLiteral("BRUNO"), {2026, 6, 3}, {2026, 6, 20});
    }

    /// Adds days from a date on: the hour each one starts at, "-" for a day without hours.
    void plant(int nump, QDate dat, const char *hours)
    {
        for (const QString &hour : QString::fromLatin1(hours).split(QLatin1Char(' '))) {
            if (hour != QLatin1String("-")) station.addDay(nump, dat, hour.toInt() * 60, 1200);
            dat = dat.addDays(1);
        }
    }
    /// The same text of what is stored, with "!" behind a day that doesn't count.
    std::string stored(int nump, const QDate &dat, int count)
    {
        QStringList hours;
        session.base.sitper.setIndex("sitper01");
        for (int i = 0; i < count; ++i) {
            const bool found = session.base.sitper.seek(store::Cmp::Eq, {nump, dat.addDays(i)});
            const JourSit &jour = session.base.sitper.row();
            hours << (found ? QString::number(jour.heurdeb / 60) + (jour.Val ? "" : "!") : "-");
        }
        return hours.join(QLatin1Char(' ')).toStdString();
    }
    JourSit &day(int nump, const QDate &dat)
    {
        session.base.sitper.setIndex("sitper01");
        EXPECT_TRUE(session.base.sitper.seek(store::Cmp::Eq, {nump, dat}));
        EXPECT_TRUE(session.base.sitper.edit().ok());
        return session.base.sitper.values();
    }
    Ligne line(int nump)
    {
        session.base.ligmois.setIndex("ligmois01");
        EXPECT_TRUE(session.base.ligmois.seek(store::Cmp::Eq, {nump}));
        return session.base.ligmois.row();
    }
    /// Wordings of the operations in force, the first recorded first, each with its count of images.
    QStringList operations()
    {
        QStringList seen;
        auto &logop = session.journal.logop;
        for (bool found = logop.first(); found; found = logop.next()) {
            if (!logop.row().valop) continue;
            int images = 0;
            auto rows = session.journal.sitlog.range("sitlog1", {logop.row().numop}, {logop.row().numop});
            while (rows.next())
                ++images;
            seen << logop.row().ficop + logop.row().libop + QStringLiteral(" #%1").arg(images);
        }
        return seen;
    }
    /// The disk fails once, after some more rows of the planning are written.
    void failAfter(int writes)
    {
        faults.writesBefore = writes;
        station.host.expectQuestion(QStringLiteral("Problème accès disque! réessayer ?"), true);
        station.host.whenAsked = [this] { EXPECT_FALSE(session.base.engine.inTransaction()); };
    }
};

} // namespace velmora::test
