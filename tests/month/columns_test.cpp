#include "month/columns.h"

#include <gtest/gtest.h>

namespace velmora::test
{
namespace
{

struct Header {
    Header(int mois, int annee, int mode = 1, const QDate &today = {2026, 6, 15})
        : periode(periodeDuMois(mois, annee)), colonnes(colonnesDe(periode))
    {
        ecritEntete(grille, colonnes, periode, {today, mode, {}, [](const QDate &date) {
                                                    return date.day() == 1 && date.month() != 8;
                                                }});
    }

    [[nodiscard]] int at(const QDate &date) const { return colonnes.colonneDe(date); }
    [[nodiscard]] std::string text(int row, int column) const
    {
        return grille.lit(row, column).texte.toStdString();
    }
    [[nodiscard]] QRgb dayColour(const QDate &date) const
    {
        return colonnes.fondjour[static_cast<std::size_t>(at(date))];
    }

    Periode periode;
    Colonnes colonnes;
    Grille grille;
};

std::string kind(const Colonnes &colonnes, int column)
{
    const auto at = static_cast<std::size_t>(column);
    std::string text;
    if (colonnes.coltot[at]) text += 't';
    if (colonnes.colsem[at]) text += 's';
    if (colonnes.colmois[at]) text += 'm';
    if (colonnes.colavant[at]) text += 'b';
    if (colonnes.colapres[at]) text += 'a';
    return text;
}

TEST(ColumnsTest, PutsTheWeekTotalAheadOfTheMonthTotalOnASundayThatEndsTheMonth)
{
    const Header header(6, 2026);
    const int sunday = header.at({2026, 5, 31});
    EXPECT_EQ(kind(header.colonnes, sunday), "");
    EXPECT_EQ(kind(header.colonnes, sunday + 1), "ts");
    EXPECT_EQ(kind(header.colonnes, sunday + 2), "tb");
    EXPECT_EQ(header.colonnes.datecol[static_cast<std::size_t>(sunday) + 2], QDate(2026, 5, 31));
    EXPECT_EQ(header.at({2026, 6, 1}), sunday + 3);
    EXPECT_EQ(header.colonnes.nombre(), Grille::colonnesFixes + 91 + 13 + 3);
}

TEST(ColumnsTest, MarksAThirdMonthAheadOfMarchAsAMonthAfter)
{
    const Header march(3, 2025);
    EXPECT_EQ(kind(march.colonnes, march.at({2025, 1, 31}) + 1), "ta");
    EXPECT_EQ(kind(march.colonnes, march.at({2025, 2, 28}) + 1), "tb");
    EXPECT_EQ(kind(march.colonnes, march.at({2025, 3, 31}) + 1), "tm");
    EXPECT_EQ(kind(march.colonnes, march.at({2025, 4, 30}) + 1), "ta");
    const Header january(1, 2027);
    EXPECT_EQ(kind(january.colonnes, january.at({2026, 12, 31}) + 1), "tb");
    EXPECT_EQ(kind(january.colonnes, january.at({2026, 11, 30}) + 1), "ta");
}

TEST(ColumnsTest, FindsNoColumnForADateOutside)
{
    const Header header(6, 2026);
    EXPECT_EQ(header.at({2026, 5, 3}), -1);
    EXPECT_EQ(header.at({2026, 8, 3}), -1);
    EXPECT_EQ(header.at({2026, 5, 4}), Grille::colonnesFixes);
}

TEST(ColumnsTest, WritesTheLabelsWordForWord)
{
    const Header header(6, 2026);
    const int sunday = header.at({2026, 5, 31});
    struct Case {
        int row;
        int column;
        const char *text;
    };
    const Case cases[] = {
        {0, 0, ""},
        {0, 1, ""},
        {1, 1, "N° semaine"},
        {2, 1, "Jour"},
        {0, 2, "Mai / 2026"},
        {1, 2, "[ 19 ]"},
        {2, 2, "L04"},
        {2, 3, "M05"},
        {2, 4, "M06"},
        {0, sunday + 1, "Mai / 2026"},
        {1, sunday + 1, "[ 22 ]"},
        {2, sunday + 1, "Total Sem."},
        {0, sunday + 2, "Juin / 2026"},
        {1, sunday + 2, "[ 23 ]"},
        {2, sunday + 2, "Tot.Mois 5"},
        {2, sunday + 3, "F01"},
        {0, header.at({2026, 7, 31}) + 1, "Août / 2026"},
    };
    for (const Case &one : cases)
        EXPECT_EQ(header.text(one.row, one.column), one.text) << one.row << '/' << one.column;
    const char *months[] = {"Janv.",   "Fév.", "Mars",  "Avril", "Mai",  "Juin",
                            "Juillet", "Août", "Sept.", "Oct.",  "Nov.", "Déc."};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(libelleMois({2026, month, 1}).toStdString(), std::string(months[month - 1]) + " / 2026");
}

TEST(ColumnsTest, CountsWeeksOnAfterAYearThatEndsOnASunday)
{
    for (int month = 0; month < 21 * 12; ++month) {
        const Header header(month % 12 + 1, 2015 + month / 12);
        QDate fault; // the Sunday 31 December that the grid holds
        for (QDate date = header.periode.debgrille; date <= header.periode.fingrille;
             date = date.addDays(1)) {
            if (date.month() == 12 && date.day() == 31 && date.dayOfWeek() == Qt::Sunday) fault = date;
            const int week = fault.isValid() && date > fault
                                 ? 53 + static_cast<int>(fault.addDays(1).daysTo(date) / 7)
                                 : date.weekNumber();
            ASSERT_EQ(header.text(1, header.at(date)), "[ " + std::to_string(week) + " ]")
                << date.toString(Qt::ISODate).toStdString() << " in " << header.periode.premier.month();
        }
    }
}

TEST(ColumnsTest, HoldsTheWidthsOfEachContent)
{
    for (const int mode : {0, 1, 2}) {
        const Header header(6, 2026, mode);
        const int sunday = header.at({2026, 5, 31});
        EXPECT_EQ(header.grille.largeur(sunday), mode == 0 ? 850 : 1700);
        EXPECT_EQ(header.grille.largeur(sunday + 1), 1070);
        EXPECT_EQ(header.grille.largeur(sunday + 2), 1200);
        EXPECT_EQ(header.grille.largeur(Grille::colonneNom), 2040);
        EXPECT_EQ(header.grille.largeur(Grille::colonneEtat), 60);
    }
}

TEST(ColumnsTest, ColoursTodayHolidaysWeekendsAndTheTwoBands)
{
    const Header header(6, 2026);
    const Grille &grille = header.grille;
    const int today = header.at({2026, 6, 15});
    EXPECT_EQ(grille.lit(2, today).fond, 0xffff0000);
    EXPECT_EQ(grille.lit(2, today).encre, 0xffffffff);
    EXPECT_EQ(grille.lit(2, today + 1).fond, palette::fondFixe);
    EXPECT_TRUE(grille.lit(2, header.at({2026, 6, 1})).gras);
    EXPECT_FALSE(grille.lit(2, today).gras);

    const int mayTotal = header.at({2026, 5, 31}) + 2;
    EXPECT_EQ(grille.lit(0, mayTotal - 1).fond, 0xffffffc0);
    EXPECT_EQ(grille.lit(1, mayTotal).fond, 0xffffe0c0);
    EXPECT_EQ(grille.lit(0, header.at({2026, 7, 1})).fond, 0xffffffc0);

    EXPECT_EQ(header.dayColour({2026, 5, 30}), 0xffffffc0);
    EXPECT_EQ(header.dayColour({2026, 6, 6}), 0xffffe0c0);
    EXPECT_EQ(header.dayColour({2026, 6, 1}), 0xfffdffea);
    EXPECT_EQ(header.dayColour({2026, 6, 15}), 0xffffffff);
}

} // namespace
} // namespace velmora::test
