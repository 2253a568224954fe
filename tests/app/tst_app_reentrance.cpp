// SPDX-License-Identifier: GPL-3.0-or-later
// Slots that are called while another one waits for the instrument.

#include "tests/app/pluggedcore.h"
#include "simulator/pseudoterminal.h"

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
            row("same instrument", [](Core &core) { return core.createDevice(0); }, -2, Whole);
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
        QCOMPARE(download, outcome == Whole ? 0 : -4);
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

    /// A second scan, asked for by a page while the first one runs, is the first.
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

    /// A double click, and a file that is opened while an instrument connects.
    void whileConnecting()
    {
        PluggedCore plugged;
        Core &core = plugged.core;
        core.findDevices();
        plugged.instrument.fault(Fault::late(100).on("AT+VFSVCCFG?\r\n"));
        int again = 0;
        QTimer::singleShot(30, &core, [&] { again = core.createDevice(0); });
        QCOMPARE(core.createDevice(0), 0);
        QCOMPARE(again, -2);
        QTimer::singleShot(30, &core, [&] { core.parseFile(MORVANE_TEST_DATA "/one.tvx"); });
        QCOMPARE(core.createDevice(0), -4);
        QCOMPARE(sizeOf(core.experiment()), 3);
        QTest::qWait(150); // the answer comes after all, and is nobody's
        QCOMPARE(plugged.begin(), 0);
    }

    /// A receiver of position signals or a modem among the ports: it talks by itself, and never ends.
    void scanWithADeviceThatNeverStopsTalking_data()
    {
        QTest::addColumn<int>("bytes"); // each millisecond
        QTest::addColumn<int>("closed"); // after so many ms
        QTest::addColumn<int>("most");   // ms that the scan takes
        QTest::newRow("much") << 4000 << 0 << 3000;
        QTest::newRow("little") << 1 << 0 << 12000;
        QTest::newRow("the window is closed") << 10 << 200 << 400;
    }
    void scanWithADeviceThatNeverStopsTalking()
    {
        QFETCH(int, bytes);
        QFETCH(int, closed);
        QFETCH(int, most);
        PluggedCore plugged;
        PseudoTerminal talker;
        plugged.morePorts = QStringList{talker.name()};
        const QByteArray talk = QByteArray("$GPGGA,1,2,3\r\n").repeated(400).left(bytes);
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { (void)talker.write(talk.constData(), talk.size()); });
        timer.start(1);
        if (closed)
            QTimer::singleShot(closed, &plugged.core, &Core::closePorts);
        QElapsedTimer time;
        time.start();
        plugged.core.findDevices();
        QVERIFY2(time.elapsed() < most, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(plugged.log.take().count("findDeviceFinished"), closed ? 0 : 1);
        QCOMPARE(plugged.found(), 1);
    }
};

QTEST_GUILESS_MAIN(TestAppReentrance)
#include "tst_app_reentrance.moc"
