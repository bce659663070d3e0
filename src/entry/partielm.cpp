#include "entry/partielm.h"

#include "entry/typed_entry.h"

#include "entry/derivation.h"
#include "entry/hour_bar_view.h"
#include "foncgen/field_wiring.h"
#include "session/help.h"
#include "workstation/controls.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto attenteJourExistant = 300ms;
constexpr auto attenteJourNouveau = 5ms;
constexpr auto attenteTouches = 3000ms;

constexpr QColor couleurHeures(0xc6, 0xe0, 0xf5);
constexpr QColor couleurEchelle(0x3d, 0x4f, 0x60);
constexpr QColor couleurFermee(0xe3, 0xe5, 0xe8);
constexpr QColor couleurTexte(0x1b, 0x27, 0x33);
constexpr QColor couleurTexteFerme(0x8a, 0x93, 0x9c);

constexpr int longueurHeure = 5;
constexpr int formatHeure = 3; // the place of the "h"
constexpr int longueurTexte = 50;

void colore(QWidget *widget, const QColor &fond)
{
    QPalette palette = widget->palette();
    if (palette.color(QPalette::Base) == fond) return;
    palette.setColor(QPalette::Base, fond);
    palette.setColor(QPalette::Text, couleurTexte);
    palette.setColor(QPalette::Disabled, QPalette::Text, couleurTexteFerme);
    widget->setPalette(palette);
}

QColor fondDe(const QWidget *widget)
{
    return widget->palette().color(QPalette::Base);
}

} // namespace

Partielm::Partielm(Session &session, Ecrihor ecrihor, QWidget *parent)
    : QDialog(parent), m_session(session), m_ecrihor(std::move(ecrihor)), m_journee(journeeSaisie(session))
{
    setObjectName(QStringLiteral("Partielm"));
    construit();
    dispose();
    relie();
    montre();
    m_timer1.start(m_journee.existe() ? attenteJourExistant : attenteJourNouveau);
}

Partielm::~Partielm()
{
    hide(); // the focus leaves its field while what the field's events use is still there
}

void Partielm::construit()
{
    setWindowTitle(QStringLiteral("Heures - Horaire"));
    m_label2 = etiquette(this, "Label2", m_journee.titre);
    m_label1 = etiquette(this, "Label1", m_journee.nom);
    m_label5 = etiquette(this, "Label5", QStringLiteral("de                        à"));
    m_label6 = etiquette(this, "Label6", QStringLiteral("et"));
    m_label9 = etiquette(this, "Label9", QStringLiteral("et"));
    m_labtot = etiquette(this, "Labtot", QStringLiteral("Soit"));
    m_labpr = etiquette(this, "Labpr", QStringLiteral("Heures"));
    construitChamps();
    couleursDeReference();
    m_frame4 = nomme(new QGroupBox(QStringLiteral("Horaire"), this), "Frame4");
    m_picha = nomme(new HourBarView(fondDe(m_textcom), fondDe(m_textref), m_frame4), "Picha");
    m_picha->setAccessibleName(QStringLiteral("Horaire"));
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command3 = bouton(this, "Command3", QStringLiteral("?"));
    // A click leaves the focus in its field: an hour that OK refuses is said, and put back where it stands.
    for (QPushButton *commande : {m_command1, m_command2, m_command3})
        commande->setFocusPolicy(Qt::TabFocus);
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
    nomme(&m_timer2, "Timer2")->setSingleShot(true);
}

void Partielm::construitChamps()
{
    static constexpr const char *noms[]{"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"};
    for (int numero = 1; numero <= SaisieHoraire::nbChamps; ++numero) {
        auto *const texte = nomme(new QLineEdit(this), noms[numero - 1]);
        texte->setAlignment(Qt::AlignCenter);
        texte->setAccessibleName((numero % 2 == 1 ? QStringLiteral("Début de la tranche %1")
                                                  : QStringLiteral("Fin de la tranche %1"))
                                     .arg((numero + 1) / 2));
        m_champs[static_cast<std::size_t>(numero - 1)] = texte;
    }
    m_totext = nomme(new QLineEdit(this), "Totext");
    m_totext->setReadOnly(true);
    m_totext->setAlignment(Qt::AlignCenter);
    m_totext->setFocusPolicy(Qt::ClickFocus);
    m_totext->setAccessibleName(QStringLiteral("Total du jour"));
}

void Partielm::couleursDeReference()
{
    m_textcom = nomme(new QLineEdit(this), "Textcom");
    m_textref = nomme(new QLineEdit(this), "Textref");
    colore(m_textcom, couleurHeures);
    colore(m_textref, couleurEchelle);
    colore(m_totext, couleurFermee);
    m_textcom->hide();
    m_textref->hide();
}

void Partielm::dispose()
{
    auto *const cadre = new QVBoxLayout(m_frame4);
    cadre->addWidget(m_picha);
    auto *const milieu = new QHBoxLayout;
    milieu->addLayout(disposeTranches());
    milieu->addStretch(1);
    milieu->addLayout(disposeTotal());
    milieu->addStretch(1);
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    page->addLayout(disposeTitres());
    page->addLayout(milieu);
    page->addWidget(m_frame4);
    page->addStretch(1);
    page->addLayout(disposeCommandes());
}

QLayout *Partielm::disposeTitres()
{
    QFont gras = m_label2->font();
    gras.setBold(true);
    gras.setPointSizeF(gras.pointSizeF() * 1.2);
    m_label2->setFont(gras);
    auto *const titres = new QVBoxLayout;
    titres->setSpacing(2);
    titres->addWidget(m_label2);
    titres->addWidget(m_label1);
    return titres;
}

/// The heading is one text for both columns: the distance of the columns is that of its two words.
QLayout *Partielm::disposeTranches()
{
    const QFontMetrics metrics = fontMetrics();
    const int pas = metrics.horizontalAdvance(m_label5->text()) -
                    (metrics.horizontalAdvance(QStringLiteral("de")) + metrics.horizontalAdvance(u'à')) / 2;
    const int largeur = qMin(metrics.horizontalAdvance(QStringLiteral("00h000")) + 24, pas - 12);
    auto *const grille = new QGridLayout;
    grille->setHorizontalSpacing(pas - largeur);
    grille->setVerticalSpacing(4);
    grille->addWidget(m_label5, 0, 0, 1, 2, Qt::AlignHCenter);
    for (int numero = 1; numero <= SaisieHoraire::nbChamps; ++numero) {
        champ(numero)->setFixedWidth(largeur);
        grille->addWidget(champ(numero), (numero - 1) / 2 * 2 + 1, (numero - 1) % 2);
    }
    grille->addWidget(m_label6, 2, 0, 1, 2, Qt::AlignHCenter);
    grille->addWidget(m_label9, 4, 0, 1, 2, Qt::AlignHCenter);
    return grille;
}

QLayout *Partielm::disposeTotal()
{
    QFont gras = m_totext->font();
    gras.setBold(true);
    m_totext->setFont(gras);
    m_totext->setFixedWidth(QFontMetrics(gras).horizontalAdvance(QStringLiteral("00h000")) + 24);
    auto *const total = new QHBoxLayout;
    total->addWidget(m_labtot);
    total->addWidget(m_totext);
    total->addWidget(m_labpr);
    return total;
}

QLayout *Partielm::disposeCommandes()
{
    m_command1->setDefault(true);
    m_command3->setFixedWidth(m_command3->sizeHint().height() + 8);
    m_command3->setAccessibleName(QStringLiteral("Aide"));
    auto *const commandes = new QHBoxLayout;
    commandes->addStretch(1);
    for (QPushButton *commande : {m_command1, m_command2, m_command3})
        commandes->addWidget(commande);
    return commandes;
}

void Partielm::relie()
{
    m_saisie.surFocus([this](int cible) { donneFocus(cible); });
    for (int numero = 1; numero <= SaisieHoraire::nbChamps; ++numero)
        cableChamp(numero);
    wireField(m_textcom, nullptr, nullptr, FieldType::Free, longueurTexte);
    m_totext->installEventFilter(this);
    connect(&m_timer1, &QTimer::timeout, this, &Partielm::charge);
    connect(&m_timer2, &QTimer::timeout, this, &Partielm::delai);
    connect(m_command1, &QPushButton::clicked, this, &Partielm::ok);
    connect(m_command2, &QPushButton::clicked, this, &Partielm::reject);
    connect(m_command3, &QPushButton::clicked, this,
            [this] { ouvreaide(m_session, QStringLiteral("fonctions.htm")); });
    connect(this, &QDialog::rejected, this, [this] { m_session.dlgvalide = false; });
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, m_command3,
            &QPushButton::click);
}

void Partielm::cableChamp(int numero)
{
    QLineEdit *const texte = champ(numero);
    QWidget *const precedent = numero > 1 ? champ(numero - 1) : nullptr;
    QWidget *const suivant =
        numero < SaisieHoraire::nbChamps ? static_cast<QWidget *>(champ(numero + 1)) : m_command1;
    FieldWiring *const cablage =
        wireField(texte, precedent, suivant, FieldType::Hour, longueurHeure, formatHeure);
    FieldHooks hooks;
    hooks.focusGained = [this, numero] { m_saisie.focusGagne(numero); };
    hooks.focusLost = [this, numero] { quitte(numero); };
    hooks.beforeKeyDown = [this, numero](quint16 touche) { return toucheBaissee(numero, touche); };
    if (numero == SaisieHoraire::nbChamps) hooks.afterKeyPress = [this] { toucheText6(); };
    cablage->setHooks(std::move(hooks));
    connect(texte, &QLineEdit::textChanged, this, [this, numero](const QString &nouveau) {
        if (nouveau == m_saisie.texte(numero)) return;
        m_saisie.change(numero, nouveau);
        montre();
    });
}

/// True swallows the key.
bool Partielm::toucheBaissee(int numero, quint16 touche)
{
    if (touche == fieldkey::del && toutSelectionne(numero)) {
        m_saisie.supprimeDepuis(numero);
        montre();
        champ(numero)->selectAll();
        return true;
    }
    if (touche == fieldkey::enter && numero > 1) {
        m_saisie.normhor();
        montre();
    }
    return false;
}

bool Partielm::toutSelectionne(int numero) const
{
    return champ(numero)->selectionLength() == champ(numero)->text().size();
}

void Partielm::charge()
{
    if (m_anormale) {
        m_session.host.message(QStringLiteral("situation anormale: opération impossible"), titre);
        return reject();
    }
    m_saisie.ouvre(m_journee.jour);
    montre();
    if (champ(1)->hasFocus()) champ(1)->selectAll();
}

void Partielm::montreChamp(int numero)
{
    QLineEdit *const texte = champ(numero);
    if (texte->text() != m_saisie.texte(numero)) texte->setText(m_saisie.texte(numero));
    texte->setEnabled(m_saisie.permis(numero));
    colore(texte, fondDe(m_saisie.clair(numero) ? m_textcom : m_totext));
}

void Partielm::montre()
{
    for (int numero = 1; numero <= SaisieHoraire::nbChamps; ++numero)
        montreChamp(numero);
    m_totext->setText(m_saisie.total());
    m_command1->setEnabled(m_saisie.okPermis());
    m_picha->montre(m_saisie.nuit(), m_saisie.barre());
}

void Partielm::donneFocus(int cible)
{
    montre();
    QWidget *const widget =
        cible == SaisieHoraire::boutonOk ? static_cast<QWidget *>(m_command1) : champ(cible);
    if (m_enQuittant) {
        QMetaObject::invokeMethod(
            widget, [widget] { widget->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
    } else {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void Partielm::quitte(int numero)
{
    if (numero == SaisieHoraire::nbChamps) m_timer2.stop();
    const QScopedValueRollback enQuittant(m_enQuittant, true);
    m_saisie.focusPerdu(numero);
    montre();
}

void Partielm::toucheText6()
{
    m_timer2.start(attenteTouches);
    if (m_saisie.toucheDernierChamp()) m_timer2.stop();
    montre();
}

void Partielm::delai()
{
    m_saisie.delaiEcoule();
    montre();
}

void Partielm::ok()
{
    const bool bon = m_saisie.normhor();
    montre();
    if (!bon) {
        m_session.host.message(horaireEnAnomalie(), titre);
        return;
    }
    m_timer1.stop();
    m_timer2.stop();
    // Storing may let events run; nothing else is to be decided meanwhile.
    setEnabled(false);
    const bool ecrit = m_ecrihor(m_journee, jourDeSaisie(m_saisie.textes(), m_saisie.total()));
    setEnabled(true);
    if (!ecrit) return;
    m_session.dlgvalide = true;
    accept();
}

bool Partielm::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_totext && event->type() == QEvent::FocusIn) {
        QApplication::beep();
        QMetaObject::invokeMethod(
            this, [this] { champ(1)->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace velmora
