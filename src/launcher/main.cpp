#include "cli/commands.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <clocale>
#include <cstring>
#include <langinfo.h>

namespace
{

/// Texts are UTF-8, also on a machine whose locale says otherwise.
void assureUtf8()
{
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return;
    const bool impose = !qgetenv("LC_ALL").isEmpty();
    qputenv(impose ? "LC_ALL" : "LC_CTYPE", "C.UTF-8");
}

QStringList motsDe(int argc, char **argv)
{
    QStringList mots;
    for (int i = 1; i < argc; ++i)
        mots << QString::fromLocal8Bit(argv[i]);
    return mots;
}

} // namespace

int main(int argc, char **argv)
{
    using namespace velmora;
    assureUtf8();
    // What the engine says of a failure is for whoever asks for it with QT_LOGGING_RULES.
    QLoggingCategory::setFilterRules(QStringLiteral("velmora.*=false"));
    const cli::LigneCommande ligne = cli::analyse(motsDe(argc, argv));
    const QCoreApplication application(argc, argv);
    return cli::execute(ligne, {});
}
