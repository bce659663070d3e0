#include "planted_base.h"

namespace velmora::bench
{

namespace
{

const QString plantLine =
    QStringLiteral("INSERT INTO ligmois (nump, nom, datedeb, datefin) "
                   "VALUES (?1, 'Agent ' || substr('000' || ?1, -3), '2020-01-01', '2099-01-01')");

const QString plantDays = QStringLiteral(
    "WITH RECURSIVE rangs(n) AS (SELECT 0 UNION ALL SELECT n + 1 FROM rangs WHERE n < 456), "
    "jours(n, dat) AS (SELECT n, date('2025-10-01', n || ' days') FROM rangs) "
    "INSERT INTO sitper (nump, dat, Type, Val, heurdeb, heurfin, hideb, hifin, hideb2, hifin2, heurtrav, "
    "heurpaye, hdeb1, hfin1, horaire, datj) "
    "SELECT ?1, dat, 1, CASE WHEN dat BETWEEN '2026-06-08' AND '2026-06-14' THEN 0 ELSE -1 END, "
    "480 + n % 7 * 15, 960 + n % 5 * 15, n % 2 * 720, n % 2 * 765, 0, 0, 480, 480, 480, 960, '', "
    "'2026-01-01T08:00:00' FROM jours");

const QString plantAbsence = QStringLiteral("INSERT INTO absences (nump, numi, codabs, datedeb, datefin) "
                                            "VALUES (?1, 0, 'CP', '2026-06-08', '2026-06-14')");

const QString plantCode =
    QStringLiteral("INSERT INTO codabs (codabs, libelong, modabs, bcouleur, backc, forec) "
                   "VALUES ('CP', 'Congés payés', 0, -1, 16763904, 0)");

} // namespace

PlantedBase::PlantedBase(int lines) : m_lines(lines)
{
    session.foncgen = std::make_unique<Foncgen>();
    const bool made = store::createDatabase(file(), store::FileKind::Main).ok();
    if (!made || !session.base.open(file()).ok()) std::abort();
    plant();
}

QString PlantedBase::file() const
{
    return m_folder.filePath(store::fichierBase);
}

void PlantedBase::plant()
{
    auto &engine = session.base.engine;
    if (!engine.begin(store::Engine::Transaction::Write).ok()) std::abort();
    if (!engine.execute(plantCode).ok()) std::abort();
    for (const QString &sql : {plantLine, plantDays, plantAbsence})
        forEachLine(sql);
    if (!engine.commit().ok()) std::abort();
}

void PlantedBase::forEachLine(const QString &sql)
{
    const auto statement = session.base.engine.prepare(sql);
    if (!statement) std::abort();
    for (int line = 1; line <= m_lines; ++line) {
        statement->bindInt(1, line);
        if (statement->step() != store::Statement::Step::Done) std::abort();
        statement->reset();
    }
}

} // namespace velmora::bench
