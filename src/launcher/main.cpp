#include "cli/commands.h"
#include "launcher/picture.h"
#include "launcher/window.h"
#include "workstation/look.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QTranslator>

#include <clocale>
#include <cstring>
#include <langinfo.h>

namespace
{

using namespace velmora;

// What the engine says of a failure is for whoever asks for it with QT_LOGGING_RULES.
constexpr const char *reglesJournal = "velmora.*=false";

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

bool sansEcran()
{
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

/// The desktop's own dialogs speak French too, where their translation is installed.
void parleFrancais(QApplication &application)
{
    auto *const textes = new QTranslator(&application);
    if (textes->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(textes);
}

int fenetre(const cli::LigneCommande &ligne, int argc, char **argv)
{
    if (sansEcran()) {
        return cli::refus(QStringLiteral("Pas d'écran : la fenêtre ne peut pas s'ouvrir. « velmora --aide » "
                                         "montre les commandes qui s'en passent."));
    }
    QApplication application(argc, argv);
    appliqueApparence(application);
    parleFrancais(application);
    return ouvreFenetre(ligne.poste);
}

/// A picture is drawn off screen, whatever the display.
int dessin(const cli::LigneCommande &ligne, int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The off-screen platform says what it lacks; nobody here misses it.
    QLoggingCategory::setFilterRules(QLatin1String(reglesJournal) +
                                     QStringLiteral("\ndefault.warning=false"));
    QApplication application(argc, argv);
    appliqueApparence(application);
    return cli::execute(ligne, peintMois);
}

/// Texts need no window library started, so that a command answers at once.
int texte(const cli::LigneCommande &ligne, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return cli::execute(ligne, {});
}

} // namespace

int main(int argc, char **argv)
{
    assureUtf8();
    QLoggingCategory::setFilterRules(QLatin1String(reglesJournal));
    const cli::LigneCommande ligne = cli::analyse(motsDe(argc, argv));
    if (ligne.demandeFenetre()) return fenetre(ligne, argc, argv);
    return ligne.dessine() ? dessin(ligne, argc, argv) : texte(ligne, argc, argv);
}
