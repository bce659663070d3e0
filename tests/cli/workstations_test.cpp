#include "cli/program.h"

#include <QElapsedTimer>
#include <QMap>

#include <random>
#include <thread>

using namespace velmora::test;

namespace
{

constexpr int stations = 8;
constexpr int sharedLines = 4;

int setting(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

/// One workstation: a journal of its own, commands one after the other, and what they reported as done.
class Station
{
public:
    Station(const Program &program, int number)
        : m_program(program), m_number(number), m_random(static_cast<unsigned>(1000 + number))
    {
    }

    [[nodiscard]] QString journal() const { return m_program.path(QStringLiteral("poste%1").arg(m_number)); }
    Outcome run(const QStringList &words) const
    {
        return m_program.run(words, {"--journal", journal(), "--base", m_program.path(QStringLiteral("base")),
                                     "--pseudo", "MARIE", "--aujourdhui", "15/06/2026", "--oui"});
    }
    void work(int seconds)
    {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < seconds * 1000)
            command();
    }
    /// Compares what was reported as done with the base.
    void expectKept() const
    {
        const QString base = m_program.path(QStringLiteral("base/velmora.mdb"));
        for (auto entry = m_hours.cbegin(); entry != m_hours.cend(); ++entry) {
            const QString where = QStringLiteral("nump = %1 AND dat = '%2'")
                                      .arg(entry.key().first)
                                      .arg(entry.key().second.toString(Qt::ISODate));
            EXPECT_EQ(query(base, "SELECT heurdeb FROM sitper WHERE " + where).join(u','), entry.value())
                << where.toStdString();
        }
        for (auto day = m_absences.cbegin(); day != m_absences.cend(); ++day) {
            const QString where = QStringLiteral("nump = %1 AND codabs = 'CP' AND '%2' BETWEEN datedeb AND "
                                                 "datefin")
                                      .arg(day.key().first)
                                      .arg(day.key().second.toString(Qt::ISODate));
            EXPECT_EQ(queryOne(base, "SELECT count(*) FROM absences WHERE " + where), QStringLiteral("1"))
                << where.toStdString();
        }
        for (auto line = m_lines.cbegin(); line != m_lines.cend(); ++line)
            EXPECT_EQ(
                queryOne(base, QStringLiteral("SELECT nom FROM ligmois WHERE nump = %1").arg(line.key())),
                line.value());
        for (auto folder = m_folders.cbegin(); folder != m_folders.cend(); ++folder) {
            EXPECT_EQ(query(base, QStringLiteral("SELECT nump FROM groupe WHERE groupe = '%1' ORDER BY nump")
                                      .arg(folder.key()))
                          .join(u' '),
                      folder.value());
        }
    }

    int done = 0;
    int refused = 0;
    qint64 longest = 0;    ///< milliseconds that a command took
    QStringList blocked{}; ///< what was said of a lock or of the disk

private:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(m_random); }

    bool reported(const QStringList &words, QString *out = nullptr)
    {
        QElapsedTimer clock;
        clock.start();
        const Outcome run = this->run(words);
        longest = std::max(longest, clock.elapsed());
        if (run.err.contains(u"Bloquage") || run.err.contains(u"Problème accès") || run.status > 1)
            blocked << words.join(u' ') + QStringLiteral(": ") + run.err;
        if (out) *out = run.out.trimmed();
        ++(run.status == 0 ? done : refused);
        return run.status == 0;
    }
    int ownLine() { return m_lines.keys().at(below(static_cast<int>(m_lines.size()))); }
    static QString text(const QDate &date) { return date.toString(QStringLiteral("dd/MM/yyyy")); }

    void command()
    {
        switch (below(8)) {
        case 0:
        case 1:
        case 2: return enter();
        case 3: return takeBack();
        case 4: return absence();
        case 5: return line();
        case 6: return folder();
        default: return sharedFolder();
        }
    }
    /// Hours on a line of all, on a date that only this workstation writes.
    void enter()
    {
        const int nump = 1 + below(sharedLines);
        const QDate date = QDate(2026, 1, 1).addDays(stations * below(20) + m_number);
        const int hour = 5 + below(10);
        const QString slice = QStringLiteral("%1h-%2h").arg(hour).arg(hour + 7);
        if (!reported({"saisie", QString::number(nump), text(date), slice})) return;
        m_last = {nump, date};
        m_before = m_hours.value(m_last);
        m_hours[m_last] = QString::number(hour * 60);
    }
    /// Takes the entry back, if it was the last command that the journal recorded.
    void takeBack()
    {
        if (m_last.first == 0 || !reported({"annuler"})) return;
        m_hours[m_last] = m_before;
        m_last = {};
    }
    void absence()
    {
        if (m_lines.isEmpty()) return line();
        const int nump = ownLine();
        const QDate from = QDate(2026, 5, 1).addDays(below(40));
        const QDate back = from.addDays(1 + below(6));
        if (!reported({"absence", QString::number(nump), text(from), text(back), "CP"})) return;
        m_last = {};
        for (QDate day = from; day < back; day = day.addDays(1))
            m_absences[{nump, day}] = true;
    }
    void line()
    {
        const QString name = QStringLiteral("L%1-%2").arg(m_number).arg(++m_named);
        QString nump;
        if (m_lines.isEmpty() || below(3) == 0) {
            if (reported({"ligne", "nouvelle", name, "01/01/2026"}, &nump)) m_lines[nump.toInt()] = name;
            return;
        }
        const int own = ownLine();
        if (reported({"ligne", "renommer", QString::number(own), name})) m_lines[own] = name;
    }
    void folder()
    {
        const QString name = QStringLiteral("D%1-%2").arg(m_number).arg(below(3));
        if (!m_folders.value(name).isEmpty() && below(3) == 0) {
            if (reported({"dossier", "supprimer", name})) m_folders[name] = QString();
            return;
        }
        const QString nump = QString::number(1 + below(sharedLines));
        const char *how = m_folders.value(name).isEmpty() ? "ajouter" : "modifier";
        if (reported({"dossier", how, name, nump})) m_folders[name] = QStringLiteral("0 ") + nump;
    }
    /// A folder that all change: it only has to stay a folder.
    void sharedFolder()
    {
        const QString nump = QString::number(1 + below(sharedLines));
        const QStringList ways[] = {{"dossier", "ajouter", "COMMUN", nump},
                                    {"dossier", "modifier", "COMMUN", nump},
                                    {"dossier", "supprimer", "COMMUN"}};
        reported(ways[below(3)]);
    }

    const Program &m_program;
    int m_number;
    std::mt19937 m_random;
    int m_named = 0;
    std::pair<int, QDate> m_last; ///< the entry that an undo would take back
    QString m_before;             ///< what it replaced
    QMap<std::pair<int, QDate>, QString> m_hours;
    QMap<std::pair<int, QDate>, bool> m_absences;
    QMap<int, QString> m_lines;
    QMap<QString, QString> m_folders;
};

} // namespace

// VELMORA_SECONDS sets for how long.
TEST(Workstations, EightOnOneBaseLoseNothingAndNeverBlockEachOther)
{
    const Program program;
    std::vector<Station> all;
    for (int number = 0; number < stations; ++number) {
        all.emplace_back(program, number);
        ASSERT_EQ(all.back().run({"init", "--utilisateur", "MARIE:Marie"}).status, 0);
    }
    for (int nump = 1; nump <= sharedLines; ++nump)
        ASSERT_EQ(
            all[0].run({"ligne", "nouvelle", QStringLiteral("COMMUNE %1").arg(nump), "01/01/2020"}).status,
            0);
    ASSERT_EQ(all[0].run({"code", "ajouter", "CP", "Congés"}).status, 0);

    std::vector<std::thread> threads;
    for (Station &station : all)
        threads.emplace_back([&station] { station.work(setting("VELMORA_SECONDS", 4)); });
    for (std::thread &thread : threads)
        thread.join();

    int done = 0;
    int refused = 0;
    qint64 longest = 0;
    for (const Station &station : all) {
        EXPECT_EQ(station.blocked, QStringList()) << station.blocked.join(u'\n').toStdString();
        station.expectKept();
        const Outcome check = station.run({"verifie"});
        EXPECT_EQ(check.status, 0) << check.out.toStdString();
        done += station.done;
        refused += station.refused;
        longest = std::max(longest, station.longest);
    }
    EXPECT_GT(done, stations);
    std::printf("%d commands done, %d refused, the longest %lld ms\n", done, refused,
                static_cast<long long>(longest));
}
