// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembra/nembraresults.h"
#include "tests/families/soundlevel.h"

FamilyCase nembraCase()
{
    FamilyCase family = soundLevelCase("NEMBRA", ".nbr");
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedNembra(1, memory); };
    const QByteArray head = "{'date':'21/03/05,14:30:00-12','level':";
    family.records = {
        {"as sent", recordStart() + "85.3\n", head + "'85.3'}"},
        {"no level", recordStart(), head + "'---'}"},
        {"up to a NUL, one too many", recordStart() + "OL,9" + QByteArray("\0x", 2), head + "'OL'}"},
        {"one too few", "+VFRDXP: 1,1,0,21/03/05,14:30:00-12", ""},
    };
    using R = NembraResults;
    using Shared = SoundLevelResults;
    const auto one = parseWith<Shared, &Shared::parseHeader1>;
    const auto two = parseWith<R, &R::parseHeader2>;
    const auto five = parseWith<Shared, &Shared::parseHeader5>;
    const QByteArray times = "3661,\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\",90,60,\"Slow\",\"A\"";
    const QByteArray levels = "2,3,85.31,97.2,54.0,98.5,\"21/03/05\",\"15:00:00-12\"";
    const QByteArray read = "{'lEq':'85.31','lMax':'97.2','lMin':'54.0','lFMax':'98.5','lMaxDateTime':'21/03/05,15:00:00-12',";
    family.headerLines += {
        {"general", one, "1,3,\"Prensa, 2\"," + times + ",\"1/1\"\n",
         "{'label':'Prensa, 2','duration':'3661','durationStr':'01:01:01','startTime':'21/03/05,14:30:00-12',"
         "'stopTime':'21/03/05,15:31:01-12','pauseTime':'00:01:30','sampleTime':'60','timeWeighting':'Slow',"
         "'freqWeighting':'A','octaveAnalysis':'1/1'}"},
        {"general, empty", one, "1,3,,360000,,,,,,,,,", "{'label':'','durationStr':'100:00:00','startTime':'+00',"
                                                        "'pauseTime':'00:00:00','sampleTime':'','octaveAnalysis':''}"},
        {"general, one too few", one, "1,3,\"Prensa\"," + times, ""},
        {"general, foreign number", one, "2,3,\"Prensa\"," + times + ",1/1", ""},
        {"levels", two, levels + ",120.88,111.1", read + "'SEL':'120.88','lPeak':'111.1'}"},
        {"levels, exactly 8", two, levels, read + "'SEL':'---','lPeak':'---'}"},
        {"levels, no peak behind", two, levels + ",120.88", read + "'SEL':'---','lPeak':'---'}"},
        {"levels, empty at the end", two, levels + ",,", read + "'SEL':'---','lPeak':'---'}"},
        {"levels, one too few", two, "2,3,85.31,97.2,54.0,98.5,21/03/05", ""},
        {"levels, foreign number", two, '1' + levels.mid(1), ""},
        {"statistics", five, "5,3,90.1,,80.0,60.5,55", "{'l05':'90.1','l10':'---','l50':'80.0','l90':'60.5','l95':'55'}"},
        {"statistics, one too few", five, "5,3,90.1,88.0,80.0,60.5", ""},
    };
    return family;
}
