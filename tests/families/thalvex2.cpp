// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/families/heatstress.h"
#include "thalvex2/thalvex2results.h"

FamilyCase thalvex2Case()
{
    FamilyCase family = heatStressCase("THALVEX 2", ".tvx");
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedThalvex2(1, memory); };
    family.headers = "1238";
    const QByteArray listed = "{'index':'3','size':'25','date':'21/03/05,14:30:00-12'}";
    family.listLines = {
        {"with a name", "0,3,25,\"21/03/05\",\"14:30:00-12\",\"Forno\"", listed},
        {"without", "0,3,25,21/03/05,14:30:00-12", listed},
        {"one too few", "0,3,25,21/03/05", ""},
        {"no numbers", "0,x,,,,N", "{'index':'0','size':'0','date':'+00'}"},
    };
    const QByteArray head = "{'date':'21/03/05,14:30:00-12',";
    family.records = {
        {"as sent", recordStart() + "24.1,30.2,31.0,25.9,25.6\n",
         head + "'wetTemperature':'24.1','dryTemperature':'30.2','globeTemperature':'31.0','IBUTGi':'25.9',"
                "'IBUTGe':'25.6'}"},
        {"empty pieces, one too many", recordStart() + ",30.2,---,,25.6,9",
         head + "'wetTemperature':'','dryTemperature':'30.2','globeTemperature':'---','IBUTGi':'','IBUTGe':'25.6'}"},
        {"no date", "1,1,0,,,1,2,3,4,5",
         "{'date':'+00','wetTemperature':'1','dryTemperature':'2','globeTemperature':'3','IBUTGi':'4','IBUTGe':'5'}"},
        {"one too few", recordStart() + "24.1,30.2,31.0,25.9\n", ""},
        {"nothing", "", ""},
    };
    using R = Thalvex2Results;
    const auto one = parseWith<R, &R::parseHeader1>;
    const auto two = parseWith<R, &R::parseHeader2>;
    const auto three = parseWith<R, &R::parseHeader3>;
    family.headerLines = {
        {"times", one, "1,3,60,90,3661,\"C\"\n",
         "{'sampleTime':60,'pauseTime':'00:01:30','duration':'01:01:01','unity':'°C'}"},
        {"longest duration", one, "1,3,1,0,360000,F", "{'pauseTime':'00:00:00','duration':'100:00:00','unity':'°F'}"},
        {"empty pieces", one, "1,3,,,,", "{'sampleTime':0,'pauseTime':'00:00:00','unity':'°'}"},
        {"times, one too few", one, "1,3,60,90,3661", ""},
        {"times, foreign number", one, "2,3,60,90,3661,C", ""},
        {"times, number not exact", one, "01,3,60,90,3661,C", ""},
        {"averages", two, "2,3,25.90,x,\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\"",
         "{'IBUTGiMed':25.9,'IBUTGeMed':0,'startTime':'21/03/05,14:30:00-12','stopTime':'21/03/05,15:31:01-12'}"},
        {"averages, one too few", two, "2,3,25.90,25.60,\"21/03/05\",\"14:30:00-12\",\"21/03/05\"", ""},
        {"extremes", three, "3,3,20,10,30,15,40,-12.5",
         "{'wetTMax':20,'wetTMin':10,'dryTMax':30,'dryTMin':15,'globeTMax':40,'globeTMin':-12.5}"},
        {"extremes, one too few", three, "3,3,20,10,30,15,40", ""},
        {"extremes, foreign number", three, "2,3,20,10,30,15,40,12", ""},
    };
    return family;
}
