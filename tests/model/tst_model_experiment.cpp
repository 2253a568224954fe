// SPDX-License-Identifier: GPL-3.0-or-later
// Chains of experiments, and what makes them.

#include "link/device.h"
#include "link/factories.h"
#include "model/experiment.h"
#include "model/exposurecomponent.h"
#include "model/log.h"
#include "model/results.h"
#include "model/vffile.h"
#include "report/vfprinter.h"
#include "thalvex2/thalvex2experiment.h"
#include "thalvex4/thalvex4experiment.h"

#include <QSignalSpy>
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

    /// The page is told of a change, and of nothing else.
    void tellsOfChanges()
    {
        Thalvex4Experiment listed;
        QCOMPARE(listed.parseHeader("0,3,25,\"21/03/05\",\"14:30:00-12\",\"Forno\""), 0);
        Thalvex4Experiment copy;
        QSignalSpy index(&copy, &Experiment::experimentIndexChanged);
        QSignalSpy size(&copy, &Experiment::experimentSizeChanged);
        QSignalSpy date(&copy, &Experiment::experimentDateTimeChanged);
        QSignalSpy name(&copy, &Thalvex4Experiment::experimentNameChanged);
        for (int times = 0; times < 2; ++times) {
            copy.copyFrom(&listed);
            QCOMPARE(copy.index(), 3);
            QCOMPARE(copy.size(), 25);
            QCOMPARE(copy.dateTime(), listed.dateTime());
            QCOMPARE(copy.property("exp_Name").toString(), QString("Forno"));
            for (const QSignalSpy *spy : {&index, &size, &date, &name})
                QCOMPARE(spy->size(), 1);
        }
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

    void knowsTheProducts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("family"); // empty: nobody's
        QTest::newRow("smaller meter") << "THALVEX 2" << "Thalvex2";
        QTest::newRow("larger meter") << "THALVEX 4" << "Thalvex4";
        for (const char *name : {"", "thalvex 2", "THALVEX 2 ", " THALVEX 2", "THALVEX2", "THALVEX", "THALVEX 22"})
            QTest::addRow("'%s'", name) << name << "";
    }
    void knowsTheProducts()
    {
        QFETCH(QString, name);
        QFETCH(QString, family);
        Device plain;
        plain.setProductName(name);
        const std::pair<QObject *, const char *> made[] = {
            {FactoryDevice::create(&plain), ""},
            {FactoryDevice::create(name), ""},
            {FactoryDeviceConfig::create(name), "Config"},
            {FactoryExperiment::create(name), "Experiment"},
            {FactoryLog::create(name), "Log"},
            {FactoryResults::create(name), "Results"},
            {FactoryFile::createForSave(name, "x"), "File"},
        };
        for (const auto &[object, role] : made) {
            const std::unique_ptr<QObject> owner(object);
            QCOMPARE(object ? QString(object->metaObject()->className()) : QString(),
                     family.isEmpty() ? QString() : family + role);
        }
        const std::unique_ptr<VfPrinter> printer(FactoryPrinter::create(name));
        QCOMPARE(printer != nullptr, !family.isEmpty());
        QVERIFY(!FactoryExposureComponent::create(name)); // none of the two has one
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

    void familyTakesOverThePlainDevice()
    {
        Device plain;
        plain.setManufactoryName("morvane");
        plain.setProductName("THALVEX 2");
        plain.setSn("TX2-1");
        plain.setFw("1.08");
        plain.setCalibration({AtDateTime::fromAtString("25/11/18,10:00:00-12"), "C-1"});
        const std::unique_ptr<Device> device(FactoryDevice::create(&plain));
        QCOMPARE(device->toJson(), plain.toJson());
        QCOMPARE(device->interface(), plain.interface());
        QVERIFY(device->config() && !plain.config());
        emit plain.interface()->ifaceErrorOcurred(QSerialPort::ResourceError);
        QCOMPARE(device->portError(), int(QSerialPort::ResourceError));
    }
};

QTEST_GUILESS_MAIN(TestModelExperiment)
#include "tst_model_experiment.moc"
