// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixresults.h"
#include "model/deviceconfig.h"
#include "tests/families/familycase.h"

namespace {

using R = LomtrixResults;

const QByteArray listed = "{'index':'3','size':'25','date':'21/03/05,14:30:00-12',";
const QByteArray line = "0,3,25,\"21/03/05\",\"14:30:00-12\",";

QVector<ParsedHeader> generalHeaders()
{
    const auto one = parseWith<R, &R::parseHeader1>;
    const QByteArray middle = ",\"Slow\",\"Wd\",,\"Wk\",1.4,1.3,1.0,";
    const QByteArray times = "1,3,\"Serra, 2\",\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\",60,3661,3725";
    return {
        {"general", one, times + middle + "0,\"P1\"\n",
         "{'label':'Serra, 2','startTime':'21/03/05,14:30:00-12','stopTime':'21/03/05,15:31:01-12','sampleTime':'60',"
         "'duration':'3661','durationStr':'01:01:01','pauseTime':'01:02:05','timeWeighting':'Slow','freqWeightingX':'Wd',"
         "'freqWeightingY':'---','freqWeightingZ':'Wk','fX':'1.4','fY':'1.3','fZ':'1.0','evaluationType':'0','profile':'P1'}"},
        {"general, no profile", one, times + middle + "1", "{'evaluationType':'1','profile':''}"},
        {"general, an older type", one, times + middle + "2", "{'evaluationType':'1'}"},
        {"general, empty", one, "1,3,,,,,,,,,,,,,,,,",
         "{'label':'','startTime':'+00','stopTime':'+00','sampleTime':'---','duration':'---','durationStr':'00:00:00',"
         "'pauseTime':'','timeWeighting':'---','freqWeightingX':'---','fZ':'---','evaluationType':'---'}"},
        {"general, one too few", one, "1,3,\"Serra\",,,,,60,3661,0,Slow,,,,1,1,1", ""},
        {"general, foreign number", one, '2' + times.mid(1) + middle + "0", ""},
    };
}

QVector<ParsedHeader> furtherHeaders()
{
    const auto two = parseWith<R, &R::parseHeader2>;
    const auto three = parseWith<R, &R::parseHeader3>;
    const auto four = parseWith<R, &R::parseHeader4>;
    const auto five = parseWith<R, &R::parseHeader5>;
    return {
        {"doses", two, "2,3,1.234,5.1,5.2,,6.1,6.2,6.3",
         "{'arep':'1.234','vdvX':'5.1','vdvY':'5.2','vdvZ':'---','fcX':'6.1','fcY':'6.2','fcZ':'6.3','fc':0,'are':0}"},
        {"doses, one too few", two, "2,3,1.234,5.1,5.2,5.3,6.1,6.2", ""},
        {"doses, foreign number", two, "3,3,1.234,5.1,5.2,5.3,6.1,6.2,6.3", ""},
        {"statistics", three, "3,3,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15",
         "{'aMaxX':'1','aMaxY':'2','aMaxZ':'3','aMinX':'4','aMinY':'5','aMinZ':'6','apX':'7','apY':'8','apZ':'9',"
         "'appX':'10','appY':'11','appZ':'12','amX':'13','amY':'14','amZ':'15'}"},
        {"statistics, one too few", three, "3,3,1,2,3,4,5,6,7,8,9,10,11,12,13,14", ""},
        {"bands", four, "4,3,2,1,\"8.00\",1.515\n\r4,3,2,2,16.00,",
         "{'numFreq':'2','amrList':[{'freqIdx':'1','frequency':'8.00','amr':'1.515'},"
         "{'freqIdx':'2','frequency':'16.00','amr':'---'}]}"},
        {"no bands", four, "4,3,0", "{'numFreq':'','amrList':[]}"},
        {"one band too few", four, "4,3,3,1,8.00,1\r4,3,3,2,16.00,2", ""},
        {"one band too many", four, "4,3,1,1,8.00,1\r4,3,1,2,16.00,2", ""},
        {"a short line ends the bands", four, "4,3,2,1,8.00,1\r4,3,2,2\r4,3,2,2,16.00,2", ""},
        {"a foreign line ends the bands", four, "4,3,1,1,8.00,1\r3,3,1,2,16.00,2\r4,3,1,2,16.00,2",
         "{'numFreq':'1','amrList':[{'freqIdx':'1','frequency':'8.00','amr':'1'}]}"},
        {"sensor", five, "5,3,\"ACC-3\",,10.02,9.98,10.05",
         "{'sensorLabel':'ACC-3','sensorSN':'---','sensitivityX':'10.02','sensitivityY':'9.98','sensitivityZ':'10.05'}"},
        {"sensor, one too few", five, "5,3,\"ACC-3\",\"S-1\",10.02,9.98", ""},
    };
}

} // namespace

FamilyCase lomtrixCase()
{
    FamilyCase family{};
    family.product = "LOMTRIX";
    family.ending = ".lmt";
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedLomtrix(1, memory); };
    family.headers = "123458";
    family.hasMeasuringPoints = true;
    family.listRefusal = -1;
    family.configuration = "{'sampleTime':'59:59'}";
    family.written = {"AT+VFINTVL=3599\r\n"};
    family.read = {"AT+VFINTVL?\r\n"};
    const auto write = [](Device &device) {
        (void)device.config()->fromJson(R"({"sampleTime":"59:59"})");
        return device.sndConfiguration();
    };
    family.exchanges = {
        {"service setting", "AT+VFSVCCFG?\r\n", byTheEnd, [](Device &device) { return device.acquireServiceConfig(); }},
        {"interval", family.read[0], byTheEnd, [](Device &device) { return device.acquireConfiguration(); }},
        {"set interval", family.written[0], refusalIsWhole, write},
    };
    family.listLines = {
        {"whole body", line + "\"Fundi\xE7\xE3o, 2\",\"B\"", listed + "'expName':'Fundição, 2','experimentType':'B'}"},
        {"a blank is a hand", line + "\"\",\" \"", listed + "'expName':'','experimentType':'H'}"},
        {"no type", line + "\"N\",", listed + "'expName':'N','experimentType':''}"},
        {"one too few", line + "\"N\"", ""},
    };
    const QByteArray head = "{'date':'21/03/05,14:30:00-12','interval':'60',";
    const QByteArray axes = "'awX':'1.1','awY':'1.2','awZ':'1.3','fcX':'2.1','fcY':'2.2','fcZ':'2.3','vdvX':'3.1','vdvY':'3.2',";
    const QByteArray values = "60,1.1,1.2,1.3,2.1,2.2,2.3,3.1,3.2,";
    family.records = {
        {"as sent", recordStart() + values + "3.3,4.4\n", head + axes + "'vdvZ':'3.3','amr':'4.4'}"},
        {"empty pieces, one too many", recordStart() + values + ",,9" + QByteArray("\0,x", 3),
         head + axes + "'vdvZ':'---','amr':'---'}"},
        {"one too few", recordStart() + values + "3.3", ""},
    };
    family.headerLines = generalHeaders() + furtherHeaders();
    family.missing = "{'arep':'','evaluationType':'','workingHours':'08:00','fc':0}";
    return family;
}
