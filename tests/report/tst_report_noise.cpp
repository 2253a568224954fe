// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of the noise instruments: sections by switches, overload, and pages that hold what stands on them.

#include "app/fonts.h"
#include "ardel/ardel2experiment.h"
#include "ardel/ardel2printer.h"
#include "nembra/nembraexperiment.h"
#include "nembra/nembraprinter.h"
#include "nembraplus/nembraplusprinter.h"
#include "tests/report/measurements.h"
#include "tests/report/printedreport.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

namespace {

using Measurements::Noise;

const QStringList shared = {"collectorInfoEnable", "cmpnyInfoEnable", "ownCompanyInfoEnable", "siteInfoEnable",
                            "emplInfoEnable", "ckbCalLab", "ckbCalAudLab", "obsEnable", "repInfoEnable",
                            "repIdInfoEnable", "ckbPreChk", "ckbPosChk", "ckbChartLvl", "ckbLeqZ", "ckbLeqC", "ckbLeqA"};
enum Kind { One, All, Three }; // a meter of one weighting, of all, a dosimeter (of three)
const char *const names[] = {"one weighting", "all weightings", "dosimeter"};
const QStringList dosimeters{"ckbDos1DosiCfg", "ckbDos2DosiCfg", "ckbDosUSERDosiCfg"};
const QStringList all[] = {shared + QStringList{"ckbChartLeq"},
                           shared + QStringList{"ckbResZ", "ckbResC", "ckbResA", "ckbMaxMinZ", "ckbMaxMinC",
                                                "ckbMaxMinA", "ckbStatistics"},
                           shared + dosimeters + QStringList{"ckbPreCal", "ckbPosCal", "ckbImpact", "ckbChartHisto",
                                                             "ckbChartLeq", "ckbHearingProtector"}};

ExperimentChain chain(int kind, const Noise &noise, int count = 1)
{
    const auto make = kind == One ? Measurements::nembra : kind == All ? Measurements::nembraPlus : Measurements::ardel2;
    ExperimentChain first = make(noise);
    for (int i = 1; i < count; ++i)
        first->append(make(noise).release());
    return first;
}

/// Prints with the switches \a keys.
struct Printed {
    Printed(int kind, Experiment *experiment, const QStringList &keys, const QString &certificate = "CC-2019/77")
        : printer(kind == One   ? static_cast<VfPrinter *>(new NembraPrinter)
                  : kind == All ? static_cast<VfPrinter *>(new NembraPlusPrinter)
                                : new Ardel2Printer),
          report(prepared(experiment->deviceName(), certificate), experiment, choices(keys))
    {
    }
    /// Lines of the text with single blanks.
    QString text(int page = 0) const
    {
        QStringList lines = report.text(page).split('\n');
        for (QString &line : lines)
            line = line.simplified();
        return lines.join('\n');
    }

    std::unique_ptr<VfPrinter> printer;
    PrintedReport report;

private:
    VfPrinter *prepared(const QString &product, const QString &certificate)
    {
        printer->setProductName(product);
        printer->setSn("SN-00123");
        printer->setCalibration({QDateTime(QDate(2019, 3, 4), QTime(10, 0)), certificate});
        return printer.get();
    }
    static QJsonObject choices(const QStringList &keys)
    {
        QJsonObject object = switchedOn(keys);
        for (const char *key : {"collectorName", "cmpnyName", "ownCompany", "siteName", "emplName", "audCertified",
                                "obsText", "repName", "repIdReg"})
            object.insert(key, QString("the %1").arg(key));
        return object;
    }
};

} // namespace

Q_DECLARE_METATYPE(Noise)

class TestReportNoise : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }

    /// The foot of each page tells the number of pages; nothing lies on another text or below the foot.
    void pages_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("samples");
        QTest::addColumn<QByteArray>("octaves");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("pages");
        const auto add = [](Kind kind, const char *name, int count, int samples, const char *octaves,
                            const QByteArray &task, const QStringList &keys, int pages) {
            QTest::addRow("%s, %s", names[kind], name)
                << int(kind) << count << samples << QByteArray(octaves) << task << keys << pages;
        };
        for (const Kind kind : {One, All}) {
            const bool plus = kind == All;
            const auto row = [&](const char *name, int count, int samples, const char *octaves, const QByteArray &task,
                                 const QStringList &keys, int pages) {
                add(kind, name, count, samples, octaves, task, keys, pages);
            };
            const QStringList everything = all[kind] + QStringList{"ckbTable"};
            row("nothing asked for", 1, 60, "1/1", "Press", {}, 2);
            row("octaves", 1, 60, "1/1", "Press", all[kind], plus ? 3 : 2);
            row("three, thirds, with tables", 3, 60, "1/3", "Press", everything, plus ? 10 : 7);
            row("no bands", 2, 60, "no", "Press", everything, plus ? 7 : 5);
            row("a day", 1, 3000, "1/1", "Press", everything, plus ? 18 : 17);
            row("points over two pages", 60, 2, "1/1", "Press", {}, 62);
            row("no record", 1, 0, "1/1", "Press", everything, plus ? 3 : 2);
            row("a long name", 2, 60, "1/1", QByteArray(160, 'W'), everything, 7);
            row("a name of markup", 2, 60, "1/1", "<b>x</b> & \xe7", everything, plus ? 7 : 5);
        }
        const auto row = [&](const char *name, int samples, const char *octaves, const QByteArray &task,
                             const QStringList &keys, int pages) {
            add(Three, name, 1, samples, octaves, task, keys, pages);
        };
        const QStringList everything = all[Three] + QStringList{"ckbTable"};
        row("nothing asked for", 60, "1/1", "Press", {}, 1);
        row("everything", 60, "1/1", "Press", all[Three], 2);
        row("everything, thirds, with a table", 60, "1/3", "Press", everything, 3);
        row("no bands", 60, "no", "Press", dosimeters + QStringList{"ckbChartLeq", "ckbLeqZ", "ckbTable"}, 2);
        row("a shift", 3000, "1/1", "Press", everything, 14);
        row("no record", 0, "1/1", "Press", everything, 2);
        row("a long name", 60, "1/1", QByteArray(160, 'W'), everything, 3);
        row("a name of markup", 60, "1/1", "<b>x</b> & \xe7", everything, 3);
    }
    void pages()
    {
        QFETCH(int, kind);
        QFETCH(int, count);
        QFETCH(int, samples);
        QFETCH(QByteArray, octaves);
        QFETCH(QByteArray, name);
        QFETCH(QStringList, keys);
        Noise noise;
        noise.course.samples = samples;
        noise.octaves = octaves;
        noise.name = name;
        const ExperimentChain first = chain(kind, noise, count);
        const Printed printed(kind, first.get(), keys);
        QCOMPARE(printed.report.result(), 0);
        QTEST(printed.report.pages(), "pages");
        for (const int page : {1, 2, 3, printed.report.pages()}) {
            if (page <= printed.report.pages())
                QCOMPARE(printed.report.faults(page), QStringList());
        }
    }

    /// What stands in the report, by the measurement and the switches.
    void sections_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<Noise>("noise");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("absent");
        const auto row = [](const char *name, Kind kind, const Noise &noise, const QStringList &keys,
                            const QStringList &present, const QStringList &absent) {
            QTest::newRow(name) << int(kind) << noise << keys << present << absent;
        };
        const QStringList checks{"ckbPreChk", "ckbPosChk"};
        const auto checked = [](const QByteArray &values) {
            Noise noise;
            noise.checks = values;
            return noise;
        };
        Noise manual;
        manual.manual = true;
        Noise overload;
        overload.overload = true;
        Noise long_;
        long_.course.interval = 3600;
        row("figures", One, {}, {}, {"Noise Report", "85.31", "98.50", "97.25", "54.05", "[dB]: ---", "111.15", "91.05"},
            {"Laboratory", "Field ver.", "Charts", "Collected by", "Idx"});
        row("identification", One, {}, all[One],
            {"Collected by: the collectorName", "Employee: the emplName", "Sonometer: CC-2019/77 ",
             "Sound calibrator: the aud", "Pre chk. [dB]: 94.0 (", "Desviate [dB]: 00.20", "Charts"}, {"Idx"});
        row("longer than a day", One, long_, {}, {"Duration: 12:00:00"}, {"60:00:00"});
        row("deviation keeps its sign", One, checked("93.8,94.0"), checks, {"Desviate [dB]: -00.20"}, {});
        row("no check after", One, checked("94.0,"), checks, {"Pre chk. [dB]: 94.0", "Pos chk. [dB]: ---"}, {"Desviate"});
        row("no check after, all weightings", All, checked("94.0,"), checks, {"Pos check [dB]: ---", "Desviate [dB]: ---"}, {});
        row("one check asked for", All, {}, {"ckbPosChk"}, {"Pos check [dB]: 93.8"}, {"Pre check", "Desviate"});
        row("table", One, {}, {"ckbTable"}, {"Idx", "eq,60s", "030 ", "---"}, {"Charts"});
        row("results of C", All, {}, {"ckbResC"}, {"Results", "70.01", "71.02", "72.03"}, {"60.01", "Max/Min", "Statistics"});
        row("extremes of Z", All, {}, {"ckbMaxMinZ"}, {"Max/Min", "40.04", "63.09"}, {"50.04", "Statistics"});
        row("statistics", All, {}, {"ckbStatistics"}, {"Statistics", "Time weighting: Slow", "90.10"}, {"Max/Min"});
        row("overload", All, overload, all[All], {"[dB]: OL"}, {"60.01", "91.05"});
        const QStringList figures = dosimeters + QStringList{"ckbImpact", "ckbPreCal", "ckbPosCal", "ckbCalLab"};
        row("dosimeter, figures", Three, {}, figures,
            {"Dosimeter Noise Report", "Working hours [hh:mm]: 08:00", "Evaluation results",
             "Dosimeter NHO-01 Dosimeter NR-15 Dosimeter Press",
             "Freq. weighting curve: A Freq. weighting curve: A Freq. weighting curve: C",
             "Time weighting: Slow Time weighting: Fast Time weighting: Impulse",
             "Threshold level [dB]: 80 Threshold level [dB]: 80 Threshold level [dB]: 70",
             "Exchange rate [dB]: 3 Exchange rate [dB]: 5 Exchange rate [dB]: 4", "Duration: 01:00:00",
             "Pause time: 00:01:30", "115 dB peaks occurrence: 3", "Dose [%]: 121.25 Dose [%]: 0.00 Dose [%]: 43.50",
             "Daily dose [%]: 970.00 Daily dose [%]: 0.00 Daily dose [%]: 348.00",
             "Leq [dB]: 84.16 Lavg [dB]: --- Leq [dB]: ---", "EL [dB]: 94.83 EL [dB]: --- EL [dB]: 97.20",
             "TWA [dB]: 85.81 TWA [dB]: --- TWA [dB]: 82.90", "Field cal. @ 1kHz Laboratory calibration",
             "Pre check [dB]: 94.0 (", "Dosimeter: CC-2019/77 ", "Desviate [dB]: 0.20"},
            {"Charts", "Octave", "Hearing", "Sound calibrator", "Idx"});
        row("dosimeter, one of three", Three, checked("94.0,"), {"ckbDosUSERDosiCfg", "ckbPosCal"},
            {"Dosimeter Press", "Pos check [dB]: ---"}, {"NHO-01", "NR-15", "115 dB", "Pre check", "Desviate", "Laboratory"});
        row("dosimeter, none of three", Three, {}, {"ckbImpact", "ckbTable", "ckbHearingProtector"},
            {"Working hours", "Total SPLp [dB(A)]: 0.00", "Frequency [Hz] 125 250 500 1k 2k 4k 8k", "L [dB]", "030"},
            {"Duration", "115 dB", "Evaluation", "Type:", "Octave bands"});
        row("dosimeter, octaves", Three, {}, {"ckbChartLeq", "ckbLeqZ", "ckbLeqC"},
            {"Octave bands", "x Octave", "Frequency [Hz] - Z Curve", "Frequency [Hz] - C Curve", "1k 2k 4k 8k 16 k"},
            {"A Curve", "Hearing", "Charts"});
        const auto steady = [](const QByteArray &level) {
            Noise noise;
            noise.course = {3, noise.course.start, 30, {}, level};
            return noise;
        };
        const QStringList histogram{"ckbChartHisto"};
        row("dosimeter, class from below", Three, steady("82.5"), histogram, {"Histogram", "[min]", "\n85\n", "1.5\n"}, {});
        row("dosimeter, class from above", Three, steady("87.4"), histogram, {"\n85\n", "1.5\n"}, {});
        row("dosimeter, too quiet for a class", Three, steady("2.4"), histogram, {"Histogram"}, {"1.5"});
        row("dosimeter, no class so loud", Three, steady("1e9"), histogram, {"Histogram"}, {"1.5"});
        row("dosimeter, curves without their chart", Three, {}, {"ckbLeqZ"}, {"Working hours"}, {"Octave"});
        row("records of lengths of their own", All, manual, {"ckbTable"}, {"Sample time [s]: ---", "[s]"}, {"eq,60s"});
    }
    void sections()
    {
        QFETCH(int, kind);
        QFETCH(Noise, noise);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, present);
        QFETCH(QStringList, absent);
        const ExperimentChain first = chain(kind, noise);
        const Printed printed(kind, first.get(), keys);
        const QString text = printed.text();
        for (const QString &word : qAsConst(present))
            QVERIFY2(text.contains(word), qPrintable(word + "\n" + text));
        for (const QString &word : qAsConst(absent))
            QVERIFY2(!text.contains(word), qPrintable(word + "\n" + text));
    }

    /// What a file says is not believed: the report is made, and stays on its pages.
    void absurdFile()
    {
        QJsonObject object = chain(One, {})->toJson();
        QJsonObject results = object["results"].toObject();
        QJsonArray bands = results["leqList"].toArray();
        for (const char *leq : {"1e9", "OL"})
            bands.prepend(QJsonObject{{"frequency", "63.00"}, {"leq", leq}});
        results["leqList"] = bands;
        results["lEq"] = "1e300";
        results["label"] = QString("x\n").repeated(190);
        results.remove("preChk");
        object["results"] = results;
        NembraExperiment experiment;
        experiment.fromJson(object);
        const Printed printed(One, &experiment, all[One]);
        QVERIFY2(!printed.text().contains("Desviate"), qPrintable(printed.text()));
        const QString charts = printed.text(printed.report.pages()); // no bar without a level, and each in its place
        QVERIFY2(charts.contains("63 31.5 63 125"), qPrintable(charts));
        for (const int page : {1, 2}) {
            const qreal foot = printed.report.box("of", page).bottom();
            const auto words = printed.report.words(page);
            for (const PrintedReport::Word &word : words)
                QVERIFY2(word.box.left() > -10 && word.box.right() < 610 && word.box.bottom() < foot + 5, qPrintable(word.text));
        }
    }

    /// A dosimeter's file without a duration, with a criterion of many lines and bands from 32 Hz of an unknown analysis;
    /// and a protector that the page told of.
    void oddDosimeterFile()
    {
        QJsonObject object = chain(Three, {})->toJson();
        QJsonObject results = object["results"].toObject();
        const QJsonObject changes{{"dailyDoseDos1", "inf"}, {"neDos1", "nan"}, {"labelDos2", QString("x\n").repeated(190)},
                                  {"octaveAnalysis", "?"}, {"duration", "0"}, {"preCalDate", ""},
                                  {"leqList", QJsonArray{QJsonObject{{"frequency", "32.00"}, {"leq", "70"}},
                                                         QJsonObject{{"frequency", "63.00"}, {"leq", "1e300"}}}}};
        for (auto change = changes.begin(); change != changes.end(); ++change)
            results[change.key()] = change.value();
        object["results"] = results;
        Ardel2Experiment experiment;
        experiment.fromJson(object);
        QFile protector(MORVANE_TEST_DATA "/hearingprotector.json");
        QVERIFY(protector.open(QIODevice::ReadOnly));
        experiment.results()->refreshGeneralData(QJsonDocument::fromJson(protector.readAll()).object());
        const Printed printed(Three, &experiment, all[Three]);
        QCOMPARE(printed.report.pages(), 2);
        const QString text = printed.text();
        for (const char *word : {"Daily dose [%]: inf", "EL [dB]: nan", "Duration: 00:00:00", "Pre check [dB]: ---", "x 1/3 Octave",
                                 "\n30.6\n", "Manufacturer: Morvane", "Model: M-1 <b>", "C.A.: 1234", "Type: Molded",
                                 "SPL [dB(A)] 67.90 77.40 84.80 97.00 100.20 98.00 94.90",
                                 "Standard deviation [dB] 3.60 3.60 4.60 4.00 6.20 7.40 5.20",
                                 "Total SPL [dB(A)]: 104.02", "Total SPLp [dB(A)]: 95.25"})
            QVERIFY2(text.contains(word), qPrintable(word + ('\n' + text)));
    }

    void withoutACertificate()
    {
        const ExperimentChain first = chain(One, {});
        const Printed printed(One, first.get(), {"ckbCalLab"}, "");
        QVERIFY2(printed.text(1).contains("Sonometer: invalid"), qPrintable(printed.text(1)));
    }
};

QTEST_MAIN(TestReportNoise)
#include "tst_report_noise.moc"
