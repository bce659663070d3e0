#include "cli/cli_host.h"

#include <gtest/gtest.h>

using velmora::cli::CliHost;

TEST(CommandHost, AnswersAsToldAndRemembersANo)
{
    CliHost yes({}, true);
    EXPECT_TRUE(yes.question(QStringLiteral("Continuer ?"), {}));
    EXPECT_FALSE(yes.refusee());
    CliHost no({}, false);
    EXPECT_FALSE(no.question(QStringLiteral("Continuer ?"), {}));
    EXPECT_TRUE(no.refusee());
}

TEST(CommandHost, EndsWithStatus1AndSaysWhyOnlyWhenNothingWasSaid)
{
    CliHost silent({}, {});
    silent.siMuette([] { return QStringLiteral("la raison"); });
    EXPECT_EXIT(silent.endProcess(), testing::ExitedWithCode(1), "la raison");
    const auto spoken = [] {
        CliHost host({}, {});
        host.siMuette([] { return QStringLiteral("de trop"); });
        host.message(QStringLiteral("le message"), {});
        host.endProcess();
    };
    EXPECT_EXIT(spoken(), testing::ExitedWithCode(1), "^le message\n$");
}

TEST(CommandHost, FixedYesTriesTheSameThingAgainThreeTimes)
{
    CliHost yes({}, true);
    for (int attempt = 1; attempt <= 4; ++attempt)
        EXPECT_EQ(yes.retry(QStringLiteral("réessayer ?"), {}, attempt), attempt <= 3);
    EXPECT_TRUE(yes.refusee());
}

TEST(CommandHost, KeepsTheDateItWasGiven)
{
    const CliHost host(QDate(2024, 2, 29), {});
    EXPECT_EQ(host.today(), QDate(2024, 2, 29));
    EXPECT_EQ(host.now().date(), QDate(2024, 2, 29));
}
