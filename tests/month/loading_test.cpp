#include "month/loading.h"

#include "month/open_month.h"
#include "month/text_form.h"
#include "support/raw_sqlite.h"

namespace velmora::test
{
namespace
{

const QString damagedBase = QStringLiteral(
    "Une erreur de base de données vient de se produire: fermer l'application et relancer la !");
const QString noLine =
    QStringLiteral("vous devez ouvrir au moins une ligne de planning pour cette période !");

class LoadingTest : public testing::Test
{
protected:
    Workstation station;

    void inFolder(int nump, const QString &folder)
    {
        auto &groupe = station.session.base.groupe;
        ASSERT_TRUE(groupe.addNew().ok());
        groupe.values() = {folder, nump, true};
        ASSERT_TRUE(groupe.update().ok());
    }
};

TEST_F(LoadingTest, ShowsTheLinesOfThePeriodByNameAndNoneWithoutALineRow)
{
    station.addLine(1, QStringLiteral("Zoé"));
    station.addLine(2, QStringLiteral("éric"));
    station.addLine(3, QStringLiteral("FANNY"), {2026, 6, 1}, {2026, 6, 2});
    station.addLine(4, QStringLiteral("ALAIN"), {2020, 1, 1}, {2026, 5, 3});
    station.addDay(9, {2026, 6, 1}, 480, 960);
    const OpenMonth month(station, 6, 2026);
    QStringList names;
    for (const QString &line : texteGrille(month.planning))
        names << line.section(QLatin1Char('\t'), 0, 0);
    EXPECT_EQ(names.mid(Grille::lignesFixes).join(QLatin1Char(',')),
              QStringLiteral("éric,FANNY,Zoé,Total Heures"));
    EXPECT_EQ(compteLignes(station.session, month.planning.periode), 3);
    EXPECT_EQ(month.planning.grille.minutes(month.column({2026, 6, 1}), 0), 0);
}

TEST_F(LoadingTest, ObeysTheFolderButScalesTheProgressByAllLines)
{
    station.addLine(1, QStringLiteral("ANNE"));
    station.addLine(2, QStringLiteral("BRUNO"));
    inFolder(2, QStringLiteral("NUIT"));
    station.session.dossiervue = QStringLiteral("NUIT");
    EXPECT_FALSE(ligdossier(station.session, 1));
    EXPECT_TRUE(ligdossier(station.session, 2));
    QList<int> progress;
    Planning planning(station.session, 6, 2026);
    ASSERT_TRUE(chargi(planning, {[&](int value) { progress << value; }, {}}));
    EXPECT_EQ(planning.grille.numligne(Grille::lignesFixes), 2);
    EXPECT_EQ(planning.grille.derniereLigne(), Grille::lignesFixes + 1);
    EXPECT_EQ(progress, (QList<int>{2, 3}));
    EXPECT_EQ(compteLignes(station.session, planning.periode), 2);
}

TEST_F(LoadingTest, AsksForALineWhenNoneIsShownAndClosesWithoutOne)
{
    station.addLine(1, QStringLiteral("ANNE"));
    station.session.dossiervue = QStringLiteral("VIDE");
    station.host.expectMessage(noLine);
    const OpenMonth refused(station, 6, 2026);
    EXPECT_FALSE(refused.shown);
    EXPECT_FALSE(refused.planning.suivi);

    station.session.dossiervue.clear();
    Planning planning(station.session, 9, 2010);
    station.host.expectMessage(noLine);
    const auto newLine = [&] {
        Ligne ligne;
        ligne.nump = 7;
        ligne.nom = QStringLiteral("NEUVE");
        ligne.datedeb = QDate(2010, 9, 1);
        ligne.datefin = QDate(2099, 1, 1);
        station.addDay(7, {2010, 9, 2}, 480, 960);
        chargeligne(planning, ligne);
        return true;
    };
    ASSERT_TRUE(chargi(planning, {{}, newLine}));
    EXPECT_EQ(planning.grille.minutes(planning.colonnes.colonneDe({2010, 9, 2}), 0), 480);
    EXPECT_TRUE(planning.suivi);
}

TEST_F(LoadingTest, PutsTheCursorOnTodayOrElseOnTheFirstOfTheMonth)
{
    station.addLine(1, QStringLiteral("ANNE"));
    OpenMonth june(station, 6, 2026);
    EXPECT_EQ(june.planning.date(june.planning.curseur.colonne), QDate(2026, 6, 15));
    EXPECT_EQ(june.planning.date(june.planning.colonneGauche), QDate(2026, 6, 1));
    EXPECT_TRUE(june.planning.suivi);
    const OpenMonth october(station, 10, 2026);
    EXPECT_EQ(october.planning.date(october.planning.curseur.colonne), QDate(2026, 10, 1));
    int tries = 0;
    const int left = june.planning.colonneGauche;
    EXPECT_EQ(ajusteGauche(june.planning, [&](int) { return ++tries > 2; }), left + 16);
    EXPECT_EQ(ajusteGauche(june.planning, [](int) { return false; }), left + 32);
}

TEST_F(LoadingTest, SizesRowsAndColoursWeekendsHolidaysAndTheTotals)
{
    station.addLine(1, QStringLiteral("ANNE"));
    auto &ferie = station.session.base.ferie;
    ASSERT_TRUE(ferie.addNew().ok());
    ferie.values().datedeb = ferie.values().datefin = QDate(2026, 7, 14);
    ASSERT_TRUE(ferie.update().ok());
    const OpenMonth month(station, 6, 2026);
    const Grille &grille = month.planning.grille;
    EXPECT_EQ(month.cell(1, {2026, 7, 14}).fond, palette::ferie);
    EXPECT_EQ(month.cell(1, {2026, 7, 4}).fond, grille.lit(1, month.column({2026, 7, 4})).fond);
    EXPECT_EQ(month.cell(1, {2026, 7, 15}).fond, palette::fond);
    EXPECT_EQ(grille.lit(month.row(1), month.totalColumn({2026, 7, 5}, true)).fond, palette::fondFixe);
    EXPECT_EQ(grille.hauteur(month.row(1)), month.planning.mesures.hautligne);
    EXPECT_EQ(grille.hauteur(grille.derniereLigne()), month.planning.mesures.hautligne * 2 / 3);
    EXPECT_EQ(grille.lit(grille.derniereLigne(), month.column({2026, 7, 14})).fond, palette::fondTotal);
}

/// Fills the page that holds a line's day with rubbish, and opens the file anew.
void damageDay(Workstation &station, int nump, const QDate &date)
{
    station.session.base.close();
    const QByteArray mark("-la-page-de-ce-jour-");
    ASSERT_TRUE(RawSqlite(station.mainFile())
                    .run(QStringLiteral("UPDATE sitper SET horaire = '%1' WHERE nump = %2 AND dat = '%3'")
                             .arg(QString::fromLatin1(mark))
                             .arg(nump)
                             .arg(date.toString(Qt::ISODate))));
    QFile file(station.mainFile());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    constexpr qint64 pageSize = 4096;
    const qint64 page = file.readAll().indexOf(mark) / pageSize;
    ASSERT_GT(page, 0);
    ASSERT_TRUE(file.seek(page * pageSize));
    file.write(QByteArray(pageSize, '\xa7'));
    file.close();
    ASSERT_TRUE(station.session.base.open(station.mainFile()).ok());
}

TEST_F(LoadingTest, DamagedPageOfHoursIsToldAndShowsNoWrongTotal)
{
    const QDate start(2026, 5, 1);
    for (const int nump : {1, 2, 3}) {
        station.addLine(nump, QString(QChar(u'A' + nump)));
        for (int day = 0; day < 90; ++day)
            station.addDay(nump, start.addDays(day), 480, 960);
    }
    OpenMonth month(station, 6, 2026);
    ASSERT_TRUE(month.shown);
    month.moveTo(2, {2026, 6, 15});
    const QStringList before = snapshot(month.planning.grille);
    damageDay(station, 2, {2026, 6, 15});
    station.host.expectMessage(damagedBase);
    month.refill(2);
    EXPECT_EQ(difference(snapshot(month.planning.grille), before), "");
    month.refill(1);
    EXPECT_EQ(difference(snapshot(month.planning.grille), before), "");
    station.host.expectMessage(damagedBase);
    EXPECT_FALSE(OpenMonth(station, 6, 2026).shown);
}

} // namespace
} // namespace velmora::test
