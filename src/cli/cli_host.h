#pragma once

#include "session/host.h"

#include <functional>
#include <optional>

namespace velmora::cli
{

/// A host on the standard streams: messages and questions go to the standard error. A question has the
/// answer given beforehand, or is asked on a terminal, or is answered no where there is none.
class CliHost : public Host
{
public:
    /// `aujourdhui` fixes the date, with 8h00 as the moment; without it the clock of the machine counts.
    /// `reponse` answers every question.
    CliHost(const std::optional<QDate> &aujourdhui, const std::optional<bool> &reponse);

    void message(const QString &text, const QString &title) override;
    [[nodiscard]] bool question(const QString &text, const QString &title) override;
    [[nodiscard]] bool retry(const QString &text, const QString &title, int attempt) override;
    [[nodiscard]] QDate today() const override;
    [[nodiscard]] QDateTime now() const override;
    /// There is no desktop here: the target is printed.
    bool open(const QString &target) override;
    /// Ends with status 1. When nothing has been said so far, the sentence of `siMuette` is.
    [[noreturn]] void endProcess() override;

    /// What to say when the process ends without a word.
    void siMuette(std::function<QString()> phrase) { m_siMuette = std::move(phrase); }
    /// Whether a question was answered no.
    [[nodiscard]] bool refusee() const { return m_refusee; }

private:
    void dit(const QString &texte);
    [[nodiscard]] bool demande();

    std::optional<QDate> m_aujourdhui;
    std::optional<bool> m_reponse;
    std::function<QString()> m_siMuette;
    bool m_dit = false;
    bool m_refusee = false;
};

/// Writes a line on the standard output or error, as UTF-8.
void imprime(const QString &ligne);
void imprimeErreur(const QString &ligne);

/// Keeps what is printed until its end: a reader of the standard output that stops, such as a pager, must not
/// stop a command that holds a lock on the shared file.
class SortieRetenue
{
public:
    SortieRetenue();
    ~SortieRetenue();
    SortieRetenue(const SortieRetenue &) = delete;
    SortieRetenue &operator=(const SortieRetenue &) = delete;
};

} // namespace velmora::cli
