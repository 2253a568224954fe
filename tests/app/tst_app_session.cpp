// SPDX-License-Identifier: GPL-3.0-or-later
// The controller from scan to file: codes, signals in their order, and what the pages then read.

#include "tests/app/pluggedcore.h"
#include "tests/link/processortime.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Names = QByteArrayList;

QJsonObject json(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

const Names Dropped{"deviceDisconnected", "devListUpdate", "experimentListUpdate"};
const Names Downloaded{"expCompListUpdate", "dataRegisterListUpdate", "experimentUpdated"};

using Slot = std::function<int(Core &)>;

} // namespace

Q_DECLARE_METATYPE(Slot)

class TestAppSession : public QObject
{
    Q_OBJECT

private slots:
    void hasTheInterfaceThatPagesKnow()
    {
        const QMetaObject &meta = Core::staticMetaObject;
        QByteArrayList events;
        QByteArrayList slotNames;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            (method.methodType() == QMetaMethod::Signal ? events : slotNames)
                .append(method.methodSignature() + (method.returnType() == QMetaType::Int ? ":int" : ""));
        }
        QCOMPARE(events, QByteArray("devListUpdate() experimentListUpdate() expCompListUpdate() dataRegisterListUpdate() "
                                    "thalvex2ProgressUpdate() ardel2ProgressUpdate() experimentUpdated(int) "
                                    "progressBarUpdated(double) resultsUpdated(int) scheduleListUpdate() scheduleOk() "
                                    "configurationChanged() configurationUpdated() calibrationUpdated() "
                                    "versionChanged() findingDevices(double) findDeviceFinished() eraseStarted() "
                                    "eraseSuccessful() eraseFailed() fileReadFinished() fileReadStarted() deviceBusy() "
                                    "deviceDisconnected() invalidFile() unsupportedDevice() scheduleError(QString) "
                                    "openFileError(QString) configurationError()").split(' '));
        QCOMPARE(slotNames,
                 QByteArray("setTimeNow():int findExperiments():int saveExperimentToFile(QString):int "
                            "createDevice(int):int createExperiment(QString):int acquireConfiguration():int "
                            "acquireScheduleList():int sndConfiguration(QString):int sndCalibration(QString):int "
                            "sndScheduleList(QString):int eraseMemory():int generateReport(QString):int "
                            "refreshWorkingHours(QString) refreshPartialResults(QString) refreshGeneralData(QString) "
                            "parseFile(QString) updateProgressBar(double) removeSchedule(int) addSchedule(QString) "
                            "serialErrorOcurred(QSerialPort::SerialPortError) deviceIsBusy() findDevices() nextExp() "
                            "prevExp()").split(' '));
    }

    void withoutASessionEverythingIsEmpty()
    {
        Core core([] { return QStringList(); });
        SignalLog log(&core);
        QCOMPARE(core.devName(), QString());
        QCOMPARE(core.device().toJsonObject(), QJsonObject());
        for (const QString &text : {core.experiment(), core.configuration(), core.calib()})
            QCOMPARE(text, QString());
        for (const QVariant &list : {core.deviceList(), core.experimentList(), core.expCompList()})
            QVERIFY(list.value<QList<QObject *>>().isEmpty());
        QCOMPARE(core.version() + core.builtYear() + core.revision(), QString("1.02019716"));
        QVERIFY(core.builtDate().contains(" - "));
        const auto failing = {core.createDevice(0), core.createDevice(-1), core.createExperiment("[0]"), core.setTimeNow(),
                              core.findExperiments(), core.acquireConfiguration(), core.eraseMemory(),
                              core.sndCalibration("{}"), core.acquireScheduleList(), core.sndScheduleList("{}"),
                              core.saveExperimentToFile("/dev/null")};
        for (const int code : failing)
            QCOMPARE(code, -1);
        core.nextExp();
        core.prevExp();
        core.refreshWorkingHours("{}");
        core.refreshPartialResults("[]");
        core.refreshGeneralData("{}");
        QCOMPARE(log.take(), Names{"experimentListUpdate"}); // of findExperiments, which begins by emptying the list
        QCOMPARE(core.sndConfiguration("{}"), -1);
        QCOMPARE(core.generateReport("{}"), -1);
        QCOMPARE(log.take(), (Names{"configurationError", "unsupportedDevice"}));
    }

    void scan_data()
    {
        QTest::addColumn<QByteArray>("manufacturer");
        QTest::addColumn<int>("found");
        const QByteArray tag = "\r\n+CGMI: ";
        QTest::newRow("ours") << QByteArray() << 1;
        QTest::newRow("another maker") << tag + "other\r\n\r\nOK\r\n" << 0;
        QTest::newRow("a capital letter") << tag + "Morvane\r\n\r\nOK\r\n" << 0;
        QTest::newRow("refuses") << QByteArray("\r\nERROR\r\n") << 0;
        QTest::newRow("silent") << QByteArray("silence") << 0;
    }
    void scan()
    {
        QFETCH(QByteArray, manufacturer);
        PluggedCore plugged;
        if (manufacturer == "silence")
            plugged.instrument.fault(Fault::silence());
        else if (!manufacturer.isEmpty())
            plugged.instrument.answer("AT+CGMI\r\n", manufacturer);
        SimulatedInstrument second(simulatedThalvex4(2, 0));
        plugged.morePorts = QStringList{"/dev/does-not-exist", second.portName()};
        QSignalSpy progress(&plugged.core, &Core::findingDevices);
        QElapsedTimer time;
        time.start();
        plugged.core.findDevices();
        QCOMPARE(plugged.log.take(), (Names{"devListUpdate", "devListUpdate", "findDeviceFinished"}));
        if (manufacturer == "silence")
            QVERIFY2(time.elapsed() < 1400, "two silence limits for a silent port");
        QFETCH(int, found);
        QCOMPARE(plugged.found(), found + 1);
        QCOMPARE(progress.size(), 3);
        QCOMPARE(progress[0][0].toDouble(), double(1 / 3.0f * 100.0f));
        QCOMPARE(progress[2][0].toDouble(), 100.0);
        QObject *last = plugged.core.deviceList().value<QList<QObject *>>().last();
        QCOMPARE(last->property("productName").toString(), QString("THALVEX 4"));
        QCOMPARE(last->property("sn").toString(), QString::fromLatin1(second.inside().identity().serialNumber));
    }

    void scanWithoutPorts()
    {
        Core core([] { return QStringList(); });
        SignalLog log(&core);
        core.findDevices();
        QCOMPARE(log.take(), (Names{"devListUpdate", "devListUpdate", "findDeviceFinished"}));
    }

    void createDevice()
    {
        PluggedCore plugged;
        SimulatedInstrument stranger(simulatedThalvex2());
        stranger.answer("AT+CGMM\r\n", "\r\n+CGMM: THALVEX 9\r\n\r\nOK\r\n");
        plugged.morePorts = QStringList{stranger.portName()};
        plugged.core.findDevices();
        plugged.log.take();
        for (const int position : {-1, 2, 99})
            QCOMPARE(plugged.core.createDevice(position), -1);
        QCOMPARE(plugged.log.take(), Names());
        QCOMPARE(plugged.core.createDevice(1), -1);
        QCOMPARE(plugged.log.take(), Names{"unsupportedDevice"});
        QCOMPARE(plugged.core.createDevice(0), 0);
        QCOMPARE(plugged.log.take(), Names());
        QCOMPARE(plugged.core.devName(), QString("THALVEX 2"));
        QCOMPARE(plugged.core.device().toJsonObject()["manufactory"].toString(), QString("morvane"));
        plugged.instrument.fault(Fault::busy().on("AT+VFSVCCFG?\r\n"));
        QCOMPARE(plugged.core.createDevice(0), -2);

        const auto device = qobject_cast<Device *>(plugged.core.deviceList().value<QList<QObject *>>()[1]);
        stranger.unplug();
        QTRY_VERIFY(device->portError() != QSerialPort::NoError);
        QCOMPARE(plugged.core.createDevice(1), -3);
        QCOMPARE(plugged.log.take(), (Names{"devListUpdate", "deviceDisconnected"}));
        QCOMPARE(plugged.found(), 1);
    }

    /// An instrument that is in the list, but not the session's, is pulled out.
    void unpluggedUnpickedKeepsNoCoreBusy()
    {
        PluggedCore plugged;
        plugged.core.findDevices();
        QCOMPARE(plugged.found(), 1);
        plugged.instrument.unplug();
        QCoreApplication::processEvents();
        const double busy = processorTimeAtRest(300);
        QVERIFY2(busy < 0.1, qPrintable(QString("%1 s of 0.3 s").arg(busy)));
        QCOMPARE(plugged.core.createDevice(0), -3);
        QCOMPARE(plugged.found(), 0);
    }

    void exchanges()
    {
        PluggedCore plugged;
        Core &core = plugged.core;
        QCOMPARE(plugged.begin(), 0);
        VirtualInstrument &inside = plugged.instrument.inside();
        QVERIFY(qAbs(inside.clock().utc() - QDateTime::currentSecsSinceEpoch()) < 10);
        QCOMPARE(inside.clock().quarters, QDateTime::currentDateTime().offsetFromUtc() / 900);

        QCOMPARE(core.sndConfiguration(R"({"unity":"°F","sampleTime":"01:30"})"), 0);
        QCOMPARE(inside.setting("VFUNIT"), QByteArray("\"F\""));
        QCOMPARE(inside.setting("VFINTVL"), QByteArray("90"));
        QCOMPARE(plugged.log.take(), Names());
        for (const char *refused : {"[]", "", "5"})
            QCOMPARE(core.sndConfiguration(refused), -1);
        QCOMPARE(plugged.log.take(), (Names{"configurationError", "configurationError", "configurationError"}));

        QCOMPARE(core.sndCalibration(R"({"date":"2026-01-02T03:04:05-03:00","certification":"ç 1"})"), 0);
        QCOMPARE(core.acquireConfiguration(), 0);
        QCOMPARE(plugged.log.take(), (Names{"configurationUpdated", "calibrationUpdated"}));
        QCOMPARE(json(core.configuration()), json(R"({"productName":"THALVEX 2","sampleTime":"01:30","unity":"°F"})"));
        QCOMPARE(json(core.calib()), json(R"({"certification":"Ç 1","date":"26/01/02,03:04:05-12"})"));
        plugged.instrument.fault(Fault::busy().on("AT+VFINTVL?\r\n"));
        QCOMPARE(core.acquireConfiguration(), -2);
        plugged.instrument.fault(Fault::busy().on("AT+VFCTF="));
        QCOMPARE(core.sndCalibration("{}"), -2);
        QCOMPARE(plugged.log.take(), Names{"deviceBusy"});

        plugged.instrument.fault(Fault::error().on("AT+VFERSMM\r\n"));
        QCOMPARE(core.eraseMemory(), -1);
        QCOMPARE(plugged.log.take(), Names{"eraseStarted"});
        QCOMPARE(plugged.listed(), 5);
        plugged.instrument.clearFaults();
        QCOMPARE(core.eraseMemory(), 0);
        QCOMPARE(plugged.log.take(), (Names{"eraseStarted", "experimentListUpdate"}));
        QCOMPARE(plugged.listed(), 0);
        QVERIFY(inside.memory().isEmpty());
        QCOMPARE(core.findExperiments(), 0);
        QCOMPARE(plugged.log.take(), (Names{"experimentListUpdate", "experimentListUpdate"}));
        inside.addExperiment({});
        for (const Fault &fault : {Fault::busy(), Fault::error(), Fault()}) {
            plugged.instrument.clearFaults();
            plugged.instrument.fault(fault);
            QCOMPARE(core.findExperiments(), 0);
        }
        QCOMPARE(plugged.listed(), 1);
    }

    /// Whatever a slot was doing: the port is gone, and so is the session.
    void unplugged_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<Names>("before");
        QTest::addColumn<Slot>("slot");
        const auto row = [](const char *name, const char *command, const Slot &slot, const Names &before = {}) {
            QTest::newRow(name) << QByteArray(command) << before << slot;
        };
        row("clock", "AT+CCLK=", [](Core &core) { return core.setTimeNow(); });
        row("list", "AT+VFXPLST", [](Core &core) { return core.findExperiments(); }, {"experimentListUpdate"});
        row("records", "AT+VFRDXP=", [](Core &core) { return core.createExperiment("[0,1]"); });
        row("first header", "AT+VFXPHDR=1", [](Core &core) { return core.createExperiment("[0,1]"); });
        row("closing record", "AT+VFXPHDR=8", [](Core &core) { return core.createExperiment("[0,1]"); });
        row("second experiment", "AT+VFRDXP=2,11", [](Core &core) { return core.createExperiment("[0,1]"); });
        row("read configuration", "AT+VFUNIT?", [](Core &core) { return core.acquireConfiguration(); });
        row("read calibration", "AT+VFCTF?", [](Core &core) { return core.acquireConfiguration(); });
        row("configuration", "AT+VFINTVL=",
            [](Core &core) { return core.sndConfiguration(R"({"unity":"°F","sampleTime":"01:30"})"); });
        row("calibration", "AT+VFCTF=", [](Core &core) { return core.sndCalibration("{}"); });
        row("erase", "AT+VFERSMM", [](Core &core) { return core.eraseMemory(); }, {"eraseStarted"});
    }
    void unplugged()
    {
        QFETCH(QByteArray, command);
        QFETCH(Names, before);
        QFETCH(Slot, slot);
        PluggedCore plugged;
        QCOMPARE(plugged.begin(), 0);
        plugged.instrument.fault(Fault::unplugged(3).on(command));
        QCOMPARE(slot(plugged.core), -3);
        QCOMPARE(plugged.log.take(), before + Dropped);
        QCOMPARE(plugged.core.experiment(), QString());
        QCOMPARE(plugged.found() + plugged.listed(), 0);
        QVERIFY(slot(plugged.core) != 0); // a page that has not heard of it does no harm
    }

    void createExperiment_data()
    {
        QTest::addColumn<QString>("positions");
        QTest::addColumn<int>("code");
        QTest::addColumn<QVector<int>>("indices"); // of the chain
        QTest::newRow("one") << "[1]" << 0 << QVector<int>{2};
        QTest::newRow("several, in the order asked for") << "[1,0,1]" << 0 << QVector<int>{2, 1, 2};
        QTest::newRow("none") << "[]" << -1 << QVector<int>();
        for (const char *text : {"", "5", "{}", "x", "[-1]", "[5]", "[99999999999]", "[\"1\"]", "[null]", "[0.5]"})
            QTest::newRow(*text ? text : "empty text") << text << -1 << QVector<int>();
        QTest::newRow("a bad one after a good one") << "[1,9]" << -1 << QVector<int>{2};
    }
    void createExperiment()
    {
        QFETCH(QString, positions);
        QFETCH(int, code);
        QFETCH(QVector<int>, indices);
        PluggedCore plugged;
        Core &core = plugged.core;
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(core.createExperiment("[0]"), 0); // to be replaced
        plugged.log.take();
        QSignalSpy updated(&core, &Core::experimentUpdated);
        QCOMPARE(core.createExperiment(positions), code);
        QCOMPARE(plugged.log.take(), code == 0 ? Downloaded : Names());
        if (code == 0)
            QCOMPARE(updated.last().first().toInt(), indices.size() == 1 ? -3 : -2);
        QVector<int> got;
        const QSignalSpy results(&core, &Core::resultsUpdated);
        for (const int index : indices) {
            const QJsonObject experiment = json(core.experiment());
            got.append(experiment["index"].toString().toInt());
            QCOMPARE(experiment["eventIndex"].toInt(), got.size());
            QCOMPARE(experiment["logList"].toArray().size(), experiment["size"].toString().toInt());
            QCOMPARE(experiment["deviceName"].toString(), QString("THALVEX 2"));
            QCOMPARE(experiment["size"].toString(), QString(index == 2 ? "25" : "1"));
            core.nextExp();
        }
        QCOMPARE(got, indices);
        QCOMPARE(results.size(), qMax(0, indices.size() - 1)); // at the end there is no next
        for (int i = 1; i < indices.size(); ++i) {
            QCOMPARE(results[i - 1].first().toInt(), i + 1 < indices.size() ? 0 : -1);
            core.prevExp();
        }
        core.prevExp();
        if (!indices.isEmpty())
            QCOMPARE(json(core.experiment())["eventIndex"].toInt(), 1);
    }

    void downloadSaveReopen_data()
    {
        QTest::addColumn<bool>("larger");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored");
        QTest::newRow("plain") << false << "plain" << "plain.tvx";
        QTest::newRow("with its ending") << false << "a.tvx" << "a.tvx";
        QTest::newRow("ending in capitals") << false << "a.TVX" << "a.TVX.tvx";
        QTest::newRow("blank and accent") << true << "Fundição 1" << "Fundição 1.tv4";
        QTest::newRow("number sign") << true << "n%231" << "n#1.tv4";
        QTest::newRow("per cent and plus") << false << "100%25+1" << "100%+1.tvx";
    }
    void downloadSaveReopen()
    {
        QFETCH(bool, larger);
        QFETCH(QString, name);
        QFETCH(QString, stored);
        const QTemporaryDir folder;
        PluggedCore plugged(larger ? simulatedThalvex4(3, 2) : simulatedThalvex2());
        Core &core = plugged.core;
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(core.createExperiment("[1]"), 0);
        QCOMPARE(core.acquireConfiguration(), 0); // brings the calibration
        const QString experiment = core.experiment();
        const QJsonObject device = core.device().toJsonObject();
        QCOMPARE(json(experiment)["logList"].toArray().size(), 25);
        if (larger) {
            QCOMPARE(json(experiment)["expName"].toString(), QString("Forno nº 2"));
            QCOMPARE(json(experiment)["results"].toObject()["wbgtList"].toArray().size(), 3);
        }
        plugged.log.take();
        QCOMPARE(core.saveExperimentToFile("file://" + folder.filePath(name)), 0);
        QCOMPARE(plugged.log.take(), Names());
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{stored});

        QUrl chosen = QUrl::fromLocalFile(folder.filePath(stored));
        for (const QString &url : {chosen.toString(), QString::fromLatin1(chosen.toEncoded())}) {
            Core reader([] { return QStringList(); });
            SignalLog log(&reader);
            QSignalSpy position(&reader, &Core::experimentUpdated);
            reader.parseFile(url);
            QCOMPARE(log.take(), (Names{"fileReadStarted", "expCompListUpdate", "experimentUpdated", "fileReadFinished"}));
            QCOMPARE(position.first().first().toInt(), -3);
            QCOMPARE(reader.experiment(), experiment);
            QCOMPARE(reader.device().toJsonObject(), device);
            // a session without a port: commands fail, saving works
            QCOMPARE(reader.setTimeNow(), -3);
            QCOMPARE(reader.eraseMemory(), -3);
            QCOMPARE(reader.acquireConfiguration(), -3);
            QCOMPARE(reader.createExperiment("[0]"), -1);
        }
    }

    /// Another instrument is picked while the measurements of the first are shown: they are kept as what they are.
    void savesAsTheFamilyThatMeasured()
    {
        const QTemporaryDir folder;
        PluggedCore plugged;
        SimulatedInstrument second(simulatedThalvex4(2));
        plugged.morePorts = QStringList{second.portName()};
        Core &core = plugged.core;
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(core.createExperiment("[0]"), 0);
        QCOMPARE(core.createDevice(1), 0);
        QCOMPARE(core.saveExperimentToFile(folder.filePath("kept")), 0);
        core.parseFile(folder.filePath("kept.tvx"));
        QCOMPARE(core.devName(), QString("THALVEX 2"));
        QVERIFY(!core.experiment().isEmpty());
    }

    void savingWhereNothingCanBeWritten()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("folder.tvx"));
        QVERIFY(QFile::link("/dev/full", folder.filePath("full.tvx")));
        PluggedCore plugged;
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(plugged.core.createExperiment("[1]"), 0);
        plugged.log.take();
        QSignalSpy told(&plugged.core, &Core::openFileError);
        for (const char *name : {"folder.tvx", "full.tvx", "no/such/folder.tvx"}) {
            QCOMPARE(plugged.core.saveExperimentToFile(folder.filePath(name)), -1);
            QCOMPARE(plugged.log.take(), Names{"openFileError"});
            QCOMPARE(told.last().first().toString(), QString("THALVEX 2"));
        }
        QCOMPARE(plugged.core.saveExperimentToFile(folder.filePath("here")), 0);
    }

    void invalidFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content"); // null: no such file
        QTest::addColumn<Names>("told");
        QFile good(MORVANE_TEST_DATA "/one.tvx");
        QVERIFY(good.open(QIODevice::ReadOnly));
        const QByteArray content = good.readAll();
        const Names read{"fileReadStarted", "invalidFile", "fileReadFinished"};
        QTest::newRow("unknown ending") << "a.txt" << content << Names{"invalidFile"};
        QTest::newRow("ending in capitals") << "a.TVX" << content << Names{"invalidFile"};
        QTest::newRow("not there") << "a.tvx" << QByteArray() << Names{"invalidFile"};
        QTest::newRow("empty") << "a.tvx" << QByteArray("") << read;
        QTest::newRow("another family's ending") << "a.tv4" << content << read;
        QTest::newRow("damaged") << "a.tvx" << content.left(50) + (content[50] == 'A' ? 'B' : 'A') + content.mid(51) << read;
        const QByteArray empty = QByteArray(R"({"Info":{"Device":{"name":"THALVEX 2"}},"Body":[]})").toBase64();
        QTest::newRow("no experiment in it")
            << "a.tvx" << empty + '\n' + QCryptographicHash::hash(empty, QCryptographicHash::Md5).toHex()
            << Names{"fileReadStarted", "fileReadFinished"};
    }
    void invalidFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        QFile file(folder.filePath(name));
        if (!content.isNull()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
            file.close();
        }
        Core core([] { return QStringList(); });
        core.parseFile(MORVANE_TEST_DATA "/one.tvx");
        QVERIFY(!core.experiment().isEmpty());
        SignalLog log(&core);
        core.parseFile(file.fileName());
        QTEST(log.take(), "told");
        QCOMPARE(core.experiment(), QString()); // of the file before nothing is left
        core.parseFile(MORVANE_TEST_DATA "/three.tv4");
        QCOMPARE(json(core.experiment())["expName"].toString(), QString("Fundição 1"));
    }
};

QTEST_GUILESS_MAIN(TestAppSession)
#include "tst_app_session.moc"
