#pragma once

#include <QString>

namespace velmora::store
{

/// The outcome of a store operation: the store's one error channel. Nothing throws across its face.
class [[nodiscard]] Status
{
public:
    enum class Code {
        Ok,
        Busy,         ///< another session holds the lock longer than the busy wait
        Full,         ///< the disk is full
        ReadOnly,     ///< the file or its folder can't be written
        Damaged,      ///< the file's structure is broken
        NotADatabase, ///< the file is something else
        CantOpen,     ///< missing file, folder or permission
        Io,           ///< the disk failed
        Constraint,   ///< a second row under a key that is unique
        NoRow,        ///< there is no current row to act on
        Misuse        ///< any other failure of the engine
    };

    Status() = default;
    Status(Code code, QString text) : m_code(code), m_text(std::move(text)) {}

    [[nodiscard]] bool ok() const { return m_code == Code::Ok; }
    [[nodiscard]] Code code() const { return m_code; }
    /// The engine's own text, for the log.
    [[nodiscard]] const QString &text() const { return m_text; }

    /// For the places that pass over a failure on purpose.
    void ignore() const {}

private:
    Code m_code = Code::Ok;
    QString m_text;
};

} // namespace velmora::store
