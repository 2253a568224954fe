// SPDX-License-Identifier: GPL-3.0-or-later
// Speed of reports, as ratios to floors that are measured in the same run. Times are processor times, medians.
#include "app/fonts.h"
#include "bench/days.h"
#include "bench/rows.h"
#include "link/device.h"
#include "link/factories.h"
#include "model/log.h"
#include "model/vffile.h"
#include "report/fonts.h"
#include "report/timechart.h"
#include "report/vfprinter.h"

#include <QApplication>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRawFont>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int day = 86400;
constexpr int rowsPerPage = 104;

using Keys = std::vector<const char *>;

/// What a family's report has of its records.
struct Report {
    const char *family;
    int units;    ///< tables and charts of the larger meters
    int curves;   ///< of one chart
    Keys table;   ///< switches of the log table
    Keys chart;   ///< switches of the charts over time
    Keys cells;   ///< keys of a record's values in the table
    QJsonObject more = {}; ///< choices that go with both
};

const Keys heatTable = {"ckbTable",          "ckbDryTempTable", "ckbWetTempTable",
                        "ckbGlobeTempTable", "ckbIBUTGiTable",  "ckbIBUTGeTable"};
const Keys heatChart = {"ckbChart",          "ckbDryTempChart", "ckbWetTempChart",
                        "ckbGlobeTempChart", "ckbIBUTGiChart",  "ckbIBUTGeChart"};
const Keys heatCells = {"dryTemperature", "wetTemperature", "globeTemperature", "IBUTGi", "IBUTGe"};

const QJsonArray eight{0, 1, 2, 3, 4, 5, 6, 7};

const Report reports[] = {
    {"thalvex2", 1, 5, heatTable, heatChart, heatCells},
    {"thalvex4", 4, 5, heatTable, heatChart, heatCells},
    {"nembra", 1, 1, {"ckbTable"}, {"ckbChartLvl"}, {"level"}},
    {"ardel2", 1, 1, {"ckbTable"}, {"ckbChartLvl", "ckbChartHisto"}, {"level"}},
    {"lomtrix", 1, 4, {"ckbTable"}, {"ckbChart"}, {"awX", "awY", "awZ", "vdvX", "vdvY", "vdvZ", "fcX", "fcY", "fcZ", "amr"}},
    {"zelk", 1, 8, {"ckbTable"}, {"ckbChart"}, {"physicalQuantitiesList"},
     {{QStringLiteral("selectedTableColumnsList"), eight}, {QStringLiteral("selectedChartsList"), eight}}},
};

/// A downloaded measurement and the printer of its family.
class Printed
{
public:
    Printed(const Subject &subject, int samples, const QTemporaryDir &folder)
        : m_product(subject.product()), m_path(folder.filePath(QStringLiteral("report.pdf")))
    {
        const std::unique_ptr<VfFile> file(FactoryFile::createForOpen(fileOf(subject, {everySecond(samples)}, folder)));
        if (!file->open(QIODevice::ReadOnly))
            qFatal("no file");
        const QByteArray content = file->readAll();
        m_device.reset(file->parseDevice(content));
        m_chain.reset(file->parseExperiment(content));
    }

    const Experiment *experiment() const { return m_chain.get(); }
    const QString &path() const { return m_path; }

    /// Prints the report with \a choices.
    void print(QJsonObject choices) const
    {
        const std::unique_ptr<VfPrinter> printer(FactoryPrinter::create(m_product));
        choices.insert(QStringLiteral("fileName"), m_path);
        printer->setParameters(QString::fromUtf8(QJsonDocument(choices).toJson()));
        printer->setExperiment(m_chain.get());
        if (printer->printReport() != 0)
            qFatal("the report can't be written");
        if (printer->endPainting() != 0)
            qFatal("the report can't be completed");
    }

private:
    QString m_product;
    QString m_path;
    std::unique_ptr<Device> m_device;
    ExperimentChain m_chain;
};

QJsonObject on(const Keys &keys, QJsonObject choices = {})
{
    for (const char *key : keys)
        choices.insert(QLatin1String(key), true);
    return choices;
}

/// The texts of the rows of the log table, and nothing but a glyph run for each of them.
double glyphRuns(const Printed &printed, const Report &report, int repetitions)
{
    QVector<QStringList> rows;
    const QList<Log *> logs = printed.experiment()->logs();
    for (const Log *log : logs) {
        QJsonObject record = log->toJson();
        if (report.units > 1)
            record = record[QLatin1String("enviromentalFactorsList")].toArray().first().toObject();
        QStringList texts{QStringLiteral("%1").arg(rows.size() + 1, 3, 10, QLatin1Char('0')),
                          log->registerDate().toString(QStringLiteral("hh:mm:ss"))};
        for (const char *cell : report.cells) {
            const QJsonValue value = record[QLatin1String(cell)];
            texts += value.isArray() ? value.toVariant().toStringList() : QStringList(value.toString());
        }
        rows.append(texts);
    }
    return median(repetitions, [&] {
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setResolution(96);
        printer.setOutputFileName(printed.path());
        printer.setPageSize(QPageSize(QPageSize::A4));
        QPainter painter(&printer);
        const QRawFont font = QRawFont::fromFont(ReportFont::mono(8));
        const qreal advance = QFontMetricsF(ReportFont::mono(8), &printer).horizontalAdvance(QLatin1Char('0'));
        for (int i = 0; i < rows.size(); ++i) {
            if (i > 0 && i % rowsPerPage == 0)
                printer.newPage();
            const int line = i % rowsPerPage;
            qreal x = line < rowsPerPage / 2 ? 10 : 312;
            for (const QString &text : qAsConst(rows[i])) {
                QGlyphRun run;
                run.setRawFont(font);
                const QVector<quint32> glyphs = font.glyphIndexesForString(text);
                QVector<QPointF> positions;
                for (int glyph = 0; glyph < glyphs.size(); ++glyph)
                    positions.append({glyph * advance, 0});
                run.setGlyphIndexes(glyphs);
                run.setPositions(positions);
                painter.drawGlyphRun({x, 40.0 + 17 * (line % (rowsPerPage / 2))}, run);
                x += 42;
            }
        }
    });
}

/// What a row of the log table costs the report, in microseconds, and what a chart of a day costs against a short one.
void benchFamily(const Report &report, const Subject &subject, const QTemporaryDir &folder)
{
    const Printed few(subject, 1000, folder);
    const Printed many(subject, day, folder);
    if (!report.table.empty()) {
        const double floor = glyphRuns(many, report, 3);
        const double bare = median(3, [&] { many.print(report.more); });
        const double whole = median(3, [&] { many.print(on(report.table, report.more)); });
        row(QStringLiteral("%1: log table, a row").arg(subject.name()),
            1000 * floor / day, 1000 * (whole - bare) / day / report.units, "us", "<= 1.4");
    }
    const double floor = median(9, [&] { few.print(on(report.chart, report.more)); });
    const double measured = median(5, [&] { many.print(on(report.chart, report.more)); });
    row(QStringLiteral("%1: report with its chart, %2 curves").arg(subject.name()).arg(report.curves * report.units), floor,
        measured, "ms", "<= 3 (floor: 1,000)");
    std::printf("%-64s | %12s | %9.3f MB | %6s | <= 1 MB\n", "its file", "",
                double(QFileInfo(many.path()).size()) / 1e6 / report.units, "");
}

/// The page with five curves of noise, drawn with all points or with few.
QImage picture(const Printed &printed, int columns)
{
    const QString &path = printed.path();
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setResolution(96);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&printer);
    TimeChart curves(ReportFont::sans(9));
    curves.setColumns(columns);
    for (int curve = 0; curve < 5; ++curve) {
        QVector<QPointF> points;
        quint32 noise = 1;
        const QList<Log *> logs = printed.experiment()->logs();
        for (const Log *log : logs) {
            noise = noise * 1664525U + 1013904223U;
            const double value = log->toJson()[QLatin1String("dryTemperature")].toString().toDouble() + 3 * curve;
            points.append({double(log->moment().toMSecsSinceEpoch()), value + double(noise >> 24) / 512});
        }
        curves.addCurve(QStringLiteral("T<sub>Dry</sub>"), points);
    }
    curves.draw(&painter, 0, 0, QSizeF(599, 300), 1);
    painter.end();
    QProcess render;
    render.start(QStringLiteral("pdftoppm"),
                 {QStringLiteral("-png"), QStringLiteral("-gray"), QStringLiteral("-r"), QStringLiteral("150"), path});
    render.waitForFinished(300000);
    return QImage::fromData(render.readAllStandardOutput()).convertToFormat(QImage::Format_Grayscale8);
}

void benchPicture(const Printed &printed)
{
    const QImage reduced = picture(printed, 1200);
    const QImage full = picture(printed, day);
    double sum = 0;
    for (int y = 0; y < full.height(); ++y) {
        for (int x = 0; x < full.width(); ++x)
            sum += std::abs(qGray(full.pixel(x, y)) - qGray(reduced.pixel(x, y)));
    }
    const double percent = 100 * sum / 255 / full.width() / full.height();
    std::printf("%-64s | %12s | %10.3f %% | %6s | <= 0.2 %%\n", "chart picture against all points, 150 dpi", "", percent,
                "");
}

void benchSections(const Printed &printed)
{
    const auto time = [&](const QJsonObject &choices) { return median(9, [&] { printed.print(choices); }); };
    QJsonObject notes = on({"obsEnable"});
    notes.insert(QStringLiteral("obsText"), QStringLiteral("Doors open, water at will. ").repeated(20));
    const std::pair<const char *, QJsonObject> sections[] = {
        {"results", on({"ckbMaxMin", "ckbAvg"})},
        {"calibration", on({"ckbCalibration"})},
        {"chart", on(heatChart)},
        {"notes", notes},
        {"signature", on({"repInfoEnable"})},
        {"log table", on(heatTable)},
        {"file of values", on({"ckbCsv"})},
    };
    const double bare = time({});
    std::printf("report of 1,000 samples, ms: head, identification, experiment and foot %.1f", bare);
    for (const auto &section : sections)
        std::printf("; %s %.1f", section.first, std::max(time(section.second) - bare, 0.0));
    std::printf("\n");
}

} // namespace

int main(int argc, char *argv[])
{
    // The same in every run: no display, a known zone, 96 dots to the inch.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("TZ", "America/Sao_Paulo");
    QApplication application(argc, argv);
    loadApplicationFonts();
    const QTemporaryDir folder;
    heading();
    for (const Report &report : reports) {
        for (const Subject &subject : subjects()) {
            if (qstrcmp(subject.family.name, report.family) == 0)
                benchFamily(report, subject, folder);
        }
    }
    const Subject simplest = subjects().first();
    benchPicture({simplest, day, folder});
    benchSections({simplest, 1000, folder});
    return 0;
}
