// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/timechart.h"

#include "report/smoothcurve.h"
#include "report/texts.h"
#include "report/ticks.h"

#include <QCategoryAxis>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QLegendMarker>
#include <QPainter>
#include <QSplineSeries>

#include <algorithm>

using namespace QtCharts;

namespace {

constexpr int minute = 60 * 1000;
constexpr int inset = 9;         ///< around a chart and its legend
constexpr int longestTitle = 80; ///< characters
/// Labels that find room in a plot of a report's width and of 300 pixels' height.
constexpr int mostTimes = 7;
constexpr int mostValues = 11;

/// \a text as it is, for what reads its texts as markup; cut when it is absurdly long.
QString plain(const QString &text)
{
    return shortened(text, longestTitle).toHtmlEscaped();
}

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

void addAxis(QChart *chart, const QVector<Tick> &ticks, double lowest, double highest, Qt::Alignment side,
             const QString &title, const QFont &font)
{
    auto *axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setTitleText(plain(title));
    axis->setTitleFont(font);
    axis->setLabelsFont(font);
    axis->setStartValue(lowest);
    QString different(QLatin1String("<i></i>")); // the axis refuses a second label of the same text
    for (const Tick &tick : ticks) {
        axis->append(label(tick) + different, tick.value);
        different += different.left(7);
    }
    if (ticks.isEmpty()) // without labels it would not place its title
        axis->append(different, highest);
    axis->setRange(lowest, highest);
    chart->addAxis(axis, side);
    const auto curves = chart->series();
    for (QAbstractSeries *curve : curves)
        curve->attachAxis(axis);
}

} // namespace

void TimeChart::addCurve(const QString &name, const QVector<QPointF> &points)
{
    for (const QPointF &point : points) {
        m_lowest = std::min(m_lowest, point.y());
        m_highest = std::max(m_highest, point.y());
        m_begin = std::min(m_begin, point.x());
        m_end = std::max(m_end, point.x());
    }
    m_curves.append({name, SmoothCurve::pieces(reduced(points, m_columns))});
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
    QVector<QSplineSeries *> firsts;
    for (const Curve &curve : m_curves) { // the first pieces first: the chart gives each curve a colour of its own
        auto *series = new QSplineSeries;
        series->setName(curve.name);
        chart->addSeries(series);
        firsts.append(series);
    }
    for (int i = 0; i < m_curves.size(); ++i) {
        const QPen pen = firsts[i]->pen();
        for (const QVector<QPointF> &piece : m_curves[i].pieces) {
            QSplineSeries *series = firsts[i];
            if (&piece != &m_curves[i].pieces.first()) {
                series = new QSplineSeries;
                chart->addSeries(series);
                chart->legend()->markers(series).first()->setVisible(false);
                series->setPen(pen);
            }
            series->replace(SmoothCurve::evened(piece));
            if (piece.size() == 1) {
                series->setPointsVisible(true);
                series->setPen(QPen(pen.brush(), 4, Qt::SolidLine, Qt::RoundCap));
            }
        }
    }
}

void TimeChart::addAxes(QChart *chart) const
{
    const double lowest = std::min(m_lowest, m_highest) - 1;
    const double highest = std::max(m_lowest, m_highest) + 1;
    addAxis(chart, Ticks::values(lowest, highest, mostValues), lowest, highest, Qt::AlignLeft, m_valueTitle, m_font);
    const bool empty = m_begin > m_end;
    const double begin = empty ? 0 : m_begin - (m_begin == m_end ? minute : 0);
    const double end = empty ? 1 : m_end + (m_begin == m_end ? minute : 0);
    // the last label stands within the chart
    const QVector<Tick> times = empty ? QVector<Tick>() : Ticks::times(begin, end - (end - begin) / 28, mostTimes);
    addAxis(chart, times, begin, end, Qt::AlignBottom, m_timeTitle, m_font);
}

int TimeChart::draw(QPainter *painter, int x, int y, const QSizeF &size, qreal scale) const
{
    QGraphicsScene scene(QRectF(QPointF(0, 0), size));
    auto *chart = new QChart;
    chart->setPreferredSize(size.width() * scale, size.height()); // before the scene takes the chart
    chart->setMargins(QMargins(0, 0, 0, 0));
    for (QGraphicsLayout *layout : {chart->layout(), chart->legend()->layout()})
        layout->setContentsMargins(inset, inset, inset, inset); // whatever the display's style has
    chart->setLocalizeNumbers(true);
    chart->setTitle(plain(m_title));
    chart->setTitleFont(m_font);
    addCurves(chart);
    chart->legend()->setFont(m_font);
    addAxes(chart);
    scene.addItem(chart);

    painter->resetTransform();
    painter->translate(x, y);
    scene.render(painter, QRectF(QPointF(0, 0), size), scene.sceneRect(), Qt::KeepAspectRatio);
    return qRound(scene.height());
}
