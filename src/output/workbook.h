#pragma once

#include "output/export_text.h"

#include <memory>

namespace velmora
{

/// The export as a workbook: the cells of the text at the same places, with texts as texts, whatever they
/// begin with, hours as numbers and days as dates. The head stays in view, and so do the columns of the name
/// and the title.
class Classeur
{
public:
    /// The workbook of a period, with its head. Nothing is on the disk before `termine`.
    Classeur(const QString &fichier, const QDate &debut, const QDate &fin);
    ~Classeur();
    Classeur(const Classeur &) = delete;
    Classeur &operator=(const Classeur &) = delete;

    void ajouteBloc(const BlocExport &bloc);

    /// Writes the file, in place of one that is there. False, with the old one untouched, when it can't be
    /// written.
    [[nodiscard]] bool termine();

private:
    struct Feuille;

    void ecritEntete(const QDate &debut, const QDate &fin);

    QString m_fichier;
    std::unique_ptr<Feuille> m_feuille;
};

} // namespace velmora
