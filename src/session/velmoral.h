#pragma once

#include "session/session.h"

#include <functional>

namespace velmora
{

/// The built-in login: accepted without a look-up.
inline const QString pseudoIntegre = QStringLiteral("QZX");

/// 1 January of the year of (today less 365 days).
[[nodiscard]] QDate datemin(const QDate &today);
/// 31 December of the year of (today plus 365 days).
[[nodiscard]] QDate datemax(const QDate &today);

/// `agent`'s `mes` as the session holds it: 2 for a null, else the longest decimal number that the text
/// begins with, a power of ten included, truncated to 16 bits; 0 for none.
[[nodiscard]] int valeurMes(const QString &mes);

/// Finds the session's user, leaves `agent` on the row and reads it. The built-in user is accepted with the
/// table left where it is. False when no row has exactly this name.
[[nodiscard]] bool identifie(Session &session);

/// The component that a launcher creates: all of the system starts from here.
class Velmoral
{
public:
    /// How the component came to run.
    enum class Demarrage {
        ParLanceur, ///< by a launcher, which hands over the user and the folders
        Seul        ///< by itself: the built-in user and folder replace what `ini` is given
    };

    /// `montre` shows the main window, without waiting.
    Velmoral(Host &host, Demarrage demarrage, std::function<void(Session &)> montre);

    /// Stores who and where and runs the start: dates, journal, main database, login, main window. A
    /// database that doesn't open ends the process; an unknown user gets a message and nothing opens.
    /// Folders may come with or without their trailing separator, and relative to the process's own.
    void ini(const QString &pseudo, const QString &premierChemin, const QString &secondChemin);

    // Inert on purpose: both act on a form that nothing ever sets, and so always fail. Launchers call them.
    store::Status charg() const;
    store::Status decharg() const;

    /// 0, always.
    [[nodiscard]] qint16 exam() const { return 0; }
    /// -1, always: the launcher's sign of life.
    [[nodiscard]] qint16 test() const { return -1; }

    /// Whether the start reached the main window.
    [[nodiscard]] bool demarree() const { return m_demarree; }
    [[nodiscard]] Session &session() { return m_session; }

private:
    void demarre();

    Session m_session;
    Demarrage m_demarrage;
    std::function<void(Session &)> m_montre;
    bool m_demarree = false;
};

/// The folder of a stand-alone run: the user's own data folder, with its trailing separator.
[[nodiscard]] QString dossierIntegre();

/// A folder as a session keeps it: whole, since the process may change its own folder, without "." and "..",
/// and with its trailing separator. Empty stays empty.
[[nodiscard]] QString dossierAbsolu(const QString &dossier);

/// A folder with its trailing separator; empty stays empty.
[[nodiscard]] QString avecSeparateur(const QString &dossier);

} // namespace velmora
