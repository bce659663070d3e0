#include "absences/codes.h"

#include "session/records.h"
#include "support/raw_sqlite.h"
#include "support/workstation.h"

namespace velmora::test
{
namespace
{

const QString forbidden = QStringLiteral("CODE ABSENCE INTERDIT !");
const QString taken = QStringLiteral("CODE ABSENCE INTERDIT:  code absence déjà utilisé");
const QString noLabel = QStringLiteral("libellé (court) non saisi");
const QString noValue = QStringLiteral("Valeur de la journée: ne peut être zéro !");

/// What a user enters for a new code.
FicheCode entered(const QString &code, Valorisation valorisation = Valorisation::HorairesPrevus,
                  const QString &value = {})
{
    FicheCode fiche;
    fiche.codabs = code;
    fiche.libecour = QStringLiteral("Congé");
    fiche.choisit(valorisation);
    if (!value.isNull()) fiche.valeur = value;
    return fiche;
}

class CodesTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    [[nodiscard]] QStringList rows(const QString &fields = QStringLiteral("codabs"))
    {
        RawSqlite file(station.mainFile());
        return file.rows(QStringLiteral("SELECT %1 FROM codabs ORDER BY codabs").arg(fields));
    }
    CodeAbsence row(const QString &code)
    {
        EXPECT_TRUE(cherchecode(session, code)) << code.toStdString();
        return session.base.codabs.row();
    }
};

TEST_F(CodesTest, TheFieldKeepsTwoCharactersAndAlignsASingleOneToTheRight)
{
    for (const auto &[typed, kept] : {std::pair("", ""),
                                      {"R", " R"},
                                      {" R", " R"},
                                      {" RS", "RS"},
                                      {"RST", "RS"},
                                      {"  ", ""},
                                      {"R ", " R"},
                                      {"É", " É"}})
        EXPECT_EQ(codeSaisi(QString::fromUtf8(typed)), QString::fromUtf8(kept)) << typed;
}

TEST_F(CodesTest, RefusesInOrderWithTheWordsAndWritesNothing)
{
    station.addCode(QStringLiteral(" R"), 0);
    FicheCode nothing;
    nothing.codabs = QStringLiteral("CP");
    FicheCode unvalued = nothing;
    unvalued.libecour = QStringLiteral("Congé");
    FicheCode takenAndEmpty;
    takenAndEmpty.codabs = QStringLiteral(" R");
    FicheCode reservedAndEmpty;
    reservedAndEmpty.codabs = QStringLiteral("RS");
    const std::pair<FicheCode, QString> refusals[] = {
        {takenAndEmpty, taken},
        {entered(QStringLiteral("R")), taken},
        {reservedAndEmpty, forbidden},
        {entered(QStringLiteral("RH")), forbidden},
        {entered(QStringLiteral("RP")), forbidden},
        {entered(QString()), forbidden},
        {nothing, noLabel},
        {unvalued, QStringLiteral("Valorisation de l'absence !")},
        {entered(QStringLiteral("CP"), Valorisation::ValeurFixe, QStringLiteral("0h00")), noValue},
        {entered(QStringLiteral("CP"), Valorisation::ValeurFixe, QStringLiteral("7x")), noValue},
        {entered(QStringLiteral("CP"), Valorisation::ValeurFixe, QStringLiteral("")), noValue},
    };
    for (const auto &[fiche, words] : refusals) {
        station.host.expectMessage(words);
        EXPECT_FALSE(enregistreCode(session, fiche)) << words.toStdString();
        EXPECT_EQ(rows(), QStringList(" R"));
        EXPECT_FALSE(session.base.engine.inTransaction());
    }
}

TEST_F(CodesTest, StoresWhatWasEnteredAndLeavesTheTableOnIt)
{
    ASSERT_TRUE(enregistreCode(session, entered(QStringLiteral("R"))));
    EXPECT_EQ(session.base.codabs.row().codabs, QStringLiteral(" R"));
    ASSERT_TRUE(enregistreCode(session, entered(QStringLiteral("CP"), Valorisation::Jamais)));
    FicheCode coloured = entered(QStringLiteral("FO"), Valorisation::ValeurFixe, QStringLiteral("7h30"));
    coloured.libelong = QStringLiteral("Formation");
    coloured.bcouleur = true;
    coloured.backc = 0xc9dcf5;
    coloured.forec = 0x123c69;
    coloured.barc = true;
    ASSERT_TRUE(enregistreCode(session, coloured));
    EXPECT_EQ(session.base.codabs.row().codabs, QStringLiteral("FO"));
    EXPECT_EQ(rows(QStringLiteral("codabs, libecour, libelong, classe, larr, modabs, bcouleur, barc")),
              (QStringList{" R|Congé||||0|0|0", "CP|Congé||||-1|0|0", "FO|Congé|Formation|||450|-1|-1"}));
    EXPECT_EQ(row(QStringLiteral("FO")).backc, 0xc9dcf5);
    EXPECT_EQ(row(QStringLiteral("FO")).forec, 0x123c69);
}

TEST_F(CodesTest, AChangeKeepsTheCodeAndTheColoursOfACodeThatShowsNone)
{
    ASSERT_TRUE(enregistreCode(session, entered(QStringLiteral("CP"))));
    FicheCode fiche = ficheDe(row(QStringLiteral("CP")));
    fiche.bcouleur = true;
    fiche.backc = 0x112233;
    fiche.forec = 0x445566;
    ASSERT_TRUE(enregistreCode(session, fiche));
    fiche = ficheDe(row(QStringLiteral("CP")));
    EXPECT_EQ(fiche.backc, 0x112233);
    fiche.bcouleur = false;
    fiche.libecour = QStringLiteral("Payé");
    ASSERT_TRUE(enregistreCode(session, fiche));
    const CodeAbsence code = row(QStringLiteral("CP"));
    EXPECT_FALSE(code.bcouleur);
    EXPECT_EQ(code.backc, 0x112233) << "wanted: the colours stay, unread";
    EXPECT_EQ(code.libecour, QStringLiteral("Payé"));
    EXPECT_NE(ficheDe(code).backc, 0x112233);
    // Reserved letters that are in the table already can be changed.
    station.addCode(QStringLiteral("RS"), 0);
    FicheCode reserved = ficheDe(row(QStringLiteral("RS")));
    reserved.libecour = QStringLiteral("Repos");
    EXPECT_TRUE(enregistreCode(session, reserved));
    EXPECT_EQ(rows(), (QStringList{"CP", "RS"}));
}

TEST_F(CodesTest, OpensACodeOnItsValuation)
{
    struct Case {
        std::optional<int> modabs;
        Valorisation option;
        const char *value;
        bool open;
    };
    for (const Case &one : {
             Case{std::nullopt, Valorisation::HorairesPrevus, "7h00", false},
             Case{0, Valorisation::HorairesPrevus, "7h00", false},
             Case{-1, Valorisation::Jamais, "0h00", false},
             Case{455, Valorisation::ValeurFixe, "7h35", true},
         }) {
        CodeAbsence code;
        code.modabs = one.modabs;
        const FicheCode fiche = ficheDe(code);
        EXPECT_EQ(fiche.valorisation, one.option) << one.value;
        EXPECT_EQ(fiche.valeur, QLatin1String(one.value));
        EXPECT_EQ(fiche.valeurPermise(), one.open);
    }
    FicheCode fiche;
    EXPECT_EQ(fiche.valorisation, Valorisation::Aucune);
    fiche.choisit(Valorisation::Jamais);
    fiche.choisit(Valorisation::ValeurFixe);
    EXPECT_EQ(fiche.valeur, QStringLiteral("0h00")) << "the fixed value opens with the text as it stands";
}

TEST_F(CodesTest, ListsArchivedCodesBehindTheOthers)
{
    for (const char *code : {"ZZ", " B", "AA", "MM"})
        station.addCode(QLatin1String(code), 0);
    ASSERT_TRUE(session.base.engine.execute("UPDATE codabs SET barc = -1 WHERE codabs IN (' B', 'MM')").ok());
    QString shown;
    for (const CodeAbsence &code : codesDeLaListe(session))
        shown += code.codabs;
    EXPECT_EQ(shown, QStringLiteral("AAZZ BMM"));
}

TEST_F(CodesTest, DeletesOnlyACodeThatNoAbsenceHas)
{
    const QString question = QStringLiteral("Supprimer ce code absence ?");
    for (const char *code : {" R", "CP", "FO"})
        station.addCode(QLatin1String(code), 0);
    station.addAbsence(1, QStringLiteral("R"), {1999, 1, 1}, {1999, 1, 1}); // stored without its blank
    station.addAbsence(9, QStringLiteral("CP"), {2030, 1, 1}, {2030, 1, 9});
    for (const char *code : {" R", "CP"}) {
        station.host.expectQuestion(question, true);
        station.host.expectMessage(
            QStringLiteral("des absences ont été passées avec ce code! Archivez ce code absence!"));
        EXPECT_FALSE(supprimeCode(session, QLatin1String(code))) << code;
    }
    station.host.expectQuestion(question, false);
    EXPECT_FALSE(supprimeCode(session, QStringLiteral("FO")));
    EXPECT_EQ(rows().size(), 3);
    station.host.expectQuestion(question, true);
    station.host.whenAsked = [&] { EXPECT_FALSE(session.base.engine.inTransaction()); };
    EXPECT_TRUE(supprimeCode(session, QStringLiteral("FO")));
    EXPECT_EQ(rows(), (QStringList{" R", "CP"}));
    EXPECT_EQ(station.host.titles.front(), QStringLiteral("VELMORA"));
}

} // namespace
} // namespace velmora::test
