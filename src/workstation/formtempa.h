#pragma once

#include "session/session.h"

#include <QDialog>
#include <QTimer>

namespace velmora
{

/// "VELMORA - PLANNING AGENTS: chargement": stands while the user's display settings are read, then goes by
/// itself. It can't be closed before.
class Formtempa : public QDialog
{
    Q_OBJECT

public:
    explicit Formtempa(Session &session, QWidget *parent = nullptr);

    void reject() override {}

private:
    void dispose();
    void charge();

    Session &m_session;
    QTimer m_timer1{this}; ///< `Timer1`
    bool m_defaut = false; ///< the load went wrong; no load of this system does
};

} // namespace velmora
