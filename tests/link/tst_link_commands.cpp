// SPDX-License-Identifier: GPL-3.0-or-later
// Every command against an instrument that answers well, badly, late or not at all.

#include "tests/families/familycase.h"
#include "tests/link/pluggeddevice.h"

#include "model/experiment.h"
#include "model/results.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

namespace {

//                                busy error none  error, busy, OK at end, wrong tag, short record
constexpr Codes twoLines =        {-1,  -1,   -1,   -1,    -1,   0,         -1,        0}; // two lines are two
constexpr Codes identification =  {1,   1,    1,    1,     1,    0,         0,         0};

template <class E> void setExperiment(E &experiment)
{
    experiment->setIndex(1);
    experiment->setSize(2);
}

const QDateTime when(QDate(2019, 10, 9), QTime(9, 37, 1), Qt::OffsetFromUTC, -3 * 3600);

/// The commands that all instruments answer alike.
QVector<Exchange> sharedExchanges()
{
    return {
        {"identify", "AT+CGMI\r\n", identification, [](Device &d) { return d.identify(); }},
        {"clock", "AT+CCLK=\"19/10/09,09:37:01-12\"\r\n", byTheEnd,
         [](Device &d) { return d.setClock(when); }},
        {"erase", "AT+VFERSMM\r\n", byTheEnd, [](Device &d) { return d.eraseMemory(); }},
        {"set calibration", "AT+VFCTF=\"19/10/09,09:37:01-12\",\"CAL \xC7/7\"\r\n", calibrationWritten,
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
        {"records", "AT+VFRDXP=1,1,2\r\n", twoLines,
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
        {"closing record", "AT+VFXPHDR=8,1\r\n", headerRead,
         [](Device &d) {
             const std::unique_ptr<Results> results(FactoryResults::create(d.productName()));
             return d.finishHeaderRead(results.get(), 1);
         },
         true},
    };
}

QVector<SimulatedExperiment> twoRecords()
{
    SimulatedExperiment experiment;
    experiment.size = 2;
    return {experiment};
}

} // namespace

Q_DECLARE_METATYPE(Exchange)
Q_DECLARE_METATYPE(const FamilyCase *)

class TestLinkCommands : public QObject
{
    Q_OBJECT

private slots:
    void commandsUnderFaults_data()
    {
        QTest::addColumn<const FamilyCase *>("family");
        QTest::addColumn<Exchange>("command");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("portLost");
        addRows(familyCases().first(), sharedExchanges());
        for (const FamilyCase &family : familyCases())
            addRows(family, family.exchanges);
    }
    static void addRows(const FamilyCase &family, const QVector<Exchange> &exchanges)
    {
        const QByteArray other = "\r\nnews\r\n";
        for (const Exchange &command : exchanges) {
            const auto row = [&](const char *what, const Fault &fault, int code, bool portLost = false) {
                QTest::addRow("%s: %s, %s", family.product, command.name, what)
                    << &family << command << fault.on(command.bytes) << code << portLost;
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
        QFETCH(const FamilyCase *, family);
        QFETCH(Exchange, command);
        QFETCH(Fault, fault);
        QFETCH(bool, portLost);
        PluggedDevice plugged(family->make(twoRecords()));
        (void)plugged.device->acquireServiceConfig(); // as a session begins
        plugged.instrument.clearCommands();
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
        PluggedDevice plugged(simulatedThalvex2(1, twoRecords()));
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

    /// Settings are read and written in their order up to the first that the instrument refuses.
    void configurationStopsAtTheFirstRefusal_data()
    {
        QTest::addColumn<const FamilyCase *>("family");
        QTest::addColumn<bool>("writes");
        QTest::addColumn<int>("refused"); // place of the command that is; -1: none
        for (const FamilyCase &family : familyCases()) {
            for (const bool writes : {false, true}) {
                for (int refused = -1; refused < (writes ? family.written : family.read).size(); ++refused)
                    QTest::addRow("%s, %s, %d", family.product, writes ? "write" : "read", refused)
                        << &family << writes << refused;
            }
        }
    }
    void configurationStopsAtTheFirstRefusal()
    {
        QFETCH(const FamilyCase *, family);
        QFETCH(bool, writes);
        QFETCH(int, refused);
        PluggedDevice plugged(family->make({}));
        Device &device = *plugged.device;
        QCOMPARE(device.acquireServiceConfig(), 0);
        const QString sent = QString::fromUtf8(QJsonDocument(shortJson(family->configuration)).toJson());
        QCOMPARE(device.config()->fromJson(sent), 0);
        const QJsonObject before = device.config()->toJson();
        plugged.instrument.clearCommands();
        const QByteArrayList all = writes ? family->written : family->read;
        if (refused >= 0)
            plugged.instrument.fault(Fault::error().on(all[refused]));
        QCOMPARE(writes ? device.sndConfiguration() : device.acquireConfiguration(), refused < 0 ? 0 : -1);
        QCOMPARE(plugged.instrument.commands(), refused < 0 ? all : all.mid(0, refused + 1));
        if (writes || refused >= 0)
            QCOMPARE(device.config()->toJson(), before);
        if (!writes || refused >= 0)
            return;
        QCOMPARE(device.acquireConfiguration(), 0); // the instrument has what was written
        QCOMPARE(device.config()->toJson(), before);
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
        QTest::addColumn<const FamilyCase *>("family");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<int>("asked"); // how many of the headers
        QTest::addColumn<bool>("read");
        QTest::addColumn<bool>("closed");
        for (const FamilyCase &family : familyCases()) {
            const int all = family.headers.size();
            const auto row = [&](const char *what, const Fault &fault, int asked, bool read, bool closed = false) {
                QTest::addRow("%s: %s", family.product, what) << &family << fault << asked << read << closed;
            };
            const auto answer = [](const char *data) {
                return Fault::answer("\r\n+VFXPHDR: " + QByteArray(data) + "\r\n\r\nOK\r\n");
            };
            const bool withoutClosing = !family.closingRecordNeeded;
            row("all", Fault(), all, true, true);
            row("second busy", Fault::busy().on("AT+VFXPHDR=2,"), 2, false);
            row("second foreign", answer("7,1,1,2,3,4,5,6,7,8,9,10,11,12").on("AT+VFXPHDR=2,"), 2, false);
            row("first short", answer("1,1").on("AT+VFXPHDR=1,"), 1, false);
            row("closing refused", Fault::error().on("AT+VFXPHDR=8,"), all, withoutClosing);
            row("closing busy", Fault::busy().on("AT+VFXPHDR=8,"), all, withoutClosing);
            row("closing short", Fault::shortRecord().on("AT+VFXPHDR=8,"), all, withoutClosing);
            row("closing foreign", answer("9,1,1,2,3,4,x").on("AT+VFXPHDR=8,"), all, withoutClosing);
        }
    }
    void headersInTheirOrder()
    {
        QFETCH(const FamilyCase *, family);
        QFETCH(Fault, fault);
        QFETCH(int, asked);
        QFETCH(bool, closed);
        PluggedDevice plugged(family->make(twoRecords()));
        plugged.instrument.fault(fault);
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(family->product));
        experiment->setIndex(1);
        QSignalSpy busy(plugged.device.get(), &Device::busy);
        const std::unique_ptr<Results> results(plugged.device->acquireResults(experiment.get()));
        QByteArrayList sent;
        for (const char header : family->headers.left(asked))
            sent.append(QByteArray("AT+VFXPHDR=") + header + ",1\r\n");
        QCOMPARE(plugged.instrument.commands().mid(plugged.instrument.commands().size() - asked), sent);
        QTEST(results != nullptr, "read");
        if (results)
            QCOMPARE(results->vbatStart() != 0, closed);
        const QByteArray row = QTest::currentDataTag();
        QCOMPARE(busy.size(), row.endsWith("closing busy") || (row.endsWith("busy") && family->headersTellOfBusy) ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(TestLinkCommands)
#include "tst_link_commands.moc"
