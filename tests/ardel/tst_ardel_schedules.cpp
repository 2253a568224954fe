// SPDX-License-Identifier: GPL-3.0-or-later
// The dosimeter's schedules between its memory, the session and the window; and the texts that come from that window.

#include "ardel/ardel2config.h"
#include "tests/app/pluggedcore.h"
#include "tests/families/familycase.h"
#include "tests/link/pluggeddevice.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// A schedule of day \a day from 08:00 to 17:00, over midnight every second time.
QJsonObject schedule(int day)
{
    QJsonObject object = shortJson("{'label':'Manhã','startTime':'08:00','pausable':true,'pauseTime':'12:00',"
                                   "'resumeTime':'13:00','stopTime':'17:00'}");
    if (day % 2 == 0)
        object = shortJson("{'label':'Noite, 2','startTime':'22:00','pausable':false,'stopTime':'05:59'}");
    object["monthDay"] = day;
    return object;
}

QString textOf(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

/// Schedules of the days from 1 on; no night reaches the next day's.
QString listOf(int count)
{
    QJsonArray array;
    for (int i = 0; i < count; ++i)
        array.append(schedule(1 + i));
    return textOf({{"scheduleList", array}});
}

/// What \a device tells of its schedules, but for their places.
QJsonArray told(const Device &device)
{
    QJsonArray array;
    for (const QJsonValue &value : device.toJson()["scheduleList"].toArray()) {
        QJsonObject object = value.toObject();
        object.remove("index");
        array.append(object);
    }
    return array;
}

QString sentText(const char *name)
{
    QFile file(QStringLiteral(MORVANE_TEST_DATA "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<QObject *> shown(const Core &core)
{
    return core.virtualSchedulelist().value<QList<QObject *>>();
}

} // namespace

class TestArdelSchedules : public QObject
{
    Q_OBJECT

private slots:
    void writtenAndRead_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 3, 10})
            QTest::addRow("%d", count) << count;
    }
    /// A list that was written comes back as it was, in the first places; those behind it are empty.
    void writtenAndRead()
    {
        QFETCH(int, count);
        PluggedDevice plugged(simulatedArdel2());
        QCOMPARE(plugged.device->setScheduleListFromJson(listOf(count)), 0);
        const QJsonArray written = told(*plugged.device);
        QCOMPARE(written.size(), count);
        QCOMPARE(plugged.device->sndScheduleList(), 0);
        const QByteArrayList commands = plugged.instrument.commands();
        QCOMPARE(commands.size(), 12);
        QCOMPARE(commands.first(), QByteArray("AT+VFSCH=3,0\r\n"));
        QCOMPARE(commands.last(), QByteArray("AT+VFSCH=3,1\r\n"));
        for (int place = 0; place < 10; ++place)
            QVERIFY(commands[place + 1].startsWith((place < count ? "AT+VFSCH=1," : "AT+VFSCH=2,") + QByteArray::number(place)));
        QCOMPARE(plugged.instrument.inside().setting("VFSCH"), QByteArray("1"));
        QVERIFY(static_cast<Ardel2Config *>(plugged.device->config())->scheduleStatus());

        QCOMPARE(plugged.device->setScheduleListFromJson("{}"), 0);
        QCOMPARE(plugged.device->acquireScheduleList(), 0);
        QCOMPARE(told(*plugged.device), written);
        for (int place = 0; place < count; ++place)
            QCOMPARE(plugged.device->scheduleList()[place]->index(), place);
    }

    void listsThatAreRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("no JSON") << "x";
        QTest::newRow("array") << "[]";
        QTest::newRow("one cannot be read") << textOf({{"scheduleList", QJsonArray{schedule(1), schedule(32)}}});
        QTest::newRow("eleven") << listOf(11);
    }
    void listsThatAreRefused()
    {
        QFETCH(QString, text);
        PluggedDevice plugged(simulatedArdel2());
        QCOMPARE(plugged.device->setScheduleListFromJson(listOf(2)), 0);
        QCOMPARE(plugged.device->setScheduleListFromJson(text), -1);
        QCOMPARE(told(*plugged.device).size(), 2);
    }

    void placesUnderFaults_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<int>("found"); // of the two that there are
        const QByteArray place = "AT+VFSCH=0,3\r\n";
        QTest::newRow("as they are") << Fault() << 2;
        QTest::newRow("busy") << Fault::busy().on(place) << 1;
        QTest::newRow("refused") << Fault::error().on(place) << 1;
        QTest::newRow("silent") << Fault::silence().on(place) << 1;
        QTest::newRow("garbage") << Fault::garbage().on(place) << 1;
        QTest::newRow("short") << Fault::shortRecord().on(place) << 1;
        QTest::newRow("unplugged") << Fault::unplugged(9).on(place) << -3;
    }
    /// A place that cannot be read is passed over; one that is busy is told of.
    void placesUnderFaults()
    {
        QFETCH(Fault, fault);
        QFETCH(int, found);
        PluggedDevice plugged(simulatedArdel2());
        QCOMPARE(plugged.device->setScheduleListFromJson(listOf(1)), 0);
        QSignalSpy busy(plugged.device.get(), &Device::busy);
        plugged.instrument.fault(fault);
        QCOMPARE(plugged.device->acquireScheduleList(), found < 0 ? found : 0);
        QCOMPARE(plugged.device->scheduleList().size(), found < 0 ? 1 : found);
        QCOMPARE(busy.size(), qstrcmp(QTest::currentDataTag(), "busy") == 0 ? 1 : 0);
    }

    /// A place that fails ends the writing with the schedules off, and the configuration says so.
    void writingThatFails()
    {
        PluggedDevice plugged(simulatedArdel2());
        plugged.instrument.inside().setSetting("VFSCH", "1");
        QCOMPARE(plugged.device->acquireConfiguration(), 0);
        QVERIFY(plugged.device->config()->toJson()["scheduleStatus"].toBool());
        QCOMPARE(plugged.device->setScheduleListFromJson(listOf(3)), 0);
        plugged.instrument.clearCommands();
        plugged.instrument.fault(Fault::error().on("AT+VFSCH=1,1,"));
        QCOMPARE(plugged.device->sndScheduleList(), -1);
        QCOMPARE(plugged.instrument.commands().size(), 3);
        QCOMPARE(plugged.instrument.inside().setting("VFSCH"), QByteArray("0"));
        QVERIFY(!plugged.device->config()->toJson()["scheduleStatus"].toBool());
    }

    /// Without the filters nothing is said of octaves.
    void withoutOctaves()
    {
        PluggedDevice plugged(simulatedArdel2());
        plugged.instrument.inside().setSetting("VFSVCCFG", "1");
        QCOMPARE(plugged.device->acquireServiceConfig(), 0);
        plugged.instrument.inside().setSetting("VFXPDUR", "3661");
        QCOMPARE(plugged.device->acquireConfiguration(), 0);
        QCOMPARE(plugged.device->config()->toJson()["octaveAnalysis"].toString(), QString());
        QCOMPARE(plugged.device->config()->toJson()["experimentDuration"].toString(), QString("01:01"));
        QCOMPARE(plugged.device->sndConfiguration(), 0);
        for (const QByteArray &command : plugged.instrument.commands())
            QVERIFY(!command.contains("VFOCTAVE"));
    }

    /// Levels come from the window as texts and go to it as numbers.
    void whatTheWindowSends()
    {
        Ardel2Config config;
        QCOMPARE(config.fromJson(sentText("ardel2-configuration.json")), 0);
        QCOMPARE(config.toJson(), shortJson("{'productName':'ARDEL 2','actionLevel':80,'criterionLevel':85,'exchangeRate':5,"
                                            "'experimentDuration':'08:00','frequencyWeighting':'A','octaveAnalysis':'1/3',"
                                            "'scheduleStatus':true,'timeWeighting':'Slow'}"));
        QCOMPARE(config.fromJson(R"({"actionLevel":80})"), 0);
        QCOMPARE(config.actionLevel(), 0);
        QCOMPARE(config.fromJson("[]"), -1);
    }

    /// What the window edits is apart from what the instrument has, and outlives the handler that changes it.
    void edited()
    {
        PluggedCore plugged(simulatedArdel2());
        Core &core = plugged.core;
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(core.acquireScheduleList(), 0);
        QCOMPARE(plugged.log.take(), QByteArrayList{"scheduleListUpdate"});
        QCOMPARE(shown(core).size(), 2);
        QCOMPARE(shown(core)[1]->property("startTime").toString(), QString("22:00"));
        QCOMPARE(shown(core)[1]->property("pauseTime").toString(), QString());
        const QPointer<QObject> before(shown(core)[0]);
        core.removeSchedule(-1);
        core.removeSchedule(2);
        QCOMPARE(shown(core).size(), 2);
        QCOMPARE(core.acquireScheduleList(), 0);
        QVERIFY(before && shown(core)[0] != before);
        const QPointer<QObject> removed(shown(core)[0]);
        core.removeSchedule(0);
        QVERIFY(removed);
        core.removeSchedule(0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!before && !removed);
        plugged.log.take();

        core.addSchedule(sentText("ardel2-schedule.json"));
        QCOMPARE(plugged.log.take(), (QByteArrayList{"scheduleOk", "scheduleListUpdate"}));
        QCOMPARE(shown(core).value(0)->property("resumeTime").toString(), QString("00:30"));
        QCOMPARE(core.sndScheduleList(textOf({{"scheduleList", QJsonArray{shortJson(
                     "{'index':0,'label':'Fundição 1','monthDay':31,'pausable':true,'pauseTime':'23:30','resumeTime':'00:30',"
                     "'startTime':'22:00','stopTime':'06:00','objectName':''}")}}})), 0);
        QVERIFY(core.configuration().contains("\"scheduleStatus\":true"));
        QVERIFY(plugged.instrument.inside().setting("VFSCH,0").startsWith("\"Fundi\xE7\xE3o 1\",\""));
        QCOMPARE(plugged.instrument.inside().setting("VFSCH,3"), QByteArray());
        plugged.instrument.fault(Fault::unplugged());
        QCOMPARE(core.acquireScheduleList(), -3);
        QVERIFY(shown(core).isEmpty());
    }

    void refusedToTheUser_data()
    {
        QTest::addColumn<int>("there");
        QTest::addColumn<QString>("added");
        QTest::addColumn<QString>("message");
        QJsonObject tooLong = schedule(20);
        tooLong["stopTime"] = "07:01";
        QJsonObject timeless = schedule(20);
        timeless["startTime"] = "24:00";
        const QString notAvailable = "The schedule is not available.";
        QTest::newRow("too long") << 1 << textOf(tooLong) << "The experiment is too long.";
        QTest::newRow("the same") << 1 << textOf(schedule(1)) << notAvailable;
        QTest::newRow("no such day") << 1 << textOf(schedule(32)) << notAvailable;
        QTest::newRow("no such time") << 1 << textOf(timeless) << notAvailable;
        QTest::newRow("no JSON") << 1 << "x" << notAvailable;
        QTest::newRow("the eleventh, looked at no further") << 10 << "x" << "The dosimeter support up to 10 schedules.";
    }
    void refusedToTheUser()
    {
        QFETCH(int, there);
        QFETCH(QString, added);
        Core core([] { return QStringList(); });
        for (int day = 1; day <= there; ++day)
            core.addSchedule(textOf(schedule(day)));
        QCOMPARE(shown(core).size(), there);
        SignalLog log(&core);
        QSignalSpy error(&core, &Core::scheduleError);
        core.addSchedule(added);
        QCOMPARE(log.take(), QByteArrayList{"scheduleError"});
        QTEST(error[0][0].toString(), "message");
        QCOMPARE(shown(core).size(), there);
    }
};

QTEST_MAIN(TestArdelSchedules)
#include "tst_ardel_schedules.moc"
