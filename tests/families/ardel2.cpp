// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/families/familycase.h"

#include "ardel/ardel2results.h"
#include "link/factories.h"
#include "model/deviceconfig.h"

namespace {

/// Each command with settings and places of schedules; what reads a measurement says itself when it met BUSY.
void addExchanges(FamilyCase &family)
{
    //                              busy error none  error, busy, OK at end, wrong tag, short record
    constexpr Codes statusRead =    {-2,  -1,   -3,   -1,    -2,   -1,        -1,        -1};
    family.configuration = "{'actionLevel':'70','criterionLevel':'86','exchangeRate':'5','frequencyWeighting':'C',"
                           "'timeWeighting':'Impulse','octaveAnalysis':'1/3','experimentDuration':'09:00',"
                           "'scheduleStatus':true}";
    family.written = {"AT+VFTRHLVL=70\r\n", "AT+VFCRTLVL=86\r\n", "AT+VFXCHRAT=5\r\n", "AT+VFFQWGHT=\"C\"\r\n",
                      "AT+VFTMWGHT=\"Impulse\"\r\n", "AT+VFOCTAVE=\"1/3\"\r\n", "AT+VFXPDUR=32400\r\n", "AT+VFSCH=3,1\r\n"};
    family.read = {"AT+VFTRHLVL?\r\n", "AT+VFCRTLVL?\r\n", "AT+VFXCHRAT?\r\n", "AT+VFFQWGHT?\r\n",
                   "AT+VFTMWGHT?\r\n", "AT+VFOCTAVE?\r\n", "AT+VFXPDUR?\r\n", "AT+VFSCH=3\r\n"};
    const auto read = [](Device &device) { return device.acquireConfiguration(); };
    const auto write = [](Device &device) {
        (void)device.config()->fromJson(R"({"octaveAnalysis":"1/3","timeWeighting":"Impulse","frequencyWeighting":"C",
            "actionLevel":"70","criterionLevel":"86","exchangeRate":"5","experimentDuration":"09:00","scheduleStatus":true})");
        return device.sndConfiguration();
    };
    const auto writeSchedules = [](Device &device) { return device.sndScheduleList(); };
    const auto readMeasurement = [](Device &device) {
        bool busy = false;
        const auto told = QObject::connect(&device, &Device::busy, [&busy] { busy = true; });
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(device.productName()));
        experiment->setIndex(1);
        const std::unique_ptr<Results> results(device.acquireResults(experiment.get()));
        QObject::disconnect(told);
        return results ? 0 : busy ? -2 : -1;
    };
    family.exchanges = {
        {"service setting", "AT+VFSVCCFG?\r\n", byTheEnd, [](Device &device) { return device.acquireServiceConfig(); }, true},
        {"action level", family.read[0], byTheEnd, read, true},
        {"duration", family.read[6], byTheEnd, read, true},
        {"whether schedules are on", family.read[7], statusRead, read, true},
        {"set action level", family.written[0], answerIsWhole, write, true},
        {"set octaves", family.written[5], answerIsWhole, write, true},
        {"set whether schedules are on", family.written[7], answerIsWhole, write, true},
        {"schedules off", "AT+VFSCH=3,0\r\n", answerIsWhole, writeSchedules, true},
        {"clear a schedule", "AT+VFSCH=2,3\r\n", answerIsWhole, writeSchedules, true},
        {"schedules on", "AT+VFSCH=3,1\r\n", answerIsWhole, writeSchedules, true},
        {"settings of the three dosimeters", "AT+VFDOSCFG?\r\n", headerRead, readMeasurement, true},
    };
}

} // namespace

FamilyCase ardel2Case()
{
    FamilyCase family{};
    family.product = "ARDEL 2";
    family.ending = ".adl";
    family.headersTellOfBusy = true;
    family.closingRecordNeeded = true;
    family.headers = "12345678";
    family.listRefusal = -1;
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedArdel2(1, memory); };
    addExchanges(family);
    // The settings of the USER dosimeter come from older files alone.
    family.missing = "{'labelDos1':'NHO-01','labelDos2':'NR-15','labelDosUSER':'USER','dos2exchangeRate':'5',"
                     "'dos1actionLevel':'80','dosUSERactionLevel':'','preCalDate':'','workingHours':'08:00'}";

    const QByteArray listed = "{'index':'3','size':'25','date':'21/03/05,14:30:00-12','expName':";
    family.listLines = {
        {"with a name", "0,3,25,\"21/03/05\",\"14:30:00-12\",\"Fundi\xE7\xE3o, 2\"", listed + "'Fundição, 2'}"},
        {"empty name", "0,3,25,21/03/05,14:30:00-12,", listed + "''}"},
        {"one too few", "0,3,25,21/03/05,14:30:00-12", ""},
    };
    const QByteArray dated = "{'date':'21/03/05,14:30:00-12',";
    family.records = {
        {"as sent", recordStart() + "81.1,82.2,83.3,85.3,0\n",
         dated + "'lavgDosimeter1':'81.1','lavgDosimeter2':'82.2','lavgDosimeter3':'83.3','level':'85.3'}"},
        {"no levels", recordStart() + ",,,,",
         dated + "'lavgDosimeter1':'---','lavgDosimeter2':'---','lavgDosimeter3':'---','level':'---'}"},
        {"one too few", recordStart() + "81.1,82.2,83.3,85.3", ""},
    };

    using R = Ardel2Results;
    const auto settings = [](Results &results, const QByteArray &answer) {
        return static_cast<R &>(results).parseDosimeterConfig(QByteArray(answer).replace("VFXPHDR", "VFDOSCFG"));
    };
    const auto one = parseWith<R, &R::parseIdentification>;
    const auto dos1 = parseWith<R, &R::parseDosimeter1Results>;
    const auto dos2 = parseWith<R, &R::parseDosimeter2Results>;
    const auto user = parseWith<R, &R::parseDosimeterUserResults>;
    const auto five = parseWith<R, &R::parseStatistics>;
    const auto six = parseWith<R, &R::parseOctaveBands>;
    const auto seven = parseWith<R, &R::parseFieldChecks>;
    const QByteArray general = "1,3,\"Prensa, 2\",60,81,86,4,\"Fast\",\"C\"";
    const QByteArray statistics = "5,3,90.1,,60.5,7,28800,21/03/05,14:30:00-12,21/03/05,22:30:00-12,";
    family.headerLines = {
        {"identification", one, general + ",\"1/3\"",
         "{'label':'Prensa, 2','sampleTime':'60','dosUSERactionLevel':'81','dosUSERcriterionLevel':'86',"
         "'dosUSERexchangeRate':'4','dosUSERtimeWeighting':'Fast','dosUSERfreqWeighting':'C','labelDosUSER':'USER',"
         "'dos1actionLevel':'80','octaveAnalysis':'1/3'}"},
        {"identification, without octaves", one, general, "{'octaveAnalysis':''}"},
        {"identification, one too few", one, general.left(general.lastIndexOf(',')), ""},
        {"identification, foreign number", one, '2' + general.mid(1), ""},
        {"dosimeter", dos1, "2,3,101.5,85.1,84.9",
         "{'doseDos1':'101.5','twaDos1':'85.1','lavgDos1':'84.9','labelDos1':'NHO-01','doseDos2':''}"},
        {"dosimeter, named", dos2, "3,3,0.5,,,\"Norma 2\"",
         "{'doseDos2':'0.5','twaDos2':'---','lavgDos2':'---','labelDos2':'Norma 2'}"},
        {"dosimeter, four", user, "4,3,1,2", ""},
        {"dosimeter, seven", user, "4,3,1,2,3,A,B", ""},
        {"dosimeter, foreign number", user, "3,3,1,2,3", ""},
        {"statistics", five, statistics + "3661",
         "{'l10':'90.1','l50':'---','l90':'60.5','nPk':'7','duration':'28800','durationStr':'08:00:00',"
         "'startTime':'21/03/05,14:30:00-12','stopTime':'21/03/05,22:30:00-12','pauseTime':'01:01:01',"
         "'dailyDoseDos1':'0.00','neDos1':'---','nenDosUSER':'---'}"},
        {"statistics, no times", five, "5,3,,,,,360000,,,,,", "{'startTime':'+00','pauseTime':'','durationStr':'100:00:00'}"},
        {"statistics, one too few", five, statistics.chopped(1), ""},
        {"statistics, foreign number", five, '6' + statistics.mid(1) + '0', ""},
        {"bands", six, "6,3,2,8,\"63.00\",70.12\n\r7,3,9\r6,3\r6,3,2,11,125.00,",
         "{'numFreq':'2','leqList':[{'freqIdx':'8','frequency':'63.00','leq':'70.12'},"
         "{'freqIdx':'11','frequency':'125.00','leq':''}]}"},
        {"no bands", six, "", "{'numFreq':'','leqList':[]}"},
        {"one band too few", six, "6,3,3,8,63.00,70\r6,3,3,11,125.00,71", ""},
        {"one band too many", six, "6,3,1,8,63.00,70\r6,3,1,11,125.00,71", ""},
        {"checks", seven, "7,3,94.0,,\"21/03/05\",\"14:25:00-12\",\"\",\"\"",
         "{'preCal':'94.0','posCal':'---','preCalDate':'21/03/05,14:25:00-12','posCalDate':''}"},
        {"checks, one too few", seven, "7,3,94.0,93.8,21/03/05,14:25:00-12,21/03/05", ""},
    };
    const QByteArray second = "2,\"N\xE3o, 15\",79,90,5,Slow,A";
    family.headerLines += {
        {"settings in any order", settings, "3,\"Eu\",70,84,4,\"Impulse\",\"Z\"\n\r" + second + "\r1,A,80,85,3,Fast,C",
         "{'labelDos1':'A','dos1timeWeighting':'Fast','labelDos2':'Não, 15','dos2actionLevel':'79',"
         "'dos2criterionLevel':'90','labelDosUSER':'Eu','dosUSERactionLevel':'70','dosUSERfreqWeighting':'Z'}"},
        {"settings of one", settings, second, "{'labelDos1':'NHO-01','dos2criterionLevel':'90','labelDosUSER':'USER'}"},
        {"settings of a fourth", settings, second + "\r4,D,80,85,3,Slow,A", ""},
        {"settings, one too few", settings, second.left(second.lastIndexOf(',')), ""},
        {"no settings", settings, "", ""},
    };
    return family;
}
