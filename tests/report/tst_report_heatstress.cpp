// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/fonts.h"
#include "model/log.h"
#include "report/smoothcurve.h"
#include "report/timechart.h"
#include "tests/model/fulldisk.h"
#include "tests/report/measurements.h"
#include "tests/report/printedreport.h"
#include "thalvex2/thalvex2experiment.h"
#include "thalvex2/thalvex2printer.h"
#include "thalvex4/thalvex4experiment.h"
#include "thalvex4/thalvex4printer.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Measurements::Course;

/// What the tests need to know of a family.
struct Family {
    const char *name;
    const char *product;
    ExperimentChain (*measure)(const Course &);
    VfPrinter *(*makePrinter)();
    QStringList own; ///< switches that only this family has
};

const Family &family(int index)
{
    static const Family families[] = {
        {"Thalvex2",
         "THALVEX 2",
         Measurements::thalvex2,
         []() -> VfPrinter * { return new Thalvex2Printer; },
         {"ckbMaxMin", "ckbAvg"}},
        {"Thalvex4",
         "THALVEX 4",
         Measurements::thalvex4,
         []() -> VfPrinter * { return new Thalvex4Printer; },
         {"ckbResults", "ckbWetTempResults", "ckbDryTempResults", "ckbGlobeTempResults", "ckbIBUTGiResults",
          "ckbIBUTGeResults"}},
    };
    return families[index];
}

const QStringList tableKeys = {"ckbTable",          "ckbWetTempTable", "ckbDryTempTable",
                               "ckbGlobeTempTable", "ckbIBUTGiTable",  "ckbIBUTGeTable"};
const QStringList chartKeys = {"ckbChart",          "ckbWetTempChart", "ckbDryTempChart",
                               "ckbGlobeTempChart", "ckbIBUTGiChart",  "ckbIBUTGeChart"};

/// Prints \a experiment with the switches \a keys.
struct Printed {
    Printed(const Family &family, Experiment *experiment, const QStringList &keys, QJsonObject texts = {})
        : printer(family.makePrinter()), report(prepared(family), experiment, withKeys(texts, keys))
    {
    }
    std::unique_ptr<VfPrinter> printer;
    PrintedReport report;

private:
    VfPrinter *prepared(const Family &family)
    {
        printer->setProductName(QLatin1String(family.product));
        printer->setSn(QStringLiteral("SN-00123"));
        printer->setCalibration({QDateTime(QDate(2019, 3, 4), QTime(10, 0)), QStringLiteral("CC-2019/77")});
        return printer.get();
    }
    static QJsonObject withKeys(QJsonObject texts, const QStringList &keys)
    {
        for (const QString &key : keys)
            texts.insert(key, true);
        return texts;
    }
};

QStringList simplified(const QString &text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = line.simplified();
    return lines;
}

} // namespace

class TestReportHeatStress : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }
    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void switches_data();
    void switches();
    void pages_data();
    void pages();
    void wholeReport_data();
    void wholeReport();
    void tableOverMidnight();
    void decimalComma();
    void csv_data();
    void csv();
    void csvInALocaleOfOtherSigns();
    void csvThatCannotBeOpened();
    void diskFull_data();
    void diskFull();
    void csvOfAChain();
    void nothingMeasured_data();
    void nothingMeasured();
    void sampleTexts_data();
    void sampleTexts();
    void absurdUnit_data() { wholeReport_data(); }
    void absurdUnit();
    void reducedCurve();
    void evenedCurve_data();
    void evenedCurve();
    void drawnCurves_data();
    void drawnCurves();
    void keptPicture_data();
    void keptPicture();
};

void TestReportHeatStress::switches_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("absent");

    const QStringList optional = {"Evaluation results", "Calibration", "Chart", "Idx", "Notes", "Avg:", "Max:"};
    const auto row = [](const char *name, int index, const QStringList &keys, const QStringList &present,
                        const QStringList &absent) { QTest::newRow(name) << index << keys << present << absent; };
    row("2: nothing", 0, {}, {"Experiment", "Start time: 09:37:01", "Duration: 01:00:00", "Pause time: 00:01:30"},
        optional);
    row("2: extremes", 0, {"ckbMaxMin"},
        {"Evaluation results", "Dry temp [°C] Wet temp [°C] Globe temp [°C]", "Max: 31.33 Max: 25.31 Max: 37.35",
         "Min: 24.74 Min: 18.72 Min: 30.76"},
        {"Avg:", "WBGT"});
    row("2: averages, with solar load first", 0, {"ckbAvg"},
        {"Evaluation results", "WBGTo [°C] WBGTi [°C]", "Avg: 25.04 Avg: 25.64"}, {"Max:", "Dry temp"});
    row("2: calibration", 0, {"ckbCalibration"}, {"Calibration", "Cal. cert.: CC-2019/77 4 Mar 2019"}, {"Chart"});
    row("2: chart without curves", 0, {"ckbChart"}, {}, {"Chart"});
    row("2: curve without a chart", 0, {"ckbDryTempChart"}, {}, {"Chart"});
    row("2: chart", 0, {"ckbChart", "ckbDryTempChart"}, {"Chart", "Temperature x Time", "Time"}, {"WBGT"});
    row("2: table without columns", 0, {"ckbTable"}, {"1 of 1"}, {"Idx"});
    row("2: column without a table", 0, {"ckbDryTempTable"}, {"1 of 1"}, {"Idx"});
    row("2: table of dry", 0, {"ckbTable", "ckbDryTempTable"}, {"001 09:37:01 28.1", "060 10:36:01"}, {"Calibration"});
    row("2: table of wet", 0, {"ckbTable", "ckbWetTempTable"}, {"001 09:37:01 22.0"}, {"28.1"});
    row("2: table of globe", 0, {"ckbTable", "ckbGlobeTempTable"}, {"001 09:37:01 34.2"}, {"28.1"});
    row("2: table of WBGTi", 0, {"ckbTable", "ckbIBUTGiTable"}, {"001 09:37:01 25.7"}, {});
    row("2: table of WBGTo", 0, {"ckbTable", "ckbIBUTGeTable"}, {"001 09:37:01 25.0"}, {});
    const QStringList always = {"Evaluation results",      "Instrument index Instrument Model WBGTi WBGTo",
                                "1 THALVEX 4 05.64 25.04", "2 EXP. THALVEX 4 06.64 26.04",
                                "THALVEX 4(SN-00123)",     "EXP. THALVEX 4(E401)"};
    row("4: nothing", 1, {}, always, {"Partial results", "Cal. cert.", "Chart", "Idx", "Max:"});
    row("4: calibration", 1, {"ckbCalibration"},
        always + QStringList{"Cal. cert.: CC-2019/77 4 Mar 2019", "Cal. cert.: CC-91 1 Mar 2019"}, {"Partial results"});
    row("4: results without values", 1, {"ckbResults"}, always, {"Partial results"});
    row("4: value without results", 1, {"ckbDryTempResults"}, always, {"Partial results"});
    row("4: dry", 1, {"ckbResults", "ckbDryTempResults"},
        {"Partial results", "Dry bulb [°C]", "Max: 31.33", "Min: 24.74", "Max: 32.33"}, {"Wet bulb", "Avg:"});
    row("4: wet", 1, {"ckbResults", "ckbWetTempResults"}, {"Wet bulb [°C]", "Max: 25.31", "Min: 18.72"}, {"Dry bulb"});
    row("4: globe", 1, {"ckbResults", "ckbGlobeTempResults"}, {"Globe [°C]", "Max: 37.35", "Min: 30.76"}, {"Dry bulb"});
    row("4: WBGTi", 1, {"ckbResults", "ckbIBUTGiResults"}, {"WBGTi [°C]", "Avg: 05.64", "Avg: 06.64"}, {"Max:"});
    row("4: WBGTo", 1, {"ckbResults", "ckbIBUTGeResults"}, {"WBGTo [°C]", "Avg: 25.04", "Avg: 26.04"}, {"Max:"});
    row("4: table of wet", 1, {"ckbTable", "ckbWetTempTable"}, {"001 09:37:01 22.0", "001 09:37:01 22.5"}, {"28.1"});
}

void TestReportHeatStress::switches()
{
    QFETCH(int, index);
    QFETCH(QStringList, keys);
    QFETCH(QStringList, present);
    QFETCH(QStringList, absent);
    Course course;
    course.expansions = index;
    const ExperimentChain experiment = family(index).measure(course);
    const Printed printed(family(index), experiment.get(), keys);
    const QString text = simplified(printed.report.text()).join(QLatin1Char('\n'));
    for (const QString &part : present)
        QVERIFY2(text.contains(part), qPrintable(part + QLatin1String(" is not in:\n") + text));
    for (const QString &part : absent)
        QVERIFY2(!text.contains(part), qPrintable(part + QLatin1String(" is in:\n") + text));
}

void TestReportHeatStress::pages_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expansions");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("interval");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("total");
    const QStringList none;
    const QStringList oneColumn = {"ckbTable", "ckbDryTempTable"};
    const QStringList twoColumns = oneColumn + QStringList{"ckbWetTempTable"};
    QTest::newRow("2: no table") << 0 << 0 << 500 << 1 << none << 1;
    QTest::newRow("2: no samples") << 0 << 0 << 0 << 1 << tableKeys << 1;
    QTest::newRow("2: one sample") << 0 << 0 << 1 << 1 << tableKeys << 2;
    QTest::newRow("2: a page of two blocks") << 0 << 0 << 104 << 1 << tableKeys << 2;
    QTest::newRow("2: and one") << 0 << 0 << 105 << 1 << tableKeys << 3;
    QTest::newRow("2: of six figures' width") << 0 << 0 << 12345 << 1 << tableKeys << 1 + 12345 / 104 + 1;
    QTest::newRow("2: four blocks and one") << 0 << 0 << 209 << 1 << twoColumns << 3;
    QTest::newRow("2: many narrow blocks") << 0 << 0 << 10000 << 1 << oneColumn << 1 + (10000 + 259) / 260;
    QTest::newRow("2: ten days") << 0 << 0 << 100 << 8640 << tableKeys << 2;
    QTest::newRow("4: alone") << 1 << 0 << 60 << 1 << none << 2;
    QTest::newRow("4: two expansions") << 1 << 2 << 60 << 1 << none << 4;
    QTest::newRow("4: three, with tables") << 1 << 3 << 110 << 1 << tableKeys << 1 + 4 * (1 + 2);
    QTest::newRow("4: no samples") << 1 << 1 << 0 << 1 << tableKeys << 3;
}

void TestReportHeatStress::pages()
{
    QFETCH(int, index);
    QFETCH(int, expansions);
    QFETCH(int, samples);
    QFETCH(int, interval);
    QFETCH(QStringList, keys);
    Course course;
    course.interval = interval;
    course.samples = samples;
    course.expansions = expansions;
    const ExperimentChain experiment = family(index).measure(course);
    const Printed printed(family(index), experiment.get(), keys);
    QTEST(printed.report.pages(), "total");
    const int last = printed.report.pages();
    QVERIFY(printed.report.text(last).contains(QStringLiteral("%1 of %1").arg(last)));
    QVERIFY(printed.report.text(1).contains(QStringLiteral("1 of %1").arg(last)));
}

void TestReportHeatStress::wholeReport_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("2") << 0;
    QTest::newRow("4") << 1;
}

void TestReportHeatStress::wholeReport()
{
    QFETCH(int, index);
    Course course;
    course.expansions = index;
    const ExperimentChain experiment = family(index).measure(course);
    const Printed printed(family(index), experiment.get(),
                          tableKeys + chartKeys + family(index).own + QStringList{"ckbCalibration", "obsEnable"},
                          {{QStringLiteral("obsText"), QStringLiteral("Medição junto ao forno")}});
    QStringList fonts = printed.report.fonts();
    for (const QString &font : qAsConst(fonts))
        QVERIFY2(font.contains(QLatin1String("Free")) && font.endsWith(QLatin1String(" yes")), qPrintable(font));
    QVERIFY(fonts.filter(QLatin1String("FreeMono")).size() == 1);
    QVERIFY(printed.report.text().contains(QString::fromUtf8("Medição junto ao forno")));
    for (int page = 1; page <= printed.report.pages(); ++page)
        QCOMPARE(overlaps(printed.report.words(page)), QStringList());
}

void TestReportHeatStress::tableOverMidnight()
{
    Course course;
    course.start = QDateTime(QDate(2019, 10, 9), QTime(23, 30), Qt::OffsetFromUTC, -3 * 3600);
    course.samples = 104; // fills a page
    const ExperimentChain experiment = Measurements::thalvex2(course);
    const Printed printed(family(0), experiment.get(), tableKeys);
    QCOMPARE(printed.report.pages(), 2);
    const QString text = printed.report.text(2);
    QVERIFY(text.contains(QLatin1String("23:59:00")) && text.contains(QLatin1String("00:00:00")));
    QVERIFY(!text.contains(QLatin1String("2019")));
}

void TestReportHeatStress::decimalComma()
{
    QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
    const ExperimentChain experiment = Measurements::thalvex2({});
    const Printed printed(family(0), experiment.get(), tableKeys + chartKeys + QStringList{"ckbMaxMin", "ckbCsv"});
    const QString text = simplified(printed.report.text()).join(QLatin1Char('\n'));
    QVERIFY(text.contains(QLatin1String("Max: 31,33 Max: 25,31 Max: 37,35")));
    QVERIFY(text.contains(QLatin1String("001 09:37:01 28,1 22,0 34,2 25,7 25,0")));
    Course steady;
    steady.text = "25.3";
    const Printed fine(family(0), Measurements::thalvex2(steady).get(), chartKeys);
    QVERIFY(fine.report.text().contains(QLatin1String("25,4"))); // on the axis
    QVERIFY(printed.report.csv().contains("\r\n\"09:37:01\";\"28,1\";\"22,0\";\"34,2\";\"25,7\";\"25,0\"\r\n"));
}

void TestReportHeatStress::csv_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("bytes");
    // heads in ISO 8859-1; wet and dry over each other's values, as readers of these files know it
    QTest::newRow("2") << 0
                       << QByteArray("\"Time\";\"Wet temp [\xB0"
                                     "C]\";\"Dry temp [\xB0"
                                     "C]\";\"Globe temp [\xB0"
                                     "C]\";\"WBGTi [\xB0"
                                     "C]\";\"WBGTo [\xB0"
                                     "C]\";\r\n"
                                     "\"09:37:01\";\"28.1\";\"22.0\";\"34.2\";\"25.7\";\"25.0\"\r\n"
                                     "\"09:38:01\";\"27.9\";\"22.0\";\"33.8\";\"25.5\";\"25.0\"\r\n");
    const QByteArray head = "\"Time\";\"Wet bulb [\xB0"
                            "C]\";\"Dry bulb [\xB0"
                            "C]\";\"Globe [\xB0"
                            "C]\";\"WBGTi [\xB0"
                            "C]\";\"WBGTo [\xB0"
                            "C]\";\r\n";
    const QByteArray rest = ";\"\";\"\";\"\";\"\";\"\";\r\n";
    QTest::newRow("4") << 1
                       << "\"Event 1\"" + rest + "\"Main\"" + rest + head +
                              "\"09:37:01\";\"22.0\";\"28.1\";\"34.2\";\"25.7\";\"25.0\"\r\n"
                              "\"09:38:01\";\"22.0\";\"27.9\";\"33.8\";\"25.5\";\"25.0\"\r\n" +
                              "\"\"" + rest + "\"Expansion 1\"" + rest + head +
                              "\"09:37:01\";\"22.5\";\"28.6\";\"34.7\";\"26.2\";\"25.5\"\r\n"
                              "\"09:38:01\";\"22.5\";\"28.4\";\"34.3\";\"26.0\";\"25.5\"\r\n" +
                              "\"\"" + rest;
}

void TestReportHeatStress::csv()
{
    QFETCH(int, index);
    Course course;
    course.samples = 2;
    course.expansions = index;
    const ExperimentChain experiment = family(index).measure(course);
    const Printed printed(family(index), experiment.get(), {"ckbCsv"});
    QTEST(printed.report.csv(), "bytes");
    const Printed without(family(index), experiment.get(), {});
    QCOMPARE(without.report.csv(), QByteArray());
}

void TestReportHeatStress::csvInALocaleOfOtherSigns()
{
    QLocale::setDefault(QLocale(QStringLiteral("sv_SE"))); // its minus is no hyphen
    Course course;
    course.samples = 1;
    course.text = "-5.3";
    const ExperimentChain experiment = Measurements::thalvex2(course);
    const Printed printed(family(0), experiment.get(), {"ckbCsv"});
    QVERIFY(printed.report.csv().contains("\"\xE2\x88\x92"
                                          "5,3\""));
}

void TestReportHeatStress::csvThatCannotBeOpened()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("r.csv"))); // a folder of that name
    const ExperimentChain experiment = Measurements::thalvex2({});
    const Printed printed(family(0), experiment.get(), {"ckbCsv"},
                          {{QStringLiteral("fileName"), folder.filePath(QStringLiteral("r.pdf"))}});
    QCOMPARE(printed.report.result(), 0);
    QCOMPARE(printed.report.pages(), 1);
}

void TestReportHeatStress::diskFull_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("room");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("no room for the report") << 2 << 10000 << QStringList{"r.csv"};
    QTest::newRow("nor for the CSV") << 10000 << 10000 << QStringList();
    QTest::newRow("for the report, not for the CSV") << 10000 << 200000 << QStringList{"r.pdf"};
}

void TestReportHeatStress::diskFull()
{
    QFETCH(int, samples);
    QFETCH(int, room);
    QTemporaryDir folder;
    Course course;
    course.samples = samples;
    const ExperimentChain experiment = Measurements::thalvex2(course);
    std::optional<FullDisk> full(std::in_place, room);
    const Printed printed(family(0), experiment.get(), {"ckbCsv"},
                          {{QStringLiteral("fileName"), folder.filePath(QStringLiteral("r.pdf"))}});
    full.reset();
    QCOMPARE(printed.report.result(), -1);
    QTEST(QDir(folder.path()).entryList(QDir::Files), "files");
}

void TestReportHeatStress::csvOfAChain()
{
    Course course;
    course.samples = 2;
    course.expansions = 1;
    ExperimentChain chain = Measurements::thalvex4(course);
    chain->append(Measurements::thalvex4(course).release());
    const Printed printed(family(1), chain.get(), {"ckbCsv"});
    QStringList titles;
    const QStringList lines = QString::fromLatin1(printed.report.csv()).split(QStringLiteral("\r\n"));
    for (const QString &line : lines) {
        if (line.endsWith(QLatin1String("\"\";")) && !line.startsWith(QLatin1String("\"\"")))
            titles.append(line.section(QLatin1Char('"'), 1, 1));
    }
    QCOMPARE(titles, (QStringList{"Event 1", "Main", "Expansion 1", "Event 2", "Main", "Expansion 1"}));
}

void TestReportHeatStress::nothingMeasured_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("text");
    for (int index = 0; index < 2; ++index) {
        for (const char *text : {"---", "nan", "inf", "1e999", "warm"})
            QTest::addRow("%s: %s", family(index).name, text) << index << QByteArray(text);
        QTest::addRow("%s: no samples and no results", family(index).name) << index << QByteArray();
    }
}

void TestReportHeatStress::nothingMeasured()
{
    QFETCH(int, index);
    QFETCH(QByteArray, text);
    Course course;
    course.samples = 3;
    course.text = text;
    ExperimentChain experiment = family(index).measure(course);
    if (text.isEmpty())
        experiment.reset(index == 0 ? static_cast<Experiment *>(new Thalvex2Experiment) : new Thalvex4Experiment);
    const Printed printed(family(index), experiment.get(),
                          tableKeys + chartKeys + family(index).own + QStringList{"ckbCsv"});
    QCOMPARE(printed.report.result(), 0);
    const QString page = simplified(printed.report.text()).join(QLatin1Char('\n'));
    QCOMPARE(page.contains(QLatin1String("001 09:37:01 0.0 0.0 0.0 0.0 0.0")), !text.isEmpty());
}

void TestReportHeatStress::sampleTexts_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("written");
    const std::pair<const char *, const char *> texts[] = {
        {"25.3", "25.3"},  {"-5.3", "-5.3"},
        {"25", "25.0"},    {".5", "0.5"},
        {"5.", "5.0"},     {"-", "0.0"},
        {"1e2", "100.0"},  {"+7.5", "7.5"},
        {"2.5.1", "0.0"},  {"0.123456789", "0.1"},
        {"-.5", "-0.5"},   {"- 5", "0.0"},
        {"25.36", "25.4"}, {"25.30000000000000", "25.3"},
    };
    for (const auto &[sent, written] : texts)
        QTest::newRow(sent) << QByteArray(sent) << QByteArray(written);
}

void TestReportHeatStress::sampleTexts()
{
    QFETCH(QByteArray, sent);
    QFETCH(QByteArray, written);
    Course course;
    course.samples = 1;
    course.text = sent;
    const ExperimentChain experiment = Measurements::thalvex2(course);
    const Printed printed(family(0), experiment.get(), {"ckbCsv"});
    const QByteArray line = printed.report.csv().split('\n').value(1);
    QCOMPARE(line, "\"09:37:01\"" + QByteArray(";\"" + written + '"').repeated(5) + '\r');
}

void TestReportHeatStress::absurdUnit()
{
    QFETCH(int, index);
    Course course;
    course.unit = "<i>" + QByteArray(100000, 'u');
    const ExperimentChain experiment = family(index).measure(course);
    const Printed printed(family(index), experiment.get(), tableKeys + chartKeys + family(index).own);
    QCOMPARE(printed.report.pages(), 3 + index); // with its table
    const QString text = printed.report.text();
    QVERIFY(text.count(QString::fromUtf8("[°<i>uuuuu…]")) > 5);
    QVERIFY(!text.contains("uuuuuu"));
}

void TestReportHeatStress::reducedCurve()
{
    QVector<QPointF> points;
    for (int i = 0; i < 86400; ++i)
        points.append({double(i), std::sin(i / 5000.0) + (i == 70001 ? 10 : 0)});
    const QVector<QPointF> few = TimeChart::reduced(points, 1200);
    QVERIFY(few.size() <= 2400);
    const auto highest =
        std::max_element(few.cbegin(), few.cend(), [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    QCOMPARE(highest->y(), points[70001].y()); // a single sample out of a day is seen
    QVERIFY(std::abs(highest->x() - 70001) < 86400 / 1200.0);
    QVERIFY(SmoothCurve::evened(few).size() < 1.1 * few.size()); // or the page would take long to draw
    QVERIFY(std::is_sorted(few.cbegin(), few.cend(), [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); }));
    QCOMPARE(TimeChart::reduced(points.mid(0, 2400), 1200).size(), 2400);
}

void TestReportHeatStress::evenedCurve_data()
{
    QTest::addColumn<QVector<double>>("times");
    QTest::addColumn<int>("pieces");
    QTest::addColumn<int>("most"); // points that are added
    QVector<double> even;
    QVector<double> uneven;
    QVector<double> backAndForth;
    for (int i = 0; i < 60; ++i) {
        even.append(i * 60000.0);
        uneven.append(std::pow(i % 7 + 1, 9) + (uneven.isEmpty() ? 0 : uneven.last()));
        backAndForth.append(i % 2 * 1000.0);
    }
    QTest::newRow("even") << even << 1 << 0;
    QTest::newRow("a pause") << even + QVector<double>{240 * 60000.0, 241 * 60000.0} << 1 << 14;
    QTest::newRow("a pause to the last") << even + QVector<double>{1e9} << 1 << 16;
    QTest::newRow("uneven") << uneven << 1 << 400;
    QTest::newRow("clock set back") << even + even << 2 << 0;
    QTest::newRow("of the same moment") << QVector<double>(60, 5.0) << 1 << 0;
    QTest::newRow("no clock at all") << backAndForth << 1 << 20;
    QTest::newRow("one") << QVector<double>{5.0} << 1 << 0;
    QTest::newRow("two") << QVector<double>{5.0, 6e9} << 1 << 0;
    QTest::newRow("none") << QVector<double>() << 0 << 0;
}

void TestReportHeatStress::evenedCurve()
{
    QFETCH(QVector<double>, times);
    QVector<QPointF> points;
    for (const double time : times)
        points.append({time, points.size() % 2 * 10.0});
    const QVector<QVector<QPointF>> pieces = SmoothCurve::pieces(points);
    QTEST(pieces.size(), "pieces");
    int samples = 0;
    int drawn = 0;
    for (const QVector<QPointF> &piece : pieces) {
        const QVector<QPointF> curve = SmoothCurve::evened(piece);
        samples +=
            int(std::count_if(piece.cbegin(), piece.cend(), [&](const QPointF &p) { return curve.contains(p); }));
        drawn += curve.size();
        for (int i = 2; i < curve.size(); ++i) {
            const double ratio = (curve[i].x() - curve[i - 1].x()) / (curve[i - 1].x() - curve[i - 2].x());
            QVERIFY2(ratio > 0.333 && ratio < 3.001, qPrintable(QString::number(ratio)));
        }
    }
    QCOMPARE(samples, points.size());
    QFETCH(int, most);
    QVERIFY2(drawn - samples <= most, qPrintable(QString::number(drawn - samples)));
}

void TestReportHeatStress::drawnCurves_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("from"); ///< the first sample of another clock
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("curves");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("a pause") << 29 << 14 << 7200 << 1 << QStringList{"10:00:00", "10:30:00", "11:00:00", "11:30:00"};
    QTest::newRow("a day of reduced samples")
        << 8000 << 8000 << 0 << 1 << QStringList{"00:00:00", "14 Oct 2019", "13 Oct 2019"};
    QTest::newRow("a clock set back") << 60 << 30 << -1200 << 2 << QStringList{"09:40:00", "09:50:00"};
    QTest::newRow("midnight") << 60 << 0 << 14 * 3600 << 1
                              << QStringList{"23:40:00", "9 Oct 2019", "00:00:00", "10 Oct 2019"};
    QTest::newRow("one sample") << 1 << 0 << 0 << 0 << QStringList{"09:36:20", "09:37:00", "09:37:40"};
}

/// The paths that a reader of the PDF draws.
void TestReportHeatStress::drawnCurves()
{
    QFETCH(int, samples);
    QFETCH(int, from);
    QFETCH(int, seconds);
    QFETCH(QStringList, labels);
    Course course;
    course.samples = samples;
    const ExperimentChain experiment = Measurements::thalvex2(course);
    const QList<Log *> logs = experiment->logs();
    for (Log *log : logs.mid(from))
        log->setRegisterDate(log->registerDate().addSecs(seconds));
    const Printed printed(family(0), experiment.get(), {"ckbChart", "ckbGlobeTempChart"});
    int curves = 0;
    for (const QVector<QPointF> &curve : printed.report.curves()) {
        ++curves;
        const auto back = std::is_sorted_until(curve.cbegin(), curve.cend(),
                                               [](const QPointF &a, const QPointF &b) { return a.x() < b.x() - 0.01; });
        QVERIFY2(back == curve.cend(), qPrintable(QStringLiteral("back at %1").arg(back - curve.cbegin())));
    }
    QTEST(curves, "curves");
    const QString text = printed.report.text();
    for (const QString &label : labels)
        QVERIFY2(text.contains(label), qPrintable(label + QLatin1String(" is not in:\n") + text));
    QCOMPARE(overlaps(printed.report.words(1)), QStringList());
}

void TestReportHeatStress::keptPicture_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("picture");
    QTest::newRow("2: first page") << 0 << 1 << "report-thalvex2-1.png";
    QTest::newRow("2: log table") << 0 << 2 << "report-thalvex2-2.png";
    QTest::newRow("4: first page") << 1 << 1 << "report-thalvex4-1.png";
    QTest::newRow("4: an expansion") << 1 << 4 << "report-thalvex4-4.png";
}

void TestReportHeatStress::keptPicture()
{
    QFETCH(int, index);
    QFETCH(int, page);
    QFETCH(QString, picture);
    Course course;
    course.expansions = index;
    const ExperimentChain experiment = family(index).measure(course);
    const Printed printed(family(index), experiment.get(),
                          tableKeys + chartKeys + family(index).own +
                              QStringList{"ckbCalibration", "obsEnable", "repInfoEnable", "cmpnyInfoEnable"},
                          {{QStringLiteral("obsText"), QStringLiteral("Medição junto ao forno")},
                           {QStringLiteral("repName"), QStringLiteral("José da Conceição")},
                           {QStringLiteral("cmpnyName"), QStringLiteral("Fundição São João & Irmãos")}});
    QVERIFY(differenceToKept(printed.report.image(page, 75), picture) <= 20);
}

QTEST_MAIN(TestReportHeatStress)
#include "tst_report_heatstress.moc"
