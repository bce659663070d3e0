#include "cli/arguments.h"

#include <algorithm>

namespace velmora::cli
{

Arguments::Arguments(const QStringList &ligne, const std::vector<Option> &connues)
{
    lit(ligne, connues);
}

QString Arguments::valeur(const char *option, const QString &sinon) const
{
    const QStringList donnees = valeurs(option);
    return donnees.isEmpty() ? sinon : donnees.last();
}

QStringList Arguments::valeurs(const char *option) const
{
    return m_valeurs.value(QLatin1String(option));
}

void Arguments::refuse(const QString &erreur)
{
    if (m_erreur.isEmpty()) m_erreur = erreur;
}

void Arguments::lit(const QStringList &ligne, const std::vector<Option> &connues)
{
    bool motsSeuls = false;
    for (qsizetype i = 0; i < ligne.size(); ++i) {
        if (!motsSeuls && ligne[i] == QStringLiteral("--"))
            motsSeuls = true;
        else if (!motsSeuls && ligne[i].startsWith(QStringLiteral("--")))
            litOption(ligne[i].mid(2), ligne, i, connues);
        else
            m_mots << ligne[i];
    }
}

void Arguments::litOption(const QString &texte, const QStringList &ligne, qsizetype &i,
                          const std::vector<Option> &connues)
{
    const QString nom = texte.section(QLatin1Char('='), 0, 0);
    const bool colle = texte.size() > nom.size();
    const auto option = std::find_if(connues.begin(), connues.end(),
                                     [&](const Option &connue) { return nom == QLatin1String(connue.nom); });
    if (option == connues.end()) return refuse(QStringLiteral("option inconnue : --%1").arg(nom));
    if (!option->valeur && colle)
        return refuse(QStringLiteral("l'option --%1 ne prend pas de valeur").arg(nom));
    if (m_valeurs.contains(nom) && !option->repetee)
        return refuse(QStringLiteral("l'option --%1 est donnée deux fois").arg(nom));
    QStringList valeurs;
    if (colle) valeurs << texte.mid(nom.size() + 1);
    const qsizetype attendues = option->valeur ? option->nombre : 0;
    while (valeurs.size() < attendues && i + 1 < ligne.size())
        valeurs << ligne[++i];
    if (valeurs.size() < attendues)
        return refuse(
            QStringLiteral("l'option --%1 attend une valeur : %2").arg(nom, QLatin1String(option->valeur)));
    m_valeurs[nom] << valeurs;
}

std::optional<int> entier(const QString &texte, int mini, int maxi)
{
    const bool chiffres = !texte.isEmpty() && std::all_of(texte.begin(), texte.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    bool lu = false;
    const int valeur = texte.toInt(&lu);
    if (!chiffres || !lu || valeur < mini || valeur > maxi) return std::nullopt;
    return valeur;
}

} // namespace velmora::cli
