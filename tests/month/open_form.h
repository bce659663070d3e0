#pragma once

#include "entry/partielm.h"
#include "month/fplan.h"
#include "support/workstation.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

namespace velmora::test
{

inline const QDate june3(2026, 6, 3);

/// An open month on two lines, shown off screen and loaded.
class FplanTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    std::unique_ptr<Fplan> form;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"));
        station.addLine(2, QStringLiteral("BERNARD"), QDate(2026, 5, 1), QDate(2026, 6, 10));
        station.addDay(1, june3, 480, 1080, 720, 840);
        station.addDay(2, june3, 1320, 360);
    }

    void openMonth()
    {
        session.moisvue = 6;
        session.anvue = 2026;
        form = std::make_unique<Fplan>(session);
        QSignalSpy ready(form.get(), &MonthView::ready);
        form->resize(1366, 700);
        form->show();
        ASSERT_TRUE(ready.wait(5000));
        settle();
    }

    /// Lets the one-shot timers run.
    static void settle() { QTest::qWait(30); }

    VueGrille *grid() { return form->findChild<VueGrille *>(QStringLiteral("mg")); }
    Planning &planning() { return form->planning(); }
    int column(const QDate &date) { return planning().colonnes.colonneDe(date); }
    QString cell(int nump, const QDate &date)
    {
        return planning().grille.lit(planning().grille.ligneDe(nump), column(date)).texte;
    }
    QPoint at(int nump, const QDate &date)
    {
        const auto index = grid()->modele().index(ModeleGrille::ligneVue(planning().grille.ligneDe(nump)),
                                                  ModeleGrille::colonneVue(column(date)));
        grid()->scrollTo(index);
        return grid()->visualRect(index).center();
    }
    void click(int nump, const QDate &date)
    {
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, at(nump, date));
        settle();
    }
    QString status() { return form->findChild<QLabel *>(QStringLiteral("statut"))->text(); }

    /// Acts on the dialog that the next event opens, the day entry unless another is named.
    template <class Dialog = Partielm>
    void withDialog(const std::function<void(std::type_identity_t<Dialog> &)> &act)
    {
        QTimer::singleShot(60, form.get(), [act] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            QTest::qWait(20);
            act(*dialog);
        });
    }
};

} // namespace velmora::test
