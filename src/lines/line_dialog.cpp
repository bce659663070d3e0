#include "lines/line_dialog.h"

#include "foncgen/field_wiring.h"
#include "lines/lifecycle.h"
#include "session/help.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QShortcut>

namespace velmora
{

namespace
{

constexpr int longueurDate = 10;

void fixeLargeur(QLineEdit *texte, const QString &plusLong)
{
    constexpr int marge = 24;
    texte->setFixedWidth(texte->fontMetrics().horizontalAdvance(plusLong) + marge);
}

} // namespace

DialogueLigne::DialogueLigne(Session &session, const char *nom, const QString &caption, QWidget *parent)
    : QDialog(parent), m_session(session), m_page(new QVBoxLayout(this)),
      m_command1(bouton(nullptr, "Command1", QStringLiteral("OK"))),
      m_command2(bouton(nullptr, "Command2", QStringLiteral("Annuler"))),
      m_command3(bouton(nullptr, "Command3", QStringLiteral("?")))
{
    m_session.dlgvalide = false;
    setObjectName(QLatin1String(nom));
    setWindowTitle(caption);
    m_page->setSpacing(14);
    m_page->setContentsMargins(18, 16, 18, 14);
    connect(m_command1, &QPushButton::clicked, this, &DialogueLigne::accept);
    connect(m_command2, &QPushButton::clicked, this, &DialogueLigne::reject);
    connect(m_command3, &QPushButton::clicked, this,
            [this] { ouvreaide(m_session, QStringLiteral("liggest.htm")); });
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, m_command3,
            &QPushButton::click);
}

void DialogueLigne::ajouteLabel(const char *nom, const QString &texte, const QString &cadre)
{
    auto *const label = etiquette(this, nom, texte);
    QFont gras = label->font();
    gras.setBold(true);
    label->setFont(gras);
    (cadre.isEmpty() ? static_cast<QBoxLayout *>(m_page) : ajouteCadre(cadre))->addWidget(label);
}

QBoxLayout *DialogueLigne::ajouteCadre(const QString &caption)
{
    auto *const cadre = new QGroupBox(caption, this);
    m_page->addWidget(cadre);
    return new QHBoxLayout(cadre);
}

QLineEdit *DialogueLigne::ajouteNom(const QString &caption)
{
    m_text1 = nomme(new QLineEdit, "Text1");
    m_text1->setAccessibleName(caption);
    fixeLargeur(m_text1, QString(longueurNom, QLatin1Char('M')));
    QBoxLayout *const cadre = ajouteCadre(caption);
    cadre->addWidget(m_text1);
    cadre->addStretch();
    wireField(m_text1, nullptr, m_command1, FieldType::Capitals, longueurNom);
    return m_text1;
}

QLineEdit *DialogueLigne::ajouteDate(const QString &caption)
{
    m_text2 = nomme(new QLineEdit(Foncgen::dtoc(m_session.host.today())), "Text2");
    m_text2->setAccessibleName(caption);
    fixeLargeur(m_text2, QString(longueurDate, QLatin1Char('0')));
    QBoxLayout *const cadre = ajouteCadre(caption);
    auto *const label = new QLabel(QStringLiteral("à dater du"));
    label->setBuddy(m_text2);
    cadre->addWidget(label);
    cadre->addWidget(m_text2);
    cadre->addStretch();
    wireField(m_text2, m_text1, m_command1, FieldType::Date, longueurDate);
    if (m_text1) FieldWiring::of(m_text1)->setNext([this] { return m_text2; });
    return m_text2;
}

void DialogueLigne::ajoute(QWidget *contenu)
{
    m_page->addWidget(contenu);
}

void DialogueLigne::termine()
{
    m_command1->setDefault(true);
    m_command2->setAutoDefault(false);
    m_command3->setAutoDefault(false);
    m_command3->setToolTip(QStringLiteral("Aide"));
    m_command3->setAccessibleName(m_command3->toolTip());
    auto *const commandes = new QHBoxLayout;
    m_page->addStretch();
    m_page->addLayout(commandes);
    // They join the dialog here, so that Tab reaches them after the fields.
    commandes->addStretch();
    commandes->addWidget(m_command1);
    commandes->addWidget(m_command2);
    commandes->insertWidget(0, m_command3);
}

QLineEdit *DialogueLigne::champ(ChampLigne lequel) const
{
    switch (lequel) {
    case ChampLigne::Nom: return m_text1;
    case ChampLigne::Date: return m_text2;
    default: return nullptr;
    }
}

QWidget *DialogueLigne::boutonOk() const
{
    return m_command1;
}

void DialogueLigne::accept()
{
    const IssueLigne issue = execute();
    if (issue.faite) return QDialog::accept();
    QLineEdit *const texte = issue.champ ? champ(*issue.champ) : nullptr;
    if (!texte) return;
    texte->setFocus(Qt::OtherFocusReason);
    texte->selectAll();
}

void DialogueLigne::reject()
{
    m_session.dlgvalide = false;
    QDialog::reject();
}

} // namespace velmora
