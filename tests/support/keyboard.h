#pragma once

#include "support/modal.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

namespace velmora::test
{

/// Gives the keyboard to a window that shows; its one-shot timer, where it has one, has run then.
inline void settle(QWidget &window)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
    auto *const timer = window.findChild<QTimer *>("Timer1", Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(!timer || QTest::qWaitFor([&] { return !timer->isActive(); }));
}

/// Shows a window and gives it the keyboard.
inline void activate(QWidget &window)
{
    window.show();
    settle(window);
}

/// A key where the focus is.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// Types where the focus is, as a user does who doesn't look.
inline void type(const QString &keys)
{
    for (const QChar key : keys) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        // Only ASCII keys have a code of their own here.
        const Qt::Key code = key.unicode() < 128 ? QTest::asciiToKey(key.toLatin1()) : Qt::Key_unknown;
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), code, QString(key), Qt::NoModifier);
    }
}

/// Goes to a button and presses it by the space bar; one that is disabled can't be.
inline void pressButton(QWidget &window, const char *name)
{
    auto &button = control<QPushButton>(window, name);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
}

/// Presses a button by the space bar and acts in the dialog that it opens.
inline void inDialog(QWidget &window, const char *button, std::function<void(QWidget &)> act)
{
    onModal([act = std::move(act)](QWidget &dialog) {
        settle(dialog);
        act(dialog);
    });
    pressButton(window, button);
}

inline std::string focusName()
{
    const QWidget *const widget = QApplication::focusWidget();
    return widget ? widget->objectName().toStdString() : std::string();
}

} // namespace velmora::test
