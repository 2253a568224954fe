// SPDX-License-Identifier: GPL-3.0-or-later
// The report of a day's vibration: its parts, what they come to, and pages that hold what stands on them.

#include "app/fonts.h"
#include "lomtrix/lomtrixprinter.h"
#include "lomtrix/lomtrixresults.h"
#include "model/log.h"
#include "tests/report/measurements.h"
#include "tests/report/printedreport.h"

#include <QTest>

namespace {

using Measurements::Vibration;

const QStringList everything = {"collectorInfoEnable", "cmpnyInfoEnable", "ownCompanyInfoEnable", "siteInfoEnable",
                                "emplInfoEnable", "ckbCalibration", "obsEnable", "repInfoEnable", "repIdInfoEnable",
                                "ckbChart", "ckbTable"};

ExperimentChain chain(const Vibration &vibration, int count = 1)
{
    ExperimentChain first = Measurements::lomtrix(vibration);
    for (int i = 1; i < count; ++i)
        first->append(Measurements::lomtrix(vibration).release());
    (void)first->results()->recomputeExposure(first.get());
    return first;
}

struct Printed {
    Printed(Experiment *experiment, const QStringList &keys) : report(prepared(), experiment, choices(keys)) {}
    /// Lines of the text with single blanks, the decimal sign a point.
    QString text(int page = 0) const
    {
        QStringList lines = report.text(page).split('\n');
        for (QString &line : lines)
            line = line.simplified();
        return lines.join('\n').replace(QLocale().decimalPoint(), '.');
    }

    LomtrixPrinter printer;
    PrintedReport report;

private:
    VfPrinter *prepared()
    {
        printer.setProductName("LOMTRIX");
        printer.setSn("SN-00123");
        printer.setCalibration({QDateTime(QDate(2019, 3, 4), QTime(10, 0)), "CC-2019/77"});
        return &printer;
    }
    static QJsonObject choices(const QStringList &keys)
    {
        QJsonObject object = switchedOn(keys);
        for (const char *key : {"collectorName", "cmpnyName", "ownCompany", "siteName", "emplName", "obsText", "repName", "repIdReg"})
            object.insert(key, QString("the %1").arg(key));
        return object;
    }
};

} // namespace
Q_DECLARE_METATYPE(Vibration)

class TestReportLomtrix : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }

    /// The foot of each page tells the number of pages; nothing lies on another text or beside the page.
    void pages_data()
    {
        QTest::addColumn<Vibration>("vibration");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("pages");
        const auto row = [](const char *name, const Vibration &vibration, int count, const QStringList &keys, int pages) {
            QTest::newRow(name) << vibration << count << keys << pages;
        };
        const auto of = [](int samples, const QByteArray &name = "Drill", const QByteArray &text = {}) {
            Vibration vibration;
            vibration.course.samples = samples;
            vibration.course.text = text;
            vibration.name = name;
            return vibration;
        };
        row("nothing asked for", {}, 1, {}, 2);
        row("everything", {}, 1, everything, 4);
        row("three", {}, 3, everything, 10);
        row("sixty", of(2), 60, {}, 62);
        row("a day of a record a minute", of(1440), 1, everything, 30);
        row("no record", of(0), 1, everything, 2);
        row("a long name", of(2, QByteArray(160, 'W')), 2, everything, 5);
        row("a name of markup", of(2, "<b>x</b> & \xe7"), 2, everything, 5);
        row("long values", of(2, "Drill", "1234567890.123456789"), 1, everything, 3);
    }
    void pages()
    {
        QFETCH(Vibration, vibration);
        QFETCH(int, count);
        QFETCH(QStringList, keys);
        const ExperimentChain first = chain(vibration, count);
        const Printed printed(first.get(), keys);
        QCOMPARE(printed.report.result(), 0);
        QTEST(printed.report.pages(), "pages");
        for (const int page : {1, 2, 3, printed.report.pages()}) {
            if (page > printed.report.pages())
                continue;
            const QString foot = QString("%1 of %2").arg(page).arg(printed.report.pages());
            QVERIFY2(printed.text(page).contains(foot), qPrintable(foot));
            const auto words = printed.report.words(page);
            QCOMPARE(overlaps(words), QStringList());
            const qreal bottom = printed.report.box("of", page).top() + 20;
            for (const PrintedReport::Word &word : words)
                QVERIFY2(word.box.bottom() <= bottom && word.box.left() >= 0 && word.box.right() < 606, qPrintable(word.text));
        }
    }

    /// What stands in the report, by the measurements and the switches.
    void sections_data()
    {
        QTest::addColumn<Vibration>("vibration");
        QTest::addColumn<QString>("hours");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("absent");
        Vibration body;
        body.type = "0";
        Vibration long_;
        long_.course.interval = 3600;
        long_.exposure = QString();
        QTest::newRow("bare") << Vibration() << "08:00" << QStringList()
            << QStringList{"Vibration evaluation report", "Application: HAV", "Working hours [hh:mm]: 08:00",
                           "1 05.35 50.28 38.02 00.00 08.85 08.98 08.99 02:30", "are [m/s²]: 2.99", "aren [m/s²]: 2.99",
                           "CF: 8.99", "X: 88.51", "Y: 62.15", "Z: 0.00", ": 93.46", "Exposure time: 02:30:00",
                           "Pause time: 00:01:30", "X: Wh Y: Wd Z: Wk", "X: 01.40 Y: 01.30 Z: 01.00", "Name: ACC-3 SN: S-00417",
                           "X: 10.02 Y: 9.98 Z: 10.05", "Peak [m/s²]", "X: 31.70 Y: 23.90 Z: 41.70"}
            << QStringList{"Calibration", "Charts", "Idx", "Collected", "57"};
        QTest::newRow("everything") << body << "04:00" << everything
            << QStringList{"Collected by: the collectorName", "Employee: the emplName", "Application: WBV",
                           "are [m/s²]: 4.23", "aren [m/s²]: 2.99", "Cal. cert.: CC-2019/77", "the obsText", "Charts",
                           "Acceleration x Time", "3.011 2.022 4.033 10.044 8.055 114.066 5.110 6.220 7.330 5.077",
                           "031 ", "---"}
            << QStringList{"HAV"};
        QTest::newRow("longer than a day, no exposure time") << long_ << "08:00" << QStringList()
            << QStringList{"Duration: 12:00:00", "Exposure time: ---"} << QStringList{"60:00:00", ": :00"};
        QTest::newRow("a day of no length") << Vibration() << "00:00" << QStringList()
            << QStringList{"are [m/s²]: ---", "aren [m/s²]: 2.99"} << QStringList{"inf", "nan"};
    }
    void sections()
    {
        QFETCH(Vibration, vibration);
        QFETCH(QString, hours);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, present);
        QFETCH(QStringList, absent);
        const ExperimentChain first = chain(vibration);
        (void)first->results()->refreshWorkingHours(QString(R"({"workingHours": "%1"})").arg(hours));
        (void)first->results()->recomputeExposure(first.get());
        const Printed printed(first.get(), keys);
        const QString text = printed.text();
        for (const QString &word : qAsConst(present))
            QVERIFY2(text.contains(word), qPrintable(word + "\n" + text));
        for (const QString &word : qAsConst(absent))
            QVERIFY2(!text.contains(word), qPrintable(word + "\n" + text));
        QCOMPARE(LomtrixResults::evaluation().workingHours, hours); // printing begins no evaluation
    }

    /// A record whose date nobody can read has no place in the chart, and does not stretch its time to where none was.
    void recordWithoutDate()
    {
        Vibration vibration;
        vibration.course.samples = 3;
        const ExperimentChain first = chain(vibration);
        const QString whole = Printed(first.get(), {"ckbChart"}).text(2);
        first->logs()[1]->setRegisterDate({});
        QCOMPARE(Printed(first.get(), {"ckbChart"}).text(2), whole);
    }

    /// The exponent of the unit stands above its line, in the style of the locale.
    void exponent()
    {
        const ExperimentChain first = chain({});
        const Printed printed(first.get(), {});
        const QRectF exponent = printed.report.box(QLocale().toString(1.75));
        const QRectF unit = printed.report.box("[m/s");
        QVERIFY(!exponent.isNull() && !unit.isNull());
        QVERIFY(exponent.center().y() < unit.center().y() && exponent.height() < unit.height());
    }
};

QTEST_MAIN(TestReportLomtrix)
#include "tst_report_lomtrix.moc"
