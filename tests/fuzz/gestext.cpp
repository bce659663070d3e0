#include "fuzz/input.h"

#include "foncgen/gestext.h"

using namespace velmora;

namespace
{

constexpr FieldRules rules[] = {{FieldType::Hour, 5, 3},  {FieldType::Hour, 6, 0},
                                {FieldType::Date, 10, 0}, {FieldType::Capitals, 15, 0},
                                {FieldType::Free, 30, 0}, {FieldType::Number, 2, 0}};

/// Does to the field what the outcome of a key asks for.
void type(FieldView &field, const FieldRules &rule, quint16 key)
{
    const FieldOutcome outcome = gestext(field, rule, u"KP", key);
    QString insertion = outcome.insertion;
    // Control characters, of which 127 is one, are commands.
    if (insertion.isEmpty() && outcome.key >= u' ' && outcome.key != 127)
        insertion = QString(QChar(outcome.key));
    if (insertion.isEmpty()) return;
    field.text.replace(field.cursor, field.selectionLength, insertion);
    field.cursor += static_cast<int>(insertion.size());
    field.selectionLength = 0;
}

} // namespace

/// A stream of keys: the first byte chooses the field, then each pair of bytes is a key, or a move of the
/// caret when it is odd and above the keyboard's.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) return 0;
    const FieldRules &rule = rules[data[0] % std::size(rules)];
    FieldView field;
    for (std::size_t i = 1; i + 1 < size; i += 2) {
        const auto key = static_cast<quint16>(data[i] | (data[i + 1] << 8));
        if (data[i + 1] % 7 == 6) {
            field.cursor = data[i] % (static_cast<int>(field.text.size()) + 1);
            field.selectionStart = field.cursor;
            field.selectionLength = data[i] % 3 == 0 ? static_cast<int>(field.text.size()) - field.cursor : 0;
            static_cast<void>(gestext(field, rule, u"KD", key));
        } else {
            type(field, rule, data[i + 1] % 2 == 0 ? data[i] : key);
        }
        fuzz::require(field.text.size() <= rule.length, "a field holds its length at most");
    }
    const QString kept = admissible(rule.type, rule.length, field.text);
    fuzz::require(admissible(rule.type, rule.length, kept) == kept, "admitted text is admitted again");
    return 0;
}
