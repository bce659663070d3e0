#pragma once

#include "workstation/toolbar_state.h"

#include <QAction>
#include <QList>
#include <QWidget>

namespace velmora
{

/// An open month as the main window knows it: a widget that fills the window, with its own menu bar, commands
/// and sizes. It loads after it is shown and says when it is ready.
class MonthView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The entries of the menu bar that replace the main window's while the month is open. They stay the
    /// month's.
    [[nodiscard]] virtual QList<QAction *> menuBarActions() const = 0;

    /// Runs the command of a toolbar key, after the event in hand.
    virtual void command(const QString &cle) = 0;

    /// Widens every column by so many twips. False, with nothing changed, when one would get too narrow.
    [[nodiscard]] virtual bool stretchColumns(int twips) = 0;

    /// Heightens every row by so many twips.
    virtual void stretchRows(int twips) = 0;

signals:
    /// The grid stands; the sliders can act on it.
    void ready();

    /// The toolbar has to show another state.
    void commandsChanged(const velmora::ToolbarState &state);

    /// The tip of a toolbar button has changed.
    void tipChanged(const QString &cle, const QString &bulle);

    /// The month has closed, by its own command or with the window. Sent once.
    void closed();
};

} // namespace velmora
