#pragma once

#include "session/session.h"

#include <functional>

namespace velmora
{

/// The rows of one command, written in one transaction over both databases. The journal is committed first:
/// if the machine stops between the two commits, undoing the recorded operation is harmless. A failure of
/// the journal alone is passed over, and the planning still changes.
class Batch
{
public:
    explicit Batch(Session &session);
    ~Batch();
    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;

    /// Takes the main file's write lock, waiting for other workstations as long as the busy wait.
    [[nodiscard]] store::Status begin();
    [[nodiscard]] store::Status commit();
    void rollback();

    /// Commits a running batch, so that no lock is held, until the end of its scope. A batch that can't take
    /// the lock again goes on without it, row by row.
    class Pause
    {
    public:
        explicit Pause(Batch *batch);
        ~Pause();
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        Batch *m_batch;
    };

private:
    Session &m_session;
};

/// A part of a batch that is kept or taken back whole: the rows of one date.
class BatchStep
{
public:
    explicit BatchStep(Session &session);
    ~BatchStep();
    BatchStep(const BatchStep &) = delete;
    BatchStep &operator=(const BatchStep &) = delete;

    /// Keeps the step's rows.
    void keep();

private:
    store::Engine &m_engine;
    bool m_kept = false;
};

/// Runs the changes of one command as a batch. `work` stops at its first failure and says it. Then what
/// stands is committed and the user is asked, in the words of the guards for a file that another workstation
/// holds and of the disk for anything else: on Yes the whole command runs again, on No the process ends.
/// A batch within a batch joins it: a wait that lets events run may start another command.
void enLot(Session &session, const std::function<store::Status()> &work);

/// A read transaction around a pass, so that the pass sees one state of the file and locks it once. Within
/// a transaction it does nothing.
class ReadPass
{
public:
    explicit ReadPass(store::Engine &engine);
    ~ReadPass();
    ReadPass(const ReadPass &) = delete;
    ReadPass &operator=(const ReadPass &) = delete;

private:
    store::Engine *m_engine = nullptr;
};

/// The disk's question.
[[nodiscard]] QString questionDisque();

} // namespace velmora
