#include "month/clipboard.h"

#include "journal/recording.h"
#include "month/cursor.h"
#include "month/deletion.h"
#include "month/rows.h"
#include "month/selection.h"
#include "month/target.h"
#include "session/batch.h"
#include "session/guards.h"
#include "session/opening.h"
#include "session/values.h"

#include <algorithm>
#include <optional>

namespace velmora
{

using store::Status;

namespace
{

/// One day on its way into or out of the clipboard; nothing for a day without hours.
using Jours = std::vector<std::optional<JourSit>>;

/// Marks the length of a paste, so that the operation that it opens leaves what is held.
class Collage
{
public:
    explicit Collage(Session &session) : m_session(session) { m_session.collage = true; }
    ~Collage() { m_session.collage = false; }
    Collage(const Collage &) = delete;
    Collage &operator=(const Collage &) = delete;

private:
    Session &m_session;
};

Status ajouteCopie(Session &session, Pressepapiers &presse, const JourSit &jour)
{
    auto &sitco = session.journal.sitco;
    Status status = ajoutgarde(session, sitco);
    if (!status.ok()) return status;
    JourSit &copie = sitco.values().jour = jour;
    // What belongs to the row rather than to its hours isn't held.
    copie.sit = 0;
    copie.numv = 0;
    copie.babs = false;
    status = sitco.update();
    if (status.ok())
        presse.clipbk.back() = sitco.lastModified();
    else
        sitco.cancelUpdate();
    return status;
}

/// `jour` keeps what an earlier try has already taken out of the planning.
Status retientJour(Session &session, Pressepapiers &presse, int nump, const QDate &dat,
                   std::optional<JourSit> &jour)
{
    presse.clipbk.emplace_back();
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    const bool present = sitper.seek(store::Cmp::Eq, {nump, dat});
    if (!present && !sitper.status().ok()) return sitper.status();
    if (present) jour = sitper.row();
    if (!jour) return {};
    const Status status = ajouteCopie(session, presse, *jour);
    return status.ok() && present && presse.clipcoupe ? supprsit(session) : status;
}

Status retient(Session &session, Pressepapiers &presse, const Ligne &ligne, const QDate &debut,
               const QDate &fin, Jours &jours, int &operation)
{
    if (presse.clipcoupe) {
        ouvreop(session, operation, QStringLiteral("S"),
                QStringLiteral(" coupé: ") + ligne.nom + QLatin1Char(' ') + periodetexte(debut, fin));
    }
    presse.clipbk.clear();
    videsitco(session);
    presse.vidages = session.vidagessitco;
    QDate dat = debut;
    for (std::optional<JourSit> &jour : jours) {
        const Status status = retientJour(session, presse, ligne.nump, dat, jour);
        if (!status.ok()) return status;
        dat = dat.addDays(1);
    }
    return {};
}

QString apercu(const Jours &jours, bool totcent)
{
    QString heures;
    for (const std::optional<JourSit> &jour : jours)
        heures += (jour ? hdeci(jour->heurtrav, totcent) : QStringLiteral("0h00")) + QLatin1Char(' ');
    return QStringLiteral("Coller ") + heures;
}

/// The days held as `sitco` has them. Nothing when one of its rows is gone.
std::optional<Jours> joursTenus(Session &session, const Pressepapiers &presse)
{
    auto &sitco = session.journal.sitco;
    Jours jours;
    for (const auto &place : presse.clipbk) {
        if (!place.isEmpty() && !sitco.goTo(place)) return std::nullopt;
        jours.push_back(place.isEmpty() ? std::nullopt : std::optional(sitco.row().jour));
    }
    return jours;
}

/// Puts the hours of a held day on a row. Who the row belongs to stays.
void poseHoraire(JourSit &jour, const JourSit &source, const QDateTime &maintenant)
{
    const JourSit cible = jour;
    jour = source;
    jour.nump = cible.nump;
    jour.dat = cible.dat;
    jour.numri = cible.numri;
    jour.numi = cible.numi;
    jour.numimp = cible.numimp;
    jour.sit = cible.sit;
    jour.babs = cible.babs;
    jour.datj = maintenant;
    jour.numv = 0;
    jour.Val = true;
}

Status colleJour(Session &session, int nump, const QDate &dat, const JourSit &source)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    const bool present = sitper.seek(store::Cmp::Eq, {nump, dat});
    if (!present && !sitper.status().ok()) return sitper.status();
    const Status status = present ? editsit(session) : ajoutsit(session);
    if (!status.ok()) return status;
    JourSit &jour = sitper.values();
    if (!present) {
        jour.nump = nump;
        jour.dat = dat;
        jour.numri = source.numri;
        jour.numi = source.numi;
        jour.numimp = source.numimp;
    }
    poseHoraire(jour, source, session.host.now());
    return majsit(session);
}

Status colle(Session &session, const Jours &jours, const Ligne &ligne, const QDate &debut, int &operation)
{
    const QDate fin = debut.addDays(static_cast<qint64>(jours.size()) - 1);
    ouvreop(session, operation, QStringLiteral("S"),
            QStringLiteral(" - collé: horaires pour ") + ligne.nom + QLatin1Char(' ') +
                periodetexte(debut, fin));
    if (ligne.nump == 0) return {};
    QDate dat = debut;
    for (const std::optional<JourSit> &jour : jours) {
        if (dat >= ligne.datedeb && dat <= ligne.datefin) {
            const Status status =
                jour ? colleJour(session, ligne.nump, dat, *jour) : supprimeJour(session, ligne.nump, dat);
            if (!status.ok()) return status;
        }
        dat = dat.addDays(1);
    }
    return {};
}

} // namespace

void Pressepapiers::vide()
{
    clipbk.clear();
    clipcoupe = false;
}

Retenue retientJours(Session &session, Pressepapiers &presse, const Ligne &ligne, const QDate &debut,
                     const QDate &fin)
{
    Jours jours(static_cast<std::size_t>(debut.daysTo(fin) + 1));
    int operation = 0;
    // Days that the journal couldn't take would be held nowhere, and those of a cut lost: whole or not at
    // all.
    const bool fait = enLot(
        session, [&] { return retient(session, presse, ligne, debut, fin, jours, operation); },
        Batch::Kind::Redo);
    if (!fait) {
        presse.vide();
        return Retenue::Abandonnee;
    }
    presse.infobulle = apercu(jours, session.totcent);
    presse.clipcoupe = false;
    const bool heures =
        std::any_of(jours.begin(), jours.end(), [](const auto &jour) { return jour.has_value(); });
    return heures ? Retenue::Faite : Retenue::SansHeures;
}

bool colleJours(Session &session, Pressepapiers &presse, const Ligne &ligne, const QDate &debut)
{
    const auto jours = presse.tient(session) ? joursTenus(session, presse) : std::nullopt;
    if (!jours) {
        if (!session.journal.sitco.status().ok()) ditEchecDisque(session);
        presse.vide();
        return false;
    }
    const Collage collage(session);
    int operation = 0;
    return enLot(session, [&] { return colle(session, *jours, ligne, debut, operation); });
}

void clipcopie(Planning &planning, const std::function<void()> &montreApercu)
{
    Pressepapiers &presse = planning.pressepapiers;
    const bool coupe = presse.clipcoupe;
    const auto cible = cibleCourante(planning);
    if (!cible) {
        presse.clipcoupe = false;
        return;
    }
    presse.clipligne = cible->rangee;
    const Retenue retenue = retientJours(planning.session, presse, cible->ligne, cible->debut, cible->fin);
    if (retenue == Retenue::Abandonnee) return;
    if (montreApercu) montreApercu();
    if (retenue == Retenue::SansHeures)
        planning.session.host.message(pasDHoraire(), titre);
    else if (coupe)
        majligne(planning, cible->ligne.nump, presse.clipligne);
}

void clipcolle(Planning &planning)
{
    Pressepapiers &presse = planning.pressepapiers;
    const auto cible = cibleCourante(planning);
    if (presse.cliplong() == 0 || !cible) return;
    presse.clipligne = cible->rangee;
    const Place place = planning.curseur;
    {
        const TravailGrille travail(planning);
        colleJours(planning.session, presse, cible->ligne, planning.date(place.colonne));
        selvide(planning);
        planning.selection.seldeb = planning.selection.selfin = place.colonne;
        presse.clipcoupe = false;
    }
    planning.curseur = place;
    majligne(planning, cible->ligne.nump, presse.clipligne);
    entreCellule(planning);
}

QString pasDHoraire()
{
    return QStringLiteral("Attention: pas d'horaire pour la sélection");
}

} // namespace velmora
