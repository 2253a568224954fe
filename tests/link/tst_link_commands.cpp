// SPDX-License-Identifier: GPL-3.0-or-later
// Every command against an instrument that answers well, badly, late or not at all.

#include "tests/link/pluggeddevice.h"

#include "model/experiment.h"
#include "model/results.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

namespace {

enum How { Busy, Error, Nothing, ErrorAtEnd, BusyAtEnd, OkAtEnd, WrongTag, ShortRecord };

/// The code of a command by what the instrument does. "At end": behind a line of other text.
using Codes = std::array<int, 8>;

//                                busy error none  error, busy, OK at end, wrong tag, short record
constexpr Codes byTheEnd =        {-2,  -1,   -3,   -1,    -2,   0,         0,         0};
constexpr Codes refusalIsWhole =  {-2,  -1,   -3,   -3,    -3,   0,         0,         0};
constexpr Codes allIsWhole =      {-2,  -1,   -1,   -1,    -1,   -1,        0,         0};
constexpr Codes calibrationRead = {-2,  -1,   -1,   -1,    -2,   -1,        0,         -1};
constexpr Codes closingRecord =   {-2,  -1,   -1,   -1,    -2,   -1,        -1,        -1};
constexpr Codes allOrNothing =    {-1,  -1,   -1,   -1,    -1,   -1,        -1,        -1};
constexpr Codes twoRecords =      {-1,  -1,   -1,   -1,    -1,   0,         -1,        0}; // two lines are two
constexpr Codes identification =  {1,   1,    1,    1,     1,    0,         0,         0};

struct Command {
    const char *name;
    QByteArray bytes; ///< exactly what is sent
    Codes codes;
    int (*run)(Device &device);
    bool tellsOfBusy = false;
};

template <class E> void setExperiment(E &experiment)
{
    experiment->setIndex(1);
    experiment->setSize(2);
}

const QDateTime when(QDate(2019, 10, 9), QTime(9, 37, 1), Qt::OffsetFromUTC, -3 * 3600);

int sendConfiguration(Device &device)
{
    (void)device.config()->fromJson(R"({"unity":"°F","sampleTime":"59:59"})");
    return device.sndConfiguration();
}

QVector<Command> commands()
{
    return {
        {"identify", "AT+CGMI\r\n", identification, [](Device &d) { return d.identify(); }},
        {"clock", "AT+CCLK=\"19/10/09,09:37:01-12\"\r\n", byTheEnd,
         [](Device &d) { return d.setClock(when); }},
        {"erase", "AT+VFERSMM\r\n", byTheEnd, [](Device &d) { return d.eraseMemory(); }},
        {"service setting", "AT+VFSVCCFG?\r\n", byTheEnd, [](Device &d) { return d.acquireServiceConfig(); }},
        {"unit", "AT+VFUNIT?\r\n", byTheEnd, [](Device &d) { return d.acquireConfiguration(); }},
        {"interval", "AT+VFINTVL?\r\n", byTheEnd, [](Device &d) { return d.acquireConfiguration(); }},
        {"set unit", "AT+VFUNIT=\"F\"\r\n", refusalIsWhole, sendConfiguration},
        {"set interval", "AT+VFINTVL=3599\r\n", refusalIsWhole, sendConfiguration},
        {"set calibration", "AT+VFCTF=\"19/10/09,09:37:01-12\",\"CAL \xC7/7\"\r\n", allIsWhole,
         [](Device &d) {
             const Calibration calibration{when, "cal ç/7"};
             return d.sndCalibration(&calibration);
         },
         true},
        {"calibration", "AT+VFCTF?\r\n", calibrationRead, [](Device &d) { return d.acquireCalibration(); }},
        {"list", "AT+VFXPLST\r\n", allOrNothing,
         [](Device &d) {
             const QList<Experiment *> list = d.acquireExperimentList();
             const int code = list.size() == 1 && list.first()->index() == 1 && list.first()->size() == 2 ? 0 : -1;
             qDeleteAll(list);
             return code;
         }},
        {"records", "AT+VFRDXP=1,1,2\r\n", twoRecords,
         [](Device &d) {
             const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(d.productName()));
             setExperiment(experiment);
             return d.acquireLogs(experiment.get()).size() == 2 ? 0 : -1;
         }},
        {"first header", "AT+VFXPHDR=1,1\r\n", allOrNothing,
         [](Device &d) {
             const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(d.productName()));
             setExperiment(experiment);
             const std::unique_ptr<Results> results(d.acquireResults(experiment.get()));
             return results ? 0 : -1;
         }},
        {"closing record", "AT+VFXPHDR=8,1\r\n", closingRecord,
         [](Device &d) {
             const std::unique_ptr<Results> results(FactoryResults::create(d.productName()));
             return d.finishHeaderRead(results.get(), 1);
         },
         true},
    };
}

std::unique_ptr<VirtualInstrument> withTwoRecords()
{
    SimulatedExperiment experiment;
    experiment.size = 2;
    return simulatedThalvex2(1, {experiment});
}

} // namespace

Q_DECLARE_METATYPE(Command)

class TestLinkCommands : public QObject
{
    Q_OBJECT

private slots:
    void commandsUnderFaults_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("portLost");
        const QByteArray other = "\r\nnews\r\n";
        for (const Command &command : commands()) {
            const auto row = [&](const char *what, const Fault &fault, int code, bool portLost = false) {
                QTest::addRow("%s, %s", command.name, what) << command << fault.on(command.bytes) << code << portLost;
            };
            const Codes &codes = command.codes;
            row("answered", Fault(), 0);
            row("silence", Fault::silence(), codes[Nothing]);
            row("BUSY", Fault::busy(), codes[Busy]);
            row("ERROR", Fault::error(), codes[Error]);
            row("garbage", Fault::garbage(), codes[Nothing]);
            row("pieces with gaps below the limit", Fault::split(4, 200), 0);
            row("pieces with a gap above the limit", Fault::split(4, 700), codes[Nothing]);
            row("late", Fault::late(700), codes[Nothing]);
            row("other text, ERROR", Fault::answer(other + "\r\nERROR\r\n"), codes[ErrorAtEnd]);
            row("other text, BUSY", Fault::answer(other + "\r\nBUSY\r\n"), codes[BusyAtEnd]);
            row("unplugged", Fault::unplugged(), codes[Nothing], true);
            row("unplugged in mid-answer", Fault::unplugged(5), codes[Nothing], true);
            row("other text, OK", Fault::answer(other + "\r\nOK\r\n"), codes[OkAtEnd]);
            row("wrong tag", Fault::wrongTag(), codes[WrongTag]);
            row("short record", Fault::shortRecord(), codes[ShortRecord]);
        }
    }
    void commandsUnderFaults()
    {
        QFETCH(Command, command);
        QFETCH(Fault, fault);
        QFETCH(bool, portLost);
        PluggedDevice plugged(withTwoRecords());
        if (command.codes == identification)
            plugged.device->setManufactoryName("as before");
        QSignalSpy busy(plugged.device.get(), &Device::busy);
        plugged.instrument.fault(fault);
        QElapsedTimer time;
        time.start();
        const int code = command.run(*plugged.device);
        QTEST(code, "code");
        QVERIFY2(time.elapsed() < 3000, "a wait must end");
        QVERIFY(plugged.instrument.commands().contains(command.bytes));
        QCOMPARE(plugged.device->portError() != QSerialPort::NoError, portLost);
        QCOMPARE(busy.size(), command.tellsOfBusy && code == DeviceBusy ? 1 : 0);
        if (!portLost)
            return;
        time.restart(); // what follows on a lost port costs no silence
        (void)plugged.device->setClock(when);
        (void)plugged.device->eraseMemory();
        QVERIFY(time.elapsed() < 400);
    }

    /// The instrument does as it was told, and the reads bring back what it holds.
    void storesAndReads()
    {
        PluggedDevice plugged(withTwoRecords());
        Device &device = *plugged.device;
        VirtualInstrument &inside = plugged.instrument.inside();
        const Calibration calibration{when, "cal ç/7"};
        QCOMPARE(device.sndCalibration(&calibration), 0);
        QCOMPARE(inside.setting("VFCTF"), QByteArray("\"19/10/09,09:37:01-12\",\"CAL \xC7/7\""));
        QCOMPARE(device.acquireCalibration(), 0);
        QCOMPARE(device.calibration().date, when);
        QCOMPARE(device.calibration().certification, QString("CAL Ç/7"));
        QCOMPARE(device.setClock(when), 0);
        QCOMPARE(inside.clock().text().left(14), QByteArray("19/10/09,09:37"));
        QCOMPARE(plugged.device->acquireServiceConfig(), 0);
        QCOMPARE(plugged.device->serviceConfig(), 3);
        QCOMPARE(device.eraseMemory(), 0);
        QVERIFY(inside.memory().isEmpty());
        QVERIFY(device.acquireExperimentList().isEmpty());
    }

    void identifies()
    {
        SimulatedInstrument instrument(simulatedThalvex4(5));
        Device plain;
        QSignalSpy sn(&plain, &Device::devSNChanged);
        QCOMPARE(plain.openPort(instrument.portName()), 0);
        for (int times = 0; times < 2; ++times) {
            QCOMPARE(plain.identify(), 0);
            QCOMPARE(plain.manufactoryName(), QString("morvane"));
            QCOMPARE(plain.productName(), QString("THALVEX 4"));
            QCOMPARE(plain.sn(), QString::fromLatin1(instrument.inside().identity().serialNumber));
            QCOMPARE(plain.fw(), QString("2.31"));
            QCOMPARE(sn.size(), 1);
        }
        const QByteArrayList once{"ATE0\r\n", "AT+CGMI\r\n", "AT+CGMM\r\n", "AT+CGSN\r\n", "AT+CGMR\r\n"};
        QCOMPARE(instrument.commands(), once + once);
        QCOMPARE(plain.acquireConfiguration(), -1); // what a family brings is not there yet
        QCOMPARE(plain.acquireServiceConfig(), -1);
        QVERIFY(!plain.acquireResults(nullptr));
    }

    void configurationStopsAtTheFirstRefusal_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<bool>("writes");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArrayList>("sent");
        const QByteArrayList read{"AT+VFUNIT?\r\n", "AT+VFINTVL?\r\n"};
        const QByteArrayList write{"AT+VFUNIT=\"F\"\r\n", "AT+VFINTVL=90\r\n"};
        QTest::newRow("read") << Fault() << false << 0 << read;
        QTest::newRow("read, unit busy") << Fault::busy().on(read[0]) << false << -2 << read.mid(0, 1);
        QTest::newRow("read, interval refused") << Fault::error().on(read[1]) << false << -1 << read;
        QTest::newRow("write") << Fault() << true << 0 << write;
        QTest::newRow("write, unit refused") << Fault::error().on(write[0]) << true << -1 << write.mid(0, 1);
        QTest::newRow("write, interval busy") << Fault::busy().on(write[1]) << true << -2 << write;
    }
    void configurationStopsAtTheFirstRefusal()
    {
        QFETCH(Fault, fault);
        QFETCH(bool, writes);
        QFETCH(int, code);
        for (auto make : {+[] { return simulatedThalvex2(1, {}); }, +[] { return simulatedThalvex4(1, 0, {}); }}) {
            PluggedDevice plugged(make());
            QCOMPARE(plugged.device->config()->fromJson(R"({"unity":"°F","sampleTime":"01:30"})"), 0);
            const QJsonObject before = plugged.device->config()->toJson();
            plugged.instrument.fault(fault);
            QCOMPARE(writes ? plugged.device->sndConfiguration() : plugged.device->acquireConfiguration(), code);
            QTEST(plugged.instrument.commands(), "sent");
            const QJsonObject after = plugged.device->config()->toJson();
            QCOMPARE(after["productName"].toString(), plugged.device->productName());
            if (writes || code != 0)
                QCOMPARE(after, before);
            else
                QCOMPARE(after["unity"].toString() + after["sampleTime"].toString(), QString("°C01:00"));
            if (code == 0)
                QCOMPARE(plugged.instrument.inside().setting("VFUNIT"), QByteArray(writes ? "\"F\"" : "\"C\""));
        }
    }

    void readsRecordsByTens_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArrayList>("ranges");
        QTest::newRow("none") << 0 << QByteArrayList{"1,0"};
        QTest::newRow("one") << 1 << QByteArrayList{"1,1"};
        QTest::newRow("ten") << 10 << QByteArrayList{"1,10"};
        QTest::newRow("eleven") << 11 << QByteArrayList{"1,10", "11,11"};
        QTest::newRow("twenty-five") << 25 << QByteArrayList{"1,10", "11,20", "21,25"};
    }
    void readsRecordsByTens()
    {
        QFETCH(int, size);
        QFETCH(QByteArrayList, ranges);
        SimulatedExperiment measured;
        measured.size = size;
        measured.index = 7;
        PluggedDevice plugged(simulatedThalvex2(1, {measured}));
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create("THALVEX 2"));
        experiment->setIndex(7);
        experiment->setSize(size);
        QSignalSpy progress(plugged.device.get(), &Device::dataRegisterProgessUpdate);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("\r\nBytes :\\d+\r\nTempo :\\d+\r\nTaxa :\\d+ kbps"));
        const QList<QByteArray> lines = plugged.device->acquireLogs(experiment.get());
        QByteArrayList sent;
        for (const QByteArray &range : ranges)
            sent.append("AT+VFRDXP=7," + range + "\r\n");
        QCOMPARE(plugged.instrument.commands(), sent);
        QCOMPARE(lines.size(), size);
        for (int i = 0; i < size; ++i)
            QVERIFY(lines[i].startsWith("+VFRDXP: 7," + QByteArray::number(i + 1) + ','));
        QCOMPARE(experiment->parseLogs(lines), 0);
        QCOMPARE(progress.first().first().toDouble(), 0.0);
        if (size == 0)
            return;
        QCOMPARE(progress.size(), ranges.size() + 1);
        QCOMPARE(progress.last().first().toDouble(), 100.0);
        QCOMPARE(progress[1].first().toDouble(), double(float(qMin(size, 10)) * 100.0f / float(size)));
    }

    /// A download is whole or it is nothing.
    void recordsFailTogether_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("requests");
        QTest::newRow("busy in the middle") << Fault::busy().at(2) << 25 << 2;
        QTest::newRow("refused at the end") << Fault::error().at(3) << 25 << 3;
        QTest::newRow("unplugged in the second") << Fault::unplugged(100).at(2) << 25 << 2;
        QTest::newRow("more than the memory has") << Fault() << 26 << 3;
        QTest::newRow("absurd size") << Fault() << std::numeric_limits<int>::max() << 3;
        QTest::newRow("negative size") << Fault() << -5 << 1;
        QTest::newRow("a line of them missing")
            << Fault::answer("\r\n+VFRDXP: 2,1,0\r\n\r\nOK\r\n").at(1) << 25 << 1;
    }
    void recordsFailTogether()
    {
        QFETCH(Fault, fault);
        QFETCH(int, size);
        PluggedDevice plugged(simulatedThalvex2());
        plugged.instrument.fault(fault);
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create("THALVEX 2"));
        experiment->setIndex(2);
        experiment->setSize(size);
        QVERIFY(plugged.device->acquireLogs(experiment.get()).isEmpty());
        QTEST(plugged.instrument.commands().size(), "requests");
    }

    void headersInTheirOrder_data()
    {
        QTest::addColumn<bool>("larger");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<QByteArray>("asked"); // numbers of the headers
        QTest::addColumn<bool>("read");
        QTest::addColumn<int>("battery"); // of the closing record
        for (const bool larger : {false, true}) {
            const QByteArray all = larger ? "12348" : "1238";
            const auto row = [&](const char *what, const Fault &fault, const QByteArray &asked, bool read, bool closed) {
                QTest::addRow("%d: %s", larger ? 4 : 2, what) << larger << fault << asked << read << (closed ? 4115 : 0);
            };
            row("all", Fault(), all, true, true);
            row("second busy", Fault::busy().on("AT+VFXPHDR=2,"), "12", false, false);
            row("third foreign", Fault::answer("\r\n+VFXPHDR: 2,1,1,2,3,4,5,6\r\n\r\nOK\r\n").on("AT+VFXPHDR=3,"), "123",
                false, false);
            row("first short", Fault::answer("\r\n+VFXPHDR: 1,1\r\n\r\nOK\r\n").on("AT+VFXPHDR=1,"), "1", false, false);
            row("closing refused", Fault::error().on("AT+VFXPHDR=8,"), all, true, false);
            row("closing busy", Fault::busy().on("AT+VFXPHDR=8,"), all, true, false);
            row("closing short", Fault::shortRecord().on("AT+VFXPHDR=8,"), all, true, false);
            row("closing foreign", Fault::answer("\r\n+VFXPHDR: 9,1,1,2,3,4,x\r\n\r\nOK\r\n").on("AT+VFXPHDR=8,"), all,
                true, false);
        }
    }
    void headersInTheirOrder()
    {
        QFETCH(bool, larger);
        QFETCH(Fault, fault);
        QFETCH(QByteArray, asked);
        PluggedDevice plugged(larger ? simulatedThalvex4() : simulatedThalvex2());
        plugged.instrument.fault(fault);
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(plugged.device->productName()));
        experiment->setIndex(1);
        const std::unique_ptr<Results> results(plugged.device->acquireResults(experiment.get()));
        QByteArrayList sent;
        for (const char header : qAsConst(asked))
            sent.append(QByteArray("AT+VFXPHDR=") + header + ",1\r\n");
        QCOMPARE(plugged.instrument.commands(), sent);
        QTEST(results != nullptr, "read");
        QTEST(results ? results->vbatStart() : 0, "battery");
        if (results)
            QVERIFY(!results->toJson()["duration"].toString().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestLinkCommands)
#include "tst_link_commands.moc"
