#include "month/open_month.h"

#include <QRandomGenerator>

namespace velmora::test
{
namespace
{

constexpr int lines = 7;
constexpr int closedEarly = 3; // a line that ends within the period
constexpr int otherFolder = 5; // a line that the folder leaves out

QString iso(const QDate &date)
{
    return date.toString(Qt::ISODate);
}

/// Fills a base with lines, hours and absences around a month, by chance but the same each time.
class RandomPlanning
{
public:
    RandomPlanning(Workstation &station, const Periode &periode, quint32 seed)
        : m_engine(station.session.base.engine), m_periode(periode), m_chance(seed)
    {
        EXPECT_TRUE(m_engine.begin(store::Engine::Transaction::Write).ok());
        addCodes();
        for (int nump = 1; nump <= lines; ++nump)
            addLine(nump);
        EXPECT_TRUE(m_engine.commit().ok());
    }

    /// One change of a line's days within the grid, of any kind.
    void change(int nump)
    {
        const QDate date = m_periode.debgrille.addDays(draw(90));
        const QString where = QStringLiteral(" WHERE nump = %1 AND dat = '%2'").arg(nump).arg(iso(date));
        switch (draw(4)) {
        case 0: run(QStringLiteral("DELETE FROM sitper") + where); break;
        case 1: run(QStringLiteral("UPDATE sitper SET Val = -1 - Val") + where); break;
        case 2: addAbsence(nump, date); break;
        default: run(QStringLiteral("DELETE FROM sitper") + where); addDay(nump, date);
        }
    }

    [[nodiscard]] int draw(int below) { return static_cast<int>(m_chance.bounded(below)); }
    void run(const QString &sql) { EXPECT_TRUE(m_engine.execute(sql).ok()) << sql.toStdString(); }

private:
    void addCodes()
    {
        run(QStringLiteral(
            "INSERT INTO codabs (codabs, modabs, bcouleur, backc, forec) VALUES ('CP', 420, -1, "
            "255, 1), ('RH', 0, 0, 9, 9), ('JA', -1, -1, 65280, 2), (' M', NULL, 0, 0, 0)"));
    }
    void addLine(int nump)
    {
        const QDate end = nump == closedEarly ? m_periode.premier.addDays(9) : QDate(2099, 1, 1);
        run(QStringLiteral(
                "INSERT INTO ligmois (nump, nom, datedeb, datefin) VALUES (%1, 'L%2', '2020-01-01', '%3')")
                .arg(nump)
                .arg(nump * 5 % lines)
                .arg(iso(end)));
        if (nump != otherFolder)
            run(QStringLiteral("INSERT INTO groupe (groupe, nump, sel) VALUES ('NUIT', %1, -1)").arg(nump));
        for (QDate date = m_periode.debgrille.addDays(-40); date <= m_periode.fingrille;
             date = date.addDays(1)) {
            if (draw(10) < 6) addDay(nump, date);
            if (draw(20) == 0) addAbsence(nump, date);
        }
    }
    void addDay(int nump, const QDate &date)
    {
        const int start = draw(96) * 15;
        const int length = 240 + draw(40) * 15;
        const int cut = draw(2) * (15 + draw(3) * 15);
        const auto moment = [&](int after) { return (start + after) % minutesParJour; };
        run(QStringLiteral(
                "INSERT INTO sitper (nump, dat, Val, heurdeb, heurfin, hideb, hifin, hideb2, hifin2) "
                "VALUES (%1, '%2', %3, %4, %5, %6, %7, %8, %9)")
                .arg(nump)
                .arg(iso(date))
                .arg(draw(6) == 0 ? 0 : -1)
                .arg(start)
                .arg(moment(length))
                .arg(moment(60))
                .arg(moment(60 + cut))
                .arg(moment(150))
                .arg(moment(150 + cut * draw(2))));
    }
    void addAbsence(int nump, const QDate &date)
    {
        static const char *const codes[] = {"CP", "RH", "JA", "M", "??"};
        run(QStringLiteral("INSERT INTO absences (nump, numi, codabs, datedeb, datefin) VALUES (%1, 0, '%2', "
                           "'%3', '%4')")
                .arg(nump)
                .arg(QString::fromUtf8(codes[draw(5)]), iso(date), iso(date.addDays(draw(8)))));
    }

    store::Engine &m_engine;
    Periode m_periode;
    QRandomGenerator m_chance;
};

/// The sums of a month worked out date by date with SQL, each figure from scratch.
class Oracle
{
public:
    explicit Oracle(Workstation &station) : m_engine(station.session.base.engine) {}

    [[nodiscard]] int value(int nump, const QDate &date)
    {
        const int worked =
            one(worth + QStringLiteral(" WHERE nump = %1 AND dat = '%2'").arg(nump).arg(iso(date)), -1);
        const QString here =
            QStringLiteral(" FROM sitper WHERE nump = %1 AND dat = '%2'").arg(nump).arg(iso(date));
        if (one(QStringLiteral("SELECT Val") + here, 0) != 0) return worked;
        if (worked < 0 && !isOpen(nump, date)) return 0;
        return absent(nump, date, qMax(worked, 0));
    }
    [[nodiscard]] int sum(int nump, const QDate &from, const QDate &to)
    {
        int total = 0;
        for (QDate date = from; date <= to; date = date.addDays(1))
            total += value(nump, date);
        return total;
    }
    /// Every row of the dates, valid or not, and no absence.
    [[nodiscard]] int rowsOnly(int nump, const QDate &from, const QDate &to)
    {
        return one(QStringLiteral("SELECT sum(m) FROM (%1 WHERE nump = %2 AND dat BETWEEN '%3' AND '%4')")
                       .arg(worth)
                       .arg(nump)
                       .arg(iso(from), iso(to)),
                   0);
    }

private:
    [[nodiscard]] bool isOpen(int nump, const QDate &date)
    {
        return one(QStringLiteral(
                       "SELECT count(*) FROM ligmois WHERE nump = %1 AND '%2' BETWEEN datedeb AND datefin")
                       .arg(nump)
                       .arg(iso(date)),
                   0) != 0;
    }
    /// The last span that begins by the date decides alone, if it reaches the date.
    [[nodiscard]] int absent(int nump, const QDate &date, int worked)
    {
        return one(
            QStringLiteral(
                "SELECT CASE WHEN a.datefin < '%2' OR c.codabs IS NULL OR coalesce(c.modabs, 0) = 0 THEN %3 "
                "WHEN c.modabs = -1 THEN 0 ELSE c.modabs END FROM absences a LEFT JOIN codabs c ON "
                "trim(c.codabs) = trim(a.codabs) WHERE a.nump = %1 AND a.datedeb <= '%2' "
                "ORDER BY a.datedeb DESC, a.rowid DESC LIMIT 1")
                .arg(nump)
                .arg(iso(date))
                .arg(worked),
            worked);
    }
    [[nodiscard]] int one(const QString &sql, int otherwise)
    {
        const auto statement = m_engine.prepare(sql);
        EXPECT_TRUE(statement) << sql.toStdString();
        if (!statement || statement->step() != store::Statement::Step::Row || statement->columnIsNull(0))
            return otherwise;
        return static_cast<int>(statement->columnInt(0));
    }

    /// Distances from the start around the clock; a distance of a whole day stays one.
    inline static const QString worth = QStringLiteral(
        "SELECT (heurfin - heurdeb + 1440 * (heurfin < heurdeb)) "
        "- (hifin - hideb + 1440 * ((hifin < heurdeb) - (hideb < heurdeb))) "
        "- (hifin2 - hideb2 + 1440 * ((hifin2 < heurdeb) - (hideb2 < heurdeb))) AS m FROM sitper");

    store::Engine &m_engine;
};

QDate firstAhead(const Periode &periode)
{
    return {periode.debgrille.year(), periode.debgrille.month(), 1};
}

int expectedTotal(Oracle &oracle, const Planning &planning, int nump, int column)
{
    const Periode &periode = planning.periode;
    const QDate date = planning.date(column);
    const auto at = static_cast<std::size_t>(column);
    if (planning.colonnes.colsem[at]) return oracle.sum(nump, date.addDays(-6), date);
    if (planning.colonnes.colmois[at]) return oracle.sum(nump, periode.premier, date);
    if (planning.colonnes.colavant[at]) {
        return oracle.sum(nump, periode.debgrille, qMin(date, periode.premier.addDays(-1))) +
               oracle.rowsOnly(nump, firstAhead(periode), periode.debgrille.addDays(-1));
    }
    return oracle.sum(nump, periode.premier.addMonths(1), date);
}

class TotalsTest : public testing::TestWithParam<std::pair<int, int>>
{
protected:
    int mois = GetParam().first;
    int annee = GetParam().second;
    Workstation station{QDate(annee, mois, 12)};
    RandomPlanning plan{station, periodeDuMois(mois, annee), static_cast<quint32>(annee * 12 + mois)};
};

TEST_P(TotalsTest, AgreeWithEachFigureWorkedOutFromTheRows)
{
    station.session.dossiervue = QStringLiteral("NUIT");
    const OpenMonth month(station, mois, annee);
    const Planning &planning = month.planning;
    const Grille &grille = planning.grille;
    ASSERT_EQ(grille.lignes(), Grille::lignesFixes + lines - 1 + 1);
    EXPECT_EQ(grille.ligneDe(otherFolder), -1);
    Oracle oracle(station);
    for (int column = Grille::colonnesFixes; column < grille.colonnes(); ++column) {
        const bool total = !planning.colonnes.estJour(column);
        int all = 0;
        for (int row = Grille::lignesFixes; row < grille.derniereLigne(); ++row) {
            const int nump = grille.numligne(row);
            const int expected = total ? expectedTotal(oracle, planning, nump, column)
                                       : oracle.value(nump, planning.date(column));
            ASSERT_EQ(grille.minutes(column, row), expected)
                << "line " << nump << ", " << iso(planning.date(column)).toStdString() << " total " << total;
            all += expected;
        }
        EXPECT_EQ(grille.minutes(column, 0), all);
        EXPECT_EQ(
            grille.lit(grille.derniereLigne(), column).texte.toStdString(),
            QStringLiteral(" %1h%2").arg(all / 60).arg(all % 60, 2, 10, QLatin1Char('0')).toStdString());
    }
}

TEST_P(TotalsTest, StayThoseOfAFreshMonthThroughEdits)
{
    OpenMonth month(station, mois, annee);
    for (int edit = 0; edit < 60; ++edit) {
        const int nump = 1 + plan.draw(lines);
        if (nump == closedEarly) continue;
        plan.change(nump);
        if (edit % 3 == 0)
            month.moveTo(1 + plan.draw(lines), month.planning.periode.debgrille.addDays(plan.draw(90)));
        month.refill(nump);
    }
    OpenMonth fresh(station, mois, annee);
    for (OpenMonth *one : {&month, &fresh})
        one->moveTo(2, one->planning.periode.premier);
    EXPECT_EQ(difference(snapshot(month.planning.grille), snapshot(fresh.planning.grille)), "");
}

TEST_P(TotalsTest, FollowALineWhoseDatesChange)
{
    OpenMonth month(station, mois, annee);
    plan.run(QStringLiteral("UPDATE ligmois SET datefin = '2099-01-01' WHERE nump = %1").arg(closedEarly));
    plan.run(QStringLiteral("UPDATE ligmois SET datedeb = '%1' WHERE nump = 1")
                 .arg(iso(month.planning.periode.premier)));
    auto &ligmois = station.session.base.ligmois;
    ligmois.setIndex("ligmois01");
    for (const int nump : {closedEarly, 1}) {
        ASSERT_TRUE(ligmois.seek(store::Cmp::Eq, {nump}));
        majlignecomplet(month.planning, ligmois.row(), month.row(nump));
    }
    const OpenMonth fresh(station, mois, annee);
    EXPECT_EQ(difference(snapshot(month.planning.grille), snapshot(fresh.planning.grille)), "");
}

TEST_P(TotalsTest, ChangeOnlyTheirTextInHundredthsAndBack)
{
    OpenMonth month(station, mois, annee);
    const QStringList before = snapshot(month.planning.grille);
    choisitCentiemes(month.planning, true);
    for (int row = Grille::lignesFixes; row < month.planning.grille.lignes(); ++row) {
        for (int column = Grille::colonnesFixes; column < month.planning.grille.colonnes(); ++column) {
            const bool total =
                !month.planning.colonnes.estJour(column) || row == month.planning.grille.derniereLigne();
            const QString texte = month.planning.grille.lit(row, column).texte;
            EXPECT_EQ(texte.contains(QLatin1Char('.')), total) << texte.toStdString();
        }
    }
    const OpenMonth fresh(station, mois, annee);
    EXPECT_EQ(difference(snapshot(month.planning.grille), snapshot(fresh.planning.grille)), "");
    choisitCentiemes(month.planning, false);
    EXPECT_EQ(difference(snapshot(month.planning.grille), before), "");
}

INSTANTIATE_TEST_SUITE_P(Months, TotalsTest,
                         testing::Values(std::pair(6, 2026), std::pair(3, 2025), std::pair(1, 2027),
                                         std::pair(12, 2026)));

TEST(TotalsOfALineTest, CountAWeekWholeAndAMonthByItsDates)
{
    Workstation station;
    station.addLine(1, QStringLiteral("ANNE"));
    for (QDate date(2026, 6, 29); date <= QDate(2026, 7, 5); date = date.addDays(1))
        station.addDay(1, date, 480, 540);
    OpenMonth month(station, 6, 2026);
    EXPECT_EQ(month.totalText(1, {2026, 7, 5}, true), " 7h00");
    EXPECT_EQ(month.totalText(1, {2026, 6, 30}, false), " 2h00");
    EXPECT_EQ(month.totalText(1, {2026, 7, 31}, false), " 5h00");
    ASSERT_TRUE(station.session.base.engine.execute(QStringLiteral("DELETE FROM sitper")).ok());
    month.refill(1);
    EXPECT_EQ(month.totalText(1, {2026, 7, 5}, true), " 0h00");
    EXPECT_EQ(month.totalText(1, {2026, 7, 31}, false), " 0h00");
    EXPECT_EQ(month.planning.grille.minutes(month.column({2026, 6, 29}), 0), 0);
}

TEST(TotalsOfALineTest, CountInvalidRowsAheadOfTheGridAndNoAbsenceThere)
{
    Workstation station;
    station.addLine(1, QStringLiteral("ANNE"));
    station.addCode(QStringLiteral("CP"), 300);
    station.addAbsence(1, QStringLiteral("CP"), {2026, 5, 1}, {2026, 5, 5});
    station.addDay(1, {2026, 5, 2}, 480, 540, 0, 0, false);
    station.addDay(1, {2026, 5, 4}, 480, 540, 0, 0, false);
    const OpenMonth month(station, 6, 2026);
    EXPECT_EQ(month.planning.grille.avantmois(month.row(1)), 60);
    EXPECT_EQ(month.totalText(1, {2026, 5, 31}, false), " 11h00");
}

TEST(TotalsOfALineTest, RoundEachFigureInHundredthsByItself)
{
    Workstation station;
    station.addLine(1, QStringLiteral("ANNE"));
    station.addDay(1, {2026, 6, 15}, 480, 935);
    OpenMonth month(station, 6, 2026);
    choisitCentiemes(month.planning, true);
    EXPECT_EQ(month.totalText(1, {2026, 6, 21}, true), " 7.58");
    choisitCentiemes(month.planning, false);
    EXPECT_EQ(month.totalText(1, {2026, 6, 21}, true), " 7h35");
}

} // namespace
} // namespace velmora::test
