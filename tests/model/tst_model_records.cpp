// SPDX-License-Identifier: GPL-3.0-or-later
// What instruments send, taken apart: literal answers in, JSON as pages and files know it out.

#include "link/factories.h"
#include "model/field.h"
#include "model/setting.h"
#include "tests/families/familycase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

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
