#include "session/velmoral.h"

#include "session/opening.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

#include <cmath>

namespace velmora
{

namespace
{

constexpr int demiFenetre = 365;
// The window is found by steps of 28 days, which can't jump over a month.
constexpr int pas = 28;
constexpr int mesParDefaut = 2;

store::Status objetRequis()
{
    return {store::Status::Code::Misuse, QStringLiteral("objet requis")};
}

} // namespace

QDate datemin(const QDate &today)
{
    QDate date = today.addDays(-demiFenetre);
    while (date.month() > 1)
        date = date.addDays(-pas);
    return {date.year(), date.month(), 1};
}

QDate datemax(const QDate &today)
{
    QDate date = today.addDays(demiFenetre);
    while (date.month() < 12)
        date = date.addDays(pas);
    while (date.day() < 31)
        date = date.addDays(1);
    return date;
}

int valeurMes(const QString &mes)
{
    if (mes.isNull()) return mesParDefaut;
    static const QRegularExpression nombre(
        QStringLiteral("^\\s*[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][+-]?[0-9]+)?"));
    const double valeur = nombre.match(mes).captured().trimmed().toDouble();
    constexpr double tour = 65536;
    return static_cast<qint16>(static_cast<int>(std::isfinite(valeur) ? std::fmod(valeur, tour) : 0));
}

bool identifie(Session &session)
{
    auto &agent = session.base.agent;
    if (session.pseudo == pseudoIntegre) return true;
    bool trouve = agent.first();
    while (trouve && agent.row().pseudo != session.pseudo)
        trouve = agent.next();
    if (!trouve) {
        session.echecBase = agent.status();
        return false;
    }
    session.nomUtilisateur = agent.row().nom;
    session.droitUtilisateur = static_cast<qint16>(agent.row().droit);
    session.mesUtilisateur = valeurMes(agent.row().mes);
    return true;
}

Velmoral::Velmoral(Host &host, Demarrage demarrage, std::function<void(Session &)> montre)
    : m_session(host), m_demarrage(demarrage), m_montre(std::move(montre))
{
}

void Velmoral::ini(const QString &pseudo, const QString &premierChemin, const QString &secondChemin)
{
    m_session.pseudo = pseudo;
    m_session.cheminjournal = dossierAbsolu(premierChemin);
    m_session.cheminbase = dossierAbsolu(secondChemin);
    demarre();
}

void Velmoral::demarre()
{
    m_session.foncgen = std::make_unique<Foncgen>();
    if (m_demarrage == Demarrage::Seul) {
        m_session.cheminjournal = m_session.cheminbase = dossierIntegre();
        m_session.pseudo = pseudoIntegre;
    }
    m_session.datemin = datemin(m_session.host.today());
    m_session.datemax = datemax(m_session.host.today());
    m_session.totcent = false;
    m_session.modecellule = 1;
    m_session.dossiervue.clear();
    m_session.moisouvert = false;
    if (!ouvrejournal(m_session)) m_session.host.endProcess();
    if (!ouvrebase(m_session)) m_session.host.endProcess();
    if (!identifie(m_session)) {
        // A table that can't be read to its end isn't a user who isn't there.
        if (!m_session.echecBase.ok()) m_session.host.endProcess();
        m_session.host.message(QStringLiteral("Mot de passe non accepté :"), titre);
        return;
    }
    QCoreApplication::processEvents();
    m_demarree = true;
    m_montre(m_session);
}

store::Status Velmoral::charg() const
{
    return objetRequis();
}

store::Status Velmoral::decharg() const
{
    return objetRequis();
}

QString dossierIntegre()
{
    return avecSeparateur(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                          QStringLiteral("/velmora"));
}

QString dossierAbsolu(const QString &dossier)
{
    if (dossier.isEmpty()) return dossier;
    return avecSeparateur(QDir::cleanPath(QDir::current().absoluteFilePath(dossier)));
}

QString avecSeparateur(const QString &dossier)
{
    if (dossier.isEmpty() || dossier.endsWith(QLatin1Char('/'))) return dossier;
    return dossier + QLatin1Char('/');
}

} // namespace velmora
