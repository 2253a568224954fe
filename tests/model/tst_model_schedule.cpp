// SPDX-License-Identifier: GPL-3.0-or-later
// Schedules: when they come next, what crosses midnight, how they stand on the wire.

#include "model/atdatetime.h"
#include "model/schedule.h"
#include "tests/families/familycase.h"

#include <QtTest>

#include <ctime>

namespace {

const QString Whole = QStringLiteral("yyyy-MM-dd hh:mm");

QDateTime moment(const QByteArray &text)
{
    return QDateTime::fromString(QString::fromLatin1(text), Whole);
}

/// "8:00-17:00" on \a day, "8:00-12:00 13:00-17:00" with a pause.
QByteArray json(int day, const QByteArray &times, const QByteArray &label = "Turno")
{
    const QByteArrayList clocks = QByteArray(times).replace(' ', '-').split('-');
    QByteArray text = "{'monthDay':" + QByteArray::number(day) + ",'label':'" + label + "','startTime':'" + clocks.first()
                      + "','stopTime':'" + clocks.last() + "','pausable':" + (clocks.size() == 4 ? "true" : "false");
    if (clocks.size() == 4)
        text += ",'pauseTime':'" + clocks[1] + "','resumeTime':'" + clocks[2] + '\'';
    return text + '}';
}

class Zone
{
public:
    explicit Zone(const QByteArray &name) : m_before(qgetenv("TZ")) { set(name); }
    ~Zone() { set(m_before); }
    Zone(const Zone &) = delete;
    Zone &operator=(const Zone &) = delete;

private:
    static void set(const QByteArray &name)
    {
        qputenv("TZ", name);
        tzset();
    }
    QByteArray m_before;
};

} // namespace

class TestModelSchedule : public QObject
{
    Q_OBJECT

private slots:
    void nextOccurrence_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QByteArray>("now");
        QTest::addColumn<int>("day");
        QTest::addColumn<QByteArray>("next");
        const auto row = [](const char *name, const char *now, int day, const char *next, const char *zone = "UTC") {
            QTest::newRow(name) << QByteArray(zone) << QByteArray(now) << day << QByteArray(next);
        };
        row("today", "2026-03-09 23:59", 9, "2026-03-09");
        row("tomorrow", "2026-03-09 12:00", 10, "2026-03-10");
        row("yesterday's day", "2026-03-09 12:00", 8, "2026-04-08");
        row("over the new year", "2026-12-31 23:59", 1, "2027-01-01");
        row("31st, in a month of 30 days", "2026-04-01 12:00", 31, "2026-05-31");
        row("31st, from February", "2026-02-28 12:00", 31, "2026-03-31");
        row("29th, in February", "2026-02-01 12:00", 29, "2026-03-29");
        row("29th, in a leap year", "2028-02-01 12:00", 29, "2028-02-29");
        row("29th, from the end of January", "2026-01-30 12:00", 29, "2026-03-29");
        row("29th, the same in a leap year", "2028-01-30 12:00", 29, "2028-02-29");
        row("30th, from the end of January", "2028-01-31 12:00", 30, "2028-03-30");
        row("into summer time", "2026-03-28 02:30", 29, "2026-03-29", "Europe/Berlin");
        row("a month later on that day", "2026-02-28 02:30", 27, "2026-03-27", "Europe/Berlin");
        row("where summer time skips midnight", "2018-10-04 00:30", 3, "2018-11-03", "America/Sao_Paulo");
        row("to the very night", "2018-10-31 00:30", 4, "2018-11-04", "America/Sao_Paulo");
        row("out of summer time", "2026-10-24 02:30", 25, "2026-10-25", "Europe/Berlin");
    }
    void nextOccurrence()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QByteArray, now);
        QFETCH(int, day);
        const Zone there(zone);
        QTEST(AtDateTime::dateForMonthDay(day, moment(now)).date().toString(Qt::ISODate).toLatin1(), "next");
    }

    /// On the 9th of March 2026, where there is no summer time; times that cross midnight come with the next day's date.
    void timesAscend_data()
    {
        QTest::addColumn<QByteArray>("times");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<bool>("fits");
        const auto row = [](const char *times, const char *expected, bool fits) {
            QTest::newRow(times) << QByteArray(times) << QByteArray(expected) << fits;
        };
        row("08:00-17:00", "10 08:00, 10 17:00", true);
        row("08:00-17:01", "10 08:00, 10 17:01", false);
        row("22:00-06:00", "10 22:00, 11 06:00", true);
        row("08:00-08:00", "10 08:00, 11 08:00", false);
        row("08:00-12:00 13:00-18:00", "10 08:00, 10 12:00, 10 13:00, 10 18:00", true);
        row("08:00-12:00 13:00-18:01", "10 08:00, 10 12:00, 10 13:00, 10 18:01", false);
        row("22:00-02:00 03:00-06:00", "10 22:00, 11 02:00, 11 03:00, 11 06:00", true);
        row("20:00-23:30 00:30-04:00", "10 20:00, 10 23:30, 11 00:30, 11 04:00", true);
        row("20:00-22:00 23:00-01:00", "10 20:00, 10 22:00, 10 23:00, 11 01:00", true);
        row("22:00-02:00 01:00-03:00", "10 22:00, 11 02:00, 11 01:00, 11 03:00", true);
        row("08:00-12:00 12:00-13:00", "10 08:00, 10 12:00, 11 12:00, 11 13:00", true);
    }
    void timesAscend()
    {
        QFETCH(QByteArray, times);
        const Zone there("UTC");
        Schedule schedule;
        QCOMPARE(schedule.fromJson(shortJson(json(10, times)), moment("2026-03-09 12:00")), 0);
        QStringList found;
        for (const QDateTime &time : {schedule.start(), schedule.pause(), schedule.resume(), schedule.stop()}) {
            if (time.isValid())
                found.append(time.toString("dd hh:mm"));
        }
        QTEST(found.join(", ").toLatin1(), "expected");
        QTEST(schedule.isDurationValid(), "fits");
    }

    void availability_data()
    {
        QTest::addColumn<QByteArray>("added");
        QTest::addColumn<bool>("available");
        // beside 10 08:00 to 17:00
        const auto row = [](const char *name, int day, const char *times, bool available) {
            QTest::newRow(name) << json(day, times) << available;
        };
        row("the same", 10, "08:00-17:00", false);
        row("around", 10, "07:00-18:00", false);
        row("within", 10, "09:00-10:00", false);
        row("within its pause", 10, "12:15-12:45", false);
        row("into its beginning", 10, "07:00-09:00", false);
        row("out of its end", 10, "16:00-20:00", false);
        row("at its end", 10, "17:00-20:00", false);
        row("up to its beginning", 10, "06:00-08:00", false);
        row("a minute later", 10, "17:01-20:00", true);
        row("the same on another day", 11, "08:00-17:00", true);
        row("out of the night before", 9, "23:00-08:00", false);
    }
    void availability()
    {
        QFETCH(QByteArray, added);
        Schedule there, schedule;
        const QDateTime now = moment("2026-03-09 12:00");
        QCOMPARE(there.fromJson(shortJson(json(10, "08:00-12:00 13:00-17:00")), now), 0);
        QCOMPARE(schedule.fromJson(shortJson(added), now), 0);
        QTEST(schedule.isAvailable({&there}), "available");
    }

    void wire_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QByteArray>("now");
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("wire");
        const auto row = [](const char *zone, const char *now, const QByteArray &json, const char *wire) {
            QTest::addRow("%s, %s", zone, now) << QByteArray(zone) << QByteArray(now) << json << QByteArray(wire);
        };
        const char now[] = "2026-03-09 12:00";
        row("America/Sao_Paulo", now, json(10, "08:00-12:00 13:00-17:00", "Manhã 1"),
            "\"Manh\xE3 1\",\"26/03/10,08:00:00-12\",\"26/03/10,12:00:00-12\",\"26/03/10,13:00:00-12\","
            "\"26/03/10,17:00:00-12\"");
        row("Asia/Kathmandu", now, json(9, "22:00-06:00", ""), "\"\",\"26/03/09,22:00:00+23\",,,\"26/03/10,06:00:00+23\"");
        row("Pacific/Kiritimati", "2026-12-31 12:00", json(31, "22:00-06:00", "a,b"),
            "\"a,b\",\"26/12/31,22:00:00+56\",,,\"27/01/01,06:00:00+56\"");
        // The night of the change: an hour that is skipped keeps its name and the zone from before.
        row("Europe/Berlin", "2026-03-28 12:00", json(28, "22:00-02:30"),
            "\"Turno\",\"26/03/28,22:00:00+04\",,,\"26/03/29,02:30:00+04\"");
        row("Europe/Berlin", "2026-03-29 12:00", json(29, "02:30-11:30"),
            "\"Turno\",\"26/03/29,02:30:00+04\",,,\"26/03/29,11:30:00+08\"");
        row("Europe/Berlin", "2026-10-24 12:00", json(24, "22:00-06:00"),
            "\"Turno\",\"26/10/24,22:00:00+08\",,,\"26/10/25,06:00:00+04\"");
    }
    /// What is written reads back as the same, in the zone and out of it.
    void wire()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QByteArray, now);
        QFETCH(QByteArray, json);
        QFETCH(QByteArray, wire);
        const Zone there(zone);
        Schedule schedule, read;
        QCOMPARE(schedule.fromJson(shortJson(json), moment(now)), 0);
        QVERIFY(schedule.isDurationValid());
        QCOMPARE(schedule.wire(), wire);
        QCOMPARE(read.parse("0,0," + wire, moment(now)), 0);
        QCOMPARE(read.wire(), wire);
        QCOMPARE(read.toJson(), schedule.toJson());
        const Zone elsewhere("Asia/Kolkata");
        QCOMPARE(read.parse("0,0," + wire, moment(now)), 0);
        QCOMPARE(read.toJson(), schedule.toJson());
    }

    void reads_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("expected"); // empty: refused
        const QByteArray start = "\"26/02/28,08:00:00-12\"";
        const QByteArray stop = "\"26/02/28,17:00:00-12\"";
        const QByteArray paused = "0,7,\"Manh\xE3, A\"," + start + ",\"26/02/28,12:00:00-12\",\"26/02/28,13:00:00-12\"," + stop;
        QTest::newRow("with a pause")
            << "\n" + paused << QByteArray("{'index':7,'monthDay':28,'label':'Manhã, A','startTime':'08:00',"
                                           "'pauseTime':'12:00','resumeTime':'13:00','stopTime':'17:00'}");
        const QByteArray without("{'index':7,'monthDay':28,'label':'','startTime':'08:00','pauseTime':'-',"
                                 "'resumeTime':'-','stopTime':'17:00'}");
        QTest::newRow("without") << "0,7,\"\"," + start + ",,," + stop << without;
        QTest::newRow("empty quotes") << "0,7,," + start + ",\"\",\"\"," + stop << without;
        QTest::newRow("half a pause") << "0,7,," + start + ",\"26/02/28,12:00:00-12\",," + stop << without;
        QTest::newRow("empty place") << QByteArray("0,7") << QByteArray();
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("one too few") << "0,7,\"A\"," + start + ",," + stop << QByteArray();
        QTest::newRow("a quote missing") << "0,7,\"A," + start + ",,," + stop << QByteArray();
        QTest::newRow("no date") << "0,7,\"A\",\"26/02/30,08:00:00-12\",,," + stop << QByteArray();
        QTest::newRow("no time") << "0,7,\"A\"," + start + ",,,\"26/02/28,24:00:00-12\"" << QByteArray();
        QTest::newRow("no time of pause") << "0,7,\"A\"," + start + ",\"later\",\"26/02/28,13:00:00-12\"," + stop
                                          << QByteArray();
    }
    void reads()
    {
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, expected);
        Schedule schedule;
        QCOMPARE(schedule.parse(line), expected.isEmpty() ? -1 : 0);
        if (!expected.isEmpty())
            QCOMPARE(schedule.toJson(), shortJson(expected));
    }

    void refusesFromThePage_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const int day : {-1, 0, 32, 1000000})
            QTest::addRow("day %d", day) << json(day, "08:00-17:00");
        for (const char *times : {"24:00-17:00", "08:60-17:00", "-17:00", "08:00- :  ", "08:00-12:00 x-17:00", "08-17:00"})
            QTest::newRow(times) << json(9, times);
        QTest::newRow("a quote in the label") << json(9, "08:00-17:00", "\\u0022,,");
        QTest::newRow("a line end in the label") << json(9, "08:00-17:00", "\\r\\nAT+VFERSMM");
        QTest::newRow("nothing") << QByteArray("{}");
        QTest::newRow("other types") << QByteArray("{'monthDay':'9','startTime':800,'stopTime':[],'label':{}}");
    }
    void refusesFromThePage()
    {
        QFETCH(QByteArray, text);
        Schedule schedule;
        QCOMPARE(schedule.fromJson(shortJson(text)), -1);
        QCOMPARE(schedule.startTime(), QString());
        QCOMPARE(schedule.monthDay(), 0);
    }
};

QTEST_GUILESS_MAIN(TestModelSchedule)
#include "tst_model_schedule.moc"
