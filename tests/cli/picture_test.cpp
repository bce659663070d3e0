#include "cli/program.h"

#include <QImage>

using namespace velmora::test;

TEST(MonthPicture, ShowsTheWindowBesideTheSameTextAndChangesNothing)
{
    const Program program;
    program.demo();
    const Outcome text = program({"mois", "6/2026"});
    const QByteArray before = program.fingerprint();
    const QTemporaryDir pictures;
    const QString file = pictures.filePath(QStringLiteral("juin %1 'é'.png"));
    const Outcome drawn = program({"mois", "6/2026", "--png", file});
    EXPECT_EQ(drawn.status, 0);
    EXPECT_EQ(drawn.err.toStdString(), "");
    EXPECT_EQ(drawn.out, text.out);
    const QImage picture(file);
    EXPECT_EQ(picture.size(), QSize(1366, 768));
    EXPECT_EQ(program.fingerprint(), before);
}

TEST(MonthPicture, TellsAFileThatCannotBeWritten)
{
    const Program program;
    program.demo();
    const Outcome refused = program({"mois", "6/2026", "--png", program.path("absent/juin.png")});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("ne peut pas être écrite"))) << refused.err.toStdString();
}
