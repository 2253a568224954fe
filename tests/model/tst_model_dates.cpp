// SPDX-License-Identifier: GPL-3.0-or-later
// The date text of instruments and files, and the calibration, which holds one.

#include "model/atdatetime.h"
#include "model/calibration.h"

#include <QTimeZone>
#include <QtTest>

class TestModelDates : public QObject
{
    Q_OBJECT

private slots:
    /// Runs in Sao Paulo and in Berlin: hours that summer time skips there stay as the instrument wrote them.
    void readsAndWritesBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QTime>("time");
        QTest::addColumn<int>("offset");
        QTest::newRow("west") << "19/10/09,09:37:01-12" << QDate(2019, 10, 9) << QTime(9, 37, 1) << -3 * 3600;
        QTest::newRow("half an hour") << "21/03/05,14:30:00+22" << QDate(2021, 3, 5) << QTime(14, 30) << 19800;
        QTest::newRow("quarter of an hour") << "21/03/05,14:30:00+23" << QDate(2021, 3, 5) << QTime(14, 30) << 20700;
        QTest::newRow("UTC") << "21/03/05,00:00:00+00" << QDate(2021, 3, 5) << QTime(0, 0) << 0;
        QTest::newRow("farthest east") << "21/12/31,23:59:59+56" << QDate(2021, 12, 31) << QTime(23, 59, 59) << 50400;
        QTest::newRow("skipped in Sao Paulo") << "18/11/04,00:30:00-12" << QDate(2018, 11, 4) << QTime(0, 30) << -10800;
        QTest::newRow("skipped in Berlin") << "19/03/31,02:30:00+04" << QDate(2019, 3, 31) << QTime(2, 30) << 3600;
        QTest::newRow("twice in Berlin") << "19/10/27,02:30:00+08" << QDate(2019, 10, 27) << QTime(2, 30) << 7200;
        QTest::newRow("leap day of 2000") << "00/02/29,12:00:00-12" << QDate(2000, 2, 29) << QTime(12, 0) << -10800;
        QTest::newRow("last year") << "99/12/31,12:00:00+04" << QDate(2099, 12, 31) << QTime(12, 0) << 3600;
    }
    void readsAndWritesBack()
    {
        QFETCH(QString, text);
        const QDateTime moment = AtDateTime::fromAtString(text);
        QVERIFY(moment.isValid());
        QTEST(moment.date(), "date");
        QTEST(moment.time(), "time");
        QTEST(moment.offsetFromUtc(), "offset");
        QCOMPARE(AtDateTime::toAtString(moment), text);
        QCOMPARE(AtMoment::fromText(text).toMSecsSinceEpoch(), moment.toMSecsSinceEpoch());
    }

    void writesAnyZone_data()
    {
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<QString>("text");
        const QDate date(2021, 7, 1);
        QTest::newRow("named zone") << QDateTime(date, {9, 5, 7}, QTimeZone("Asia/Kolkata")) << "21/07/01,09:05:07+22";
        QTest::newRow("UTC") << QDateTime(date, {9, 5, 7}, Qt::UTC) << "21/07/01,09:05:07+00";
        QTest::newRow("below a quarter") << QDateTime(date, {9, 5}, Qt::OffsetFromUTC, 899) << "21/07/01,09:05:00+00";
        QTest::newRow("west, cut toward zero")
            << QDateTime(date, {9, 5}, Qt::OffsetFromUTC, -1799) << "21/07/01,09:05:00-01";
        QTest::newRow("no date") << QDateTime() << "+00";
    }
    void writesAnyZone()
    {
        QFETCH(QDateTime, moment);
        QTEST(AtDateTime::toAtString(moment), "text");
    }

    void refusesWhatIsNoDate_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "+00", "---", "21/03/05", "21/03/05,14:30:0", "21-03-05,14:30:00-12",
                                 "21/13/05,14:30:00-12", "21/02/30,14:30:00-12", "21/02/29,14:30:00+00",
                                 "21/03/05,24:00:00-12", "21/03/05,14:60:00-12", "2x/03/05,14:30:00-12",
                                 "21/03/05 14:30:00-12", "+1/03/05,14:30:00-12", "21/00/05,14:30:00-12"})
            QTest::newRow(*text ? text : "empty") << text;
    }
    void refusesWhatIsNoDate()
    {
        QFETCH(QString, text);
        const QDateTime moment = AtDateTime::fromAtString(text);
        QVERIFY(!moment.isValid());
        QCOMPARE(AtDateTime::toAtString(moment), QString("+00"));
    }

    void calibrationFromTheInstrument_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("certification");
        QTest::newRow("quoted") << "\"25/11/18,10:00:00-12\",\"CAL-2025/118\"" << 0 << "25/11/18,10:00:00-12"
                                << "CAL-2025/118";
        QTest::newRow("quoted apart") << "\"25/11/18\",\"10:00:00-12\",\"X\"" << 0 << "25/11/18,10:00:00-12" << "X";
        QTest::newRow("no certificate yet") << "\"25/11/18,10:00:00-12\",\"\"" << 0 << "25/11/18,10:00:00-12" << "";
        QTest::newRow("a field more") << "25/11/18,10:00:00-12,X,Y" << 0 << "25/11/18,10:00:00-12" << "X";
        QTest::newRow("certificate first") << "\"CAL, 7\",\"25/11/18,10:00:00-12\"" << 0 << "25/11/18,10:00:00-12" << "CAL, 7";
        QTest::newRow("date unreadable") << "never,then,X" << 0 << "+00" << "X";
        QTest::newRow("a field less") << "\"25/11/18,10:00:00-12\"" << -1 << "20/01/02,03:04:05+00" << "OLD";
        QTest::newRow("empty") << "" << -1 << "20/01/02,03:04:05+00" << "OLD";
    }
    void calibrationFromTheInstrument()
    {
        QFETCH(QString, answer);
        Calibration calibration{AtDateTime::fromAtString("20/01/02,03:04:05+00"), "OLD"};
        QTEST(calibration.parseDeviceAnswer(answer), "code");
        QTEST(calibration.toJson()["date"].toString(), "date");
        QTEST(calibration.toJson()["certification"].toString(), "certification");
    }

    void calibrationFromThePage_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("certification");
        QTest::newRow("UTC") << R"({"date":"2021-03-05T14:30:00Z","certification":"Ä-7"})" << 0
                             << "21/03/05,14:30:00+00" << "Ä-7";
        QTest::newRow("with its offset") << R"({"date":"2021-03-05T14:30:00.000-03:00","certification":"7"})" << 0
                                         << "21/03/05,14:30:00-12" << "7";
        QTest::newRow("nothing in it") << "{}" << 0 << "+00" << "";
        QTest::newRow("array") << "[]" << -1 << "+00" << "OLD";
        QTest::newRow("no JSON") << "date" << -1 << "+00" << "OLD";
    }
    void calibrationFromThePage()
    {
        QFETCH(QString, text);
        Calibration calibration{{}, "OLD"};
        QTEST(calibration.parseJson(text), "code");
        QTEST(AtDateTime::toAtString(calibration.date), "date");
        QTEST(calibration.certification, "certification");
    }
};

QTEST_GUILESS_MAIN(TestModelDates)
#include "tst_model_dates.moc"
