// SPDX-License-Identifier: GPL-3.0-or-later
// What a measured dose means for a working day, and a hearing protector as the page sends it.

#include "ardel/ardel2file.h"
#include "ardel/dose.h"
#include "tests/families/familycase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <cmath>

namespace {

const QStringList words{"Dos1", "Dos2", "DosUSER"};

/// Results behind a download in which all dosimeters have the same criterion and dose.
std::unique_ptr<Ardel2Results> measured(int criterion, int exchange, const QByteArray &dose, int duration)
{
    auto results = std::make_unique<Ardel2Results>();
    const QByteArray settings = ",L,80," + QByteArray::number(criterion) + ',' + QByteArray::number(exchange) + ",Slow,A";
    const QByteArray found = ",3," + dose + ",,";
    const bool read = results->parseDosimeterConfig('1' + settings + "\r2" + settings + "\r3" + settings) == 0
                      && results->parseDosimeter1Results('2' + found) == 0
                      && results->parseDosimeter2Results('3' + found) == 0
                      && results->parseDosimeterUserResults('4' + found) == 0
                      && results->parseStatistics("5,3,,,,," + QByteArray::number(duration) + ",,,,,") == 0;
    return read ? std::move(results) : nullptr;
}

/// Daily dose, EL and NEL of each dosimeter.
QStringList derived(const Ardel2Results &results)
{
    const QJsonObject object = results.toJson();
    QStringList all;
    for (const QString &word : words) {
        const QStringList values{object["dailyDose" + word].toString(), object["ne" + word].toString(),
                                 object["nen" + word].toString()};
        all.append(values.join(' '));
    }
    return all;
}

int work(Results &results, const QString &hours)
{
    return results.refreshWorkingHours(QString(R"({"workingHours":"%1"})").arg(hours));
}

} // namespace

class TestArdelResults : public QObject
{
    Q_OBJECT

private slots:
    void doses_data()
    {
        QTest::addColumn<int>("criterion");
        QTest::addColumn<int>("exchange");
        QTest::addColumn<QByteArray>("dose");
        QTest::addColumn<int>("duration");
        QTest::addColumn<QString>("hours");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, int criterion, int exchange, const char *dose, int duration,
                            const char *hours, const char *expected) {
            QTest::newRow(name) << criterion << exchange << QByteArray(dose) << duration << QString(hours) << QString(expected);
        };
        row("half a day", 85, 3, "100", 28800, "04:00", "50.00 85.00 82.00");
        row("by five", 85, 5, "100", 14400, "08:00", "200.00 90.00 90.00");
        row("an hour by five", 85, 5, "100", 3600, "08:00", "800.00 100.00 100.00");
        row("a quarter of an hour", 85, 3, "100", 900, "08:00", "3200.00 100.00 100.00");
        row("90, 10 %", 90, 5, "10", 28800, "08:00", "10.00 73.39 73.39");
        row("90, 50 %", 90, 5, "50", 28800, "08:00", "50.00 85.00 85.00");
        row("90, 200 %", 90, 5, "200", 28800, "08:00", "200.00 95.00 95.00");
        row("90, 400 %", 90, 5, "400", 28800, "08:00", "400.00 100.00 100.00");
        row("seven hours", 85, 3, "150", 25200, "08:00", "171.43 87.33 87.33");
        row("six of five hours", 85, 3, "250", 18000, "06:00", "300.00 91.00 89.75");
        row("ten of two and a half", 85, 5, "53.5", 9000, "10:00", "214.00 88.88 90.49");
        row("the slope is not 10", 85, 3, "1600", 28800, "08:00", "1600.00 97.00 97.00");
        row("no dose", 85, 3, "0.00", 28800, "04:00", "0.00 --- ---");
        row("dose that is none", 85, 3, "---", 28800, "04:00", "0.00 --- ---");
        row("no time", 85, 3, "100", 0, "04:00", "inf inf inf");
        row("no time and no dose", 85, 3, "0", 0, "08:00", "nan --- ---");
        // Where another way of reckoning ends in another figure.
        row("2 as 0.30103", 90, 5, "1407.02", 11516, "08:00", "* 115.68 115.68");         // exactly: 115.69
        row("0.30103 in single precision", 80, 5, "1195.51", 29335, "08:00", "* 97.76 97.76"); // in double: 97.77
        row("text in single precision", 80, 4, "2574.38", 20434, "08:00", "* 100.72 100.72");  // in double: 100.73
        row("daily dose, the same", 80, 5, "2141.56", 22139, "08:00", "2785.90 * *");          // in double: 2785.89
        row("no single precision within", 80, 4, "2235.16", 8168, "06:00", "5910.80 * *");     // with it: 5910.81
        row("NEL of the text of EL", 90, 4, "298.85", 16321, "07:00", "* * 98.83");            // not of its value: 98.82
        row("the duration in single precision", 80, 3, "8019000", 16777217, "08:00", "13765.53 * *"); // not: 13765.52
    }
    void doses()
    {
        QFETCH(int, criterion);
        QFETCH(int, exchange);
        QFETCH(QByteArray, dose);
        QFETCH(int, duration);
        QFETCH(QString, hours);
        QFETCH(QString, expected);
        const auto results = measured(criterion, exchange, dose, duration);
        QVERIFY(results);
        QCOMPARE(results->workingHours(), QString("08:00"));
        QCOMPARE(work(*results, hours), 0);
        for (const QString &got : derived(*results)) {
            QStringList values = got.split(' ');
            const QStringList wanted = expected.split(' ');
            for (int i = 0; i < 3; ++i) {
                if (wanted[i] == "*")
                    values[i] = "*";
            }
            QCOMPARE(values.join(' '), expected);
        }
    }

    /// A dose twice as large is one exchange rate more, half the work one less, and daily doses grow with the work.
    void rules()
    {
        for (const double rate : {3.0, 4.0, 5.0}) {
            const double level = Dose::exposureLevel(37, 5000, 85, rate);
            const auto near = [](double a, double b) { return std::abs(a - b) < 1e-6; };
            QVERIFY(near(Dose::exposureLevel(74, 5000, 85, rate), level + rate));
            QVERIFY(near(Dose::normalizedExposureLevel(level, 14400, rate), level - rate));
            QVERIFY(near(Dose::daily(37, 14400, 5000) * 2, Dose::daily(37, 28800, 5000)));
        }
    }

    /// Each dosimeter has its own criterion, and what the instrument found stays as it was.
    void workingHours()
    {
        const auto results = measured(85, 3, "100", 28800);
        QCOMPARE(results->parseDosimeter2Results("3,3,0,,,Z"), 0);
        QCOMPARE(results->parseDosimeterConfig("3,U,80,90,5,Slow,A"), 0);
        QCOMPARE(results->parseStatistics("5,3,,,,,28800,,,,,"), 0);
        const QStringList before{"100.00 85.00 85.00", "0.00 --- ---", "100.00 90.00 90.00"};
        QCOMPARE(derived(*results), before);
        QJsonObject others = results->toJson();
        QCOMPARE(work(*results, "16:00"), 0);
        QCOMPARE(derived(*results), QStringList({"200.00 85.00 88.00", "0.00 --- ---", "200.00 90.00 95.00"}));
        QCOMPARE(work(*results, "08:00"), 0);
        QCOMPARE(results->toJson(), others);
        for (const char *refused : {"", "[]", "5", "x"}) {
            QCOMPARE(results->refreshWorkingHours(refused), -1);
            QCOMPARE(results->toJson(), others);
        }
        for (const char *kept : {"00:00", "", "ab:cd"}) { // the text stays, the figures too
            QCOMPARE(work(*results, kept), -1);
            others["workingHours"] = kept;
            QCOMPARE(results->toJson(), others);
        }
    }

    void averages_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::addColumn<bool>("byFive");
        for (const auto &[rate, byFive] : {std::pair{"5", true}, {"5.0", true}, {"3", false}, {"", false}, {"5.01", false}})
            QTest::newRow(*rate ? rate : "none") << QString(rate) << byFive;
    }
    void averages()
    {
        QFETCH(QString, rate);
        Dosimeter dosimeter;
        dosimeter.exchangeRate = rate;
        QTEST(dosimeter.averagesByFive(), "byFive");
    }

    /// Files open with the day of 8 hours and the figures of the day that they were saved with.
    void files()
    {
        const auto results = measured(85, 3, "100", 28800);
        QCOMPARE(work(*results, "04:00"), 0);
        QJsonObject saved = results->toJson();
        Ardel2Results opened;
        opened.fromJson(saved);
        QCOMPARE(derived(opened).first(), QString("50.00 85.00 82.00"));
        saved["workingHours"] = "08:00";
        QCOMPARE(opened.toJson(), saved);
        // An older file tells the USER dosimeter's settings under other keys.
        Ardel2Results older;
        older.fromJson({{"actionLevel", "70"}, {"exchangeRate", "5"}, {"dosUSERexchangeRate", "4"}, {"freqWeighting", "Z"}});
        const Dosimeter user = older.dosimeters()[2];
        QCOMPARE(QStringList({user.actionLevel, user.criterionLevel, user.exchangeRate, user.freqWeighting, user.label}),
                 QStringList({"70", "", "4", "Z", "USER"}));
    }

    /// What was written once by another program is read whole, and written again byte by byte; its figures follow from the
    /// doses. A damaged middle is refused.
    void storedExample()
    {
        QFile stored(MORVANE_TEST_DATA "/one.adl");
        QVERIFY(stored.open(QIODevice::ReadOnly));
        const QByteArray content = stored.readAll();
        const QJsonObject document = QJsonDocument::fromJson(QByteArray::fromBase64(content.split('\n')[0])).object();
        Ardel2File file("one.adl");
        const ExperimentChain experiment(file.parseExperiment(content));
        QVERIFY(experiment);
        const QJsonObject body = document["Body"].toArray()[0].toObject();
        QCOMPARE(experiment->toJson(), body);
        QCOMPARE(VfFile::contentFor(document["Info"].toObject()["Device"].toObject(), experiment.get()), content);
        QCOMPARE(work(*experiment->results(), "08:00"), 0);
        QCOMPARE(experiment->results()->toJson(), body["results"].toObject());
        QByteArray damaged = content;
        damaged[damaged.size() / 2] = char(damaged[damaged.size() / 2] ^ 1);
        QVERIFY(!file.parseExperiment(damaged));
        QCOMPARE(file.status(), int(VfFile::WrongChecksum));
        QVERIFY(file.isForeignProduct("ARDEL") && !file.isForeignProduct("ARDEL 2"));
    }

    /// As the page sends it; beside other data, and with what has no value in JSON.
    void hearingProtector()
    {
        QFile file(MORVANE_TEST_DATA "/hearingprotector.json");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QJsonObject sent = QJsonDocument::fromJson(file.readAll()).object();
        Ardel2Results results;
        QCOMPARE(results.hearingProtector().methodNumber, 0);
        QCOMPARE(results.refreshGeneralData(sent), 0);
        const HearingProtector protector = results.hearingProtector();
        QCOMPARE(QStringList({protector.manufacturer, protector.model, protector.approval, protector.type, protector.method}),
                 QStringList({"Morvane", "M-1 <b>", "1234", "Molded", "ANSI 12.6 (Method-A);ANSI S3.19;ISO 4869-1"}));
        QCOMPARE(protector.methodNumber, 2);
        QCOMPARE(protector.total, 104.02);
        QCOMPARE(protector.totalProtected, 95.25);
        QCOMPARE(protector.levels.front(), 67.9);
        QCOMPARE(protector.protectedLevels.back(), 71.2);
        QCOMPARE(protector.attenuations[5], 38.8);
        QCOMPARE(protector.deviations[4], 6.2);
        QCOMPARE(results.refreshGeneralData({{"datatype", "other"}, {"NPS", 1.0}}), 0);
        QCOMPARE(results.hearingProtector().total, 104.02);
        sent.remove("hearingProtectorType");
        sent["NPSp"] = QJsonValue::Null; // a sum of nothing
        results.refreshGeneralData(sent);
        QCOMPARE(results.hearingProtector().type, QString());
        QCOMPARE(results.hearingProtector().totalProtected, 0.0);
    }
};

QTEST_GUILESS_MAIN(TestArdelResults)
#include "tst_ardel_results.moc"
