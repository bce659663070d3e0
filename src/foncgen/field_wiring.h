#pragma once

#include "foncgen/gestext.h"

#include <QObject>

#include <functional>

class QKeyEvent;
class QLineEdit;
class QMouseEvent;
class QWidget;

namespace velmora
{

/// A place for the focus to go, asked for at the moment of the key. Null for none.
using FieldStep = std::function<QWidget *()>;

/// What a form does around `gestext`. An empty function does nothing.
struct FieldHooks {
    /// The focus has come to the field, before "GF". Not on the return from a popup, a menu or another
    /// window.
    std::function<void()> focusGained{};
    /// The focus has gone to another field. Not when a popup, a menu or another window takes it.
    std::function<void()> focusLost{};
    /// A key of `fieldkey` goes down without Shift, Ctrl, Alt or Meta. True swallows it before "KD".
    std::function<bool(quint16 key)> beforeKeyDown{};
    /// The field has handled a key that stands for a text and still has the focus.
    std::function<void()> afterKeyPress{};
};

/// Passes a field's click, focus and keys to `gestext` and does what it answers. Lives as long as its field.
class FieldWiring : public QObject
{
    Q_OBJECT

public:
    FieldWiring(QLineEdit *field, const FieldRules &rules);

    /// Where the keys go on and back to. A step that is disabled or hidden is skipped: its own wiring tells
    /// the next one in the same direction, and with none left the key stays with the field, so that Enter
    /// reaches the dialog's default button.
    void setPrevious(FieldStep previous);
    void setNext(FieldStep next);
    void setHooks(FieldHooks hooks);

    [[nodiscard]] const FieldRules &rules() const { return m_rules; }

    /// The wiring of a widget; null when it has none.
    [[nodiscard]] static FieldWiring *of(const QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Direction = FieldStep FieldWiring::*;

    [[nodiscard]] QWidget *reachable(Direction direction) const;
    [[nodiscard]] FieldView view() const;
    [[nodiscard]] FieldOutcome ask(QStringView event, quint16 key) const;
    void selectAsAsked(QStringView event);
    void move(FieldMove direction);
    void gainFocus(Qt::FocusReason reason);
    void loseFocus(Qt::FocusReason reason);
    bool click(QMouseEvent *event);
    bool key(QKeyEvent *event);
    bool keyDown(quint16 code);
    void keyPress(QKeyEvent *event);
    void insertFromClipboard();

    QLineEdit *m_field;
    FieldRules m_rules;
    FieldStep m_previous;
    FieldStep m_next;
    FieldHooks m_hooks;
    bool m_justFocused = false; ///< a click brought the focus and isn't over yet
    bool m_away = false;        ///< the focus went to a popup or another window and will come back
};

/// Wires a field in one call: its type, its longest text, the field to go back to and the one to go on to
/// (null for none). `format` is 3 for an hour, else 0. The wiring that is returned belongs to the field; a
/// form needs it only for hooks and for steps that change.
FieldWiring *wireField(QLineEdit *field, QWidget *previous, QWidget *next, FieldType type, int length,
                       int format = 0);

} // namespace velmora
