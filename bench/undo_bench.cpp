#include "planted_station.h"

#include "entry/storing.h"
#include "journal/replay.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

// What the journal costs: an entry of 31 days with its images, its undo and its redo, beside a bare
// transaction that writes the same 31 rows into a file of the same kind. All wait for the disk, so the time
// is the elapsed one.
namespace velmora::bench
{
namespace
{

constexpr int jours = 31;
const QDate premier(2026, 7, 1);

/// The hours of the entry that a run makes; each run writes others.
JourSit horaire(int run)
{
    JourSit jour;
    jour.Type = 1;
    jour.Val = true;
    jour.heurdeb = 480 + run % 60;
    jour.heurfin = 1020 + run % 60;
    jour.hideb = 720;
    jour.hifin = 780;
    jour.heurtrav = jour.heurpaye = 480;
    jour.hdeb1 = jour.heurdeb;
    jour.hfin1 = jour.hideb;
    jour.hdeb2 = jour.hifin;
    jour.hfin2 = jour.heurfin;
    jour.horaire = QStringLiteral("");
    return jour;
}

/// A workstation on which an entry replaces 31 rows.
class PosteSaisi : public Poste
{
public:
    void saisit()
    {
        ecrihor(session, {premier, premier.addDays(jours - 1), 1, QStringLiteral("Agent 001"), {}, {}},
                horaire(++m_run));
    }

private:
    int m_run = 0;
};

/// The floor: the same rows replaced in one transaction on a bare connection, with the file's own settings.
class BareWriter
{
public:
    BareWriter()
    {
        sqlite3_open_v2(m_planted.file().toUtf8().constData(), &m_database,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        run("PRAGMA synchronous = FULL; PRAGMA journal_mode = TRUNCATE; PRAGMA cache_size = -16000");
        prepare(m_delete, "DELETE FROM sitper WHERE nump = 1 AND dat = ?1");
        prepare(
            m_insert,
            "INSERT INTO sitper (nump, dat, Type, Val, heurdeb, heurfin, hideb, hifin, heurtrav, heurpaye, "
            "hdeb1, hfin1, hdeb2, hfin2, horaire, datj, numri, numi, numimp, numv, sit, hideb2, hifin2, "
            "hdeb3, hfin3, hdeb4, hfin4, hdeb5, hfin5, hdeb6, hfin6, babs) "
            "VALUES (1, ?1, 1, -1, ?2, ?3, 720, 780, 480, 480, ?2, 720, 780, ?3, '', "
            "'2026-06-15T08:00:00', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)");
    }
    ~BareWriter()
    {
        sqlite3_finalize(m_delete);
        sqlite3_finalize(m_insert);
        sqlite3_close(m_database);
    }
    BareWriter(const BareWriter &) = delete;
    BareWriter &operator=(const BareWriter &) = delete;

    bool writeAll()
    {
        const JourSit jour = horaire(++m_run);
        run("BEGIN IMMEDIATE");
        for (int i = 0; i < jours; ++i)
            replaceDay(premier.addDays(i).toString(Qt::ISODate).toLatin1(), jour);
        return run("COMMIT");
    }

private:
    bool run(const char *sql)
    {
        return sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    }
    void prepare(sqlite3_stmt *&statement, const char *sql)
    {
        sqlite3_prepare_v3(m_database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    }
    void replaceDay(const QByteArray &date, const JourSit &jour)
    {
        sqlite3_bind_int(m_insert, 2, jour.heurdeb);
        sqlite3_bind_int(m_insert, 3, jour.heurfin);
        for (sqlite3_stmt *statement : {m_delete, m_insert}) {
            sqlite3_bind_text(statement, 1, date.constData(), -1, SQLITE_TRANSIENT);
            sqlite3_step(statement);
            sqlite3_reset(statement);
        }
    }

    PlantedBase m_planted{1};
    sqlite3 *m_database = nullptr;
    sqlite3_stmt *m_delete = nullptr;
    sqlite3_stmt *m_insert = nullptr;
    int m_run = 0;
};

void BM_BareWriting(benchmark::State &state)
{
    BareWriter writer;
    for (auto _ : state)
        if (!writer.writeAll()) state.SkipWithError("not written");
}
BENCHMARK(BM_BareWriting)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Entry(benchmark::State &state)
{
    PosteSaisi poste;
    for (auto _ : state)
        poste.saisit();
}
BENCHMARK(BM_Entry)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Undo(benchmark::State &state)
{
    PosteSaisi poste;
    poste.saisit();
    for (auto _ : state) {
        annulop(poste.session);
        state.PauseTiming();
        if (!poste.session.peutrefaire) state.SkipWithError("not undone");
        refaitop(poste.session);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_Undo)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Redo(benchmark::State &state)
{
    PosteSaisi poste;
    poste.saisit();
    annulop(poste.session);
    for (auto _ : state) {
        refaitop(poste.session);
        state.PauseTiming();
        if (!poste.session.peutannul) state.SkipWithError("not redone");
        annulop(poste.session);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_Redo)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace velmora::bench
