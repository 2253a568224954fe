// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/families/familycase.h"

#include "link/factories.h"
#include "model/atdatetime.h"
#include "model/deviceconfig.h"
#include "zelk/zelkresults.h"

namespace {

/// A record of a line of the date and, behind it, \a values; \a count is what all of its lines tell of.
QByteArray record(const QByteArray &count, const QByteArrayList &values)
{
    const QByteArray start = "+VFRDXP: 1,1,0," + count + ',';
    QByteArray lines = start + "0,\"21/03/05\",\"14:30:00-12\"\n";
    for (int i = 0; i < values.size(); ++i)
        lines += '\r' + start + QByteArray::number(i + 1) + ',' + values[i] + '\n';
    return lines;
}

QVector<Parsed> records()
{
    const QByteArray date = "'date':'21/03/05,14:30:00-12'";
    const QByteArray two = '{' + date + ",'physicalQuantitiesList':['85.3','-0.50']}";
    const QByteArray values = "+VFRDXP: 1,1,0,2,1,85.3\n\r+VFRDXP: 1,1,0,2,2,-0.50\n";
    return {
        {"two values", record("2", {"85.3", "-0.50"}), two},
        {"two records", record("2", {"85.3", "-0.50"}) + '\r' + record("1", {"1"}), two},
        {"more fields than needed", record("2", {"85.3,x,y", "-0.50,9"}), two},
        {"eight values", record("8", {"1", "2", "3", "4", "5", "6", "7", ""}),
         '{' + date + ",'physicalQuantitiesList':['1','2','3','4','5','6','7','']}"},
        {"no value", record("0", {}), '{' + date + ",'physicalQuantitiesList':[]}"},
        {"no date", record("2", {"85.3", "-0.50"}).replace("21/03/05", ""),
         "{'date':'+00','physicalQuantitiesList':['85.3','-0.50']}"},
        {"its date last", values + '\r' + record("2", {}), two},
        {"a value where the date belongs", "+VFRDXP: 1,1,0,0,1,7", "{'date':'+00','physicalQuantitiesList':['7']}"},
        {"tells of one more than there is", record("3", {"85.3", "-0.50"}), ""},
        {"tells of one less than there is", record("1", {"85.3", "-0.50"}), ""},
        {"tells of a negative number", record("-1", {}), ""},
        {"tells of more than can be counted on from", record("2147483647", {"85.3"}), ""},
        {"tells of more than a number can hold", record("4294967297", {"85.3"}), ""},
        {"does not tell", record("", {}), ""},
        {"a value short of a field", record("2", {"85.3"}) + "\r+VFRDXP: 1,1,0,2,2", ""},
        {"a date short of two fields", "+VFRDXP: 1,1,0,0,0", ""},
        {"an empty line", "", ""},
    };
}

QVector<ParsedHeader> quantityHeaders()
{
    using R = ZelkResults;
    const auto three = parseWith<R, &R::parseAverages>;
    const auto four = parseWith<R, &R::parseLimits>;
    const auto five = parseWith<R, &R::parseQuantities>;
    const QByteArray averages = "{'averageList':['21.5','-0.50']}";
    return {
        {"averages", three, "3,3,2,1,21.5\n\r3,3,2,2,-0.50\n", averages},
        {"averages, a line of another header between", three, "3,3,2,1,21.5\r4,3,2,1,9,9\r3,3,2,2,-0.50", averages},
        {"averages, none", three, "3,3,0", "{'averageList':[]}"},
        {"averages, one too few", three, "3,3,3,1,21.5\r3,3,3,2,-0.50", ""},
        {"averages, one too many", three, "3,3,1,1,21.5\r3,3,1,2,-0.50", ""},
        {"averages, one short", three, "3,3,2,1,21.5\r3,3,2,2", ""},
        {"averages, told of but not there", three, "3,3,2", ""},
        {"averages, a negative number", three, "3,3,-1", ""},
        {"averages, of another header", three, "4,3,1,1,21.5", ""},
        {"limits", four, "4,3,2,1,24.0,19.5\r4,3,2,2,0.10,-1.00", "{'maxList':['24.0','0.10'],'minList':['19.5','-1.00']}"},
        {"limits, not measured", four, "4,3,1,1,,", "{'maxList':[''],'minList':['']}"},
        {"limits, one field short", four, "4,3,1,1,24.0", ""},
        {"quantities", five, "5,3,3,1,\"TEMP\",\"\xB0" "C\"\n\r5,3,3,2,\"UVI\",\"\"\n\r5,3,3,3,\"GAMMA\",\"\xB5Sv/h\"",
         "{'quantitiesInfoList':[{'name':'TEMP','nameTr':'Temperature','unity':'°C'},"
         "{'name':'UVI','nameTr':'UV Index','unity':''},{'name':'GAMMA','nameTr':'Invalid','unity':'µSv/h'}]}"},
        {"two quantities of the same name", five, "5,3,2,1,CONC,ppm\r5,3,2,2,CONC,mg/m3",
         "{'quantitiesInfoList':[{'name':'CONC','nameTr':'Gas concentration','unity':'ppm'},"
         "{'name':'CONC','nameTr':'Gas concentration','unity':'mg/m3'}]}"},
        {"quantities, one too few", five, "5,3,2,1,TEMP,C", ""},
    };
}

QVector<ParsedHeader> itemHeaders()
{
    using R = ZelkResults;
    const auto six = parseWith<R, &R::parseConfigItems>;
    const auto seven = parseWith<R, &R::parseEvaluationItems>;
    return {
        {"items", six, "6,3,3,1,\"LAMP\",\"s\",\"Tubo, fluoresc\xEAnte\",\"\"\n\r6,3,3,2,\"AREA\",\"f\",0.1,\"m\xB2\"\r6,3,3,3,X,q,1.5,",
         "{'configList':[{'label':'LAMP','type':'s','dataValue':'Tubo, fluorescênte','unity':''},"
         "{'label':'AREA','type':'f','dataValue':0.10000000149011612,'unity':'m²'},"
         "{'label':'X','type':'q','dataValue':'1.5','unity':''}],'evaluationResultsList':[]}"},
        {"items of another header", six, "7,3,1,1,TWA,f,12.5,ppm\r6,3,1,1,LAMP,s,LED,",
         "{'configList':[{'label':'LAMP','type':'s','dataValue':'LED','unity':''}]}"},
        {"items, none", six, "6,3,0", "{'configList':[]}"},
        {"items, all of another header", six, "7,3,1,1,TWA,f,12.5,ppm", ""},
        {"items, one short", six, "6,3,2,1,LAMP,s,LED,\r6,3,2,2,TWA,f,1", ""},
        {"evaluation", seven, "7,3,1,1,\"TWA\",\"f\",12.5,\"ppm\"",
         "{'evaluationResultsList':[{'label':'TWA','type':'f','dataValue':12.5,'unity':'ppm'}],'configList':[]}"},
        {"evaluation, a number that is none", seven, "7,3,2,1,TWA,f,---,ppm\r7,3,2,2,TWA,f,nan,ppm",
         "{'evaluationResultsList':[{'label':'TWA','type':'f','dataValue':null,'unity':'ppm'},"
         "{'label':'TWA','type':'f','dataValue':null,'unity':'ppm'}]}"},
    };
}

/// A row for every type and gas.
QVector<ParsedHeader> typeHeaders()
{
    using R = ZelkResults;
    struct Type {
        const char *name, *type, *subType, *text;
    };
    static const Type types[] = {
        {"LUX", "LUX", "", "LUX"}, {"LUX_UV", "LUX_UV", "", "LUX_UV"}, {"UV", "UV", "", "UV"}, {"AMB", "AMB", "", "AMB"},
        {"HVAC", "HVAC", "", "HVAC"}, {"HVAC_AMB", "HVAC_AMB", "", "HVAC_AMB"}, {"CO2", "CO2", "", "CO2"},
        {"CO", "GAS", "CO", "CO"}, {"C2H6O", "GAS", "C2H6O", "C2H6O"}, {"H2S", "GAS", "H2S", "H2S"},
        {"SO2", "GAS", "SO2", "SO2"}, {"NO2", "GAS", "NO2", "NO2"}, {"O3", "GAS", "O3", "O3"}, {"gas VOC", "GAS", "VOC", "VOC"},
        {"MAG", "MAG", "", "MAG"}, {"EMF", "EMF", "", "EMF"}, {"RAD", "RAD", "", "RAD"}, {"VOC", "VOC", "", "VOC"},
        {"a type with a gas of its own", "LUX", "CO", "LUX"}, {"no gas", "GAS", "", ""}, {"a gas as a type", "SO2", "", ""},
        {"an unknown gas", "GAS", "CO2", ""}, {"an unknown type", "lux", "", ""},
    };
    QVector<ParsedHeader> rows;
    for (const Type &row : types) {
        const QByteArray codes = QByteArray(row.type) + "\",\"" + row.subType;
        rows.append({row.name, parseWith<R, &R::parseIdentification>, "1,3,,,,,,,,,\"" + codes + '"',
                     QByteArray("{'sensorType':'") + row.type + "','sensorSubType':'" + row.subType
                         + "','experimentType':'" + row.text + "'}"});
    }
    return rows;
}

QVector<ParsedHeader> headers()
{
    using R = ZelkResults;
    const auto one = parseWith<R, &R::parseIdentification>;
    const auto two = parseWith<R, &R::parseSensorData>;
    const QByteArray general = "1,3,\"Fundi\xE7\xE3o, 2\",360000,\"21/03/05\",\"14:30:00-12\",\"21/03/05\",\"15:31:01-12\",90,5,\"GAS\"";
    const QByteArray sensor = "2,3,\"ZKS-1\",\"\",\"21/03/05\"";
    return QVector<ParsedHeader>{
               {"identification", one, general + ",\"CO\"\n",
                "{'label':'Fundição, 2','duration':'100:00:00','startTime':'21/03/05,14:30:00-12',"
                "'stopTime':'21/03/05,15:31:01-12','pauseTime':'00:01:30','sampleTime':5,'sensorType':'GAS'}"},
               {"identification, one too few", one, general, ""},
               {"identification, foreign number", one, '2' + general.mid(1) + ",CO", ""},
               {"sensor without a certificate", two, sensor + ",\"14:30:00-12\"",
                "{'sensorSN':'ZKS-1','sensorCertificate':'','sensorCalibrationDate':'21/03/05,14:30:00-12'}"},
               {"sensor, one too few", two, sensor, ""},
               {"sensor, foreign number", two, '1' + sensor.mid(1) + ",\"14:30:00-12\"", ""},
           }
           + typeHeaders() + quantityHeaders() + itemHeaders();
}

QVector<Exchange> exchanges()
{
    const auto read = [](Device &device) { return device.acquireConfiguration(); };
    const auto write = [](Device &device) {
        (void)device.config()->fromJson(R"({"sampleTime":"59:59"})");
        return device.sndConfiguration();
    };
    const auto results = [](Device &device) {
        int refused = DeviceError;
        const QObject watch;
        QObject::connect(&device, &Device::busy, &watch, [&refused] { refused = DeviceBusy; });
        const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(device.productName()));
        experiment->setIndex(1);
        return std::unique_ptr<Results>(device.acquireResults(experiment.get())) ? DeviceSuccessful : refused;
    };
    return {
        {"interval", "AT+VFINTVL?\r\n", byTheEnd, read},
        {"set interval", "AT+VFINTVL=3599\r\n", byTheEnd, write},
        {"set the sensor's calibration", "AT+VFSENCTF=\"CAL \xC7/7\",\"19/10/09,09:37:01-12\"\r\n", calibrationWritten,
         [](Device &device) {
             const Calibration calibration{AtDateTime::fromAtString("19/10/09,09:37:01-12"), "cal ç/7"};
             return device.sndCalibration(&calibration);
         },
         true},
        {"the sensor's calibration", "AT+VFSENCTF?\r\n", calibrationRead,
         [](Device &device) { return device.acquireCalibration(); }},
        {"records", "AT+VFRDXP=1,1,2\r\n", allOrNothing,
         [](Device &device) {
             const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(device.productName()));
             experiment->setIndex(1);
             experiment->setSize(2);
             const QList<QByteArray> lines = device.acquireLogs(experiment.get());
             return !lines.isEmpty() && experiment->parseLogs(lines) == 0 ? 0 : -1;
         }},
        {"averages", "AT+VFXPHDR=3,1\r\n", headerRead, results, true},
        {"items", "AT+VFXPHDR=6,1\r\n", headerRead, results, true},
    };
}

} // namespace

FamilyCase zelkCase()
{
    FamilyCase family{};
    family.product = "ZELK";
    family.ending = ".zlk";
    family.make = [](const QVector<SimulatedExperiment> &memory) { return simulatedZelk(1, memory); };
    family.headersTellOfBusy = true;
    family.closingRecordNeeded = true;
    family.headers = "12345678";
    family.listRefusal = -1;
    family.missing = "{'sampleTime':0,'experimentType':'','quantitiesInfoList':[]}";
    family.configuration = "{'sampleTime':'59:59'}";
    family.written = {"AT+VFINTVL=3599\r\n"};
    family.read = {"AT+VFINTVL?\r\n"};
    family.exchanges = exchanges();
    const QByteArray listed = "{'index':'3','size':'25','date':'21/03/05,14:30:00-12','expName':'Poço, 2',";
    const QByteArray line = "0,3,25,\"21/03/05\",\"14:30:00-12\",\"Po\xE7o, 2\"";
    family.listLines = {
        {"a gas", line + ",\"GAS\",\"CO\"", listed + "'experimentType':'GAS','experimentSubType':'CO'}"},
        {"without a subtype", line + ",\"LUX\"", listed + "'experimentType':'LUX','experimentSubType':''}"},
        {"one too few", line, ""},
    };
    family.records = records();
    family.headerLines = headers();
    return family;
}
