// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of the sound level meters: sections by switches, overload, and pages that hold what stands on them.

#include "app/fonts.h"
#include "nembra/nembraexperiment.h"
#include "nembra/nembraprinter.h"
#include "nembraplus/nembraplusprinter.h"
#include "tests/report/measurements.h"
#include "tests/report/printedreport.h"

#include <QJsonArray>
#include <QTest>

namespace {

using Measurements::Noise;

const QStringList shared = {"collectorInfoEnable", "cmpnyInfoEnable", "ownCompanyInfoEnable", "siteInfoEnable",
                            "emplInfoEnable", "ckbCalLab", "ckbCalAudLab", "obsEnable", "repInfoEnable",
                            "repIdInfoEnable", "ckbPreChk", "ckbPosChk", "ckbChartLvl", "ckbLeqZ", "ckbLeqC", "ckbLeqA"};
const QStringList all[] = {shared + QStringList{"ckbChartLeq"},
                           shared + QStringList{"ckbResZ", "ckbResC", "ckbResA", "ckbMaxMinZ", "ckbMaxMinC",
                                                "ckbMaxMinA", "ckbStatistics"}};

ExperimentChain chain(bool plus, const Noise &noise, int count = 1)
{
    const auto make = plus ? Measurements::nembraPlus : Measurements::nembra;
    ExperimentChain first = make(noise);
    for (int i = 1; i < count; ++i)
        first->append(make(noise).release());
    return first;
}

/// Prints with the switches \a keys.
struct Printed {
    Printed(bool plus, Experiment *experiment, const QStringList &keys, const QString &certificate = "CC-2019/77")
        : printer(plus ? static_cast<VfPrinter *>(new NembraPlusPrinter) : new NembraPrinter),
          report(prepared(plus, certificate), experiment, choices(keys))
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
    VfPrinter *prepared(bool plus, const QString &certificate)
    {
        printer->setProductName(plus ? "NEMBRA+" : "NEMBRA");
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

class TestReportSoundLevel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }

    /// The foot of each page tells the number of pages; nothing lies on another text or below the foot.
    void pages_data()
    {
        QTest::addColumn<bool>("plus");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("samples");
        QTest::addColumn<QByteArray>("octaves");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("pages");
        for (const bool plus : {false, true}) {
            const auto row = [plus](const char *name, int count, int samples, const char *octaves,
                                    const QByteArray &task, const QStringList &keys, int pages) {
                QTest::addRow("%s, %s", plus ? "all weightings" : "one weighting", name)
                    << plus << count << samples << QByteArray(octaves) << task << keys << pages;
            };
            const QStringList everything = all[plus] + QStringList{"ckbTable"};
            row("nothing asked for", 1, 60, "1/1", "Press", {}, 2);
            row("octaves", 1, 60, "1/1", "Press", all[plus], plus ? 3 : 2);
            row("three, thirds, with tables", 3, 60, "1/3", "Press", everything, plus ? 10 : 7);
            row("no bands", 2, 60, "no", "Press", everything, plus ? 7 : 5);
            row("a day", 1, 3000, "1/1", "Press", everything, plus ? 18 : 17);
            row("points over two pages", 60, 2, "1/1", "Press", {}, 62);
            row("no record", 1, 0, "1/1", "Press", everything, plus ? 3 : 2);
            row("a long name", 2, 60, "1/1", QByteArray(160, 'W'), everything, 7);
            row("a name of markup", 2, 60, "1/1", "<b>x</b> & \xe7", everything, plus ? 7 : 5);
        }
    }
    void pages()
    {
        QFETCH(bool, plus);
        QFETCH(int, count);
        QFETCH(int, samples);
        QFETCH(QByteArray, octaves);
        QFETCH(QByteArray, name);
        QFETCH(QStringList, keys);
        Noise noise;
        noise.course.samples = samples;
        noise.octaves = octaves;
        noise.name = name;
        const ExperimentChain first = chain(plus, noise, count);
        const Printed printed(plus, first.get(), keys);
        QCOMPARE(printed.report.result(), 0);
        QTEST(printed.report.pages(), "pages");
        for (const int page : {1, 2, 3, printed.report.pages()}) {
            if (page > printed.report.pages())
                continue;
            const QString foot = QString("%1 of %2").arg(page).arg(printed.report.pages());
            QVERIFY2(printed.text(page).contains(foot), qPrintable(foot));
            QCOMPARE(overlaps(printed.report.words(page)), QStringList());
            const qreal top = printed.report.box("of", page).top();
            const auto words = printed.report.words(page);
            for (const PrintedReport::Word &word : words)
                QVERIFY2(word.box.bottom() <= top + 20 && word.box.right() < 610, qPrintable(word.text));
        }
    }

    /// What stands in the report, by the measurement and the switches.
    void sections_data()
    {
        QTest::addColumn<bool>("plus");
        QTest::addColumn<Noise>("noise");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("absent");
        const auto row = [](const char *name, bool plus, const Noise &noise, const QStringList &keys,
                            const QStringList &present, const QStringList &absent) {
            QTest::newRow(name) << plus << noise << keys << present << absent;
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
        row("figures", false, {}, {}, {"Noise Report", "85.31", "98.50", "97.25", "54.05", "[dB]: ---", "111.15", "91.05"},
            {"Laboratory", "Field ver.", "Charts", "Collected by", "Idx"});
        row("identification", false, {}, all[0],
            {"Collected by: the collectorName", "Employee: the emplName", "Sonometer: CC-2019/77 ",
             "Sound calibrator: the aud", "Pre chk. [dB]: 94.0 (", "Desviate [dB]: 00.20", "Charts"}, {"Idx"});
        row("longer than a day", false, long_, {}, {"Duration: 12:00:00"}, {"60:00:00"});
        row("deviation keeps its sign", false, checked("93.8,94.0"), checks, {"Desviate [dB]: -00.20"}, {});
        row("no check after", false, checked("94.0,"), checks, {"Pre chk. [dB]: 94.0", "Pos chk. [dB]: ---"}, {"Desviate"});
        row("no check after, all weightings", true, checked("94.0,"), checks, {"Pos check [dB]: ---", "Desviate [dB]: ---"}, {});
        row("one check asked for", true, {}, {"ckbPosChk"}, {"Pos check [dB]: 93.8"}, {"Pre check", "Desviate"});
        row("table", false, {}, {"ckbTable"}, {"Idx", "eq,60s", "030 ", "---"}, {"Charts"});
        row("results of C", true, {}, {"ckbResC"}, {"Results", "70.01", "71.02", "72.03"}, {"60.01", "Max/Min", "Statistics"});
        row("extremes of Z", true, {}, {"ckbMaxMinZ"}, {"Max/Min", "40.04", "63.09"}, {"50.04", "Statistics"});
        row("statistics", true, {}, {"ckbStatistics"}, {"Statistics", "Time weighting: Slow", "90.10"}, {"Max/Min"});
        row("overload", true, overload, all[1], {"[dB]: OL"}, {"60.01", "91.05"});
        row("records of lengths of their own", true, manual, {"ckbTable"}, {"Sample time [s]: ---", "[s]"}, {"eq,60s"});
    }
    void sections()
    {
        QFETCH(bool, plus);
        QFETCH(Noise, noise);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, present);
        QFETCH(QStringList, absent);
        const ExperimentChain first = chain(plus, noise);
        const Printed printed(plus, first.get(), keys);
        const QString text = printed.text();
        for (const QString &word : qAsConst(present))
            QVERIFY2(text.contains(word), qPrintable(word + "\n" + text));
        for (const QString &word : qAsConst(absent))
            QVERIFY2(!text.contains(word), qPrintable(word + "\n" + text));
    }

    /// What a file says is not believed: the report is made, and stays on its pages.
    void absurdFile()
    {
        QJsonObject object = chain(false, {})->toJson();
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
        const Printed printed(false, &experiment, all[false]);
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

    void withoutACertificate()
    {
        const ExperimentChain first = chain(false, {});
        const Printed printed(false, first.get(), {"ckbCalLab"}, "");
        QVERIFY2(printed.text(1).contains("Sonometer: invalid"), qPrintable(printed.text(1)));
    }
};

QTEST_MAIN(TestReportSoundLevel)
#include "tst_report_soundlevel.moc"
