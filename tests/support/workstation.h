#pragma once

#include "session/opening.h"
#include "session/velmoral.h"
#include "support/scripted_host.h"

#include <QTemporaryDir>

namespace velmora::test
{

/// A workstation on real files in a temporary folder: both databases made, opened and ready, with one user.
/// The script and the session are public for the tests to work on.
class Workstation
{
public:
    explicit Workstation(const QDate &today = QDate(2026, 6, 15),
                         std::unique_ptr<store::Engine> baseEngine = std::make_unique<store::SqliteEngine>())
        : host(today), session(host, std::move(baseEngine), std::make_unique<store::SqliteEngine>())
    {
        create();
        open();
    }

    /// Adds an open line from 1 January 2020 on.
    void addLine(int nump, const QString &nom, const QDate &from = QDate(2020, 1, 1),
                 const QDate &to = QDate(2099, 1, 1))
    {
        auto &ligmois = session.base.ligmois;
        ASSERT_TRUE(ligmois.addNew().ok());
        ligmois.values().nump = nump;
        ligmois.values().nom = nom;
        ligmois.values().datedeb = from;
        ligmois.values().datefin = to;
        ASSERT_TRUE(ligmois.update().ok());
    }

    /// Adds a valid day of hours with an optional first cut.
    void addDay(int nump, const QDate &dat, int heurdeb, int heurfin, int hideb = 0, int hifin = 0,
                bool valid = true)
    {
        auto &sitper = session.base.sitper;
        ASSERT_TRUE(sitper.addNew().ok());
        JourSit &jour = sitper.values();
        jour.nump = nump;
        jour.dat = dat;
        jour.Type = 1;
        jour.Val = valid;
        jour.heurdeb = heurdeb;
        jour.heurfin = heurfin;
        jour.hideb = hideb;
        jour.hifin = hifin;
        const bool coupe = hideb != hifin;
        jour.hdeb1 = heurdeb;
        jour.hfin1 = coupe ? hideb : heurfin;
        jour.hdeb2 = coupe ? hifin : 0;
        jour.hfin2 = coupe ? heurfin : 0;
        ASSERT_TRUE(sitper.update().ok());
    }

    void addAbsence(int nump, const QString &code, const QDate &from, const QDate &to)
    {
        auto &absences = session.base.absences;
        ASSERT_TRUE(absences.addNew().ok());
        absences.values() = {nump, 0, code, from, to};
        ASSERT_TRUE(absences.update().ok());
    }

    void addCode(const QString &code, std::optional<int> modabs,
                 const QString &label = QStringLiteral("Congé"))
    {
        auto &codabs = session.base.codabs;
        ASSERT_TRUE(codabs.addNew().ok());
        codabs.values().codabs = code;
        codabs.values().libelong = label;
        codabs.values().modabs = modabs;
        ASSERT_TRUE(codabs.update().ok());
    }

    [[nodiscard]] QString folder() const { return directory.path() + QLatin1Char('/'); }
    [[nodiscard]] QString mainFile() const { return folder() + store::fichierBase; }
    [[nodiscard]] QString journalFile() const { return folder() + store::fichierJournal; }

    QTemporaryDir directory;
    ScriptedHost host;
    Session session;

private:
    void create()
    {
        ASSERT_TRUE(store::createDatabase(mainFile(), store::FileKind::Main).ok());
        ASSERT_TRUE(store::createDatabase(journalFile(), store::FileKind::Journal).ok());
    }
    void open()
    {
        session.foncgen = std::make_unique<Foncgen>();
        session.cheminjournal = session.cheminbase = folder();
        session.datemin = datemin(host.today());
        session.datemax = datemax(host.today());
        ASSERT_TRUE(ouvrejournal(session));
        ASSERT_TRUE(ouvrebase(session));
        // A test's files needn't outlive the machine's power.
        for (store::Engine *engine : {&session.base.engine, &session.journal.engine})
            ASSERT_TRUE(engine->execute(QStringLiteral("PRAGMA synchronous = OFF")).ok());
        auto &agent = session.base.agent;
        ASSERT_TRUE(agent.addNew().ok());
        agent.values().pseudo = QStringLiteral("MARIE");
        ASSERT_TRUE(agent.update().ok());
        ASSERT_TRUE(agent.first());
    }
};

} // namespace velmora::test
