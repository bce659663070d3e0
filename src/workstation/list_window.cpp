#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

namespace velmora
{

namespace
{

/// The captions are fixed and have no mnemonic: the letter is bound beside them.
void lettre(QPushButton *bouton, Qt::Key touche)
{
    bouton->setShortcut(QKeySequence(Qt::ALT | touche));
    bouton->setAutoDefault(false);
}

QLayout *disposeVolet(const FenetreListe &fenetre)
{
    QSizePolicy place = fenetre.volet->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    fenetre.volet->setSizePolicy(place);
    auto *const commandes = new QHBoxLayout;
    for (QPushButton *commande : {fenetre.ajouter, fenetre.modifier, fenetre.supprimer})
        commandes->addWidget(commande);
    auto *const colonne = new QVBoxLayout;
    colonne->addWidget(fenetre.volet, 1);
    colonne->addStretch();
    colonne->addLayout(commandes);
    return colonne;
}

} // namespace

QVBoxLayout *pageDialogue(QDialog *dialogue)
{
    auto *const page = new QVBoxLayout(dialogue);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    return page;
}

QLayout *rangeeCommandes(QDialog *dialogue, QPushButton *aide, const QList<QPushButton *> &fins)
{
    auto *const rangee = new QHBoxLayout;
    if (aide) {
        aide->setAutoDefault(false);
        aide->setToolTip(QStringLiteral("Aide"));
        aide->setAccessibleName(aide->toolTip());
        auto *const f1 = new QShortcut(QKeySequence::HelpContents, dialogue);
        QObject::connect(f1, &QShortcut::activated, aide, &QPushButton::click);
        rangee->addWidget(aide);
    }
    rangee->addStretch();
    for (QPushButton *fin : fins) {
        fin->setAutoDefault(false);
        rangee->addWidget(fin);
    }
    fins.first()->setDefault(true);
    return rangee;
}

void disposeListe(QDialog *dialogue, const FenetreListe &fenetre, QWidget *entete)
{
    lettre(fenetre.ajouter, Qt::Key_A);
    lettre(fenetre.modifier, Qt::Key_M);
    lettre(fenetre.supprimer, Qt::Key_S);
    lettre(fenetre.terminer, Qt::Key_T);
    auto *const milieu = new QHBoxLayout;
    milieu->addWidget(fenetre.liste, 1);
    milieu->addLayout(disposeVolet(fenetre));
    QVBoxLayout *const page = pageDialogue(dialogue);
    if (entete) page->addWidget(entete);
    page->addLayout(milieu, 1);
    page->addLayout(rangeeCommandes(dialogue, fenetre.aide, {fenetre.terminer}));
}

} // namespace velmora
