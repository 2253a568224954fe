// SPDX-License-Identifier: GPL-3.0-or-later
// A whole download of a small experiment with everything that can happen to its bytes on the way.

#include "tests/app/pluggedcore.h"
#include "tests/families/familycase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstdio>

namespace {

/// The instrument of a family with a single record, and without what else would make it long.
std::unique_ptr<VirtualInstrument> small(int family)
{
    SimulatedExperiment experiment;
    experiment.octaves = "Off";
    return familyCases()[family].make({experiment});
}

/// The bytes that a download takes, counted from the plugging in: the first behind those of the session's beginning.
std::pair<qint64, qint64> bytesOfDownload(int family)
{
    PluggedCore plugged(small(family));
    if (plugged.begin() != 0)
        return {0, 0};
    const qint64 first = plugged.instrument.bytesSent();
    if (plugged.core.createExperiment("[0]") != 0)
        return {0, 0};
    return {first, plugged.instrument.bytesSent()};
}

/// What goes wrong when the plug is pulled behind byte `count` of the download's; empty when all is as it should be.
QByteArray unpluggedBehind(qint64 count, int family)
{
    // The system gives a name away again while another process has yet to let go of the port that was pulled out.
    std::vector<std::unique_ptr<PluggedCore>> tries;
    do
        tries.push_back(std::make_unique<PluggedCore>(small(family)));
    while (tries.back()->begin() != 0 && tries.size() < 100);
    PluggedCore &plugged = *tries.back();
    plugged.instrument.fault(Fault::unplugged().afterBytes(count));
    const int code = plugged.core.createExperiment("[0]");
    const QByteArrayList told = plugged.log.take();
    if (code != DeviceDisconnected)
        return "code " + QByteArray::number(code);
    if (told != QByteArrayList{"deviceDisconnected", "devListUpdate", "experimentListUpdate"})
        return "signals " + told.join(' ');
    return plugged.core.experiment().isEmpty() && plugged.found() + plugged.listed() == 0 ? "" : "something is left";
}

QJsonObject current(Core &core)
{
    return QJsonDocument::fromJson(core.experiment().toUtf8()).object();
}

/// The experiments of the chain from the current one on, as the pages read them, but for what files do not give back.
QVector<QJsonObject> members(Core &core)
{
    QVector<QJsonObject> members{current(core)};
    for (core.nextExp(); current(core)["eventIndex"] != members.last()["eventIndex"]; core.nextExp())
        members.append(current(core));
    for (QJsonObject &member : members) {
        member.remove("experimentType");
        member.remove("experimentSubType");
    }
    return members;
}

/// The numbers that \a texts are.
QVector<double> numbers(const QJsonValue &texts)
{
    QVector<double> numbers;
    for (const QJsonValue &text : texts.toArray())
        numbers.append(text.toString().toDouble());
    return numbers;
}

/// Every `step`-th byte from `first` on, in a process of its own: each costs half a second of silence.
int slice(const QStringList &arguments)
{
    const int family = arguments[0].toInt();
    for (qint64 count = arguments[1].toLongLong(); count < arguments[2].toLongLong(); count += arguments[3].toInt()) {
        const QByteArray fault = unpluggedBehind(count, family);
        std::printf("%lld %s\n", static_cast<long long>(count), fault.constData());
    }
    return 0;
}

} // namespace

class TestAppDownload : public QObject
{
    Q_OBJECT

private slots:
    void splitAtEveryPosition_data()
    {
        QTest::addColumn<int>("family");
        for (int family = 0; family < familyCases().size(); ++family)
            QTest::newRow(familyCases()[family].product) << family;
    }
    void splitAtEveryPosition()
    {
        QFETCH(int, family);
        PluggedCore plugged(familyCases()[family].make(workingDays()));
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(plugged.core.createExperiment("[1]"), 0);
        const QString whole = plugged.core.experiment();
        for (int position = 1; position < 200; ++position) {
            plugged.instrument.clearFaults();
            plugged.instrument.fault(Fault::split(position, 1));
            QCOMPARE(plugged.core.createExperiment("[1]"), 0);
            QCOMPARE(plugged.core.experiment(), whole);
        }
    }

    void savesAChain_data() { splitAtEveryPosition_data(); }
    void savesAChain()
    {
        QFETCH(int, family);
        const FamilyCase &kind = familyCases()[family];
        const QTemporaryDir folder;
        PluggedCore plugged(kind.make(workingDays()));
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(plugged.core.createExperiment("[0,2,3]"), 0);
        const QVector<QJsonObject> downloaded = members(plugged.core);
        QCOMPARE(downloaded.size(), 3);
        const QString path = folder.filePath("chain") + kind.ending;
        QCOMPARE(plugged.core.saveExperimentToFile(path), 0);

        Core reader([] { return QStringList(); });
        QSignalSpy position(&reader, &Core::experimentUpdated);
        reader.parseFile(path);
        // the files of the smaller heat-stress meter and of the dosimeter show the first
        const bool first = QByteArrayList{".tvx", ".adl"}.contains(kind.ending);
        QCOMPARE(position.value(0).value(0).toInt(), first ? -3 : -2);
        QCOMPARE(members(reader), first ? downloaded.mid(0, 1) : downloaded);
        const auto points = reader.expCompList().value<QList<QObject *>>(); // owned by who reads them
        const int count = points.size();
        qDeleteAll(points);
        QCOMPARE(count, kind.hasMeasuringPoints ? 3 : 0);
    }

    /// Values stand in the places that the module's own summary gives them, of sizes that do not divide by ten too.
    void everySensor_data()
    {
        QTest::addColumn<SimulatedExperiment>("measured");
        for (const SimulatedExperiment &measured : ::everySensor())
            QTest::addRow("%s %s, %d", measured.type.data(), measured.subType.data(), measured.size) << measured;
    }
    void everySensor()
    {
        QFETCH(SimulatedExperiment, measured);
        PluggedCore plugged(simulatedZelk(1, {measured}));
        QCOMPARE(plugged.begin(), 0);
        QCOMPARE(plugged.core.createExperiment("[0]"), 0);
        const QJsonObject experiment = current(plugged.core);
        const QJsonObject results = experiment["results"].toObject();
        const QJsonArray logs = experiment["logList"].toArray();
        QCOMPARE(logs.size(), measured.size);
        QVector<double> most = numbers(logs[0].toObject()["physicalQuantitiesList"]);
        QVector<double> least = most;
        QVector<double> mean(most.size(), 0);
        for (const QJsonValue &log : logs) {
            const QVector<double> values = numbers(log.toObject()["physicalQuantitiesList"]);
            QCOMPARE(values.size(), most.size());
            for (int i = 0; i < values.size(); ++i) {
                most[i] = qMax(most[i], values[i]);
                least[i] = qMin(least[i], values[i]);
                mean[i] += values[i] / logs.size();
            }
        }
        QCOMPARE(results["quantitiesInfoList"].toArray().size(), most.size());
        QCOMPARE(numbers(results["maxList"]), most);
        QCOMPARE(numbers(results["minList"]), least);
        const QVector<double> told = numbers(results["averageList"]);
        QCOMPARE(told.size(), mean.size());
        for (int i = 0; i < mean.size(); ++i)
            QVERIFY(std::abs(told[i] - mean[i]) < 0.00501);
        const QByteArray type = measured.type == "GAS" ? measured.subType : measured.type;
        QCOMPARE(results["experimentType"].toString(), QString(type));
    }

    /// Each byte costs half a second: of sisters whose answers are alike the one with more of them.
    void unpluggedBehindEachByte_data()
    {
        QTest::addColumn<int>("family");
        for (int family = 0; family < familyCases().size(); ++family) {
            if (familyCases()[family].product != QByteArray("NEMBRA"))
                QTest::newRow(familyCases()[family].product) << family;
        }
    }
    void unpluggedBehindEachByte()
    {
        QFETCH(int, family);
        const auto [first, end] = bytesOfDownload(family);
        QVERIFY(end - first > 200);
        constexpr int Slices = 24; // most of their time is silence, so that they share the processors well
        std::vector<std::unique_ptr<QProcess>> processes;
        for (int i = 0; i < Slices; ++i) {
            processes.push_back(std::make_unique<QProcess>());
            processes.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            processes.back()->start(QCoreApplication::applicationFilePath(),
                                    {"slice", QString::number(family), QString::number(first + i), QString::number(end),
                                     QString::number(Slices)});
        }
        QByteArrayList lines;
        for (const auto &process : processes) {
            QVERIFY(process->waitForFinished(300000));
            QCOMPARE(process->exitStatus(), QProcess::NormalExit);
            lines += process->readAllStandardOutput().trimmed().split('\n');
        }
        qint64 seen = 0;
        for (const QByteArray &line : qAsConst(lines)) {
            const QByteArrayList words = line.trimmed().split(' ');
            QVERIFY2(words.size() == 1, line.constData());
            seen += words.first().isEmpty() ? 0 : 1;
        }
        QCOMPARE(seen, end - first);
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == "slice")
        return slice(arguments.mid(2));
    TestAppDownload test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_app_download.moc"
