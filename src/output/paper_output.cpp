#include "output/paper_output.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPrintPreviewDialog>
#include <QStandardPaths>

namespace velmora
{

namespace
{

constexpr int tailleMontree = 10;

std::unique_ptr<QPrinter> nouvelleImprimante(const QString &nom)
{
    auto imprimante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (!nom.isEmpty() && !QPrinterInfo::printerInfo(nom).isNull()) imprimante->setPrinterName(nom);
    return imprimante;
}

/// A file name made from a document's: what a path or a shell would read otherwise becomes a blank.
QString nomFichier(QString document)
{
    for (QChar &c : document)
        if (QStringLiteral("/\\:*?\"<>|").contains(c)) c = QLatin1Char(' ');
    return document.simplified() + QStringLiteral(".pdf");
}

} // namespace

SortiePapier::SortiePapier(Session &session, QWidget *fenetre)
    : m_session(session), m_fenetre(fenetre), m_imprimante(nouvelleImprimante(session.imprimante))
{
}

SortiePapier::~SortiePapier() = default;

bool SortiePapier::versFichier() const
{
    return m_imprimante->outputFormat() == QPrinter::PdfFormat;
}

QString SortiePapier::texteImprimante() const
{
    const QString sur = QStringLiteral(" sur ");
    if (versFichier()) {
        return QStringLiteral("Fichier PDF") + sur +
               (m_fichier.isEmpty() ? QStringLiteral("un nom à choisir")
                                    : QDir::toNativeSeparators(m_fichier));
    }
    const QString port = QPrinterInfo(*m_imprimante).location();
    return m_imprimante->printerName() + sur + (port.isEmpty() ? QStringLiteral("CUPS") : port);
}

QString SortiePapier::police() const
{
    return m_session.policeimp.isEmpty() ? policeParDefaut : m_session.policeimp;
}

void SortiePapier::choisitImprimante()
{
    QPrintDialog dialogue(m_imprimante.get(), m_fenetre);
    // Pages and copies are the form's.
    dialogue.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialogue.exec() != QDialog::Accepted) return;
    m_session.imprimante = m_imprimante->printerName();
    m_fichier = versFichier() ? m_imprimante->outputFileName() : QString();
}

void SortiePapier::choisitPolice()
{
    bool choisie = false;
    const QFont police = QFontDialog::getFont(&choisie, QFont(this->police(), tailleMontree), m_fenetre);
    if (choisie) m_session.policeimp = police.family();
}

bool SortiePapier::prepare(const Impression &impression)
{
    if (!versFichier() || !m_fichier.isEmpty()) return true;
    const QDir dossier(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    m_fichier = QFileDialog::getSaveFileName(m_fenetre, QStringLiteral("Imprimer dans un fichier"),
                                             dossier.filePath(nomFichier(impression.document)),
                                             QStringLiteral("Fichiers PDF (*.pdf)"));
    if (!m_fichier.isEmpty() && QFileInfo(m_fichier).suffix().isEmpty()) m_fichier += QStringLiteral(".pdf");
    return !m_fichier.isEmpty();
}

void SortiePapier::imprime(const Impression &impression, int copies, const Progres &progres)
{
    const QString fichier = std::exchange(m_fichier, {});
    QApplication::setOverrideCursor(Qt::WaitCursor);
    IssuePdf ecrite;
    if (versFichier())
        ecrite = ecritPdf(fichier, impression, police(), m_session.host.now(), progres);
    else
        imprimePapier(impression, copies, progres);
    QApplication::restoreOverrideCursor();
    // The frame goes on past a failed step; a file that the user was promised is all that it tells about.
    if (!ecrite) m_session.host.message(ecrite.defaut, titre);
}

void SortiePapier::imprimePapier(const Impression &impression, int copies, const Progres &progres)
{
    m_imprimante->setDocName(impression.document);
    m_imprimante->setCopyCount(copies);
    m_imprimante->setPaperSource(QPrinter::Upper);
    static_cast<void>(lanceImpression(*m_imprimante, impression, police(), m_session.host.now(), progres));
}

void SortiePapier::apercu(const Impression &impression)
{
    const auto imprimante = nouvelleImprimante(m_imprimante->printerName());
    imprimante->setDocName(impression.document);
    const QDateTime moment = m_session.host.now();
    QPrintPreviewDialog dialogue(imprimante.get(), m_fenetre);
    dialogue.setWindowTitle(QStringLiteral("Aperçu : ") + impression.document);
    QObject::connect(&dialogue, &QPrintPreviewDialog::paintRequested, m_fenetre, [&](QPrinter *papier) {
        static_cast<void>(lanceImpression(*papier, impression, police(), moment));
    });
    dialogue.exec();
}

} // namespace velmora
