#include "lines/controls.h"

namespace velmora
{

namespace
{

// Bounds of a week that is believed, in minutes.
constexpr int semaineMini = 105;
constexpr int semaineMaxi = 3000;
constexpr int largeurHeure = 5;

/// An emptied field is the 0 that removes its control.
int minutesTapees(const QString &texte)
{
    return texte.trimmed().isEmpty() ? 0 : Foncgen::valhor(texte);
}

/// An emptied field is 0 too.
int nombreTape(const QString &texte)
{
    return texte.trimmed().toInt();
}

IssueLigne refuse(Session &session, const QString &message, ChampLigne champ)
{
    session.host.message(message, titre);
    return {false, champ};
}

IssueLigne verifieRepos(Session &session, const ChampsControles &champs)
{
    if (!champs.bcontrolr || nombreTape(champs.nrepd) * 2 <= nombreTape(champs.nrep)) return {true};
    return refuse(session, QStringLiteral("Plus de repos contigüs que de repos totaux !"), ChampLigne::Nrepd);
}

/// The week and the rest have no range that would refuse what can't be read. The rest is only asked to be
/// readable: its size isn't looked at.
IssueLigne verifieLisibles(Session &session, const ChampsControles &champs)
{
    for (const auto &[texte, champ] :
         {std::pair(champs.maxs, ChampLigne::Maxs), std::pair(champs.reposmin, ChampLigne::Reposmin)})
        if (minutesTapees(texte) == Foncgen::horsPlage)
            return refuse(session, QStringLiteral("Heure illisible : ") + texte, champ);
    return {true};
}

IssueLigne verifieSemaine(Session &session, const ChampsControles &champs)
{
    const int maxs = minutesTapees(champs.maxs);
    if (maxs == Foncgen::horsPlage) return {true};
    if ((maxs <= 0 || maxs >= semaineMini) && maxs <= semaineMaxi) return {true};
    // A week too long is said in the words of one too short. Wanted.
    const QString question = QStringLiteral("Valeur maxi semaine anormalement basse! Continuer ?");
    return {session.host.question(question, titre), ChampLigne::Maxs};
}

IssueLigne verifieJour(Session &session, const ChampsControles &champs)
{
    struct Limite {
        ChampLigne champ;
        const QString &texte;
        QString message;
    };
    // The third value is the amplitude again and not the rest, so that its message can't show and a rest of
    // more than a day is accepted. Wanted.
    const Limite limites[]{
        {ChampLigne::Maxj, champs.maxj, QStringLiteral("Travail > 24h / jour !")},
        {ChampLigne::Ampj, champs.ampj, QStringLiteral("Amplitude de travail > 24h / jour !")},
        {ChampLigne::Reposmin, champs.ampj, QStringLiteral("repos minimum > 24h / jour !")},
    };
    for (const Limite &limite : limites)
        if (minutesTapees(limite.texte) > minutesParJour)
            return refuse(session, limite.message, limite.champ);
    return {true};
}

} // namespace

ChampsControles controlesDe(const Ligne &ligne)
{
    ChampsControles champs;
    champs.bcontrolh = ligne.bcontrolh;
    champs.b6j = ligne.b6j;
    champs.bcontrolr = ligne.bcontrolr;
    champs.bcontrolp = ligne.bcontrolp;
    if (ligne.bcontrolh) {
        champs.maxs = Foncgen::fwhl(ligne.maxs, largeurHeure);
        champs.maxj = Foncgen::fwhl(ligne.maxj, largeurHeure);
        champs.ampj = Foncgen::fwhl(ligne.ampj, largeurHeure);
        champs.reposmin = Foncgen::fwhl(ligne.reposmin, largeurHeure);
    }
    if (ligne.bcontrolr) {
        champs.nrep = QString::number(ligne.nrep);
        champs.nrepd = QString::number(ligne.nrepd);
    }
    if (ligne.bcontrolp) champs.pause = QString::number(ligne.pause);
    return champs;
}

IssueLigne verifieControles(Session &session, const ChampsControles &champs)
{
    IssueLigne issue = verifieRepos(session, champs);
    if (!champs.bcontrolh) return issue;
    for (const auto verifie : {verifieSemaine, verifieJour, verifieLisibles})
        if (issue.faite) issue = verifie(session, champs);
    return issue;
}

void ecritControles(const ChampsControles &champs, Ligne &ligne)
{
    const auto minutes = [&](const QString &texte) { return champs.bcontrolh ? minutesTapees(texte) : 0; };
    const auto nombre = [](bool permis, const QString &texte) { return permis ? nombreTape(texte) : 0; };
    ligne.b6j = champs.b6j;
    ligne.bcontrolh = champs.bcontrolh;
    ligne.maxs = minutes(champs.maxs);
    ligne.maxj = minutes(champs.maxj);
    ligne.ampj = minutes(champs.ampj);
    ligne.reposmin = minutes(champs.reposmin);
    ligne.bcontrolr = champs.bcontrolr;
    ligne.nrep = nombre(champs.bcontrolr, champs.nrep);
    ligne.nrepd = nombre(champs.bcontrolr, champs.nrepd);
    ligne.bcontrolp = champs.bcontrolp;
    ligne.pause = nombre(champs.bcontrolp, champs.pause);
}

} // namespace velmora
