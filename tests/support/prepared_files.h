#pragma once

#include "absences/absence_entry.h"
#include "absences/codes.h"
#include "absences/placing.h"
#include "calendar/parameter_sets.h"
#include "folders/composition.h"
#include "journal/recording.h"
#include "lines/lifecycle.h"
#include "support/commands.h"
#include "support/data_folder.h"

namespace velmora::test
{

/// Files of a workstation with something of everything: hours on two lines, an absence, a code, a folder, two
/// operations in force and one undone. They can be put back as they were made any number of times.
class PreparedFiles
{
public:
    PreparedFiles()
    {
        AnsweringHost host;
        Session session(host);
        start(session);
        EXPECT_TRUE(session.base.engine
                        .execute(QStringLiteral(
                            "INSERT INTO ligmois (nump, nom, datedeb, datefin) VALUES "
                            "(1, 'EMMA', '2020-01-01', '2099-01-01'), (2, 'ZOÉ', '2020-01-01', '2099-01-01');"
                            "INSERT INTO codabs (codabs, libecour) VALUES ('CP', 'Congés');"
                            "INSERT INTO parcg VALUES ('2010-01-01', 0, 0, '');"
                            "INSERT INTO groupe VALUES ('Nuit', 0, 0), ('Nuit', 1, -1);"
                            "INSERT INTO absences VALUES (1, 0, 'CP', '2026-06-22', '2026-06-24')"))
                        .ok());
        enterHours(session, 1, {2026, 6, 1}, {2026, 6, 12}, {"8h", "12h", "14h", "18h"});
        enterHours(session, 1, {2026, 6, 22}, {2026, 6, 24}, {"22h", "6h"});
        EXPECT_TRUE(valsit(session, 1, {2026, 6, 22}, {2026, 6, 24}, false).ok());
        enterHours(session, 2, {2026, 6, 8}, {2026, 6, 9}, {"9h", "17h"});
        annulop(session);
        session.base.close();
        session.journal.close();
        keep();
    }

    /// What the files hold now is what they are put back to.
    void keep()
    {
        m_contents.clear();
        for (const QString &path : paths())
            m_contents << contentAt(path);
    }

    void start(Session &session)
    {
        folder.give(session);
        session.pseudo = QStringLiteral("MARIE");
        EXPECT_TRUE(ouvrejournal(session) && ouvrebase(session));
    }
    void restore() const
    {
        int i = 0;
        for (const QString &path : paths()) {
            QFile::remove(path + QStringLiteral("-journal"));
            QFile::remove(path);
            replaceContent(path, m_contents[i++]);
        }
    }
    [[nodiscard]] QStringList paths() const { return {folder.mainFile(), folder.journalFile()}; }
    DataFolder folder;

private:
    QList<QByteArray> m_contents;
};

/// A command and how its two files are committed: an undo's planning first, of all others the journal.
struct SessionCommand {
    const char *name;
    bool planningFirst;
    void (*run)(Session &session);
    bool undone = false; ///< an undo brings back the whole planning of before
};

/// One of every kind, each of which changes something on prepared files.
inline const std::vector<SessionCommand> &everyCommand()
{
    static const std::vector<SessionCommand> commands{
        {"entry", false,
         [](Session &session) {
             enterHours(session, 1, {2026, 6, 10}, {2026, 6, 16}, {"7h", "15h"});
         },
         true},
        {"deletion of hours", false,
         [](Session &session) {
             deleteDays(session, 1, {2026, 6, 3}, {2026, 6, 5});
         },
         true},
        {"deletion of an absence", false,
         [](Session &session) {
             deleteDays(session, 1, {2026, 6, 23}, {2026, 6, 23});
         }},
        {"copy and paste", false,
         [](Session &session) {
             moveDays(session, 1, {2026, 6, 1}, {2026, 6, 4}, 2, {2026, 6, 7}, false);
         },
         true},
        {"cut", false,
         [](Session &session) {
             Pressepapiers held;
             held.clipcoupe = true;
             EXPECT_EQ(retientJours(session, held, lineOf(session, 1), {2026, 6, 9}, {2026, 6, 10}),
                       Retenue::Faite);
         },
         true},
        {"absence", false,
         [](Session &session) {
             const Ligne line = lineOf(session, 1);
             prepareAbsence(session, line.nom, 1, {2026, 6, 11}, QDate(2026, 6, 22));
             EXPECT_TRUE(
                 saisieabs(session, {session.absdebut, session.absreprise, QStringLiteral("CP Congés")}));
         }},
        {"new line", false,
         [](Session &session) {
             EXPECT_TRUE(nouvelleLigne(session, QStringLiteral("LÉA"), {2026, 1, 1}, {}).faite);
         }},
        {"closing of a line", false,
         [](Session &session) {
             EXPECT_TRUE(fermeLigne(session, lineOf(session, 1), {2026, 6, 8}).faite);
         }},
        {"deletion of a line", false,
         [](Session &session) { EXPECT_TRUE(supprimeLigne(session, lineOf(session, 1)).faite); }},
        {"folder", false,
         [](Session &session) {
             session.modeajout = false;
             session.dossiersel = QStringLiteral("Nuit");
             CompositionDossier folder(session);
             EXPECT_TRUE(folder.remplit());
             for (int i = 0; i < static_cast<int>(folder.lignes().size()); ++i)
                 folder.coche(i, folder.lignes()[static_cast<std::size_t>(i)].nump == 2);
             EXPECT_TRUE(folder.enregistre(QStringLiteral("Nuit")));
         }},
        {"new code", false,
         [](Session &session) {
             FicheCode code;
             code.codabs = QStringLiteral("ZZ");
             code.libecour = QStringLiteral("Essai");
             code.choisit(Valorisation::Jamais);
             EXPECT_TRUE(enregistreCode(session, code));
         }},
        {"new parameter set", false,
         [](Session &session) {
             session.modeajout = true;
             EXPECT_TRUE(enregistrejeu(session, {QStringLiteral("01/09/2026"), 3, QStringLiteral("Foyer")}));
         }},
        {"deletion of a parameter set", false,
         [](Session &session) {
             EXPECT_TRUE(supprjeu(session, {2010, 1, 1}));
         }},
        {"undo", true, [](Session &session) { annulop(session); }},
        {"redo", false, [](Session &session) { refaitop(session); }},
    };
    return commands;
}

} // namespace velmora::test
