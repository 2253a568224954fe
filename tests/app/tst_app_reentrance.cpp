// SPDX-License-Identifier: GPL-3.0-or-later
// Slots that are called while another one waits for the instrument.

#include "tests/app/pluggedcore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>
#include <QtTest>

namespace {

using Slot = std::function<int(Core &core)>;

enum Outcome { Whole, Ended, FromFile };

int sizeOf(const QString &experiment)
{
    return QJsonDocument::fromJson(experiment.toUtf8()).object()["logList"].toArray().size();
}

} // namespace

Q_DECLARE_METATYPE(Slot)

class TestAppReentrance : public QObject
{
    Q_OBJECT

private slots:
    void duringADownload_data()
    {
        QTest::addColumn<Slot>("slot");
        QTest::addColumn<int>("code");    // of the slot
        QTest::addColumn<int>("outcome"); // of the download
        QTest::addColumn<bool>("fromProgress");
        for (const bool fromProgress : {true, false}) {
            const auto row = [fromProgress](const char *name, const Slot &slot, int code, Outcome outcome) {
                QTest::addRow("%s, %s", name, fromProgress ? "from the progress bar" : "while waiting")
                    << slot << code << int(outcome) << fromProgress;
            };
            const auto call = [](void (Core::*slot)()) {
                return [slot](Core &core) {
                    (core.*slot)();
                    return 0;
                };
            };
            row("scan", call(&Core::findDevices), 0, Ended);
            row("close", [](Core &core) { core.closePorts(); return 0; }, 0, Ended);
            row("file", [](Core &core) { core.parseFile(MORVANE_TEST_DATA "/one.tvx"); return 0; }, 0, FromFile);
            row("no file", [](Core &core) { core.parseFile("/nowhere.tvx"); return 0; }, 0, Ended);
            // in the middle of an exchange the same port cannot carry another
            row("same instrument", [](Core &core) { return core.createDevice(0); }, fromProgress ? 0 : -3, Ended);
            row("no instrument", [](Core &core) { return core.createDevice(7); }, -1, Whole);
            row("download", [](Core &core) { return core.createExperiment("[0]"); }, -2, Whole);
            row("list", [](Core &core) { return core.findExperiments(); }, -2, Whole);
            row("clock", [](Core &core) { return core.setTimeNow(); }, -2, Whole);
            row("erase", [](Core &core) { return core.eraseMemory(); }, -2, Whole);
            row("configuration", [](Core &core) { return core.acquireConfiguration(); }, -2, Whole);
            row("calibration", [](Core &core) { return core.sndCalibration("{}"); }, -2, Whole);
            row("arrows", call(&Core::nextExp), 0, Whole);
        }
    }
    void duringADownload()
    {
        QFETCH(Slot, slot);
        QFETCH(int, code);
        QFETCH(int, outcome);
        QFETCH(bool, fromProgress);
        PluggedCore plugged;
        Core &core = plugged.core;
        QCOMPARE(plugged.begin(), 0);
        int inner = 1;
        const auto once = [&] {
            if (inner == 1) {
                inner = 2; // the slot may bring us here again
                inner = slot(core);
            }
        };
        if (fromProgress) {
            connect(&core, &Core::progressBarUpdated, this, [&](double progress) {
                if (progress > 0 && progress < 100)
                    once();
            });
        } else {
            plugged.instrument.fault(Fault::late(150).on("AT+VFRDXP=").at(2));
            connect(&core, &Core::progressBarUpdated, this, [&](double progress) {
                if (progress > 0 && progress < 50)
                    QTimer::singleShot(50, this, once);
            });
        }
        QElapsedTimer time;
        time.start();
        const int download = core.createExperiment("[1]");
        disconnect(&core, nullptr, this, nullptr);
        QCOMPARE(inner, code);
        QCOMPARE(download, outcome == Whole ? 0 : -1);
        QVERIFY2(time.elapsed() < 4000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(sizeOf(core.experiment()), outcome == Whole ? 25 : outcome == FromFile ? 3 : 0);
        const QByteArrayList told = plugged.log.take();
        QCOMPARE(told.count("experimentUpdated"), outcome == Ended ? 0 : 1);
        QVERIFY(!told.contains("deviceDisconnected"));

        // and the program goes on
        plugged.instrument.clearFaults();
        if (outcome != Whole)
            QCOMPARE(plugged.begin(), 0);
        QCOMPARE(core.createExperiment("[0]"), 0);
        QCOMPARE(sizeOf(core.experiment()), 1);
    }

    /// A second scan, begun by a page while the first one runs, takes its place.
    void scanDuringAScan()
    {
        PluggedCore plugged;
        SimulatedInstrument second(simulatedThalvex4(2));
        plugged.morePorts = QStringList{second.portName()};
        bool begun = false;
        connect(&plugged.core, &Core::findingDevices, this, [&](double progress) {
            if (progress < 100 || begun)
                return;
            begun = true;
            plugged.core.findDevices();
        });
        plugged.core.findDevices();
        QCOMPARE(plugged.found(), 2);
        QCOMPARE(plugged.log.take().count("findDeviceFinished"), 1);
        QCOMPARE(plugged.core.createDevice(1), 0);
    }

    /// The window is closed, and with it the program ends, in mid-scan too.
    void closingDuringAScan()
    {
        PluggedCore plugged;
        plugged.instrument.fault(Fault::silence().on("AT+CGMI\r\n"));
        QTimer::singleShot(50, &plugged.core, &Core::closePorts);
        QElapsedTimer time;
        time.start();
        plugged.core.findDevices();
        QVERIFY2(time.elapsed() < 1500, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(plugged.found(), 0);
    }
};

QTEST_GUILESS_MAIN(TestAppReentrance)
#include "tst_app_reentrance.moc"
