#include "foncgen/field_wiring.h"

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace velmora
{
namespace
{

/// A dialog of three hour fields and a default button, shown and active.
class FieldWiringTest : public testing::Test
{
protected:
    FieldWiringTest()
    {
        auto *const layout = new QVBoxLayout(&dialog);
        for (QLineEdit *const field : {&first, &second, &third}) {
            field->setText(QStringLiteral("0h00"));
            layout->addWidget(field);
        }
        layout->addWidget(&ok);
        ok.setDefault(true);
        QObject::connect(&ok, &QPushButton::clicked, &dialog, [this] { ++accepted; });
        wireField(&first, nullptr, &second, FieldType::Hour, 5, 3);
        middle = wireField(&second, &first, &third, FieldType::Hour, 5, 3);
        wireField(&third, &second, nullptr, FieldType::Hour, 5, 3);
        dialog.show();
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        first.setFocus(Qt::OtherFocusReason);
    }

    void capitals() { wireField(&extra(), nullptr, nullptr, FieldType::Capitals, 10); }

    QLineEdit &extra()
    {
        if (!m_extra) {
            m_extra = new QLineEdit(&dialog);
            m_extra->show();
            m_extra->setFocus(Qt::OtherFocusReason);
        }
        return *m_extra;
    }

    QDialog dialog;
    QLineEdit first{&dialog};
    QLineEdit second{&dialog};
    QLineEdit third{&dialog};
    QPushButton ok{&dialog};
    FieldWiring *middle = nullptr;
    int accepted = 0;

private:
    QLineEdit *m_extra = nullptr;
};

TEST_F(FieldWiringTest, KeepsTheOldTextWhenTypingAfterFocus)
{
    QTest::keyClicks(&first, QStringLiteral("0820"));
    EXPECT_EQ(first.text(), QStringLiteral("08h20"));
}

TEST_F(FieldWiringTest, TellsOfATextThatTheTypeForbids)
{
    QSignalSpy spy(&first, &QLineEdit::textChanged);
    QTest::keyClicks(&first, QStringLiteral("x08:2099"));
    QStringList seen;
    for (const auto &arguments : spy)
        seen += arguments.first().toString();
    EXPECT_EQ(seen, QStringList({QStringLiteral("0"), QStringLiteral("08h"), QStringLiteral("08h2"),
                                 QStringLiteral("08h20")}));
}

TEST_F(FieldWiringTest, LeavesEnterToTheDefaultButtonOnTheWay)
{
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_TRUE(second.hasFocus());
    EXPECT_EQ(second.selectedText(), QStringLiteral("0h00"));
    QTest::keyClick(&second, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(third.hasFocus());
    EXPECT_EQ(accepted, 0);
}

TEST_F(FieldWiringTest, TakesEnterFromTheDefaultButtonAtTheEnd)
{
    third.setFocus();
    QTest::keyClick(&third, Qt::Key_Return);
    EXPECT_EQ(accepted, 1);
}

TEST_F(FieldWiringTest, TakesEscapeFromTheDialog)
{
    QTest::keyClick(&first, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FieldWiringTest, WalksTheArrowsTheWrongWay)
{
    QTest::keyClick(&first, Qt::Key_Down);
    EXPECT_TRUE(second.hasFocus());
    QTest::keyClick(&second, Qt::Key_Up);
    EXPECT_TRUE(first.hasFocus());
    first.setCursorPosition(4);
    QTest::keyClick(&first, Qt::Key_Right);
    EXPECT_TRUE(second.hasFocus());
    QTest::keyClick(&second, Qt::Key_Home);
    QTest::keyClick(&second, Qt::Key_Left);
    EXPECT_TRUE(first.hasFocus());
}

TEST_F(FieldWiringTest, StopsAtADisabledOrHiddenField)
{
    second.setEnabled(false);
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_TRUE(third.hasFocus());
    second.setEnabled(true);
    second.hide();
    QTest::keyClick(&third, Qt::Key_Up);
    EXPECT_TRUE(first.hasFocus());
}

TEST_F(FieldWiringTest, HangsOnStepsInACircle)
{
    second.setEnabled(false);
    third.setEnabled(false);
    FieldWiring::of(&third)->setNext([this] { return &second; });
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_TRUE(first.hasFocus());
    EXPECT_EQ(accepted, 1);
}

TEST_F(FieldWiringTest, AsksForTheNextFieldOnlyOnce)
{
    bool open = false;
    middle->setNext([&]() -> QWidget * { return open ? static_cast<QWidget *>(&ok) : nullptr; });
    second.setFocus();
    QTest::keyClick(&second, Qt::Key_Return);
    EXPECT_TRUE(second.hasFocus());
    open = true;
    QTest::keyClick(&second, Qt::Key_Return);
    EXPECT_TRUE(ok.hasFocus());
    EXPECT_EQ(accepted, 1);
}

TEST_F(FieldWiringTest, TakesTheEditingKeysFromTheUser)
{
    QTest::keyClicks(&first, QStringLiteral("0820"));
    QTest::keyClick(&first, Qt::Key_Backspace);
    EXPECT_EQ(first.text(), QStringLiteral("08h2"));
    QTest::keyClick(&first, Qt::Key_Home);
    QTest::keyClick(&first, Qt::Key_Delete);
    EXPECT_EQ(first.text(), QStringLiteral("8h2"));
    QTest::keyClick(&first, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(first.selectedText(), QStringLiteral("8h2"));
    QTest::keyClick(&first, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(first.text(), QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("8h2"));
    QTest::keyClick(&first, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(first.text(), QStringLiteral("8h2"));
    QTest::keyClick(&first, Qt::Key_Tab);
    EXPECT_TRUE(second.hasFocus());
}

TEST_F(FieldWiringTest, PastesWhatTheTypeForbids)
{
    QGuiApplication::clipboard()->setText(QStringLiteral(" 14 : 30 \n"));
    QTest::keyClick(&first, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(first.text(), QStringLiteral("14h30"));
    first.selectAll();
    QGuiApplication::clipboard()->setText(QStringLiteral("midi"));
    QTest::keyClick(&first, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(first.text(), QStringLiteral("14h30"));
    QGuiApplication::clipboard()->setText(QStringLiteral("x9h05"));
    first.paste(); // as the context menu does
    EXPECT_EQ(first.text(), QStringLiteral("9h05"));
}

TEST_F(FieldWiringTest, LetsAnInputMethodPassTheType)
{
    capitals();
    QTest::keyClicks(&extra(), QStringLiteral("f"));
    QTest::sendKeyEvent(QTest::Click, &extra(), Qt::Key_Eacute, QStringLiteral("é"), Qt::NoModifier);
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("ê\t"));
    QCoreApplication::sendEvent(&extra(), &commit);
    EXPECT_EQ(extra().text(), QStringLiteral("FÉÊ"));
    EXPECT_EQ(extra().cursorPosition(), 3);
}

TEST_F(FieldWiringTest, RewritesWhatTheFormFillsIn)
{
    capitals();
    first.setFocus();
    extra().setText(QStringLiteral("Dupont"));
    EXPECT_EQ(extra().text(), QStringLiteral("Dupont"));
}

TEST_F(FieldWiringTest, SelectsUnderAClickInAFieldThatHasTheFocus)
{
    QTest::mouseClick(&second, Qt::LeftButton);
    EXPECT_EQ(second.selectedText(), QStringLiteral("0h00"));
    QTest::mouseClick(&second, Qt::LeftButton, {}, second.rect().center());
    EXPECT_EQ(second.selectedText(), QString());
}

TEST_F(FieldWiringTest, RunsTheHooksInAnotherOrder)
{
    QStringList seen;
    middle->setHooks({.focusGained = [&] { seen += QStringLiteral("in"); },
                      .focusLost = [&] { seen += QStringLiteral("out"); },
                      .beforeKeyDown =
                          [&](quint16 key) {
                              seen += QStringLiteral("down %1").arg(key);
                              return key == fieldkey::del;
                          },
                      .afterKeyPress = [&] { seen += second.text(); }});
    QTest::keyClick(&first, Qt::Key_Return);
    QTest::keyClick(&second, Qt::Key_Delete);
    QTest::keyClick(&second, Qt::Key_9);
    QTest::keyClick(&second, Qt::Key_Return);
    EXPECT_EQ(seen, QStringList({QStringLiteral("in"), QStringLiteral("down 46"), QStringLiteral("9"),
                                 QStringLiteral("down 13"), QStringLiteral("out")}));
}

TEST_F(FieldWiringTest, CallsTheFormBackWhileItIsDestroyed)
{
    int losses = 0;
    auto *const field = new QLineEdit(&dialog);
    wireField(field, nullptr, nullptr, FieldType::Free, 30)->setHooks({.focusLost = [&] { ++losses; }});
    field->show();
    field->setFocus();
    ASSERT_TRUE(field->hasFocus());
    delete field;
    EXPECT_EQ(losses, 0);
}

TEST_F(FieldWiringTest, TreatsAnotherWindowAsLeavingTheField)
{
    int moves = 0;
    middle->setHooks({.focusGained = [&] { ++moves; }, .focusLost = [&] { ++moves; }});
    second.setFocus();
    second.setCursorPosition(2);
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&second, &out);
    QCoreApplication::sendEvent(&second, &in);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(second.selectedText(), QString());
    EXPECT_EQ(second.cursorPosition(), 2);
}

} // namespace
} // namespace velmora
