#include "month/fplan.h"
#include "output/print_dialog.h"
#include "support/modal.h"
#include "support/workstation.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>

namespace velmora::test
{
namespace
{

/// What a command of the month has opened and handed over.
struct Opened {
    QString dialog;
    QDate impdate;
    QDate impdeb;
    QDate impfin;
};

class FplanPrints : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    std::unique_ptr<Fplan> form;

    void SetUp() override
    {
        station.addLine(7, "ANNE");
        session.moisvue = 6;
        session.anvue = 2026;
        form = std::make_unique<Fplan>(session);
        QSignalSpy ready(form.get(), &MonthView::ready);
        form->show();
        ASSERT_TRUE(ready.wait(5000));
        QTest::qWait(30);
    }
    Opened open(const std::function<void()> &command)
    {
        Opened opened;
        onModal([&](QWidget &modal) {
            opened = {modal.objectName(), session.impdate, session.impdeb, session.impfin};
            QTest::keyClick(&modal, Qt::Key_Escape);
        });
        command();
        return opened;
    }
    Opened trigger(const char *entry)
    {
        return open([&] { form->findChild<QAction *>(QLatin1String(entry))->trigger(); });
    }
};

TEST_F(FplanPrints, EachCommandOpensItsDialogOnTheDatesOfTheCursor)
{
    Planning &planning = form->planning();
    // The total of the week that ends on Sunday 31 May stands for that day.
    planning.curseur.colonne = planning.colonnes.colonneDe({2026, 5, 31}) + 1;
    const QDate first(2026, 5, 1);
    const QDate last(2026, 5, 31);
    for (const auto &[entry, dialog] : {std::pair("mnuimpi", "Fimppli"), std::pair("mnupie", "Fimpplii")}) {
        const Opened opened = trigger(entry);
        EXPECT_EQ(opened.dialog, dialog);
        EXPECT_EQ(opened.impdate, last);
        EXPECT_EQ(opened.impdeb, first);
        EXPECT_EQ(opened.impfin, last);
    }
    EXPECT_EQ(session.saisdeb, "ANNE");
    EXPECT_EQ(session.saisligne, 7);
    const Opened week = trigger("mnuimph");
    EXPECT_EQ(week.dialog, "Fimpplh");
    EXPECT_EQ(week.impdate, last);
    EXPECT_EQ(week.impdeb, planning.periode.debgrille);
    EXPECT_EQ(week.impfin, planning.periode.fingrille);
}

} // namespace
} // namespace velmora::test
