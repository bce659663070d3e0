#include "session/qt_host.h"

#include "session/long_message.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QProcess>
#include <QPushButton>

#include <cstdlib>

namespace velmora
{

namespace
{

constexpr int longestAnswer = 3000; // of the desktop, in milliseconds

/// A box as the system's messages look: plain text, so that what a user has typed can't be read as markup.
void prepare(QMessageBox &box, QMessageBox::Icon icon, const QString &text, const QString &title)
{
    box.setIcon(icon);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
}

} // namespace

void QtHost::message(const QString &text, const QString &title)
{
    if (text.count(QLatin1Char('\n')) > MessageLong::lignesMaxi) {
        MessageLong(text, title, QApplication::activeWindow()).exec();
        return;
    }
    QMessageBox box(QApplication::activeWindow());
    prepare(box, QMessageBox::Information, text, title);
    box.addButton(QMessageBox::Ok);
    box.exec();
}

bool QtHost::question(const QString &text, const QString &title)
{
    if (m_options.answer) return *m_options.answer;
    QMessageBox box(QApplication::activeWindow());
    prepare(box, QMessageBox::Question, text, title);
    const auto *oui = box.addButton(QStringLiteral("&Oui"), QMessageBox::YesRole);
    auto *non = box.addButton(QStringLiteral("&Non"), QMessageBox::NoRole);
    box.setEscapeButton(non);
    box.exec();
    return box.clickedButton() == oui;
}

bool QtHost::retry(const QString &text, const QString &title, int attempt)
{
    return !(m_options.answer && attempt > fixedRetries) && question(text, title);
}

QDate QtHost::today() const
{
    return m_options.today.value_or(QDate::currentDate());
}

QDateTime QtHost::now() const
{
    const QDateTime machine = QDateTime::currentDateTime();
    return {m_options.today.value_or(machine.date()), machine.time()};
}

bool QtHost::open(const QString &target)
{
    const QUrl address = addressOf(target);
    // The desktop's opener answers before it has looked for a program, so the question comes first.
    if (address.isLocalFile() && !hasProgram(target)) return false;
    return QDesktopServices::openUrl(address);
}

void QtHost::endProcess()
{
    std::_Exit(EXIT_FAILURE);
}

QUrl addressOf(const QString &target)
{
    const QFileInfo file(target);
    return file.exists() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl(target);
}

bool hasProgram(const QString &file)
{
    const QString kind = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).name();
    QProcess asked;
    asked.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"), kind});
    if (!asked.waitForFinished(longestAnswer) || asked.exitStatus() != QProcess::NormalExit) return true;
    return asked.exitCode() != 0 || !asked.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace velmora
