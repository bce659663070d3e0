#include "absences/placing.h"
#include "journal/replay.h"
#include "session/values.h"

#include "support/raw_sqlite.h"
#include "support/ring_model.h"
#include "support/workstation.h"

#include <map>
#include <random>
#include <set>

namespace velmora::test
{
namespace
{

constexpr int lines = 3;
constexpr int days = 45;
const QDate first(2026, 5, 20);

using Day = std::pair<int, QDate>;
using Codes = std::map<Day, QString>;

/// A span of absence as the file holds it.
struct Span {
    int nump = 0;
    QDate from, to;
    QString code;
    int numi = 0;
    friend bool operator==(const Span &, const Span &) = default;
};

struct Image {
    QString kind; ///< `avap` and `foncop`
    Span span;
};

/// What stands in the files: spans in the order of their index, and the days whose hours are hidden.
struct Stand {
    std::vector<Span> spans;
    std::set<Day> hidden;
};

/// Reads the files as another program does.
class Files
{
public:
    explicit Files(const Workstation &station) : m_base(station.mainFile()) {}

    Stand stand()
    {
        Stand read;
        for (const QString &row : m_base.rows(
                 "SELECT nump, datedeb, datefin, codabs, numi FROM absences ORDER BY nump, datedeb, rowid"))
            read.spans.push_back(span(row.split('|')));
        for (const QString &row : m_base.rows("SELECT nump, dat FROM sitper WHERE Val = 0"))
            read.hidden.insert(day(row.split('|')));
        return read;
    }
    /// Everything of the hours but whether they show.
    QStringList hours() { return m_base.rows("SELECT nump, dat, heurdeb, heurfin FROM sitper"); }

    static Span span(const QStringList &row)
    {
        return {row[0].toInt(), date(row[1]), date(row[2]), row[3], row[4].toInt()};
    }

private:
    static QDate date(const QString &text) { return QDate::fromString(text, Qt::ISODate); }
    static Day day(const QStringList &row) { return {row[0].toInt(), date(row[1])}; }

    RawSqlite m_base;
};

/// The images played as the journal's rules are worded, on spans in memory.
class Replay
{
public:
    Replay(Stand stand, std::set<Day> hours) : m_stand(std::move(stand)), m_hours(std::move(hours)) {}

    Stand undo(std::vector<Image> images)
    {
        std::reverse(images.begin(), images.end());
        for (const Image &image : images)
            if (image.kind[0] == 'A' || image.kind == "PA") play(image, image.kind[1] == 'A');
        return m_stand;
    }
    Stand redo(const std::vector<Image> &images)
    {
        for (const Image &image : images)
            if (image.kind[0] == 'P' || image.kind == "AD") play(image, image.kind[1] == 'D');
        return m_stand;
    }

private:
    void play(const Image &image, bool goes)
    {
        auto &spans = m_stand.spans;
        const auto found = std::find_if(spans.begin(), spans.end(), [&](const Span &one) {
            return one.nump == image.span.nump && one.from == image.span.from;
        });
        if (goes) {
            if (found == spans.end()) return;
            shows(*found, true);
            spans.erase(found);
            return;
        }
        if (found == spans.end()) {
            const auto after = std::find_if(spans.begin(), spans.end(), [&](const Span &one) {
                return std::pair(one.nump, one.from) > std::pair(image.span.nump, image.span.from);
            });
            spans.insert(after, image.span);
        } else {
            found->to = image.span.to;
            found->code = image.span.code;
        }
        shows(image.span, false);
    }
    void shows(const Span &span, bool shown)
    {
        for (QDate date = span.from; date <= span.to; date = date.addDays(1))
            if (m_hours.contains({span.nump, date}))
                shown ? void(m_stand.hidden.erase({span.nump, date}))
                      : void(m_stand.hidden.insert({span.nump, date}));
    }

    Stand m_stand;
    std::set<Day> m_hours;
};

/// The code of each day; nothing when two spans have one day.
std::optional<Codes> codesOf(const std::vector<Span> &spans)
{
    Codes codes;
    for (const Span &span : spans)
        for (QDate date = span.from; date <= span.to; date = date.addDays(1))
            if (!codes.emplace(Day(span.nump, date), span.code).second) return std::nullopt;
    return codes;
}

/// A session and, apart from it, the code of every day.
class RandomAbsences : public testing::TestWithParam<unsigned>
{
protected:
    struct Placed {
        QString span;
        Codes before, after;
        std::vector<Image> images;
        bool moved = false; ///< a span's first date was moved
    };

    std::mt19937 random{GetParam()};
    std::unique_ptr<Workstation> station;
    std::unique_ptr<Files> files;
    std::set<Day> hours;
    QStringList stored;
    Codes model;
    RingModel ring;
    std::map<int, Placed> placed; ///< by slot
    bool exact = true;            ///< the days are known: no undo has left two spans on one day

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    void begin()
    {
        station = std::make_unique<Workstation>();
        files = std::make_unique<Files>(*station);
        hours.clear();
        model.clear();
        placed.clear();
        ring = {};
        exact = true;
        for (int line = 1; line <= lines; ++line) {
            for (int i = -5; i < days + 20; ++i) {
                if (below(3) == 0) continue;
                hours.insert({line, first.addDays(i)});
                station->addDay(line, first.addDays(i), 1 + below(700), 720 + below(700));
            }
        }
        stored = files->hours();
    }

    std::vector<Image> images(int slot)
    {
        std::vector<Image> read;
        auto rows = station->session.journal.logabs.range("logabs1", {slot}, {slot});
        while (rows.next()) {
            const AbsenceSaisie &row = rows.row().absence;
            read.push_back({rows.row().rang.avap + rows.row().rang.foncop,
                            {row.nump, row.datedeb, row.datefin, row.codabs, row.numi}});
        }
        return read;
    }
    static bool moves(const std::vector<Image> &images)
    {
        for (std::size_t i = 1; i < images.size(); ++i)
            if (images[i].kind == "PE" && images[i].span.from != images[i - 1].span.from) return true;
        return false;
    }

    void place()
    {
        static const char *const codes[] = {"CA Congé", " R RTT", "MA Maladie", "FO "};
        const QString code = QString::fromUtf8(codes[below(4)]);
        const int line = 1 + below(lines);
        const QDate from = first.addDays(below(days));
        const QDate to = from.addDays(below(4) == 0 ? below(18) : below(5));
        Session &session = station->session;
        prepareAbsence(session, QStringLiteral("L%1").arg(line), line, from, to);
        Placed one{session.absnom + periodetexte(from, to), model, {}, {}};
        ASSERT_TRUE(saisieabs(session, {session.absdebut, session.absreprise, code}));
        for (QDate date = from; date <= to; date = date.addDays(1))
            model[{line, date}] = code.left(2).trimmed();
        one.after = model;
        const int slot = ring.record();
        ASSERT_EQ(session.opcour, slot);
        one.images = images(slot);
        one.moved = moves(one.images);
        placed[slot] = one;
    }
    void undo()
    {
        if (!ring.canUndo()) return;
        const Placed &one = placed[ring.inForce.front()];
        station->host.expectQuestion(QStringLiteral("invalider : absence saisie pour ") + one.span, true);
        const Stand expected = Replay(files->stand(), hours).undo(one.images);
        annulop(station->session);
        ring.undo();
        replayed(expected, one.before);
        if (one.moved) exact = false;
    }
    void redo()
    {
        if (ring.undone.empty()) return;
        const Placed &one = placed[ring.undone.back()];
        station->host.expectQuestion(QStringLiteral("revalider absence saisie pour ") + one.span, true);
        const Stand expected = Replay(files->stand(), hours).redo(one.images);
        refaitop(station->session);
        ring.redo();
        replayed(expected, one.after);
    }
    void replayed(const Stand &expected, const Codes &codes)
    {
        const Stand found = files->stand();
        ASSERT_EQ(found.spans == expected.spans, true);
        ASSERT_EQ(found.hidden == expected.hidden, true);
        model = codes;
    }

    void compare()
    {
        ASSERT_EQ(files->hours(), stored) << "an hour is lost or changed";
        if (!exact) return;
        const Stand found = files->stand();
        const auto codes = codesOf(found.spans);
        ASSERT_TRUE(codes.has_value()) << "two spans have one day";
        ASSERT_EQ(*codes == model, true) << "a day has another code";
        std::set<Day> covered;
        for (const auto &[day, code] : model)
            if (hours.contains(day)) covered.insert(day);
        ASSERT_EQ(found.hidden == covered, true) << "hours are hidden where no absence is, or show under one";
    }
};

TEST_P(RandomAbsences, SpansNeverMeetAndEachDayHasTheModelsCode)
{
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    begin();
    for (int i = 0; i < 1000 && !HasFatalFailure(); ++i) {
        place();
        compare();
    }
}

TEST_P(RandomAbsences, UndoAndRedoPlayTheImagesAsTheyAreWorded)
{
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    int inexact = 0;
    for (int round = 0; round < 15 && !HasFatalFailure(); ++round) {
        begin();
        // A model of days can't tell what is placed on spans that meet.
        for (int i = 0; i < 40 && !HasFatalFailure(); ++i) {
            const int choice = below(100);
            if (exact && choice < 55)
                place();
            else if (choice < 80)
                undo();
            else
                redo();
            compare();
        }
        inexact += !exact;
    }
    EXPECT_GT(inexact, 0) << "no undo met a moved span";
}

/// Fixed seeds, and the one of VELMORA_SEED beside them.
std::vector<unsigned> seeds()
{
    std::vector<unsigned> all{5, 2026};
    if (qEnvironmentVariableIsSet("VELMORA_SEED"))
        all.push_back(qEnvironmentVariable("VELMORA_SEED").toUInt());
    return all;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomAbsences, testing::ValuesIn(seeds()));

} // namespace
} // namespace velmora::test
