#pragma once

#include "session/host.h"

#include <QUrl>

#include <optional>

namespace velmora
{

/// The host of the program with windows: message boxes over the active window, the machine's clock, the
/// desktop's programs for documents.
class QtHost : public Host
{
public:
    /// What stands in for the clock and the user.
    struct Options {
        std::optional<QDate> today; ///< today's date, whatever the machine says
        std::optional<bool> answer; ///< the answer to every question, which then isn't shown
    };

    QtHost() = default;
    explicit QtHost(const Options &options) : m_options(options) {}

    void message(const QString &text, const QString &title) override;
    [[nodiscard]] bool question(const QString &text, const QString &title) override;
    [[nodiscard]] bool retry(const QString &text, const QString &title, int attempt) override;
    [[nodiscard]] QDate today() const override;
    [[nodiscard]] QDateTime now() const override;
    bool open(const QString &target) override;
    [[noreturn]] void endProcess() override;

private:
    Options m_options;
};

/// The address of a document or a page: a file that exists by its whole path, anything else as an address.
[[nodiscard]] QUrl addressOf(const QString &target);

/// Whether the desktop associates a program with files of this kind, going by the file's name. True as well
/// when the desktop can't be asked.
[[nodiscard]] bool hasProgram(const QString &file);

} // namespace velmora
