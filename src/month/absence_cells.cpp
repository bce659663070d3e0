#include "month/absence_cells.h"

#include "month/cells.h"
#include "month/highlight.h"
#include "session/records.h"

#include <algorithm>

namespace velmora
{

namespace
{

/// Sought like the table on its index, in memory.
struct Recherche {
    const std::vector<AbsenceSaisie> &absences;

    [[nodiscard]] auto premierDes(const QDate &date) const
    {
        return std::lower_bound(absences.begin(), absences.end(), date,
                                [](const AbsenceSaisie &une, const QDate &cle) { return une.datedeb < cle; });
    }
    [[nodiscard]] const AbsenceSaisie *derniereAvant(int, const QDate &date) const
    {
        const auto suivante = premierDes(date);
        return suivante == absences.begin() ? nullptr : &*(suivante - 1);
    }
    [[nodiscard]] const AbsenceSaisie *premiereDes(int, const QDate &date) const
    {
        const auto trouvee = premierDes(date);
        return trouvee == absences.end() ? nullptr : &*trouvee;
    }
};

} // namespace

AbsencesLigne::AbsencesLigne(Session &session, int nump) : m_nump(nump)
{
    auto absences = session.base.absences.range("abs01", {nump}, {nump});
    while (absences.next())
        m_absences.push_back(absences.row());
    m_status = absences.status();
}

const AbsenceSaisie *AbsencesLigne::du(const QDate &date) const
{
    if (m_absences.empty()) return nullptr;
    return absencesur(Recherche{m_absences}, m_nump, date);
}

const CodeAbsence *CodesAbsence::cherche(const QString &code)
{
    auto connu = m_codes.find(code);
    if (connu == m_codes.end()) {
        std::optional<CodeAbsence> lu;
        if (cherchecode(m_session, code))
            lu = m_session.base.codabs.row();
        else if (m_status.ok())
            m_status = m_session.base.codabs.status();
        connu = m_codes.insert(code, lu);
    }
    return connu.value() ? &*connu.value() : nullptr;
}

int celabsence(Planning &planning, const AbsencesLigne &absences, CodesAbsence &codes, int rangee,
               int colonne, int minutes)
{
    QRgb fond = planning.colonnes.fondjour[static_cast<std::size_t>(colonne)];
    QRgb encre = palette::encre;
    int valeur = minutes;
    if (const AbsenceSaisie *absence = absences.du(planning.date(colonne))) {
        const CodeAbsence *code = codes.cherche(absence->codabs);
        planning.grille.ecrit(rangee, colonne, code ? absence->codabs : QStringLiteral("?"));
        if (code) valeur = valeurAbsence(*code, minutes);
        if (code && code->bcouleur) {
            fond = 0xff000000U | static_cast<QRgb>(code->backc);
            encre = 0xff000000U | static_cast<QRgb>(code->forec);
        }
    }
    coloreCase(planning, {rangee, colonne}, fond, encre);
    return valeur;
}

} // namespace velmora
