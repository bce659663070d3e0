#include "foncgen/field_wiring.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QValidator>

#include <utility>

namespace velmora
{

namespace
{

/// Holds back what doesn't come by the keyboard: the context menu, a drop, an input method. It mends the
/// text and never refuses it, so that a text which came from elsewhere can always be edited. A field
/// without the focus is being filled by its form and is left as it is.
class AdmissibleText : public QValidator
{
public:
    AdmissibleText(QLineEdit *field, const FieldRules &rules)
        : QValidator(field), m_field(field), m_rules(rules)
    {
    }

    State validate(QString &text, int &cursor) const override
    {
        if (!m_field->hasFocus()) return Acceptable;
        cursor = int(mended(QStringView(text).first(qBound(0, cursor, int(text.size())))).size());
        text = mended(text);
        return Acceptable;
    }

private:
    [[nodiscard]] QString mended(QStringView text) const
    {
        return admissible(m_rules.type, m_rules.length, text);
    }

    QLineEdit *m_field;
    FieldRules m_rules;
};

/// The code of a key that `gestext` or a form knows; 0 for any other.
quint16 codeOf(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_Backspace: return fieldkey::backspace;
    case Qt::Key_Tab: return fieldkey::tab;
    case Qt::Key_Return:
    case Qt::Key_Enter: return fieldkey::enter;
    case Qt::Key_Escape: return fieldkey::escape;
    case Qt::Key_End: return fieldkey::end;
    case Qt::Key_Home: return fieldkey::home;
    case Qt::Key_Left: return fieldkey::left;
    case Qt::Key_Up: return fieldkey::up;
    case Qt::Key_Right: return fieldkey::right;
    case Qt::Key_Down: return fieldkey::down;
    case Qt::Key_Delete: return fieldkey::del;
    default: return 0;
    }
}

/// The focus is only lent to something that gives it back.
bool isLent(Qt::FocusReason reason)
{
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

bool isPlain(const QKeyEvent &event)
{
    return (event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier)) == Qt::NoModifier;
}

/// The character of a key press; 0 when the key is a shortcut's, has no character, or has several.
quint16 characterOf(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers shortcut =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Ctrl and Alt together are the AltGr of some keyboards.
    const bool altGr = shortcut == (Qt::ControlModifier | Qt::AltModifier);
    if (shortcut != Qt::NoModifier && !altGr) return 0;
    return event.text().size() == 1 ? event.text().front().unicode() : quint16{0};
}

bool canTakeFocus(const QWidget *widget)
{
    return widget->isEnabled() && widget->isVisibleTo(widget->window());
}

} // namespace

FieldWiring::FieldWiring(QLineEdit *field, const FieldRules &rules)
    : QObject(field), m_field(field), m_rules(rules)
{
    field->setMaxLength(rules.length);
    field->setValidator(new AdmissibleText(field, rules));
    field->installEventFilter(this);
}

void FieldWiring::setPrevious(FieldStep previous)
{
    m_previous = std::move(previous);
}

void FieldWiring::setNext(FieldStep next)
{
    m_next = std::move(next);
}

void FieldWiring::setHooks(FieldHooks hooks)
{
    m_hooks = std::move(hooks);
}

FieldWiring *FieldWiring::of(const QWidget *widget)
{
    return widget->findChild<FieldWiring *>(QString(), Qt::FindDirectChildrenOnly);
}

QWidget *FieldWiring::reachable(Direction direction) const
{
    constexpr int longestChain = 64; // steps that lead in a circle must end
    const FieldWiring *wiring = this;
    for (int i = 0; i < longestChain && wiring; ++i) {
        const FieldStep &step = wiring->*direction;
        QWidget *const target = step ? step() : nullptr;
        if (!target || target == m_field) return nullptr;
        if (canTakeFocus(target)) return target;
        wiring = of(target);
    }
    return nullptr;
}

FieldView FieldWiring::view() const
{
    return {.text = m_field->text(),
            .cursor = m_field->cursorPosition(),
            .selectionStart = qMax(0, m_field->selectionStart()),
            .selectionLength = m_field->selectionLength(),
            .previous = reachable(&FieldWiring::m_previous) != nullptr,
            .next = reachable(&FieldWiring::m_next) != nullptr,
            .justFocused = m_justFocused};
}

FieldOutcome FieldWiring::ask(QStringView event, quint16 key) const
{
    return gestext(view(), m_rules, event, key);
}

void FieldWiring::selectAsAsked(QStringView event)
{
    if (ask(event, 0).selectAll) m_field->selectAll();
}

void FieldWiring::move(FieldMove direction)
{
    const bool forward = direction == FieldMove::Next;
    QWidget *const target = reachable(forward ? &FieldWiring::m_next : &FieldWiring::m_previous);
    if (target) target->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void FieldWiring::gainFocus(Qt::FocusReason reason)
{
    if (std::exchange(m_away, false) && isLent(reason)) return;
    m_justFocused = reason == Qt::MouseFocusReason;
    if (m_hooks.focusGained) m_hooks.focusGained();
    selectAsAsked(u"GF");
}

void FieldWiring::loseFocus(Qt::FocusReason reason)
{
    m_justFocused = false;
    m_away = isLent(reason);
    if (!m_away && m_hooks.focusLost) m_hooks.focusLost();
}

bool FieldWiring::click(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) return false;
    m_field->event(
        event); // first, so that the field doesn't hand our selection to the system's own clipboard
    selectAsAsked(u"CK");
    m_justFocused = false;
    return true;
}

bool FieldWiring::keyDown(quint16 code)
{
    if (m_hooks.beforeKeyDown && m_hooks.beforeKeyDown(code)) return false;
    const FieldOutcome outcome = ask(u"KD", code);
    if (outcome.move != FieldMove::Stay) move(outcome.move);
    return outcome.key != 0;
}

void FieldWiring::insertFromClipboard()
{
    const int room = m_rules.length - int(m_field->text().size()) + m_field->selectionLength();
    const QString text = admissible(m_rules.type, room, QGuiApplication::clipboard()->text());
    if (!text.isEmpty()) m_field->insert(text); // inserting nothing would still delete the selection
}

void FieldWiring::keyPress(QKeyEvent *event)
{
    const quint16 character = m_field->isReadOnly() ? quint16{0} : characterOf(*event);
    if (character == 0) {
        m_field->event(event);
        return;
    }
    const FieldOutcome outcome = ask(u"KP", character);
    if (!outcome.insertion.isEmpty())
        m_field->insert(outcome.insertion);
    else if (outcome.key == character)
        m_field->event(event);
    else if (outcome.key != 0)
        m_field->insert(QChar(outcome.key));
}

bool FieldWiring::key(QKeyEvent *event)
{
    const QPointer<FieldWiring> alive(this);
    m_justFocused = false;
    event->accept();

    const quint16 code = isPlain(*event) ? codeOf(event->key()) : quint16{0};
    if (code != 0 && !keyDown(code)) return true;
    if (!alive) return true;
    if (event->matches(QKeySequence::Paste) && !m_field->isReadOnly())
        insertFromClipboard();
    else
        keyPress(event);
    if (alive && !event->text().isEmpty() && m_field->hasFocus() && m_hooks.afterKeyPress)
        m_hooks.afterKeyPress();
    return true;
}

bool FieldWiring::eventFilter(QObject *watched, QEvent *event)
{
    // A field that is being destroyed still loses the focus, when its form is no longer whole.
    if (!qobject_cast<QLineEdit *>(watched)) return false;
    switch (event->type()) {
    case QEvent::FocusIn: gainFocus(static_cast<QFocusEvent *>(event)->reason()); return false;
    case QEvent::FocusOut: loseFocus(static_cast<QFocusEvent *>(event)->reason()); return false;
    case QEvent::MouseButtonRelease: return click(static_cast<QMouseEvent *>(event));
    case QEvent::KeyPress: return key(static_cast<QKeyEvent *>(event));
    default: return false;
    }
}

FieldWiring *wireField(QLineEdit *field, QWidget *previous, QWidget *next, FieldType type, int length,
                       int format)
{
    auto *const wiring = new FieldWiring(field, {.type = type, .length = length, .format = format});
    const auto always = [](QWidget *target) {
        return [target = QPointer<QWidget>(target)]() -> QWidget * { return target; };
    };
    wiring->setPrevious(always(previous));
    wiring->setNext(always(next));
    return wiring;
}

} // namespace velmora
