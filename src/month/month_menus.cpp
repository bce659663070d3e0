#include "month/month_menus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

namespace velmora
{

/// An entry of a menu: no caption is a separator, `sous` a submenu.
struct EntreeMenu {
    const char *nom;
    QString texte;
    QList<EntreeMenu> sous{};
};

namespace
{

QList<EntreeMenu> affichage()
{
    return {{"mnuhm", QStringLiteral("Totaux en heures minutes")},
            {"mnucent", QStringLiteral("Totaux en heures et centièmes d'h.")},
            {"mnuaff1", {}},
            {"mnuaffnorm", QStringLiteral("Affichage Normal (sans zoom)")},
            {"mnuzoom", QStringLiteral("Avec Zoom Journée")}};
}

QList<EntreeMenu> lignes()
{
    return {{"mnunewl", QStringLiteral("Nouvelle ligne")},
            {"mnuligb1", {}},
            {"mnufermlig", QStringLiteral("Fermer une ligne")},
            {"mnuligb4", {}},
            {"mnureouv", QStringLiteral("Réouvrir une ligne")},
            {"mnuligb3", {}},
            {"mnucont", QStringLiteral("Définir / Redéfinir les contrôles")},
            {"mnuligb5", {}},
            {"mnurenlig", QStringLiteral("Renommer une ligne")},
            {"mnuligb2", {}},
            {"mnusuplig", QStringLiteral("Supprimer une ligne")}};
}

QList<EntreeMenu> fonctions()
{
    return {{"mnucoupe", QStringLiteral("Couper")},
            {"mnucopier", QStringLiteral("Copier")},
            {"mnucoller", QStringLiteral("Coller")},
            {"mnuf1", {}},
            {"mnuundo", QStringLiteral("Annuler (fonction précédente)")},
            {"mnudo", QStringLiteral("Refaire (fonction annulée)")},
            {"mnuf2", {}},
            {"mnusais", QStringLiteral("Saisie d'heures")},
            {"mnuabs", QStringLiteral("Congé / Absence")},
            {"mnuf3", {}},
            {"mnusup", QStringLiteral("Supprimer (abs. /  heures saisies)   Suppr./")}};
}

/// The small letters of its last two captions are wanted.
QList<EntreeMenu> popup()
{
    return {{"maccoupe", QStringLiteral("Couper")},
            {"macab2", {}},
            {"maccopier", QStringLiteral("copier")},
            {"macb1", {}},
            {"maccolle", QStringLiteral("coller")}};
}

QList<EntreeMenu> impressions()
{
    return {{"mnuhor", QStringLiteral("Horaires Pratiqués")},
            {"mnuihp", {}},
            {"mnupi",
             QStringLiteral("Plannings lignes"),
             {{"mnupie", QStringLiteral("Planning de l'ensemble")},
              {"mnupib", {}},
              {"mnuimpi", QStringLiteral("Planning de ")}}},
            {"mnuib", {}},
            {"mnuimph", QStringLiteral("Planning Semaine")},
            {"mnuexb1", {}},
            {"mnuex", QStringLiteral("Export (excel)")}};
}

} // namespace

MenusMois::MenusMois(QWidget *parent) : QObject(parent), m_parent(parent), m_maca(new QMenu(parent))
{
    m_maca->setObjectName(QStringLiteral("maca"));
    for (const EntreeMenu &entree : popup())
        ajouteEntree(m_maca, entree);
    ajouteMenu("mnuaff", QStringLiteral("Affichage"), affichage());
    ajouteMenu("mnulig", QStringLiteral("   Lignes de planning  "), lignes());
    ajouteMenu("mnufonc", QStringLiteral("   Fonctions   "), fonctions());
    ajouteMenu("mnuimp", QStringLiteral("   Impressions  /  Export..."), impressions());
    for (const EntreeMenu &entree :
         {EntreeMenu{"mnuaid", QStringLiteral("?")}, EntreeMenu{"mnuferm", QStringLiteral("   Fermer")}}) {
        ajouteEntree(nullptr, entree);
        m_barre << this->entree(QLatin1String(entree.nom));
    }
    poseRaccourcis();
}

/// The shortcuts are the form's own too: they work whatever holds its menus.
void MenusMois::poseRaccourcis()
{
    const QHash<QString, QKeySequence> touches{
        {QStringLiteral("mnucoupe"), QKeySequence::Cut},
        {QStringLiteral("mnucopier"), QKeySequence::Copy},
        {QStringLiteral("mnucoller"), QKeySequence::Paste},
        {QStringLiteral("mnuundo"), QKeySequence::Undo},
        {QStringLiteral("mnudo"), QKeySequence(QStringLiteral("Ctrl+Y"))},
        {QStringLiteral("mnuaid"), QKeySequence::HelpContents}};
    for (auto touche = touches.begin(); touche != touches.end(); ++touche) {
        entree(touche.key())->setShortcut(touche.value());
        m_parent->addAction(entree(touche.key()));
    }
}

void MenusMois::ajouteMenu(const char *nom, const QString &titreMenu, const QList<EntreeMenu> &entrees)
{
    auto *menu = new QMenu(titreMenu, m_parent);
    for (const EntreeMenu &entree : entrees)
        ajouteEntree(menu, entree);
    menu->menuAction()->setObjectName(QLatin1String(nom));
    m_barre << menu->menuAction();
}

void MenusMois::ajouteEntree(QMenu *menu, const EntreeMenu &entree)
{
    const QString nom = QLatin1String(entree.nom);
    if (!entree.sous.isEmpty()) {
        QMenu *sous = menu->addMenu(entree.texte);
        sous->menuAction()->setObjectName(nom);
        for (const EntreeMenu &une : entree.sous)
            ajouteEntree(sous, une);
        return;
    }
    auto *action = new QAction(entree.texte, m_parent);
    action->setObjectName(nom);
    action->setSeparator(entree.texte.isEmpty());
    action->setEnabled(false);
    if (menu) menu->addAction(action);
    m_entrees.insert(nom, action);
}

void MenusMois::permet(const QString &nom, bool permise)
{
    entree(nom)->setEnabled(permise && m_liees.contains(nom));
}

void MenusMois::permetMenus(bool permis)
{
    for (QAction *menu : m_barre)
        if (menu->menu()) menu->setEnabled(permis);
    m_maca->setEnabled(permis);
    // The entries are shortcuts too. Opened again, they are as the commands stood.
    for (const QString &nom : m_liees)
        if (!m_barre.contains(entree(nom))) entree(nom)->setEnabled(permis);
    if (permis) montre(m_etat);
}

void MenusMois::montre(const EtatCommandes &etat)
{
    m_etat = etat;
    permet(QStringLiteral("mnucoupe"), etat.couper);
    permet(QStringLiteral("maccoupe"), etat.couper);
    permet(QStringLiteral("mnucopier"), etat.copier);
    permet(QStringLiteral("maccopier"), etat.copier);
    permet(QStringLiteral("mnucoller"), etat.coller);
    permet(QStringLiteral("maccolle"), etat.coller);
    permet(QStringLiteral("mnuundo"), etat.annuler);
    permet(QStringLiteral("mnudo"), etat.refaire);
    permet(QStringLiteral("mnuabs"), etat.absence);
    permet(QStringLiteral("mnusup"), etat.supprimer);
    permet(QStringLiteral("mnufermlig"), etat.fermerLigne);
    permet(QStringLiteral("mnureouv"), etat.reouvrirLigne);
    permet(QStringLiteral("mnurenlig"), etat.renommerLigne);
    entree(QStringLiteral("mnuimpi"))
        ->setText(QStringLiteral("Planning de ") +
                  QString(etat.ligneCourante).replace(QLatin1Char('&'), QStringLiteral("&&")));
}

} // namespace velmora
