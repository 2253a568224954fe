// SPDX-License-Identifier: GPL-3.0-or-later
// What instruments send, taken apart: literal answers in, JSON as pages and files know it out.

#include "link/factories.h"
#include "model/exposurecomponent.h"
#include "model/field.h"
#include "model/octavebands.h"
#include "model/setting.h"
#include "tests/families/familycase.h"

#include <QJSEngine>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <cmath>

namespace {

/// The members of \a object that \a keys has.
QJsonObject only(const QJsonObject &keys, const QJsonObject &object)
{
    QJsonObject some;
    for (auto member = keys.begin(); member != keys.end(); ++member)
        some.insert(member.key(), object[member.key()]);
    return some;
}

int parseClosing(Results &results, const QByteArray &answer)
{
    return results.parseClosingRecord(answer);
}

const QVector<ParsedHeader> closingRecords = {
    {"end", parseClosing, "8,1,3900,3700,100,90,\"Stop key\"\n",
     "{'vbatStart':3900,'vbatStop':3700,'coulombCounterStart':100,'coulombCounterStop':90,'stopReason':'Stop key'}"},
    {"end, UTF-8", parseClosing, "8,1,1,2,3,4,\"Memória\"", "{'stopReason':'Memória'}"},
    {"end, one too few", parseClosing, "8,1,3900,3700,100,90", ""},
    {"end, foreign number", parseClosing, "3,1,3900,3700,100,90,X", ""},
};

using Levels = QVector<double>;
constexpr double missing = -999; // in place of NaN, which equals nothing
Levels comparable(Levels levels)
{
    for (double &level : levels)
        level = std::isnan(level) ? missing : std::round(level * 100) / 100;
    return levels;
}

} // namespace

Q_DECLARE_METATYPE(Parsed)
Q_DECLARE_METATYPE(ParsedHeader)
Q_DECLARE_METATYPE(SettingForm)

class TestModelRecords : public QObject
{
    Q_OBJECT

private slots:
    void takesAnswersApart_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QByteArrayList>("expected");
        QTest::newRow("tag, quotes, line feeds") << QByteArray("+T: 1,\"a b\",\n2\n") << QByteArrayList{"1", "a b", "2"};
        QTest::newRow("empty pieces count") << QByteArray(",,") << QByteArrayList{"", "", ""};
        QTest::newRow("nothing") << QByteArray() << QByteArrayList{""};
        QTest::newRow("commas in a name") << QByteArray("1,\"a,b,\",2,\"\",3") << QByteArrayList{"1", "a,b,", "2", "", "3"};
        QTest::newRow("date and time in one text")
            << QByteArray("\"21/03/05,14:30:00-12\",\"21/03/05,late\"")
            << QByteArrayList{"21/03/05", "14:30:00-12", "21/03/05,late"};
        QTest::newRow("a quote too many") << QByteArray("1,\"a\"b,c\",2") << QByteArrayList{"1", "ab", "c", "2"};
    }
    void takesAnswersApart()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QByteArrayList, expected);
        QCOMPARE(QByteArrayList(pieces(answer, "+T: ").toList()), expected);
    }

    void records_data() { rows(&FamilyCase::records); }
    void records()
    {
        QFETCH(QString, product);
        QFETCH(Parsed, row);
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(product));
        QCOMPARE(experiment->parseLogs(row.lines.split('\r')), row.expected.isEmpty() ? 1 : 0);
        if (row.expected.isEmpty())
            return;
        const QJsonArray logs = experiment->toJson()["logList"].toArray();
        QCOMPARE(shortText(logs.first().toObject()), shortText(shortJson(row.expected)));
        const std::unique_ptr<Experiment> again(FactoryExperiment::create(product));
        again->fromJson({{"logList", logs}});
        QCOMPARE(again->toJson()["logList"].toArray(), logs);
    }

    void listLines_data() { rows(&FamilyCase::listLines); }
    void listLines()
    {
        QFETCH(QString, product);
        QFETCH(Parsed, row);
        QFETCH(int, refusal);
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(product));
        QCOMPARE(experiment->parseHeader(row.lines), row.expected.isEmpty() ? refusal : 0);
        if (row.expected.isEmpty())
            return;
        const QJsonObject wanted = shortJson(row.expected);
        QCOMPARE(shortText(only(wanted, experiment->toJson())), shortText(wanted));
        const std::unique_ptr<Experiment> copy(FactoryExperiment::create(product)); // as a download begins
        copy->copyFrom(experiment.get());
        QCOMPARE(shortText(only(wanted, copy->toJson())), shortText(wanted));
    }

    void headers_data()
    {
        QTest::addColumn<QString>("product");
        QTest::addColumn<ParsedHeader>("row");
        for (const FamilyCase &family : familyCases()) {
            for (const ParsedHeader &row : family.headerLines + closingRecords)
                QTest::addRow("%s: %s", family.product, row.name) << QString(family.product) << row;
        }
    }
    void headers()
    {
        QFETCH(QString, product);
        QFETCH(ParsedHeader, row);
        const std::unique_ptr<Results> results(FactoryResults::create(product));
        const QJsonObject before = results->toJson();
        QByteArray answer = "+VFXPHDR: " + row.answer;
        QCOMPARE(row.parse(*results, answer.replace("\r", "\r+VFXPHDR: ")), row.expected.isEmpty() ? -1 : 0);
        if (row.expected.isEmpty())
            return;
        const QJsonObject wanted = shortJson(row.expected);
        const QJsonObject got = results->toJson();
        QCOMPARE(shortText(only(wanted, got)), shortText(wanted));
        const std::unique_ptr<Results> again(FactoryResults::create(product));
        again->fromJson(got);
        QCOMPARE(shortText(only(wanted, again->toJson())), shortText(wanted));
    }

    /// Of files that an older program wrote.
    void missingKeys()
    {
        for (const FamilyCase &family : familyCases()) {
            const std::unique_ptr<Results> results(FactoryResults::create(family.product));
            results->fromJson({});
            const QJsonObject wanted = shortJson(family.missing);
            QCOMPARE(shortText(only(wanted, results->toJson())), shortText(wanted));
        }
    }

    void measuringPoints()
    {
        for (const char *product : {"NEMBRA", "NEMBRA+"}) {
            const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(product));
            const std::unique_ptr<ExposureComponent> point(FactoryExposureComponent::create(product));
            point->fromExperiment(experiment.get()); // one without results yet
            QCOMPARE(point->property("lEq").toString(), QString());
            experiment->fromJson({{"index", "7"},
                                  {"results", shortJson("{'label':'P','lEq':'85.3','lFMax':'97',"
                                                        "'lMaxDateTime':'21/03/05,15:00:00-12'}")}});
            point->fromExperiment(experiment.get());
            QCOMPARE(point->property("event").toInt(), 7);
            QCOMPARE(point->property("label").toString(), QString("P"));
            QCOMPARE(point->property("lEq").toString(), QString("85.3"));
            QCOMPARE(point->property("lFMax").toString(), QString("97"));
            QCOMPARE(AtDateTime::toAtString(point->property("lMaxDateTime").toDateTime()), QString("21/03/05,15:00:00-12"));
        }
    }

    void octaves_data()
    {
        QTest::addColumn<QStringList>("bands"); // frequency and level
        QTest::addColumn<QString>("analysis");
        QTest::addColumn<Levels>("a");
        QTest::addColumn<Levels>("c");
        const QStringList three{"31.50", "70.126", "63.00", "80", "125.00", "90"};
        QTest::newRow("octaves from 31.5") << three << "1/1" << Levels{30.73, 53.8, 73.9} << Levels{67.13, 79.2, 89.8};
        QTest::newRow("thirds from 50") << QStringList{"50.00", "80", "63.00", "80"} << "1/3" << Levels{49.8, 53.8}
                                        << Levels{78.7, 79.2};
        QTest::newRow("octaves from 63, one not measured") << QStringList{"63.00", "80", "125.00", "---"} << "1/1"
                                                           << Levels{53.8, missing} << Levels{79.2, missing};
        QTest::newRow("32 written otherwise") << QStringList{"32.0", "70", "1250", "60"} << "1/1" << Levels{30.6, 33.8}
                                              << Levels{67, 59.2};
        QTest::newRow("no analysis") << three << "Off" << Levels() << Levels();
        QTest::newRow("from elsewhere") << QStringList{"125.00", "80"} << "1/1" << Levels() << Levels();
        QTest::newRow("no bands") << QStringList() << "1/1" << Levels() << Levels();
    }
    void octaves()
    {
        QFETCH(QStringList, bands);
        QFETCH(QString, analysis);
        QVector<LeqPerOctave> list;
        for (int i = 0; i < bands.size(); i += 2) {
            LeqPerOctave band;
            band.frequency = bands[i];
            band.value = bands[i + 1];
            list.append(band);
        }
        const auto levels = [&](OctaveBands::Weighting weighting) {
            return comparable(OctaveBands::levels(list, OctaveBands::analysisOf(analysis), weighting));
        };
        QTEST(levels(OctaveBands::Weighting::A), "a");
        QTEST(levels(OctaveBands::Weighting::C), "c");
        QCOMPARE(levels(OctaveBands::Weighting::Z).size(), list.size());
    }

    /// A family may know where a first band stands that instruments do not begin with.
    void octavesFromElsewhere()
    {
        using namespace OctaveBands;
        const auto first = [](const char *frequency) {
            const QVector<LeqPerOctave> bands{{{{}, frequency, "80"}}};
            return levels(bands, analysisOf("", Analysis::Octave), Weighting::A, 11).value(0);
        };
        QCOMPARE(first("125.00"), 63.9);
        QCOMPARE(first("63.00"), 53.8);
        QCOMPARE(first("32.00"), 40.6);
    }

    /// The pages reckon as the reports do.
    void octavesOnPages_data() { octaves_data(); }
    void octavesOnPages()
    {
        QFETCH(QStringList, bands);
        QFETCH(QString, analysis);
        QFile script(MORVANE_TEST_DATA "/../../qml/charts/octaves.js");
        QVERIFY(script.open(QIODevice::ReadOnly));
        QJSEngine engine;
        QVERIFY(!engine.evaluate(QString::fromUtf8(script.readAll()).remove(".pragma library")).isError());
        QVector<LeqPerOctave> list;
        QStringList objects;
        for (int i = 0; i < bands.size(); i += 2) {
            list.append({{{}, bands[i], bands[i + 1]}});
            objects.append(QString("{frequency: '%1', leq: '%2'}").arg(bands[i], bands[i + 1]));
            const QString label = QString("label('%1', function (n, d) { return n.toFixed(d) })").arg(bands[i]);
            QCOMPARE(engine.evaluate(label).toString(), OctaveBands::label(bands[i], QLocale::c()));
        }
        using Weighting = OctaveBands::Weighting;
        for (const auto &[letter, weighting] : {std::pair{"Z", Weighting::Z}, {"A", Weighting::A}, {"C", Weighting::C}}) {
            const QString call = QString("levels([%1], step('%2'), '%3')").arg(objects.join(','), analysis, letter);
            Levels levels;
            for (const QVariant &level : engine.evaluate(call).toVariant().toList())
                levels.append(level.toDouble());
            QCOMPARE(comparable(levels),
                     comparable(OctaveBands::levels(list, OctaveBands::analysisOf(analysis), weighting)));
            for (int third = 0; third < 37 && weighting != Weighting::Z; ++third) {
                const QString entry = QString("corrections.%1[%2] || 0").arg(letter).arg(third);
                QCOMPARE(engine.evaluate(entry).toNumber(), OctaveBands::correction(weighting, third));
            }
        }
    }

    /// A flat spectrum of 80 dB in the octaves from 125 to 8000 Hz comes to 86.99 dB(A).
    void weightedSum()
    {
        double energy = 0;
        for (int third = 11; third <= 29; third += 3)
            energy += std::pow(10, (80 + OctaveBands::correction(OctaveBands::Weighting::A, third)) / 10);
        QCOMPARE(std::round(1000 * std::log10(energy)) / 100, 86.99);
    }

    void bandLabels()
    {
        const QLocale plain = QLocale::c();
        for (const auto &[frequency, label] :
             {std::pair{"1250.00", "1.25 k"}, std::pair{"1600.00", "1.6 k"}, std::pair{"2000.00", "2 k"},
              std::pair{"63.00", "63 "}, std::pair{"31.50", "31.5 "}, std::pair{"999.96", "1 k"}})
            QCOMPARE(OctaveBands::label(frequency, plain), QString(label));
        QCOMPARE(OctaveBands::label("31.50", QLocale(QLocale::German)), QString("31,5 "));
    }

    void settings_data()
    {
        QTest::addColumn<SettingForm>("form");
        QTest::addColumn<QByteArray>("wire");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written"); // when it is not what was read
        QTest::newRow("quoted") << SettingForm::Quoted << QByteArray("\"Slow\"") << "Slow" << QByteArray();
        QTest::newRow("bare") << SettingForm::Quoted << QByteArray("Slow") << "Slow" << QByteArray("\"Slow\"");
        QTest::newRow("degree") << SettingForm::Degree << QByteArray("\"C\"") << "°C" << QByteArray();
        QTest::newRow("no degree") << SettingForm::Degree << QByteArray() << "°" << QByteArray("\"\"");
        QTest::newRow("interval") << SettingForm::MinuteSecond << QByteArray("90") << "01:30" << QByteArray();
        QTest::newRow("long interval") << SettingForm::MinuteSecond << QByteArray("6000") << "100:00" << QByteArray();
        QTest::newRow("no interval") << SettingForm::MinuteSecond << QByteArray() << "00:00" << QByteArray("0");
        QTest::newRow("length") << SettingForm::HourMinute << QByteArray("3661") << "01:01" << QByteArray("3660");
        QTest::newRow("whole") << SettingForm::Whole << QByteArray("85") << "85" << QByteArray();
    }
    void settings()
    {
        QFETCH(SettingForm, form);
        QFETCH(QByteArray, wire);
        QFETCH(QString, text);
        QFETCH(QByteArray, written);
        QCOMPARE(settingText(wire, form), text);
        QCOMPARE(settingWire(text, form), written.isEmpty() ? wire : written);
    }

    /// What the window sends comes back from the object, and texts that are none of its objects change nothing.
    void configurations()
    {
        for (const FamilyCase &family : familyCases()) {
            const std::unique_ptr<DeviceConfig> config(FactoryDeviceConfig::create(family.product));
            const QJsonObject sent = shortJson(family.configuration);
            QCOMPARE(config->fromJson(QString::fromUtf8(QJsonDocument(sent).toJson())), 0);
            const QJsonObject kept = config->toJson();
            QCOMPARE(kept["productName"].toString(), QString(family.product));
            for (auto member = sent.begin(); member != sent.end(); ++member)
                QCOMPARE(kept[member.key()].toVariant().toString(), member->toVariant().toString());
            for (const char *refused : {"[]", "", "x", "5", "null"})
                QCOMPARE(config->fromJson(refused), -1);
            QCOMPARE(config->toJson(), kept);
            QCOMPARE(config->fromJson("{}"), 0); // a key that is missing reads as empty
            QVERIFY(config->toJson() != kept);
        }
    }

private:
    static void rows(QVector<Parsed> FamilyCase::*parsed)
    {
        QTest::addColumn<QString>("product");
        QTest::addColumn<Parsed>("row");
        QTest::addColumn<int>("refusal");
        for (const FamilyCase &family : familyCases()) {
            for (const Parsed &row : family.*parsed)
                QTest::addRow("%s: %s", family.product, row.name) << QString(family.product) << row << family.listRefusal;
        }
    }
};

QTEST_GUILESS_MAIN(TestModelRecords)
#include "tst_model_records.moc"
