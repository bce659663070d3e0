#pragma once

#include "foncgen/foncgen.h"
#include "store/rows.h"

#include <map>

namespace velmora::test::naive
{

// The rules once more, each entry written out by itself from end to end, with no thought for speed or for
// what they share: what the system's own are compared with.

using Days = std::map<QDate, JourSit>;

struct Read {
    int hjour = 0;
    int hdebjour = 0;
    int hfinjour = 0;
};

inline Read readDay(const Days &days, const QDate &date)
{
    Read read;
    if (!days.contains(date)) return read;
    const JourSit &day = days.at(date);
    if (!day.Val) return read;
    read.hjour = day.heurtrav;
    read.hfinjour = day.heurfin;
    read.hdebjour = day.heurdeb;
    if (read.hfinjour < read.hdebjour) read.hfinjour += 1440;
    return read;
}

inline bool pausesKept(const JourSit &day, int pause)
{
    if (pause == 0) return true;
    int deb[7] = {0, day.hdeb1, day.hdeb2, day.hdeb3, day.hdeb4, day.hdeb5, day.hdeb6};
    int fin[7] = {0, day.hfin1, day.hfin2, day.hfin3, day.hfin4, day.hfin5, day.hfin6};
    const int base = deb[1];
    for (int i = 1; i <= 6; ++i) {
        if (deb[i] < base) deb[i] += 1440;
        if (fin[i] < base) fin[i] += 1440;
    }
    int c = 0;
    int t = 0;
    int l = fin[1] - deb[1];
    int w = l;
    int e = fin[1];
    for (int i = 2; i <= 7; ++i) {
        if (l > 360) return false;
        if (w > 720 && t < pause + 20) return false;
        if (w > 360 && c < pause) return false;
        if (i == 7) break;
        if (deb[i] != fin[i]) {
            if (deb[i] > e) {
                c = deb[i] - fin[i - 1];
                e = fin[i];
            } else {
                c = 0;
            }
        }
        l = fin[i] - deb[i];
        w = w + l;
        t = t + c;
    }
    return true;
}

struct Window {
    QDate first;
    int n1 = 0;
    int n2 = 0;
};

inline std::vector<Window> windows(const Days &days, const QDate &m0, const QDate &m1)
{
    std::vector<Window> all;
    int r1 = 0;
    int r2 = 0;
    bool enrepos = false;
    for (QDate w = m0; w <= m1.addDays(7); w = w.addDays(7)) {
        Window window{w};
        int s = 0;
        for (QDate d = w; d <= w.addDays(14); d = d.addDays(1)) {
            const bool rest = !days.contains(d) || !days.at(d).Val || days.at(d).heurpaye == 0;
            if (!rest && days.at(d).heurfin < days.at(d).heurdeb) s = days.at(d).heurfin;
            if (rest || enrepos) {
                r1 += rest ? 1440 - s : days.at(d).heurdeb;
                r2 += rest ? 1440 - s : days.at(d).heurdeb;
                while (r1 >= 1440) {
                    window.n1 += 1;
                    r1 -= 1440;
                }
                while (r2 >= 2880) {
                    window.n2 += 1;
                    r2 -= 2880;
                }
            }
            if (rest) {
                enrepos = true;
                s = 0;
            } else {
                r1 = 0;
                r2 = 0;
                enrepos = false;
            }
        }
        all.push_back(window);
    }
    return all;
}

/// First and last Monday, found day by day.
inline std::pair<QDate, QDate> mondays(const Ligne &line, QDate first, QDate last)
{
    if (first < line.datedeb) first = line.datedeb;
    if (last > line.datefin) last = line.datefin;
    while (first.dayOfWeek() != 1)
        first = first.addDays(1);
    while (last.dayOfWeek() != 1)
        last = last.addDays(-1);
    return {first, last};
}

struct Verdict {
    bool controls = false;
    QDate failure{1900, 1, 1};
};

inline Verdict verdict(const Ligne &line, const Days &days, const QDate &first, const QDate &last)
{
    Verdict result;
    if (!line.bcontrolh && !line.b6j && !line.bcontrolp && !line.bcontrolr) return result;
    result.controls = true;
    const auto [m0, m1] = mondays(line, first, last);
    int semheures[101] = {};
    int semrepos[101] = {};
    int k = 1;
    int row = 0;
    const Read eve = readDay(days, m0.addDays(-1));
    int finprec = eve.hjour > 0 ? eve.hfinjour : -1440;
    for (QDate d = m0; d <= m1; d = d.addDays(1)) {
        if (d.dayOfWeek() == 1 && d != m0) ++k;
        int none = 0;
        int &hours = k <= 100 ? semheures[k] : none;
        int &rests = k <= 100 ? semrepos[k] : none;
        const Read read = readDay(days, d);
        if (read.hjour > 0) {
            if (!pausesKept(days.at(d), line.pause)) result.failure = d;
            if (read.hjour > line.maxj && line.maxj > 0) result.failure = d;
            if (read.hfinjour - read.hdebjour > line.ampj && line.ampj > 0) result.failure = d;
        }
        hours += read.hjour;
        row = read.hjour > 0 ? row + 1 : 0;
        if (row > 6) result.failure = d;
        if (read.hjour > 0 && finprec > 0) {
            const int rest = read.hdebjour + 1440 - finprec;
            if (rest > 45 && rest < line.reposmin && line.reposmin > 0) rests += 1;
            finprec = read.hfinjour;
        } else if (hours > 0) {
            finprec = read.hfinjour;
        } else {
            finprec -= 1440;
        }
    }
    for (int i = 1; i <= k - 1 && i <= 100; ++i)
        if (line.maxs > 0 && semheures[i] >= line.maxs) result.failure = m0.addDays(7 * i - 1);
    for (int i = 1; i <= k - 1 && i <= 100; ++i)
        if (line.reposmin > 0 && semrepos[i] > 0) result.failure = m0.addDays(7 * i - 1);
    if (!line.bcontrolr) return result;
    for (const Window &window : windows(days, m0, m1))
        if (window.n1 < line.nrep || window.n2 < line.nrepd) result.failure = window.first;
    return result;
}

inline QString report(const Ligne &line, const Days &days, const QDate &first, const QDate &last)
{
    if (!line.bcontrolh && !line.b6j && !line.bcontrolp && !line.bcontrolr) return {};
    const auto [m0, m1] = mondays(line, first, last);
    struct Week {
        int semheures = 0;
        int semrepos = 0;
        bool sem6j = false;
        bool semjour = false;
        bool semamp = false;
        bool sempause = false;
        int semno = 0;
        int seman = 0;
    };
    std::vector<Week> weeks(502);
    std::size_t k = 1;
    weeks[1].semno = m0.addDays(2).weekNumber();
    weeks[1].seman = first.year();
    const Read eve = readDay(days, m0.addDays(-1));
    int finprec = eve.hjour > 0 ? 0 : -1440;
    int row = eve.hjour > 0 ? 1 : 0;
    for (QDate d = m0; d <= m1; d = d.addDays(1)) {
        if (d.dayOfWeek() == 1 && d != m0) {
            k = k < 501 ? k + 1 : 501;
            weeks[k] = {};
            weeks[k].semno = d.addDays(2).weekNumber();
            weeks[k].seman = d.year();
        }
        const Read read = readDay(days, d);
        if (read.hjour > 0) {
            if (!pausesKept(days.at(d), line.pause)) weeks[k].sempause = true;
            if (read.hjour > line.maxj && line.maxj > 0) weeks[k].semjour = true;
            if (read.hfinjour - read.hdebjour > line.ampj && line.ampj > 0) weeks[k].semamp = true;
        }
        weeks[k].semheures += read.hjour;
        row = read.hjour > 0 ? row + 1 : 0;
        if (row > 6) weeks[k].sem6j = true;
        if (read.hjour > 0 && finprec > 0) {
            const int rest = read.hdebjour + 1440 - finprec;
            if (rest > 45 && rest < line.reposmin && line.reposmin > 0) weeks[k].semrepos += 1;
            finprec = read.hfinjour;
        } else if (read.hjour > 0) {
            finprec = read.hfinjour;
        } else {
            finprec -= 1440;
        }
    }
    QString blocks[6];
    for (std::size_t i = 1; i < k; ++i) {
        const Week &week = weeks[i];
        const QString head = QStringLiteral(" %1 semaine :  %2 => ").arg(week.seman).arg(week.semno);
        if (week.sem6j) blocks[0] += head + "+ de 6 j de travail\n";
        if (line.maxs > 0 && week.semheures >= line.maxs)
            blocks[1] += head + Foncgen::fwhl(week.semheures, 2) + "\n";
        if (line.reposmin > 0 && week.semrepos > 0)
            blocks[2] += head + QStringLiteral(" %1\n").arg(week.semrepos);
        if (line.maxj > 0 && week.semjour) blocks[3] += head + "Journées > heures max\n";
        if (line.ampj > 0 && week.semamp) blocks[4] += head + "Amplitude journée\n";
        if (line.pause > 0 && week.sempause) blocks[5] += head + "Pauses\n";
    }
    const QString heads[6] = {"Plus de 6 jours de travail continus :\n",
                              "\nDépassement Heures Semaine (" + Foncgen::fwhl(line.maxs, 5) + "):\n",
                              "\nMinimum repos entre deux horaires dépassé (" +
                                  Foncgen::fwhl(line.reposmin, 5) + "):\n",
                              "\n Heures max / jour (" + Foncgen::fwhl(line.maxj, 5) + ") dépassées\n",
                              "\n Amplitude max / jour (" + Foncgen::fwhl(line.ampj, 5) + ") dépassée\n",
                              "\n Pauses non respectées\n"};
    QString text;
    for (int i = 0; i < 6; ++i)
        if (!blocks[i].isEmpty()) text += heads[i] + blocks[i];
    if (line.bcontrolr) {
        for (const Window &window : windows(days, m0, m1)) {
            const QString dates =
                Foncgen::dtoc(window.first) + " au " + Foncgen::dtoc(window.first.addDays(14)) + "\n";
            if (window.n1 < line.nrep) text += "\nDéfaut Repos Hebdo du " + dates;
            if (window.n2 < line.nrepd) text += "\nDéfaut Repos contigus du " + dates;
        }
    }
    return text.isEmpty() ? text : "        " + line.nom + "\n" + text;
}

} // namespace velmora::test::naive
