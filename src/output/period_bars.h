#pragma once

#include <QDate>

namespace velmora
{

/// The two bars that choose dates within a month: position p stands for the month's p-th day. They keep seven
/// days or more between them, both ends counted.
class BarresPeriode
{
public:
    /// `premier` and `dernier` are the first and last day of the month. The second bar starts on the last
    /// day and the first one 27 days before it, or on the first day.
    BarresPeriode(const QDate &premier, const QDate &dernier);

    static constexpr int minimum1 = 1;
    static constexpr int minimum2 = 7;
    [[nodiscard]] int maximum1() const { return m_jours - ecart; }
    [[nodiscard]] int maximum2() const { return m_jours; }

    [[nodiscard]] int vs1() const { return m_vs1; }
    [[nodiscard]] int vs2() const { return m_vs2; }
    /// Moves a bar. The second one then goes up, if need be, to six days after the first.
    void deplaceVs1(int position);
    void deplaceVs2(int position);

    [[nodiscard]] QDate premier() const { return m_premier.addDays(m_vs1 - 1); }
    [[nodiscard]] QDate dernier() const { return m_premier.addDays(m_vs2 - 1); }

private:
    static constexpr int ecart = 6;

    QDate m_premier;
    int m_jours;
    int m_vs1;
    int m_vs2;
};

} // namespace velmora
