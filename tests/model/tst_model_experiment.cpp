// SPDX-License-Identifier: GPL-3.0-or-later
// Chains of experiments, and what makes them.

#include "link/factories.h"
#include "model/experiment.h"
#include "model/log.h"
#include "model/vffile.h"
#include "thalvex2/thalvex2experiment.h"

#include <QPointer>
#include <QtTest>

class TestModelExperiment : public QObject
{
    Q_OBJECT

private slots:
    void chain_data()
    {
        QTest::addColumn<QVector<int>>("positions");
        QTest::newRow("one") << QVector<int>{-3};
        QTest::newRow("two") << QVector<int>{-2, -1};
        QTest::newRow("four") << QVector<int>{-2, 0, 0, -1};
        QVector<int> many(20000, 0); // deep enough to break a deletion that calls itself
        many.first() = -2;
        many.last() = -1;
        QTest::newRow("many") << many;
    }
    void chain()
    {
        QFETCH(QVector<int>, positions);
        ExperimentChain chain(new Thalvex2Experiment);
        QVector<QPointer<Experiment>> members{chain.get()};
        while (members.size() < positions.size()) {
            members.append(new Thalvex2Experiment);
            // from any member on; from near the end here, for appending walks
            members[qMax(0, members.size() - 3)]->append(members.last());
        }
        const int step = qMax(1, members.size() / 7);
        for (int i = 0; i < members.size(); i += step) {
            QCOMPARE(members[i]->chainPosition(), positions[i]);
            QCOMPARE(members[i]->ordinal(), i + 1);
            QCOMPARE(members[i]->toJson()["eventIndex"].toInt(), i + 1);
            QCOMPARE(members[i]->first(), chain.get());
            QCOMPARE(members[i]->next(), i + 1 < members.size() ? members[i + 1].data() : nullptr);
        }
        QCOMPARE(members.last()->chainPosition(), positions.last());
        chain.reset();
        QVERIFY(std::all_of(members.cbegin(), members.cend(), [](const auto &member) { return member.isNull(); }));
    }

    /// One bad record fails the experiment; what came before it stays, what was there before goes.
    void parsesLogs()
    {
        const QByteArray good = "+VFRDXP: 1,1,0,\"21/03/05\",\"14:30:00-12\",24.1,30.2,31.0,25.9,25.6\n";
        const QByteArray bad = "+VFRDXP: 1,2,0,\"21/03/05\"\n";
        Thalvex2Experiment experiment;
        QCOMPARE(experiment.parseLogs({good, good, good}), 0);
        QCOMPARE(experiment.logs().size(), 3);
        QCOMPARE(experiment.parseLogs({good, bad, good}), 1);
        QCOMPARE(experiment.logs().size(), 1);
        QCOMPARE(experiment.parseLogs({}), 0);
        QCOMPARE(experiment.logs().size(), 0);
    }

    void knowsTheEndings_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("opened"); // class, empty: nobody's
        QTest::addColumn<QString>("saved");  // path of the smaller meter's file
        QTest::newRow("ending") << "/d/a.tvx" << "Thalvex2File" << "/d/a.tvx";
        QTest::newRow("other family's ending") << "/d/a.tv4" << "Thalvex4File" << "/d/a.tv4.tvx";
        QTest::newRow("capitals") << "/d/a.TVX" << "" << "/d/a.TVX.tvx";
        QTest::newRow("none") << "/d/a" << "" << "/d/a.tvx";
        QTest::newRow("ending alone") << "/d/.tvx" << "Thalvex2File" << "/d/.tvx";
        QTest::newRow("in the middle") << "/d/a.tvx.bak" << "" << "/d/a.tvx.bak.tvx";
        QTest::newRow("without its dot") << "/d/tvx" << "" << "/d/tvx.tvx";
    }
    void knowsTheEndings()
    {
        QFETCH(QString, fileName);
        const std::unique_ptr<VfFile> opened(FactoryFile::createForOpen(fileName));
        QTEST(opened ? QString(opened->metaObject()->className()) : QString(), "opened");
        const std::unique_ptr<VfFile> saved(FactoryFile::createForSave("THALVEX 2", fileName));
        QTEST(saved->fileName(), "saved");
    }
};

QTEST_GUILESS_MAIN(TestModelExperiment)
#include "tst_model_experiment.moc"
