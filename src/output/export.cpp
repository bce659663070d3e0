#include "output/export.h"

#include "month/period.h"
#include "output/windows1252.h"
#include "output/workbook.h"
#include "session/batch.h"
#include "session/help.h"

#include <QFile>

namespace velmora
{

namespace
{

/// The work file. A failure to open it or to write on it is kept for the end.
class FichierTexte
{
public:
    explicit FichierTexte(const QString &nom) : m_fichier(nom)
    {
        m_bon = m_fichier.open(QIODevice::WriteOnly | QIODevice::Truncate);
    }

    /// Each piece has a row end of its own beside those of its rows.
    void ecrit(const QString &morceau)
    {
        const QByteArray octets = enWindows1252(morceau + QStringLiteral("\r\n"));
        m_bon = m_bon && m_fichier.write(octets) == octets.size();
    }
    [[nodiscard]] bool ferme()
    {
        m_bon = m_bon && m_fichier.flush();
        m_fichier.close();
        return m_bon;
    }

private:
    QFile m_fichier;
    bool m_bon = false;
};

BlocExport blocDeLigne(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin,
                       store::Status &lecture)
{
    static const auto lus =
        store::Columns<JourSit>::of(&JourSit::dat, &JourSit::Val, &JourSit::heurdeb, &JourSit::heurfin,
                                    &JourSit::hideb, &JourSit::hifin, &JourSit::hideb2, &JourSit::hifin2);
    BlocExport bloc{surUneCellule(ligne.nom), {}};
    bloc.jours.assign(static_cast<std::size_t>(debut.daysTo(fin)) + 1, casesDuJour(nullptr));
    auto jours = session.base.sitper.range("sitper01", {ligne.nump, debut}, {ligne.nump, fin}, lus);
    while (jours.next())
        bloc.jours[static_cast<std::size_t>(debut.daysTo(jours.row().dat))] = casesDuJour(&jours.row());
    if (lecture.ok()) lecture = jours.status();
    return bloc;
}

/// Gives the block of each line of the period, in the order of the names.
template <class Recoit>
store::Status parLigne(Session &session, const QDate &debut, const QDate &fin,
                       const std::function<void(int)> &progres, Recoit recoit)
{
    const ReadPass passe(session.base.engine);
    Periode periode;
    periode.debgrille = debut;
    periode.fingrille = fin;
    store::Status lecture;
    int lues = 0;
    auto lignes = session.base.ligmois.range("ligmois02", {}, {});
    while (lignes.next()) {
        if (dansPeriode(lignes.row(), periode))
            recoit(blocDeLigne(session, lignes.row(), debut, fin, lecture));
        if (progres) progres(++lues);
    }
    return lecture.ok() ? lignes.status() : lecture;
}

} // namespace

Exportation exporte(Session &session, const QDate &debut, const QDate &fin,
                    const std::function<void(int)> &progres)
{
    Exportation faite{session.cheminbase + fichierExport, session.cheminjournal + classeurExport,
                      texteEntete(debut, fin)};
    FichierTexte fichier(faite.fichier);
    Classeur classeur(faite.classeur, debut, fin);
    fichier.ecrit(faite.texte);
    faite.lecture = parLigne(session, debut, fin, progres, [&](const BlocExport &bloc) {
        const QString texte = texteBloc(bloc);
        fichier.ecrit(texte);
        classeur.ajouteBloc(bloc);
        faite.texte += sansFormule(texte); // it begins with the name
    });
    faite.fichierEcrit = fichier.ferme();
    faite.classeurEcrit = classeur.termine();
    return faite;
}

void remet(Session &session, const Exportation &exportation,
           const std::function<void(const QString &)> &copie)
{
    if (!exportation.classeurEcrit)
        return session.host.message(QStringLiteral("Pb EXCEL non retrouvé"), titre);
    if (lanceassocie(session, exportation.classeur)) return copie(exportation.texte);
    session.host.message(QStringLiteral("Pb lancement EXCEL ! Le résultat se trouve dans le fichier : ") +
                             exportation.fichier,
                         titre);
}

QString defautExport(const Exportation &exportation)
{
    if (!exportation.lecture.ok())
        return QStringLiteral("Le planning n'a pas pu être lu en entier : l'export est incomplet.");
    if (!exportation.fichierEcrit)
        return QStringLiteral("Le fichier %1 ne peut pas être écrit.").arg(exportation.fichier);
    if (!exportation.classeurEcrit)
        return QStringLiteral("Le fichier %1 ne peut pas être écrit.").arg(exportation.classeur);
    return {};
}

} // namespace velmora
