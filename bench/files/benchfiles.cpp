// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving a day at one second, and reading it for the pages: times of the processor as ratios to floors that
// are measured in the same run. Each family is measured in a process of its own, with a time zone set and without.

#include "app/core.h"
#include "bench/days.h"
#include "bench/rows.h"
#include "link/factories.h"
#include "model/experiment.h"
#include "model/results.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int Day = 86400;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

void measureTimes(const QString &name, const QString &path)
{
    constexpr int Repetitions = 5;
    QJsonDocument document;
    const double openFloor = median(Repetitions, [&] {
        const QByteArray content = contentOf(path);
        const QByteArray line = content.left(content.indexOf('\n'));
        const QByteArray hash = QCryptographicHash::hash(line, QCryptographicHash::Md5).toHex();
        if (!content.endsWith(hash))
            qFatal("the file is damaged");
        document = QJsonDocument::fromJson(QByteArray::fromBase64(line));
    });
    const QString copy = path + QLatin1String(".copy");
    const double saveFloor = median(Repetitions, [&] {
        const QByteArray line = document.toJson().toBase64();
        QFile file(copy);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("%s cannot be written", qPrintable(copy));
        file.write(line + '\n' + QCryptographicHash::hash(line, QCryptographicHash::Md5).toHex());
    });
    const double textFloor = median(Repetitions, [&] { (void)document.toJson(QJsonDocument::Compact); });
    document = {};

    Core core;
    row(name + QLatin1String(": open"), openFloor, median(Repetitions, [&] { core.parseFile(path); }), "ms", "<= 1.5");
    const QString saved = path + QLatin1String(".saved") + path.right(4);
    row(name + QLatin1String(": save"), saveFloor, median(Repetitions, [&] {
            if (core.saveExperimentToFile(saved) != 0)
                qFatal("%s cannot be written", qPrintable(saved));
        }), "ms", "<= 0.9");
    // of a logger's measurement the list's word for its kind is not read back
    if (!path.endsWith(QLatin1String(".zlk")) && contentOf(saved) != contentOf(path))
        qFatal("what was saved is not what was opened");

    int size = 0;
    const double first = median(1, [&] { size = core.experiment().size(); });
    row(name + QLatin1String(": text for the pages, first read"), textFloor, first, "ms", "floor: compact toJson");
    constexpr int Reads = 1000;
    const double again = median(1, [&] {
        for (int i = 0; i < Reads; ++i)
            size += core.experiment().size();
    });
    row(name + QLatin1String(": text for the pages, read again"), first, again / Reads, "ms", "<= 0.01");
}

/// A file of many experiments, each of one record: what it costs must grow with their number, not with its square.
void measureGrowth(const QTemporaryDir &folder)
{
    const auto open = [&](int experiments) {
        const QString product = QStringLiteral("THALVEX 4");
        ExperimentChain chain;
        Experiment *last = nullptr;
        for (int i = 0; i < experiments; ++i) {
            Experiment *experiment = FactoryExperiment::create(product);
            if (experiment->parseLogs({"1,1,0,\"21/03/05\",\"14:30:00-12\",24.1,30.2,31.0,25.9,25.6" + QByteArray(32, ',')}) != 0)
                qFatal("a record is refused");
            experiment->setResults(std::unique_ptr<Results>(experiment->newResults()));
            if (last)
                last->append(experiment);
            else
                chain.reset(experiment);
            last = experiment;
        }
        const std::unique_ptr<VfFile> file(FactoryFile::createForSave(product, folder.filePath(QString::number(experiments))));
        const std::unique_ptr<Device> device(FactoryDevice::create(product));
        return median(1, [&] {
            if (!file->save(VfFile::contentFor(device->toJson(), chain.get())))
                qFatal("%s cannot be written", qPrintable(file->fileName()));
            Core core;
            core.parseFile(file->fileName());
            if (core.experiment().isEmpty())
                qFatal("%s cannot be opened", qPrintable(file->fileName()));
        });
    };
    const double few = open(3000);
    row(QStringLiteral("save and open, 30,000 experiments against 3,000"), few, open(30000), "ms", "<= 15");
}

double residentMegabytes()
{
    const QByteArrayList fields = contentOf(QStringLiteral("/proc/self/status")).split('\n');
    for (const QByteArray &field : fields) {
        if (field.startsWith("VmRSS:"))
            return field.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

void measureMemory(const QString &name, const QString &path)
{
    const double text = static_cast<double>(contentOf(path).indexOf('\n')) * 3 / 4 / 1024 / 1024;
    Core core;
    const double before = residentMegabytes();
    core.parseFile(path);
    row(name + QLatin1String(": memory after opening, against the JSON text"), text, residentMegabytes() - before, "MB",
        "<= 1.2");
}

int runChild(const QStringList &arguments, const QByteArray &zone)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("TZ"));
    if (!zone.isEmpty())
        environment.insert(QStringLiteral("TZ"), QString::fromLatin1(zone));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished(-1);
    return child.exitCode();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 4) {
        (arguments[1] == QLatin1String("times") ? measureTimes : measureMemory)(arguments[2], arguments[3]);
        return 0;
    }
    const QTemporaryDir folder;
    int failures = 0;
    heading();
    measureGrowth(folder);
    for (const Subject &subject : subjects()) {
        const QString path = fileOf(subject, {everySecond(Day)}, folder);
        for (const char *zone : {"America/Sao_Paulo", ""}) {
            const QString name = subject.name() + QLatin1String(*zone ? "" : ", TZ not set");
            failures += runChild({QStringLiteral("times"), name, path}, zone);
        }
        failures += runChild({QStringLiteral("memory"), subject.name(), path}, "America/Sao_Paulo");
        if (!subject.severalInFile)
            continue;
        const QString ten = fileOf(subject, QVector<SimulatedExperiment>(10, everySecond(Day / 10)), folder);
        failures += runChild({QStringLiteral("times"), subject.name() + QLatin1String(", ten of 8,640"), ten},
                             "America/Sao_Paulo");
    }
    return failures;
}
