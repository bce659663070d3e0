#include "folders/folder_list.h"

#include "foncgen/foncgen.h"
#include "session/batch.h"
#include "session/guards.h"

namespace velmora
{

using store::Cmp;
using store::Status;

namespace
{

constexpr int tete = 0; // `nump` of a head row

/// Deletes the rows of a folder, its head first. The name compares exactly: members under the trimmed name of
/// a head row with blanks stay. Wanted.
Status supprime(Session &session, const QString &nom)
{
    auto &groupe = session.base.groupe;
    groupe.setIndex("groupegn");
    bool trouve = groupe.seek(Cmp::Ge, {nom, tete});
    while (trouve && groupe.row().groupe == nom) {
        const Status status = supprgarde(session, groupe);
        if (!status.ok()) return status;
        trouve = groupe.next();
    }
    return groupe.status();
}

} // namespace

QStringList nomsDossiers(Session &session)
{
    QStringList noms;
    auto tetes =
        session.base.groupe.range("groupeng", {tete}, {tete}, store::Columns<Dossier>::of(&Dossier::groupe));
    while (tetes.next())
        noms << tetes.row().groupe;
    return noms;
}

bool placedossier(Session &session, const QString &nom)
{
    return placemembre(session, nom, tete);
}

bool placemembre(Session &session, const QString &nom, int nump)
{
    auto &groupe = session.base.groupe;
    groupe.setIndex("groupegn");
    return groupe.seek(Cmp::Eq, {nom, nump});
}

std::vector<Ligne> membres(Session &session, const QString &nom)
{
    std::vector<Ligne> lignes;
    auto &ligmois = session.base.ligmois;
    ligmois.setIndex("ligmois01");
    auto rangees = session.base.groupe.range("groupegn", {nom}, {nom});
    while (rangees.next())
        if (rangees.row().sel && ligmois.seek(Cmp::Eq, {rangees.row().nump})) lignes.push_back(ligmois.row());
    return lignes;
}

QString textemembre(const Ligne &ligne)
{
    return ligne.nom + QStringLiteral("  ") + Foncgen::dtoc(ligne.datedeb);
}

bool supprdossier(Session &session, const QString &nom)
{
    const QString question = QStringLiteral("Supprimer le dossier ") + nom + QStringLiteral(" ?");
    if (!session.host.question(question, QStringLiteral("VELMORA"))) return false;
    return enLot(session, [&] { return supprime(session, nom); });
}

} // namespace velmora
