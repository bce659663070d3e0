#pragma once

#include "session/session.h"

#include <functional>
#include <vector>

namespace velmora
{

class BatchStep;

/// The rows of one command, written in one transaction over both databases. The main file is this session's
/// alone from `begin` on, so that another workstation's lock can only be met there; whoever reads meanwhile
/// waits.
class Batch
{
public:
    /// Two files can't be committed at once. What each kind commits first is such that, if the machine stops
    /// between the two commits, the journal shows the operation in force, keeps its images, and undoing it
    /// is harmless: images are written over whatever the rows hold.
    enum class Kind {
        Recording, ///< journal first; when the journal alone fails, the planning changes unrecorded
        Undo,      ///< planning first; whole or not at all: else rows could stay that no undo reaches
        Redo       ///< journal first; whole or not at all
    };

    explicit Batch(Session &session, Kind kind = Kind::Recording);
    ~Batch();
    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;

    /// Takes the main file's write lock, waiting for other workstations as long as the busy wait.
    [[nodiscard]] store::Status begin();
    /// Ends the transaction. A failure, also one of an earlier commit of the batch, leaves neither rows nor
    /// recording of what has been written since `begin`. Only when the journal's commit stood and the
    /// planning's didn't does the recording stay, with the session on its operation: a commit that the disk
    /// reported as failed may stand all the same, and its rows must have their images.
    [[nodiscard]] store::Status commit();
    void rollback();
    /// Whether what the command writes can be recorded: false once the journal's part of the transaction
    /// failed. The ring is then as it was before the batch.
    [[nodiscard]] bool enregistre() const;
    /// Drops the journal's part: half an operation in the ring would be played over other days.
    void renonceEnregistrement();

    /// Commits a running batch, so that no lock is held, until the end of its scope. A batch that can't take
    /// the lock again goes on without it, row by row. A pause within a pause does nothing.
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
    friend class BatchStep;

    /// The session's part of the ring.
    struct Anneau {
        int opcour = 0;
        int nivcour = 0;
        bool peutannul = false;
        bool peutrefaire = false;
    };

    [[nodiscard]] store::Status commitJournal();
    [[nodiscard]] store::Status commitJournalFirst();
    void remetSession();

    Session &m_session;
    Kind m_kind;
    BatchStep *m_step = nullptr; ///< the part that is being written
    bool m_begun = false;        ///< a transaction was taken and not ended yet
    store::Status m_echec;       ///< a commit that failed
    Anneau m_avant;              ///< before the transaction
};

/// A part of a batch that is kept or taken back whole, its images included: the rows of one date. What was
/// written before a pause stands.
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
    friend class Batch;

    void marque();
    void surChaque(store::Status (store::Engine::*action)());

    Session &m_session;
    BatchStep *m_outer = nullptr;
    int m_nivcour = 0;
    bool m_kept = false;
};

/// Runs the changes of one command as a batch. `work` stops at its first failure and says it. Then what
/// stands is committed and the user is asked, in the words of the guards for a file that another workstation
/// holds and of the disk for a failure of the disk: on Yes the whole command runs again, on No the process
/// ends. After a failure in which the engine gave the transaction up by itself nothing of the command stands,
/// and its operation isn't in the ring. A failure that another try can't mend (a missing row, a key that is
/// already there, a misuse) is told in a message, and the command is given up and taken back, unless it is
/// part of another's batch.
/// An undo or a redo that fails is taken back whole before the question. A batch within a batch joins it: a
/// wait that lets events run may start another command.
/// Returns false when the command was given up.
bool enLot(Session &session, const std::function<store::Status()> &work,
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

/// Tells that the store failed where another try is not offered.
void ditEchecDisque(Session &session);

} // namespace velmora
