#pragma once

#include "output/print_job.h"
#include "session/session.h"

#include <memory>

class QPrinter;
class QWidget;

namespace velmora
{

/// Where the prints of a form go: the printer chosen in the session or the machine's own, and a PDF file
/// where there is no printer or the print dialog asks for one.
class SortiePapier
{
public:
    /// `fenetre` is the form that the dialogs belong to.
    SortiePapier(Session &session, QWidget *fenetre);
    ~SortiePapier();
    SortiePapier(const SortiePapier &) = delete;
    SortiePapier &operator=(const SortiePapier &) = delete;

    /// The printer in words: its device, " sur ", its port.
    [[nodiscard]] QString texteImprimante() const;
    /// The family of the font.
    [[nodiscard]] QString police() const;

    /// The platform's dialogs. A choice that is cancelled leaves things as they were.
    void choisitImprimante();
    void choisitPolice();

    /// Where the pages go to a file that hasn't been named yet, asks for its name; false when that is
    /// cancelled.
    [[nodiscard]] bool prepare(const Impression &impression);
    /// Prints what has been prepared. A file that can't be written is told; for a printer nothing is.
    void imprime(const Impression &impression, int copies, const Progres &progres = {});

    /// Shows the pages on the screen as they would come out.
    void apercu(const Impression &impression);

private:
    [[nodiscard]] bool versFichier() const;
    void imprimePapier(const Impression &impression, int copies, const Progres &progres);

    Session &m_session;
    QWidget *m_fenetre;
    std::unique_ptr<QPrinter> m_imprimante;
    QString m_fichier; ///< for the next print only: none is written over unasked
};

} // namespace velmora
