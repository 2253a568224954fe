// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/timechart.h"

#include "report/chartscene.h"
#include "report/smoothcurve.h"
#include "report/ticks.h"

#include <QCategoryAxis>
#include <QChart>
#include <QLegendMarker>
#include <QLineSeries>
#include <QScatterSeries>
#include <QSplineSeries>

#include <algorithm>
#include <cmath>

using namespace QtCharts;

namespace {

constexpr int minute = 60 * 1000;
constexpr int reportWidth = 600;   ///< pixels
constexpr int mostTimes = 7;       ///< labels that find room across them
constexpr int besideThePlot = 85;  ///< pixels of a chart's height for titles and labels
constexpr int heightOfAValue = 19; ///< pixels
constexpr int markerSize = 10;     ///< pixels

/// Lines below one another, in the middle.
QString label(const Tick &tick)
{
    const QString cell(QLatin1String("<tr><td align=\"center\">%1</td></tr>"));
    QString text;
    for (const QString &line : tick.label.split(QLatin1Char('\n')))
        text += cell.arg(line.toHtmlEscaped());
    return tick.label.contains(QLatin1Char('\n'))
               ? QLatin1String("<table cellspacing=\"0\" cellpadding=\"0\">") + text + QLatin1String("</table>")
               : tick.label.toHtmlEscaped();
}

QCategoryAxis *axisOf(const QVector<Tick> &ticks, double lowest, double highest)
{
    auto *axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setStartValue(lowest);
    QString different(QLatin1String("<i></i>")); // the axis refuses a second label of the same text
    for (const Tick &tick : ticks) {
        axis->append(label(tick) + different, tick.value);
        different += different.left(7);
    }
    if (ticks.isEmpty()) // without labels it would not place its title
        axis->append(different, highest);
    axis->setRange(lowest, highest);
    return axis;
}

} // namespace

void TimeChart::addCurve(const QString &name, const QVector<QPointF> &points, const Marker &marker)
{
    for (const QPointF &point : points) {
        m_lowest = std::min(m_lowest, point.y());
        m_highest = std::max(m_highest, point.y());
        m_begin = std::min(m_begin, point.x());
        m_end = std::max(m_end, point.x());
    }
    m_curves.append({name, SmoothCurve::pieces(reduced(points, m_columns)), marker});
}

QVector<QPointF> TimeChart::reduced(const QVector<QPointF> &points, int columns)
{
    const qint64 count = points.size();
    if (count <= 2 * columns)
        return points;
    const double usual = (points.last().x() - points.first().x()) / columns;
    QVector<QPointF> kept;
    kept.reserve(2 * columns);
    for (int column = 0; column < columns; ++column) {
        const auto from = points.cbegin() + column * count / columns;
        const auto to = points.cbegin() + (column + 1) * count / columns;
        const auto earlier = [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); };
        const auto below = [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); };
        const auto [lowest, highest] = std::minmax_element(from, to, below);
        QPointF first = *std::min(lowest, highest);
        QPointF second = *std::max(lowest, highest);
        const double begin = from->x();
        const double width = (to == points.cend() ? points.last().x() : to->x()) - begin;
        if (width > 0 && width < 1.5 * usual && std::is_sorted(from, to, earlier)) {
            first.setX(begin + width / 4);
            second.setX(begin + width * 3 / 4);
        }
        kept.append(first);
        if (lowest != highest)
            kept.append(second);
    }
    return kept;
}

void TimeChart::addCurves(QChart *chart) const
{
    const bool smooth = m_look.curves == Curves::Smooth;
    const auto newSeries = [smooth]() -> QLineSeries * { return smooth ? new QSplineSeries : new QLineSeries; };
    QVector<QLineSeries *> firsts;
    for (const Curve &curve : m_curves) { // the first pieces first: the chart gives each curve a colour of its own
        auto *series = newSeries();
        series->setName(curve.name);
        chart->addSeries(series);
        firsts.append(series);
    }
    for (int i = 0; i < m_curves.size(); ++i) {
        const QPen pen = firsts[i]->pen();
        for (const QVector<QPointF> &piece : m_curves[i].pieces) {
            QLineSeries *series = firsts[i];
            if (&piece != &m_curves[i].pieces.first()) {
                series = newSeries();
                chart->addSeries(series);
                chart->legend()->markers(series).first()->setVisible(false);
                series->setPen(pen);
            }
            series->replace(smooth ? SmoothCurve::evened(piece) : piece);
            if (piece.size() == 1) {
                series->setPointsVisible(true);
                series->setPen(QPen(pen.brush(), 4, Qt::SolidLine, Qt::RoundCap));
            }
        }
    }
}

void TimeChart::addMarkers(QChart *chart) const
{
    for (const Curve &curve : m_curves) {
        auto *series = new QScatterSeries;
        series->setName(curve.name);
        series->setMarkerShape(QScatterSeries::MarkerShapeRectangle);
        series->setMarkerSize(markerSize);
        for (const QVector<QPointF> &piece : curve.pieces)
            series->append(piece.toList());
        chart->addSeries(series); // gives it a theme's colours, which the marker's replace
        QBrush brush(QImage(curve.marker.picture).copy(0, 0, markerSize + 2, markerSize + 2)); // a rim, for it repeats
        brush.setColor(curve.marker.colour);
        series->setBrush(brush);
        series->setPen(QPen(Qt::transparent));
    }
}

std::pair<double, double> TimeChart::valueRange() const
{
    const auto [lowest, highest] = std::minmax({std::min(m_lowest, m_look.searched), std::max(m_highest, -m_look.searched)});
    const bool tenth = m_look.beyond == Beyond::Tenth;
    if (std::isinf(lowest) || (tenth && lowest == 0 && highest == 0))
        return {-1, 1};
    return {lowest - (tenth ? std::abs(lowest) / 10 : 1), highest + (tenth ? std::abs(highest) / 10 : 1)};
}

void TimeChart::addAxes(const ChartScene &scene, const QSizeF &size) const
{
    const int mostValues = qMax(3, int(size.height() - besideThePlot) / heightOfAValue);
    const auto [lowest, highest] = valueRange();
    scene.addAxis(axisOf(Ticks::values(lowest, highest, mostValues), lowest, highest), Qt::AlignLeft, m_valueTitle, m_font);
    const bool empty = m_begin > m_end;
    const double begin = empty ? 0 : m_begin - (m_begin == m_end ? minute : 0);
    const double end = empty ? 1 : m_end + (m_begin == m_end ? minute : 0);
    const double width = size.width() / reportWidth;
    const double within = end - (end - begin) / (28 * width); // the last label stands within the chart
    const QVector<Tick> times = empty ? QVector<Tick>() : Ticks::times(begin, within, qRound(mostTimes * width));
    scene.addAxis(axisOf(times, begin, end), Qt::AlignBottom, m_timeTitle, m_font);
}

int TimeChart::draw(QPainter *painter, int x, int y, const QSizeF &size, qreal scale) const
{
    ChartScene scene(size, scale, m_title, m_font);
    if (m_look.curves == Curves::Markers)
        addMarkers(scene.chart());
    else
        addCurves(scene.chart());
    scene.chart()->legend()->setFont(m_font);
    scene.chart()->legend()->setVisible(m_look.legend);
    addAxes(scene, size);
    return scene.render(painter, x, y);
}
