#pragma once

#include <QString>

namespace velmora
{

/// What a field takes. The values are the letters that the forms hand over.
enum class FieldType : char16_t {
    Hour = u'H',     ///< "8h20": digits and one "h"
    Date = u'D',     ///< "dd/mm/yyyy": digits and two "/"
    Capitals = u'M', ///< text, put in capitals as it is typed, accents included
    Free = u'm',     ///< any text without control characters
    Number = u'N',   ///< digits
};

/// Codes of the keys that mean something on "KD". A key press has the UTF-16 unit of its character.
namespace fieldkey
{
inline constexpr quint16 backspace = 8;
inline constexpr quint16 tab = 9;
inline constexpr quint16 enter = 13;
inline constexpr quint16 escape = 27;
inline constexpr quint16 end = 35;
inline constexpr quint16 home = 36;
inline constexpr quint16 left = 37;
inline constexpr quint16 up = 38;
inline constexpr quint16 right = 39;
inline constexpr quint16 down = 40;
inline constexpr quint16 del = 46;
} // namespace fieldkey

/// What stays the same for a field as long as it lives.
struct FieldRules {
    FieldType type = FieldType::Free;
    int length = 0; ///< most UTF-16 units the field holds
    int format = 0; ///< for an hour, the place of the "h" counted from 1; 0 leaves the "h" to the user
};

/// A field as an event finds it. Positions in UTF-16 units.
struct FieldView {
    QString text;
    int cursor = 0;
    int selectionStart = 0;
    int selectionLength = 0;  ///< 0 when nothing is selected
    bool previous = false;    ///< a field to go back to can take the focus
    bool next = false;        ///< a field to go on to can take the focus
    bool justFocused = false; ///< the click in hand is the one that brought the focus
};

enum class FieldMove { Stay, Previous, Next };

/// What is to be done with the field and the key.
struct FieldOutcome {
    quint16 key = 0; ///< the key to go on with; 0 swallows it
    FieldMove move = FieldMove::Stay;
    bool selectAll = false;
    QString insertion{}; ///< when not empty, replaces the selection in place of the swallowed key

    bool operator==(const FieldOutcome &) const = default;
};

/// The keystroke manager of every editable field. `event` is "CK" (click), "GF" (got focus), "KD" (key
/// down) or "KP" (key press); `key` is 0 for the first two. Any other word lets the key go on.
///
/// - "GF" selects all. "CK" does so only for the click that brought the focus, and when that click has not
///   selected anything itself: else the caret stays where the user put it.
/// - "KD": Enter and Down go to the next field, Up to the previous one. In the short fields (hour, date,
///   number) Right at the end and Left at the start do so too; in a text they don't, because the caret is
///   driven there with a held key. Backspace never leaves a field: the field before would be all
///   selected, and one stroke more would empty it. Every other key goes on.
/// - "KP" lets through what the type takes, within the length, and swallows the rest. Control characters
///   (Backspace, the clipboard's keys) always go on. In an hour, "H", ":", "." and "," are an "h"; in a date,
///   "." and "-" are a "/". At the end of the text the separator comes by itself: 0820 gives "08h20" and
///   03062026 gives "03/06/2026".
[[nodiscard]] FieldOutcome gestext(const FieldView &field, const FieldRules &rules, QStringView event,
                                   quint16 key);

/// `text` as a field of this type may hold it while it is being edited: separators mapped, forbidden
/// characters and lone surrogates dropped, cut to `length` without parting a surrogate pair. For what
/// doesn't come by the keyboard (clipboard, drop, input method). Idempotent.
[[nodiscard]] QString admissible(FieldType type, int length, QStringView text);

} // namespace velmora
