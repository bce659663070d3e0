#include "cli/output.h"

#include "cli/cli_host.h"

namespace velmora::cli
{

namespace
{

QString surUneLigne(QString champ)
{
    champ.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    champ.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    champ.replace(QLatin1Char('\n'), QStringLiteral(" | "));
    for (QChar &c : champ)
        if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
    return champ;
}

} // namespace

void imprimeChamps(const QStringList &champs)
{
    QStringList ligne;
    for (const QString &champ : champs)
        ligne << surUneLigne(champ);
    imprime(ligne.join(QLatin1Char('\t')));
}

} // namespace velmora::cli
