#include "folders/month_choice.h"

#include "folders/folder_list.h"

namespace velmora
{

namespace
{

constexpr int moisParAn = 12;
/// The mode of each option, in the order in which they stand.
constexpr int modes[] = {1, 0, 2};

} // namespace

EchelleMois::EchelleMois(const QDate &premier, const QDate &dernier)
    : m_an(premier.year()), m_minimum(premier.month() - 1),
      m_maximum(position({dernier.month(), dernier.year()}))
{
}

int EchelleMois::position(const MoisAn &choix) const
{
    return moisParAn * (choix.an - m_an) + choix.mois - 1;
}

MoisAn EchelleMois::mois(int position) const
{
    return {position % moisParAn + 1, m_an + position / moisParAn};
}

MoisAn moisDeDepart(const Session &session)
{
    const QDate today = session.host.today();
    return {session.choixmoisdebut == 1 ? 1 : today.month(), today.year()};
}

QString nombreAvecBlanc(int nombre)
{
    const QString texte = QString::number(nombre);
    return nombre < 0 ? texte : QLatin1Char(' ') + texte;
}

int modeDeLOption(int option)
{
    return option >= 0 && option < int(std::size(modes)) ? modes[option] : modes[0];
}

int optionDuMode(int mode)
{
    const auto *found = std::find(std::begin(modes), std::end(modes), mode);
    return found == std::end(modes) ? 0 : int(found - std::begin(modes));
}

QStringList lignesDossiers(Session &session)
{
    return QStringList{dossierGlobal} + nomsDossiers(session);
}

bool ChoixDossier::clic(QList<bool> choisies)
{
    choisies[m_selligne] = false;
    const auto derniere = choisies.lastIndexOf(true);
    if (derniere < 0) return false;
    m_selligne = int(derniere);
    return true;
}

} // namespace velmora
