// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelkprinter.h"

#include "model/experiment.h"
#include "report/chartscene.h"
#include "report/dates.h"
#include "report/texts.h"
#include "report/timechart.h"
#include "report/values.h"
#include "report/vffullpagetable.h"
#include "report/vfnormaltable.h"
#include "report/vfsubsuperscript.h"
#include "zelk/zelklog.h"
#include "zelk/zelkresults.h"

#include <QLocale>

#include <cmath>
#include <numeric>

namespace {

constexpr int ChartHeight = 150;
constexpr int ChartsInARow = 2;
constexpr int MostCharts = 8;   // of more than these there is none
constexpr int LongestText = 60; // characters of a text from outside

QString tidy(const QString &text)
{
    return shortened(text.simplified(), LongestText);
}

QString tidyLine(const QString &caption, const QString &value)
{
    return captionedText(caption, tidy(value));
}

/// The unit of a quantity behind its name, if it has one, with \a gap between.
QString withUnit(const QString &name, const QString &unit, const QString &gap = QStringLiteral(" "))
{
    return unit.isEmpty() ? name : name + gap + QLatin1Char('[') + tidy(unit) + QLatin1Char(']');
}

QString caption(const PhysicalQuantityDescriptor &quantity)
{
    return withUnit(quantity.nameTr(), quantity.unity);
}

/// What an axis of values says, as markup; an axis as low as these has no room for a long text in one line.
QString axisTitle(const PhysicalQuantityDescriptor &quantity)
{
    constexpr int longestLine = 18; // characters
    const QString gap = caption(quantity).size() > longestLine ? QStringLiteral("<br>") : QStringLiteral(" ");
    return withUnit(ChartScene::plain(quantity.nameTr()), quantity.unity.toHtmlEscaped(), gap);
}

/// A value with two decimals, or the text that stands in its place.
QString valueText(const QString &value)
{
    constexpr double mostPlain = 1e10; // beyond, the digits would fill a page
    const std::optional<double> number = numberIn(value);
    if (!number)
        return tidy(dashed(value));
    return QLocale().toString(*number, std::abs(*number) < mostPlain ? 'f' : 'g', 2);
}

QString itemText(const ZelkExpData &item)
{
    if (item.type == QLatin1String("s"))
        return tidyLine(item.labelTr(), item.valueTr());
    const bool isNumber = item.type == QLatin1String("f");
    return tidyLine(isNumber ? withUnit(item.labelTr(), item.unity) : item.labelTr(),
                         isNumber && item.dataValue.isValid() ? QLocale().toString(item.dataValue.toDouble(), 'g', 6)
                                                              : absentText());
}

} // namespace

ZelkPrinter::ZelkPrinter()
{
    m_reportTitle = tr("Zelk Report");
    m_footerText = QStringLiteral(" ");
    setBodyFonts();
}

void ZelkPrinter::setParameters(const QString &json)
{
    readParameters(json, {
        {"selectedTableColumnsList", &m_columns}, {"ckbChart", &m_ckbChart},
        {"selectedChartsList", &m_charts},        {"ckbMaxMin", &m_ckbMaxMin},
        {"ckbAvg", &m_ckbAvg},                    {"ckbCalibration", &m_ckbCalibration},
    });
    m_tableEnable = m_tableEnable && !m_columns.isEmpty();
}

const ZelkResults &ZelkPrinter::resultsOf(const Experiment &experiment)
{
    return static_cast<const ZelkResults &>(*experiment.results());
}

QVector<int> ZelkPrinter::numbersOf(const QVector<int> &chosen, const Experiment &experiment)
{
    const int count = resultsOf(experiment).quantitiesInfoList().size();
    QVector<int> numbers;
    std::copy_if(chosen.cbegin(), chosen.cend(), std::back_inserter(numbers), [=](int number) { return number < count; });
    return numbers;
}

// ---------------------------------------------------------------- front

void ZelkPrinter::drawFront()
{
    drawIdentification(captioned(m_cmpnyInfoEnable, tr("Company evaluated"), m_cmpnyName) +
                           captioned(m_siteInfoEnable, tr("Site/Area"), m_siteName) +
                           captioned(true, tr("Experiment type"), resultsOf(*m_experiment).experimentType()),
                       captioned(m_ownCompanyInfoEnable, tr("Valuation company"), m_ownCompany) +
                           captioned(m_collectorInfoEnable, tr("Collected by"), m_collectorName));
    drawSensors();
    keepTogether([this] { drawNotes(); });
    keepTogether([this] { drawSignature(); });
}

void ZelkPrinter::drawSensors()
{
    QStringList heads{tr("Event"), tr("Name"), tr("Sensor SN")};
    if (m_ckbCalibration)
        heads.append(tr("Sensor certificate"));
    const int width = (windowWidth() - 2 * m_hSpace) / heads.size();
    const QFontMetrics metrics(m_textFont, m_painter->device());
    const auto fitting = [&](const QString &text) { return metrics.elidedText(text.simplified(), Qt::ElideRight, width - 10); };
    QList<VfTableRow *> rows;
    for (const Experiment *member = m_experiment; member; member = member->next()) {
        const ZelkResults &results = resultsOf(*member);
        QStringList cells{QString::number(member->ordinal()), fitting(dashed(results.label())), fitting(dashed(results.sensorSN()))};
        if (m_ckbCalibration) {
            const QString date = QLatin1String(" (") + ::dateText(results.sensorCalibrationDate().date()) + QLatin1Char(')');
            cells.append(fitting(dashed(tidy(results.sensorCertificate())) + date));
        }
        rows.append(new VfTableRow(cells, {}));
    }
    VfNormalTable table(m_painter.get());
    table.setRows(rows);
    table.setHeader(heads);
    table.setColumnWidth(width);
    tableSection(tr("Sensor information"), table);
}

// ---------------------------------------------------------------- parts

std::vector<PartedPrinter::Part> ZelkPrinter::parts()
{
    std::vector<Part> all;
    for (Experiment *member = m_experiment; member; member = member->next())
        all.push_back(partOf(member));
    return all;
}

PartedPrinter::Part ZelkPrinter::partOf(Experiment *experiment)
{
    const ZelkResults &results = resultsOf(*experiment);
    const bool withTable = m_tableEnable && !numbersOf(m_columns, *experiment).isEmpty();
    Part part;
    part.pages.push_back([=, &results] {
        drawConfiguration(*experiment);
        wholeSection(tr("Evaluation results"), [&] { drawItems(results.evaluationResultsList()); });
        drawLimits(results);
        drawCharts(*experiment);
        if (withTable)
            drawMissingTable(experiment);
    });
    if (withTable)
        part.logTable = [this, experiment] { return createLogTable(experiment); };
    return part;
}

void ZelkPrinter::drawConfiguration(const Experiment &experiment)
{
    constexpr int columns = 3;
    const ZelkResults &results = resultsOf(experiment);
    const QStringList texts{
        tidyLine(tr("Event"), QString::number(experiment.ordinal())),
        tidyLine(tr("Task name"), results.label()),
        tidyLine(tr("Sample time [s]"), QString::number(results.sampleTime())),
        tidyLine(tr("Start time"), localTime(results.startTime())),
        tidyLine(tr("Stop time"), localTime(results.stopTime())),
        QString(),
        tidyLine(tr("Duration"), results.duration()),
        tidyLine(tr("Pause time"), results.pauseTime()),
    };
    wholeSection(tr("Configuration"), [&] {
        for (int first = 0; first < texts.size(); first += columns)
            drawColumns(texts.mid(first, columns), columns);
        if (!results.configList().isEmpty())
            drawItems(results.configList());
    });
}

void ZelkPrinter::drawItems(const QVector<ZelkExpData> &items)
{
    if (items.isEmpty())
        drawLine(absentText());
    for (const ZelkExpData &item : items)
        drawLine(itemText(item));
}

void ZelkPrinter::drawLimits(const ZelkResults &results)
{
    if (!m_ckbMaxMin && !m_ckbAvg)
        return;
    QStringList heads{tr("Quantity")};
    QVector<QStringList> columns;
    const auto add = [&](bool on, const QString &head, const QStringList &values) {
        if (on) {
            heads.append(head);
            columns.append(values);
        }
    };
    add(m_ckbMaxMin, tr("Min"), results.minList());
    add(m_ckbMaxMin, tr("Max"), results.maxList());
    add(m_ckbAvg, tr("Avg"), results.averageList());
    QList<VfTableRow *> rows;
    const QVector<PhysicalQuantityDescriptor> &quantities = results.quantitiesInfoList();
    for (int i = 0; i < quantities.size(); ++i) {
        QStringList cells{caption(quantities[i])};
        for (const QStringList &values : qAsConst(columns))
            cells.append(valueText(values.value(i)));
        rows.append(new VfTableRow(cells, {}));
    }
    VfNormalTable table(m_painter.get());
    table.setRows(rows);
    table.setHeader(heads);
    tableSection(tr("Limits and average"), table);
}

// ---------------------------------------------------------------- charts

void ZelkPrinter::drawCharts(const Experiment &experiment)
{
    const QVector<int> quantities = m_ckbChart && m_charts.size() <= MostCharts ? numbersOf(m_charts, experiment) : QVector<int>();
    const int width = windowWidth() / ChartsInARow;
    const int frame = rehearse([&] { section(tr("Charts"), [] {}); }).height;
    for (int next = 0; next < quantities.size();) {
        const int room = (contentBottom() - m_y - frame) / ChartHeight;
        if (room < 1 && m_y > m_contentTop) {
            newContentPage();
            continue;
        }
        section(tr("Charts"), [&] {
            for (int row = 0; row < qMax(room, 1) && next < quantities.size(); ++row) {
                for (int column = 0; column < ChartsInARow && next < quantities.size(); ++column, ++next)
                    drawChart(experiment, quantities[next], QRect(column * width, m_y, width, ChartHeight));
                m_y += ChartHeight;
            }
        });
    }
}

void ZelkPrinter::drawChart(const Experiment &experiment, int quantity, const QRect &place)
{
    if (isRehearsing())
        return;
    const PhysicalQuantityDescriptor descriptor = resultsOf(experiment).quantitiesInfoList().value(quantity);
    TimeChart chart(m_chartFont);
    chart.setLook({TimeChart::Curves::Lines, TimeChart::Beyond::Tenth, false, std::numeric_limits<double>::infinity()});
    chart.setTitle(ChartScene::plain(descriptor.nameTr()) + QLatin1String(" x ") + tr("Time"));
    chart.setTimeTitle(tr("Time", "X axis label"));
    chart.setValueTitle(axisTitle(descriptor));
    QVector<QPointF> points;
    const QList<Log *> logs = experiment.logs();
    points.reserve(logs.size());
    for (const Log *log : logs) {
        const QStringList values = static_cast<const ZelkLog *>(log)->physicalQuantitiesList();
        if (const auto value = numberIn(values.value(quantity)); value && log->moment().isValid())
            points.append({double(log->moment().toMSecsSinceEpoch()), *value});
    }
    chart.addCurve(QString(), points);
    placeChart(chart, place);
}

// ---------------------------------------------------------------- log table

QList<VfSubSuperScript *> ZelkPrinter::logHeads(const Experiment &experiment, const QString &gap) const
{
    QList<VfSubSuperScript *> heads{new VfSubSuperScript(tr("Idx"), {}, {}), new VfSubSuperScript(tr("D/T"), {}, {})};
    const QVector<PhysicalQuantityDescriptor> &quantities = resultsOf(experiment).quantitiesInfoList();
    const QVector<int> numbers = numbersOf(m_columns, experiment);
    for (const int number : numbers)
        heads.append(new VfSubSuperScript(withUnit(quantities[number].nameTr(), quantities[number].unity, gap), {}, {}));
    return heads;
}

bool ZelkPrinter::fits(const QList<VfSubSuperScript *> &heads) const
{
    constexpr int margin = 8; // of a column
    const auto add = [this](int sum, VfSubSuperScript *head) { return sum + head->width(m_painter.get()) + margin; };
    return std::accumulate(heads.cbegin(), heads.cend(), 0, add) <= windowWidth();
}

QList<VfSubSuperScript *> ZelkPrinter::logTableHeader(Experiment *experiment)
{
    const QList<VfSubSuperScript *> heads = logHeads(*experiment, QStringLiteral(" "));
    if (fits(heads))
        return heads;
    qDeleteAll(heads);
    return logHeads(*experiment, QStringLiteral("\n"));
}

void ZelkPrinter::drawMissingTable(Experiment *experiment)
{
    const QList<VfSubSuperScript *> heads = logTableHeader(experiment);
    if (!fits(heads))
        wholeSection(tr("Table"), [this] { drawLine(tr("The columns that were selected do not fit on a page.")); });
    qDeleteAll(heads);
}

QList<VfTableRow *> ZelkPrinter::logTableRows(Experiment *experiment)
{
    const QVector<int> numbers = numbersOf(m_columns, *experiment);
    return logRows(experiment, [&](const Log &log) {
        const QStringList values = static_cast<const ZelkLog &>(log).physicalQuantitiesList();
        QStringList cells;
        for (const int number : numbers)
            cells.append(valueText(values.value(number)));
        return cells;
    });
}
