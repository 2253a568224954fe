// SPDX-License-Identifier: GPL-3.0-or-later
// What the heat-stress meters send, taken apart: literal answers in, JSON as pages and files know it out.

#include "model/field.h"
#include "thalvex2/thalvex2config.h"
#include "thalvex2/thalvex2experiment.h"
#include "thalvex2/thalvex2log.h"
#include "thalvex2/thalvex2results.h"
#include "thalvex4/thalvex4config.h"
#include "thalvex4/thalvex4experiment.h"
#include "thalvex4/thalvex4log.h"
#include "thalvex4/thalvex4results.h"

#include <QJsonDocument>
#include <QtTest>

namespace {

/// JSON in short form: single quotes for double ones.
QJsonObject json(QByteArray text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.replace('\'', '"'), &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("%s in %s", qPrintable(error.errorString()), text.constData());
    return document.object();
}

QByteArray text(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).replace('"', '\'');
}

/// The members of \a object that \a keys has.
QJsonObject only(const QJsonObject &keys, const QJsonObject &object)
{
    QJsonObject some;
    for (auto member = keys.begin(); member != keys.end(); ++member)
        some.insert(member.key(), object[member.key()]);
    return some;
}

using MakeResults = std::unique_ptr<Results> (*)();
template <class R> std::unique_ptr<Results> make()
{
    return std::make_unique<R>();
}

using Parse = int (*)(Results &results, const QByteArray &answer);
template <class R, int (R::*Parser)(const QByteArray &)> int parse(Results &results, const QByteArray &answer)
{
    return (static_cast<R &>(results).*Parser)(answer);
}

const QByteArray Start = "+VFRDXP: 1,1,0,\"21/03/05\",\"14:30:00-12\",";
const QByteArray Unit = "24.1,30.2,31.0,25.9,25.6,0.3,95,1";
const QByteArray NoUnit = ",,,,,,,";
const QByteArray UnitJson = "{'wetTemperature':'24.1','dryTemperature':'30.2','globeTemperature':'31.0','WBGTi':'25.9',"
                            "'WBGTo':'25.6','airVelocity':'0.3','waterLevel':95,'tiltStatus':1}";

QByteArray four(const QByteArray &a, const QByteArray &b, const QByteArray &c, const QByteArray &d)
{
    return Start + a + ',' + b + ',' + c + ',' + d + '\n';
}

QByteArray unitsJson(int count)
{
    QByteArrayList units;
    for (int i = 0; i < count; ++i)
        units.append(UnitJson);
    return "{'date':'21/03/05,14:30:00-12','enviromentalFactorsList':[" + units.join(',') + "]}";
}

} // namespace

Q_DECLARE_METATYPE(MakeResults)
Q_DECLARE_METATYPE(Parse)

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

    void recordOfOneUnit_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("expected"); // empty: refused
        const QByteArray head = "{'date':'21/03/05,14:30:00-12',";
        QTest::newRow("as sent") << Start + "24.1,30.2,31.0,25.9,25.6\n"
                                 << head + "'wetTemperature':'24.1','dryTemperature':'30.2','globeTemperature':'31.0',"
                                           "'IBUTGi':'25.9','IBUTGe':'25.6'}";
        QTest::newRow("empty pieces, one too many")
            << Start + ",30.2,---,,25.6,9"
            << head + "'wetTemperature':'','dryTemperature':'30.2','globeTemperature':'---','IBUTGi':'','IBUTGe':'25.6'}";
        QTest::newRow("no date") << QByteArray("1,1,0,,,1,2,3,4,5")
                                 << QByteArray("{'date':'+00','wetTemperature':'1','dryTemperature':'2',"
                                               "'globeTemperature':'3','IBUTGi':'4','IBUTGe':'5'}");
        QTest::newRow("one too few") << Start + "24.1,30.2,31.0,25.9\n" << QByteArray();
        QTest::newRow("nothing") << QByteArray() << QByteArray();
    }
    void recordOfOneUnit() { checkRecord<Thalvex2Log>(); }

    void recordOfManyUnits_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("four units") << four(Unit, Unit, Unit, Unit) << unitsJson(4);
        QTest::newRow("a block more than there can be") << four(Unit, Unit, Unit, Unit + ',' + Unit) << unitsJson(4);
        QTest::newRow("one unit") << four(Unit, NoUnit, NoUnit, NoUnit) << unitsJson(1);
        QTest::newRow("a gap ends the reading") << four(Unit, NoUnit, Unit, Unit) << unitsJson(1);
        QTest::newRow("no unit") << four(NoUnit, Unit, Unit, Unit) << unitsJson(0);
        QTest::newRow("36 fields") << Start + Unit + ',' + Unit + ',' + Unit + ",1,2,3,4,5,6,7" << QByteArray();
    }
    void recordOfManyUnits() { checkRecord<Thalvex4Log>(); }

    void headers_data()
    {
        QTest::addColumn<MakeResults>("makeResults");
        QTest::addColumn<Parse>("parser");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QByteArray>("expected"); // empty: refused
        const auto row = [](const QByteArray &name, MakeResults maker, Parse parser, const char *answer,
                            const char *expected) {
            QTest::newRow(name.constData()) << maker << parser << "+VFXPHDR: " + QByteArray(answer) << QByteArray(expected);
        };
        using A = Thalvex2Results;
        using B = Thalvex4Results;
        const Parse a1 = parse<A, &A::parseHeader1>;
        const Parse a2 = parse<A, &A::parseHeader2>;
        const Parse a3 = parse<A, &A::parseHeader3>;
        const Parse b1 = parse<B, &B::parseHeader1>;
        const Parse b2 = parse<B, &B::parseHeader2>;
        const Parse b3 = parse<B, &B::parseHeader3>;
        const Parse b4 = parse<B, &B::parseHeader4>;

        row("2: times", make<A>, a1, "1,3,60,90,3661,\"C\"\n",
            "{'sampleTime':60,'pauseTime':'00:01:30','duration':'01:01:01','unity':'°C'}");
        row("2: longest duration", make<A>, a1, "1,3,1,0,360000,F",
            "{'pauseTime':'00:00:00','duration':'100:00:00','unity':'°F'}");
        row("2: empty pieces", make<A>, a1, "1,3,,,,", "{'sampleTime':0,'pauseTime':'00:00:00','unity':'°'}");
        row("2: times, one too few", make<A>, a1, "1,3,60,90,3661", "");
        row("2: times, foreign number", make<A>, a1, "2,3,60,90,3661,C", "");
        row("2: times, number not exact", make<A>, a1, "01,3,60,90,3661,C", "");
        row("2: averages", make<A>, a2, "2,3,25.90,x,\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\"",
            "{'IBUTGiMed':25.9,'IBUTGeMed':0,'startTime':'21/03/05,14:30:00-12','stopTime':'21/03/05,15:31:01-12'}");
        row("2: averages, one too few", make<A>, a2, "2,3,25.90,25.60,\"21/03/05\",\"14:30:00-12\",\"21/03/05\"", "");
        row("2: extremes", make<A>, a3, "3,3,20,10,30,15,40,-12.5",
            "{'wetTMax':20,'wetTMin':10,'dryTMax':30,'dryTMin':15,'globeTMax':40,'globeTMin':-12.5}");
        row("2: extremes, one too few", make<A>, a3, "3,3,20,10,30,15,40", "");
        row("2: extremes, foreign number", make<A>, a3, "2,3,20,10,30,15,40,12", "");

        row("4: times", make<B>, b1, "1,3,9,3661,\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\",90,60,\"F\"",
            "{'duration':'01:01:01','startTime':'21/03/05,14:30:00-12','stopTime':'21/03/05,15:31:01-12',"
            "'pauseTime':'00:01:30','sampleTime':60,'unity':'°F'}");
        row("4: times, one too few", make<B>, b1, "1,3,9,3661,21/03/05,14:30:00-12,21/03/05,15:31:01-12,90,60", "");
        row("4: no expansion", make<B>, b2, "2,3,0", "{'numberOfExpansions':0,'expansionBoardList':[]}");
        row("4: two expansions", make<B>, b2,
            "2,3,2,\"E-1\",\"CAL 1\",\"25/11/21\",\"09:30:00-12\",\"E-2\",\"\",\"\",\"\"",
            "{'numberOfExpansions':2,'expansionBoardList':["
            "{'SN':'E-1','calibration':{'certification':'CAL 1','date':'25/11/21,09:30:00-12'}},"
            "{'SN':'E-2','calibration':{'certification':'','date':'+00'}}]}");
        row("4: fields of an expansion missing", make<B>, b2, "2,3,1,E-1",
            "{'numberOfExpansions':1,'expansionBoardList':[{'SN':'E-1','calibration':{'certification':'','date':'+00'}}]}");
        const char *three = "{'numberOfExpansions':3,'expansionBoardList':["
                            "{'SN':'','calibration':{'certification':'','date':'+00'}},"
                            "{'SN':'','calibration':{'certification':'','date':'+00'}},"
                            "{'SN':'','calibration':{'certification':'','date':'+00'}}]}";
        row("4: absurd number of expansions", make<B>, b2, "2,3,2147483647", three);
        row("4: negative number of expansions", make<B>, b2, "2,3,-5", "{'numberOfExpansions':0,'expansionBoardList':[]}");
        row("4: expansions, one too few", make<B>, b2, "2,3", "");
        row("4: averages of four", make<B>, b3, "3,3,1,2,3,4,5,6,7,8,9,10",
            "{'wbgtList':[{'WBGTiMed':1,'WBGToMed':2},{'WBGTiMed':3,'WBGToMed':4},{'WBGTiMed':5,'WBGToMed':6},"
            "{'WBGTiMed':7,'WBGToMed':8}]}");
        row("4: averages, a gap", make<B>, b3, "3,3,1,2,,,5,6,,", "{'wbgtList':[{'WBGTiMed':1,'WBGToMed':2}]}");
        row("4: averages, a lone one", make<B>, b3, "3,3,1,2,3", "{'wbgtList':[{'WBGTiMed':1,'WBGToMed':2},"
                                                                  "{'WBGTiMed':3,'WBGToMed':0}]}");
        row("4: averages, none", make<B>, b3, "3,3,,", "{'wbgtList':[]}");
        row("4: averages, three fields", make<B>, b3, "3,3,1", "");
        row("4: extremes", make<B>, b4, "4,3,20,10,30,15,40,12,21,11,31,16,41,13,,,,,,",
            "{'maxMinTemperatures':["
            "{'wetTMax':20,'wetTMin':10,'dryTMax':30,'dryTMin':15,'globeTMax':40,'globeTMin':12},"
            "{'wetTMax':21,'wetTMin':11,'dryTMax':31,'dryTMin':16,'globeTMax':41,'globeTMin':13}]}");
        row("4: extremes, one too few", make<B>, b4, "4,3,20,10,30,15,40", "");
        row("4: extremes, foreign number", make<B>, b4, "3,3,20,10,30,15,40,12", "");

        for (const MakeResults maker : {make<A>, make<B>}) {
            const Parse closing = [](Results &results, const QByteArray &answer) {
                return results.parseClosingRecord(answer);
            };
            const auto family = maker()->metaObject()->className();
            const auto name = [&](const char *what) { return QByteArray(family) + ": " + what; };
            row(name("end"), maker, closing, "8,1,3900,3700,100,90,\"Stop key\"\n",
                "{'vbatStart':3900,'vbatStop':3700,'coulombCounterStart':100,'coulombCounterStop':90,"
                "'stopReason':'Stop key'}");
            row(name("end, UTF-8"), maker, closing, "8,1,1,2,3,4,\"Memória\"", "{'stopReason':'Memória'}");
            row(name("end, one too few"), maker, closing, "8,1,3900,3700,100,90", "");
            row(name("end, foreign number"), maker, closing, "3,1,3900,3700,100,90,X", "");
        }
    }
    void headers()
    {
        QFETCH(MakeResults, makeResults);
        QFETCH(Parse, parser);
        QFETCH(QByteArray, answer);
        QFETCH(QByteArray, expected);
        const std::unique_ptr<Results> results = makeResults();
        const QJsonObject before = results->toJson();
        QCOMPARE(parser(*results, answer), expected.isEmpty() ? -1 : 0);
        const QJsonObject wanted = expected.isEmpty() ? before : json(expected);
        const QJsonObject got = results->toJson();
        QCOMPARE(text(only(wanted, got)), text(wanted));
        const std::unique_ptr<Results> again = makeResults();
        again->fromJson(got);
        QCOMPARE(text(again->toJson()), text(got));
    }

    void listLines_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("plain"); // "index size date", or "" when refused
        QTest::addColumn<QString>("named");
        QTest::newRow("with a name") << QByteArray("0,3,25,\"21/03/05\",\"14:30:00-12\",\"Forno n\xBA 2\"")
                                     << "3 25 21/03/05,14:30:00-12" << "3 25 21/03/05,14:30:00-12 Forno nº 2";
        QTest::newRow("empty name") << QByteArray("0,3,25,21/03/05,14:30:00-12,")
                                    << "3 25 21/03/05,14:30:00-12" << "3 25 21/03/05,14:30:00-12 ";
        QTest::newRow("no name") << QByteArray("0,3,25,21/03/05,14:30:00-12") << "3 25 21/03/05,14:30:00-12" << "";
        QTest::newRow("one too few") << QByteArray("0,3,25,21/03/05") << "" << "";
        QTest::newRow("no numbers") << QByteArray("0,x,,,,N") << "0 0 +00" << "0 0 +00 N";
    }
    void listLines()
    {
        QFETCH(QByteArray, line);
        const auto told = [&](Experiment &experiment, const QString &name = {}) {
            return QString("%1 %2 %3").arg(experiment.index()).arg(experiment.size())
                       .arg(AtDateTime::toAtString(experiment.dateTime())) + name;
        };
        Thalvex2Experiment plain;
        const int plainCode = plain.parseHeader(line);
        QTEST(plainCode == 0 ? told(plain) : QString(), "plain");
        Thalvex4Experiment named;
        const int namedCode = named.parseHeader(line);
        QTEST(namedCode == 0 ? told(named, ' ' + named.expName()) : QString(), "named");
        QVERIFY(plainCode == 0 || (plainCode == -1 && plain.index() == 0 && !plain.dateTime().isValid()));
    }

    void configurations_data()
    {
        QTest::addColumn<QByteArray>("unit");
        QTest::addColumn<QByteArray>("interval");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("quoted") << QByteArray("\"C\"") << QByteArray("90") << QByteArray("'unity':'°C','sampleTime':'01:30'");
        QTest::newRow("bare") << QByteArray("F") << QByteArray("5") << QByteArray("'unity':'°F','sampleTime':'00:05'");
        QTest::newRow("long") << QByteArray("F") << QByteArray("6000") << QByteArray("'unity':'°F','sampleTime':'100:00'");
        QTest::newRow("nothing") << QByteArray() << QByteArray() << QByteArray("'unity':'°','sampleTime':'00:00'");
    }
    void configurations()
    {
        QFETCH(QByteArray, unit);
        QFETCH(QByteArray, interval);
        QFETCH(QByteArray, expected);
        Thalvex2Config simple;
        Thalvex4Config large;
        const std::pair<HeatStressConfig *, const char *> both[] = {{&simple, "THALVEX 2"}, {&large, "THALVEX 4"}};
        for (const auto &[config, product] : both) {
            HeatStressConfig::settings()[0].read(*config, unit);
            HeatStressConfig::settings()[1].read(*config, interval);
            const QJsonObject wanted = json("{'productName':'" + QByteArray(product) + "'," + expected + '}');
            QCOMPARE(text(config->toJson()), text(wanted));
            for (const char *refused : {"[]", "", "x", "5", "null"})
                QCOMPARE(config->fromJson(refused), -1);
            QCOMPARE(text(config->toJson()), text(wanted));
            QCOMPARE(config->fromJson(R"({"productName":"other","unity":"°F"})"), 0);
            QCOMPARE(config->unity(), QString("°F"));
            QVERIFY(config->sampleTime().isEmpty());
            QCOMPARE(config->toJson()["productName"].toString(), QString(product));
        }
    }

private:
    template <class L> void checkRecord()
    {
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, expected);
        L log;
        QCOMPARE(log.parse(line), expected.isEmpty() ? 1 : 0);
        if (expected.isEmpty())
            return;
        QCOMPARE(text(log.toJson()), text(json(expected)));
        L again;
        again.fromJson(json(expected));
        QCOMPARE(text(again.toJson()), text(json(expected)));
    }
};

QTEST_GUILESS_MAIN(TestModelRecords)
#include "tst_model_records.moc"
