#include "workstation/icons.h"

#include <algorithm>
#include <array>

/// Makes the bundled pictures known: a static library's resources are linked only when they are asked for.
/// The macro has to stand outside every namespace of the project.
static void loadBundle()
{
    Q_INIT_RESOURCE(icons);
}

namespace velmora
{

namespace
{

/// Names of the icon theme, in the order of the buttons; the bundled pictures bear the same.
constexpr std::array<const char *, nombreBoutons> noms{
    "view-calendar-month", "document-save", "document-print", "zoom-in",   "edit-cut",
    "edit-copy",           "edit-paste",    "edit-undo",      "edit-redo", "view-calendar-holiday"};

bool themeIsWhole()
{
    return std::all_of(noms.begin(), noms.end(),
                       [](const char *nom) { return QIcon::hasThemeIcon(QLatin1String(nom)); });
}

QIcon bundled(const char *nom)
{
    loadBundle();
    return QIcon(QStringLiteral(":/velmora/icons/") + QLatin1String(nom) + QStringLiteral(".svg"));
}

} // namespace

QIcon iconeBouton(Bouton bouton)
{
    const char *nom = noms[static_cast<std::size_t>(bouton)];
    return themeIsWhole() ? QIcon::fromTheme(QLatin1String(nom)) : bundled(nom);
}

QIcon iconeVelmora()
{
    return bundled("velmora");
}

} // namespace velmora
