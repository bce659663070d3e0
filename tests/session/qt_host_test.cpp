#include "session/qt_host.h"

#include "support/modal.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace velmora::test
{
namespace
{

void press(QWidget &box, const QString &caption)
{
    for (auto *one : box.findChildren<QPushButton *>())
        if (one->text() == caption) return QTest::mouseClick(one, Qt::LeftButton);
    ADD_FAILURE() << "no button " << caption.toStdString();
}

TEST(QtHostTest, AQuestionIsAskedInFrenchAndAnsweredByItsButtons)
{
    QtHost host;
    QString shown;
    onModal([&](QWidget &box) {
        shown = box.windowTitle() + '|' + dynamic_cast<QMessageBox &>(box).text();
        press(box, "&Oui");
    });
    EXPECT_TRUE(host.question("Problème accès disque! réessayer ?", "velmora"));
    EXPECT_EQ(shown, "velmora|Problème accès disque! réessayer ?");
    onModal([](QWidget &box) { press(box, "&Non"); });
    EXPECT_FALSE(host.question("?", "velmora"));
    onModal([](QWidget &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(host.question("?", "velmora"));
    onModal([](QWidget &box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_TRUE(host.question("?", "velmora"));
}

TEST(QtHostTest, WhatAUserTypedIsNotReadAsMarkup)
{
    QtHost host;
    onModal([](QWidget &box) {
        EXPECT_EQ(dynamic_cast<QMessageBox &>(box).textFormat(), Qt::PlainText);
        EXPECT_EQ(box.findChildren<QPushButton *>().size(), 1);
    });
    host.message("<b>Équipe</b>", "VELMORA");
}

TEST(QtHostTest, ALongMessageScrollsOnASmallScreenAndEnterOrEscapeEndIt)
{
    const QString text = QStringLiteral("Défaut Repos Hebdo\n").repeated(200);
    for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
        QtHost host;
        onModal([&](QWidget &box) {
            EXPECT_EQ(box.windowTitle(), "Velmora");
            EXPECT_LE(box.height(), 700);
            EXPECT_EQ(control<QPlainTextEdit>(box, "texte").toPlainText(), text);
            QTest::keyClick(&box, static_cast<Qt::Key>(key));
            EXPECT_FALSE(box.isVisible());
        });
        host.message(text, "Velmora");
    }
}

TEST(QtHostTest, AGivenAnswerAsksNobody)
{
    EXPECT_TRUE(QtHost({.today = {}, .answer = true}).question("?", "velmora"));
    EXPECT_FALSE(QtHost({.today = {}, .answer = false}).question("?", "velmora"));
}

TEST(QtHostTest, AGivenDateIsTodayForEveryCaller)
{
    const QtHost host({.today = QDate(2026, 6, 15), .answer = {}});
    EXPECT_EQ(host.today(), QDate(2026, 6, 15));
    EXPECT_EQ(host.now().date(), QDate(2026, 6, 15));
}

TEST(QtHostTest, ALocalPageOpensByItsWholePath)
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    QFile page("page d'aide #1.htm");
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    const QUrl url = addressOf("page d'aide #1.htm");
    EXPECT_EQ(url.toLocalFile(), QDir::currentPath() + "/page d'aide #1.htm");
    EXPECT_EQ(addressOf("https://aide.velmora.example/sommaire.htm").scheme(), "https");
    QDir::setCurrent(before);
}

TEST(QtHostTest, ADocumentWithoutAProgramIsKnownBeforehand)
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_TRUE(hasProgram("Planning.xlsx")) << "the desktop can't be asked";
    // The desktop's own tool answers with the name of a program, or with nothing.
    QFile tool(folder.filePath("xdg-mime"));
    ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\n[ \"$1 $2 ${3##*.}\" = 'query default sheet' ] && echo calc.desktop\nexit 0\n");
    tool.close();
    ASSERT_TRUE(tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_TRUE(hasProgram("Planning.xlsx"));
    EXPECT_FALSE(hasProgram("Planning.txt"));
    qputenv("PATH", before);
}

TEST(QtHostDeathTest, EndOfTheProcessRunsNoCleanUp)
{
    EXPECT_EXIT(
        {
            std::atexit([] { std::abort(); });
            QtHost().endProcess();
        },
        testing::ExitedWithCode(EXIT_FAILURE), "");
}

} // namespace
} // namespace velmora::test
