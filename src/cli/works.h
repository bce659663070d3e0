#pragma once

#include <QString>
#include <QStringList>

namespace velmora::cli
{

/// Folders and files in the making: what has been made is taken away again unless it is kept.
class Chantier
{
public:
    Chantier() = default;
    ~Chantier();
    Chantier(const Chantier &) = delete;
    Chantier &operator=(const Chantier &) = delete;

    /// Makes a folder with the folders above it that are missing.
    [[nodiscard]] bool dossier(const QString &chemin);
    /// Moves a finished file to its place. False, with nothing changed, when the place is taken.
    [[nodiscard]] bool place(const QString &fini, const QString &cible);
    /// Makes a symbolic link to a file.
    [[nodiscard]] bool lie(const QString &fichier, const QString &lien);
    void garde() { m_faits.clear(); }

private:
    QStringList m_faits; // in the order of their making
};

} // namespace velmora::cli
