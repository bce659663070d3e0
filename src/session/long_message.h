#pragma once

#include <QDialog>

namespace velmora
{

/// A message of more lines than fit a box on a small screen: the same with a text that scrolls.
class MessageLong : public QDialog
{
    Q_OBJECT

public:
    /// Lines that a message may have and still be shown whole.
    static constexpr qsizetype lignesMaxi = 24;

    MessageLong(const QString &texte, const QString &intitule, QWidget *parent = nullptr);
};

} // namespace velmora
