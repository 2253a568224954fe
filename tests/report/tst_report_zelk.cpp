// SPDX-License-Identifier: GPL-3.0-or-later
// The logger's report: what its sensors measured, in any number of quantities.

#include "app/fonts.h"
#include "tests/report/printedreport.h"
#include "zelk/zelkexperiment.h"
#include "zelk/zelkprinter.h"

#include <QJsonArray>
#include <QTest>

namespace {

const QStringList everything = {"ckbTable", "ckbChart", "ckbMaxMin", "ckbAvg", "ckbCalibration", "cmpnyInfoEnable",
                                "siteInfoEnable", "ownCompanyInfoEnable", "collectorInfoEnable", "obsEnable",
                                "repInfoEnable", "repIdInfoEnable"};

/// A measurement of so many quantities; value k of a record is \a first + 10 k and a little more from record to record.
struct Measured {
    int quantities = 2;
    int samples = 60;
    double first = 500;
    QString label = "Press";
    QJsonArray items = {};
};

QString date(int second)
{
    return QString("19/10/09,09:%1:%2-12").arg(second / 60 % 60, 2, 10, QChar('0')).arg(second % 60, 2, 10, QChar('0'));
}

QJsonObject experiment(const Measured &measured)
{
    const char *const names[] = {"ILUM", "CONC", "TEMP", "HUM", "TEMP", "NONE", "PRESS", "VEL"};
    QJsonArray logs, quantities, low, high, average;
    for (int k = 0; k < measured.quantities; ++k) {
        quantities.append(QJsonObject{{"name", names[k % 8]}, {"unity", k % 8 == 5 ? "" : "lx"}});
        low.append(QString::number(measured.first + 10 * k));
        high.append(QString::number(measured.first + 10 * k + 0.5));
        if (k != 1)
            average.append("100.25");
    }
    for (int i = 0; i < measured.samples; ++i) {
        QJsonArray values;
        for (int k = 0; k < measured.quantities; ++k)
            values.append(i == 1 ? QString("---") : QString::number(measured.first + 10 * k + i % 6 / 10.0));
        logs.append(QJsonObject{{"date", date(i)}, {"physicalQuantitiesList", values}});
    }
    return {{"date", date(0)},
            {"deviceName", "ZELK"},
            {"index", "1"},
            {"size", QString::number(measured.samples)},
            {"expName", measured.label},
            {"logList", logs},
            {"results", QJsonObject{{"label", measured.label}, {"duration", "00:01:00"}, {"startTime", date(0)},
                                    {"stopTime", date(60)}, {"pauseTime", "00:00:05"}, {"sampleTime", 1},
                                    {"sensorType", "LUX"}, {"sensorSN", "SN-7"}, {"sensorCertificate", "CC-1"},
                                    {"sensorCalibrationDate", date(0)}, {"averageList", average}, {"minList", low},
                                    {"maxList", high}, {"quantitiesInfoList", quantities},
                                    {"configList", measured.items}, {"evaluationResultsList", measured.items}}}};
}

ExperimentChain chain(const QVector<Measured> &all)
{
    ExperimentChain first;
    for (const Measured &measured : all) {
        auto member = std::make_unique<ZelkExperiment>();
        member->fromJson(experiment(measured));
        if (first)
            first->append(member.release());
        else
            first = ExperimentChain(member.release());
    }
    return first;
}

QJsonArray numbers(int count)
{
    QJsonArray all;
    for (int i = count - 1; i >= 0; --i) // in any order
        all.append(i);
    return all;
}

QJsonObject choices(const QStringList &keys, int columns, int charts)
{
    QJsonObject object = switchedOn(keys);
    object.insert("selectedTableColumnsList", numbers(columns));
    object.insert("selectedChartsList", numbers(charts));
    for (const char *key : {"collectorName", "cmpnyName", "ownCompany", "siteName", "obsText", "repName", "repIdReg"})
        object.insert(key, QString("the %1").arg(key));
    return object;
}

} // namespace

Q_DECLARE_METATYPE(Measured)

class TestReportZelk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }

    void pages_data()
    {
        QTest::addColumn<QVector<Measured>>("measured");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("charts");
        QTest::addColumn<int>("pages");
        QTest::newRow("nothing asked for") << QVector<Measured>{{}} << QStringList() << 0 << 0 << 2;
        QTest::newRow("no column selected") << QVector<Measured>{{}} << everything << 0 << 2 << 2;
        QTest::newRow("one quantity") << QVector<Measured>{{1}} << everything << 1 << 1 << 3;
        QTest::newRow("eight quantities") << QVector<Measured>{{8}} << everything << 8 << 8 << 5;
        QTest::newRow("nine charts") << QVector<Measured>{{9}} << everything << 0 << 9 << 2;
        QTest::newRow("more columns than fit") << QVector<Measured>{{20}} << everything << 20 << 0 << 2;
        QTest::newRow("a growing and shrinking chain") << QVector<Measured>{{8}, {1}, {3}} << everything << 8 << 8 << 10;
        QTest::newRow("none of those selected") << QVector<Measured>{{3}, {0}} << everything << 3 << 3 << 5;
        QTest::newRow("no record") << QVector<Measured>{{2, 0}} << everything << 2 << 2 << 2;
        QTest::newRow("sensors over two pages") << QVector<Measured>(60) << QStringList() << 0 << 0 << 62;
        QTest::newRow("a long name") << QVector<Measured>{{2, 60, 500, QString(160, 'W')}} << everything << 2 << 2 << 3;
        QTest::newRow("beyond measure") << QVector<Measured>{{2, 60, 1e300}} << everything << 2 << 2 << 3;
        QTest::newRow("zeros") << QVector<Measured>{{1, 1, 0}} << everything << 1 << 1 << 3;
    }
    void pages()
    {
        QFETCH(QVector<Measured>, measured);
        QFETCH(QStringList, keys);
        QFETCH(int, columns);
        QFETCH(int, charts);
        const ExperimentChain first = chain(measured);
        ZelkPrinter printer;
        const PrintedReport report(&printer, first.get(), choices(keys, columns, charts));
        QCOMPARE(report.result(), 0);
        QTEST(report.pages(), "pages");
        for (int page = 1; page <= qMin(report.pages(), 9); ++page)
            QCOMPARE(report.faults(page), QStringList());
    }

    void sections_data()
    {
        QTest::addColumn<Measured>("measured");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("charts");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("absent");
        const auto row = [](const char *name, const Measured &measured, const QStringList &keys, int columns, int charts,
                            const QStringList &present, const QStringList &absent) {
            QTest::newRow(name) << measured << keys << columns << charts << present << absent;
        };
        row("front", {}, {}, 0, 0, {"Zelk Report @", "Experiment type: LUX", "Event Name Sensor SN", "1 Press SN-7"},
            {"CC-1", "Company", "Limits", "Charts", "Idx", "Employee"});
        row("certificate", {}, {"ckbCalibration"}, 0, 0, {"CC-1 (9 Oct 2019)"}, {});
        row("configuration", {}, {}, 0, 0,
            {"Event: 1", "Task name: Press", "Sample time [s]: 1", "Start time: 09:00:00", "Stop time: 09:01:00",
             "Duration: 00:01:00", "Pause time: 00:00:05", "Evaluation results"}, {});
        row("averages", {6}, {"ckbAvg"}, 0, 0,
            {"Quantity Avg", "Illuminance [lx] 100.25", "Gas concentration [lx] 100.25", "Invalid ---"}, {"Min", "Max", "[]"});
        row("limits", {}, {"ckbMaxMin"}, 0, 0, {"Quantity Min Max", "Gas concentration [lx] 510.00 510.50"}, {"Avg"});
        row("table", {3}, {"ckbTable"}, 2, 0, {"Idx D/T Illuminance [lx] Gas concentration [lx]", "001 09:00:00 500.00 510.00",
                                               "002 09:00:01 --- ---"}, {"Charts", "Temperature"});
        row("charts", {3}, {"ckbChart"}, 0, 3, {"Charts", "Illuminance x Time", "Temperature x Time", "450", "550"}, {"200", "Idx"});
        row("items", {1, 1, 0, "", {QJsonObject{{"label", "TWA"}, {"type", "f"}, {"dataValue", 1234.56789}, {"unity", "ppm"}},
                                    QJsonObject{{"label", "TWA"}, {"type", "f"}, {"dataValue", 0.5}, {"unity", ""}},
                                    QJsonObject{{"label", "LAMP"}, {"type", "s"}, {"dataValue", "OF"}, {"unity", ""}},
                                    QJsonObject{{"label", "AREA"}, {"type", "x"}, {"dataValue", "1"}, {"unity", "m"}}}},
            {}, 0, 0, {"TWA [ppm]: 1,234.57", "TWA: 0.5", "Light source type: Optical", "Invalid: ---"}, {});
    }
    void sections()
    {
        QFETCH(Measured, measured);
        QFETCH(QStringList, keys);
        QFETCH(int, columns);
        QFETCH(int, charts);
        QFETCH(QStringList, present);
        QFETCH(QStringList, absent);
        const ExperimentChain first = chain({measured});
        ZelkPrinter printer;
        const PrintedReport report(&printer, first.get(), choices(keys, columns, charts));
        const QString text = report.text().simplified();
        for (const QString &word : qAsConst(present))
            QVERIFY2(text.contains(word), qPrintable(word + "\n" + text));
        for (const QString &word : qAsConst(absent))
            QVERIFY2(!text.contains(word), qPrintable(word + "\n" + text));
    }
};

QTEST_MAIN(TestReportZelk)
#include "tst_report_zelk.moc"
