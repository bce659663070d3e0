#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

namespace velmora
{

/// What the system asks of the machine and of the user. The windows give it a desktop implementation, the
/// command line one that speaks on the standard streams, and the tests a script.
class Host
{
public:
    Host() = default;
    Host(const Host &) = delete;
    Host &operator=(const Host &) = delete;
    virtual ~Host() = default;

    /// A modal message with one OK button.
    virtual void message(const QString &text, const QString &title) = 0;

    /// A modal question with the buttons Yes and No. True on Yes.
    [[nodiscard]] virtual bool question(const QString &text, const QString &title) = 0;

    /// The same, to try again what has failed `attempt` times in a row. An answer given beforehand ends: the
    /// cause may last for ever.
    [[nodiscard]] virtual bool retry(const QString &text, const QString &title, int attempt)
    {
        static_cast<void>(attempt);
        return question(text, title);
    }

    /// Today's date and the moment now, in local time.
    [[nodiscard]] virtual QDate today() const = 0;
    [[nodiscard]] virtual QDateTime now() const = 0;

    /// Opens a document or an address with the program that the desktop associates with it. False when there
    /// is no such program, as far as can be told; how the program fares isn't waited for.
    virtual bool open(const QString &target) = 0;

    /// Ends the process at once, with no saving.
    [[noreturn]] virtual void endProcess() = 0;
};

/// Times that a fixed Yes tries the same thing again before it counts as No.
inline constexpr int fixedRetries = 3;

/// The default title of messages.
inline const QString titre = QStringLiteral("velmora");

} // namespace velmora
