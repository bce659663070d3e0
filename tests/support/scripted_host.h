#pragma once

#include "session/host.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <deque>
#include <functional>
#include <utility>

namespace velmora::test
{

/// What `endProcess` throws, so that a test sees where the process would have ended.
struct ProcessEnded {
};

/// A host that follows a script: a fixed clock, the questions expected with their answers, and the messages
/// shown. A question or a message that isn't expected fails the test.
class ScriptedHost : public Host
{
public:
    explicit ScriptedHost(const QDate &today = QDate(2026, 6, 15)) : m_today(today) {}
    ~ScriptedHost() override
    {
        for (const auto &expected : m_questions)
            ADD_FAILURE() << "question not asked: " << expected.first.toStdString();
        for (const auto &expected : m_messages)
            ADD_FAILURE() << "message not shown: " << expected.toStdString();
    }

    void expectQuestion(const QString &text, bool answer) { m_questions.emplace_back(text, answer); }
    void expectMessage(const QString &text) { m_messages.push_back(text); }
    void setToday(const QDate &today) { m_today = today; }

    void message(const QString &text, const QString &title) override
    {
        titles << title;
        if (m_messages.empty() || m_messages.front() != text) {
            ADD_FAILURE() << "unexpected message: " << text.toStdString();
            return;
        }
        m_messages.pop_front();
    }
    bool question(const QString &text, const QString &title) override
    {
        titles << title;
        if (m_questions.empty() || m_questions.front().first != text) {
            ADD_FAILURE() << "unexpected question: " << text.toStdString();
            throw ProcessEnded{};
        }
        const bool answer = m_questions.front().second;
        m_questions.pop_front();
        if (whenAsked) whenAsked();
        return answer;
    }
    QDate today() const override { return m_today; }
    QDateTime now() const override { return {m_today, QTime(8, 15)}; }
    bool open(const QString &target) override
    {
        opened << target;
        return opens;
    }
    [[noreturn]] void endProcess() override { throw ProcessEnded{}; }

    QStringList opened;              ///< what the desktop was asked to open
    bool opens = true;               ///< whether it has a program for it
    QStringList titles;              ///< titles of messages and questions, in order
    std::function<void()> whenAsked; ///< runs while a question is open

private:
    QDate m_today;
    std::deque<std::pair<QString, bool>> m_questions;
    std::deque<QString> m_messages;
};

} // namespace velmora::test
