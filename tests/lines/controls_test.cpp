#include "lines/controls.h"

#include "support/workstation.h"

namespace velmora::test
{
namespace
{

const QString abnormalWeek = QStringLiteral("Valeur maxi semaine anormalement basse! Continuer ?");

/// The control fields of a line as one text.
std::string stored(const ChampsControles &fields)
{
    Ligne line;
    ecritControles(fields, line);
    return QStringLiteral("%1 %2 %3 %4 %5 / %6 / %7 %8 %9 / %10 %11")
        .arg(line.bcontrolh)
        .arg(line.maxs)
        .arg(line.maxj)
        .arg(line.ampj)
        .arg(line.reposmin)
        .arg(line.b6j)
        .arg(line.bcontrolr)
        .arg(line.nrep)
        .arg(line.nrepd)
        .arg(line.bcontrolp)
        .arg(line.pause)
        .toStdString();
}

ChampsControles allOn()
{
    ChampsControles fields;
    fields.bcontrolh = fields.b6j = fields.bcontrolr = fields.bcontrolp = true;
    return fields;
}

class ControlsTest : public testing::Test
{
protected:
    Workstation station;

    /// The check of one typed field, with what is said on the way.
    struct Check {
        QString ChampsControles::*field;
        const char *typed;
        std::optional<ChampLigne> refused{};
        QString message{};
        std::optional<bool> answer{};
    };
    void expect(ChampsControles fields, const Check &check)
    {
        fields.*check.field = QString::fromLatin1(check.typed);
        if (check.answer)
            station.host.expectQuestion(abnormalWeek, *check.answer);
        else if (check.refused)
            station.host.expectMessage(check.message);
        const IssueLigne outcome = verifieControles(station.session, fields);
        EXPECT_EQ(outcome.faite, !check.refused) << check.typed;
        if (!outcome.faite) {
            EXPECT_EQ(outcome.champ, check.refused) << check.typed;
        }
    }
};

TEST_F(ControlsTest, EachLimitIsRefusedInItsWordsFromItsBoundOn)
{
    using C = ChampsControles;
    const QString pairs = QStringLiteral("Plus de repos contigüs que de repos totaux !");
    const QString day = QStringLiteral("Travail > 24h / jour !");
    const QString span = QStringLiteral("Amplitude de travail > 24h / jour !");
    const QString unread = QStringLiteral("Heure illisible : 9h99");
    const Check checks[] = {
        {&C::nrepd, "2"},
        {&C::nrepd, "3", ChampLigne::Nrepd, pairs},
        {&C::nrep, "2"},
        {&C::nrep, "1", ChampLigne::Nrepd, pairs},
        {&C::nrep, "", ChampLigne::Nrepd, pairs}, // an empty count is 0
        {&C::maxs, "0h00"},                       // removes the control: nothing is asked
        {&C::maxs, ""},
        {&C::maxs, "1h44", ChampLigne::Maxs, {}, false},
        {&C::maxs, "1h44", {}, {}, true},
        {&C::maxs, "1h45"},
        {&C::maxs, "50h00"},
        {&C::maxs, "50h01", ChampLigne::Maxs, {}, false}, // too long is said as too short
        {&C::maxs, "9h99", ChampLigne::Maxs, unread},
        {&C::maxj, "24h00"},
        {&C::maxj, "24h01", ChampLigne::Maxj, day},
        {&C::maxj, "9h99", ChampLigne::Maxj, day},
        {&C::ampj, "24h00"},
        {&C::ampj, "24h01", ChampLigne::Ampj, span}, // and never "repos minimum > 24h / jour !"
        {&C::reposmin, "25h00"},                     // the rest has no bound
        {&C::reposmin, "9h99", ChampLigne::Reposmin, unread},
    };
    for (const Check &check : checks)
        expect(allOn(), check);
    EXPECT_EQ(station.host.titles.count(QStringLiteral("velmora")), station.host.titles.size());
}

TEST_F(ControlsTest, ChecksRestsThenWeekThenDayThenSpanAndOnlyWhatIsSwitchedOn)
{
    ChampsControles wrong = allOn();
    wrong.nrep = QStringLiteral("1");
    wrong.maxs = QStringLiteral("1h00");
    wrong.maxj = wrong.ampj = QStringLiteral("25h00");
    station.host.expectMessage(QStringLiteral("Plus de repos contigüs que de repos totaux !"));
    EXPECT_FALSE(verifieControles(station.session, wrong).faite);
    wrong.bcontrolr = false;
    station.host.expectQuestion(abnormalWeek, true);
    station.host.expectMessage(QStringLiteral("Travail > 24h / jour !"));
    EXPECT_FALSE(verifieControles(station.session, wrong).faite);
    wrong.bcontrolh = false;
    EXPECT_TRUE(verifieControles(station.session, wrong).faite);
}

TEST(Controls, StoresZerosForWhatIsOffAndTheFieldsForWhatIsOn)
{
    EXPECT_EQ(stored({}), "0 0 0 0 0 / 0 / 0 0 0 / 0 0") << "not what the fields show";
    ChampsControles fields = allOn();
    EXPECT_EQ(stored(fields), "1 2880 600 780 660 / 1 / 1 4 1 / 1 20");
    fields.reposmin = QStringLiteral("25h00");
    fields.maxj = QStringLiteral("");
    EXPECT_EQ(stored(fields), "1 2880 0 780 1500 / 1 / 1 4 1 / 1 20");
    ChampsControles only;
    only.b6j = true;
    EXPECT_EQ(stored(only), "0 0 0 0 0 / 1 / 0 0 0 / 0 0") << "six days don't need the limits of hours";
}

TEST(Controls, ShowTheLineWhereItIsControlledAndTheProposedValuesElsewhere)
{
    Ligne line;
    line.bcontrolh = true;
    line.maxs = 6750;
    line.reposmin = 0;
    const ChampsControles shown = controlesDe(line);
    EXPECT_EQ(shown.maxs, "112h30");
    EXPECT_EQ(shown.reposmin, "0h00");
    EXPECT_EQ(shown.nrep, "4");
    EXPECT_EQ(shown.pause, "20");
    EXPECT_EQ(stored(controlesDe(line)), "1 6750 0 0 0 / 0 / 0 0 0 / 0 0") << "OK without a change";
    EXPECT_EQ(controlesDe({}).maxs, "48h00");
}

} // namespace
} // namespace velmora::test
