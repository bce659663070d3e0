#include "cli/works.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace velmora::cli
{

Chantier::~Chantier()
{
    for (auto fait = m_faits.crbegin(); fait != m_faits.crend(); ++fait) {
        const QFileInfo info(*fait);
        if (info.isDir() && !info.isSymLink())
            QDir().rmdir(*fait);
        else
            QFile::remove(*fait);
    }
}

bool Chantier::dossier(const QString &chemin)
{
    QStringList manquants;
    for (QString un = QDir::cleanPath(chemin); !QFileInfo::exists(un); un = QFileInfo(un).path())
        manquants.prepend(un);
    for (const QString &manquant : std::as_const(manquants)) {
        if (!QDir().mkdir(manquant)) return false;
        m_faits << manquant;
    }
    return QFileInfo(chemin).isDir();
}

bool Chantier::place(const QString &fini, const QString &cible)
{
    if (!QFile::rename(fini, cible)) return false;
    m_faits << cible;
    return true;
}

bool Chantier::lie(const QString &fichier, const QString &lien)
{
    if (!QFile::link(fichier, lien)) return false;
    m_faits << lien;
    return true;
}

} // namespace velmora::cli
