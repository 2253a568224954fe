// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/days.h"

#include "app/core.h"
#include "link/products.h"
#include "simulator/simulatedinstrument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>

QString Subject::product() const
{
    return QString::fromLatin1(instrument({})->identity().product);
}

QString Subject::name() const
{
    return expansions > 0 ? product() + QStringLiteral(", %1 expansions").arg(expansions) : product();
}

QVector<Subject> subjects()
{
    QVector<Subject> all;
    for (const SimulatedFamily &family : families()) {
        const QByteArray name = family.name;
        all.append({family, name == "thalvex4" ? 3 : 0, name != "thalvex2" && name != "ardel2"});
    }
    return all;
}

SimulatedExperiment everySecond(int records)
{
    SimulatedExperiment measured;
    measured.size = records;
    measured.interval = 1;
    measured.type = "HVAC_AMB"; // of the logger: eight quantities
    return measured;
}

QString fileOf(const Subject &subject, const QVector<SimulatedExperiment> &measurements, const QTemporaryDir &folder)
{
    const QString product = subject.product();
    const QString path = folder.filePath(QStringLiteral("%1 of %2").arg(measurements.size()).arg(measurements.first().size)
                                         + QLatin1String(productByName(product)->ending));
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // a download tells its speed
    SimulatedInstrument instrument(subject.instrument(measurements));
    Core core([&] { return QStringList(instrument.portName()); });
    core.findDevices();
    QJsonArray places;
    for (int place = 0; place < measurements.size(); ++place)
        places.append(place);
    if (core.createDevice(0) != 0 || core.findExperiments() != 0
        || core.createExperiment(QString::fromUtf8(QJsonDocument(places).toJson())) != 0 || core.saveExperimentToFile(path) != 0)
        qFatal("no file of %s", qPrintable(product));
    return path;
}
