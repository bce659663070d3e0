#include "store/verification.h"

#include "journal/recording.h"
#include "session/batch.h"
#include "support/data_folder.h"
#include "support/raw_sqlite.h"
#include "support/scripted_host.h"

namespace velmora::test
{
namespace
{

using store::Constat;

/// What a check says, a remark with its mark before it.
QStringList findings(const DataFolder &folder)
{
    QStringList said;
    for (const Constat &constat : store::verifieFichiers(folder.path())) {
        const bool fault = constat.gravite == Constat::Gravite::Faute;
        said << (fault ? QString() : QStringLiteral("? ")) + constat.phrase;
    }
    return said;
}

/// A folder with two lines, a folder of them, a code and three recorded operations of one image each.
class VerificationTest : public testing::Test
{
protected:
    static void fill(const DataFolder &folder)
    {
        ScriptedHost host;
        Session session(host);
        folder.give(session);
        ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
        ASSERT_TRUE(
            session.base.engine
                .execute(QStringLiteral(
                    "INSERT INTO ligmois (nump, nom, datedeb, datefin) VALUES "
                    "(1, 'EMMA', '2020-01-01', '2099-01-01'), (2, 'ZOÉ', '2020-01-01', '2099-01-01');"
                    "INSERT INTO codabs (codabs, backc) VALUES ('CP', 16777215), (' M', 0), ('😀', 0);"
                    "INSERT INTO parcg VALUES ('2010-01-01', 0, 0, '');"
                    "INSERT INTO absences VALUES (1, 0, 'CP', '2026-06-10', '2026-06-12'), "
                    "(1, 0, 'M', '2026-06-13', '2026-06-14');"
                    "INSERT INTO ferie VALUES ('2026-07-14', '2026-07-14', '14 Juillet', 0, 1);"
                    "INSERT INTO groupe VALUES ('\u00a0Nuit ', 0, 0), ('Nuit', 1, -1), ('Nuit', 9, -1)"))
                .ok());
        for (int day = 1; day <= 3; ++day) {
            enLot(session, [&] {
                ecritop(session, QStringLiteral("S"), QStringLiteral("nouvel horaire: EMMA"));
                const store::Status begun = ajoutsit(session);
                session.base.sitper.values().nump = 1;
                session.base.sitper.values().dat = QDate(2026, 6, day);
                return begun.ok() ? majsit(session) : begun;
            });
        }
        // The deletion of an absence is an operation on hours.
        ASSERT_TRUE(session.journal.engine
                        .execute(QStringLiteral("INSERT INTO logabs VALUES (1, 2, 'A', 'D', 1, 0, 'CP', "
                                                "'2026-06-20', '2026-06-20')"))
                        .ok());
    }
};

struct Breach {
    bool inJournal;
    const char *sql;
    const char *finding; ///< how it begins, without the file's name
};

const Breach breaches[] = {
    {false, "DROP INDEX sitper02", "l'index sitper02 manque à la table sitper."},
    {false, "DROP INDEX ligmois01; CREATE INDEX ligmois01 ON ligmois (nump)",
     "l'index ligmois01 de la table"},
    {false, "DROP TABLE veloption", "la table veloption manque."},
    {false, "ALTER TABLE tnum DROP COLUMN chemin", "la colonne chemin manque à la table tnum."},
    {false, "UPDATE sitper SET Val = 1", "la colonne sitper.Val tient autre chose que les valeurs vrai"},
    {false, "UPDATE ligmois SET datefin = '2026-02-31' WHERE nump = 2", "la colonne ligmois.datefin tient"},
    {false, "DROP INDEX ligmois02; CREATE INDEX ligmois02 ON ligmois (nom) WHERE nump > 1",
     "l'index ligmois02 de la table"},
    // A check that can't be made, after a remark.
    {false,
     "UPDATE sitper SET nump = 7; ALTER TABLE absences RENAME TO autres; CREATE TABLE absences (nump "
     "INTEGER, "
     "numi INTEGER, codabs TEXT, datedeb TEXT, datefin TEXT, PRIMARY KEY (nump, datedeb)) WITHOUT ROWID; "
     "DROP INDEX abs01; CREATE INDEX abs01 ON absences (nump, datedeb); DROP TABLE autres",
     "un contrôle n'a pas pu être fait"},
    {false, "UPDATE sitper SET numi = 32768 WHERE dat = '2026-06-01'",
     "la colonne sitper.numi tient autre chose qu'un nombre entier de -32768 à 32767 "},
    {false, "UPDATE codabs SET forec = 2147483648 WHERE codabs = 'CP'",
     "la colonne codabs.forec tient autre"},
    {false, "UPDATE sitper SET numi = 'x' WHERE dat = '2026-06-01'", "la colonne sitper.numi tient autre"},
    {false, "INSERT INTO tnum (num) VALUES (1)", "la table tnum a 2 rangées"},
    {false, "DROP INDEX ligmois01; INSERT INTO ligmois SELECT * FROM ligmois WHERE nump = 1",
     "le numéro 1 est celui de 2 lignes."},
    {false, "UPDATE ligmois SET nump = 0 WHERE nump = 2", "la ligne « ZOÉ » a le numéro 0"},
    {false, "UPDATE ligmois SET nom = ' EMMA' WHERE nump = 2",
     "? les lignes 1 et 2 portent le même nom « EMMA »"},
    {false, "UPDATE sitper SET hfin3 = 1441, hdeb6 = NULL WHERE dat = '2026-06-02'",
     "la journée du 02/06/2026 de la ligne 1 a une heure"},
    {false, "UPDATE sitper SET heurpaye = -1 WHERE dat = '2026-06-02'",
     "la journée du 02/06/2026 de la ligne 1 a une heure"},
    {false, "UPDATE sitper SET nump = 7",
     "? des journées sont de la ligne 7, qui n'existe pas (nombre : 3)."},
    {false, "UPDATE absences SET datefin = '2026-06-13' WHERE codabs = 'CP'",
     "? les absences de la ligne 1 du 10/06/2026 au 13/06/2026 et du 13/06/2026 au 14/06/2026"},
    {false, "UPDATE absences SET datefin = '2026-06-12' WHERE codabs = 'M'",
     "l'absence de la ligne 1 du 13/06/2026 au 12/06/2026 finit"},
    {false, "UPDATE absences SET codabs = '%1' WHERE codabs = 'M'",
     "? l'absence de la ligne 1 du 13/06/2026 porte le code « %1 »"},
    {false, "UPDATE absences SET codabs = 'XXCP' WHERE codabs = 'CP'",
     "? l'absence de la ligne 1 du 10/06/2026 porte le code « XXCP »"},
    {false, "UPDATE absences SET codabs = NULL WHERE codabs = 'M'",
     "? l'absence de la ligne 1 du 13/06/2026 porte le code «  »"},
    {false, "UPDATE absences SET nump = 0 WHERE codabs = 'M'", "l'absence du 13/06/2026 est de la ligne 0"},
    {false, "INSERT INTO codabs (codabs) VALUES ('ABC')", "le code d'absence « ABC » n'est pas"},
    {false, "INSERT INTO codabs (codabs) VALUES ('A ')", "le code d'absence « A  » n'est pas"},
    {false, "INSERT INTO codabs (codabs) VALUES ('  ')", "le code d'absence «    » n'est pas"},
    {false, "INSERT INTO parcg (nometab) VALUES ('CLINIQUE')",
     "le jeu de paramètres de « CLINIQUE » n'a pas"},
    {false, "INSERT INTO ferie SELECT * FROM ferie", "? le 14/07/2026 est plusieurs fois un jour férié"},
    {false, "UPDATE ferie SET datefin = '2026-07-15'", "? le jour férié du 14/07/2026 finit le 15/07/2026"},
    {false, "UPDATE parcg SET fdomtom = 10", "le jeu de paramètres du 01/01/2010 nomme la région 10"},
    {false, "DELETE FROM groupe WHERE nump = 0", "le dossier « Nuit » n'a pas de rangée de tête (nombre de"},
    {false, "UPDATE groupe SET sel = 0 WHERE nump = 9",
     "le dossier « Nuit » a pour la ligne 9 une rangée qui"},
    {false, "INSERT INTO groupe VALUES ('Nuit', 0, 0)", "? 2 dossiers portent le nom « Nuit »"},
    {true, "INSERT INTO chemin VALUES (1, 2, '/')", "la table chemin a 2 rangées"},
    {true, "UPDATE chemin SET chemin = '/nulle/part/'",
     "le journal nomme le dossier /nulle/part/, où il n'y a"},
    {true, "DELETE FROM logop WHERE numop = 30", "l'anneau compte 30 rangées au lieu de 31."},
    {true, "UPDATE logop SET numop = 31 WHERE numop = 30", "l'anneau a une rangée 31."},
    {true, "UPDATE logop SET valop = -1 WHERE numop = 0", "la tête de l'anneau n'en est pas une (0 op"},
    {true, "UPDATE logop SET ordop = (SELECT ordop FROM logop WHERE numop = 30) WHERE numop = 29",
     "les rangées 29 et 30 de l'anneau ont le même âge"},
    {true, "UPDATE logop SET ordop = 5 WHERE numop = 1", "les âges des opérations en vigueur ne se suivent"},
    {true, "UPDATE logop SET ordop = 1, nivop = 27 WHERE numop = 0",
     "la tête de l'anneau compte 1 opérations"},
    {true, "UPDATE logop SET nivop = 28 WHERE numop = 0", "la tête de l'anneau compte 28 niveaux libres"},
    {true, "UPDATE sitlog SET numop = 40 WHERE numop = 1", "des images sont d'une opération 40 que l'anneau"},
    {true, "INSERT INTO logabs VALUES (1, 1, 'A', 'D', 1, 0, 'CP', '2026-06-10', '2026-06-12')",
     "l'opération 1 a plus d'une image de rang 1"},
    {true, "UPDATE sitlog SET nivop = 2 WHERE numop = 3", "? l'opération 3 a perdu des images (nombre : 1)."},
    {true, "UPDATE sitlog SET foncop = 'D' WHERE numop = 2", "l'image 1 de l'opération 2 dans sitlog n'est"},
    {true, "UPDATE logop SET ordop = 0 WHERE numop = 30", "la rangée 30 de l'anneau a l'âge 0"},
    {true, "UPDATE logop SET libop = NULL WHERE numop = 2", "l'opération 2 est en vigueur sans libellé"},
    {true, "UPDATE logop SET ficop = 'SA' WHERE numop = 2", "l'opération 2 est en vigueur sans libellé"},
    {true, "UPDATE logabs SET numop = 9, nivop = 1", "des images sont de l'opération 9, qui n'a jamais"},
    {true, "UPDATE sitlog SET foncop = 'E' WHERE numop = 2",
     "l'image 1 de l'opération 2 dans sitlog ne suit"},
    {true, "UPDATE logabs SET avap = 'P', foncop = 'E'", "l'image 2 de l'opération 1 dans logabs ne suit"},
    {true, "UPDATE logabs SET avap = 'P', foncop = 'A'", "l'image 2 de l'opération 1 est d'une absence"},
    {true, "UPDATE sitlog SET babs = -1 WHERE numop = 2", "l'image 1 de l'opération 2 a le champ babs"},
    {true, "INSERT INTO sitco (nump, dat, heurfin) VALUES (1, '2026-06-04', 1500)",
     "la journée du 04/06/2026 de la ligne 1 que tient une copie a une heure"},
    {true, "UPDATE sitlog SET heurfin = -1 WHERE numop = 2", "l'image 1 de l'opération 2 n'est pas celle"},
};

TEST_F(VerificationTest, SoundFilesGiveNoFinding)
{
    const DataFolder fresh;
    EXPECT_EQ(findings(fresh), QStringList());
    fill(fresh);
    EXPECT_EQ(findings(fresh), QStringList());
}

TEST_F(VerificationTest, EachBreachIsToldInItsSentenceAndNothingIsWritten)
{
    const DataFolder folder;
    fill(folder);
    const QByteArray sound[] = {contentAt(folder.mainFile()), contentAt(folder.journalFile())};
    for (const Breach &breach : breaches) {
        replaceContent(folder.mainFile(), sound[0]);
        replaceContent(folder.journalFile(), sound[1]);
        const QString &file = breach.inJournal ? folder.journalFile() : folder.mainFile();
        ASSERT_TRUE(RawSqlite(file).run(QString::fromUtf8(breach.sql))) << breach.sql;
        const QByteArray before = digest(folder.mainFile()) + digest(folder.journalFile());
        const QStringList said = findings(folder);
        QString expected = QString::fromUtf8(breach.finding);
        const bool remark = expected.startsWith(u'?');
        expected = (remark ? QStringLiteral("? ") : QString()) +
                   (breach.inJournal ? store::fichierJournal : store::fichierBase) + QStringLiteral(" : ") +
                   expected.mid(remark ? 2 : 0);
        const auto begins = [&](const QString &one) { return one.startsWith(expected); };
        EXPECT_TRUE(std::any_of(said.begin(), said.end(), begins)) << breach.sql << '\n'
                                                                   << said.join(u'\n').toStdString();
        EXPECT_LE(said.size(), 3) << said.join(u'\n').toStdString();
        EXPECT_EQ(digest(folder.mainFile()) + digest(folder.journalFile()), before) << breach.sql;
    }
}

TEST_F(VerificationTest, EntriesMissingFromAnIndexAreFound)
{
    const DataFolder folder;
    fill(folder);
    // The definition of an index that leaves rows out, then the one that doesn't, over the same entries.
    ASSERT_TRUE(RawSqlite(folder.mainFile())
                    .run(QStringLiteral("DROP INDEX sitper02; CREATE UNIQUE INDEX sitper02 ON sitper (dat, "
                                        "nump) WHERE dat > '2026-06-01'; PRAGMA writable_schema = ON; UPDATE "
                                        "sqlite_master SET sql = 'CREATE UNIQUE INDEX sitper02 ON sitper "
                                        "(dat, nump)' WHERE name = 'sitper02'")));
    EXPECT_TRUE(findings(folder).join(u'\n').contains(QStringLiteral("missing from index sitper02")));
}

TEST_F(VerificationTest, FileOfAnOpenSessionOrAnotherProgramIsAFinding)
{
    const DataFolder folder;
    fill(folder);
    RawSqlite(folder.mainFile()).run(QStringLiteral("PRAGMA application_id = 77"));
    ScriptedHost host;
    Session session(host);
    folder.give(session);
    ASSERT_TRUE(ouvrejournal(session));
    const QStringList said = findings(folder);
    ASSERT_EQ(said.size(), 2) << said.join(u'\n').toStdString();
    EXPECT_TRUE(
        said.first().startsWith(QStringLiteral("velmoralog.mdb : le fichier est tenu par une session")));
    EXPECT_EQ(said.last(), QStringLiteral("velmora.mdb : le fichier porte la marque d'un autre programme."));
}

} // namespace
} // namespace velmora::test
