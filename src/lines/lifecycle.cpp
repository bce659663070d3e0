#include "lines/lifecycle.h"

#include "session/batch.h"
#include "session/guards.h"

#include <functional>

namespace velmora
{

using store::Cmp;
using store::Key;
using store::Status;

namespace
{

constexpr int anneeMini = 2010;
constexpr int anneeMaxi = 2050;

QString titreQuestion()
{
    return QStringLiteral("Velmora");
}

QDate finOuverte()
{
    return Foncgen::ctod(QStringLiteral("01/01/2099"));
}

IssueLigne issue(Session &session, bool faite, std::optional<ChampLigne> champ = {})
{
    session.dlgvalide = faite;
    if (faite) champ.reset();
    return {faite, champ};
}

/// A date that can't be read has no year, which is below 2010. The words for a year after 2050 say "<" too.
/// Wanted.
bool dateCorrecte(Session &session, const QDate &date)
{
    if (date.year() >= anneeMini && date.year() <= anneeMaxi) return true;
    session.host.message(date.year() < anneeMini ? QStringLiteral("la date semble incorrecte (an<2010) !")
                                                 : QStringLiteral("la date semble incorrecte (an<2050) !"),
                         titre);
    return false;
}

/// The name as it is stored: a text without letters is an empty one and not a missing one.
QString nomStocke(const QString &texte)
{
    const QString nom = texte.trimmed();
    return nom.isNull() ? QStringLiteral("") : nom;
}

/// Whether a line of this name lasts after a date. No date stands for any line of this name, closed ones
/// too.
bool nomPris(Session &session, const QString &nom, const QDate &date = {})
{
    auto &ligmois = session.base.ligmois;
    ligmois.setIndex("ligmois02");
    bool trouve = ligmois.seek(Cmp::Ge, {nom});
    while (trouve && ligmois.current().nom.trimmed() == nom) {
        if (ligmois.current().datefin > date) return true;
        trouve = ligmois.next();
    }
    return false;
}

IssueLigne refuseNom(Session &session)
{
    session.host.message(QStringLiteral("Nom déjà attribué pour cette période !"), titre);
    return issue(session, false, ChampLigne::Nom);
}

/// Writes under a name that may not be taken. Another workstation can have given it since it was checked, so
/// it is checked again in the transaction that writes.
IssueLigne ecritSousNom(Session &session, const QString &nom, const QDate &date,
                        const std::function<Status()> &ecrit)
{
    auto &ligmois = session.base.ligmois;
    bool pris = false;
    int ecrite = 0;
    const bool faite = enLot(session, [&] {
        pris = nomPris(session, nom, date);
        // A commit that the disk reported as failed may stand all the same: the next try meets its own row.
        if (pris && ligmois.row().nump == ecrite) {
            pris = false;
            return Status{};
        }
        if (pris || !ligmois.status().ok()) return ligmois.status();
        const Status status = ecrit();
        if (status.ok()) ecrite = ligmois.lastModified().row().nump;
        return status;
    });
    return pris ? refuseNom(session) : issue(session, faite);
}

/// Adds a line under the number after the last one. The guard comes first: its wait lets other workstations
/// write.
Status ajoute(Session &session, Ligne ligne)
{
    auto &ligmois = session.base.ligmois;
    const Status commence = ajoutgarde(session, ligmois);
    if (!commence.ok()) return commence;
    ligmois.setIndex("ligmois01");
    ligne.nump = ligmois.last() ? ligmois.current().nump + 1 : 1;
    if (!ligmois.status().ok()) return ligmois.status();
    ligmois.values() = ligne;
    return ligmois.update();
}

/// Puts `ligmois` on a line. A line that another workstation has deleted is a failure.
Status place(Session &session, int nump)
{
    auto &ligmois = session.base.ligmois;
    ligmois.setIndex("ligmois01");
    const bool trouve = ligmois.seek(Cmp::Eq, {nump});
    if (trouve || !ligmois.status().ok()) return ligmois.status();
    return {Status::Code::NoRow, QStringLiteral("the line is gone")};
}

Status modifie(Session &session, int nump, const std::function<void(Ligne &)> &change)
{
    auto &ligmois = session.base.ligmois;
    const Status present = place(session, nump);
    if (!present.ok()) return present;
    const Status commence = editgarde(session, ligmois);
    if (!commence.ok()) return commence;
    change(ligmois.values());
    return ligmois.update();
}

/// Puts `sitper` on the line's first hours from a key on.
bool trouveHeures(Session &session, int nump, const Key &depuis)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    return sitper.seek(Cmp::Ge, depuis) && sitper.row().nump == nump;
}

Status retireHeures(Session &session, int nump, const Key &depuis)
{
    auto &sitper = session.base.sitper;
    bool trouve = trouveHeures(session, nump, depuis);
    while (trouve && sitper.row().nump == nump) {
        const Status retiree = supprgarde(session, sitper);
        if (!retiree.ok()) return retiree;
        trouve = sitper.next();
    }
    return sitper.status();
}

/// Deletes a line's hours from a key on and does what follows, in one transaction. Hours are deleted only
/// after the question: when another workstation enters some in between, it is asked then.
bool retireEtFait(Session &session, int nump, const Key &depuis, const QString &constat,
                  const std::function<Status()> &suite)
{
    const QString question =
        constat + QStringLiteral("\n\nElles seront supprimées !\nContinuer quand même ?");
    bool heures = trouveHeures(session, nump, depuis);
    for (;;) {
        const bool accord = heures;
        if (heures && !session.host.question(question, titreQuestion())) return false;
        const bool faite = enLot(session, [&] {
            heures = trouveHeures(session, nump, depuis);
            const Status lecture = session.base.sitper.status();
            if (!lecture.ok()) return lecture;
            if (heures && !accord) return Status{};
            const Status retirees = retireHeures(session, nump, depuis);
            return retirees.ok() ? suite() : retirees;
        });
        if (accord || !heures) return faite;
    }
}

} // namespace

IssueLigne nouvelleLigne(Session &session, const QString &texteNom, const QDate &debut,
                         const ChampsControles &champs)
{
    Ligne ligne;
    ligne.nom = nomStocke(texteNom);
    ligne.datedeb = debut;
    ligne.datefin = finOuverte();
    if (!dateCorrecte(session, debut)) return issue(session, false, ChampLigne::Date);
    if (nomPris(session, ligne.nom, debut)) return refuseNom(session);
    const IssueLigne controles = verifieControles(session, champs);
    if (!controles.faite) return issue(session, false, controles.champ);
    ecritControles(champs, ligne);
    return ecritSousNom(session, ligne.nom, debut, [&] { return ajoute(session, ligne); });
}

IssueLigne fermeLigne(Session &session, const Ligne &ligne, const QDate &date)
{
    if (!dateCorrecte(session, date)) return issue(session, false, ChampLigne::Date);
    const bool faite = retireEtFait(
        session, ligne.nump, {ligne.nump, date},
        QStringLiteral("Des heures ont été saisies après cette date!"), [&] {
            return modifie(session, ligne.nump, [&](Ligne &fermee) { fermee.datefin = date.addDays(-1); });
        });
    return issue(session, faite, ChampLigne::Date);
}

IssueLigne reouvreLigne(Session &session, const Ligne &ligne)
{
    // No blank stands before the date. Wanted.
    const QString question =
        QStringLiteral("Réouvrir la ligne fermée au") + Foncgen::dtoc(ligne.datefin) + QStringLiteral(" ?");
    if (!session.host.question(question, titreQuestion())) return issue(session, false);
    return issue(session, enLot(session, [&] {
                     return modifie(session, ligne.nump,
                                    [](Ligne &ouverte) { ouverte.datefin = finOuverte(); });
                 }));
}

IssueLigne renommeLigne(Session &session, const Ligne &ligne, const QString &texteNom)
{
    // Renaming is stricter than opening: the name of a closed line is refused, and so is the line's own.
    // Wanted.
    const QString nom = nomStocke(texteNom);
    if (nomPris(session, nom)) return refuseNom(session);
    return ecritSousNom(session, nom, {}, [&] {
        return modifie(session, ligne.nump, [&](Ligne &renommee) { renommee.nom = nom; });
    });
}

IssueLigne supprimeLigne(Session &session, const Ligne &ligne)
{
    bool retiree = false;
    const auto retire = [&] {
        const Status present = place(session, ligne.nump);
        // A commit that the disk reported as failed may stand all the same: the next try then meets no row.
        if (retiree && present.code() == Status::Code::NoRow) return Status{};
        const Status status = present.ok() ? supprgarde(session, session.base.ligmois) : present;
        retiree = status.ok();
        return status;
    };
    const bool faite = retireEtFait(session, ligne.nump, {ligne.nump},
                                    QStringLiteral("Des heures ont été saisies pour cette ligne !"), retire);
    return issue(session, faite);
}

IssueLigne redefinitControles(Session &session, const Ligne &ligne, const ChampsControles &champs)
{
    const IssueLigne controles = verifieControles(session, champs);
    if (!controles.faite) return issue(session, false, controles.champ);
    return issue(session, enLot(session, [&] {
                     return modifie(session, ligne.nump,
                                    [&](Ligne &redefinie) { ecritControles(champs, redefinie); });
                 }));
}

} // namespace velmora
