#include "cli/cli_host.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

#include <unistd.h>

namespace velmora::cli
{

namespace
{

void ecrit(std::FILE *flux, const QByteArray &utf8)
{
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), flux);
}

/// What is kept of the standard output, while it is.
std::optional<QByteArray> retenu;

void rendRetenu()
{
    if (retenu) ecrit(stdout, *retenu);
    retenu.reset();
}

} // namespace

void imprime(const QString &ligne)
{
    const QByteArray utf8 = ligne.toUtf8() + '\n';
    if (retenu)
        retenu->append(utf8);
    else
        ecrit(stdout, utf8);
}

void imprimeErreur(const QString &ligne)
{
    ecrit(stderr, ligne.toUtf8() + '\n');
}

SortieRetenue::SortieRetenue()
{
    retenu.emplace();
}

SortieRetenue::~SortieRetenue()
{
    rendRetenu();
}

CliHost::CliHost(const std::optional<QDate> &aujourdhui, const std::optional<bool> &reponse)
    : m_aujourdhui(aujourdhui), m_reponse(reponse)
{
}

void CliHost::dit(const QString &texte)
{
    m_dit = true;
    imprimeErreur(texte);
}

void CliHost::message(const QString &text, const QString &)
{
    dit(text);
}

bool CliHost::question(const QString &text, const QString &)
{
    dit(text);
    const bool oui = m_reponse ? *m_reponse : isatty(STDIN_FILENO) == 1 && demande();
    if (!oui) m_refusee = true;
    return oui;
}

bool CliHost::retry(const QString &text, const QString &title, int attempt)
{
    if (m_reponse && attempt > fixedRetries) m_reponse = false;
    return question(text, title);
}

bool CliHost::demande()
{
    imprimeErreur(QStringLiteral("(o)ui / (n)on ?"));
    std::string ligne;
    std::getline(std::cin, ligne);
    return QString::fromStdString(ligne).trimmed().startsWith(QLatin1Char('o'), Qt::CaseInsensitive);
}

QDate CliHost::today() const
{
    return m_aujourdhui.value_or(QDate::currentDate());
}

QDateTime CliHost::now() const
{
    return m_aujourdhui ? QDateTime(*m_aujourdhui, QTime(8, 0)) : QDateTime::currentDateTime();
}

bool CliHost::open(const QString &target)
{
    imprime(target);
    return true;
}

void CliHost::endProcess()
{
    if (!m_dit && m_siMuette) imprimeErreur(m_siMuette());
    rendRetenu();
    std::fflush(nullptr);
    // Nothing is saved or closed on the way out: what is committed stands, the rest is dropped.
    std::_Exit(EXIT_FAILURE);
}

} // namespace velmora::cli
