#include "lines/control_fields.h"

#include "foncgen/field_wiring.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace velmora
{

namespace
{

/// How a text field of `champsControles` shows, in the same order.
struct Aspect {
    const char *nom;
    const char *caption;
    FieldType type;
    int longueur;
    int format;
};

constexpr std::size_t premierRepos = 4;
constexpr std::size_t rangPause = 6;

constexpr std::array<Aspect, champsControles.size()> aspects{{
    {"Text3", "Heures max / semaine", FieldType::Hour, 5, 3},
    {"Text4", "Heures max / jour", FieldType::Hour, 5, 3},
    {"Text5", "Amplitude max jour", FieldType::Hour, 5, 3},
    {"Text6", "H.Repos entre 2 horaires", FieldType::Hour, 5, 3},
    {"Text7", "Nombre de repos :", FieldType::Number, 2, 0},
    {"Text8", "Nombre de repos de 2j contigüs :", FieldType::Number, 1, 0},
    {"Text9", "Avec un minimum de ", FieldType::Number, 2, 0},
}};

QGroupBox *cadre(const char *nom, const QString &caption)
{
    return nomme(new QGroupBox(caption), nom);
}

QCheckBox *coche(const char *nom, const QString &caption, bool cochee)
{
    auto *const check = nomme(new QCheckBox(caption), nom);
    check->setChecked(cochee);
    return check;
}

} // namespace

CadreControles::CadreControles(const ChampsControles &champs, QWidget *parent) : QWidget(parent)
{
    QGroupBox *const heures = construitHeures(champs);
    QGroupBox *const repos = construitRepos(champs);
    QGroupBox *const pauses = construitPauses(champs);
    auto *const droite = new QVBoxLayout;
    droite->setSpacing(14);
    droite->addWidget(repos);
    droite->addWidget(pauses);
    droite->addStretch();
    auto *const page = new QHBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(14);
    // Tab follows the order in which the frames join the page.
    page->addWidget(heures);
    page->addLayout(droite);
    relie();
    permet();
}

QLineEdit *CadreControles::construitChamp(std::size_t rang, const ChampsControles &champs)
{
    const Aspect &aspect = aspects[rang];
    const QString valeur = champs.*champsControles[rang].texte;
    auto *const texte = nomme(new QLineEdit(valeur), aspect.nom);
    texte->setAlignment(Qt::AlignCenter);
    texte->setAccessibleName(QString::fromUtf8(aspect.caption).trimmed());
    texte->setFixedWidth(texte->fontMetrics().horizontalAdvance(QStringLiteral("00h00")) + 24);
    // A value that is longer than what is typed must not be cut by being shown.
    const int longueur = std::max(aspect.longueur, static_cast<int>(valeur.size()));
    wireField(texte, nullptr, nullptr, aspect.type, longueur, aspect.format);
    return m_textes[rang] = texte;
}

void CadreControles::ajouteRangee(QGridLayout *grille, std::size_t rang, const ChampsControles &champs)
{
    auto *const label = new QLabel(QString::fromUtf8(aspects[rang].caption));
    QLineEdit *const texte = construitChamp(rang, champs);
    label->setBuddy(texte);
    const int ligne = grille->rowCount();
    grille->addWidget(label, ligne, 0);
    grille->addWidget(texte, ligne, 1);
}

QGroupBox *CadreControles::construitHeures(const ChampsControles &champs)
{
    auto *const heures = cadre("Frame2", QStringLiteral("Contrôle des heures: en heures"));
    auto *const grille = new QGridLayout(heures);
    m_check1 = coche("Check1", QStringLiteral("Appliquer les contrôles ci-dessous"), champs.bcontrolh);
    grille->addWidget(m_check1, 0, 0, 1, 2);
    for (std::size_t rang = 0; rang < premierRepos; ++rang)
        ajouteRangee(grille, rang, champs);
    auto *const note = new QLabel(QStringLiteral("Des valeurs à 0 suppriment le contrôle."));
    QFont italique = note->font();
    italique.setItalic(true);
    note->setFont(italique);
    grille->addWidget(note, grille->rowCount(), 0, 1, 2);
    m_check3 = coche("Check3", QStringLiteral("Plus de 6 jours de travail sans repos"), champs.b6j);
    grille->addWidget(m_check3, grille->rowCount(), 0, 1, 2);
    grille->setRowStretch(grille->rowCount(), 1);
    return heures;
}

QGroupBox *CadreControles::construitRepos(const ChampsControles &champs)
{
    auto *const repos = cadre("Frame3", QStringLiteral("Repos par 2 semaines: en jours"));
    auto *const grille = new QGridLayout(repos);
    m_check2 = coche("Check2", QStringLiteral("Appliquer les contrôles ci-dessous"), champs.bcontrolr);
    grille->addWidget(m_check2, 0, 0, 1, 2);
    for (std::size_t rang = premierRepos; rang < rangPause; ++rang)
        ajouteRangee(grille, rang, champs);
    return repos;
}

QGroupBox *CadreControles::construitPauses(const ChampsControles &champs)
{
    auto *const pauses = cadre("Frame4", QStringLiteral("Pauses"));
    auto *const colonne = new QVBoxLayout(pauses);
    m_option1 = {nomme(new QRadioButton(QStringLiteral("Non contrôlées ou payées")), "Option1_0"),
                 nomme(new QRadioButton(QStringLiteral("Non payées et contrôlées")), "Option1_1")};
    for (QRadioButton *option : m_option1)
        colonne->addWidget(option);
    m_option1[champs.bcontrolp ? 1 : 0]->setChecked(true);
    auto *const minimum = new QHBoxLayout;
    auto *const label = new QLabel(QString::fromUtf8(aspects[rangPause].caption));
    QLineEdit *const texte = construitChamp(rangPause, champs);
    label->setBuddy(texte);
    minimum->addWidget(label);
    minimum->addWidget(texte);
    minimum->addWidget(new QLabel(QStringLiteral("Minutes")));
    minimum->addStretch();
    colonne->addLayout(minimum);
    return pauses;
}

void CadreControles::relie()
{
    for (QAbstractButton *bouton :
         {static_cast<QAbstractButton *>(m_check1), static_cast<QAbstractButton *>(m_check2),
          static_cast<QAbstractButton *>(m_option1[1])})
        connect(bouton, &QAbstractButton::toggled, this, &CadreControles::permet);
}

void CadreControles::enchaine(QWidget *precedent, QWidget *suivant)
{
    for (std::size_t rang = 0; rang < m_textes.size(); ++rang) {
        QWidget *const avant = rang > 0 ? m_textes[rang - 1] : precedent;
        QWidget *const apres = rang + 1 < m_textes.size() ? m_textes[rang + 1] : suivant;
        FieldWiring::of(m_textes[rang])->setPrevious([avant] { return avant; });
        FieldWiring::of(m_textes[rang])->setNext([apres] { return apres; });
    }
}

void CadreControles::permet()
{
    const ChampsControles actuels = champs();
    for (std::size_t rang = 0; rang < m_textes.size(); ++rang)
        m_textes[rang]->setEnabled(actuels.*champsControles[rang].commande);
}

ChampsControles CadreControles::champs() const
{
    ChampsControles actuels;
    actuels.bcontrolh = m_check1->isChecked();
    actuels.bcontrolr = m_check2->isChecked();
    actuels.b6j = m_check3->isChecked();
    actuels.bcontrolp = m_option1[1]->isChecked();
    for (std::size_t rang = 0; rang < m_textes.size(); ++rang)
        actuels.*champsControles[rang].texte = m_textes[rang]->text();
    return actuels;
}

QLineEdit *CadreControles::champ(ChampLigne lequel) const
{
    for (std::size_t rang = 0; rang < m_textes.size(); ++rang)
        if (champsControles[rang].champ == lequel) return m_textes[rang];
    return nullptr;
}

} // namespace velmora
