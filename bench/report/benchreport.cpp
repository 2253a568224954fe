// SPDX-License-Identifier: GPL-3.0-or-later
// Speed of reports, as ratios to floors that are measured in the same run. Times are processor times, medians.
#include "app/fonts.h"
#include "model/log.h"
#include "nembra/nembralog.h"
#include "nembra/nembraprinter.h"
#include "report/fonts.h"
#include "report/timechart.h"
#include "tests/report/measurements.h"
#include "thalvex2/thalvex2log.h"
#include "thalvex2/thalvex2printer.h"
#include "thalvex4/thalvex4printer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRawFont>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

namespace {

constexpr int day = 86400;
constexpr int rowsPerPage = 104;

double median(int repetitions, const std::function<void()> &work)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const std::clock_t start = std::clock();
        work();
        times.push_back(1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void heading()
{
    std::printf("%-52s | %11s | %11s | %6s | %s\n", "what", "floor", "measured", "ratio", "goal");
}

void row(const QString &what, double floor, double measured, const char *unit, const char *goal)
{
    std::printf("%-52s | %8.2f %s | %8.2f %s | %6.2f | %s\n", qPrintable(what), floor, unit, measured, unit,
                measured / floor, goal);
}

ExperimentChain measurement(ExperimentChain (*measure)(const Measurements::Course &), int samples, int expansions = 0)
{
    Measurements::Course course;
    course.samples = samples;
    course.interval = 1;
    course.start = QDateTime(QDate(2019, 10, 9), QTime(0, 0), Qt::OffsetFromUTC, -3 * 3600);
    course.expansions = expansions;
    return measure(course);
}

ExperimentChain levelsOf(int samples)
{
    return measurement([](const Measurements::Course &course) { return Measurements::nembra({course}); }, samples);
}

const char *const table[] = {"ckbTable",          "ckbDryTempTable", "ckbWetTempTable",
                             "ckbGlobeTempTable", "ckbIBUTGiTable",  "ckbIBUTGeTable"};
const char *const chart[] = {"ckbChart",          "ckbDryTempChart", "ckbWetTempChart",
                             "ckbGlobeTempChart", "ckbIBUTGiChart",  "ckbIBUTGeChart"};
const char *const levelChart[] = {"ckbChartLvl"};

template <class Keys> QJsonObject on(const Keys &keys)
{
    QJsonObject choices;
    for (const char *key : keys)
        choices.insert(QLatin1String(key), true);
    return choices;
}

/// Prints the report of \a first to \a path.
template <class Printer> void print(Experiment *first, QJsonObject choices, const QString &path)
{
    Printer printer;
    choices.insert(QStringLiteral("fileName"), path);
    printer.setParameters(QString::fromUtf8(QJsonDocument(choices).toJson()));
    printer.setExperiment(first);
    if (printer.printReport() != 0)
        qFatal("the report can't be written");
    if (printer.endPainting() != 0)
        qFatal("the report can't be completed");
}

QStringList cellsOf(const Log *log, const Thalvex2Printer *)
{
    const auto *sample = static_cast<const Thalvex2Log *>(log);
    return {sample->dryTemperature(), sample->wetTemperature(), sample->globeTemperature(), sample->IBUTGi(),
            sample->IBUTGe()};
}

QStringList cellsOf(const Log *log, const NembraPrinter *)
{
    return {static_cast<const NembraLog *>(log)->level()};
}

/// The texts of the rows of a log table of \a Printer, and nothing but a glyph run for each of them.
template <class Printer> double glyphRuns(const Experiment *experiment, int repetitions, const QString &path)
{
    QVector<QStringList> rows;
    const QList<Log *> logs = experiment->logs();
    for (const Log *log : logs)
        rows.append(QStringList{QStringLiteral("%1").arg(rows.size() + 1, 3, 10, QLatin1Char('0')),
                                log->registerDate().toString(QStringLiteral("hh:mm:ss"))} +
                    cellsOf(log, static_cast<const Printer *>(nullptr)));
    return median(repetitions, [&] {
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setResolution(96);
        printer.setOutputFileName(path);
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

/// Tells what a row of the log table costs the report of \a experiment, in microseconds.
template <class Printer>
void tableRow(const QString &what, Experiment *experiment, double floor, int repetitions, int units, const QString &path)
{
    const double bare = median(repetitions, [&] { print<Printer>(experiment, {}, path); });
    const double whole = median(repetitions, [&] { print<Printer>(experiment, on(table), path); });
    const int samples = experiment->size();
    row(what, 1000 * floor / samples, 1000 * (whole - bare) / samples / units, "us", "<= 1.4");
}

void benchTable(const QString &path)
{
    for (const int samples : {10000, day}) {
        const int repetitions = samples == day ? 3 : 5;
        const ExperimentChain experiment = measurement(Measurements::thalvex2, samples);
        const double floor = glyphRuns<Thalvex2Printer>(experiment.get(), repetitions, path);
        tableRow<Thalvex2Printer>(QStringLiteral("log table, a row of 7 cells, %1 rows").arg(samples), experiment.get(),
                                  floor, repetitions, 1, path);
        if (samples == day)
            continue;
        const ExperimentChain units = measurement(Measurements::thalvex4, samples, 3);
        tableRow<Thalvex4Printer>(QStringLiteral("the same of the larger meter, 4 units"), units.get(), floor,
                                  repetitions, 4, path);
    }
    const ExperimentChain levels = levelsOf(day);
    tableRow<NembraPrinter>(QStringLiteral("the same of levels, a row of 3 cells, %1 rows").arg(day), levels.get(),
                            glyphRuns<NembraPrinter>(levels.get(), 3, path), 3, 1, path);
}

void benchChart(const QString &path)
{
    const ExperimentChain few = measurement(Measurements::thalvex2, 1000);
    const ExperimentChain many = measurement(Measurements::thalvex2, day);
    const double floor = median(9, [&] { print<Thalvex2Printer>(few.get(), on(chart), path); });
    const double measured = median(5, [&] { print<Thalvex2Printer>(many.get(), on(chart), path); });
    row(QStringLiteral("report with a chart of 5 curves, 86,400 samples"), floor, measured, "ms",
        "<= 3 (floor: 1,000)");
    std::printf("%-52s | %11s | %8.2f MB | %6s | <= 1 MB\n", "its file", "", double(QFileInfo(path).size()) / 1e6, "");
    const ExperimentChain fewOfUnits = measurement(Measurements::thalvex4, 1000, 3);
    const ExperimentChain manyOfUnits = measurement(Measurements::thalvex4, day, 3);
    const double floorOfUnits = median(5, [&] { print<Thalvex4Printer>(fewOfUnits.get(), on(chart), path); });
    const double ofUnits = median(3, [&] { print<Thalvex4Printer>(manyOfUnits.get(), on(chart), path); });
    row(QStringLiteral("the same of the larger meter, 4 units"), floorOfUnits, ofUnits, "ms", "<= 3 (floor: 1,000)");
    const ExperimentChain fewLevels = levelsOf(1000);
    const ExperimentChain manyLevels = levelsOf(day);
    const double floorOfLevels = median(9, [&] { print<NembraPrinter>(fewLevels.get(), on(levelChart), path); });
    const double ofLevels = median(5, [&] { print<NembraPrinter>(manyLevels.get(), on(levelChart), path); });
    row(QStringLiteral("the same of levels, 1 curve"), floorOfLevels, ofLevels, "ms", "<= 3 (floor: 1,000)");
}

/// The page with five curves of noise, drawn with all points or with few.
QImage picture(int columns, const QString &path)
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setResolution(96);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&printer);
    TimeChart curves(ReportFont::sans(9));
    curves.setColumns(columns);
    const ExperimentChain experiment = measurement(Measurements::thalvex2, day);
    for (int curve = 0; curve < 5; ++curve) {
        QVector<QPointF> points;
        quint32 noise = 1;
        const QList<Log *> logs = experiment->logs();
        for (const Log *log : logs) {
            noise = noise * 1664525U + 1013904223U;
            const double value = static_cast<const Thalvex2Log *>(log)->dryTemperature().toDouble() + 3 * curve;
            points.append({double(log->registerDate().toMSecsSinceEpoch()), value + double(noise >> 24) / 512});
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

void benchPicture(const QString &path)
{
    const QImage reduced = picture(1200, path);
    const QImage full = picture(day, path);
    double sum = 0;
    for (int y = 0; y < full.height(); ++y) {
        for (int x = 0; x < full.width(); ++x)
            sum += std::abs(qGray(full.pixel(x, y)) - qGray(reduced.pixel(x, y)));
    }
    const double percent = 100 * sum / 255 / full.width() / full.height();
    std::printf("%-52s | %11s | %9.3f %% | %6s | <= 0.2 %%\n", "chart picture against all points, 150 dpi", "", percent,
                "");
}

void benchSections(const QString &path)
{
    const ExperimentChain experiment = measurement(Measurements::thalvex2, 1000);
    const auto time = [&](const QJsonObject &choices) {
        return median(9, [&] { print<Thalvex2Printer>(experiment.get(), choices, path); });
    };
    QJsonObject notes = on(std::vector<const char *>{"obsEnable"});
    notes.insert(QStringLiteral("obsText"), QStringLiteral("Doors open, water at will. ").repeated(20));
    using Keys = std::vector<const char *>;
    const std::pair<const char *, QJsonObject> sections[] = {
        {"results", on(Keys{"ckbMaxMin", "ckbAvg"})},
        {"calibration", on(Keys{"ckbCalibration"})},
        {"chart", on(chart)},
        {"notes", notes},
        {"signature", on(Keys{"repInfoEnable"})},
        {"log table", on(table)},
        {"file of values", on(Keys{"ckbCsv"})},
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
    const QString path = folder.filePath(QStringLiteral("report.pdf"));
    heading();
    benchTable(path);
    benchChart(path);
    benchPicture(path);
    benchSections(path);
    return 0;
}
