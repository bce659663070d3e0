#pragma once

#include "session/session.h"

#include <functional>

namespace velmora
{

/// The rows of one command, written in one transaction over both databases.
class Batch
{
public:
    /// Two files can't be committed at once. What each kind commits first is such that, if the machine stops
    /// between the two commits, the journal shows the operation in force, keeps its images, and undoing it
    /// is harmless: images are written over whatever the rows hold.
    enum class Kind {
        Recording, ///< journal first; a failure of the journal alone is passed over and the planning changes
        Undo,      ///< planning first; whole or not at all: else rows could stay that no undo reaches
        Redo       ///< journal first; whole or not at all
    };

    explicit Batch(Session &session, Kind kind = Kind::Recording);
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
    Kind m_kind;
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
/// An undo or a redo that fails is taken back whole before the question. A batch within a batch joins it: a
/// wait that lets events run may start another command.
void enLot(Session &session, const std::function<store::Status()> &work,
           Batch::Kind kind = Batch::Kind::Recording);

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
