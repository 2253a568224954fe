// SPDX-License-Identifier: GPL-3.0-or-later
// Speed of the results pages in the suite's own window, as ratios to floors that are measured in the same run.
// Times of the processor until the next frame is on screen, medians; of pages against pages the better of the runs in
// turn, for these differ by less than a busy machine does. Wants a display, and TZ set to one value.
#include "app/core.h"
#include "app/fonts.h"
#include "app/suite.h"
#include "bench/days.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QEventLoop>
#include <QJsonDocument>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>

namespace {

constexpr int day = 86400;
constexpr int repetitions = 5;

double median(int times, const std::function<double()> &measure)
{
    std::vector<double> results;
    for (int i = 0; i < times; ++i)
        results.push_back(measure());
    std::sort(results.begin(), results.end());
    return results[results.size() / 2];
}

/// Milliseconds of processor that \a work takes.
double taken(const std::function<void()> &work)
{
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Medians of two measures taken in turn, so that what else the machine does meets both.
std::pair<double, double> inTurn(const std::function<double()> &floor, const std::function<double()> &measure)
{
    std::vector<double> floors;
    const double measured = median(repetitions, [&] {
        floors.push_back(floor());
        return measure();
    });
    std::sort(floors.begin(), floors.end());
    return {floors[floors.size() / 2], measured};
}

void row(const char *what, double floor, double measured, const char *goal, const char *unit = "ms")
{
    std::printf("%-58s | %9.2f %-2s | %9.2f %-2s | %6.2f | %s\n", what, floor, unit, measured, unit, measured / floor,
                goal);
    std::fflush(stdout);
}

/// The results page of a family: where it has its table and a chart.
struct Page {
    const char *family;
    const char *view;       ///< what the page looks at, as its own script says it
    int table, chart;       ///< their tabs
    const char *curves;     ///< the chart's name in the view
};

const Page pages[] = {
    {"thalvex2", "viewItem", 0, 1, "temperatureChart"},
    {"thalvex4", "viewItem.currentView", 0, 1, "temperatureChart"},
    {"nembra", "viewItem", 2, 0, "levelChart"},
    {"nembraplus", "viewItem", 2, 0, "levelChart"},
    {"ardel2", "viewItem", 1, 1, "noiseChart"}, // its table stands beside the tabs
    {"lomtrix", "viewItem", 0, 1, "accelerationChart"},
    {"zelk", "viewItem", 0, 1, "charts.currentView.chart"},
};

/// The suite's window with one measurement open.
class Bench
{
public:
    Bench()
    {
        loadMainWindow(m_engine, core);
        window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
        if (!window)
            qFatal("no window");
        root = window->contentItem()->childItems().value(0);
        settle();
    }

    QQuickItem *page(const QString &product, QObject *below)
    {
        for (QQuickItem *item : below->findChildren<QQuickItem *>()) {
            if (item->property("productName") == product
                && item->metaObject()->indexOfSignal("showResults()") >= 0)
                return item;
        }
        qFatal("no page of %s", qPrintable(product));
    }

    /// What \a script gives with \a page as scope.
    QVariant run(QObject *scope, const QByteArray &script)
    {
        QQmlExpression expression(qmlContext(scope), scope, QString::fromUtf8(script));
        const QVariant result = expression.evaluate();
        if (expression.hasError())
            qFatal("%s", qPrintable(expression.error().toString()));
        return result;
    }

    void settle(int ms = 150)
    {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    }

    /// Milliseconds of \a work until its outcome is on screen.
    double untilFrame(const std::function<void()> &work)
    {
        settle();
        return taken([&] {
            work();
            QEventLoop loop;
            QObject::connect(window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit, Qt::QueuedConnection);
            window->update();
            loop.exec();
        });
    }

    void open(const QString &file)
    {
        core.parseFile(file);
        goOn();
    }

    double show()
    {
        return untilFrame([this] {
            emit core.experimentUpdated(-3);
            goOn();
        });
    }

    /// A vibration meter asks how long the worker was exposed before it shows results.
    void goOn()
    {
        if (core.devName() == QLatin1String("LOMTRIX"))
            core.refreshPartialResults(QStringLiteral(R"([{"event": 1, "exposureTime": "02:00"}])"));
    }

    double parse()
    {
        QJSValue parser = m_engine.evaluate(QStringLiteral("(function (text) { return JSON.parse(text).logList.length })"));
        return taken([&] { parser.call({QJSValue(core.experiment())}); });
    }

    Core core;
    QQuickWindow *window = nullptr;
    QQuickItem *root = nullptr;

private:
    QQmlApplicationEngine m_engine;
};

/// "Open file" until the chart is on screen, against reading the file and the text once.
void openFile(Bench &bench, const QString &name)
{
    const auto [floor, measured] = inTurn([&] {
        return bench.parse() + taken([&] {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly))
                qFatal("no file");
            const QByteArray text = file.readAll().split('\n').value(0);
            (void)QCryptographicHash::hash(text, QCryptographicHash::Md5);
            (void)QJsonDocument::fromJson(QByteArray::fromBase64(text));
        });
    }, [&] { return bench.untilFrame([&] { bench.open(name); }); });
    row("from a file to the painted chart, 86,400 records", floor, measured, "<= 5");
}

/// As many results pages as the suite will have, all hearing of an experiment: five more, gone in every other turn.
void sisterPages(Bench &bench, QObject *page, const char *what)
{
    QQmlComponent sister(qmlEngine(bench.root));
    sister.setData("import \"qrc:/thalvex4/qml\"\nPageThalvex4Results { visible: false }", QUrl());
    std::vector<std::unique_ptr<QObject>> sisters;
    double alone = HUGE_VAL;
    double together = HUGE_VAL;
    for (int turn = 0; turn < 2 * repetitions; ++turn) {
        sisters.clear();
        alone = std::min(alone, bench.show());
        for (int i = 0; i < 5; ++i)
            sisters.emplace_back(sister.create(qmlContext(page)));
        if (!sisters.front())
            qFatal("%s", qPrintable(sister.errorString()));
        together = std::min(together, bench.show());
    }
    row(what, alone, together, "<= 1.1; the best of ten each");
}

/// Opening the same file again and again, against the first time: what is left behind must not slow down what follows.
void openAgain(Bench &bench, const QString &name, const char *what)
{
    const auto open = [&] { return bench.untilFrame([&] { bench.open(name); }); };
    const double first = open();
    for (int i = 2; i < 9; ++i)
        open();
    row(what, first, median(3, open), "<= 1.2; median of the 9th to 11th");
}

void resultsPage(const QTemporaryDir &dir, const Page &family, const Subject &subject)
{
    const bool first = family.family == pages[0].family;
    const auto script = [&](const QByteArray &call) -> QByteArray { return QByteArray(family.view) + '.' + call; };
    const QByteArray tableTab = script("setTab(" + QByteArray::number(family.table) + ')');
    const QByteArray chartTab = script("setTab(" + QByteArray::number(family.chart) + ')');
    const QByteArray chart = script(family.curves);
    const QString small = fileOf(subject, {everySecond(1000)}, dir);
    const QString middle = fileOf(subject, {everySecond(10000)}, dir);
    const QString large = fileOf(subject, {everySecond(day)}, dir);
    std::printf("%s\n", qPrintable(subject.name()));

    Bench bench;
    bench.open(small); // makes the family's page
    QQuickItem *page = bench.page(subject.product(), bench.root);
    bench.run(page, tableTab);
    bench.settle(800);
    openAgain(bench, large, "tenth opening of 86,400 records with the table");
    const auto parse = [&] { return bench.parse(); };
    const auto show = [&] { return bench.show(); };
    const auto [tableFloor, withTable] = inTurn(parse, show);
    row("results page with its table, 86,400 records", tableFloor, withTable, "<= 4");
    if (first)
        sisterPages(bench, page, "seven results pages against two, with the table");
    bench.open(small);
    bench.run(page, chartTab);
    bench.settle(800);
    openAgain(bench, large, "tenth opening of 86,400 records with the chart");
    const auto [chartFloor, whole] = inTurn(parse, show);
    row("results page with its chart, 86,400 records", chartFloor, whole, "<= 3");
    if (first)
        sisterPages(bench, page, "seven results pages against two, with the chart");

    // Hovering: the pointer asks for the nearest record.
    const auto hover = [&] {
        const QByteArray body = "(function () { var chart = " + chart + ";"
            " for (var i = 0; i < 200; ++i) chart.pointAt(100 + 4 * i, 150) })()";
        return median(repetitions, [&] { return taken([&] { bench.run(page, body); }) / 200; });
    };
    const double hoverLarge = hover();
    const int columns = bench.run(page, chart + ".drawnColumns").toInt();
    const QByteArray most = "Math.max.apply(null, " + chart + ".drawn.map(function (curve) { return curve.x.length }))";
    row("chart, points of a curve (floor: columns of 2 pixels)", columns, bench.run(page, most).toInt(), "<= 2", "");

    if (first)
        openFile(bench, large);

    bench.run(page, tableTab);
    bench.settle(800);
    const auto setTable = [&] {
        const QByteArray fill = script("table.show(experiment.logList)");
        return median(repetitions, [&] { return bench.untilFrame([&] { bench.run(page, fill); }); });
    };
    const double tableLarge = setTable();
    const double bare = median(9, [&] { return bench.untilFrame([] {}); });
    const double scroll = median(15, [&] {
        return bench.untilFrame([&] { bench.run(page, script("table.flickableItem.contentY += 60")); });
    });

    bench.open(middle);
    bench.run(page, chartTab);
    bench.settle(800);
    row("growth from 10,000 to 86,400 records, with the chart", median(repetitions, show), whole, "<= 9");
    bench.open(small);
    row("hover, one pointing, 86,400 records against 1,000", hover(), hoverLarge, "<= 3, and 2 ms");
    bench.run(page, tableTab);
    bench.settle(800);
    row("table, setting it, 86,400 rows against 1,000", setTable(), tableLarge, "<= 1.5");
    row("table, scrolling by 60 pixels (floor: a bare frame)", bare, scroll, "<= 3");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    loadApplicationFonts();
    if (qEnvironmentVariableIsEmpty("TZ"))
        std::printf("TZ is not set: every local time is looked up anew, and the ratios say little.\n");
    std::printf("%-58s | %12s | %12s | %6s | %s\n", "what", "floor", "measured", "ratio", "goal");
    const QTemporaryDir dir;
    const QStringList only = application.arguments().mid(1); // families; none: all
    for (const Page &family : pages) {
        for (const Subject &subject : subjects()) {
            if (qstrcmp(subject.family.name, family.family) == 0 && (only.isEmpty() || only.contains(QLatin1String(family.family))))
                resultsPage(dir, family, subject);
        }
    }
    return 0;
}
