// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/families/heatstress.h"
#include "thalvex4/thalvex4results.h"

namespace {

const QByteArray unit = "24.1,30.2,31.0,25.9,25.6,0.3,95,1";
const QByteArray noUnit = ",,,,,,,";

QByteArray four(const QByteArray &a, const QByteArray &b, const QByteArray &c, const QByteArray &d)
{
    return recordStart() + a + ',' + b + ',' + c + ',' + d + '\n';
}

QByteArray units(int count)
{
    const QByteArray one = "{'wetTemperature':'24.1','dryTemperature':'30.2','globeTemperature':'31.0','WBGTi':'25.9',"
                           "'WBGTo':'25.6','airVelocity':'0.3','waterLevel':95,'tiltStatus':1}";
    QByteArrayList list;
    for (int i = 0; i < count; ++i)
        list.append(one);
    return "{'date':'21/03/05,14:30:00-12','enviromentalFactorsList':[" + list.join(',') + "]}";
}

} // namespace

FamilyCase thalvex4Case()
{
    FamilyCase family = heatStressCase("THALVEX 4", ".tv4");
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedThalvex4(1, 1, memory); };
    family.headers = "12348";
    const QByteArray listed = "{'index':'3','size':'25','date':'21/03/05,14:30:00-12','expName':";
    family.listLines = {
        {"with a name", "0,3,25,\"21/03/05\",\"14:30:00-12\",\"Forno n\xBA 2\"", listed + "'Forno nº 2'}"},
        {"a comma in the name", "0,3,25,\"21/03/05\",\"14:30:00-12\",\"Forno, 2\"", listed + "'Forno, 2'}"},
        {"empty name", "0,3,25,21/03/05,14:30:00-12,", listed + "''}"},
        {"no name", "0,3,25,21/03/05,14:30:00-12", ""},
        {"no numbers", "0,x,,,,N", "{'index':'0','size':'0','date':'+00','expName':'N'}"},
    };
    family.records = {
        {"four units", four(unit, unit, unit, unit), units(4)},
        {"a block more than there can be", four(unit, unit, unit, unit + ',' + unit), units(4)},
        {"one unit", four(unit, noUnit, noUnit, noUnit), units(1)},
        {"a gap ends the reading", four(unit, noUnit, unit, unit), units(1)},
        {"no unit", four(noUnit, unit, unit, unit), units(0)},
        {"36 fields", recordStart() + unit + ',' + unit + ',' + unit + ",1,2,3,4,5,6,7", ""},
    };
    using R = Thalvex4Results;
    const auto one = parseWith<R, &R::parseHeader1>;
    const auto two = parseWith<R, &R::parseHeader2>;
    const auto three = parseWith<R, &R::parseHeader3>;
    const auto fourth = parseWith<R, &R::parseHeader4>;
    const QByteArray board = "{'SN':'','calibration':{'certification':'','date':'+00'}}";
    family.headerLines = {
        {"times", one, "1,3,9,3661,\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\",90,60,\"F\"",
         "{'duration':'01:01:01','startTime':'21/03/05,14:30:00-12','stopTime':'21/03/05,15:31:01-12',"
         "'pauseTime':'00:01:30','sampleTime':60,'unity':'°F'}"},
        {"times, one too few", one, "1,3,9,3661,21/03/05,14:30:00-12,21/03/05,15:31:01-12,90,60", ""},
        {"no expansion", two, "2,3,0", "{'numberOfExpansions':0,'expansionBoardList':[]}"},
        {"two expansions", two, "2,3,2,\"E-1\",\"CAL 1\",\"25/11/21\",\"09:30:00-12\",\"E-2\",\"\",\"\",\"\"",
         "{'numberOfExpansions':2,'expansionBoardList':["
         "{'SN':'E-1','calibration':{'certification':'CAL 1','date':'25/11/21,09:30:00-12'}},"
         "{'SN':'E-2','calibration':{'certification':'','date':'+00'}}]}"},
        {"fields of an expansion missing", two, "2,3,1,E-1",
         "{'numberOfExpansions':1,'expansionBoardList':[{'SN':'E-1','calibration':{'certification':'','date':'+00'}}]}"},
        {"absurd number of expansions", two, "2,3,2147483647",
         "{'numberOfExpansions':3,'expansionBoardList':[" + board + ',' + board + ',' + board + "]}"},
        {"negative number of expansions", two, "2,3,-5", "{'numberOfExpansions':0,'expansionBoardList':[]}"},
        {"expansions, one too few", two, "2,3", ""},
        {"averages of four", three, "3,3,1,2,3,4,5,6,7,8,9,10",
         "{'wbgtList':[{'WBGTiMed':1,'WBGToMed':2},{'WBGTiMed':3,'WBGToMed':4},{'WBGTiMed':5,'WBGToMed':6},"
         "{'WBGTiMed':7,'WBGToMed':8}]}"},
        {"averages, a gap", three, "3,3,1,2,,,5,6,,", "{'wbgtList':[{'WBGTiMed':1,'WBGToMed':2}]}"},
        {"averages, a lone one", three, "3,3,1,2,3",
         "{'wbgtList':[{'WBGTiMed':1,'WBGToMed':2},{'WBGTiMed':3,'WBGToMed':0}]}"},
        {"averages, none", three, "3,3,,", "{'wbgtList':[]}"},
        {"averages, three fields", three, "3,3,1", ""},
        {"extremes", fourth, "4,3,20,10,30,15,40,12,21,11,31,16,41,13,,,,,,",
         "{'maxMinTemperatures':["
         "{'wetTMax':20,'wetTMin':10,'dryTMax':30,'dryTMin':15,'globeTMax':40,'globeTMin':12},"
         "{'wetTMax':21,'wetTMin':11,'dryTMax':31,'dryTMin':16,'globeTMax':41,'globeTMin':13}]}"},
        {"extremes, one too few", fourth, "4,3,20,10,30,15,40", ""},
        {"extremes, foreign number", fourth, "3,3,20,10,30,15,40,12", ""},
    };
    return family;
}
