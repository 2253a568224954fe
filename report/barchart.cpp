// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/barchart.h"

#include "report/chartscene.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QLegend>
#include <QValueAxis>

#include <algorithm>
#include <cmath>

using namespace QtCharts;

namespace {

// Pixels around the bars, for titles and labels.
constexpr int LeftOfPlot = 45;
constexpr int RightOfPlot = 10;
constexpr int AbovePlot = 24;
constexpr int BelowPlot = 40;
constexpr int BelowDensePlot = 62;

constexpr double Furthest = 1e12; ///< beyond it a value, whatever a file says, has no place: the drawing would break
constexpr double Nearest = 0.01;  ///< how short it may be

/// An even step that goes two to five times into \a range.
double evenStep(double range)
{
    const double power = std::pow(10, std::floor(std::log10(range)));
    return range < 2 * power ? power / 2 : range < 5 * power ? power : 2 * power;
}

/// Decimals of multiples of \a step.
int decimals(double step)
{
    return std::max(0, int(std::ceil(-std::log10(step))));
}

} // namespace

void BarChart::setBars(const QStringList &categories, const QVector<double> &values, const QColor &color)
{
    m_categories = values.isEmpty() ? categories : QStringList();
    m_values.clear();
    for (int i = 0; i < values.size(); ++i) {
        if (!(std::abs(values[i]) <= Furthest)) // the bars behind it would move to the category before theirs
            continue;
        m_categories.append(categories[i]);
        m_values.append(values[i]);
    }
    m_color = color;
}

int BarChart::draw(QPainter *painter, int x, int y, const QSizeF &size, qreal scale) const
{
    ChartScene scene(size, scale, QString(), m_font);
    scene.addTitle(m_title, m_font, 0);
    QChart *chart = scene.chart();
    chart->legend()->hide();
    auto *bars = new QBarSet(QString());
    for (const double value : m_values)
        bars->append(value);
    QFont labels = m_font;
    labels.setPixelSize(m_dense ? 6 : m_font.pixelSize());
    bars->setColor(m_color);
    bars->setBorderColor(Qt::transparent);
    bars->setLabelColor(Qt::black);
    bars->setLabelFont(labels);
    auto *series = new QBarSeries;
    series->append(bars);
    series->setLabelsVisible(true);
    series->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
    chart->addSeries(series);

    auto *categories = new QBarCategoryAxis;
    for (int i = 0; i < m_categories.size(); ++i) { // of two categories of one name the axis would leave one out
        const bool again = m_categories.indexOf(m_categories[i]) < i;
        categories->append(again ? m_categories[i] + QStringLiteral("<i></i>").repeated(i) : m_categories[i]);
    }
    scene.addAxis(categories, Qt::AlignBottom, m_categoryTitle, m_font);
    auto *values = new QValueAxis;
    scene.addAxis(values, Qt::AlignLeft, m_valueTitle, m_font);
    // Above the highest bar there is room for its value; weighted levels may lie below 0.
    double lowest = 0;
    double highest = 0;
    for (const double value : m_values) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    const double end = highest + highest / 75 * 3 * m_font.pixelSize();
    const double step = evenStep(std::max(end - lowest, Nearest));
    values->setRange(step * std::floor(lowest / step), std::max(end, Nearest));
    values->setTickType(QValueAxis::TicksDynamic);
    values->setTickInterval(step);
    values->setLabelFormat(QStringLiteral("%.%1f").arg(decimals(step)));
    // With a plot in a place of its own the chart has none for a title.
    const QRectF plot(LeftOfPlot, AbovePlot, size.width() * scale - LeftOfPlot - RightOfPlot,
                      size.height() - AbovePlot - (m_dense ? BelowDensePlot : BelowPlot));
    chart->setPlotArea(plot);
    if (m_dense) { // the axis would cut turned labels that are longer than a bar is wide
        QFont small = m_font;
        small.setPixelSize(7);
        categories->setLabelsVisible(false);
        categories->setTitleVisible(false);
        scene.addTitle(m_categoryTitle, m_font, size.height() - 20);
        for (int i = 0; i < m_categories.size(); ++i)
            scene.addTurned(m_categories[i], small,
                            {plot.left() + (i + 0.5) * plot.width() / m_categories.size(), plot.bottom()});
    }
    return scene.render(painter, x, y);
}
