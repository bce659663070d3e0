#include "month/line_state.h"

#include "rules/controls.h"
#include "rules/walk.h"
#include "session/batch.h"
#include "session/records.h"

#include <utility>

namespace velmora
{

namespace
{

constexpr int largeurOuverte = 360;

QString texteOk()
{
    return QStringLiteral("Ok");
}

void ouvreColonne(Grille &grille)
{
    const int ensemble = grille.largeur(Grille::colonneNom) + grille.largeur(Grille::colonneEtat);
    grille.fixeLargeur(Grille::colonneEtat, largeurOuverte);
    grille.fixeLargeur(Grille::colonneNom, ensemble - largeurOuverte);
}

bool enteteOk(const Grille &grille)
{
    return grille.lit(0, Grille::colonneEtat).texte == texteOk();
}

} // namespace

Etat etatDe(const Controle &controle, const QDate &debut, const QDate &aujourdhui, bool enteteOk)
{
    if (controle.echec > aujourdhui || enteteOk) return {QStringLiteral("Pb"), palette::encreControle1};
    if (controle.echec >= debut) return {QStringLiteral("Pb")};
    return {texteOk(), palette::encreControle2};
}

void marqueControles(Planning &planning, const Ligne &ligne, int rangee, const SuiteJours &jours)
{
    const Periode &periode = planning.periode;
    const Controle controle = controlligne(ligne, jours, periode.debgrille, periode.fingrille);
    if (!controle.presents) return;
    Grille &grille = planning.grille;
    if (!std::exchange(planning.controlpresent, true)) ouvreColonne(grille);
    const Etat etat = etatDe(controle, periode.debgrille, planning.session.host.today(), enteteOk(grille));
    grille.colore(rangee, Grille::colonneEtat, palette::fondFixe, etat.encre);
    grille.ecrit(rangee, Grille::colonneEtat, etat.texte);
}

void refaitControles(Planning &planning, const Ligne &ligne)
{
    const int rangee = planning.grille.ligneDe(ligne.nump);
    if (rangee < 0 || !aControles(ligne)) return;
    const Periode &periode = planning.periode;
    const ReadPass lecture(planning.session.base.engine);
    const DessinSuspendu dessin(planning.grille);
    marqueControles(planning, ligne, rangee,
                    joursControles(planning.session, ligne, periode.debgrille, periode.fingrille));
    jeuaudate(planning.session, planning.session.host.today());
}

void montreRapport(Planning &planning, const Ligne &ligne)
{
    const Periode &periode = planning.periode;
    planning.suivi = false;
    if (rapportcontrole(planning.session, ligne, periode.debgrille, periode.fingrille))
        refaitControles(planning, ligne);
    planning.suivi = true;
}

} // namespace velmora
