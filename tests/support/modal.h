#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

namespace velmora::test
{

/// Runs `act` on the modal window that the next call opens, once it stands. The window is closed after it, so
/// that a test which fails doesn't wait for ever.
inline void onModal(std::function<void(QWidget &)> act)
{
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        QWidget *const modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr) << "no modal window";
        act(*modal);
        if (modal == QApplication::activeModalWidget()) modal->close();
    });
}

/// The same for a window that opens later, after timers or other windows.
inline void whenModal(std::function<void(QWidget &)> act)
{
    QTimer::singleShot(5, qApp, [act = std::move(act)] {
        QWidget *const modal = QApplication::activeModalWidget();
        if (!modal) return whenModal(act);
        act(*modal);
        if (modal == QApplication::activeModalWidget()) modal->close();
    });
}

/// A control by its name, which has to be there.
template <class Widget> Widget &control(const QWidget &form, const char *name)
{
    auto *const found = form.findChild<Widget *>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    if (!found) std::abort();
    return *found;
}

} // namespace velmora::test
